// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*! Folders of the user, and the one of the pictures that all users share; empty if that can't be moved. */
struct UserFolders
{
    QString localData;
    QString documents;
    QString sharedPictures;
};

/*! Moves them into the folder \a home for this process, as far as the system lets itself be moved, and makes the user's
 * own. */
UserFolders moveUserFoldersTo(const QString &home);

/*! Moves the user's documents alone, into the folder \a home. */
void moveDocumentsTo(const QString &home);
