// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxAllocations.h"

#include <cerrno>
#include <cstddef>

// The program's own malloc and its kin come before those of the C library, for all libraries of the process.

#define ZYX_TEST_HEAP_FUNCTION extern "C" __attribute__((visibility("default")))

// NOLINTBEGIN(bugprone-reserved-identifier): the C library's own, behind the functions below
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t number, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)

ZYX_TEST_HEAP_FUNCTION void *malloc(std::size_t size) noexcept
{
    TestSupport::ErrorBoxAllocations::countOne();
    return __libc_malloc(size);
}

ZYX_TEST_HEAP_FUNCTION void *calloc(std::size_t number, std::size_t size) noexcept
{
    TestSupport::ErrorBoxAllocations::countOne();
    return __libc_calloc(number, size);
}

ZYX_TEST_HEAP_FUNCTION void *realloc(void *memory, std::size_t size) noexcept
{
    TestSupport::ErrorBoxAllocations::countOne();
    return __libc_realloc(memory, size);
}

ZYX_TEST_HEAP_FUNCTION void *memalign(std::size_t alignment, std::size_t size) noexcept
{
    TestSupport::ErrorBoxAllocations::countOne();
    return __libc_memalign(alignment, size);
}

ZYX_TEST_HEAP_FUNCTION void *aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    TestSupport::ErrorBoxAllocations::countOne();
    return __libc_memalign(alignment, size);
}

ZYX_TEST_HEAP_FUNCTION int posix_memalign(void **memory, std::size_t alignment, std::size_t size) noexcept
{
    TestSupport::ErrorBoxAllocations::countOne();
    *memory = __libc_memalign(alignment, size);
    return *memory == nullptr ? ENOMEM : 0;
}

namespace TestSupport {

bool ErrorBoxAllocations::areCounted()
{
    return true;
}

bool ErrorBoxAllocations::areCountedInLibraries()
{
    return true;
}

} // namespace TestSupport
