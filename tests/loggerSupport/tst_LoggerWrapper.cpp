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
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>
#include <QtTest/QTest>

#include <log4cplus/appender.h>
#include <log4cplus/helpers/timehelper.h>
#include <log4cplus/logger.h>
#include <log4cplus/ndc.h>
#include <log4cplus/spi/loggingevent.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

using namespace ZYX_zglv6;

namespace {

constexpr int bannerAndLocations = 8; // records

/*! While it lives, what is written to the standard output goes here. */
class CapturedOutput
{
public:
    CapturedOutput()
        : m_before(std::cout.rdbuf(m_text.rdbuf()))
    {
    }

    ~CapturedOutput()
    {
        std::cout.rdbuf(m_before);
    }

    CapturedOutput(const CapturedOutput &) = delete;
    CapturedOutput &operator=(const CapturedOutput &) = delete;

    QString text() const
    {
        return QString::fromStdString(m_text.str());
    }

private:
    std::ostringstream m_text;
    std::streambuf *m_before;
};

/*! While it lives, what goes to the Qt debug channel is kept here. Once at a time. */
class CapturedReports
{
public:
    CapturedReports()
    {
        reports.clear();
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &message) { reports.append(message); });
    }

    ~CapturedReports()
    {
        qInstallMessageHandler(m_before);
    }

    CapturedReports(const CapturedReports &) = delete;
    CapturedReports &operator=(const CapturedReports &) = delete;

    static QStringList texts()
    {
        return reports;
    }

private:
    static inline QStringList reports;

    QtMessageHandler m_before = nullptr;
};

/*! Keeps where in the source its records were written. */
class SourceAppender : public log4cplus::Appender
{
public:
    struct Source
    {
        QString message;
        QString file;
        int line;
    };

    ~SourceAppender() override
    {
        destructorImpl();
    }

    void close() override
    {
    }

    std::vector<Source> sources;

protected:
    void append(const log4cplus::spi::InternalLoggingEvent &event) override
    {
        const log4cplus::tstring &message = event.getMessage();
        const log4cplus::tstring &file = event.getFile();
        sources.push_back({QString::fromStdString(std::string(message.begin(), message.end())),
                           QString::fromStdString(std::string(file.begin(), file.end())), event.getLine()});
    }
};

/*! Writes 1234 as "1'2'3'4". */
template <typename Character>
class Grouping : public std::numpunct<Character>
{
protected:
    Character do_thousands_sep() const override
    {
        return Character('\'');
    }

    std::string do_grouping() const override
    {
        return "\1";
    }
};

/*! While it lives, the C++ locale of the process groups the digits of numbers. */
class GroupingLocale
{
public:
    GroupingLocale()
        : m_before(std::locale::global(
            std::locale(std::locale(std::locale::classic(), new Grouping<char>), new Grouping<wchar_t>)))
    {
    }

    ~GroupingLocale()
    {
        std::locale::global(m_before);
    }

    GroupingLocale(const GroupingLocale &) = delete;
    GroupingLocale &operator=(const GroupingLocale &) = delete;

private:
    std::locale m_before;
};

QString levelName(int logLevel)
{
    const auto &name = log4cplus::getLogLevelManager().toString(logLevel);
    return QString::fromStdString(std::string(name.begin(), name.end()));
}

log4cplus::Logger log4cplusLogger(const std::string &name)
{
    return log4cplus::Logger::getInstance(log4cplus::tstring(name.begin(), name.end()));
}

QString consoleRecord(const QString &message)
{
    return QStringLiteral("\\n\\[Process: \\d+ Thread: (0x)?[0-9a-fA-F]+\\([^)]*\\) Time: \\d+\\] ")
        + QRegularExpression::escape(message);
}

/*! The form of what initLogger() logs, on a console. */
QString bannerOnConsole()
{
    QString form;
    for (const QString &start : {u"initLogger: Current time (UTC): "_qs, u"initLogger: Zyx Grainlab 6 Version: "_qs,
                                 u"initLogger: UserID: "_qs, u"initLogger: ZyxFramework version: "_qs,
                                 u"CStorageLocation::logInformation: Preferences file path: "_qs,
                                 u"CStorageLocation::logInformation: Data directory: "_qs,
                                 u"CStorageLocation::logInformation: CafDb file path: "_qs,
                                 u"CStorageLocation::logInformation: Caf modules path: "_qs}) {
        form += consoleRecord(u"ZYX_zglv6::" + start) + u"[^\n]*";
    }
    return form;
}

bool isMatch(const QString &text, const QString &form)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(form)).match(text).hasMatch();
}

} // namespace

class tst_LoggerWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loggerInstance_isNullBeforeInitLogger();
    void assertion_withoutLogger_reachesOnlyTheDebugChannel();

    void initLogger_ofFileType_namesItsFileOnTheStandardOutput();
    void initLogger_ofConsoleType_saysSoOnTheStandardOutput();
    void initLogger_ofEveryTypeButTheFiles_meansTheConsole_data();
    void initLogger_ofEveryTypeButTheFiles_meansTheConsole();
    void initLogger_writesBannerAndStorageLocationsInOrder();
    void initLogger_withoutDataDirectory_throwsAndMakesNoLogger_data();
    void initLogger_withoutDataDirectory_throwsAndMakesNoLogger();
    void initLogger_whenAllIsWell_reportsNothing_data();
    void initLogger_whenAllIsWell_reportsNothing();
    void versions_areByDefaultTheseTwo();
    void initLogger_doesNotAskWhetherLoggingIsEnabled();
    void initLogger_startsNoThread();

    void initLogger_fileAfterFile_goesOnWithTheFirstFile();
    void initLogger_fileAfterConsole_goesOnWithTheConsole();
    void initLogger_consoleAfterFile_reportsAndReplaces();
    void initLogger_consoleAfterConsole_reportsAndReplaces();

    void threshold_isTheFirstLetterOfTheLevelText_data();
    void threshold_isTheFirstLetterOfTheLevelText();
    void log_mapsTheLetterToALevel_data();
    void log_mapsTheLetterToALevel();
    void log_belowTheThreshold_doesNotReadTheMessage();

    void fileRecord_hasTheFormOfTheTtccLayout();
    void fileRecord_showsThreadAndNestedContext();
    void fileLogger_bearsTheNameOfItsFileAndOneAppender();
    void fileRecord_bearsItsPlaceInTheSource();
    void fileRecord_isInTheFileWhenLogReturns();
    void fileRecord_keepsLineFeedsAndLongMessages();
    void fileRecord_isUtf8_data();
    void fileRecord_isUtf8();
    void fileRecord_ofBrokenUtf8_arrivesAndSoDoTheNext_data();
    void fileRecord_ofBrokenUtf8_arrivesAndSoDoTheNext();
    void fileRecord_underAForeignLocale_hasPlainNumbers();
    void fileLog_mayHaveAnyNameAndFolder();
    void fileLog_takesRecordsFromManyThreads();
    void fileLog_makesAMissingFolder();
    void fileLog_takesRecordsOfTheProgramsStaticObjects();

    void consoleRecord_startsWithALineFeedAndEndsWithTheMessage();
    void consoleRecord_namesTheThread();
    void consoleRecord_underAForeignLocale_hasPlainNumbers();
    void consoleLog_ignoresTheLevel();
    void consoleLog_takesRecordsFromManyThreads();

private:
    void setDataDirectory() const;
    QString logPath(const QString &fileName) const;

    TestSupport::Sandbox m_sandbox;
};

void tst_LoggerWrapper::setDataDirectory() const
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
}

QString tst_LoggerWrapper::logPath(const QString &fileName) const
{
    return m_sandbox.filePath(u"data/Logs/" + fileName);
}

void tst_LoggerWrapper::loggerInstance_isNullBeforeInitLogger()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(loggerInstance() == nullptr);
    setDataDirectory();
    CStorageLocation::loggerFilesPath();
    QVERIFY(loggerInstance() == nullptr);
    initLogger(u"run"_qs, LoggerTypeFile);
    QVERIFY(loggerInstance() != nullptr);
}

void tst_LoggerWrapper::assertion_withoutLogger_reachesOnlyTheDebugChannel()
{
    RUN_IN_FRESH_PROCESS();
    const CapturedOutput output;
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(u"^ASSERT_X_RETURN in .*tst_LoggerWrapper\\.cpp line \\d+: text$"_qs));
    bool isLeft = true;
    [&isLeft] {
        ASSERT_X_RETURN(false, "text");
        isLeft = false;
    }();
    QVERIFY(isLeft);
    QVERIFY(loggerInstance() == nullptr);
    QCOMPARE(output.text(), QString());
}

void tst_LoggerWrapper::initLogger_ofFileType_namesItsFileOnTheStandardOutput()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    const CapturedOutput output;
    initLogger(u"run"_qs, LoggerTypeFile);
    QCOMPARE(output.text(), u"Initializing logger in " + CStorageLocation::loggerFilesPath() + u" / run.txt\n");
    QVERIFY(QFileInfo::exists(logPath(u"run.txt"_qs)));
}

void tst_LoggerWrapper::initLogger_ofConsoleType_saysSoOnTheStandardOutput()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    const CapturedOutput output;
    initLogger(u"run"_qs, LoggerTypeConsole);
    QVERIFY2(isMatch(output.text(), u"Initializing logger to console output\\n"_qs + bannerOnConsole()),
             qPrintable(output.text()));
    QVERIFY(QDir(logPath(QString())).isEmpty());
}

void tst_LoggerWrapper::initLogger_ofEveryTypeButTheFiles_meansTheConsole_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
    QTest::newRow("1000") << 1000;
    QTest::newRow("-1") << -1;
}

void tst_LoggerWrapper::initLogger_ofEveryTypeButTheFiles_meansTheConsole()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(int, type);
    QCOMPARE(int(LoggerTypeFile), 0);
    setDataDirectory();
    const CapturedOutput output;
    initLogger(u"run"_qs, static_cast<LoggerType>(type));
    QVERIFY2(output.text().startsWith(u"Initializing logger to console output\n"), qPrintable(output.text()));
    QVERIFY(QDir(logPath(QString())).isEmpty());
}

void tst_LoggerWrapper::initLogger_writesBannerAndStorageLocationsInOrder()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    CStorageLocation::setPreferencesFilePath(u"somewhere/Preferences.ini"_qs);
    CStorageLocation::setCafModulesPath(u"somewhere/Modules"_qs);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    initLogger(u"run"_qs, LoggerTypeFile);
    const QDateTime after = QDateTime::currentDateTimeUtc();

    QStringList records = readRecords(logPath(u"run.txt"_qs));
    QCOMPARE(records.size(), 1 + bannerAndLocations);
    const QString time = records.takeAt(1);
    const QString timeStart = u"DEBUG ZYX_zglv6::initLogger: Current time (UTC): "_qs;
    QVERIFY2(QRegularExpression(u"^"_qs + QRegularExpression::escape(timeStart)
                                + u"\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ$")
                 .match(time)
                 .hasMatch(),
             qPrintable(time));
    const QDateTime written = QDateTime::fromString(time.mid(timeStart.size()), Qt::ISODate);
    QVERIFY(written >= before.addMSecs(-before.time().msec()));
    QVERIFY(written <= after);

    const QString locations = u"DEBUG ZYX_zglv6::CStorageLocation::logInformation: "_qs;
    QCOMPARE(records,
             QStringList({u"INFO Logger::getInstance(ZyxLogger)"_qs,
                          u"DEBUG ZYX_zglv6::initLogger: Zyx Grainlab 6 Version: "_qs + QStringLiteral(PRODUCT_VERSION),
                          u"DEBUG ZYX_zglv6::initLogger: UserID: "_qs + getUserID(),
                          u"DEBUG ZYX_zglv6::initLogger: ZyxFramework version: "_qs + QStringLiteral(FRAMEWORK_VERSION),
                          locations + u"Preferences file path: somewhere/Preferences.ini",
                          locations + u"Data directory: " + CStorageLocation::getCurrentDataDirectory(),
                          locations + u"CafDb file path: ", locations + u"Caf modules path: somewhere/Modules"}));
}

void tst_LoggerWrapper::initLogger_withoutDataDirectory_throwsAndMakesNoLogger_data()
{
    QTest::addColumn<LoggerType>("type");

    QTest::newRow("file") << LoggerTypeFile;
    QTest::newRow("console") << LoggerTypeConsole;
}

void tst_LoggerWrapper::initLogger_withoutDataDirectory_throwsAndMakesNoLogger()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(LoggerType, type);
    const CapturedOutput output;
    QString thrown;
    try {
        initLogger(u"run"_qs, type);
    } catch (const std::runtime_error &error) {
        thrown = QString::fromUtf8(error.what());
    }
    QCOMPARE(thrown, u"Data directory is not set"_qs);
    QVERIFY(loggerInstance() == nullptr);
    QCOMPARE(output.text(), QString());

    setDataDirectory(); // the failure leaves nothing behind that would be in the way
    initLogger(u"run"_qs, type);
    QVERIFY(loggerInstance() != nullptr);
}

void tst_LoggerWrapper::initLogger_whenAllIsWell_reportsNothing_data()
{
    QTest::addColumn<bool>("isFolderMissing");
    QTest::addColumn<int>("calls");

    QTest::newRow("folder is there") << false << 1;
    QTest::newRow("folder is missing") << true << 1;
    QTest::newRow("already initialized") << false << 2;
}

void tst_LoggerWrapper::initLogger_whenAllIsWell_reportsNothing()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(bool, isFolderMissing);
    QFETCH(int, calls);
    setDataDirectory();
    const QString folder = CStorageLocation::loggerFilesPath();
    if (isFolderMissing) {
        QVERIFY(QDir(m_sandbox.filePath(u"data"_qs)).removeRecursively());
    }
    QCOMPARE(QFileInfo::exists(folder), !isFolderMissing);
    const CapturedReports reports;
    for (int call = 0; call < calls; ++call) {
        initLogger(u"run"_qs, LoggerTypeFile);
    }
    QCOMPARE(CapturedReports::texts(), QStringList());
    ASSERT(calls == 0); // and a report would have been seen
    QCOMPARE(CapturedReports::texts().size(), 1);
}

void tst_LoggerWrapper::versions_areByDefaultTheseTwo()
{
    QCOMPARE(QStringLiteral(PRODUCT_VERSION_BY_DEFAULT), u"6.4.0.314"_qs);
    QCOMPARE(QStringLiteral(FRAMEWORK_VERSION_BY_DEFAULT), u"10.0.12.220711210"_qs);
}

void tst_LoggerWrapper::initLogger_doesNotAskWhetherLoggingIsEnabled()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    setSettingsValue(loggerEnabledKey, u"0"_qs);
    QVERIFY(!isLoggerEnabled());
    initLogger(u"run"_qs, LoggerTypeFile);
    QVERIFY(loggerInstance() != nullptr);
    loggerInstance()->log('D', "written all the same");
    QCOMPARE(readHostRecords(logPath(u"run.txt"_qs)), QStringList(u"DEBUG written all the same"_qs));
}

void tst_LoggerWrapper::initLogger_startsNoThread()
{
    if (LogTestSystem::threadCount() == 0) {
        QSKIP("The threads of a process can't be counted here.");
    }
    LogHost host({u"threadCount="_qs, u"data="_qs + m_sandbox.filePath(u"threadCount"_qs), u"file=run"_qs,
                  u"log=D:text"_qs, u"threadCount="_qs, u"console=run"_qs, u"log=D:text"_qs, u"threadCount="_qs});
    QCOMPARE(host.finish(), 0);
    QStringList counts = QString::fromUtf8(host.output()).split(u'\n').filter(u"threads: "_qs);
    QCOMPARE(counts.size(), 3);
    QCOMPARE(counts.removeDuplicates(), 2);
}

void tst_LoggerWrapper::initLogger_fileAfterFile_goesOnWithTheFirstFile()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"first"_qs, LoggerTypeFile);
    const ILoggerInterface *logger = loggerInstance();
    const QStringList before = readRecords(logPath(u"first.txt"_qs));

    initLogger(u"second"_qs, LoggerTypeFile);
    initLogger(u"first"_qs, LoggerTypeFile);
    QCOMPARE(loggerInstance(), logger);
    QCOMPARE(QDir(logPath(QString())).entryList(QDir::Files),
             QStringList(u"first.txt"_qs)); // none new, none rolled over

    const QStringList records = readRecords(logPath(u"first.txt"_qs));
    QCOMPARE(records.size(), 1 + bannerAndLocations + 2 * (1 + bannerAndLocations));
    for (const int start : {1 + bannerAndLocations, 2 * (1 + bannerAndLocations)}) {
        QCOMPARE(
            records.at(start),
            u"DEBUG `anonymous-namespace'::CLoggerWrapper::initializeLogger: Logger is initialized several times"_qs);
        QVERIFY(records.at(start + 1).startsWith(u"DEBUG ZYX_zglv6::initLogger: Current time (UTC): "));
        QCOMPARE(records.mid(start + 2, bannerAndLocations - 1), before.mid(2));
    }
}

void tst_LoggerWrapper::initLogger_fileAfterConsole_goesOnWithTheConsole()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"first"_qs, LoggerTypeConsole);
    const ILoggerInterface *logger = loggerInstance();
    const CapturedOutput output;
    initLogger(u"second"_qs, LoggerTypeFile);
    QCOMPARE(loggerInstance(), logger);
    QVERIFY(QDir(logPath(QString())).isEmpty());
    const QString announcement
        = u"Initializing logger in "_qs + CStorageLocation::loggerFilesPath() + u" / second.txt\n";
    QVERIFY2(isMatch(output.text(),
                     QRegularExpression::escape(announcement)
                         + consoleRecord(u"`anonymous-namespace'::CLoggerWrapper::initializeLogger: "
                                         "Logger is initialized several times"_qs)
                         + bannerOnConsole()),
             qPrintable(output.text()));
}

void tst_LoggerWrapper::initLogger_consoleAfterFile_reportsAndReplaces()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    const QString path = logPath(u"run.txt"_qs);
    const CapturedOutput output;
    const QString report
        = u"ASSERT_X_RETURN in .*LoggerWrapper\\.cpp line \\d+: Logger is initialized several times$"_qs;
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u'^' + report));
    initLogger(u"run"_qs, LoggerTypeConsole);
    loggerInstance()->log('D', "text");

    QVERIFY2(isMatch(output.text(),
                     u"Initializing logger to console output\\n"_qs + bannerOnConsole() + consoleRecord(u"text"_qs)),
             qPrintable(output.text()));
    const QStringList inFile = readHostRecords(path);
    QCOMPARE(inFile.size(), 1);
    const QString form = u"^ERROR `anonymous-namespace'::CConsoleLoggerWrapper::initializeLogger: "_qs + report;
    QVERIFY2(QRegularExpression(form).match(inFile.first()).hasMatch(), qPrintable(inFile.first()));
}

void tst_LoggerWrapper::initLogger_consoleAfterConsole_reportsAndReplaces()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeConsole);
    const ILoggerInterface *const before = loggerInstance();
    const CapturedOutput output;
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(u"^ASSERT_X_RETURN in .*: Logger is initialized several times$"_qs));
    initLogger(u"run"_qs, LoggerTypeConsole);
    const QString report = consoleRecord(u"`anonymous-namespace'::CConsoleLoggerWrapper::initializeLogger: "
                                         "ASSERT_X_RETURN in "_qs)
        + u"[^\\n]*LoggerWrapper\\.cpp line \\d+: Logger is initialized several times";
    QVERIFY2(isMatch(output.text(), u"Initializing logger to console output\\n"_qs + report + bannerOnConsole()),
             qPrintable(output.text()));
    QVERIFY(loggerInstance() != nullptr);
    QVERIFY(loggerInstance() != before);
}

void tst_LoggerWrapper::threshold_isTheFirstLetterOfTheLevelText_data()
{
    QTest::addColumn<QString>("level");
    QTest::addColumn<int>("threshold");
    QTest::addColumn<QString>("passing");

    QTest::newRow("none set") << QString() << 10000 << u"DIWEF"_qs;
    QTest::newRow("D") << u"D"_qs << 10000 << u"DIWEF"_qs;
    QTest::newRow("I") << u"I"_qs << 20000 << u"IWEF"_qs;
    QTest::newRow("W") << u"W"_qs << 30000 << u"WEF"_qs;
    QTest::newRow("E") << u"E"_qs << 40000 << u"EF"_qs;
    QTest::newRow("F") << u"F"_qs << 50000 << u"F"_qs;
    QTest::newRow("A") << u"A"_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("d") << u"d"_qs << 10000 << u"DIWEF"_qs;
    QTest::newRow("i") << u"i"_qs << 20000 << u"IWEF"_qs;
    QTest::newRow("w") << u"w"_qs << 30000 << u"WEF"_qs;
    QTest::newRow("e") << u"e"_qs << 40000 << u"EF"_qs;
    QTest::newRow("f") << u"f"_qs << 50000 << u"F"_qs;
    QTest::newRow("a") << u"a"_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("unknown letter") << u"X"_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("digit") << u"3"_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("blank before the letter") << u" F"_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("word") << u"warning"_qs << 30000 << u"WEF"_qs;
    QTest::newRow("empty") << u""_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("Latin-1 letter") << u"\u00c9"_qs << 0 << u"DIWEF"_qs;
    QTest::newRow("letter above 255 that ends in the bits of F") << u"\u0146"_qs << 0 << u"DIWEF"_qs;
}

void tst_LoggerWrapper::threshold_isTheFirstLetterOfTheLevelText()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(QString, level);
    QFETCH(int, threshold);
    QFETCH(QString, passing);
    setDataDirectory();
    if (!level.isNull()) {
        setSettingsValue(loggerLevelKey, level);
    }
    initLogger(u"run"_qs, LoggerTypeFile);
    QCOMPARE(log4cplusLogger("run.txt").getLogLevel(), threshold);

    const bool isInfoEnabled = threshold <= 20000;
    const QStringList own = readRecords(logPath(u"run.txt"_qs));
    QCOMPARE(own.value(0), isInfoEnabled ? u"INFO Logger::getInstance(ZyxLogger)"_qs : QString());
    QCOMPARE(own.size(), threshold <= 10000 ? 1 + bannerAndLocations : int(isInfoEnabled));

    for (const char letter : {'D', 'I', 'W', 'E', 'F'}) {
        loggerInstance()->log(letter, std::string(1, letter).c_str());
    }
    QString passed;
    for (const QString &record : readHostRecords(logPath(u"run.txt"_qs))) {
        passed += record.back();
    }
    QCOMPARE(passed, passing);
}

void tst_LoggerWrapper::log_mapsTheLetterToALevel_data()
{
    QTest::addColumn<char>("letter");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");

    QTest::newRow("D") << 'D' << u"DEBUG"_qs << 10000;
    QTest::newRow("I") << 'I' << u"INFO"_qs << 20000;
    QTest::newRow("W") << 'W' << u"WARN"_qs << 30000;
    QTest::newRow("E") << 'E' << u"ERROR"_qs << 40000;
    QTest::newRow("F") << 'F' << u"FATAL"_qs << 50000;
    QTest::newRow("d") << 'd' << u"DEBUG"_qs << 10000;
    QTest::newRow("i") << 'i' << u"INFO"_qs << 20000;
    QTest::newRow("w") << 'w' << u"WARN"_qs << 30000;
    QTest::newRow("e") << 'e' << u"ERROR"_qs << 40000;
    QTest::newRow("f") << 'f' << u"FATAL"_qs << 50000;
    QTest::newRow("A is no letter of a message") << 'A' << u"INFO"_qs << 20000;
    QTest::newRow("X") << 'X' << u"INFO"_qs << 20000;
    QTest::newRow("zero") << '\0' << u"INFO"_qs << 20000;
    QTest::newRow("beyond ASCII") << '\xe9' << u"INFO"_qs << 20000;
}

void tst_LoggerWrapper::log_mapsTheLetterToALevel()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(char, letter);
    QFETCH(QString, name);
    QFETCH(int, value);
    setDataDirectory();
    setSettingsValue(loggerLevelKey, u"X"_qs); // everything passes
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log(letter, "text");
    QCOMPARE(readHostRecords(logPath(u"run.txt"_qs)), QStringList(name + u" text"));
    QCOMPARE(levelName(value), name);
}

void tst_LoggerWrapper::log_belowTheThreshold_doesNotReadTheMessage()
{
    RUN_IN_FRESH_PROCESS();
    const char *const unreadable = LogTestSystem::unreadableText();
    QVERIFY(unreadable != nullptr);
    setDataDirectory();
    setSettingsValue(loggerLevelKey, u"F"_qs);
    initLogger(u"run"_qs, LoggerTypeFile);
    for (const char letter : {'D', 'I', 'W', 'E', 'X'}) {
        loggerInstance()->log(letter, unreadable); // reading it would end the process
    }
    QCOMPARE(readLog(logPath(u"run.txt"_qs)), QByteArray());
}

void tst_LoggerWrapper::fileRecord_hasTheFormOfTheTtccLayout()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('W', "text with  blanks ");
    const QByteArray text = readLog(logPath(u"run.txt"_qs));
    QVERIFY(text.endsWith('\n'));
    const QStringList lines = QString::fromUtf8(text).chopped(1).split(u'\n');
    QCOMPARE(lines.size(), 1 + bannerAndLocations + 1);

    const QRegularExpression form(u"^(\\d+) \\[(\\d+)\\] (DEBUG|INFO|WARN) run\\.txt <> - (.*)$"_qs);
    qint64 lastTime = 0;
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = form.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        const qint64 time = match.captured(1).toLongLong(); // since the logging system started, so a small number
        QVERIFY(time >= lastTime);
        QVERIFY(time < QDateTime::currentMSecsSinceEpoch() / 2);
        lastTime = time;
    }
    QVERIFY2(lines.last().endsWith(u"] WARN run.txt <> - text with  blanks "), qPrintable(lines.last()));
}

void tst_LoggerWrapper::fileRecord_showsThreadAndNestedContext()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    setSettingsValue(loggerLevelKey, u"E"_qs);
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('E', "here");
    std::thread([] { loggerInstance()->log('E', "there"); }).join();
    log4cplus::getNDC().push(LOG4CPLUS_TEXT("roll 7"));
    loggerInstance()->log('E', "here");
    log4cplus::getNDC().pop();

    const QRegularExpression form(u"^\\d+ \\[(\\d+)\\] ERROR run\\.txt <(.*)> - (.*)$"_qs);
    QStringList threads;
    QStringList contexts;
    const QStringList lines = QString::fromUtf8(readLog(logPath(u"run.txt"_qs))).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        threads.append(form.match(line).captured(1));
        contexts.append(form.match(line).captured(2) + u'/' + form.match(line).captured(3));
    }
    QCOMPARE(contexts, QStringList({u"/here"_qs, u"/there"_qs, u"roll 7/here"_qs}));
    QVERIFY(threads.at(0) != threads.at(1));
    QCOMPARE(threads.at(0), threads.at(2));
}

void tst_LoggerWrapper::fileLogger_bearsTheNameOfItsFileAndOneAppender()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    QVERIFY(log4cplus::Logger::exists(LOG4CPLUS_TEXT("run.txt")));
    QVERIFY(!log4cplus::Logger::exists(LOG4CPLUS_TEXT("run")));
    QCOMPARE(log4cplusLogger("run.txt").getAllAppenders().size(), 1U);
    const auto appender = log4cplusLogger("run.txt").getAppender(LOG4CPLUS_TEXT("ZyxAppender"));
    QVERIFY(dynamic_cast<ZyxRollingFileAppender *>(appender.get()) != nullptr);
}

void tst_LoggerWrapper::fileRecord_bearsItsPlaceInTheSource()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    auto *const appender = new SourceAppender; // the logger owns it
    log4cplusLogger("run.txt").addAppender(log4cplus::SharedAppenderPtr(appender));
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('E', "text");
    QCOMPARE(appender->sources.size(), std::size_t(1 + bannerAndLocations + 1));
    QCOMPARE(appender->sources.front().message, u"Logger::getInstance(ZyxLogger)"_qs);
    QCOMPARE(appender->sources.back().message, u"text"_qs);
    for (const SourceAppender::Source &source : appender->sources) {
        QVERIFY2(source.file.endsWith(u"LoggerWrapper.cpp"), qPrintable(source.file));
        QVERIFY(source.line > 0);
    }
    QVERIFY(appender->sources.front().line != appender->sources.back().line);
}

void tst_LoggerWrapper::fileRecord_isInTheFileWhenLogReturns()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    QStringList expected;
    for (int record = 0; record < 20; ++record) {
        loggerInstance()->log('D', std::to_string(record).c_str());
        expected.append(u"DEBUG "_qs + QString::number(record));
        QCOMPARE(readHostRecords(logPath(u"run.txt"_qs)), expected);
    }
}

void tst_LoggerWrapper::fileRecord_keepsLineFeedsAndLongMessages()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    setSettingsValue(loggerLevelKey, u"E"_qs);
    initLogger(u"run"_qs, LoggerTypeFile);
    QByteArray message = "first line\nsecond line\n\nend of " + QByteArray(1'000'000, 'x');
    loggerInstance()->log('E', message.constData());
    loggerInstance()->log('E', "");
    const QList<QByteArray> parts = readLog(logPath(u"run.txt"_qs)).split('>');
    QCOMPARE(parts.size(), 3);
    QVERIFY(parts.at(1).startsWith(QByteArray(" - " + message + "\n")));
    QCOMPARE(parts.at(2), QByteArray(" - \n"));
}

void tst_LoggerWrapper::fileRecord_isUtf8_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("Cyrillic, Chinese and French") << u"\u041f\u043b\u0451\u043d\u043a\u0430 \u5199\u771f \u00e9"_qs;
    QTest::newRow("all of Latin-1") << u"\u0080\u0085\u0090\u009f\u00a0\u00bf\u00c0\u00d7\u00ff"_qs;
    QTest::newRow("beyond the first 65,536") << u"\U0001F39E film \U0010FFFF"_qs;
    QTest::newRow("every place in the stream's buffer") << u"\U0001F39E\u00e9"_qs.repeated(5000);
}

void tst_LoggerWrapper::fileRecord_isUtf8()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(QString, message);
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('E', "before");
    loggerInstance()->log('E', message.toUtf8().constData());
    loggerInstance()->log('E', "after");
    QCOMPARE(readHostRecords(logPath(u"run.txt"_qs)),
             QStringList({u"ERROR before"_qs, u"ERROR "_qs + message, u"ERROR after"_qs}));
}

void tst_LoggerWrapper::fileRecord_ofBrokenUtf8_arrivesAndSoDoTheNext_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QString>("form");

    QTest::newRow("bytes of no character") << QByteArray("\xff\xfe") << u"\uFFFD{2}"_qs;
    QTest::newRow("cut after one of two") << QByteArray("a\xc3") << u"a\uFFFD+"_qs;
    QTest::newRow("cut after two of three") << QByteArray("a\xe5\x86") << u"a\uFFFD+"_qs;
    QTest::newRow("cut after three of four") << QByteArray("a\xf0\x9f\x8e") << u"a\uFFFD+"_qs;
    QTest::newRow("cut before a character") << QByteArray("a\xe5\x86z") << u"a\uFFFD+z"_qs;
    QTest::newRow("rest of a character") << QByteArray("a\x86z") << u"a\uFFFDz"_qs;
    QTest::newRow("half a pair") << QByteArray("a\xed\xa0\xbcz") << u"a\uFFFD+z"_qs;
    QTest::newRow("too many bytes for a character") << QByteArray("a\xc0\xafz") << u"a\uFFFD+z"_qs;
}

void tst_LoggerWrapper::fileRecord_ofBrokenUtf8_arrivesAndSoDoTheNext()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(QByteArray, message);
    QFETCH(QString, form);
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('E', message.constData());
    loggerInstance()->log('E', "after");
    const QStringList records = readHostRecords(logPath(u"run.txt"_qs)); // what is no UTF-8 reads as U+FFFD
    QCOMPARE(records.size(), 2);
    QVERIFY2(isMatch(records.at(0), u"ERROR "_qs + form), qPrintable(records.at(0)));
    QCOMPARE(records.at(1), u"ERROR after"_qs);

    const bool areBytesKept = std::is_same_v<log4cplus::tchar, char>;
    const QByteArray written = readLog(logPath(u"run.txt"_qs));
    QCOMPARE(written.contains(QByteArray(" - " + message + '\n')), areBytesKept);
    QCOMPARE(written.contains("\xEF\xBF\xBD"), !areBytesKept);
}

void tst_LoggerWrapper::fileRecord_underAForeignLocale_hasPlainNumbers()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    const GroupingLocale locale;
    initLogger(u"run"_qs, LoggerTypeFile);
    // a record of the day after tomorrow, so that its time has many digits
    const log4cplus::spi::InternalLoggingEvent event(LOG4CPLUS_TEXT("run.txt"), log4cplus::ERROR_LOG_LEVEL, {}, {},
                                                     LOG4CPLUS_TEXT("text"), LOG4CPLUS_TEXT("1"), LOG4CPLUS_TEXT("1"),
                                                     log4cplus::helpers::now() + std::chrono::hours(48), {}, 0);
    log4cplusLogger("run.txt").callAppenders(event);
    const QByteArray text = readLog(logPath(u"run.txt"_qs));
    QVERIFY2(isMatch(QString::fromUtf8(text.split('\n').value(1 + bannerAndLocations)),
                     u"\\d{9,} \\[1\\] ERROR run\\.txt <> - text"_qs),
             text.constData());
}

void tst_LoggerWrapper::fileLog_mayHaveAnyNameAndFolder()
{
    RUN_IN_FRESH_PROCESS();
    const QString name = u"\u041f\u043b\u0451\u043d\u043a\u0430 \u5199\u771f \u00e9"_qs;
    CStorageLocation::setDataDirectory(m_sandbox.filePath(name));
    initLogger(name, LoggerTypeFile);
    loggerInstance()->log('E', "text");
    const QString path = m_sandbox.filePath(name + u"/Logs/" + name + u".txt");
    QVERIFY(QFileInfo::exists(path));
    QCOMPARE(readHostRecords(path), QStringList(u"ERROR text"_qs));
    QVERIFY(readLog(path).contains((u"] ERROR "_qs + name + u".txt <> - text\n").toUtf8()));
}

void tst_LoggerWrapper::fileLog_takesRecordsFromManyThreads()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeFile);
    constexpr int threadCount = 8;
    constexpr int recordsOfAThread = 200;
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([thread] {
            for (int record = 0; record < recordsOfAThread; ++record) {
                loggerInstance()->log('W', (std::to_string(thread) + ' ' + std::to_string(record)).c_str());
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    const QStringList records = readHostRecords(logPath(u"run.txt"_qs));
    QCOMPARE(records.size(), threadCount * recordsOfAThread);
    for (int thread = 0; thread < threadCount; ++thread) {
        const QStringList own = records.filter(u"WARN %1 "_qs.arg(thread));
        for (int record = 0; record < recordsOfAThread; ++record) {
            QCOMPARE(own.value(record), u"WARN %1 %2"_qs.arg(thread).arg(record));
        }
    }
}

void tst_LoggerWrapper::fileLog_makesAMissingFolder()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    QVERIFY(QDir(CStorageLocation::loggerFilesPath()).exists());
    QVERIFY(QDir(m_sandbox.filePath(u"data"_qs)).removeRecursively());
    initLogger(u"run"_qs, LoggerTypeFile);
    loggerInstance()->log('E', "text");
    QCOMPARE(readHostRecords(logPath(u"run.txt"_qs)), QStringList(u"ERROR text"_qs)); // and no report
}

void tst_LoggerWrapper::fileLog_takesRecordsOfTheProgramsStaticObjects()
{
    const QString data = m_sandbox.filePath(u"farewell"_qs);
    QCOMPARE(runLogHost({u"data="_qs + data, u"file=run"_qs, u"logAtTheEnd=farewell"_qs, u"log=E:text"_qs}), 0);
    QCOMPARE(readHostRecords(data + u"/Logs/run.txt"), QStringList({u"ERROR text"_qs, u"ERROR farewell"_qs}));
}

void tst_LoggerWrapper::consoleRecord_startsWithALineFeedAndEndsWithTheMessage()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeConsole);
    QThread::currentThread()->setObjectName(u"main thread"_qs);
    const CapturedOutput output;
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    loggerInstance()->log('W', "\u041f text\nof two lines");
    const qint64 after = QDateTime::currentMSecsSinceEpoch();

    std::ostringstream thread;
    thread << QThread::currentThreadId();
    const QString start = u"\n[Process: %1 Thread: %2(main thread) Time: "_qs.arg(
        QString::number(QCoreApplication::applicationPid()), QString::fromStdString(thread.str()));
    const QString end = u"] \u041f text\nof two lines"_qs;
    QVERIFY2(output.text().startsWith(start) && output.text().endsWith(end), qPrintable(output.text()));
    const qint64 time = output.text().chopped(end.size()).mid(start.size()).toLongLong();
    QVERIFY(before <= time && time <= after);
    QCOMPARE(output.text(), start + QString::number(time) + end);
}

void tst_LoggerWrapper::consoleRecord_namesTheThread()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    initLogger(u"run"_qs, LoggerTypeConsole);
    const CapturedOutput output;
    std::thread([] {
        loggerInstance()->log('D', "a");
        QThread::currentThread()->setObjectName(u"painter"_qs);
        loggerInstance()->log('D', "b");
    }).join();

    const QString form = u"\\n\\[Process: \\d+ Thread: ((?:0x)?[0-9a-fA-F]+)\\(\\) Time: \\d+\\] a"
                         "\\n\\[Process: \\d+ Thread: \\1\\(painter\\) Time: \\d+\\] b"_qs;
    const QRegularExpressionMatch match
        = QRegularExpression(QRegularExpression::anchoredPattern(form)).match(output.text());
    QVERIFY2(match.hasMatch(), qPrintable(output.text()));
    std::ostringstream mainThread;
    mainThread << QThread::currentThreadId();
    QVERIFY(match.captured(1).toStdString() != mainThread.str());
}

void tst_LoggerWrapper::consoleRecord_underAForeignLocale_hasPlainNumbers()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    const GroupingLocale locale;
    const CapturedOutput output; // has the locale of its making
    initLogger(u"run"_qs, LoggerTypeConsole);
    loggerInstance()->log('D', "text");
    QVERIFY2(isMatch(output.text(),
                     u"Initializing logger to console output\\n"_qs + bannerOnConsole() + consoleRecord(u"text"_qs)),
             qPrintable(output.text()));
    QVERIFY(output.text().contains(u"[Process: " + QString::number(QCoreApplication::applicationPid()) + u' '));
}

void tst_LoggerWrapper::consoleLog_ignoresTheLevel()
{
    RUN_IN_FRESH_PROCESS();
    setDataDirectory();
    setSettingsValue(loggerLevelKey, u"F"_qs);
    initLogger(u"run"_qs, LoggerTypeConsole);
    const CapturedOutput output;
    QString form;
    for (const char letter : {'D', 'I', 'W', 'E', 'F', 'x'}) {
        loggerInstance()->log(letter, std::string(1, letter).c_str());
        form += consoleRecord(QString(QLatin1Char(letter)));
    }
    QVERIFY2(isMatch(output.text(), form), qPrintable(output.text()));
}

void tst_LoggerWrapper::consoleLog_takesRecordsFromManyThreads()
{
    LogHost host({u"data="_qs + m_sandbox.filePath(u"console"_qs), u"console=run"_qs, u"records=8x200x20"_qs});
    QCOMPARE(host.finish(), 0);
    const QStringList records = QString::fromUtf8(host.output()).split(u'\n').filter(QRegularExpression(u" x+$"_qs));
    const QRegularExpression form(u"^"_qs + consoleRecord(QString()).mid(2) + u"(\\d+:\\d+ )x+$");
    QStringList seen;
    for (const QString &record : records) {
        const QRegularExpressionMatch match = form.match(record);
        QVERIFY2(match.hasMatch(), qPrintable(record)); // no record in another
        seen.append(match.captured(2));
    }
    QCOMPARE(seen.size(), 8 * 200);
    QCOMPARE(seen.removeDuplicates(), 0);
}

QTEST_GUILESS_MAIN(tst_LoggerWrapper)

#include "tst_LoggerWrapper.moc"
