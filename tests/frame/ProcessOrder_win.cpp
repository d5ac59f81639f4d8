// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ProcessOrder.h"

#include <array>

#include <windows.h>

#include <psapi.h>

namespace TestSupport {

QList<qint64> processesInSystemOrder()
{
    std::array<DWORD, 1024> identifiers{};
    DWORD bytes = 0;
    if (!EnumProcesses(identifiers.data(), DWORD(sizeof(identifiers)), &bytes)) {
        return {};
    }
    return {identifiers.cbegin(), identifiers.cbegin() + bytes / sizeof(DWORD)};
}

} // namespace TestSupport
