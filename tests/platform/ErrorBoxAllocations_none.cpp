// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxAllocations.h"

namespace TestSupport {

bool ErrorBoxAllocations::areCounted()
{
    return false;
}

bool ErrorBoxAllocations::areCountedInLibraries()
{
    return false;
}

} // namespace TestSupport
