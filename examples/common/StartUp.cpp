// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "common/StartUp.h"

#include "common/Report.h"

#include "loggerSupport/LoggerWrapper.h"
#include "storageLocation/storageLocation.h"
#include "utilsDll/frame/ProcessInfo.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QTextStream>

#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr QLatin1StringView dataOption("data");
constexpr QLatin1StringView languageOption("language");

/*! The preferences file that an installer would have left; an existing one is the user's and stays. */
bool writePreferencesOnce(const QString &path, const QString &workFolder)
{
    if (QFileInfo::exists(path)) {
        return true;
    }
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSettings preferences(path, QSettings::IniFormat);
    preferences.setValue(dataDirectoryKey, QDir(workFolder).absoluteFilePath(u"data"_qs));
    preferences.sync();
    return preferences.status() == QSettings::NoError;
}

QString describeLog(const QString &logName)
{
    const QDir folder(CStorageLocation::loggerFilesPath());
    const QString fileName = logName + u".txt";
    const qsizetype earlier = folder.entryList({fileName + u".*"}, QDir::Files).size();
    return u"%1, logs of earlier runs: %2"_qs.arg(QDir::toNativeSeparators(folder.absoluteFilePath(fileName)),
                                                  QString::number(earlier));
}

} // namespace

void addStartUpOptions(QCommandLineParser &parser)
{
    CSettings::addPreferencesFileOption(parser);
    parser.addOption(QCommandLineOption(dataOption, u"Folder for everything that this host keeps."_qs, u"folder"_qs,
                                        QStringLiteral(EXAMPLE_WORK_FOLDER)));
    parser.addOption(
        QCommandLineOption(languageOption, u"Speak another language, such as \"de\"."_qs, u"abbreviation"_qs));
}

StartUpOptions readStartUpOptions(QCommandLineParser &parser)
{
    StartUpOptions options;
    options.workFolder = QDir(parser.value(dataOption)).absolutePath();
    options.language = parser.value(languageOption);
    // A shipping host takes CStorageLocation::getDefaultPreferencesFilePath(); an example stays out of the user's
    // folders.
    options.preferencesFile = CSettings::getPreferencesFilePathFromCommandLine(
        parser, QDir(options.workFolder).absoluteFilePath(u"Preferences.ini"_qs));
    if (options.preferencesFile.isEmpty()) {
        QTextStream(stderr) << QCoreApplication::applicationName() << ": the preferences file has no name" << Qt::endl;
        parser.showHelp(1);
    }
    return options;
}

void refuseSurplusArguments(QCommandLineParser &parser, qsizetype most)
{
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() > most) {
        QTextStream(stderr) << QCoreApplication::applicationName() << ": one argument too many: " << arguments.at(most)
                            << Qt::endl;
        parser.showHelp(1);
    }
}

// NOLINTNEXTLINE(modernize-pass-by-value): a host has options of a derived type, which a value would slice
CStartUp::CStartUp(const StartUpOptions &options, QString logName)
    : m_options(options)
    , m_logName(std::move(logName))
{
}

void CStartUp::reportModule() const
{
    const QString process = UtilsDll::currentProcessName();
    const UtilsDll::BinaryVersion version = UtilsDll::binaryFileVersionByProcessName(process);
    const QString numbers
        = u"%1.%2.%3.%4"_qs.arg(version.major).arg(version.minor).arg(version.build).arg(version.revision);
    const bool hasCollections = QFileInfo::exists(u":/qss/custom.qss"_qs) && QFileInfo::exists(u":/qss/win.qss"_qs)
        && QFileInfo::exists(u":/translations/zyx_en.qm"_qs) && QFileInfo::exists(u":/calibration/db/CAFList5.db"_qs);
    printLine(1, QLatin1StringView("module"),
              u"loaded by %1 %2; embedded files %3"_qs.arg(process, numbers,
                                                           hasCollections ? u"in place"_qs : u"missing"_qs));
}

void CStartUp::choosePreferencesFile() const
{
    const bool isThere = writePreferencesOnce(m_options.preferencesFile, m_options.workFolder);
    printLine(2, QLatin1StringView("preferences"),
              QDir::toNativeSeparators(m_options.preferencesFile)
                  + (isThere ? QString() : u", which can't be written: defaults apply"_qs));
}

void CStartUp::initializeStorage() const
{
    CStorageLocation::initializeFromPreferencesFile(m_options.preferencesFile);
    printLine(3, QLatin1StringView("storage"),
              u"data in %1; calibration %2, modules in %3"_qs.arg(CStorageLocation::getCurrentDataDirectory(),
                                                                  CStorageLocation::getCafDbFilePathCurrent(),
                                                                  CStorageLocation::getCafModulesPathCurrent()));
}

void CStartUp::chooseSettings()
{
    if (m_options.temporarySettings) {
        m_temporarySettings = std::make_unique<CTemporarySettings>(QDir(m_options.workFolder));
        CSettings::setTemporarySettings(*m_temporarySettings);
    }
    printLine(4, QLatin1StringView("settings"),
              m_temporarySettings ? u"throw-away, in %1"_qs.arg(m_temporarySettings->tempSettingsPath())
                                  : u"in the system store"_qs);
}

void CStartUp::startLog() const
{
    if (!isLoggerEnabled()) {
        printLine(5, QLatin1StringView("log"), u"switched off"_qs);
        return;
    }
    initLogger(m_logName, m_options.consoleLog ? LoggerTypeConsole : LoggerTypeFile);
    printLine(5, QLatin1StringView("log"),
              m_options.consoleLog ? u"on the standard output"_qs : describeLog(m_logName));
}

void CStartUp::goTheWholeWay()
{
    reportModule();
    choosePreferencesFile();
    initializeStorage();
    chooseSettings();
    startLog();
}
