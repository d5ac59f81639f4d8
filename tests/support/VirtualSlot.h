// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstring>
#include <optional>

namespace TestSupport {

/*!
    Which virtual operation of its class \a operation is, the first being 1, in a class whose first one is the
    destructor; in other classes the first is 0. Nothing where pointers to members do not tell: they do in the Itanium
    C++ ABI, that is everywhere but with Visual C++.
*/
template <typename Operation>
std::optional<int> virtualSlot(Operation operation)
{
#if defined(_MSC_VER)
    static_cast<void>(operation);
    return std::nullopt;
#else
    // One more than the offset in the table, where the destructor has two entries.
    std::ptrdiff_t oneMoreThanOffset = 0;
    std::memcpy(&oneMoreThanOffset, &operation, sizeof(oneMoreThanOffset));
    if (oneMoreThanOffset % 2 == 0) {
        return std::nullopt; // the address of an operation that is not virtual
    }
    return int(std::size_t(oneMoreThanOffset) / sizeof(void *));
#endif
}

} // namespace TestSupport
