// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QDir>
#include <QtCore/QString>

namespace ZYX_zglv6 {

/*!
    Where the product's files lie. A host points it at a preferences file once, early; all else follows.

    Until the data directory is set, everything derived from it throws std::runtime_error. The derived folders are
    computed by their first call, from any thread, and kept: the data directory can only be changed before that.
    Failures to make a folder are not told. The setters are for start-up, before there are threads.
*/
class UTILSDLL_EXPORT CStorageLocation
{
public:
    CStorageLocation() = delete;

    enum DataLocationGetFolderOptions { DataLocationNoFolderCreation = 0, DataLocationCreateFolder = 1 };

    /*!
        Sets all four paths below from the ini file \a path; a missing or empty value, or one with a zero character,
        counts as its default. The default folders are made even if they are not used. Throws std::runtime_error for
        an empty \a path.
    */
    static void initializeFromPreferencesFile(const QString &path);

    static void setPreferencesFilePath(const QString &path);
    static void setDataDirectory(const QString &path); // an empty path means the root folder
    static void setCafDbFilePath(const QString &path);
    static void setCafModulesPath(const QString &path);

    /*! Logs the four paths, empty ones too. */
    static void logInformation();

    /*! The current paths. Each throws std::runtime_error while it is unset; the data directory ends in "/". */
    static const QString &getCurrentPreferencesFilePath();
    static QString getCurrentDataDirectory();
    static QString getCafDbFilePathCurrent();
    static const QString &getCafModulesPathCurrent();

    /*! Folders in the data directory, with a closing separator, made by the first call. */
    static QString diskCacheLocation();
    static QString packUserStoragePath();
    static QString favoritePresetPath();
    static QString customColorsPath();
    static QString loggerFilesPath();
    static QString crashFilesPath();

    /*! The same, but made again by every call if they have gone. */
    static QString getPresetDir();
    static QString crashTempFilesPath();

    /*! The product's folder in the user's documents, made by every call; no closing separator. */
    static QString commonLocation();

    /*! Folder of the running executable, in native separators. Needs the application object at its first call. */
    static QString getExecutableDir();

    /*! "Preferences.ini" in the product's folder among the local application data, which is made. */
    static QString getDefaultPreferencesFilePath();

    /*! The temporary folder, and the folder of the film history's pictures beside the executable. */
    static QString sessionSingleAppDirectory();
    static QDir getTimeMachineImagesDir();

    /*! Folder of the sample pictures, with a closing separator; empty if the machine has no shared pictures. */
    static QString getSamplePicturesLocation();

    static QString getCafDbFileExtensionDefault();
    static QString getCafDbBaseNameDefault();
    static QString getCafDbFileNameDefault();

    /*! In "Modules" of the data directory, which each call makes. Both throw while the data directory is unset. */
    static QString getCafDbFilePathDefault();
    static QString getCafModulesPathDefault();

    /*! Calibration modules of a sibling product, the newest version that can be read; empty if there is none. */
    static QString cafDataPathOfPrismataLatestVersion();

    /*! \a folder among the user's local application data, with a closing separator. */
    static QString dataLocationInUserFolder(const QString &folder, bool createFolder);

    /*! \a subfolder of the data directory, without a closing separator. Throws while the data directory is unset. */
    static QString dataLocation(const QString &subfolder, DataLocationGetFolderOptions options);

    // Data files beside the executable. A file that can't be read is no failure of the call: the path is returned all
    // the same, after the log was told and the user warned by a message box, which blocks and needs a QApplication and
    // the main thread. Each call checks anew.

    /*! Grain, and the features that are switched on. Warns only if \a check and the file's attributes deny reading. */
    static const QString &dopGPAPath(bool check);
    static const QString &featureTogglePath(bool check);

    /*! The same for the packs in "Resources". */
    static QString framePackPath(bool check);
    static QString texturesPackPath(bool check);

    /*! Always checked, and by opening it: the only one to see that another program has locked it. */
    static QString defectsPackPath();

private:
    static void warnUser(const char *function, const QString &message);
};

} // namespace ZYX_zglv6
