// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "UserFolders.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>

namespace {

/*! Sets the place of a folder in the sandbox's registry key, which takes the place of the user's. */
void setFolder(const QString &name, const QString &folder)
{
    QSettings shell(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"
                                   "\\User Shell Folders"),
                    QSettings::NativeFormat);
    shell.setValue(name, QDir::toNativeSeparators(folder));
}

} // namespace

UserFolders moveUserFoldersTo(const QString &home)
{
    const UserFolders folders{home + u"/AppData/Local", home + u"/Documents", QString()};
    QDir().mkpath(folders.localData);
    QDir().mkpath(folders.documents);
    setFolder(QStringLiteral("Local AppData"), folders.localData);
    setFolder(QStringLiteral("Personal"), folders.documents);
    return folders;
}

void moveDocumentsTo(const QString &home)
{
    setFolder(QStringLiteral("Personal"), home + u"/Documents");
}
