// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/SystemDiskSpace.h"

#include <windows.h>

qint64 systemDiskSpace(const QString &folder)
{
    ULARGE_INTEGER available{};
    const bool isKnown
        = GetDiskFreeSpaceExW(reinterpret_cast<const wchar_t *>(folder.utf16()), &available, nullptr, nullptr) != 0;
    return isKnown ? qint64(available.QuadPart) : -1;
}
