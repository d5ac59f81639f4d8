// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/HeapWatch.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

struct Counts
{
    bool isWatching = false;
    std::size_t limit = 0;
    std::size_t requested = 0;
    std::size_t largest = 0;
    std::size_t refused = 0;
    std::ptrdiff_t live = 0;
};

constinit Counts counts; // ready before the first allocation of the process

void *allocate(std::size_t size) noexcept
{
    if (!counts.isWatching) {
        return std::malloc(std::max<std::size_t>(size, 1));
    }
    counts.largest = std::max(counts.largest, size);
    if (size > counts.limit) {
        ++counts.refused;
        return nullptr;
    }
    counts.requested += size;
    ++counts.live;
    return std::malloc(std::max<std::size_t>(size, 1));
}

void release(void *block) noexcept
{
    if (counts.isWatching && block) {
        --counts.live;
    }
    std::free(block);
}

void *allocateOrThrow(std::size_t size)
{
    void *block = allocate(size);
    if (!block) {
        throw std::bad_alloc();
    }
    return block;
}

} // namespace

void *operator new(std::size_t size)
{
    return allocateOrThrow(size);
}

void *operator new[](std::size_t size)
{
    return allocateOrThrow(size);
}

void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return allocate(size);
}

void *operator new[](std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    return allocate(size);
}

void operator delete(void *block) noexcept
{
    release(block);
}

void operator delete[](void *block) noexcept
{
    release(block);
}

void operator delete(void *block, std::size_t /*size*/) noexcept
{
    release(block);
}

void operator delete[](void *block, std::size_t /*size*/) noexcept
{
    release(block);
}

void operator delete(void *block, const std::nothrow_t & /*tag*/) noexcept
{
    release(block);
}

void operator delete[](void *block, const std::nothrow_t & /*tag*/) noexcept
{
    release(block);
}

namespace TestSupport {

HeapWatch::HeapWatch(std::size_t limit)
{
    counts = {};
    counts.limit = limit;
    counts.isWatching = true;
}

HeapWatch::~HeapWatch()
{
    counts.isWatching = false;
}

std::size_t HeapWatch::requestedBytes() const
{
    return counts.requested;
}

std::size_t HeapWatch::largestRequest() const
{
    return counts.largest;
}

std::size_t HeapWatch::refusedRequests() const
{
    return counts.refused;
}

std::ptrdiff_t HeapWatch::liveBlocks() const
{
    return counts.live;
}

} // namespace TestSupport
