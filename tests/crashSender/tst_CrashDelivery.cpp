// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Archives.h"
#include "Programs.h"
#include "Requests.h"

#include "soap/server/SoapExchange.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QSettings>
#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <memory>

using namespace CrashTest;
using namespace SoapTest;

/*! The program crashSender without a window, and a service. */
class tst_CrashDelivery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void request_isTheReportOperation();
    void data_isTheArchive();
    void answer_decides_data();
    void answer_decides();
    void noService_isAFailure();
    void unusablePreference_isAFailure();
    void snapshotOfASentReport_hasNoScrollBar();
    void secondAttempt_sendsTheSameReport();
    void crashToCollector_bringsTheSameBytes();

private:
    Run send(int port, const QStringList &arguments = {}) const;

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<WorkFolder> m_folder;
};

void tst_CrashDelivery::init()
{
    useNoProxies();
    m_folder = std::make_unique<WorkFolder>(m_sandbox.filePath(u"work %1"_qs.arg(++m_count)));
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump \x01"));
}

Run tst_CrashDelivery::send(int port, const QStringList &arguments) const
{
    return m_folder->crashSender(QStringList{u"--send"_qs, u"--service"_qs, u"127.0.0.1:%1"_qs.arg(port)} + arguments);
}

void tst_CrashDelivery::request_isTheReportOperation()
{
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    // Neither name nor address of the product's makers: the operation has fixed values.
    const Run sender = send(server.port(), {u"--product"_qs, u"Lightbox"_qs});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QCOMPARE(server.requests().size(), 1);
    const ReceivedRequest &request = server.requests().front();
    QCOMPARE(request.line, QByteArray("POST /CollectDumpInfo/WSCollectDump.asmx HTTP/1.1"));
    QCOMPARE(request.values("Host"), QByteArrayList{"127.0.0.1:" + QByteArray::number(server.port())});
    QCOMPARE(request.values("SOAPAction"), QByteArrayList{"http://" ZYX_SERVICE_OWNER_HOST "/CollectDump/ReportCrash"});
    QCOMPARE(request.values("Content-Type"), QByteArrayList{"text/xml;charset=utf-8"});

    const Operation operation = operationOf(request);
    QCOMPARE(operation.name, u"ReportCrash"_qs);
    QCOMPARE(operation.uri, QStringLiteral("http://" ZYX_SERVICE_OWNER_HOST "/CollectDump"));
    QCOMPARE(operation.arguments.size(), 4);
    QCOMPARE(operation.arguments.at(0), qMakePair(u"platform"_qs, u"Win"_qs));
    QCOMPARE(operation.arguments.at(1), qMakePair(u"product"_qs, u"Zyx Grainlab 6"_qs));
    QCOMPARE(operation.arguments.at(2), qMakePair(u"version"_qs, u"6.4.0.314"_qs));
    QCOMPARE(operation.arguments.at(3).first, u"data"_qs);
    QCOMPARE(request.body.count("type=\"xsd:string\""), 4);
}

void tst_CrashDelivery::data_isTheArchive()
{
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    QVERIFY(m_folder->writeDump(u"large.dmp"_qs, QByteArray(3'000'001, '\xfe')));
    const Run sender = send(server.port(), {u"--email"_qs, u"a@b.example"_qs});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QVERIFY2(sender.step(9).endsWith(u" sent: R-17"), qPrintable(sender.step(9)));
    QCOMPARE(server.requests().size(), 1);
    const QByteArray received = operationOf(server.requests().front()).archive();
    QVERIFY(received.size() > 3'000'000);
    QVERIFY(received == contentOf(m_folder->archives().value(0)));
    QVERIFY(entriesOfBytes(received).value(u"report.xml"_qs).contains("<Email>a@b.example</Email>"));
}

void tst_CrashDelivery::answer_decides_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("told");

    const auto row = [](const char *name, const Script &script, int exitCode, const QString &told) {
        QTest::newRow(name) << script << exitCode << told;
    };
    const auto good = [](const QByteArray &body) { return answerWith("200 OK", body); };
    QByteArray otherCase = verdictAnswer("NoError", "R-17");
    otherCase.replace("ReportCrashResult", "REPORTCRASHRESULT");
    row("accepted", good(verdictAnswer("NoError", "R-17")), 0, u"sent: R-17"_qs);
    row("accepted without an identifier", good(verdictAnswer("NoError")), 0, u"sent: "_qs);
    row("name in another case", good(otherCase), 0, u"sent: R-17"_qs);
    row("identifier of two lines", good(verdictAnswer("NoError", "R-17\n10 left with 0")), 0,
        u"sent: R-17 10 left with 0"_qs); // one line for each step, whatever a service says
    row("word in another case", good(verdictAnswer("noerror", "R-17")), 1, u"refused: noerror"_qs);
    row("refused", good(verdictAnswer("TooLarge", "R-17")), 1, u"refused: TooLarge"_qs);
    row("without a verdict", good(priceAnswer()), 1, u"refused: The answer holds no verdict"_qs);
    row("fault", answerWith("500 Internal Server Error", faultAnswer("soap:Server", "The disk is full")), 1,
        u"failed: The disk is full"_qs);
    row("fault under 200", good(faultAnswer("soap:Client", "No such product")), 1, u"failed: No such product"_qs);
    row("accepted, but under 500", answerWith("500 Internal Server Error", verdictAnswer("NoError", "R-17")), 1,
        u"failed: The service tells of an error without a reason"_qs);
    row("500 without a document", answerWith("500 Internal Server Error", ""), 1, u"failed: XML parse error"_qs);
    row("no document", good("<html>"), 1, u"failed: XML parse error"_qs);
    row("503", answerWith("503 Service Unavailable", ""), 1,
        u"failed: The service gave no proper answer (Network transport error (403): "_qs);
    row("closed without an answer", writeAndClose(""), 1,
        u"failed: The service gave no proper answer (Network transport error (2): "_qs);
}

void tst_CrashDelivery::answer_decides()
{
    QFETCH(const Script, script);
    QFETCH(const int, exitCode);
    QFETCH(const QString, told);

    SoapServer server(script);
    const QString picture = m_sandbox.filePath(u"state.png"_qs);
    const Run sender = send(server.port(), {u"--snapshot"_qs, picture});
    QVERIFY2(sender.isOver, qPrintable(sender.errors));
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, exitCode);
    QVERIFY2(sender.step(9).startsWith(u"9 delivery    "_qs + told), qPrintable(sender.step(9)));
    if (!told.endsWith(u": ")) {
        QCOMPARE(sender.step(9), u"9 delivery    "_qs + told);
    }
    QVERIFY(!server.requests().isEmpty());
    QCOMPARE(m_folder->archives().size(), 1); // stays, whatever became of it
    QVERIFY(operationOf(server.requests().front()).archive() == contentOf(m_folder->archives().front()));
    QVERIFY(!QImage(picture).isNull());
}

void tst_CrashDelivery::noService_isAFailure()
{
    const Run sender = send(1); // nothing listens there
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, 1);
    QVERIFY2(sender.step(9).startsWith(
                 u"9 delivery    failed: The service could not be reached (Network transport error (1): "),
             qPrintable(sender.step(9)));
    QVERIFY(entriesOf(m_folder->archives().value(0)).contains(u"any.dmp"_qs));
}

void tst_CrashDelivery::unusablePreference_isAFailure()
{
    const QString preferencesFile = m_sandbox.filePath(u"unusable.ini"_qs);
    {
        QSettings preferences(preferencesFile, QSettings::IniFormat);
        preferences.setValue(ZYX_zglv6::dataDirectoryKey, QString(m_folder->path() + u"/data"));
        preferences.setValue(ZYX_zglv6::crashServiceHostKey, u"a b"_qs);
    }
    const Run sender = m_folder->crashSender({u"--send"_qs, u"--preferencesFile"_qs, preferencesFile});
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, 1);
    QCOMPARE(sender.step(9), u"9 delivery    failed: the preferences name no host that could be a service"_qs);
    QCOMPARE(m_folder->archives().size(), 1);
}

void tst_CrashDelivery::snapshotOfASentReport_hasNoScrollBar()
{
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    const QString path = m_sandbox.filePath(u"sent.png"_qs);
    QVERIFY(send(server.port(), {u"--snapshot"_qs, path}).isClean());
    const QImage picture = QImage(path).convertToFormat(QImage::Format_RGB32);
    QVERIFY(!picture.isNull());
    int handle = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            handle += picture.pixelColor(x, y) == QColor(0x56, 0x56, 0x56) ? 1 : 0;
        }
    }
    QVERIFY2(handle < 500, qPrintable(QString::number(handle))); // letters have a few such pixels, a handle thousands
}

void tst_CrashDelivery::secondAttempt_sendsTheSameReport()
{
    QCOMPARE(send(1).exitCode, 1);
    const QByteArray archive = contentOf(m_folder->archives().value(0));
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-18")));
    const Run second = send(server.port());
    QVERIFY2(second.isClean(), qPrintable(second.errors));
    QCOMPARE(server.requests().size(), 1);
    QVERIFY(operationOf(server.requests().front()).archive() == archive);
    QVERIFY(contentOf(m_folder->archives().value(0)) == archive);
}

void tst_CrashDelivery::crashToCollector_bringsTheSameBytes()
{
    const QString storage = m_sandbox.filePath(u"collected"_qs);
    QProcess collector; // ends with its standard input
    collector.start(QDir(QCoreApplication::applicationDirPath()).filePath(u"crashCollector"_qs),
                    {u"--storage"_qs, storage, u"--port"_qs, u"0"_qs});
    QString listening;
    const bool isListening = QTest::qWaitFor(
        [&] {
            while (collector.canReadLine() && !listening.startsWith(u"Listening on ")) {
                listening = QString::fromLocal8Bit(collector.readLine()).trimmed();
            }
            return listening.startsWith(u"Listening on ") || collector.state() == QProcess::NotRunning;
        },
        programWatchdogMs);
    if (collector.error() == QProcess::FailedToStart) {
        QSKIP("Needs crashCollector, which is not built.");
    }
    QVERIFY(isListening);
    const int port = QUrl(listening.section(u' ', -1)).port();
    QVERIFY2(port > 0, qPrintable(listening));

    const Run host = m_folder->lightbox({u"--crash"_qs, u"signal"_qs});
    QCOMPARE(m_folder->dumps().size(), 2); // beside the one of init()
    const Run sender = send(port, {u"--comment"_qs, u"It was late"_qs});
    collector.closeWriteChannel();
    QVERIFY(collector.waitForFinished(programWatchdogMs));
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QVERIFY2(sender.step(9).startsWith(u"9 delivery    sent: ") && sender.step(9).size() > 22,
             qPrintable(sender.step(9)));

    QStringList stored;
    for (QDirIterator files(storage, {u"*.zip"_qs}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        stored += files.next();
    }
    QCOMPARE(stored.size(), 1);
    const QByteArray archive = contentOf(m_folder->archives().value(0));
    QVERIFY(archive.size() > 1000);
    QVERIFY(contentOf(stored.front()) == archive);
    QVERIFY(entriesOf(stored.front()).value(u"report.xml"_qs).contains("<Comments>It was late</Comments>"));
}

QTEST_MAIN(tst_CrashDelivery)

#include "tst_CrashDelivery.moc"
