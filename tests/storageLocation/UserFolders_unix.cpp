// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "UserFolders.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

UserFolders moveUserFoldersTo(const QString &home)
{
    // The sandbox has set the variables that lead here.
    const UserFolders folders{home + u"/.local/share", home + u"/Documents", home + u"/Public/Pictures"};
    QDir().mkpath(folders.localData);
    QDir().mkpath(folders.documents);
    return folders;
}

void moveDocumentsTo(const QString &home)
{
    qputenv("HOME", QFile::encodeName(home)); // the other folders have variables of their own
}
