// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ReportFolders.h"
#include "crashReport/ServiceDocuments.h"
#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/zipCrashReport.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtNetwork/QNetworkProxy>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <stdexcept>

using namespace ServiceDocuments;
using namespace SoapTest;
using namespace ZYX_zglv6;

Q_DECLARE_METATYPE(SoapTest::Script)

namespace {

const CBaseCrashParser plainParser;

/*! While it lives, the folder of the reports is a file of the same name: what an upload can read. */
class FileInPlaceOfFolder
{
public:
    explicit FileInPlaceOfFolder(const QByteArray &content)
        : m_isMade(QDir().rename(m_path, m_path + u".aside") && ReportFolders::write(m_path, content))
    {
    }

    ~FileInPlaceOfFolder()
    {
        QFile::remove(m_path);
        QDir().rename(m_path + u".aside", m_path);
    }

    Q_DISABLE_COPY_MOVE(FileInPlaceOfFolder)

    bool isMade() const
    {
        return m_isMade;
    }

private:
    const QString m_path = ReportFolders::reports();
    const bool m_isMade;
};

/*! Every request of this process goes to the server at \a port from now on, whatever host it names. */
void sendAllTo(int port)
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, quint16(port)));
}

/*! Sends \a archive; the folder is back when it returns. */
bool send(CZipCrashReport &report, const QByteArray &archive = "zip")
{
    const FileInPlaceOfFolder file(archive);
    if (file.isMade()) {
        report.sendZipToServer();
    }
    return file.isMade();
}

/*! Objects that are to be deleted later are gone behind it. */
void deleteLaterNow()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QByteArray bytesOfAllValues()
{
    QByteArray bytes;
    for (int i = 0; i < 1000; ++i) {
        bytes.append(char(i));
    }
    return bytes;
}

/*! A port at which nobody listens. */
int closedPort()
{
    return SoapServer(keepSilent()).port();
}

} // namespace

class tst_ReportUpload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void sendZipToServer_opensTheFolder_failsAtOnce_data();
    void sendZipToServer_opensTheFolder_failsAtOnce();
    void sendZipToServer_opensTheFolder_logsNothing();
    void sendZipToServer_opensTheFolder_needsNoPreferences();
    void sendZipToServer_withoutTheFolder_failsAtOnce();
    void sendZipToServer_emptyFile_failsAtOnce();
    void sendZipToServer_file_postsTheCall();
    void sendZipToServer_bigFile_isSentWhole();
    void sendZipToServer_host_data();
    void sendZipToServer_host();
    void sendZipToServer_withoutPreferencesPath_throws();
    void httpResponce_withoutAReply_isARefusal();
    void sendZipToServer_whileOneIsOnItsWay_answersBoth();
    void sendZipToServer_afterPackingAgain_answersOnce();

    void answer_givesTheVerdict_data();
    void answer_givesTheVerdict();
    void answer_fault_goesToTheQtLog();
    void answer_endless_isCancelled();
    void connectionRefused_isANetworkError();
    void answer_leavesTheFiles_data();
    void answer_leavesTheFiles();
    void answer_deleteWhenDone_data();
    void answer_deleteWhenDone();
    void answer_slotDeletesLater();
    void answer_slotSendsAgain();
    void destructor_requestOnItsWay_givesItUp();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ReportUpload::initTestCase()
{
    useNoProxies();
    qRegisterMetaType<Script>();
}

void tst_ReportUpload::init()
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    QVERIFY(ReportFolders::empty());
    const QByteArray function = QTest::currentTestFunction();
    if (function != "sendZipToServer_withoutPreferencesPath_throws"
        && function != "sendZipToServer_opensTheFolder_needsNoPreferences") {
        CStorageLocation::setPreferencesFilePath(m_sandbox.filePath(u"Preferences.ini"_qs));
    }
}

void tst_ReportUpload::cleanup()
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

void tst_ReportUpload::sendZipToServer_opensTheFolder_failsAtOnce_data()
{
    QTest::addColumn<bool>("deleteWhenDone");

    QTest::newRow("kept when done") << false;
    QTest::newRow("deleted when done") << true;
}

void tst_ReportUpload::sendZipToServer_opensTheFolder_failsAtOnce()
{
    QFETCH(const bool, deleteWhenDone);

    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    QObject owner;
    auto *const made = new CZipCrashReport(u"P"_qs, u"e"_qs, u"c"_qs, deleteWhenDone, plainParser, &owner);
    const QPointer<CZipCrashReport> report(made);
    const QStringList before = ReportFolders::treeOf(ReportFolders::reports());
    QSignalSpy results(made, &CZipCrashReport::resultOfSend);
    for (int attempt = 1; attempt <= 2; ++attempt) {
        report->sendZipToServer();
        QCOMPARE(results.size(), attempt); // without a loop
        QCOMPARE(results.constLast(), QVariantList{false});
        deleteLaterNow();
        QVERIFY(report);
    }
    QCOMPARE(ReportFolders::treeOf(ReportFolders::reports()), before);

    QVERIFY(send(*report, "known"));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(proxy.requests().size(), 1); // the only one that was posted
    QCOMPARE(proxy.connectionCount(), 1);
    QCOMPARE(bodyOf(QString::fromUtf8(proxy.requests().constFirst().body)), expectedCall(u"a25vd24="_qs));
}

void tst_ReportUpload::sendZipToServer_opensTheFolder_logsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QVERIFY(!log.records().isEmpty());
    const QStringList before = log.records();
    report.sendZipToServer();
    QCOMPARE(log.records(), before);
}

void tst_ReportUpload::sendZipToServer_opensTheFolder_needsNoPreferences()
{
    RUN_IN_FRESH_PROCESS(); // where their path was never set
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    report.sendZipToServer();
    QCOMPARE(results.size(), 1);
}

void tst_ReportUpload::sendZipToServer_withoutTheFolder_failsAtOnce()
{
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QVERIFY(QDir(ReportFolders::reports()).removeRecursively());
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    report.sendZipToServer();
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{false});
}

void tst_ReportUpload::sendZipToServer_emptyFile_failsAtOnce()
{
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    QVERIFY(send(report, QByteArray())); // what is read of it is null
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{false});
}

void tst_ReportUpload::sendZipToServer_file_postsTheCall()
{
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"Another product"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    const QByteArray archive = bytesOfAllValues();
    QVERIFY(send(report, archive));
    QCOMPARE(results.size(), 0); // not from inside the call
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{true});

    QCOMPARE(proxy.requests().size(), 1);
    const ReceivedRequest &request = proxy.requests().constFirst();
    QCOMPARE(request.line, "POST http://" ZYX_CRASH_SERVICE_HOST ":80/CollectDumpInfo/WSCollectDump.asmx HTTP/1.1");
    QCOMPARE(request.values("SOAPAction"), QByteArrayList{"http://" ZYX_SERVICE_OWNER_HOST "/CollectDump/ReportCrash"});
    QCOMPARE(request.values("Content-Type"), QByteArrayList{"text/xml;charset=utf-8"});
    QVERIFY2(request.body.contains("<ReportCrash xmlns=\"http://" ZYX_SERVICE_OWNER_HOST "/CollectDump\">"),
             request.body);
    QCOMPARE(bodyOf(QString::fromUtf8(request.body)), expectedCall(QString::fromLatin1(archive.toBase64())));
}

void tst_ReportUpload::sendZipToServer_bigFile_isSentWhole()
{
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    const QByteArray archive = bytesOfAllValues().repeated(5000);
    QVERIFY(send(report, archive));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.constFirst(), QVariantList{true});
    const QByteArray data = '>' + archive.toBase64() + "</data>";
    QVERIFY(proxy.requests().constFirst().body.contains(data));
}

void tst_ReportUpload::sendZipToServer_host_data()
{
    QTest::addColumn<QByteArray>("preferences");
    QTest::addColumn<QByteArray>("host");

    QTest::newRow("no such key") << QByteArray("[CrashSender]\n") << QByteArray(ZYX_CRASH_SERVICE_HOST);
    QTest::newRow("empty") << QByteArray("[CrashSender]\nHostName=\n") << QByteArray(ZYX_CRASH_SERVICE_HOST);
    QTest::newRow("given") << QByteArray("[CrashSender]\nHostName=collector.example\n")
                           << QByteArray("collector.example");
}

void tst_ReportUpload::sendZipToServer_host()
{
    QFETCH(const QByteArray, preferences);
    QFETCH(const QByteArray, host);

    const QString path = m_sandbox.filePath(QString::fromLatin1(QTest::currentDataTag()) + u".ini"_qs);
    QVERIFY(ReportFolders::write(path, preferences));
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    CStorageLocation::setPreferencesFilePath(path); // read when the report is sent
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    QVERIFY(send(report));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(proxy.requests().size(), 1);
    QCOMPARE(proxy.requests().constFirst().target(),
             QByteArray("http://" + host + ":80/CollectDumpInfo/WSCollectDump.asmx"));
    const QByteArrayList hosts = proxy.requests().constFirst().values("Host");
    QVERIFY2(hosts == QByteArrayList{host} || hosts == QByteArrayList{host + ":80"}, hosts.join());
}

void tst_ReportUpload::sendZipToServer_withoutPreferencesPath_throws()
{
    RUN_IN_FRESH_PROCESS(); // where the path was never set
    const QPointer<CZipCrashReport> report(new CZipCrashReport(u"P"_qs, u"e"_qs, u"c"_qs, true, plainParser, this));
    QSignalSpy results(report, &CZipCrashReport::resultOfSend);
    QByteArray text;
    try {
        QVERIFY(send(*report));
    } catch (const std::runtime_error &error) {
        text = error.what();
    }
    deleteLaterNow();
    QVERIFY(report);
    QCOMPARE(text, "Preferences file path not set");
    QCOMPARE(results.size(), 0);
}

void tst_ReportUpload::httpResponce_withoutAReply_isARefusal()
{
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    QVERIFY(QMetaObject::invokeMethod(&report, "httpResponce"));
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{false});
}

void tst_ReportUpload::sendZipToServer_whileOneIsOnItsWay_answersBoth()
{
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    QVERIFY(send(report, "one"));
    QVERIFY(send(report, "two"));
    QTRY_COMPARE_WITH_TIMEOUT(results.size(), 2, watchdogMs);
    QCOMPARE(results.at(0), QVariantList{true});
    QCOMPARE(results.at(1), QVariantList{true});
    QCOMPARE(proxy.requests().size(), 2);
    QStringList calls{bodyOf(QString::fromUtf8(proxy.requests().at(0).body)),
                      bodyOf(QString::fromUtf8(proxy.requests().at(1).body))};
    calls.sort(); // on two connections
    QCOMPARE(calls, (QStringList{expectedCall(u"b25l"_qs), expectedCall(u"dHdv"_qs)}));
}

void tst_ReportUpload::sendZipToServer_afterPackingAgain_answersOnce()
{
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    report.createCrashReport();
    report.createCrashReport();
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    QVERIFY(send(report));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.size(), 1); // all slots have run: they are called from one signal
}

void tst_ReportUpload::answer_givesTheVerdict_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<QString>("line"); // in the log, a regular expression; empty if there is none

    const auto add = [](const char *name, const Script &script, bool isAccepted, const QString &line) {
        QTest::newRow(name) << script << isAccepted << line;
    };
    const QString plain;
    const auto escaped = [](const QString &text) { return QRegularExpression::escape(text); };
    const auto ok = [](const QByteArray &members) { return answerWith("200 OK", answer(members)); };

    add("good", answerWith("200 OK", accepted()), true, escaped(u"Crash Report UID 42-a"_qs));
    add("good, names in another case",
        ok("<REPORTCRASHRESULT>NoError</REPORTCRASHRESULT><Identifier>7 \xc3\xa4</Identifier>"), true,
        escaped(u"Crash Report UID 7 \u00e4"_qs));
    add("good, struct of another name",
        answerWith("200 OK", answer("<ReportCrashResult>NoError</ReportCrashResult>", "Thanks")), true,
        escaped(u"Crash Report UID "_qs));
    add("good, placeholders", ok("<ReportCrashResult>NoError</ReportCrashResult><identifier>%1 %2</identifier>"), true,
        escaped(u"Crash Report UID %1 %2"_qs));
    add("good, no identifier", ok("<ReportCrashResult>NoError</ReportCrashResult>"), true,
        escaped(u"Crash Report UID "_qs));
    add("refused", answerWith("200 OK", refused()), false, plain);
    add("noerror", ok("<ReportCrashResult>noerror</ReportCrashResult>"), false, plain);
    add("no result", ok("<identifier>42-a</identifier>"), false, plain);
    add("no members", ok(""), false, plain);
    add("simple value", answerWith("200 OK", inBody("<ReportCrashResult>NoError</ReportCrashResult>")), false, plain);
    add("empty body", answerWith("200 OK", inBody("")), false, plain);

    const QString error = u"Error: "_qs;
    add("fault", answerWith("200 OK", fault("Server", "The disk is full")), false, error + u"The disk is full");
    add("fault under the status 500", answerWith("500 Internal Server Error", fault("soap:Client", "No &amp; No")),
        false, error + u"No & No");
    add("fault, placeholders", answerWith("200 OK", fault("Server", "100 %1")), false, error + u"100 %1");
    add("fault without text", answerWith("200 OK", fault("Server", "")), false, error);
    add("fault of an unknown code", answerWith("200 OK", fault("Quota", "Full")), false, plain);
    add("good under the status 404", answerWith("404 Not Found", accepted()), false, error);
    add("good under the status 500", answerWith("500 Internal Server Error", accepted()), false, error);
    add("404 without SOAP", answerWith("404 Not Found", "<html><body>Not here</body></html>"), false, error + u".+");
    add("500 without SOAP", answerWith("500 Internal Server Error", "sorry"), false, error + u".+");
    add("not XML", answerWith("200 OK", "NoError"), false, error + u".+");
    add("nothing", answerWith("200 OK", ""), false, error + u".+");
    const QString transport = error + u"Network transport error \\(%1\\): .+";
    add("503", answerWith("503 Service Unavailable", accepted()), false, transport.arg(403));
    add("connection closed", writeAndClose(""), false, transport.arg(u"\\d+"_qs));
}

void tst_ReportUpload::answer_givesTheVerdict()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const Script, script);
    QFETCH(const bool, isAccepted);
    QFETCH(const QString, line);

    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    SoapServer proxy(script);
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    const qsizetype linesBefore = log.records().size();
    QVERIFY(send(report));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{isAccepted});
    QVERIFY(!results.wait(50));
    // One attempt; only Qt itself repeats a request whose connection was closed.
    QVERIFY(proxy.requests().size() <= 1 || line.contains(u"Network transport error"));

    const QStringList lines = log.records().mid(linesBefore);
    QCOMPARE(lines.size(), line.isEmpty() ? 0 : 1);
    const QRegularExpression form(u"^DEBUG ZYX_zglv6::CZipCrashReport::httpResponce: "_qs + line + u'$');
    QVERIFY2(line.isEmpty() || form.match(lines.constFirst()).hasMatch(), qPrintable(lines.join(u'\n')));
}

void tst_ReportUpload::answer_fault_goesToTheQtLog()
{
    SoapServer proxy(answerWith("500 Internal Server Error", fault("Server", "The disk is full")));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    QTest::ignoreMessage(QtDebugMsg, "QVariant(QString, \"The disk is full\")"); // fails the test if it does not come
    QVERIFY(send(report));
    QVERIFY(results.wait(watchdogMs));
}

void tst_ReportUpload::answer_endless_isCancelled()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    SoapServer proxy(flood("HTTP/1.1 200 OK\r\n\r\n", QByteArray(1 << 20, ' ')));
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    const QStringList before = log.records();
    QVERIFY(send(report));
    QVERIFY(results.wait(watchdogMs)); // the transport aborts what is beyond its limit
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{false});
    QCOMPARE(log.records(), before);
}

void tst_ReportUpload::connectionRefused_isANetworkError()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    sendAllTo(closedPort());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    const qsizetype linesBefore = log.records().size();
    QVERIFY(send(report));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.size(), 1);
    QCOMPARE(results.constFirst(), QVariantList{false});
    const QStringList lines = log.records().mid(linesBefore);
    QCOMPARE(lines.size(), 1);
    // Which number a proxy's refusal has depends on Qt's version.
    const QRegularExpression form(u"^DEBUG ZYX_zglv6::CZipCrashReport::httpResponce: "
                                  "Error: Network transport error \\((1|101)\\): .+$"_qs);
    QVERIFY2(form.match(lines.constFirst()).hasMatch(), qPrintable(lines.constFirst()));
}

void tst_ReportUpload::answer_leavesTheFiles_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<bool>("isAccepted");

    QTest::newRow("accepted") << answerWith("200 OK", accepted()) << true;
    QTest::newRow("refused") << answerWith("200 OK", refused()) << false;
    QTest::newRow("fault") << answerWith("200 OK", fault("Server", "no")) << false;
    QTest::newRow("network error") << writeAndClose("") << false;
}

void tst_ReportUpload::answer_leavesTheFiles()
{
    QFETCH(const Script, script);
    QFETCH(const bool, isAccepted);

    SoapServer proxy(script);
    sendAllTo(proxy.port());
    QObject owner;
    QPointer<CZipCrashReport> report
        = new CZipCrashReport(u"P"_qs, u"e"_qs, u"c"_qs, true, plainParser, &owner); // deletes itself
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/next.dmp", "dump"));
    const QStringList before = ReportFolders::treeOf(ReportFolders::reports());
    QCOMPARE(before.size(), 3);
    const QByteArray archive = ReportFolders::contentOf(ReportFolders::zipFiles().constFirst());
    QSignalSpy results(report.data(), &CZipCrashReport::resultOfSend);
    QVERIFY(send(*report));
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.constFirst(), QVariantList{isAccepted});
    deleteLaterNow();
    QVERIFY(!report);
    QCOMPARE(ReportFolders::treeOf(ReportFolders::reports()), before);
    QCOMPARE(ReportFolders::contentOf(ReportFolders::zipFiles().constFirst()), archive);
}

void tst_ReportUpload::answer_deleteWhenDone_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<bool>("deleteWhenDone");

    for (const bool deleteWhenDone : {false, true}) {
        const auto add = [deleteWhenDone](const char *name, const Script &script) {
            QTest::addRow("%s, %s", name, deleteWhenDone ? "deleted" : "kept") << script << deleteWhenDone;
        };
        add("accepted", answerWith("200 OK", accepted()));
        add("refused", answerWith("200 OK", refused()));
        add("fault", answerWith("200 OK", fault("Server", "no")));
        add("network error", writeAndClose(""));
        add("cancelled", flood("HTTP/1.1 200 OK\r\n\r\n", QByteArray(1 << 20, ' ')));
    }
}

void tst_ReportUpload::answer_deleteWhenDone()
{
    QFETCH(const Script, script);
    QFETCH(const bool, deleteWhenDone);

    SoapServer proxy(script);
    sendAllTo(proxy.port());
    QObject owner;
    auto *const made = new CZipCrashReport(u"P"_qs, u"e"_qs, u"c"_qs, deleteWhenDone, plainParser, &owner);
    const QPointer<CZipCrashReport> report(made);
    QSignalSpy results(made, &CZipCrashReport::resultOfSend);
    bool wasThere = false;
    connect(made, &CZipCrashReport::resultOfSend, this, [&] { wasThere = report != nullptr; });
    QVERIFY(send(*report));
    deleteLaterNow();
    QVERIFY(report); // not before the answer
    QVERIFY(results.wait(watchdogMs));
    QCOMPARE(results.size(), 1);
    QVERIFY(wasThere);
    deleteLaterNow();
    QCOMPARE(report == nullptr, deleteWhenDone);
}

void tst_ReportUpload::answer_slotDeletesLater()
{
    SoapServer proxy(answerWith("200 OK", accepted()));
    sendAllTo(proxy.port());
    for (const bool deleteWhenDone : {false, true}) {
        QObject owner;
        auto *const made = new CZipCrashReport(u"P"_qs, u"e"_qs, u"c"_qs, deleteWhenDone, plainParser, &owner);
        const QPointer<CZipCrashReport> report(made);
        connect(made, &CZipCrashReport::resultOfSend, made, &QObject::deleteLater);
        QVERIFY(send(*report));
        QTRY_VERIFY_WITH_TIMEOUT(report.isNull(), watchdogMs);
    }
}

void tst_ReportUpload::answer_slotSendsAgain()
{
    SoapServer proxy([](QTcpSocket &connection, const ReceivedRequest &request) {
        const bool isSecond = request.body.contains(QByteArray("second").toBase64());
        connection.write(httpAnswer("200 OK", isSecond ? accepted() : refused()));
    });
    sendAllTo(proxy.port());
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    QSignalSpy results(&report, &CZipCrashReport::resultOfSend);
    connect(&report, &CZipCrashReport::resultOfSend, this, [&report](bool isAccepted) {
        if (!isAccepted) {
            send(report, "second");
        }
    });
    QVERIFY(send(report, "first"));
    QTRY_COMPARE_WITH_TIMEOUT(results.size(), 2, watchdogMs);
    QCOMPARE(results.at(0), QVariantList{false});
    QCOMPARE(results.at(1), QVariantList{true});
    QCOMPARE(proxy.requests().size(), 2);
}

void tst_ReportUpload::destructor_requestOnItsWay_givesItUp()
{
    SoapServer proxy(keepSilent());
    sendAllTo(proxy.port());
    auto report = std::make_unique<CZipCrashReport>(u"P"_qs, u"e"_qs, u"c"_qs, true, plainParser, nullptr);
    QSignalSpy results(report.get(), &CZipCrashReport::resultOfSend);
    QVERIFY(send(*report));
    QTRY_COMPARE_WITH_TIMEOUT(proxy.requests().size(), 1, watchdogMs);
    QCOMPARE(proxy.connectionCount(), 1);
    report.reset();
    QTRY_COMPARE_WITH_TIMEOUT(proxy.connectionCount(), 0, watchdogMs);
    QCOMPARE(results.size(), 0);
    QCOMPARE(ReportFolders::zipFiles().size(), 1);
}

QTEST_GUILESS_MAIN(tst_ReportUpload)
#include "tst_ReportUpload.moc"
