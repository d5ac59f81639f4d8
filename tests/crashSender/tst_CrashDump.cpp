// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Programs.h"

#include "support/Sandbox.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtTest/QTest>

#include <csignal>
#include <map>
#include <memory>

using namespace CrashTest;

namespace {

constexpr char startedVariable[] = "ZYX_TEST_STARTED_PROGRAM"; // names the file for the arguments

#ifdef Q_OS_WIN
constexpr int accessViolation = int(0xc0000005);
constexpr int afterAbort = 3;
#endif

/*! A lightbox that was told to crash, and the times right before and after it. */
struct Crash
{
    WorkFolder folder;
    QDateTime start;
    Run host;
    QDateTime end;
};

} // namespace

/*! Lightbox as a host that really dies. */
class tst_CrashDump : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void crash_endsTheProcessThatWay_data();
    void crash_endsTheProcessThatWay();
    void dump_isNamedAfterProgramProcessAndTime();
    void dumpOfASignal_tellsWhatHappened();
    void dumpOfAnException_tellsItsTypeAndText();
    void crashOfSeveralThreads_leavesOneWholeDump();
    void log_hasItsLastLine();
    void nextStart_saysThatADumpWaits();
    void nextStart_startsTheSender_data();
    void nextStart_startsTheSender();
    void senderThatCannotBeStarted_isToldIfADumpWaits_data();
    void senderThatCannotBeStarted_isToldIfADumpWaits();
    void tour_showsHowAnotherHostDies();
    void wrongWayToCrash_endsWithoutStarting();

private:
    QString newFolder();
    const Crash &crashOf(const QString &way);
    QStringList argumentsOfStartedProgram(const QStringList &lightboxArguments, const QString &sender);

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<WorkFolder> m_folder;
    std::map<QString, Crash> m_crashes;
};

QString tst_CrashDump::newFolder()
{
    return m_sandbox.filePath(u"work %1"_qs.arg(++m_count));
}

void tst_CrashDump::init()
{
    m_folder = std::make_unique<WorkFolder>(newFolder());
}

/*! The crash of that \a way, in a folder of its own. It happens once: a dump takes a minute under Wine. */
const Crash &tst_CrashDump::crashOf(const QString &way)
{
    const auto known = m_crashes.find(way);
    if (known != m_crashes.end()) {
        return known->second;
    }
    const WorkFolder folder(newFolder());
    const QDateTime start = QDateTime::currentDateTime();
    const Run host = folder.lightbox({u"--crash"_qs, way});
    return m_crashes.emplace(way, Crash{folder, start, host, QDateTime::currentDateTime()}).first->second;
}

void tst_CrashDump::crash_endsTheProcessThatWay_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("code");

#ifdef Q_OS_WIN
    QTest::newRow("signal") << u"signal"_qs << int(QProcess::CrashExit) << accessViolation;
    QTest::newRow("exception") << u"exception"_qs << int(QProcess::NormalExit) << afterAbort;
#else
    QTest::newRow("signal") << u"signal"_qs << int(QProcess::CrashExit) << SIGSEGV;
    QTest::newRow("exception") << u"exception"_qs << int(QProcess::CrashExit) << SIGABRT;
#endif
}

void tst_CrashDump::crash_endsTheProcessThatWay()
{
    QFETCH(const QString, way);
    QFETCH(const int, status);
    QFETCH(const int, code);

    const Crash &crash = crashOf(way);
    const Run &host = crash.host;
    QVERIFY2(host.isOver, qPrintable(host.errors));
    QCOMPARE(int(host.exitStatus), status);
    QCOMPARE(host.exitCode, code);
    QVERIFY2(host.step(9).endsWith(u"no state stored yet"), qPrintable(host.errors)); // it had come up
    QCOMPARE(host.step(26), u"0 lines for step 26"_qs); // and did not leave
    QCOMPARE(crash.folder.dumps().size(), 1);
    QVERIFY(!host.errors.contains(u"Sanitizer"));
}

void tst_CrashDump::dump_isNamedAfterProgramProcessAndTime()
{
    const Crash &crash = crashOf(u"signal"_qs);
    const QStringList dumps = crash.folder.dumps();
    QCOMPARE(dumps.size(), 1);
    static const QRegularExpression form(u"^lightbox-(\\d+)-(\\d{14})\\.dmp$"_qs);
    const QRegularExpressionMatch name = form.match(QFileInfo(dumps.front()).fileName());
    QVERIFY2(name.hasMatch(), qPrintable(dumps.front()));
    QCOMPARE(name.captured(1).toLongLong(), crash.host.process);
    const QDateTime time = QDateTime::fromString(name.captured(2), u"yyyyMMddhhmmss"_qs);
    QVERIFY(time >= crash.start.addSecs(-1) && time <= crash.end); // the name has whole seconds
}

void tst_CrashDump::dumpOfASignal_tellsWhatHappened()
{
    const Crash &crash = crashOf(u"signal"_qs);
    const QByteArray dump = contentOf(crash.folder.dumps().value(0));
#ifdef Q_OS_WIN
    QVERIFY(dump.startsWith("MDMP"));
    QVERIFY(dump.size() > 1000);
#else
    const QByteArray head = "Program: lightbox\nProcess: " + QByteArray::number(crash.host.process)
        + "\nSignal: 11 SIGSEGV\nFault address: 0x10\n\nBack trace:\n";
    QCOMPARE(dump.left(head.size()), head);
    const qsizetype trace = dump.indexOf("Back trace:\n");
    const qsizetype map = dump.indexOf("\nMemory map:\n");
    QVERIFY(map > trace);
    QVERIFY(dump.mid(trace, map - trace).contains("/lightbox("));
    QVERIFY(dump.indexOf("[stack]", map) > 0);
    QVERIFY(dump.endsWith('\n'));
    QVERIFY(!dump.contains("Exception:"));
    QCOMPARE(QFile::permissions(crash.folder.dumps().front()) & (QFile::ReadGroup | QFile::ReadOther), 0);
#endif
}

void tst_CrashDump::dumpOfAnException_tellsItsTypeAndText()
{
    const QByteArray dump = contentOf(crashOf(u"exception"_qs).folder.dumps().value(0));
#ifdef Q_OS_WIN
    QVERIFY(dump.startsWith("MDMP"));
    QVERIFY(dump.contains("std::runtime_error: The film has torn"));
#else
    QVERIFY2(dump.contains("\nSignal: 6 SIGABRT\nException: std::runtime_error: The film has torn\n"),
             dump.left(200).constData());
#endif
}

void tst_CrashDump::crashOfSeveralThreads_leavesOneWholeDump()
{
    const Crash &crash = crashOf(u"threads"_qs);
    const Run &host = crash.host;
    QVERIFY2(host.isOver, qPrintable(host.errors));
    QCOMPARE(int(host.exitStatus), int(QProcess::CrashExit));
    QCOMPARE(crash.folder.dumps().size(), 1);
    const QByteArray dump = contentOf(crash.folder.dumps().front());
#ifdef Q_OS_WIN
    QCOMPARE(host.exitCode, accessViolation);
    QVERIFY(dump.startsWith("MDMP"));
    QVERIFY(dump.size() > 1000);
#else
    QCOMPARE(host.exitCode, SIGSEGV);
    QCOMPARE(dump.count("Signal: 11 SIGSEGV\nFault address: 0x10\n"), 1);
    const qsizetype map = dump.indexOf("\nMemory map:\n");
    QVERIFY(map > dump.indexOf("Back trace:\n"));
    QVERIFY(dump.indexOf("[stack]", map) > 0);
    QVERIFY(dump.endsWith('\n'));
#endif
}

void tst_CrashDump::log_hasItsLastLine()
{
    const QByteArray log = contentOf(crashOf(u"signal"_qs).folder.logs() + u"lightbox.txt");
    QVERIFY(log.trimmed().endsWith("finishStart: Crashes because it was asked to"));
    QVERIFY(log.contains("Zyx Grainlab 6 Version: " PRODUCT_VERSION));
}

void tst_CrashDump::nextStart_saysThatADumpWaits()
{
    const Crash &first = crashOf(u"signal"_qs);
    QVERIFY2(first.host.step(6).endsWith(u" no dump of an earlier run"), qPrintable(first.host.errors));
    const QString dump = first.folder.dumps().value(0);
    QVERIFY(m_folder->writeDump(QFileInfo(dump).fileName(), contentOf(dump)));
    const Run second = m_folder->lightbox({});
    QVERIFY2(second.isClean(), qPrintable(second.errors));
    QVERIFY2(second.step(6).endsWith(u" a dump of an earlier run waits"), qPrintable(second.step(6)));
    QCOMPARE(m_folder->dumps().size(), 1); // for whoever sends it
}

/*! A host that does not leave starts this program, which writes down its arguments. */
QStringList tst_CrashDump::argumentsOfStartedProgram(const QStringList &lightboxArguments, const QString &sender)
{
    const QString target = m_folder->path() + u"/arguments.txt";
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(startedVariable), target);
    host.setProcessEnvironment(environment);
    host.setStandardErrorFile(QProcess::nullDevice());
    host.start(QDir(QCoreApplication::applicationDirPath()).filePath(u"lightbox"_qs),
               QStringList{u"--data"_qs, m_folder->path(), u"--crash-sender"_qs, sender} + lightboxArguments);
    const bool isWritten
        = QTest::qWaitFor([&target] { return contentOf(target).endsWith("\n.\n"); }, programWatchdogMs);
    host.kill();
    host.waitForFinished();
    return isWritten ? QString::fromUtf8(contentOf(target)).split(u'\n', Qt::SkipEmptyParts) : QStringList();
}

void tst_CrashDump::nextStart_startsTheSender_data()
{
    QTest::addColumn<bool>("hasOwnPreferences");
    QTest::addColumn<QString>("service");

    QTest::newRow("preferences in the work folder") << false << QString();
    QTest::newRow("preferences of its own") << true << QString();
    QTest::newRow("a service") << false << u"127.0.0.1:8123"_qs;
}

void tst_CrashDump::nextStart_startsTheSender()
{
    QFETCH(const bool, hasOwnPreferences);
    QFETCH(const QString, service);
    const QString preferences
        = hasOwnPreferences ? m_sandbox.filePath(u"own.ini"_qs) : QString(m_folder->path() + u"/Preferences.ini");
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    QStringList option;
    if (hasOwnPreferences) {
        option = {u"--preferencesFile"_qs, preferences};
        QSettings(preferences, QSettings::IniFormat)
            .setValue(ZYX_zglv6::dataDirectoryKey, QString(m_folder->path() + u"/data"));
    }
    QStringList expected{u"--preferencesFile"_qs, preferences, u"--data"_qs, m_folder->path()};
    if (!service.isEmpty()) {
        option += {u"--crash-service"_qs, service};
        expected += {u"--service"_qs, service};
    }
    const QStringList arguments = argumentsOfStartedProgram(option, QCoreApplication::applicationFilePath());
    QCOMPARE(arguments, expected + QStringList(u"."_qs));
}

void tst_CrashDump::senderThatCannotBeStarted_isToldIfADumpWaits_data()
{
    QTest::addColumn<bool>("isDumpThere");

    QTest::newRow("dump") << true;
    QTest::newRow("no dump") << false;
}

void tst_CrashDump::senderThatCannotBeStarted_isToldIfADumpWaits()
{
    QFETCH(const bool, isDumpThere);
    QVERIFY(!isDumpThere || m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    const QString sender = m_sandbox.filePath(u"no such program"_qs);
    QProcess host;
    host.start(QDir(QCoreApplication::applicationDirPath()).filePath(u"lightbox"_qs),
               {u"--data"_qs, m_folder->path(), u"--crash-sender"_qs, sender});
    QStringList lines;
    const bool isUp = QTest::qWaitFor(
        [&] {
            while (host.canReadLine()) {
                lines += QString::fromLocal8Bit(host.readLine()).trimmed();
            }
            return !lines.filter(QRegularExpression(u"^7 "_qs)).isEmpty();
        },
        programWatchdogMs);
    host.kill();
    host.waitForFinished();
    QVERIFY(isUp);
    const QString told = lines.filter(QRegularExpression(u"^6 "_qs)).value(0);
    const QString expected = isDumpThere
        ? u"a dump of an earlier run waits; %1 can't be started"_qs.arg(QDir::toNativeSeparators(sender))
        : u"no dump of an earlier run"_qs;
    QCOMPARE(told, u"6 crashes     "_qs + expected);
}

void tst_CrashDump::tour_showsHowAnotherHostDies()
{
#ifdef Q_OS_WIN
    QSKIP("Under Wine a dump may take longer than the tour waits.");
#endif
    const Run host = m_folder->lightbox({u"--tour"_qs});
    QVERIFY2(host.isClean(), qPrintable(host.errors));
    const QStringList dumps = m_folder->dumps();
    QCOMPARE(dumps.size(), 1);
    const QFileInfo dump(dumps.front());
    QVERIFY2(host.step(25).endsWith(u" another lightbox crashed with 11; it left %1 of %2 bytes"_qs.arg(
                 dump.fileName(), QString::number(dump.size()))),
             qPrintable(host.step(25)));
    QVERIFY(dump.size() > 1000);
    QCOMPARE(QDir(m_folder->logs()).entryList(QDir::Files), QStringList(u"lightbox.txt"_qs)); // not rolled over
}

void tst_CrashDump::wrongWayToCrash_endsWithoutStarting()
{
    const Run host = m_folder->lightbox({u"--crash"_qs, u"slowly"_qs});
    QCOMPARE(host.exitStatus, QProcess::NormalExit);
    QCOMPARE(host.exitCode, 1);
    QVERIFY2(host.errors.contains(u"a crash is a \"signal\", an \"exception\" or of \"threads\""),
             qPrintable(host.errors));
    QVERIFY(!QFile::exists(m_folder->path() + u"/data"));
}

namespace {

/*! As the program that lightbox starts. The last line is for the reader, who looks before all is written. */
int writeArguments(const QStringList &arguments)
{
    return writeFile(qEnvironmentVariable(startedVariable), (arguments.join(u'\n') + u"\n.\n").toUtf8()) ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(startedVariable)) {
        return writeArguments(QCoreApplication::arguments().mid(1));
    }
    tst_CrashDump test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_CrashDump.moc"
