// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "storageLocation/storageLocation.h"

#include "platform/Folders.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStandardPaths>

#include <stdexcept>

namespace ZYX_zglv6 {

namespace {

constexpr QLatin1StringView companyFolder("Zyx_Labs");
constexpr QLatin1StringView samplesFolder("Zyx Grainlab 6 Samples");
constexpr QLatin1StringView preferencesFileName("Preferences.ini");
constexpr QLatin1StringView modulesFolder("Modules");

struct CurrentPaths
{
    QString preferencesFile;
    QString dataDirectory;
    QString cafDbFile;
    QString cafModules;
};

constinit CurrentPaths currentPaths;

const QString &orThrowIfUnset(const QString &path, const char *text)
{
    if (path.isEmpty()) {
        throw std::runtime_error(text);
    }
    return path;
}

void createPathIfNotExists(const QString &path)
{
    ASSERT(!path.isEmpty());
    if (!QDir().exists(path)) {
        QDir().mkpath(path); // not told: whoever needs the folder sees it missing
    }
}

QString dataFolder(QLatin1StringView subfolder)
{
    return CStorageLocation::dataLocation(subfolder, CStorageLocation::DataLocationCreateFolder) + QDir::separator();
}

/*! A path of the preferences file. One with a zero character would mean different files to different readers. */
QString preferredPath(QLatin1StringView key, const QString &defaultPath)
{
    const QString path = CSettings::getStringFromPreferencesFile(key, defaultPath);
    if (path.contains(QChar(u'\0'))) {
        ZYX_LOG('E', u"Not a path: " + key);
        return defaultPath;
    }
    return path;
}

/*! Folder of the calibration modules of the sibling product that is installed as \a product; empty if unreadable. */
QString readableModulesFolderOf(const QString &product)
{
    const QString productFolder = CStorageLocation::dataLocationInUserFolder(product, false);
    if (productFolder.isEmpty()) {
        return {};
    }
    const QString modules = productFolder + modulesFolder + QDir::separator();
    return QDir(modules).isReadable() ? modules : QString();
}

} // namespace

void CStorageLocation::initializeFromPreferencesFile(const QString &path)
{
    setPreferencesFilePath(path);
    setDataDirectory(preferredPath(dataDirectoryKey, dataLocationInUserFolder(productDisplayName, true)));
    // The defaults of the other two lie in the data directory, which has to be set by now.
    setCafDbFilePath(preferredPath(cafDbFilePathKey, getCafDbFilePathDefault()));
    setCafModulesPath(preferredPath(cafModulesPathKey, getCafModulesPathDefault()));
}

void CStorageLocation::setPreferencesFilePath(const QString &path)
{
    ZYX_LOG('D', u"Preferences file path is set to " + path);
    currentPaths.preferencesFile = path;
}

void CStorageLocation::setDataDirectory(const QString &path)
{
    ZYX_LOG('D', u"Data directory path is set to " + path);
    currentPaths.dataDirectory = QDir::cleanPath(path) + u'/';
}

void CStorageLocation::setCafDbFilePath(const QString &path)
{
    ZYX_LOG('D', u"CafDb file path is set to " + path);
    currentPaths.cafDbFile = path;
}

void CStorageLocation::setCafModulesPath(const QString &path)
{
    ZYX_LOG('D', u"Caf modules path is set to " + path);
    currentPaths.cafModules = path;
}

void CStorageLocation::logInformation()
{
    ZYX_LOG('D', u"Preferences file path: " + currentPaths.preferencesFile);
    ZYX_LOG('D', u"Data directory: " + currentPaths.dataDirectory);
    ZYX_LOG('D', u"CafDb file path: " + currentPaths.cafDbFile);
    ZYX_LOG('D', u"Caf modules path: " + currentPaths.cafModules);
}

const QString &CStorageLocation::getCurrentPreferencesFilePath()
{
    return orThrowIfUnset(currentPaths.preferencesFile, "Preferences file path not set");
}

QString CStorageLocation::getCurrentDataDirectory()
{
    return orThrowIfUnset(currentPaths.dataDirectory, "Data directory is not set");
}

QString CStorageLocation::getCafDbFilePathCurrent()
{
    return orThrowIfUnset(currentPaths.cafDbFile, "CafDb file path not set");
}

const QString &CStorageLocation::getCafModulesPathCurrent()
{
    return orThrowIfUnset(currentPaths.cafModules, "CafData path not set");
}

QString CStorageLocation::diskCacheLocation()
{
    static const QString path = dataFolder(QLatin1StringView("DiskCache"));
    return path;
}

QString CStorageLocation::packUserStoragePath()
{
    static const QString path = dataFolder(QLatin1StringView("PresetPack"));
    return path;
}

QString CStorageLocation::favoritePresetPath()
{
    static const QString path = dataFolder(QLatin1StringView("Favorite"));
    return path;
}

QString CStorageLocation::customColorsPath()
{
    static const QString path = dataFolder(QLatin1StringView("CustomColors"));
    return path;
}

QString CStorageLocation::getPresetDir()
{
    static const QString path = dataFolder(QLatin1StringView("Presets"));
    createPathIfNotExists(path);
    return path;
}

QString CStorageLocation::loggerFilesPath()
{
    static const QString path = dataFolder(QLatin1StringView("Logs"));
    return path;
}

QString CStorageLocation::crashFilesPath()
{
    static const QString path = dataFolder(QLatin1StringView("CrashReports"));
    return path;
}

QString CStorageLocation::crashTempFilesPath()
{
    static const QString path = crashFilesPath() + u"temp" + QDir::separator();
    createPathIfNotExists(path);
    return path;
}

QString CStorageLocation::commonLocation()
{
    static const QString path
        = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QDir::separator() + productDisplayName;
    createPathIfNotExists(path);
    return path;
}

QString CStorageLocation::getExecutableDir()
{
    static const QString path = QDir::toNativeSeparators(QDir::cleanPath(QCoreApplication::applicationDirPath()));
    return path;
}

QString CStorageLocation::getDefaultPreferencesFilePath()
{
    const QDir folder(dataLocationInUserFolder(productDisplayName, true));
    return QDir::toNativeSeparators(folder.absoluteFilePath(preferencesFileName));
}

QString CStorageLocation::sessionSingleAppDirectory()
{
    return QDir(QDir::tempPath()).absolutePath();
}

QDir CStorageLocation::getTimeMachineImagesDir()
{
    return QDir(QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/TimeMachine/images"));
}

QString CStorageLocation::getSamplePicturesLocation()
{
    QString folder = ZyxPlatform::sharedPicturesFolder();
    if (folder.isEmpty()) {
        return {};
    }
    if (!folder.endsWith(QDir::separator())) {
        folder += QDir::separator();
    }
    return folder + samplesFolder + QDir::separator();
}

QString CStorageLocation::getCafDbFileExtensionDefault()
{
    return QStringLiteral(".db");
}

QString CStorageLocation::getCafDbBaseNameDefault()
{
    return QStringLiteral("CAFList5");
}

QString CStorageLocation::getCafDbFileNameDefault()
{
    return getCafDbBaseNameDefault() + getCafDbFileExtensionDefault();
}

QString CStorageLocation::getCafDbFilePathDefault()
{
    // The doubled separator belongs to the path; systems read it as one.
    return dataFolder(modulesFolder) + QDir::separator() + getCafDbFileNameDefault();
}

QString CStorageLocation::getCafModulesPathDefault()
{
    return dataFolder(modulesFolder);
}

QString CStorageLocation::cafDataPathOfPrismataLatestVersion()
{
    // Version 9 still had its name in two words.
    for (const auto &product : {QStringLiteral("Zyx Prismata %1").arg(11), QStringLiteral("Zyx Prismata %1").arg(10),
                                QStringLiteral("Zyx Pris Mata %1").arg(9)}) {
        const QString modules = readableModulesFolderOf(product);
        if (!modules.isEmpty()) {
            return modules;
        }
    }
    return {};
}

QString CStorageLocation::dataLocationInUserFolder(const QString &folder, bool createFolder)
{
    const QString userFolder = ZyxPlatform::localApplicationDataFolder();
    // Without a user folder the current one of the process steps in, as QDir reads an empty path.
    const QString joined = userFolder.isEmpty()
        ? QString()
        : userFolder + QDir::separator() + companyFolder + QDir::separator() + folder;
    const QString path = QDir::toNativeSeparators(QDir(joined).absolutePath()) + QDir::separator();
    if (createFolder) {
        createPathIfNotExists(path);
    }
    return path;
}

QString CStorageLocation::dataLocation(const QString &subfolder, DataLocationGetFolderOptions options)
{
    // The data directory ends in "/" already: the seam shows both separators, and is left so.
    const QString path = getCurrentDataDirectory() + QDir::separator() + subfolder;
    ASSERT(!subfolder.isEmpty());
    if (options == DataLocationCreateFolder) {
        createPathIfNotExists(path);
    }
    return path;
}

} // namespace ZYX_zglv6
