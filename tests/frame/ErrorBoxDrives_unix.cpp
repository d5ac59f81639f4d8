// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ErrorBoxDrives.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace {

QByteArray madeFolder(const QString &path)
{
    if (!QDir().mkpath(path)) {
        qFatal("The folder %s could not be made.", qPrintable(path));
    }
    return QFile::encodeName(path);
}

} // namespace

QList<ErrorBoxDrive> errorBoxDrives(const QString &home)
{
    const QString path = QDir(home).canonicalPath();
    return {
        {"no colon", "TMPDIR", madeFolder(path), path + QStringLiteral(":/")},
        {"colon", "TMPDIR", madeFolder(path + u"/C:/Temp"), path + QStringLiteral("/C:/")},
        {"two colons", "TMPDIR", madeFolder(path + u"/D:/a:b"), path + QStringLiteral("/D:/")},
    };
}
