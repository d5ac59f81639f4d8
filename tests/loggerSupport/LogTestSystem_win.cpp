// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LogTestSystem.h"

#include <windows.h>

namespace LogTestSystem {

bool dropPrivileges()
{
    return false;
}

void restorePrivileges()
{
}

bool limitFileSize(quint64 /*bytes*/)
{
    return false;
}

int threadCount()
{
    return 0;
}

bool canRenameOpenFiles()
{
    return false;
}

const char *unreadableText()
{
    return static_cast<const char *>(VirtualAlloc(nullptr, 1, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS));
}

} // namespace LogTestSystem
