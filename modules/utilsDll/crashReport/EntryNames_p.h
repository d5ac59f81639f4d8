// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ZYX_zglv6 {

// Names of entries in archives: in the system's narrow encoding, with "/" between their parts.

/*! The name under which the file at \a relativePath is packed. */
QByteArray entryName(const QString &relativePath);

/*! Whether \a entry, which stands for \a relativePath, has to be marked as UTF-8 for other programs. */
bool isUtf8EntryName(const QByteArray &entry, const QString &relativePath);

/*!
    Whether \a name, of an archive that anybody may have made, might lead out of the folder that it is put into; on
    Windows also to a device, or to a stream of another file.
*/
bool leavesFolder(const QString &name);

/*! Whether a link stands on the way from \a folder to \a name below it, or what is neither file nor folder. */
bool passesLink(const QString &folder, const QString &name);

} // namespace ZYX_zglv6
