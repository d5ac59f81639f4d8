// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/ImageDifference_p.h"

#include "platform/Processor.h"

#include <array>
#include <cstdlib>

namespace ImageDifference {

namespace {

/*! What a channel adds, by its difference: a look-up, because a division takes longer than all the rest. */
constexpr std::array<double, 256> shares = [] {
    std::array<double, 256> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<double>(i) / 255.0;
    }
    return all;
}();

double share(std::uint32_t first, std::uint32_t second, unsigned shift)
{
    const auto a = static_cast<int>((first >> shift) & 0xffU);
    const auto b = static_cast<int>((second >> shift) & 0xffU);
    return shares[static_cast<std::size_t>(std::abs(a - b))];
}

} // namespace

double addPixels(double sum, const std::uint32_t *first, const std::uint32_t *second, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        sum += share(first[i], second[i], 16) + share(first[i], second[i], 8) + share(first[i], second[i], 0);
    }
    return sum;
}

AddPixels fastest()
{
    static const AddPixels chosen = ZyxPlatform::hasAvx2() ? addPixelsByVectors : addPixels;
    return chosen;
}

} // namespace ImageDifference
