// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ProcessListCount.h"

#include "frame/ImportTable_win.h"

#include <windows.h>

#include <atomic>

namespace {

using Function = BOOL(WINAPI *)(DWORD *, DWORD, DWORD *);

std::atomic<int> count{0};
Function enumerateInSystem = nullptr;

BOOL WINAPI enumerate(DWORD *identifiers, DWORD size, DWORD *needed)
{
    ++count;
    return enumerateInSystem(identifiers, size, needed);
}

} // namespace

namespace TestSupport {

int processListCount()
{
    if (enumerateInSystem == nullptr) {
        // "K32EnumProcesses" where the system's headers say so
        enumerateInSystem
            = reinterpret_cast<Function>(replaceImport("EnumProcesses", reinterpret_cast<void *>(&enumerate)));
    }
    return count;
}

} // namespace TestSupport
