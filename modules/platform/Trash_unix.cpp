// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Trash.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>

namespace ZyxPlatform {

namespace {

/*! Qt puts the file into the working folder, and is content, where it finds no trash and can't make one. */
bool isHomeTrashThere()
{
    const QDir home(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    if (!home.mkpath(QStringLiteral("."))) {
        return false;
    }
    constexpr QFile::Permissions ownersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    for (const QString &folder :
         {QStringLiteral("Trash"), QStringLiteral("Trash/files"), QStringLiteral("Trash/info")}) {
        if (!QDir(home.filePath(folder)).exists() && !home.mkdir(folder, ownersAlone)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool moveToTrash(const QString &path)
{
    return isHomeTrashThere() && QFile::moveToTrash(path);
}

} // namespace ZyxPlatform
