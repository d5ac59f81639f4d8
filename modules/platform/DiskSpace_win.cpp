// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/DiskSpace.h"

#include <windows.h>

namespace ZyxPlatform {

qint64 availableDiskSpace(const QString &path)
{
    ULARGE_INTEGER available{};
    const bool isKnown = GetDiskFreeSpaceExA(path.toLatin1().constData(), &available, nullptr, nullptr) != 0;
    return isKnown ? static_cast<qint64>(available.QuadPart) : 0;
}

} // namespace ZyxPlatform
