// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxAllocations.h"

namespace TestSupport {

namespace {

constinit thread_local bool isCounting = false;
constinit thread_local int count = 0;

} // namespace

ErrorBoxAllocations::ErrorBoxAllocations()
{
    count = 0;
    isCounting = true;
}

ErrorBoxAllocations::~ErrorBoxAllocations()
{
    stop();
}

int ErrorBoxAllocations::stop()
{
    isCounting = false;
    return count;
}

void ErrorBoxAllocations::countOne()
{
    if (isCounting) {
        ++count;
    }
}

} // namespace TestSupport
