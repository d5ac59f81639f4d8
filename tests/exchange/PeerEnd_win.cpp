// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PeerEnd.h"

#include <cstdlib>

#include <windows.h>

void crash()
{
    TerminateProcess(GetCurrentProcess(), EXCEPTION_ACCESS_VIOLATION);
    std::abort();
}
