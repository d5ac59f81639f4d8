// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CollectorProcess.h"
#include "HttpExchange.h"
#include "ReportSender.h"
#include "SlowPeer.h"
#include "TestArchives.h"

#include "support/Sandbox.h"

#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <memory>
#include <vector>

using namespace CrashCollectorTest;

namespace {

constexpr auto unknownOperation = "Client: The operation is not known";
constexpr auto wrongArguments = "Client: ReportCrash takes the texts platform, product, version and data, once each";
constexpr auto wrongAction = "Client: The SOAPAction is not the one of the operation";

QString goodData()
{
    return QString::fromLatin1(reportArchive().toBase64());
}

QString argument(const QString &name, const QString &value)
{
    return u"<%1>%2</%1>"_qs.arg(name, value);
}

QString allArguments()
{
    return argument(u"platform"_qs, u"Win"_qs) + argument(u"product"_qs, u"P"_qs) + argument(u"version"_qs, u"1"_qs)
        + argument(u"data"_qs, goodData());
}

QByteArray requestWithBody(const QByteArray &body)
{
    return "<e:Envelope xmlns:e=\"http://schemas.xmlsoap.org/soap/envelope/\"><e:Body>" + body
        + "</e:Body></e:Envelope>";
}

/*! A request for \a operation in the namespace \a uri that is good otherwise. */
QByteArray requestFor(const QString &operation, const QString &uri)
{
    return requestWithBody(
        u"<s:%1 xmlns:s=\"%2\">%3</s:%1>"_qs.arg(operation, uri.toHtmlEscaped(), allArguments()).toUtf8());
}

QByteArray postHead(qint64 contentLength)
{
    return CrashCollectorTest::postHead("Content-Length: " + QByteArray::number(contentLength));
}

std::unique_ptr<QTcpSocket> connectTo(const CollectorProcess &collector, const QByteArray &firstBytes)
{
    auto socket = std::make_unique<QTcpSocket>();
    socket->connectToHost(QHostAddress::LocalHost, collector.port());
    if (!socket->waitForConnected(watchdogMs)) {
        return nullptr;
    }
    socket->write(firstBytes);
    return firstBytes.isEmpty() || socket->waitForBytesWritten(watchdogMs) ? std::move(socket) : nullptr;
}

} // namespace

class tst_CrashCollectorRequests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void goodRequest_isAccepted_data();
    void goodRequest_isAccepted();
    void wrongRequest_isAFault_data();
    void wrongRequest_isAFault();
    void action_isTheOneOfTheOperation_data();
    void action_isTheOneOfTheOperation();
    void answer_isInTheNamespaceOfTheRequest();
    void wrongHttp_isRefused_data();
    void wrongHttp_isRefused();
    void foreignHost_isRefused_data();
    void foreignHost_isRefused();
    void tooLargeBody_isRefused_data();
    void tooLargeBody_isRefused();
    void endlessBody_isLeft();
    void bytesThatAreNoRequest_areRefused_data();
    void bytesThatAreNoRequest_areRefused();
    void cutBody_isNotStored();
    void slowSender_keepsNoOneWaiting();
    void silentPeers_areLeftAfterSeconds();
    void severalRanges_areRefused();

private:
    TestSupport::Sandbox m_sandbox;
    CollectorProcess m_collector = CollectorProcess(m_sandbox.filePath(u"reports"_qs));
    QStringList m_filesBefore;
};

void tst_CrashCollectorRequests::initTestCase()
{
    QVERIFY2(m_collector.start({u"--size-limit"_qs, u"1"_qs}), qPrintable(m_collector.errors()));
}

void tst_CrashCollectorRequests::init()
{
    m_filesBefore = m_collector.storedFiles();
}

void tst_CrashCollectorRequests::cleanup()
{
    QCOMPARE(m_collector.process().state(), QProcess::Running);
    QCOMPARE(sendReport(m_collector, reportArchive()).word, u"NoError"_qs);
}

void tst_CrashCollectorRequests::goodRequest_isAccepted_data()
{
    QTest::addColumn<QByteArray>("document");

    QTest::newRow("library's message") << reportRequest(goodData());
    QTest::newRow("without types") << requestWithArguments(allArguments());
    QTest::newRow("other order, and one more") << requestWithArguments(
        argument(u"data"_qs, goodData()) + argument(u"version"_qs, u"1"_qs) + argument(u"mood"_qs, u"bad"_qs)
        + argument(u"product"_qs, u"P"_qs) + argument(u"platform"_qs, u"Win"_qs));
    QTest::newRow("longest texts") << reportRequest(goodData(),
                                                    {QString(256, u'p'), QString(256, u'v'), QString(256, u'w')});
    QTest::newRow("empty texts") << reportRequest(goodData(), {u""_qs, u""_qs, u""_qs});
    QTest::newRow("namespace of another host") << requestFor(u"ReportCrash"_qs, serviceUri());
    QTest::newRow("XML declaration") << QByteArray(R"(<?xml version="1.0" encoding="utf-8"?>)"
                                                   + requestWithArguments(allArguments()));
}

void tst_CrashCollectorRequests::goodRequest_isAccepted()
{
    QFETCH(const QByteArray, document);

    const Verdict verdict = postDocument(m_collector, document);
    QCOMPARE(verdict.fault, QString());
    QCOMPARE(verdict.status, 200);
    QCOMPARE(verdict.word, u"NoError"_qs);
}

void tst_CrashCollectorRequests::wrongRequest_isAFault_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("fault");

    const QByteArray good = requestWithArguments(allArguments());
    const QString unreadable = u"Client: XML parse error"_qs;
    const QString noEnvelope = u"Client: SOAP structure invalid"_qs;
    QTest::newRow("nothing") << QByteArray("") << unreadable;
    QTest::newRow("garbage") << QByteArray("\x00\xff\xfe<>&", 6) << unreadable;
    QTest::newRow("cut document") << good.chopped(20) << unreadable;
    QTest::newRow("document type") << QByteArray("<!DOCTYPE a [<!ENTITY b \"c\">]>" + good) << unreadable;
    QTest::newRow("10,000 nested elements")
        << requestWithArguments(QString(u"<a>"_qs).repeated(10'000) + QString(u"</a>"_qs).repeated(10'000))
        << unreadable;
    QTest::newRow("comment in front") << QByteArray("<!-- a -->" + good) << noEnvelope;
    QTest::newRow("no envelope") << QByteArray("<a/>") << noEnvelope;
    QTest::newRow("no body") << QByteArray("<e:Envelope xmlns:e=\"http://schemas.xmlsoap.org/soap/envelope/\"/>")
                             << noEnvelope;
    QTest::newRow("other envelope") << QByteArray(good).replace("schemas.xmlsoap.org/soap/envelope/",
                                                                "www.w3.org/2003/05/soap-envelope")
                                    << noEnvelope;

    const QString unknown = QString::fromLatin1(unknownOperation);
    QTest::newRow("empty body") << requestWithBody("") << unknown;
    QTest::newRow("text for an operation") << requestWithBody("<ReportCrash>text</ReportCrash>") << unknown;
    QTest::newRow("another operation") << requestFor(u"DeleteReports"_qs, serviceUri()) << unknown;
    QTest::newRow("operation in small letters") << requestFor(u"reportcrash"_qs, serviceUri()) << unknown;
    QTest::newRow("another path") << requestFor(u"ReportCrash"_qs, u"http://www.zyx.example/Other"_qs) << unknown;
    QTest::newRow("path that only ends alike")
        << requestFor(u"ReportCrash"_qs, u"http://www.zyx.example/XCollectDump"_qs) << unknown;
    QTest::newRow("path in a query") << requestFor(u"ReportCrash"_qs, u"http://www.zyx.example/?/CollectDump"_qs)
                                     << unknown;
    QTest::newRow("path alone") << requestFor(u"ReportCrash"_qs, u"/CollectDump"_qs) << unknown;
    QTest::newRow("no URI") << requestFor(u"ReportCrash"_qs, u"http://[/CollectDump"_qs) << unknown;
    QTest::newRow("a fault") << requestWithBody("<e:Fault><faultcode>e:Client</faultcode></e:Fault>") << unknown;

    const QString arguments = QString::fromLatin1(wrongArguments);
    for (const auto name :
         {QStringView(u"platform"), QStringView(u"product"), QStringView(u"version"), QStringView(u"data")}) {
        const QString first = u"<%1>"_qs.arg(name);
        const QString without = allArguments().replace(first, u"<x>"_qs).replace(u"</%1>"_qs.arg(name), u"</x>"_qs);
        QTest::addRow("no %s", qPrintable(name.toString())) << requestWithArguments(without) << arguments;
        QTest::addRow("%s twice", qPrintable(name.toString()))
            << requestWithArguments(allArguments() + argument(name.toString(), u"again"_qs)) << arguments;
        QTest::addRow("%s with parts", qPrintable(name.toString()))
            << requestWithArguments(without + argument(name.toString(), u"<part>x</part>"_qs)) << arguments;
    }
    QTest::newRow("product too long") << reportRequest(goodData(), {QString(257, u'p')}) << arguments;
    QTest::newRow("version too long") << reportRequest(goodData(), {u"p"_qs, QString(257, u'v')}) << arguments;
    QTest::newRow("platform too long") << reportRequest(goodData(), {u"p"_qs, u"v"_qs, QString(257, u'w')})
                                       << arguments;
}

void tst_CrashCollectorRequests::wrongRequest_isAFault()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, fault);

    const Verdict verdict = postDocument(m_collector, document);
    QCOMPARE(verdict.status, 500);
    QCOMPARE(verdict.fault, fault);
    QCOMPARE(verdict.word, QString());
    QCOMPARE(m_collector.storedFiles(), m_filesBefore);
}

void tst_CrashCollectorRequests::action_isTheOneOfTheOperation_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<bool>("isRight");

    QTest::newRow("by the book") << reportAction() << true;
    QTest::newRow("quoted") << QByteArray('"' + reportAction() + '"') << true;
    QTest::newRow("one quote") << QByteArray('"' + reportAction()) << false;
    QTest::newRow("none") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("operation alone") << QByteArray("ReportCrash") << false;
    QTest::newRow("another operation") << QByteArray("http://www.zyx.example/CollectDump/DeleteReports") << false;
    QTest::newRow("another host") << QByteArray("http://elsewhere.example/CollectDump/ReportCrash") << false;
}

void tst_CrashCollectorRequests::action_isTheOneOfTheOperation()
{
    QFETCH(const QByteArray, action);
    QFETCH(const bool, isRight);

    const Verdict verdict = postDocument(m_collector, reportRequest(goodData()), action);
    QCOMPARE(verdict.status, isRight ? 200 : 500);
    QCOMPARE(verdict.fault, isRight ? QString() : QString::fromLatin1(wrongAction));
}

void tst_CrashCollectorRequests::answer_isInTheNamespaceOfTheRequest()
{
    const QString uri = u"https://other.example:8443/a&b/CollectDump"_qs;
    const HttpReply reply = exchange("POST", m_collector.url(reportPath()),
                                     {{"Content-Type", "TEXT/XML"}, {"SOAPAction", (uri + u"/ReportCrash").toUtf8()}},
                                     requestFor(u"ReportCrash"_qs, uri));
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.headers.value("content-type"), QByteArray("text/xml; charset=utf-8"));
    QVERIFY2(reply.body.contains("<ReportCrashResponse xmlns=\"https://other.example:8443/a&amp;b/CollectDump\">"),
             reply.body.constData());
    QCOMPARE(verdictIn(reply.status, reply.body).word, u"NoError"_qs);
}

void tst_CrashCollectorRequests::wrongHttp_isRefused_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("contentType");
    QTest::addColumn<int>("status");

    const QByteArray xml("text/xml");
    QTest::newRow("operation by GET") << QByteArray("GET") << reportPath() << xml << 405;
    QTest::newRow("operation by PUT") << QByteArray("PUT") << reportPath() << xml << 405;
    QTest::newRow("question of a browser") << QByteArray("OPTIONS") << reportPath() << xml << 405;
    QTest::newRow("page by POST") << QByteArray("POST") << u"/"_qs << xml << 405;
    QTest::newRow("page by DELETE") << QByteArray("DELETE") << u"/"_qs << xml << 405;
    QTest::newRow("report by DELETE") << QByteArray("DELETE") << u"/reports/x.zip"_qs << xml << 405;
    QTest::newRow("another path") << QByteArray("POST") << u"/CollectDumpInfo"_qs << xml << 404;
    QTest::newRow("path with more") << QByteArray("POST") << QString(reportPath() + u"/x") << xml << 404;
    QTest::newRow("path as a pattern") << QByteArray("POST") << u"/CollectDumpInfo/WSCollectDumpXasmx"_qs << xml << 404;
    QTest::newRow("form") << QByteArray("POST") << reportPath() << QByteArray("application/x-www-form-urlencoded")
                          << 415;
    QTest::newRow("upload") << QByteArray("POST") << reportPath() << QByteArray("multipart/form-data; boundary=a")
                            << 415;
    QTest::newRow("plain text") << QByteArray("POST") << reportPath() << QByteArray("text/plain") << 415;
    QTest::newRow("later SOAP") << QByteArray("POST") << reportPath() << QByteArray("application/soap+xml") << 415;
    QTest::newRow("nearly XML") << QByteArray("POST") << reportPath() << QByteArray("text/xmlish") << 415;
}

void tst_CrashCollectorRequests::wrongHttp_isRefused()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QString, path);
    QFETCH(const QByteArray, contentType);
    QFETCH(const int, status);

    const HttpReply reply
        = exchange(method, m_collector.url(path), {{"Content-Type", contentType}, {"SOAPAction", reportAction()}},
                   method == "GET" ? QByteArray() : reportRequest(goodData()));
    QCOMPARE(reply.status, status);
    if (status == 405) {
        QCOMPARE(reply.headers.value("allow"), path == reportPath() ? QByteArray("POST") : QByteArray("GET, HEAD"));
    }
    QCOMPARE(reply.body, QByteArray("Error " + QByteArray::number(status) + '\n'));
    QCOMPARE(m_collector.storedFiles(), m_filesBefore);
}

void tst_CrashCollectorRequests::foreignHost_isRefused_data()
{
    QTest::addColumn<QByteArray>("host");
    QTest::addColumn<int>("status");

    QTest::newRow("address") << QByteArray("Host: 127.0.0.1\r\n") << 200;
    QTest::newRow("address and a port") << QByteArray("Host: 127.0.0.1:80\r\n") << 200;
    QTest::newRow("localhost") << QByteArray("Host: LocalHost:8080\r\n") << 200;
    QTest::newRow("another name") << QByteArray("Host: rebound.example\r\n") << 421;
    QTest::newRow("another name with the port") << QByteArray("Host: rebound.example:80\r\n") << 421;
    QTest::newRow("name that starts alike") << QByteArray("Host: 127.0.0.1.rebound.example\r\n") << 421;
    QTest::newRow("name that ends alike") << QByteArray("Host: not-localhost\r\n") << 421;
    QTest::newRow("name with a user") << QByteArray("Host: localhost@rebound.example\r\n") << 421;
    QTest::newRow("none") << QByteArray() << 421;
    QTest::newRow("empty") << QByteArray("Host: \r\n") << 421;
    QTest::newRow("two") << QByteArray("Host: localhost\r\nHost: rebound.example\r\n") << 421;
}

void tst_CrashCollectorRequests::foreignHost_isRefused()
{
    QFETCH(const QByteArray, host);
    QFETCH(const int, status);

    const HttpReply reply = exchangeBytes(m_collector.port(), "GET / HTTP/1.1\r\n" + host + "\r\n");
    QCOMPARE(reply.status, status);
    QCOMPARE(reply.body.contains("Crash reports"), status == 200);
}

void tst_CrashCollectorRequests::tooLargeBody_isRefused_data()
{
    QTest::addColumn<QByteArray>("extraHeader");
    QTest::addColumn<QByteArray>("body");

    const QByteArray blanks(qsizetype(3) * 1024 * 1024, ' ');
    QTest::newRow("with its length") << QByteArray("Content-Length: " + QByteArray::number(blanks.size())) << blanks;
    QTest::newRow("in chunks") << QByteArray("Transfer-Encoding: chunked")
                               << QByteArray(QByteArray::number(blanks.size(), 16) + "\r\n" + blanks + "\r\n0\r\n\r\n");
    const QByteArray bomb = qCompress(QByteArray(qsizetype(64) * 1024 * 1024, ' ')).mid(4); // less Qt's own head
    QTest::newRow("compressed") << QByteArray("Content-Encoding: deflate\r\nContent-Length: "
                                              + QByteArray::number(bomb.size()))
                                << bomb;
    QTest::newRow("endless") << QByteArray("Content-Length: 9000000000000000000") << blanks;
    QTest::newRow("negative length") << QByteArray("Content-Length: -1") << blanks;
}

void tst_CrashCollectorRequests::tooLargeBody_isRefused()
{
    QFETCH(const QByteArray, extraHeader);
    QFETCH(const QByteArray, body);

    const HttpReply reply
        = exchangeBytes(m_collector.port(),
                        "POST " + reportPath().toUtf8() + " HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\n"
                            + extraHeader + "\r\n\r\n" + body);
    QCOMPARE(reply.status, 413);
    QCOMPARE(verdictIn(reply.status, reply.body).fault,
             u"Client: Archives of more than 1048576 bytes are not accepted"_qs);
}

void tst_CrashCollectorRequests::endlessBody_isLeft()
{
    const QByteArray blanks(qsizetype(1024) * 1024, ' ');
    const auto sender = connectTo(m_collector, postHead(9'000'000'000'000'000'000));
    QVERIFY(sender);
    int mebibytes = 0;
    while (mebibytes < 100 && sender->state() == QAbstractSocket::ConnectedState) {
        sender->write(blanks);
        ++mebibytes;
        while (sender->bytesToWrite() > 0 && sender->waitForBytesWritten(watchdogMs)) { }
    }
    QVERIFY2(mebibytes < 30, qPrintable(QString::number(mebibytes))); // 4 times the limit, and what buffers take
}

void tst_CrashCollectorRequests::bytesThatAreNoRequest_areRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("garbage") << QByteArray("\x00\x01\x02\xff\r\n\r\n", 8);
    QTest::newRow("one word") << QByteArray("POST\r\n\r\n");
    QTest::newRow("long line") << QByteArray("GET /" + QByteArray(100'000, 'a')
                                             + " HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QTest::newRow("long header") << QByteArray("GET / HTTP/1.1\r\nHost: localhost\r\nX: " + QByteArray(100'000, 'a')
                                               + "\r\n\r\n");
    QTest::newRow("other protocol") << QByteArray("\x16\x03\x01\x02\x00\x01\x00\x01\xfc\x03\x03", 11) + "\r\n\r\n";
}

void tst_CrashCollectorRequests::bytesThatAreNoRequest_areRefused()
{
    QFETCH(const QByteArray, bytes);

    const HttpReply reply = exchangeBytes(m_collector.port(), bytes);
    QVERIFY2(reply.status == 0 || (reply.status >= 400 && reply.status < 500),
             qPrintable(QString::number(reply.status)));
    QCOMPARE(m_collector.storedFiles(), m_filesBefore);
}

void tst_CrashCollectorRequests::cutBody_isNotStored()
{
    const QByteArray document = reportRequest(goodData());
    const auto sender = connectTo(m_collector, postHead(document.size() + 1) + document); // one byte is missing
    QVERIFY(sender);
    sender->disconnectFromHost();
    QVERIFY(sender->state() == QAbstractSocket::UnconnectedState || sender->waitForDisconnected(watchdogMs));
    const HttpReply other = exchangeBytes(m_collector.port(), postHead(document.size() + 1) + document);
    QCOMPARE(other.status, 400); // after the time for the next byte
    QCOMPARE(m_collector.storedFiles(), m_filesBefore);
}

void tst_CrashCollectorRequests::slowSender_keepsNoOneWaiting()
{
    const QByteArray document = reportRequest(goodData());
    const qsizetype half = document.size() / 2;
    const auto slow = connectTo(m_collector, postHead(document.size()) + document.left(half));
    QVERIFY(slow);
    QCOMPARE(sendReport(m_collector, reportArchive()).word, u"NoError"_qs);
    QCOMPARE(get(m_collector.url(u"/"_qs)).status, 200);
    QCOMPARE(slow->bytesAvailable(), 0);

    slow->write(document.mid(half));
    QVERIFY(QTest::qWaitFor([&] { return slow->state() == QAbstractSocket::UnconnectedState; }, watchdogMs));
    QVERIFY(slow->readAll().contains(">NoError<"));
}

void tst_CrashCollectorRequests::silentPeers_areLeftAfterSeconds()
{
    std::vector<std::unique_ptr<QTcpSocket>> peers;
    for (int i = 0; i < 40; ++i) { // more than there are workers
        peers.push_back(connectTo(m_collector, i % 2 == 0 ? QByteArray() : QByteArray("GET / HT")));
        QVERIFY(peers.back());
    }
    QCOMPARE(sendReport(m_collector, reportArchive()).word, u"NoError"_qs);
}

void tst_CrashCollectorRequests::severalRanges_areRefused()
{
    const Verdict verdict = sendReport(m_collector, reportArchive());
    const QUrl url = m_collector.url(u"/reports/%1.zip"_qs.arg(verdict.identifier));
    const HttpReply one = get(url, {{"Range", "bytes=0-3"}});
    QCOMPARE(one.status, 206);
    QCOMPARE(one.body, reportArchive().left(4));
    QCOMPARE(get(url, {{"Range", "bytes=0-,0-,0-,0-"}}).status, 416);
}

QTEST_GUILESS_MAIN(tst_CrashCollectorRequests)

#include "tst_CrashCollectorRequests.moc"
