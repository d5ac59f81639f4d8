// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <list>

namespace ZYX_zglv6::ZipMod {

/*!
    Packs \a files, paths below \a baseFolder with "/" between their parts, into a new archive at \a zipPath; an empty
    \a password is none. The flag and the level have no effect: entries are stored.

    True if the archive was closed, also where a file that could not be read ended the packing early.
*/
bool addToZipFile(const QString &zipPath, bool flag, const QString &baseFolder, const std::list<QString> &files,
                  int level, const QByteArray &password);

} // namespace ZYX_zglv6::ZipMod
