// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QString>

/*!
    Folders as zip archives. Entries are stored, never compressed, whatever the names say: packing costs no more than
    copying, and what a crash left behind can be read in the archive as it is.

    Hidden files, links to folders, pipes, devices and the archive itself are left out. Entry names are in the system's
    narrow encoding: UTF-8, and on Windows that of the code page. From any thread; failures are lines in the log.
*/
namespace ZYX_zglv6 {

/*!
    Packs the files in and below \a dir into \a zipFile, which is made anew. False: there is nothing to pack, and no
    archive; or the archive could not be written. True does not mean that it is complete: a file that can't be read
    ends the packing early.
*/
UTILSDLL_EXPORT bool CompressDir(const QDir &dir, const QFileInfo &zipFile);

/*!
    The same, and then removes the files that it has found, also when the archive failed. Folders stay behind, empty.
    Throws std::filesystem::filesystem_error if one can't be removed.
*/
UTILSDLL_EXPORT bool CompressDirAndClearContent(const QDir &dir, const QFileInfo &zipFile);

/*!
    Unpacks \a zipFile below \a dir, over files of the same names; an empty \a password is none. Folders are made one
    level deep; std::filesystem::filesystem_error tells of one that can't be made. An entry that can't be read or
    written whole, is a link, has a name of more than 255 bytes or with a backslash, or might end outside of \a dir,
    ends the unpacking; one whose file can't be made is passed over.

    The result is no verdict: false after a complete unpacking and after most failures, true only where the way to the
    next entry was lost. See whether the files are there.
*/
UTILSDLL_EXPORT bool DecompressFiles(const QFileInfo &zipFile, const QDir &dir, const QString &password);

} // namespace ZYX_zglv6
