// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>

#include <string>

class QDir;
class QFileInfo;
class QSize;

/*
    What hosts do with the names and files of photographs. Nothing here throws, keeps state or caches, and nothing logs
    but sizeToString(), which reports an unknown unit, and GetIccProfileFilePathFromSystem(), without a main window.
    These two ask the screen and belong to the main thread; the others may be called from any.
*/
namespace ZYX_zglv6 {

namespace FileManagement {

enum CompareCondition {
    CompareFullPath = 0, // the cleaned path
    CompareFileName = 1, // the name with its extension
    CompareBaseName = 2 // the name without its last extension
};

enum ErrorCodes { FileOperationSucceeded = 0, FileOperationFailed = 2 };

} // namespace FileManagement

/*!
    Whether \a name can be the name of a file by the rules of Windows, on any system; with \a isPath a path may be in
    front of it.

    Wrong, of the cleaned path, are: no name, 32,767 characters or more, more than 260 between two separators, "..", any
    of <>"|?* and without \a isPath of :/\, and a device's name such as "NUL" as the whole name or the end of the path.
    A device's name with an extension passes, and so does one in the middle of a path. \a name itself may hold a ".."
    that cleaning takes away.
*/
UTILSDLL_EXPORT bool validateFileName(const QString &name, bool isPath);

/*! A key to compare paths by, in native separators and lower case; no path to open. */
UTILSDLL_EXPORT QString normalizedFilePath(const QString &path);

/*! Without regard to case. A \a condition of no name compares nothing and gives true. */
UTILSDLL_EXPORT bool isEqualFileOrDirNames(const QFileInfo &a, const QFileInfo &b,
                                           FileManagement::CompareCondition condition);
UTILSDLL_EXPORT bool isEqualFileOrDirNames(const QString &a, const QString &b,
                                           FileManagement::CompareCondition condition);

/*!
    Copies a file, or a folder with what is below it into the folder \a target, which is made if it is missing. Hidden
    and system entries are left out; links are copied as what they lead to.

    False: something could not be copied, or is there already. That ends the copy, and what was copied stays. A folder
    is not copied into itself, and nothing to an empty \a target.
*/
[[nodiscard]] UTILSDLL_EXPORT bool copyRecursively(const QString &source, const QString &target);

/*!
    Removes all files below \a dir, hidden ones too. Folders stay, emptied; a link is removed, not what it leads to.

    The result is that of the last entry, folders first: a file that can't be removed, and also a folder that is empty
    already, ends the walk with false, and what comes after it stays.
*/
[[nodiscard]] UTILSDLL_EXPORT bool removeDirectoryContent(const QDir &dir);

/*! Also for folders; only files may go to another volume. Never replaces: false if something else is at \a newPath. */
[[nodiscard]] UTILSDLL_EXPORT bool renameFile(const QString &oldPath, const QString &newPath);

/*!
    The entry after or before \a path in its folder, for stepping through it: files of any type, hidden ones
    and folders, in the order of their names, which ignores case. Empty at either end, and for a name that is
    not there in these very letters.

    Lists the whole folder at each call.
*/
UTILSDLL_EXPORT QString getNextFilePath(const QString &path);
UTILSDLL_EXPORT QString getPreviouseFilePath(const QString &path);

/*! Moves a file or folder to the recycle bin, without asking. On Windows \a path has native separators. */
[[nodiscard]] UTILSDLL_EXPORT FileManagement::ErrorCodes moveFileToTrash(const QString &path);

/*!
    Bytes that the user may still write on the volume of \a path; 0 if it is not there. On Windows also 0 for what is no
    folder, and for a path beyond Latin-1.
*/
UTILSDLL_EXPORT long long availableDiskSpace(const QString &path);

/*! \a size bytes as "1024B", "1.0KB" or "1.0MB", with the translated unit. */
UTILSDLL_EXPORT QString fileSizeToString(const long long &size);

/*!
    The \a size of an image in pixels as "640 x 480 px", or in inches, centimetres or millimetres at the resolution of
    the primary screen, as "imageSizeUnits" in the settings says (0 to 3).
*/
UTILSDLL_EXPORT QString sizeToString(const QSize &size);

/*!
    Path, in UTF-8, of the colour profile of the main window's monitor, else of the primary one; empty for
    none. On Linux the colour service is asked, and waited for up to three seconds.
*/
UTILSDLL_EXPORT std::string GetIccProfileFilePathFromSystem();

} // namespace ZYX_zglv6
