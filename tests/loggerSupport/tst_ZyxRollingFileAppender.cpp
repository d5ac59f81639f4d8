// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LogFile.h"
#include "LogHost.h"
#include "LogTestSystem.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "loggerSupport/LoggerWrapper.h"
#include "loggerSupport/ZyxRollingFileAppender.h"
#include "storageLocation/storageLocation.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <log4cplus/fileappender.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>

#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr qint64 maximumSize = 1'048'576;
constexpr int maximumBackups = 10;

// It adds behaviour to the base class, and no field.
static_assert(std::is_base_of_v<log4cplus::RollingFileAppender, ZyxRollingFileAppender>);
static_assert(sizeof(ZyxRollingFileAppender) == sizeof(log4cplus::RollingFileAppender));

/*! A logger on an appender of its own that writes nothing but the messages. */
log4cplus::Logger plainLogger(const QString &path)
{
    log4cplus::SharedAppenderPtr appender(new ZyxRollingFileAppender(QDir::toNativeSeparators(path).toStdWString()));
    appender->setLayout(std::make_unique<log4cplus::PatternLayout>(LOG4CPLUS_TEXT("%m")));
    log4cplus::Logger logger = log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("plain"));
    logger.removeAllAppenders();
    logger.addAppender(appender);
    return logger;
}

void write(const log4cplus::Logger &logger, qint64 count, char character)
{
    logger.forcedLog(log4cplus::ERROR_LOG_LEVEL,
                     log4cplus::tstring(static_cast<std::size_t>(count), log4cplus::tchar(character)));
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class tst_ZyxRollingFileAppender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_withoutAnEarlierLog_makesAnEmptyFile();
    void constructor_shiftsEveryBackupUpByOne();
    void constructor_withBackupsButNoCurrentLog_leavesBackupOneOut();
    void constructor_acceptsADoubledSeparator();

    void append_rollsOverOnceTheFileHasPassedOneMebibyte();
    void append_exceedsTheMaximumByOneRecordAtMost();
    void append_keepsElevenFilesAtMost();
    void append_fromSeveralThreads_losesNothingInARollover();

    void elevenRuns_keepTheFirstAsBackupTen();
    void twelfthRun_removesTheFirst();
    void runThatWritesNothing_leavesAnEmptyLog_data();
    void runThatWritesNothing_leavesAnEmptyLog();
    void runsWithDifferentNames_leaveEachOtherAlone();
    void secondProcessWithTheSameName_rollsOverUnderTheFirst();

    void unwritableFolder_failsNoCaller();
    void folderThatCanNotBeMade_failsNoCaller();
    void fileInPlaceOfTheFolder_failsNoCaller();
    void folderInPlaceOfTheFile_failsNoCaller();
    void vanishingFolder_failsNoCaller();
    void fullDisk_failsNoCallerAndLoggingGoesOnOnceThereIsRoom();

private:
    QString newDataDirectory();
    QStringList filesOf(const QString &folder) const;

    TestSupport::Sandbox m_sandbox;
    int m_dataDirectories = 0;
};

QString tst_ZyxRollingFileAppender::newDataDirectory()
{
    return m_sandbox.filePath(u"data%1"_qs.arg(++m_dataDirectories));
}

/*! The names of the files in \a folder, the newest log first. */
QStringList tst_ZyxRollingFileAppender::filesOf(const QString &folder) const
{
    QStringList names = QDir(folder).entryList(QDir::Files);
    std::sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return std::pair(left.size(), left) < std::pair(right.size(), right);
    });
    return names;
}

void tst_ZyxRollingFileAppender::constructor_withoutAnEarlierLog_makesAnEmptyFile()
{
    const QString folder = newDataDirectory();
    QVERIFY(QDir().mkpath(folder));
    const ZyxRollingFileAppender appender(QDir::toNativeSeparators(folder + u"/a.txt").toStdWString());
    QCOMPARE(filesOf(folder), QStringList(u"a.txt"_qs));
    QCOMPARE(QFileInfo(folder + u"/a.txt").size(), 0);
}

void tst_ZyxRollingFileAppender::constructor_shiftsEveryBackupUpByOne()
{
    const QString folder = newDataDirectory();
    QVERIFY(QDir().mkpath(folder));
    const QString path = folder + u"/a.txt";
    writeFile(path, "current");
    for (int backup = 1; backup <= maximumBackups; ++backup) {
        writeFile(path + u'.' + QString::number(backup), QByteArray::number(backup));
    }
    writeFile(path + u".11", "not of this log");
    {
        const ZyxRollingFileAppender appender(QDir::toNativeSeparators(path).toStdWString());
    }
    QCOMPARE(QFileInfo(path).size(), 0);
    QCOMPARE(readLog(path + u".1"), QByteArray("current"));
    for (int backup = 2; backup <= maximumBackups; ++backup) {
        QCOMPARE(readLog(path + u'.' + QString::number(backup)), QByteArray::number(backup - 1));
    }
    QCOMPARE(readLog(path + u".11"), QByteArray("not of this log"));
    QCOMPARE(filesOf(folder).size(), maximumBackups + 2);
}

void tst_ZyxRollingFileAppender::constructor_withBackupsButNoCurrentLog_leavesBackupOneOut()
{
    const QString folder = newDataDirectory();
    QVERIFY(QDir().mkpath(folder));
    const QString path = folder + u"/a.txt";
    for (int backup = 1; backup <= maximumBackups; ++backup) {
        writeFile(path + u'.' + QString::number(backup), QByteArray::number(backup));
    }
    {
        const ZyxRollingFileAppender appender(QDir::toNativeSeparators(path).toStdWString());
    }
    QVERIFY(QFileInfo::exists(path));
    QCOMPARE(QFileInfo(path).size(), 0);
    QVERIFY(!QFileInfo::exists(path + u".1"));
    for (int backup = 2; backup <= maximumBackups; ++backup) { // what was the last has gone
        QCOMPARE(readLog(path + u'.' + QString::number(backup)), QByteArray::number(backup - 1));
    }
    QCOMPARE(filesOf(folder).size(), maximumBackups);
}

void tst_ZyxRollingFileAppender::constructor_acceptsADoubledSeparator()
{
    const QString folder = newDataDirectory();
    QVERIFY(QDir().mkpath(folder));
    writeFile(folder + u"/a.txt", "earlier");
    const QString path = QDir::toNativeSeparators(folder) + QDir::separator() + QDir::separator() + u"a.txt";
    {
        const ZyxRollingFileAppender appender(path.toStdWString());
    }
    QCOMPARE(filesOf(folder), QStringList({u"a.txt"_qs, u"a.txt.1"_qs}));
    QCOMPARE(readLog(folder + u"/a.txt.1"), QByteArray("earlier"));
}

void tst_ZyxRollingFileAppender::append_rollsOverOnceTheFileHasPassedOneMebibyte()
{
    const QString folder = newDataDirectory();
    QVERIFY(QDir().mkpath(folder));
    {
        const log4cplus::Logger logger = plainLogger(folder + u"/a.txt");
        write(logger, maximumSize - 1, 'a');
        write(logger, 1, 'b');
        QCOMPARE(filesOf(folder), QStringList(u"a.txt"_qs)); // full to the last byte, but not beyond
        QCOMPARE(QFileInfo(folder + u"/a.txt").size(), maximumSize);
        write(logger, 1, 'c');
        QCOMPARE(filesOf(folder), QStringList({u"a.txt"_qs, u"a.txt.1"_qs}));
        QCOMPARE(QFileInfo(folder + u"/a.txt").size(), 0); // the record goes into the old file, then the new one begins
        write(logger, 1, 'd');
    }
    log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("plain")).removeAllAppenders();
    QCOMPARE(readLog(folder + u"/a.txt.1"), QByteArray(maximumSize - 1, 'a') + "bc");
    QCOMPARE(readLog(folder + u"/a.txt"), QByteArray("d"));
}

void tst_ZyxRollingFileAppender::append_exceedsTheMaximumByOneRecordAtMost()
{
    const QString data = newDataDirectory();
    QCOMPARE(runLogHost({u"data="_qs + data, u"level=E"_qs, u"file=run"_qs, u"records=1x20x300000"_qs}), 0);
    const QString folder = data + u"/Logs/";
    const QStringList names = filesOf(folder);
    QCOMPARE(names.size(), 6); // four records to a file, and none in the current one
    QCOMPARE(QFileInfo(folder + names.first()).size(), 0);
    for (const QString &name : names.mid(1)) {
        QFile file(folder + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        const qint64 lastRecord = content.size() - (content.lastIndexOf('\n', content.size() - 2) + 1);
        QVERIFY(content.size() > maximumSize);
        QVERIFY(content.size() - lastRecord <= maximumSize);
        QCOMPARE(readRecords(folder + name).size(), 4);
    }
}

void tst_ZyxRollingFileAppender::append_keepsElevenFilesAtMost()
{
    const QString data = newDataDirectory();
    QCOMPARE(runLogHost({u"data="_qs + data, u"level=E"_qs, u"file=run"_qs, u"records=1x30x600000"_qs}), 0);
    const QString folder = data + u"/Logs/";
    QStringList expected{u"run.txt"_qs};
    for (int backup = 1; backup <= maximumBackups; ++backup) {
        expected.append(u"run.txt."_qs + QString::number(backup));
    }
    QCOMPARE(filesOf(folder), expected);
    for (int backup = maximumBackups; backup >= 1; --backup) { // two records each; the first ten have gone
        const QStringList records = readRecords(folder + expected.at(backup));
        QCOMPARE(records.size(), 2);
        const int first = 10 + 2 * (maximumBackups - backup);
        QVERIFY(records.at(0).startsWith(u"ERROR 0:%1 "_qs.arg(first)));
        QVERIFY(records.at(1).startsWith(u"ERROR 0:%1 "_qs.arg(first + 1)));
    }
}

void tst_ZyxRollingFileAppender::append_fromSeveralThreads_losesNothingInARollover()
{
    constexpr int threadCount = 4;
    constexpr int recordsOfAThread = 2000;
    const QString data = newDataDirectory();
    QCOMPARE(runLogHost({u"data="_qs + data, u"level=E"_qs, u"file=run"_qs,
                         u"records=%1x%2x1000"_qs.arg(threadCount).arg(recordsOfAThread)}),
             0);
    const QString folder = data + u"/Logs/";
    QStringList names = filesOf(folder);
    QCOMPARE(names.size(), 8);
    std::reverse(names.begin(), names.end()); // the oldest first
    QList<int> seen(threadCount, 0);
    static const QRegularExpression form(u"^ERROR (\\d+):(\\d+) x+$"_qs);
    for (const QString &name : names) {
        for (const QString &record : readRecords(folder + name)) {
            const QRegularExpressionMatch match = form.match(record);
            QVERIFY2(match.hasMatch(), qPrintable(record));
            QCOMPARE(match.captured(2).toInt(), seen[match.captured(1).toInt()]++); // none missing, none twice
        }
    }
    QCOMPARE(seen, QList<int>(threadCount, recordsOfAThread));
}

void tst_ZyxRollingFileAppender::elevenRuns_keepTheFirstAsBackupTen()
{
    const QString data = newDataDirectory();
    constexpr int runs = maximumBackups + 1;
    for (int run = 1; run <= runs; ++run) {
        QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"log=D:run %1"_qs.arg(run)}), 0);
    }
    const QString path = data + u"/Logs/run.txt";
    QCOMPARE(filesOf(data + u"/Logs").size(), runs);
    QCOMPARE(readHostRecords(path), QStringList(u"DEBUG run 11"_qs));
    for (int backup = 1; backup <= maximumBackups; ++backup) {
        QCOMPARE(readHostRecords(path + u'.' + QString::number(backup)),
                 QStringList(u"DEBUG run %1"_qs.arg(runs - backup)));
    }
}

void tst_ZyxRollingFileAppender::twelfthRun_removesTheFirst()
{
    const QString data = newDataDirectory();
    constexpr int runs = maximumBackups + 2;
    for (int run = 1; run <= runs; ++run) {
        QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"log=D:run %1"_qs.arg(run)}), 0);
    }
    const QString path = data + u"/Logs/run.txt";
    QCOMPARE(filesOf(data + u"/Logs").size(), maximumBackups + 1);
    QCOMPARE(readHostRecords(path), QStringList(u"DEBUG run 12"_qs));
    QCOMPARE(readHostRecords(path + u".1"), QStringList(u"DEBUG run 11"_qs));
    QCOMPARE(readHostRecords(path + u".10"), QStringList(u"DEBUG run 2"_qs));
}

void tst_ZyxRollingFileAppender::runThatWritesNothing_leavesAnEmptyLog_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<QStringList>("written");

    QTest::newRow("warn") << u"W"_qs << QStringList();
    QTest::newRow("error") << u"E"_qs << QStringList();
    QTest::newRow("fatal") << u"F"_qs << QStringList();
    QTest::newRow("info: the logger's own first record")
        << u"I"_qs << QStringList(u"INFO Logger::getInstance(ZyxLogger)"_qs);
}

void tst_ZyxRollingFileAppender::runThatWritesNothing_leavesAnEmptyLog()
{
    QFETCH(QString, level);
    QFETCH(QStringList, written);
    const QString data = newDataDirectory();
    QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"log=D:first run"_qs}), 0);
    QCOMPARE(runLogHost({u"data="_qs + data, u"level="_qs + level, u"file=run"_qs}), 0);
    const QString path = data + u"/Logs/run.txt";
    QCOMPARE(filesOf(data + u"/Logs"), QStringList({u"run.txt"_qs, u"run.txt.1"_qs}));
    QCOMPARE(readRecords(path), written);
    QCOMPARE(QFileInfo(path).size() == 0, written.isEmpty());
    QCOMPARE(readHostRecords(path + u".1"), QStringList(u"DEBUG first run"_qs));

    QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"log=D:third run"_qs}), 0);
    QCOMPARE(readRecords(path + u".1"), written); // an empty log is a log like others
    QCOMPARE(readHostRecords(path + u".2"), QStringList(u"DEBUG first run"_qs));
}

void tst_ZyxRollingFileAppender::runsWithDifferentNames_leaveEachOtherAlone()
{
    const QString data = newDataDirectory();
    for (const QString &name : {u"run"_qs, u"run.txt"_qs, u"other"_qs}) {
        QCOMPARE(runLogHost({u"data="_qs + data, u"file="_qs + name, u"log=D:"_qs + name}), 0);
    }
    QCOMPARE(filesOf(data + u"/Logs"), QStringList({u"run.txt"_qs, u"other.txt"_qs, u"run.txt.txt"_qs}));
    QCOMPARE(readHostRecords(data + u"/Logs/run.txt"), QStringList(u"DEBUG run"_qs));
    QCOMPARE(readHostRecords(data + u"/Logs/run.txt.txt"), QStringList(u"DEBUG run.txt"_qs));
}

void tst_ZyxRollingFileAppender::secondProcessWithTheSameName_rollsOverUnderTheFirst()
{
    const QString data = newDataDirectory();
    const QString path = data + u"/Logs/run.txt";
    LogHost first({u"data="_qs + data, u"file=run"_qs, u"log=D:first begins"_qs, u"wait="_qs, u"log=D:first ends"_qs});
    QVERIFY(first.waitUntilItWaits());
    QCOMPARE(readHostRecords(path), QStringList(u"DEBUG first begins"_qs));

    QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"log=D:second"_qs}), 0);
    QCOMPARE(first.finish(), 0); // its file was rolled over, and it goes on all the same
    if (!LogTestSystem::canRenameOpenFiles()) {
        QCOMPARE(filesOf(data + u"/Logs"), QStringList(u"run.txt"_qs));
        QSKIP("A file in use can't be renamed here: both write into one file, and over each other.");
    }
    QCOMPARE(readHostRecords(path), QStringList(u"DEBUG second"_qs));
    QCOMPARE(readHostRecords(path + u".1"), QStringList({u"DEBUG first begins"_qs, u"DEBUG first ends"_qs}));
}

void tst_ZyxRollingFileAppender::unwritableFolder_failsNoCaller()
{
    const QString data = newDataDirectory();
    const QString folder = data + u"/Logs";
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::setPermissions(m_sandbox.filePath(QString()), QFile::Permissions(0x7755))); // others get this far
    QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
    LogHost host({u"unprivileged="_qs, u"data="_qs + data, u"file=run"_qs, u"log=E:a"_qs, u"log=E:b"_qs});
    const int exitCode = host.finish();
    QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7755)));
    if (exitCode == LogHost::systemRefused) {
        QSKIP("This process can't give up its right to write everywhere.");
    }
    QCOMPARE(exitCode, 0);
    QCOMPARE(filesOf(folder), QStringList());
    QCOMPARE(host.errors().count("ASSERT in "), 1);
    QVERIFY2(host.errors().contains("log4cplus:ERROR Unable to open file: "), host.errors().constData());
}

void tst_ZyxRollingFileAppender::folderThatCanNotBeMade_failsNoCaller()
{
    const QString data = newDataDirectory();
    writeFile(data, "a file");
    LogHost host({u"data="_qs + data, u"file=run"_qs, u"log=E:a"_qs, u"log=E:b"_qs});
    QCOMPARE(host.finish(), 0);
    QCOMPARE(readLog(data), QByteArray("a file"));
    QCOMPARE(host.errors().count("ASSERT in "), 1);
    QVERIFY2(host.errors().contains("log4cplus:ERROR Unable to open file: "), host.errors().constData());
}

void tst_ZyxRollingFileAppender::fileInPlaceOfTheFolder_failsNoCaller()
{
    const QString data = newDataDirectory();
    QVERIFY(QDir().mkpath(data));
    writeFile(data + u"/Logs", "a file");
    LogHost host({u"data="_qs + data, u"file=run"_qs, u"log=E:a"_qs, u"log=E:b"_qs});
    QCOMPARE(host.finish(), 0);
    QCOMPARE(readLog(data + u"/Logs"), QByteArray("a file"));
    // With its closing separator the path names a folder: there is none, and the file is in the way of making it.
    QCOMPARE(host.errors().count("ASSERT in "), 1);
    // the folder's own closing separator, and the one before the file's name
    const QString separator = QDir::separator();
    const QString path = data + u'/' + separator + u"Logs" + separator + separator + u"run.txt";
    const QByteArray report = u"log4cplus:ERROR Unable to open file: "_qs.append(path).toUtf8();
    QVERIFY2(host.errors().contains(report), host.errors().constData());
}

void tst_ZyxRollingFileAppender::folderInPlaceOfTheFile_failsNoCaller()
{
    const QString data = newDataDirectory();
    QVERIFY(QDir().mkpath(data + u"/Logs/run.txt/inside"));
    QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"log=E:a"_qs, u"log=E:b"_qs}), 0);
}

void tst_ZyxRollingFileAppender::vanishingFolder_failsNoCaller()
{
    RUN_IN_FRESH_PROCESS();
    const QString data = newDataDirectory();
    CStorageLocation::setDataDirectory(data);
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('E', "before");
    if (!QDir(data).removeRecursively()) {
        QSKIP("The folder of an open file can't be removed here.");
    }
    const QByteArray message(600'000, 'x');
    for (int record = 0; record < 4; ++record) {
        loggerInstance()->log('E', message.constData()); // two go to the removed file, then the rollover fails
    }
    QVERIFY(!QFileInfo::exists(data));

    QVERIFY(QDir().mkpath(data + u"/Logs"));
    const auto isWritten = [&data] {
        loggerInstance()->log('E', "after"); // log4cplus tries to open the file again once a second
        return readHostRecords(data + u"/Logs/run.txt").contains(u"ERROR after"_qs);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isWritten(), 60'000);
}

void tst_ZyxRollingFileAppender::fullDisk_failsNoCallerAndLoggingGoesOnOnceThereIsRoom()
{
    // A limit on the size of a file fails a write half-way, just as a full disk does, and needs no disk of its own.
    const QString data = newDataDirectory();
    const QString path = data + u"/Logs/run.txt";
    LogHost host({u"data="_qs + data, u"fileSizeLimit=20000"_qs, u"level=E"_qs, u"file=run"_qs,
                  u"records=1x100x1000"_qs, u"wait="_qs, u"fileSizeLimit=0"_qs, u"untilGrowing="_qs + path,
                  u"log=E:the end"_qs});
    const bool isFull = host.waitUntilItWaits();
    const qint64 sizeWhenFull = QFileInfo(path).size();
    const int exitCode = host.finish();
    if (exitCode == LogHost::systemRefused) {
        QSKIP("The size of a file can't be limited here.");
    }
    QVERIFY(isFull);
    QCOMPARE(sizeWhenFull, 20'000);
    QCOMPARE(exitCode, 0);

    const QStringList records = readRecords(path);
    QVERIFY(records.first().startsWith(u"ERROR 0:0 x"));
    QVERIFY(records.contains(u"ERROR is there room?"_qs));
    QCOMPARE(records.last(), u"ERROR the end"_qs);
    QVERIFY2(host.errors().contains("log4cplus:ERROR "), host.errors().constData());
}

QTEST_GUILESS_MAIN(tst_ZyxRollingFileAppender)

#include "tst_ZyxRollingFileAppender.moc"
