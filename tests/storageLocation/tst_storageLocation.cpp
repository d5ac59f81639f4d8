// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "UserFolders.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QSemaphore>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace ZYX_zglv6;

using Location = QString (*)();

namespace {

const QString separator = QDir::separator();

QString preferencesFilePath()
{
    return CStorageLocation::getCurrentPreferencesFilePath();
}

QString cafModulesPath()
{
    return CStorageLocation::getCafModulesPathCurrent();
}

QString someDataLocation()
{
    return CStorageLocation::dataLocation(u"Any"_qs, CStorageLocation::DataLocationNoFolderCreation);
}

/*! The text of the std::runtime_error that \a function throws; null if it throws none. */
template <typename Function>
QString thrownBy(Function function)
{
    try {
        function();
    } catch (const std::runtime_error &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

/*! The messages of the last \a count lines of the log file \a path, with the blanks at their ends. */
QStringList lastMessages(const QString &path, qsizetype count)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return {};
    }
    QStringList messages = QString::fromUtf8(file.readAll()).chopped(1).split(u'\n');
    messages = messages.mid(messages.size() - count);
    messages.replaceInStrings(QRegularExpression(u"^.* <> - "_qs), QString());
    return messages;
}

/*! What \a location gives to threads that call it at the same time. */
QStringList resultsOfManyThreads(Location location)
{
    constexpr int threadCount = 8;
    std::vector<QString> results(threadCount);
    QSemaphore start; // a std::latch sometimes loses a thread with MinGW
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (QString &result : results) {
        threads.emplace_back([&result, &start, location] {
            start.acquire();
            result = location();
        });
    }
    start.release(threadCount);
    for (std::thread &thread : threads) {
        thread.join();
    }
    return {results.begin(), results.end()};
}

void writeFile(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Text));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

/*! Tests that write among the user's own files; they run where those can be moved away. */
#define SKIP_UNLESS_USER_FOLDERS_ARE_MOVED()                                                                           \
    do {                                                                                                               \
        if (!areUserFoldersMoved()) {                                                                                  \
            QSKIP("The system does not let the user's folders be moved into the test's own.");                         \
        }                                                                                                              \
    } while (false)

class tst_storageLocation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void currentValue_whileUnset_throws_data();
    void currentValue_whileUnset_throws();
    void derivedLocation_withoutDataDirectory_throws_data();
    void derivedLocation_withoutDataDirectory_throws();

    void derivedLocation_liesInTheDataDirectory_data();
    void derivedLocation_liesInTheDataDirectory();
    void derivedLocation_isKeptWhenTheDataDirectoryChanges_data();
    void derivedLocation_isKeptWhenTheDataDirectoryChanges();
    void derivedLocation_ensuresItsFolder_data();
    void derivedLocation_ensuresItsFolder();
    void derivedLocation_computedByManyThreadsAtOnce_isOne_data();
    void derivedLocation_computedByManyThreadsAtOnce_isOne();
    void derivedLocation_inADirectoryThatCanNotBeMade_failsNoCaller_data();
    void derivedLocation_inADirectoryThatCanNotBeMade_failsNoCaller();
    void crashTempFilesPath_makesTheFolderAboveAgain();
    void commonLocation_liesInTheDocumentsAndIsMadeByEveryCall();
    void commonLocation_isKeptWhenTheDocumentsMove();
    void getExecutableDir_isTheProgramsFolder();
    void getExecutableDir_isKeptWhenTheApplicationObjectHasGone();
    void independentLocation_computedByManyThreadsAtOnce_isOne_data();
    void independentLocation_computedByManyThreadsAtOnce_isOne();

    void dataLocation_makesTheFolderIfAsked();
    void dataLocation_followsTheDataDirectory();
    void dataLocation_withEmptySubfolder_reportsAndGoesOn();
    void dataLocation_withoutDataDirectory_throwsBeforeItLooksAtTheSubfolder();
    void dataLocationInUserFolder_liesInTheCompanysFolder_data();
    void dataLocationInUserFolder_liesInTheCompanysFolder();
    void dataLocationInUserFolder_makesTheFolderIfAsked();

    void getDefaultPreferencesFilePath_liesInTheProductsFolder();
    void sessionSingleAppDirectory_isTheFolderForTemporaryFiles();
    void getTimeMachineImagesDir_liesBesideTheProgram();
    void calibrationNames_areFixed();
    void calibrationDefaults_lieInTheCurrentDataDirectory();
    void calibrationDefaults_makeTheirFolderByEveryCall();
    void getSamplePicturesLocation_liesInTheSharedPictures();
    void getSamplePicturesLocation_makesOnlyTheFolderAbove();
    void getSamplePicturesLocation_withoutSharedPictures_isEmpty();
    void cafDataPathOfPrismataLatestVersion_prefersTheNewest();
    void cafDataPathOfPrismataLatestVersion_takesOnlyKnownNames();
    void cafDataPathOfPrismataLatestVersion_passesOverWhatItCanNotRead();

    void setter_logsAndStores_data();
    void setter_logsAndStores();
    void setDataDirectory_cleansThePathAndEndsItInASlash_data();
    void setDataDirectory_cleansThePathAndEndsItInASlash();
    void logInformation_logsAllFourValues();
    void logInformation_withoutLoggerAndValues_doesNothing();

    void initializeFromPreferencesFile_withoutFile_usesTheDefaults();
    void initializeFromPreferencesFile_readsTheFile_data();
    void initializeFromPreferencesFile_readsTheFile();
    void initializeFromPreferencesFile_withAZeroCharacterInAPath_usesTheDefault_data();
    void initializeFromPreferencesFile_withAZeroCharacterInAPath_usesTheDefault();
    void initializeFromPreferencesFile_withEmptyPath_throws();
    void initializeFromPreferencesFile_setsInOrder();
    void getStringFromPreferencesFile_withoutPath_throws();
    void getStringFromPreferencesFile_readsAText_data();
    void getStringFromPreferencesFile_readsAText();

private:
    QString setDataDirectory() const;
    bool areUserFoldersMoved() const;

    TestSupport::Sandbox m_sandbox;
    UserFolders m_userFolders;
};

/*! Sets a data directory of the sandbox and returns it, with the closing "/". */
QString tst_storageLocation::setDataDirectory() const
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    return m_sandbox.filePath(u"data/"_qs);
}

bool tst_storageLocation::areUserFoldersMoved() const
{
    const QString localData = QDir::fromNativeSeparators(CStorageLocation::dataLocationInUserFolder(u"x"_qs, false));
    return localData.startsWith(m_userFolders.localData)
        && QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) == m_userFolders.documents;
}

void tst_storageLocation::initTestCase()
{
    m_userFolders = moveUserFoldersTo(m_sandbox.filePath(QString()));
}

void tst_storageLocation::currentValue_whileUnset_throws_data()
{
    QTest::addColumn<Location>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("preferences file") << &preferencesFilePath << u"Preferences file path not set"_qs;
    QTest::newRow("data directory") << &CStorageLocation::getCurrentDataDirectory << u"Data directory is not set"_qs;
    QTest::newRow("calibration database")
        << &CStorageLocation::getCafDbFilePathCurrent << u"CafDb file path not set"_qs;
    QTest::newRow("calibration modules") << &cafModulesPath << u"CafData path not set"_qs;
}

void tst_storageLocation::currentValue_whileUnset_throws()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, value);
    QFETCH(QString, text);
    QCOMPARE(thrownBy(value), text);

    setDataDirectory();
    CStorageLocation::setPreferencesFilePath(u"a"_qs);
    CStorageLocation::setCafDbFilePath(u"a"_qs);
    CStorageLocation::setCafModulesPath(u"a"_qs);
    QCOMPARE(thrownBy(value), QString());
    CStorageLocation::setPreferencesFilePath(u""_qs);
    CStorageLocation::setCafDbFilePath(u""_qs);
    CStorageLocation::setCafModulesPath(u""_qs);
    const bool isDataDirectory = text == u"Data directory is not set"; // never empty again: it ends in "/"
    QCOMPARE(thrownBy(value), isDataDirectory ? QString() : text);
}

void tst_storageLocation::derivedLocation_withoutDataDirectory_throws_data()
{
    QTest::addColumn<Location>("location");

    QTest::newRow("disk cache") << &CStorageLocation::diskCacheLocation;
    QTest::newRow("preset packs") << &CStorageLocation::packUserStoragePath;
    QTest::newRow("favourites") << &CStorageLocation::favoritePresetPath;
    QTest::newRow("custom colours") << &CStorageLocation::customColorsPath;
    QTest::newRow("presets") << &CStorageLocation::getPresetDir;
    QTest::newRow("logs") << &CStorageLocation::loggerFilesPath;
    QTest::newRow("crash reports") << &CStorageLocation::crashFilesPath;
    QTest::newRow("crash dumps") << &CStorageLocation::crashTempFilesPath;
    QTest::newRow("calibration database") << &CStorageLocation::getCafDbFilePathDefault;
    QTest::newRow("calibration modules") << &CStorageLocation::getCafModulesPathDefault;
    QTest::newRow("any") << &someDataLocation;
}

void tst_storageLocation::derivedLocation_withoutDataDirectory_throws()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, location);
    QCOMPARE(thrownBy(location), u"Data directory is not set"_qs);
    QCOMPARE(thrownBy(location), u"Data directory is not set"_qs);
    const QString data = setDataDirectory(); // a failed call keeps nothing
    QVERIFY(location().startsWith(data));
}

void tst_storageLocation::derivedLocation_liesInTheDataDirectory_data()
{
    QTest::addColumn<Location>("location");
    QTest::addColumn<QString>("below");
    QTest::addColumn<bool>("isEnsuredByEveryCall");

    QTest::newRow("disk cache") << &CStorageLocation::diskCacheLocation << u"DiskCache"_qs << false;
    QTest::newRow("preset packs") << &CStorageLocation::packUserStoragePath << u"PresetPack"_qs << false;
    QTest::newRow("favourites") << &CStorageLocation::favoritePresetPath << u"Favorite"_qs << false;
    QTest::newRow("custom colours") << &CStorageLocation::customColorsPath << u"CustomColors"_qs << false;
    QTest::newRow("presets") << &CStorageLocation::getPresetDir << u"Presets"_qs << true;
    QTest::newRow("logs") << &CStorageLocation::loggerFilesPath << u"Logs"_qs << false;
    QTest::newRow("crash reports") << &CStorageLocation::crashFilesPath << u"CrashReports"_qs << false;
    QTest::newRow("crash dumps") << &CStorageLocation::crashTempFilesPath
                                 << QString(u"CrashReports" + separator + u"temp") << true;
}

void tst_storageLocation::derivedLocation_liesInTheDataDirectory()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, location);
    QFETCH(QString, below);
    const QString data = setDataDirectory();
    QVERIFY(data.endsWith(u'/'));
    QCOMPARE(location(), QString(data + separator + below + separator)); // both separators at the seam
    QCOMPARE(location(), QString(data + separator + below + separator));
}

void tst_storageLocation::derivedLocation_isKeptWhenTheDataDirectoryChanges_data()
{
    derivedLocation_liesInTheDataDirectory_data();
}

void tst_storageLocation::derivedLocation_isKeptWhenTheDataDirectoryChanges()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, location);
    setDataDirectory();
    const QString before = location();
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"other"_qs));
    QCOMPARE(location(), before);
    QVERIFY(!QFileInfo::exists(m_sandbox.filePath(u"other"_qs)));
}

void tst_storageLocation::derivedLocation_ensuresItsFolder_data()
{
    derivedLocation_liesInTheDataDirectory_data();
}

void tst_storageLocation::derivedLocation_ensuresItsFolder()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, location);
    QFETCH(QString, below);
    QFETCH(bool, isEnsuredByEveryCall);
    const QString data = setDataDirectory();
    const QString folder = data + below;
    QVERIFY(!QFileInfo::exists(data)); // setting it makes nothing
    location();
    QVERIFY(QFileInfo(folder).isDir());

    QVERIFY(QDir(folder).removeRecursively());
    location();
    QCOMPARE(QFileInfo(folder).isDir(), isEnsuredByEveryCall);
    QVERIFY(QDir(data).removeRecursively());
    location();
    QCOMPARE(QFileInfo(folder).isDir(), isEnsuredByEveryCall);
}

void tst_storageLocation::derivedLocation_computedByManyThreadsAtOnce_isOne_data()
{
    derivedLocation_liesInTheDataDirectory_data();
}

void tst_storageLocation::derivedLocation_computedByManyThreadsAtOnce_isOne()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, location);
    QFETCH(QString, below);
    const QString data = setDataDirectory();
    const QStringList results = resultsOfManyThreads(location);
    for (const QString &result : results) {
        QCOMPARE(result, QString(data + separator + below + separator));
    }
    QVERIFY(QFileInfo(data + below).isDir());
}

void tst_storageLocation::derivedLocation_inADirectoryThatCanNotBeMade_failsNoCaller_data()
{
    derivedLocation_liesInTheDataDirectory_data();
}

void tst_storageLocation::derivedLocation_inADirectoryThatCanNotBeMade_failsNoCaller()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(Location, location);
    QFETCH(QString, below);
    const QString data = setDataDirectory();
    writeFile(m_sandbox.filePath(u"data"_qs), "a file in place of the folder");
    QCOMPARE(location(), QString(data + separator + below + separator));
    QCOMPARE(location(), QString(data + separator + below + separator));
    QVERIFY(QFileInfo(m_sandbox.filePath(u"data"_qs)).isFile());
}

void tst_storageLocation::crashTempFilesPath_makesTheFolderAboveAgain()
{
    RUN_IN_FRESH_PROCESS();
    const QString data = setDataDirectory();
    QCOMPARE(CStorageLocation::crashTempFilesPath(), QString(CStorageLocation::crashFilesPath() + u"temp" + separator));
    QVERIFY(QDir(data + u"CrashReports").removeRecursively());
    CStorageLocation::crashFilesPath();
    QVERIFY(!QFileInfo::exists(data + u"CrashReports"));
    CStorageLocation::crashTempFilesPath();
    QVERIFY(QFileInfo(data + u"CrashReports/temp").isDir());
}

void tst_storageLocation::commonLocation_liesInTheDocumentsAndIsMadeByEveryCall()
{
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString folder = m_userFolders.documents + u"/Zyx Grainlab 6";
    QVERIFY(!QFileInfo::exists(folder));
    QCOMPARE(
        CStorageLocation::commonLocation(),
        QString(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + separator + u"Zyx Grainlab 6"));
    QVERIFY(QFileInfo(folder).isDir());
    QVERIFY(QDir(folder).removeRecursively());
    CStorageLocation::commonLocation();
    QVERIFY(QFileInfo(folder).isDir());
}

void tst_storageLocation::commonLocation_isKeptWhenTheDocumentsMove()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString before = CStorageLocation::commonLocation();
    moveDocumentsTo(m_sandbox.filePath(u"other"_qs));
    QCOMPARE(QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)),
             QDir(m_sandbox.filePath(u"other/Documents"_qs)));
    QCOMPARE(CStorageLocation::commonLocation(), before);
    QVERIFY(!QFileInfo::exists(m_sandbox.filePath(u"other"_qs)));
}

void tst_storageLocation::getExecutableDir_isTheProgramsFolder()
{
    const QString folder = CStorageLocation::getExecutableDir();
    QCOMPARE(folder, QDir::toNativeSeparators(QDir::cleanPath(QCoreApplication::applicationDirPath())));
    QVERIFY(!folder.endsWith(QDir::separator()));
    QVERIFY(QFileInfo::exists(folder + separator + QFileInfo(QCoreApplication::applicationFilePath()).fileName()));
}

void tst_storageLocation::getExecutableDir_isKeptWhenTheApplicationObjectHasGone()
{
    RUN_IN_FRESH_PROCESS();
    static const QString before = CStorageLocation::getExecutableDir();
    const bool isRegistered
        = std::atexit([] {
              if (QCoreApplication::instance() != nullptr || CStorageLocation::getExecutableDir() != before) {
                  std::_Exit(EXIT_FAILURE); // seen by the process that started this one
              }
          })
        == 0;
    QVERIFY(isRegistered);
}

void tst_storageLocation::independentLocation_computedByManyThreadsAtOnce_isOne_data()
{
    QTest::addColumn<Location>("location");

    QTest::newRow("documents") << &CStorageLocation::commonLocation;
    QTest::newRow("program") << &CStorageLocation::getExecutableDir;
}

void tst_storageLocation::independentLocation_computedByManyThreadsAtOnce_isOne()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    QFETCH(Location, location);
    const QStringList results = resultsOfManyThreads(location);
    QVERIFY(QFileInfo(location()).isDir());
    for (const QString &result : results) {
        QCOMPARE(result, location());
    }
}

void tst_storageLocation::dataLocation_makesTheFolderIfAsked()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(int(CStorageLocation::DataLocationNoFolderCreation), 0);
    QCOMPARE(int(CStorageLocation::DataLocationCreateFolder), 1);
    const QString data = setDataDirectory();
    const QString subfolder = u"a \u0436/b"_qs;
    const QString expected = data + separator + subfolder;
    QCOMPARE(CStorageLocation::dataLocation(subfolder, CStorageLocation::DataLocationNoFolderCreation), expected);
    QVERIFY(!QFileInfo::exists(data));
    for (int call = 0; call < 2; ++call) {
        QCOMPARE(CStorageLocation::dataLocation(subfolder, CStorageLocation::DataLocationCreateFolder), expected);
        QVERIFY(QFileInfo(data + subfolder).isDir());
        QVERIFY(QDir(data).removeRecursively());
    }
}

void tst_storageLocation::dataLocation_followsTheDataDirectory()
{
    RUN_IN_FRESH_PROCESS();
    for (const QString &name : {u"first"_qs, u"second"_qs}) {
        CStorageLocation::setDataDirectory(m_sandbox.filePath(name));
        QCOMPARE(someDataLocation(), QString(m_sandbox.filePath(name) + u'/' + separator + u"Any"));
    }
}

void tst_storageLocation::dataLocation_withEmptySubfolder_reportsAndGoesOn()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString report = u"ASSERT in .*storageLocation\\.cpp line \\d+$"_qs;
    for (const auto options :
         {CStorageLocation::DataLocationNoFolderCreation, CStorageLocation::DataLocationCreateFolder}) {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u'^' + report));
        QCOMPARE(CStorageLocation::dataLocation(QString(), options),
                 QString(m_sandbox.filePath(u"data/"_qs) + separator));
    }
    const QStringList records = log.records();
    QCOMPARE(records.size(), 2);
    const QRegularExpression form(u"^ERROR ZYX_zglv6::CStorageLocation::dataLocation: "_qs + report);
    QVERIFY2(form.match(records.at(0)).hasMatch() && form.match(records.at(1)).hasMatch(), qPrintable(records.at(0)));
}

void tst_storageLocation::dataLocation_withoutDataDirectory_throwsBeforeItLooksAtTheSubfolder()
{
    RUN_IN_FRESH_PROCESS();
    static bool isReported = false;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { isReported = true; });
    const QString thrown
        = thrownBy([] { CStorageLocation::dataLocation(QString(), CStorageLocation::DataLocationCreateFolder); });
    qInstallMessageHandler(nullptr);
    QCOMPARE(thrown, u"Data directory is not set"_qs);
    QVERIFY(!isReported);
}

void tst_storageLocation::dataLocationInUserFolder_liesInTheCompanysFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("below");

    QTest::newRow("product") << u"Zyx Grainlab 6"_qs << u"Zyx_Labs/Zyx Grainlab 6/"_qs;
    QTest::newRow("beyond ASCII") << u"\u0436\u00e9"_qs << u"Zyx_Labs/\u0436\u00e9/"_qs;
    QTest::newRow("none") << u""_qs << u"Zyx_Labs/"_qs;
    QTest::newRow("closing separator") << u"a/"_qs << u"Zyx_Labs/a/"_qs;
    QTest::newRow("path to be cleaned") << u"a//b/../c"_qs << u"Zyx_Labs/a/c/"_qs;
}

void tst_storageLocation::dataLocationInUserFolder_liesInTheCompanysFolder()
{
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    QFETCH(QString, folder);
    QFETCH(QString, below);
    QCOMPARE(CStorageLocation::dataLocationInUserFolder(folder, false),
             QDir::toNativeSeparators(m_userFolders.localData + u'/' + below));
}

void tst_storageLocation::dataLocationInUserFolder_makesTheFolderIfAsked()
{
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString path = CStorageLocation::dataLocationInUserFolder(u"a product"_qs, false);
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(CStorageLocation::dataLocationInUserFolder(u"a product"_qs, true), path);
    QVERIFY(QFileInfo(path).isDir());
    QVERIFY(QDir(path).removeRecursively());
    CStorageLocation::dataLocationInUserFolder(u"a product"_qs, true); // by every call
    QVERIFY(QFileInfo(path).isDir());
}

void tst_storageLocation::getDefaultPreferencesFilePath_liesInTheProductsFolder()
{
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString folder = m_userFolders.localData + u"/Zyx_Labs/Zyx Grainlab 6";
    QVERIFY(QDir(folder).removeRecursively());
    QCOMPARE(CStorageLocation::getDefaultPreferencesFilePath(), QDir::toNativeSeparators(folder + u"/Preferences.ini"));
    QVERIFY(QFileInfo(folder).isDir());
    QVERIFY(QDir(folder).isEmpty());
    QVERIFY(QDir(folder).removeRecursively());
    CStorageLocation::getDefaultPreferencesFilePath(); // by every call
    QVERIFY(QFileInfo(folder).isDir());
}

void tst_storageLocation::sessionSingleAppDirectory_isTheFolderForTemporaryFiles()
{
    const QString folder = m_sandbox.filePath(u"t"_qs);
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(CStorageLocation::sessionSingleAppDirectory(), QDir(QDir::tempPath()).absolutePath());
    QVERIFY(QFileInfo(CStorageLocation::sessionSingleAppDirectory()).isDir());
    const char *const variable = QDir::separator() == u'\\' ? "TMP" : "TMPDIR";
    const QByteArray before = qgetenv(variable);
    qputenv(variable, QFile::encodeName(QDir::toNativeSeparators(folder)));
    const QString changed = CStorageLocation::sessionSingleAppDirectory(); // not kept
    const QString expected = QDir(QDir::tempPath()).absolutePath();
    before.isEmpty() ? qunsetenv(variable) : qputenv(variable, before);
    QCOMPARE(changed, expected);
    QCOMPARE(changed, folder);
}

void tst_storageLocation::getTimeMachineImagesDir_liesBesideTheProgram()
{
    const QDir folder = CStorageLocation::getTimeMachineImagesDir();
    QCOMPARE(folder.path(), QString(QCoreApplication::applicationDirPath() + u"/TimeMachine/images"));
    QVERIFY(!folder.exists());
}

void tst_storageLocation::calibrationNames_areFixed()
{
    QCOMPARE(CStorageLocation::getCafDbFileExtensionDefault(), u".db"_qs);
    QCOMPARE(CStorageLocation::getCafDbBaseNameDefault(), u"CAFList5"_qs);
    QCOMPARE(CStorageLocation::getCafDbFileNameDefault(), u"CAFList5.db"_qs);
}

void tst_storageLocation::calibrationDefaults_lieInTheCurrentDataDirectory()
{
    RUN_IN_FRESH_PROCESS();
    for (const QString &name : {u"first"_qs, u"second"_qs}) {
        CStorageLocation::setDataDirectory(m_sandbox.filePath(name));
        const QString modules = m_sandbox.filePath(name) + u'/' + separator + u"Modules" + separator;
        QCOMPARE(CStorageLocation::getCafModulesPathDefault(), modules);
        QCOMPARE(CStorageLocation::getCafDbFilePathDefault(),
                 QString(modules + separator + u"CAFList5.db")); // two of them
    }
}

void tst_storageLocation::calibrationDefaults_makeTheirFolderByEveryCall()
{
    RUN_IN_FRESH_PROCESS();
    const QString data = setDataDirectory();
    for (const Location location :
         {&CStorageLocation::getCafModulesPathDefault, &CStorageLocation::getCafDbFilePathDefault,
          &CStorageLocation::getCafModulesPathDefault}) {
        location();
        QVERIFY(QFileInfo(data + u"Modules").isDir());
        QVERIFY(QDir(data + u"Modules").isEmpty());
        QVERIFY(QDir(data).removeRecursively());
    }
}

void tst_storageLocation::getSamplePicturesLocation_liesInTheSharedPictures()
{
    const QString path = CStorageLocation::getSamplePicturesLocation();
    const QString ending = separator + u"Zyx Grainlab 6 Samples" + separator;
    QVERIFY2(path.endsWith(ending), qPrintable(path));
    QVERIFY(!path.endsWith(separator + ending));
    QVERIFY(QFileInfo(path.chopped(ending.size())).isDir()); // the pictures' folder is made
}

void tst_storageLocation::getSamplePicturesLocation_makesOnlyTheFolderAbove()
{
    RUN_IN_FRESH_PROCESS();
    if (m_userFolders.sharedPictures.isEmpty()) {
        QSKIP("The folder of shared pictures is the machine's own.");
    }
    QVERIFY(!QFileInfo::exists(m_userFolders.sharedPictures));
    const QString path = CStorageLocation::getSamplePicturesLocation();
    QCOMPARE(path, QString(m_userFolders.sharedPictures + separator + u"Zyx Grainlab 6 Samples" + separator));
    QVERIFY(QFileInfo(m_userFolders.sharedPictures).isDir());
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(QDir(m_userFolders.sharedPictures).removeRecursively());
    QCOMPARE(CStorageLocation::getSamplePicturesLocation(), path); // by every call
    QVERIFY(QFileInfo(m_userFolders.sharedPictures).isDir());
}

void tst_storageLocation::getSamplePicturesLocation_withoutSharedPictures_isEmpty()
{
    RUN_IN_FRESH_PROCESS();
    if (m_userFolders.sharedPictures.isEmpty()) {
        QSKIP("The folder of shared pictures is the machine's own and can't be taken away.");
    }
    writeFile(QFileInfo(m_userFolders.sharedPictures).path(), "a file in place of the folder");
    QCOMPARE(CStorageLocation::getSamplePicturesLocation(), QString());
}

void tst_storageLocation::cafDataPathOfPrismataLatestVersion_prefersTheNewest()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString company = m_userFolders.localData + u"/Zyx_Labs/";
    QCOMPARE(CStorageLocation::cafDataPathOfPrismataLatestVersion(), QString());
    QVERIFY(!QFileInfo::exists(company)); // looking makes nothing

    for (const QString &product : {u"Zyx Pris Mata 9"_qs, u"Zyx Prismata 10"_qs, u"Zyx Prismata 11"_qs}) {
        const QString before = CStorageLocation::cafDataPathOfPrismataLatestVersion();
        QVERIFY(QDir().mkpath(company + product));
        QCOMPARE(CStorageLocation::cafDataPathOfPrismataLatestVersion(), before); // without modules it doesn't count
        QVERIFY(QDir().mkpath(company + product + u"/Modules"));
        QCOMPARE(CStorageLocation::cafDataPathOfPrismataLatestVersion(),
                 QDir::toNativeSeparators(company + product + u"/Modules/"));
    }
    QVERIFY(QDir(company + u"Zyx Prismata 10").removeRecursively());
    QVERIFY(QDir(company + u"Zyx Prismata 11").removeRecursively());
    QCOMPARE(CStorageLocation::cafDataPathOfPrismataLatestVersion(),
             QDir::toNativeSeparators(company + u"Zyx Pris Mata 9/Modules/"));
    QCOMPARE(QDir(company).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList(u"Zyx Pris Mata 9"_qs));
}

void tst_storageLocation::cafDataPathOfPrismataLatestVersion_takesOnlyKnownNames()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString company = m_userFolders.localData + u"/Zyx_Labs/";
    for (const QString &product : {u"Zyx Prismata 12"_qs, u"Zyx Prismata 9"_qs, u"Zyx Pris Mata 10"_qs,
                                   u"Zyx Pris Mata 11"_qs, u"Zyx Pris Mata 8"_qs, u"Zyx Prismata"_qs}) {
        QVERIFY(QDir().mkpath(company + product + u"/Modules"));
    }
    QCOMPARE(CStorageLocation::cafDataPathOfPrismataLatestVersion(), QString());
}

void tst_storageLocation::cafDataPathOfPrismataLatestVersion_passesOverWhatItCanNotRead()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString company = m_userFolders.localData + u"/Zyx_Labs/";
    const QString unreadable = company + u"Zyx Prismata 11/Modules";
    QVERIFY(QDir().mkpath(unreadable));
    QVERIFY(QDir().mkpath(company + u"Zyx Prismata 10/Modules"));
    const QFile::Permissions permissions = QFile::permissions(unreadable);
    const auto giveBack = qScopeGuard([&] { QFile::setPermissions(unreadable, permissions); });
    QFile::setPermissions(unreadable, {});
    if (QDir(unreadable).isReadable()) {
        QSKIP("Permissions of a folder don't bind this user.");
    }
    QCOMPARE(CStorageLocation::cafDataPathOfPrismataLatestVersion(),
             QDir::toNativeSeparators(company + u"Zyx Prismata 10/Modules/"));
}

void tst_storageLocation::setter_logsAndStores_data()
{
    using Setter = void (*)(const QString &);
    QTest::addColumn<Setter>("setter");
    QTest::addColumn<Location>("value");
    QTest::addColumn<QString>("record");
    QTest::addColumn<QString>("stored");

    QTest::newRow("preferences file") << &CStorageLocation::setPreferencesFilePath << &preferencesFilePath
                                      << u"setPreferencesFilePath: Preferences file path is set to "_qs
                                      << u"a//b/../\u0436"_qs;
    QTest::newRow("data directory") << &CStorageLocation::setDataDirectory << &CStorageLocation::getCurrentDataDirectory
                                    << u"setDataDirectory: Data directory path is set to "_qs << u"a/\u0436/"_qs;
    QTest::newRow("calibration database")
        << &CStorageLocation::setCafDbFilePath << &CStorageLocation::getCafDbFilePathCurrent
        << u"setCafDbFilePath: CafDb file path is set to "_qs << u"a//b/../\u0436"_qs;
    QTest::newRow("calibration modules") << &CStorageLocation::setCafModulesPath << &cafModulesPath
                                         << u"setCafModulesPath: Caf modules path is set to "_qs
                                         << u"a//b/../\u0436"_qs;
}

void tst_storageLocation::setter_logsAndStores()
{
    RUN_IN_FRESH_PROCESS();
    using Setter = void (*)(const QString &);
    QFETCH(Setter, setter);
    QFETCH(Location, value);
    QFETCH(QString, record);
    QFETCH(QString, stored);
    setter(u"x"_qs); // without a logger
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    setter(u"a//b/../\u0436"_qs);
    QCOMPARE(value(), stored);
    QCOMPARE(log.records(), QStringList(u"DEBUG ZYX_zglv6::CStorageLocation::"_qs + record + u"a//b/../\u0436"));
}

void tst_storageLocation::setDataDirectory_cleansThePathAndEndsItInASlash_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("stored");

    QTest::newRow("closing slash") << u"C:/data/"_qs << u"C:/data/"_qs;
    QTest::newRow("no closing slash") << u"C:/data"_qs << u"C:/data/"_qs;
    QTest::newRow("dots and doubled slashes") << u"/a//b/../c/."_qs << u"/a/c/"_qs;
    QTest::newRow("relative") << u"data"_qs << u"data/"_qs;
    QTest::newRow("native separators") << QDir::toNativeSeparators(u"a/b/"_qs) << u"a/b/"_qs;
    QTest::newRow("root: the slash is put behind whatever is left") << u"/"_qs << u"//"_qs;
    QTest::newRow("empty") << u""_qs << u"/"_qs;
}

void tst_storageLocation::setDataDirectory_cleansThePathAndEndsItInASlash()
{
    QFETCH(QString, path);
    QFETCH(QString, stored);
    CStorageLocation::setDataDirectory(path);
    QCOMPARE(CStorageLocation::getCurrentDataDirectory(), stored);
}

void tst_storageLocation::logInformation_logsAllFourValues()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString start = u"ZYX_zglv6::CStorageLocation::logInformation: "_qs;
    CStorageLocation::logInformation();
    QCOMPARE(log.records().size(), 4);
    QCOMPARE(log.records().filter(u"DEBUG "_qs + start).size(), 4);
    QCOMPARE(
        lastMessages(log.path(), 4),
        QStringList({start + u"Preferences file path: ", start + u"Data directory: " + m_sandbox.filePath(u"data/"_qs),
                     start + u"CafDb file path: ", start + u"Caf modules path: "}));

    CStorageLocation::setPreferencesFilePath(u"p"_qs);
    CStorageLocation::setDataDirectory(u"d"_qs);
    CStorageLocation::setCafDbFilePath(u"f"_qs);
    CStorageLocation::setCafModulesPath(u"m"_qs);
    CStorageLocation::logInformation();
    QCOMPARE(lastMessages(log.path(), 4),
             QStringList({start + u"Preferences file path: p", start + u"Data directory: d/",
                          start + u"CafDb file path: f", start + u"Caf modules path: m"}));
}

void tst_storageLocation::logInformation_withoutLoggerAndValues_doesNothing()
{
    RUN_IN_FRESH_PROCESS();
    static bool isReported = false;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { isReported = true; });
    CStorageLocation::logInformation();
    qInstallMessageHandler(nullptr);
    QVERIFY(!isReported);
}

void tst_storageLocation::initializeFromPreferencesFile_withoutFile_usesTheDefaults()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString preferences = m_sandbox.filePath(u"none//Preferences.ini"_qs);
    const QString data = m_userFolders.localData + u"/Zyx_Labs/Zyx Grainlab 6/";
    QVERIFY(!QFileInfo::exists(data));
    CStorageLocation::initializeFromPreferencesFile(preferences);

    QCOMPARE(CStorageLocation::getCurrentPreferencesFilePath(), preferences);
    QCOMPARE(CStorageLocation::getCurrentDataDirectory(), data);
    QCOMPARE(CStorageLocation::getCafModulesPathCurrent(), QString(data + separator + u"Modules" + separator));
    QCOMPARE(CStorageLocation::getCafDbFilePathCurrent(),
             QString(data + separator + u"Modules" + separator + separator + u"CAFList5.db"));
    QVERIFY(QFileInfo(data + u"Modules").isDir());
    QVERIFY(!QFileInfo::exists(preferences));
}

void tst_storageLocation::initializeFromPreferencesFile_readsTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("data"); // none: the default
    QTest::addColumn<QString>("cafDb");
    QTest::addColumn<QString>("cafModules");

    QTest::newRow("empty file") << QByteArray() << QString() << QString() << QString();
    QTest::newRow("data directory") << QByteArray("[GlobalSettings]\nDataDirectory=%home%/own//data\n")
                                    << u"own/data/"_qs << QString() << QString();
    QTest::newRow("calibration database")
        << QByteArray("[CAF]\nCafDbFilePath=own//list.db\n") << QString() << u"own//list.db"_qs << QString();
    QTest::newRow("calibration modules") << QByteArray("[CAF]\nCafModulesPath=own//modules\n") << QString() << QString()
                                         << u"own//modules"_qs;
    QTest::newRow("all") << QByteArray("[GlobalSettings]\nDataDirectory=%home%/own/\n"
                                       "[CAF]\nCafDbFilePath=list.db\nCafModulesPath=modules\n")
                         << u"own/"_qs << u"list.db"_qs << u"modules"_qs;
    QTest::newRow("all empty") << QByteArray("[GlobalSettings]\nDataDirectory=\n"
                                             "[CAF]\nCafDbFilePath=\nCafModulesPath=\n")
                               << QString() << QString() << QString();
    QTest::newRow("empty database, own data directory")
        << QByteArray("[GlobalSettings]\nDataDirectory=%home%/own\n[CAF]\nCafDbFilePath=\n") << u"own/"_qs << QString()
        << QString();
    QTest::newRow("a list has no text") << QByteArray(
        "[GlobalSettings]\nDataDirectory=a, b\n[CAF]\nCafModulesPath=\"c, d\"\n")
                                        << QString() << QString() << u"c, d"_qs;
    QTest::newRow("keys of other groups")
        << QByteArray("DataDirectory=a\n[CAF]\nDataDirectory=b\n[GlobalSettings]\nCafDbFilePath=c\n") << QString()
        << QString() << QString();
}

void tst_storageLocation::initializeFromPreferencesFile_readsTheFile()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    QFETCH(QByteArray, content);
    QFETCH(QString, data);
    QFETCH(QString, cafDb);
    QFETCH(QString, cafModules);
    const QString preferences = m_sandbox.filePath(u"Preferences.ini"_qs);
    writeFile(preferences, content.replace("%home%", m_sandbox.filePath(QString()).toUtf8()));
    CStorageLocation::initializeFromPreferencesFile(preferences);

    const QString folder
        = data.isEmpty() ? m_userFolders.localData + u"/Zyx_Labs/Zyx Grainlab 6/" : m_sandbox.filePath(data);
    const QString modules = folder + separator + u"Modules" + separator;
    QCOMPARE(CStorageLocation::getCurrentPreferencesFilePath(), preferences);
    QCOMPARE(CStorageLocation::getCurrentDataDirectory(), folder);
    QCOMPARE(CStorageLocation::getCafDbFilePathCurrent(),
             cafDb.isEmpty() ? QString(modules + separator + u"CAFList5.db") : cafDb);
    QCOMPARE(CStorageLocation::getCafModulesPathCurrent(), cafModules.isEmpty() ? modules : cafModules);
}

void tst_storageLocation::initializeFromPreferencesFile_withAZeroCharacterInAPath_usesTheDefault_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("key");

    QTest::newRow("data directory") << QByteArray("[GlobalSettings]\nDataDirectory=\"own\\0/data\"\n")
                                    << u"GlobalSettings/DataDirectory"_qs;
    QTest::newRow("calibration database")
        << QByteArray("[CAF]\nCafDbFilePath=\"list.db\\0.txt\"\n") << u"CAF/CafDbFilePath"_qs;
    QTest::newRow("calibration modules") << QByteArray("[CAF]\nCafModulesPath=\"\\0\"\n") << u"CAF/CafModulesPath"_qs;
}

void tst_storageLocation::initializeFromPreferencesFile_withAZeroCharacterInAPath_usesTheDefault()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    QFETCH(QByteArray, content);
    QFETCH(QString, key);
    const QString preferences = m_sandbox.filePath(u"Preferences.ini"_qs);
    writeFile(preferences, content);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CStorageLocation::initializeFromPreferencesFile(preferences);
    QVERIFY(CSettings::getStringFromPreferencesFile(key, QString()).contains(QChar(u'\0')));

    const QString folder = m_userFolders.localData + u"/Zyx_Labs/Zyx Grainlab 6/";
    const QString modules = folder + separator + u"Modules" + separator;
    QCOMPARE(CStorageLocation::getCurrentDataDirectory(), folder);
    QCOMPARE(CStorageLocation::getCafDbFilePathCurrent(), QString(modules + separator + u"CAFList5.db"));
    QCOMPARE(CStorageLocation::getCafModulesPathCurrent(), modules);

    const QStringList errors = log.records().filter(QRegularExpression(u"^ERROR "_qs));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().endsWith(u": Not a path: " + key), qPrintable(errors.first()));
}

void tst_storageLocation::initializeFromPreferencesFile_withEmptyPath_throws()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    CStorageLocation::setPreferencesFilePath(u"earlier"_qs);
    QCOMPARE(thrownBy([] { CStorageLocation::initializeFromPreferencesFile(QString()); }),
             u"Preferences file path not set"_qs);
    QCOMPARE(thrownBy(&preferencesFilePath), u"Preferences file path not set"_qs); // set to the empty path before
    QCOMPARE(thrownBy(&CStorageLocation::getCurrentDataDirectory), u"Data directory is not set"_qs);
}

void tst_storageLocation::initializeFromPreferencesFile_setsInOrder()
{
    RUN_IN_FRESH_PROCESS();
    SKIP_UNLESS_USER_FOLDERS_ARE_MOVED();
    const QString preferences = m_sandbox.filePath(u"Preferences.ini"_qs);
    const QString data = m_sandbox.filePath(u"own"_qs);
    writeFile(preferences, "[GlobalSettings]\nDataDirectory=" + data.toUtf8() + "\n[CAF]\nCafModulesPath=m\n");
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CStorageLocation::initializeFromPreferencesFile(preferences);
    const QString start = u"DEBUG ZYX_zglv6::CStorageLocation::"_qs;
    QCOMPARE(log.records(),
             QStringList({start + u"setPreferencesFilePath: Preferences file path is set to " + preferences,
                          start + u"setDataDirectory: Data directory path is set to " + data,
                          start + u"setCafDbFilePath: CafDb file path is set to " + data + u'/' + separator + u"Modules"
                              + separator + separator + u"CAFList5.db",
                          start + u"setCafModulesPath: Caf modules path is set to m"}));
}

void tst_storageLocation::getStringFromPreferencesFile_withoutPath_throws()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(thrownBy([] { CSettings::getStringFromPreferencesFile(u"a/b"_qs, u"default"_qs); }),
             u"Preferences file path not set"_qs);
}

void tst_storageLocation::getStringFromPreferencesFile_readsAText_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QString>("text");

    QTest::newRow("there") << u"group/text"_qs << u"default"_qs << u"some text"_qs;
    QTest::newRow("number") << u"group/number"_qs << u"default"_qs << u"12"_qs;
    QTest::newRow("empty counts as absent") << u"group/empty"_qs << u"default"_qs << u"default"_qs;
    QTest::newRow("absent") << u"group/none"_qs << u"default"_qs << u"default"_qs;
    QTest::newRow("absent, without default") << u"group/none"_qs << QString() << QString();
}

void tst_storageLocation::getStringFromPreferencesFile_readsAText()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(QString, key);
    QFETCH(QString, defaultValue);
    QFETCH(QString, text);
    writeFile(m_sandbox.filePath(u"p.ini"_qs), "[group]\ntext=some text\nnumber=12\nempty=\n");
    CStorageLocation::setPreferencesFilePath(m_sandbox.filePath(u"p.ini"_qs));
    QCOMPARE(CSettings::getStringFromPreferencesFile(key, defaultValue), text);
}

QTEST_GUILESS_MAIN(tst_storageLocation)

#include "tst_storageLocation.moc"
