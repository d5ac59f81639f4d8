// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxAllocations.h"

#include <cstdlib>
#include <new>

void *operator new(std::size_t size)
{
    TestSupport::ErrorBoxAllocations::countOne();
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

bool ErrorBoxAllocations::areCounted()
{
    return true;
}

bool ErrorBoxAllocations::areCountedInLibraries()
{
    return false;
}

} // namespace TestSupport
