// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*!
    Gives a file, a folder or a link another name or place. Never replaces what is there; a file, but no folder
    and no link, may go to another volume.
*/
bool renameFile(const QString &from, const QString &to);

} // namespace ZyxPlatform
