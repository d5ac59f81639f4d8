// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*! What the calling thread needs before and no longer needs after it asks for more rights. */
void prepareElevation();
void endElevation();

struct ElevatedCommand
{
    QString arguments; // as a person would read them
    bool isStarted = false; // false: the user refused, or the system can't ask
};

/*!
    Makes the folder \a path and those above it with an administrator's rights, for which the system asks the user;
    blocks until that is answered. \a permissions is an octal mode for systems whose folders have one. Whether the
    folder is there then, is not told: Windows does not wait for it.
*/
ElevatedCommand createFolderElevated(const QString &path, const QString &permissions);

} // namespace ZyxPlatform
