// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/RenameFile.h"

#include <windows.h>

namespace ZyxPlatform {

bool renameFile(const QString &from, const QString &to)
{
    return MoveFileW(reinterpret_cast<const wchar_t *>(from.utf16()), reinterpret_cast<const wchar_t *>(to.utf16()))
        != 0;
}

} // namespace ZyxPlatform
