// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ReportFolders.h"
#include "crashReport/ServiceDocuments.h"
#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/crashReport/CrashService_p.h"
#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapMessage.h"

#include <QtNetwork/QNetworkProxy>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <stdexcept>

using namespace ServiceDocuments;
using namespace SoapTest;
using namespace ZYX_zglv6;

class tst_CrashService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void crashReportMessage_isTheCallWithoutTheArchive();
    void crashReportMessage_methodHasNoPrefix();
    void postCrashReport_addsTheArchiveLast_data();
    void postCrashReport_addsTheArchiveLast();
    void postCrashReport_host_data();
    void postCrashReport_host();
    void postCrashReport_header();
    void postCrashReport_secondOne_goesToTheHostOfThen();
    void postCrashReport_withoutPreferencesPath_throws();

    void verdictOf_answer_data();
    void verdictOf_answer();
    void verdictOf_fault_data();
    void verdictOf_fault();
    void verdictOf_emptyMessage_isRefused();
    void verdictOf_networkError_isTheFault();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_CrashService::initTestCase()
{
    useNoProxies();
}

void tst_CrashService::init()
{
    if (qstrcmp(QTest::currentTestFunction(), "postCrashReport_withoutPreferencesPath_throws") != 0) {
        CStorageLocation::setPreferencesFilePath(m_sandbox.filePath(u"Preferences.ini"_qs));
    }
}

void tst_CrashService::crashReportMessage_isTheCallWithoutTheArchive()
{
    QCOMPARE(bodyOf(crashReportMessage().toXmlString(-1)), expectedCall(QString()));
}

void tst_CrashService::crashReportMessage_methodHasNoPrefix()
{
    const QString document = crashReportMessage().toXmlString(-1);
    QVERIFY2(document.contains(u"<ReportCrash xmlns=\"http://" ZYX_SERVICE_OWNER_HOST "/CollectDump\">"),
             qPrintable(document));
    QVERIFY2(document.contains(u"</ReportCrash>"), qPrintable(document));
    QVERIFY2(!document.contains(u":ReportCrash"), qPrintable(document));
}

void tst_CrashService::postCrashReport_addsTheArchiveLast_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("data");

    QTest::newRow("one byte") << QByteArray("f") << u"Zg=="_qs;
    QTest::newRow("two bytes") << QByteArray("fo") << u"Zm8="_qs;
    QTest::newRow("three bytes") << QByteArray("foo") << u"Zm9v"_qs;
    QTest::newRow("the alphabet's last two") << QByteArray("\xfb\xef\xbe\xff\xff\xff", 6) << u"++++////"_qs;
    QTest::newRow("zeros") << QByteArray(300, '\0') << QString(400, u'A'); // one line
}

void tst_CrashService::postCrashReport_addsTheArchiveLast()
{
    QFETCH(const QByteArray, archive);
    QFETCH(const QString, data);

    SoapServer proxy(answerWith("200 OK", accepted()));
    QtSoapHttpTransport transport;
    transport.networkAccessManager()->setProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, quint16(proxy.port())));
    QtSoapMessage message = crashReportMessage();
    QSignalSpy answered(&transport, qOverload<>(&QtSoapHttpTransport::responseReady));
    postCrashReport(transport, message, archive);
    QVERIFY(answered.wait(watchdogMs));
    QCOMPARE(proxy.requests().size(), 1);
    QCOMPARE(bodyOf(QString::fromUtf8(proxy.requests().constFirst().body)), expectedCall(data));
    QVERIFY(verdictOf(transport.getResponse()).isAccepted);
}

void tst_CrashService::postCrashReport_host_data()
{
    QTest::addColumn<QByteArray>("preferences");
    QTest::addColumn<QString>("host");

    const QString defaultHost = QStringLiteral(ZYX_CRASH_SERVICE_HOST);
    QTest::newRow("no file") << QByteArray() << defaultHost;
    QTest::newRow("no such key") << QByteArray("[CrashSender]\nPort=81\n") << defaultHost;
    QTest::newRow("key of another group") << QByteArray("[Other]\nHostName=other.example\n") << defaultHost;
    QTest::newRow("empty") << QByteArray("[CrashSender]\nHostName=\n") << defaultHost;
    QTest::newRow("empty in quotes") << QByteArray("[CrashSender]\nHostName=\"\"\n") << defaultHost;
    QTest::newRow("given") << QByteArray("[CrashSender]\nHostName=other.example\n") << u"other.example"_qs;
    QTest::newRow("an address") << QByteArray("[CrashSender]\nHostName=192.0.2.7\n") << u"192.0.2.7"_qs;
}

void tst_CrashService::postCrashReport_host()
{
    QFETCH(const QByteArray, preferences);
    QFETCH(const QString, host);

    const QString path = m_sandbox.filePath(QString::fromLatin1(QTest::currentDataTag()) + u".ini"_qs);
    QVERIFY(preferences.isNull() || ReportFolders::write(path, preferences));
    CStorageLocation::setPreferencesFilePath(path);
    QtSoapHttpTransport transport;
    const QNetworkProxy nowhere(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, 1);
    transport.networkAccessManager()->setProxy(nowhere); // the machine is not left
    QtSoapMessage message = crashReportMessage();
    postCrashReport(transport, message, "zip");
    QVERIFY(transport.networkReply() != nullptr);
    QCOMPARE(transport.networkReply()->url().toString(),
             u"http://"_qs + host + u":80/CollectDumpInfo/WSCollectDump.asmx");
}

void tst_CrashService::postCrashReport_header()
{
    QtSoapHttpTransport transport;
    transport.networkAccessManager()->setProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, 1));
    transport.setHost(u"secure.example"_qs, true, 8443); // all of it is replaced
    transport.setAction(u"\"other\""_qs);
    QtSoapMessage message = crashReportMessage();
    postCrashReport(transport, message, "zip");
    const QNetworkRequest request = transport.networkReply()->request();
    QCOMPARE(request.url().scheme(), u"http"_qs);
    QCOMPARE(request.url().port(), 80);
    QCOMPARE(request.rawHeader("SOAPAction"), "http://" ZYX_SERVICE_OWNER_HOST "/CollectDump/ReportCrash");
    QCOMPARE(request.header(QNetworkRequest::ContentTypeHeader).toString(), u"text/xml;charset=utf-8"_qs);
}

void tst_CrashService::postCrashReport_secondOne_goesToTheHostOfThen()
{
    QtSoapHttpTransport transport;
    transport.networkAccessManager()->setProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, 1));
    for (const QString &host : {u"one.example"_qs, u"two.example"_qs}) {
        const QString path = m_sandbox.filePath(host + u".ini");
        QVERIFY(ReportFolders::write(path, "[CrashSender]\nHostName=" + host.toLatin1()));
        CStorageLocation::setPreferencesFilePath(path);
        QtSoapMessage message = crashReportMessage();
        postCrashReport(transport, message, "zip");
        QCOMPARE(transport.networkReply()->url().host(), host);
    }
}

void tst_CrashService::postCrashReport_withoutPreferencesPath_throws()
{
    RUN_IN_FRESH_PROCESS(); // where the path was never set
    QtSoapHttpTransport transport;
    QtSoapMessage message = crashReportMessage();
    QByteArray text;
    try {
        postCrashReport(transport, message, "zip");
    } catch (const std::runtime_error &error) {
        text = error.what();
    }
    QCOMPARE(text, "Preferences file path not set");
    QCOMPARE(transport.networkReply(), nullptr);
}

void tst_CrashService::verdictOf_answer_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<QString>("identifier");

    const auto add = [](const char *name, const QByteArray &document, bool isAccepted, const QString &identifier) {
        QTest::newRow(name) << document << isAccepted << identifier;
    };
    const QString id = u"42-a"_qs;
    const QByteArray idMember = "<identifier>42-a</identifier>";
    const QByteArray good = "<ReportCrashResult>NoError</ReportCrashResult>";
    add("good", accepted(), true, id);
    add("refused", refused(), false, QString());
    add("other order", answer(idMember + good), true, id);
    add("more members", answer("<a>1</a>" + good + "<b><c/></b>" + idMember), true, id);
    add("struct of another name", answer(good + idMember, "anything-at_all"), true, id);
    add("struct without namespace", inBody("<r>" + good + idMember + "</r>"), true, id);
    add("members of another namespace",
        inBody("<r xmlns:o=\"urn:o\"><o:ReportCrashResult>NoError</o:ReportCrashResult></r>"), true, QString());
    add("member in upper case", answer("<REPORTCRASHRESULT>NoError</REPORTCRASHRESULT><IDENTIFIER>42-a</IDENTIFIER>"),
        true, id);
    add("member in lower case", answer("<reportcrashresult>NoError</reportcrashresult>" + idMember), true, id);
    add("value in lower case", answer("<ReportCrashResult>noerror</ReportCrashResult>" + idMember), false, QString());
    add("value in upper case", answer("<ReportCrashResult>NOERROR</ReportCrashResult>" + idMember), false, QString());
    add("value with more behind", answer("<ReportCrashResult>NoErrors</ReportCrashResult>" + idMember), false,
        QString());
    add("value empty", answer("<ReportCrashResult></ReportCrashResult>" + idMember), false, QString());
    add("another text", answer("<ReportCrashResult>0</ReportCrashResult>" + idMember), false, QString());
    add("value a struct", answer("<ReportCrashResult><a>NoError</a></ReportCrashResult>" + idMember), false, QString());
    add("no identifier", answer(good), true, QString());
    add("identifier empty", answer(good + "<identifier/>"), true, QString());
    add("identifier with umlaut", answer(good + "<identifier>\xc3\xa4</identifier>"), true, u"\u00e4"_qs);
    add("no result", answer(idMember), false, QString());
    add("no members", answer(""), false, QString());
    add("simple value", inBody("<ReportCrashResult>NoError</ReportCrashResult>"), false, QString());
    add("good one second in the body", inBody("<first><a>1</a></first><r>" + good + "</r>"), false, QString());
    add("empty body", inBody(""), false, QString());
}

void tst_CrashService::verdictOf_answer()
{
    QFETCH(const QByteArray, document);
    QFETCH(const bool, isAccepted);
    QFETCH(const QString, identifier);

    QtSoapMessage message;
    message.setContent(document);
    const ServiceVerdict verdict = verdictOf(message);
    QVERIFY(!verdict.fault);
    QCOMPARE(verdict.isAccepted, isAccepted);
    QCOMPARE(verdict.identifier, identifier);
}

void tst_CrashService::verdictOf_fault_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<bool>("isFault");

    for (const char *code : {"VersionMismatch", "MustUnderstand", "Client", "Server", "Server.Quota"}) {
        QTest::newRow(code) << QByteArray(code) << true;
    }
    QTest::newRow("code that SOAP does not know") << QByteArray("Quota") << false;
}

void tst_CrashService::verdictOf_fault()
{
    QFETCH(const QByteArray, code);
    QFETCH(const bool, isFault);

    QtSoapMessage message;
    QVERIFY(message.setContent(fault(code, "The disk is full")));
    const ServiceVerdict verdict = verdictOf(message);
    QCOMPARE(verdict.isAccepted, false);
    QCOMPARE(verdict.fault.has_value(), isFault);
    QCOMPARE(verdict.fault.value_or(QVariant()), isFault ? QVariant(u"The disk is full"_qs) : QVariant());
}

void tst_CrashService::verdictOf_emptyMessage_isRefused()
{
    const ServiceVerdict verdict = verdictOf(QtSoapMessage());
    QVERIFY(!verdict.isAccepted);
    QVERIFY(!verdict.fault);
    QCOMPARE(verdict.identifier, QString());
}

void tst_CrashService::verdictOf_networkError_isTheFault()
{
    QtSoapMessage message;
    message.setFaultCode(QtSoapMessage::Client);
    message.setFaultString(u"Network transport error (1): Connection refused"_qs);
    const ServiceVerdict verdict = verdictOf(message);
    QVERIFY(!verdict.isAccepted);
    QCOMPARE(verdict.fault.value_or(QVariant()), QVariant(u"Network transport error (1): Connection refused"_qs));
}

QTEST_GUILESS_MAIN(tst_CrashService)
#include "tst_CrashService.moc"
