// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Folders.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>

namespace ZyxPlatform {

QString localApplicationDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString sharedPicturesFolder()
{
    const QString shared = QStandardPaths::writableLocation(QStandardPaths::PublicShareLocation);
    if (shared.isEmpty()) {
        return {};
    }
    const QString pictures = QDir(shared).absoluteFilePath(QStringLiteral("Pictures"));
    return QDir().mkpath(pictures) ? pictures : QString();
}

void createFolder(const QString &path)
{
    QDir().mkpath(path);
}

} // namespace ZyxPlatform
