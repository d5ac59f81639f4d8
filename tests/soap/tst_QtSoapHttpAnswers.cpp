// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"

#include <QtNetwork/QHostAddress>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <functional>

using namespace SoapTest;
using namespace ZYX_zglv6;

namespace {

using Setup = std::function<void(QtSoapHttpTransport &transport)>;

constexpr qint64 maximumAnswerSize = qint64(64) * 1024 * 1024;

/*! A port on which nobody listens. */
int closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    return server.serverPort();
}

QByteArray chunked(const QByteArray &body)
{
    const auto chunk = [](const QByteArray &data) -> QByteArray {
        return QByteArray::number(data.size(), 16) + "\r\n" + data + "\r\n";
    };
    return chunk(body.left(7)) + chunk(body.mid(7)) + "0\r\n\r\n";
}

/*! Sends to another path, where the answer is. */
Script redirect(const QByteArray &status)
{
    return [status](QTcpSocket &connection, const ReceivedRequest &request) {
        const bool isMoved = request.target() == "/moved";
        if (isMoved) {
            connection.write(httpAnswer("200 OK", priceAnswer()));
            return;
        }
        // On the same connection Qt 6.4 sometimes can't post a second time.
        connection.write(httpAnswer(status, QByteArray(), {"Location: /moved", "Connection: close"}));
        connection.disconnectFromHost();
    };
}

} // namespace

class tst_QtSoapHttpAnswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void answer_document_data();
    void answer_document();
    void answer_transportError_data();
    void answer_transportError();
    void answer_badRequest_hasTheTextOfTheReply();
    void answer_transfer_data();
    void answer_transfer();
    void answer_brokenOff_data();
    void answer_brokenOff();
    void answer_brokenOffInAChunk_isAFault();
    void answer_reset_isATransportError();
    void answer_stalled_endsWithTheTimeLimitOfTheManager();
    void answer_endless_endsAtTheLimit_data();
    void answer_endless_endsAtTheLimit();
    void answer_redirect_data();
    void answer_redirect();
    void answer_redirectWithoutEnd_isATransportError();
    void host_notReached_data();
    void host_notReached();
};

void tst_QtSoapHttpAnswers::initTestCase()
{
    useNoProxies();
}

void tst_QtSoapHttpAnswers::answer_document_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("faultCode");
    QTest::addColumn<QString>("faultText"); // null: there is none

    const auto add
        = [](const char *name, const QByteArray &status, const QByteArray &body, int error, int faultCode,
             const QString &faultText) { QTest::newRow(name) << status << body << error << faultCode << faultText; };
    const QByteArray fault = faultAnswer("soap:Server.Busy", "Too many orders");
    const QByteArray unknownFault = faultAnswer("soap:Printer", "No paper");
    const QByteArray page = "<html><body>Not here</body></html>";
    const QString faultText = u"Too many orders"_qs;
    const QString noXml = u"XML parse error"_qs;
    const QString noEnvelope = u"SOAP structure invalid"_qs;
    constexpr int noFault = QtSoapMessage::Other;
    constexpr int client = QtSoapMessage::Client;
    constexpr int service = QtSoapMessage::Server;
    constexpr int mismatch = QtSoapMessage::VersionMismatch;

    add("200, answer", "200 OK", priceAnswer(), 0, noFault, QString());
    add("200, fault", "200 OK", fault, 0, service, faultText);
    add("200, fault of unknown code", "200 OK", unknownFault, 0, noFault, u"No paper"_qs);
    add("200, page", "200 OK", page, 0, mismatch, noEnvelope);
    add("200, no XML", "200 OK", "<br>", 0, mismatch, noXml);
    add("200, empty", "200 OK", "", 0, mismatch, noXml);
    add("200, comment in front", "200 OK", "<!-- --><a/>", 0, noFault, QString());
    add("202, answer", "202 Accepted", priceAnswer(), 0, client, QString());
    add("202, fault", "202 Accepted", fault, 0, service, faultText);
    add("202, empty", "202 Accepted", "", 0, mismatch, noXml);
    add("204", "204 No Content", "", 0, mismatch, noXml);
    add("300, answer", "300 Multiple Choices", priceAnswer(), 0, client, QString());
    add("402, answer", "402 Payment Required", priceAnswer(), 299, client, QString());
    add("402, fault", "402 Payment Required", fault, 299, service, faultText);
    add("402, no XML", "402 Payment Required", "no", 299, mismatch, noXml);
    add("403, answer", "403 Forbidden", priceAnswer(), 201, client, QString());
    add("403, fault", "403 Forbidden", fault, 201, service, faultText);
    add("403, empty", "403 Forbidden", "", 201, mismatch, noXml);
    add("404, answer", "404 Not Found", priceAnswer(), 203, client, QString());
    add("404, fault", "404 Not Found", fault, 203, service, faultText);
    add("404, page", "404 Not Found", page, 203, mismatch, noEnvelope);
    add("404, no XML", "404 Not Found", "<br>", 203, mismatch, noXml);
    add("404, empty", "404 Not Found", "", 203, mismatch, noXml);
    add("404, comment in front", "404 Not Found", "<!-- --><a/>", 203, client, QString());
    add("405, answer", "405 Method Not Allowed", priceAnswer(), 202, client, QString());
    add("405, fault", "405 Method Not Allowed", fault, 202, service, faultText);
    add("500, answer", "500 Internal Server Error", priceAnswer(), 401, client, QString());
    add("500, fault", "500 Internal Server Error", fault, 401, service, faultText);
    add("500, fault of the client", "500 Internal Server Error", faultAnswer("soap:Client", "No article"), 401, client,
        u"No article"_qs);
    add("500, fault of not understood header", "500 Internal Server Error",
        faultAnswer("soap:MustUnderstand", "Which?"), 401, QtSoapMessage::MustUnderstand, u"Which?"_qs);
    // The code that the transport adds is the second, and the first counts.
    add("500, fault of unknown code", "500 Internal Server Error", unknownFault, 401, noFault, u"No paper"_qs);
    add("500, page", "500 Internal Server Error", page, 401, mismatch, noEnvelope);
    add("500, no XML", "500 Internal Server Error", "Sorry", 401, mismatch, noXml);
    add("500, empty", "500 Internal Server Error", "", 401, mismatch, noXml);
}

void tst_QtSoapHttpAnswers::answer_document()
{
    QFETCH(const QByteArray, status);
    QFETCH(const QByteArray, body);
    QFETCH(const int, error);
    QFETCH(const int, faultCode);
    QFETCH(const QString, faultText);

    SoapServer server(answerWith(status, body));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, error);
    QCOMPARE(outcome.status, status.left(3).toInt());
    QCOMPARE(int(outcome.response.faultCode()), faultCode);
    QCOMPARE(outcome.response.isFault(), faultCode != QtSoapMessage::Other);
    QCOMPARE(outcome.response.faultString().isValid(), !faultText.isNull());
    QCOMPARE(outcome.response.faultString().value().toString(), faultText);
    if (body == priceAnswer()) {
        QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs); // also beside a fault
    }
}

void tst_QtSoapHttpAnswers::answer_transportError_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<int>("error");

    const QByteArray none = "Server: test";
    QTest::newRow("400") << QByteArray("400 Bad Request") << none << 302;
    QTest::newRow("401") << QByteArray("401 Unauthorized") << none << 204;
    QTest::newRow("401 with a method") << QByteArray("401 Unauthorized")
                                       << QByteArray("WWW-Authenticate: Basic realm=\"shop\"") << 204;
    QTest::newRow("407") << QByteArray("407 Proxy Authentication Required") << none << 105;
    QTest::newRow("409") << QByteArray("409 Conflict") << none << 206;
    QTest::newRow("410") << QByteArray("410 Gone") << none << 207;
    QTest::newRow("418") << QByteArray("418 I'm a teapot") << none << 302;
    QTest::newRow("501") << QByteArray("501 Not Implemented") << none << 402;
    QTest::newRow("502") << QByteArray("502 Bad Gateway") << none << 499;
    QTest::newRow("503") << QByteArray("503 Service Unavailable") << none << 403;
}

/*! Not even a fault in the body counts. */
void tst_QtSoapHttpAnswers::answer_transportError()
{
    QFETCH(const QByteArray, status);
    QFETCH(const QByteArray, header);
    QFETCH(const int, error);

    for (const QByteArray &body : {faultAnswer("soap:Server", "Too many orders"), priceAnswer(), QByteArray()}) {
        SoapServer server(answerWith(status, body, {header}));
        QtSoapHttpTransport transport;
        transport.setHost(u"127.0.0.1"_qs, server.port());
        const Outcome outcome = submitAndWait(transport);
        QVERIFY(outcome.hasCome);
        QCOMPARE(outcome.status, status.left(3).toInt());
        QCOMPARE(outcome.error, error);
        QVERIFY(!outcome.errorString.isEmpty());
        QVERIFY(outcome.response.isFault());
        QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
        QCOMPARE(outcome.response.faultString().value().toString(), outcome.transportErrorText());
        QVERIFY(!outcome.response.faultDetail().isValid());
    }
}

void tst_QtSoapHttpAnswers::answer_badRequest_hasTheTextOfTheReply()
{
    SoapServer server(answerWith("400 Bad Request 100%1 %2", "")); // its text is no format
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.response.faultString().value().toString(),
             u"Network transport error (302): Error transferring http://127.0.0.1:"_qs + QString::number(server.port())
                 + u"/prices - server replied: Bad Request 100%1 %2"_qs);
}

void tst_QtSoapHttpAnswers::answer_transfer_data()
{
    QTest::addColumn<Script>("script");

    const QByteArray body = priceAnswer();
    const QByteArray ok = "HTTP/1.1 200 OK\r\n";
    QTest::newRow("continue first") << writeAndClose("HTTP/1.1 100 Continue\r\n\r\n" + httpAnswer("200 OK", body));
    QTest::newRow("byte by byte") << trickle(httpAnswer("200 OK", body));
    QTest::newRow("ended by the connection") << writeAndClose(ok + "\r\n" + body);
    QTest::newRow("of HTTP 1.0") << writeAndClose("HTTP/1.0 200 OK\r\n\r\n" + body);
    QTest::newRow("in chunks") << writeAndClose(ok + "Transfer-Encoding: chunked\r\n\r\n" + chunked(body));
    QTest::newRow("chunks byte by byte") << trickle(ok + "Transfer-Encoding: chunked\r\n\r\n" + chunked(body));
    QTest::newRow("gzip") << answerWith("200 OK", gzipped(body), {"Content-Encoding: gzip"});
    QTest::newRow("deflate") << answerWith("200 OK", deflated(body), {"Content-Encoding: deflate"});
}

void tst_QtSoapHttpAnswers::answer_transfer()
{
    QFETCH(const Script, script);

    SoapServer server(script);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, 0);
    QCOMPARE(outcome.status, 200);
    QVERIFY(!outcome.response.isFault());
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);
}

void tst_QtSoapHttpAnswers::answer_brokenOff_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("faultCode");

    const QByteArray ok = "HTTP/1.1 200 OK\r\n";
    constexpr int client = QtSoapMessage::Client;
    constexpr int mismatch = QtSoapMessage::VersionMismatch;
    QTest::newRow("closed at once") << writeAndClose("") << 2 << client;
    QTest::newRow("in the headers") << writeAndClose("HTTP/1.1 200 OK\r\nContent-") << 2 << client;
    QTest::newRow("before its length") << writeAndClose(ok + "Content-Length: 5000\r\n\r\n" + priceAnswer()) << 2
                                       << client;
    QTest::newRow("no HTTP") << writeAndClose("220 mail.example ready\r\n") << 2 << client;
    QTest::newRow("bytes at random") << writeAndClose(QByteArray::fromHex("1503030002020a00ff0d0a0d0a")) << 2 << client;
    // What Qt can't unpack has an error of those that may have a document.
    QTest::newRow("broken gzip") << answerWith("200 OK", priceAnswer(), {"Content-Encoding: gzip"}) << 299 << mismatch;
    QTest::newRow("gzip with much of nothing")
        << answerWith("200 OK", gzipped(QByteArray(32 << 20, ' ')), {"Content-Encoding: gzip"}) << 299 << mismatch;
}

void tst_QtSoapHttpAnswers::answer_brokenOff()
{
    QFETCH(const Script, script);
    QFETCH(const int, error);
    QFETCH(const int, faultCode);

    SoapServer server(script);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, error);
    QVERIFY(outcome.response.isFault());
    QCOMPARE(int(outcome.response.faultCode()), faultCode);
    QCOMPARE(outcome.response.faultString().value().toString(),
             faultCode == QtSoapMessage::Client ? outcome.transportErrorText() : u"XML parse error"_qs);
}

/*! Depending on what comes first, Qt takes the end of the connection for the end of the answer. */
void tst_QtSoapHttpAnswers::answer_brokenOffInAChunk_isAFault()
{
    SoapServer server(writeAndClose("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n40\r\n<?xml"));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QVERIFY(outcome.response.isFault());
    QVERIFY(outcome.error == 0 || outcome.error == int(QNetworkReply::RemoteHostClosedError));
    QCOMPARE(outcome.response.faultString().value().toString(),
             outcome.error == 0 ? u"XML parse error"_qs : outcome.transportErrorText());
}

void tst_QtSoapHttpAnswers::answer_reset_isATransportError()
{
    SoapServer server(keepSilent());
    server.setConnectionScript(resetWhenWritten);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, int(QNetworkReply::RemoteHostClosedError));
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(), outcome.transportErrorText());
}

void tst_QtSoapHttpAnswers::answer_stalled_endsWithTheTimeLimitOfTheManager()
{
    SoapServer server(keepSilent());
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    transport.networkAccessManager()->setTransferTimeout(300);
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QVERIFY(outcome.response.isFault());
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(), u"Network transport error (5): Operation canceled"_qs);
}

void tst_QtSoapHttpAnswers::answer_endless_endsAtTheLimit_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QByteArray>("block");

    const QByteArray block(1 << 16, ' ');
    QTest::newRow("without length") << QByteArray("Server: test") << block;
    QTest::newRow("of a great length") << QByteArray("Content-Length: 1000000000000") << block;
    QTest::newRow("in chunks") << QByteArray("Transfer-Encoding: chunked")
                               << QByteArray(QByteArray("10000\r\n") + block + "\r\n");
}

void tst_QtSoapHttpAnswers::answer_endless_endsAtTheLimit()
{
    QFETCH(const QByteArray, header);
    QFETCH(const QByteArray, block);

    SoapServer server(flood("HTTP/1.1 200 OK\r\n" + header + "\r\n\r\n", block));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    transport.submitRequest(priceRequest(), u"/prices"_qs);
    constexpr qint64 mostReceived = 16 * maximumAnswerSize; // Qt's own thread reads ahead as fast as it can
    qint64 received = 0;
    connect(transport.networkReply(), &QNetworkReply::downloadProgress, this, [&](qint64 bytes) {
        received = qMax(received, bytes);
        if (received > mostReceived) {
            transport.networkReply()->abort();
        }
    });
    QSignalSpy answered(&transport, qOverload<>(&QtSoapHttpTransport::responseReady));
    QVERIFY(answered.wait(4 * watchdogMs));
    QVERIFY2(received <= mostReceived, qPrintable(QString::number(received)));
    QCOMPARE(transport.getResponse().faultCode(), QtSoapMessage::Client);
    QCOMPARE(transport.getResponse().faultString().value().toString(),
             u"Network transport error (5): Operation canceled"_qs);
    QVERIFY2(received > maximumAnswerSize - (8 << 20), qPrintable(QString::number(received)));
}

void tst_QtSoapHttpAnswers::answer_redirect_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("method");

    // The manager's rules: a redirected post loses its document unless the status forbids that.
    QTest::newRow("301") << QByteArray("301 Moved Permanently") << QByteArray("GET");
    QTest::newRow("302") << QByteArray("302 Found") << QByteArray("GET");
    QTest::newRow("303") << QByteArray("303 See Other") << QByteArray("GET");
    QTest::newRow("307") << QByteArray("307 Temporary Redirect") << QByteArray("POST");
    QTest::newRow("308") << QByteArray("308 Permanent Redirect") << QByteArray("POST");
}

void tst_QtSoapHttpAnswers::answer_redirect()
{
    QFETCH(const QByteArray, status);
    QFETCH(const QByteArray, method);

    SoapServer server(redirect(status));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.status, 200);
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);
    QCOMPARE(server.requests().size(), 2);
    QCOMPARE(server.requests().at(1).line, method + " /moved HTTP/1.1");
    QCOMPARE(server.requests().at(1).body, method == "POST" ? server.requests().at(0).body : QByteArray());
}

void tst_QtSoapHttpAnswers::answer_redirectWithoutEnd_isATransportError()
{
    SoapServer server(answerWith("302 Found", "", {"Location: /prices"}));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, 10);
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(), outcome.transportErrorText());
}

void tst_QtSoapHttpAnswers::host_notReached_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<int>("error");

    const auto add = [](const char *name, const Setup &setup, int error) { QTest::newRow(name) << setup << error; };
    add(
        "connection refused", [](QtSoapHttpTransport &t) { t.setHost(u"127.0.0.1"_qs, closedPort()); }, 1);
    add(
        "unknown host", [](QtSoapHttpTransport &t) { t.setHost(u"nonexistent.invalid"_qs); }, 3);
    add(
        "empty host", [](QtSoapHttpTransport &t) { t.setHost(u""_qs); }, 3);
    add(
        "no name of a host", [](QtSoapHttpTransport &t) { t.setHost(u"my shop"_qs); }, 3);
    add(
        "URL in place of a host", [](QtSoapHttpTransport &t) { t.setHost(u"http://127.0.0.1"_qs); }, 3);
    add(
        "without setHost()", [](QtSoapHttpTransport &) {}, 301);
}

void tst_QtSoapHttpAnswers::host_notReached()
{
    QFETCH(const Setup, setup);
    QFETCH(const int, error);

    QtSoapHttpTransport transport;
    setup(transport);
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, error);
    QCOMPARE(outcome.status, 0);
    QVERIFY(!outcome.errorString.isEmpty());
    QVERIFY(outcome.response.isFault());
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(),
             u"Network transport error ("_qs + QString::number(error) + u"): "_qs + outcome.errorString);
}

QTEST_GUILESS_MAIN(tst_QtSoapHttpAnswers)
#include "tst_QtSoapHttpAnswers.moc"
