// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/EntryNames_p.h"

#include "platform/FileNames.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

#include <algorithm>

namespace ZYX_zglv6 {

QByteArray entryName(const QString &relativePath)
{
    const QByteArray name = QFile::encodeName(relativePath);
    const auto first = std::find_if_not(name.begin(), name.end(), [](char c) { return c == '\\' || c == '/'; });
    return {first, name.end() - first};
}

bool isUtf8EntryName(const QByteArray &entry, const QString &relativePath)
{
    const bool isAscii = std::all_of(entry.begin(), entry.end(), [](char c) { return (c & 0x80) == 0; });
    return !isAscii && QFile::encodeName(relativePath) == relativePath.toUtf8();
}

bool leavesFolder(const QString &name)
{
    const bool hasDrive = name.size() > 1 && name.at(1) == u':' && name.at(0).isLetter();
    if (hasDrive || name.startsWith(u'/') || name.contains(u'\\')) {
        return true;
    }
    const QStringList parts = name.split(u'/');
    return std::any_of(parts.begin(), parts.end(),
                       [](const QString &part) { return part == u".." || ZyxPlatform::namesDevice(part); });
}

bool passesLink(const QString &folder, const QString &name)
{
    QString path = folder;
    for (const QString &part : name.split(u'/', Qt::SkipEmptyParts)) {
        path += u'/' + part;
        const QFileInfo item(path);
        if (item.isSymbolicLink() || item.isJunction()) {
            return true;
        }
        if (!item.exists()) {
            return false; // there is nothing on the rest of the way
        }
        if (!item.isFile() && !item.isDir()) {
            return true;
        }
    }
    return false;
}

} // namespace ZYX_zglv6
