// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PeerEnd.h"

#include <csignal>
#include <cstdlib>

void crash()
{
    std::raise(SIGKILL);
    std::abort();
}
