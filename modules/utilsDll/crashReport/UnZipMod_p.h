// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ZYX_zglv6::UnZipMod {

/*!
    Unpacks the entry \a entryName of the archive at \a zipPath below \a folder, or all entries with an empty name; an
    empty \a password is none. With a name, true says that nothing was wrong with the entry, also where its file could
    not be made. With none the result is the one of DecompressFiles(). What that throws is thrown here in both cases.
*/
bool extractZipArchive(const QString &folder, const QString &zipPath, const QString &entryName,
                       const QByteArray &password);

} // namespace ZYX_zglv6::UnZipMod
