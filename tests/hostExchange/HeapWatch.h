// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace TestSupport {

/*!
    While it lives, what operator new is asked for and what operator delete gets is counted, and a request of more than
    \a limit bytes fails. The program has these operators of its own. One at a time, in a program of one thread.
*/
class HeapWatch
{
public:
    explicit HeapWatch(std::size_t limit = static_cast<std::size_t>(-1));
    ~HeapWatch();

    HeapWatch(const HeapWatch &) = delete;
    HeapWatch &operator=(const HeapWatch &) = delete;

    /*! The sum of all requests, whatever was freed in between. */
    std::size_t requestedBytes() const;

    std::size_t largestRequest() const;
    std::size_t refusedRequests() const;

    /*! How many more blocks were given than were freed. */
    std::ptrdiff_t liveBlocks() const;
};

} // namespace TestSupport
