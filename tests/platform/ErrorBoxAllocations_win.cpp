// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxAllocations.h"

#include <cstdlib>
#include <new>

namespace {

thread_local bool isCounting = false;
thread_local int count = 0;

} // namespace

void *operator new(std::size_t size)
{
    if (isCounting) {
        ++count;
    }
    if (void *memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace TestSupport {

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

bool ErrorBoxAllocations::areCounted()
{
    return true;
}

bool ErrorBoxAllocations::areCountedInLibraries()
{
    return false;
}

} // namespace TestSupport
