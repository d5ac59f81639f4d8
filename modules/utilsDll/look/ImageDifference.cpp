// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/ImageDifference_p.h"

#include "platform/Processor.h"

#include <array>
#include <cstdlib>
#include <cstring>

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

std::uint32_t pixelAt(const unsigned char *row, std::size_t x)
{
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, row + x * pixelSize, sizeof pixel);
    return pixel;
}

double share(std::uint32_t first, std::uint32_t second, unsigned shift)
{
    const auto a = static_cast<int>((first >> shift) & 0xffU);
    const auto b = static_cast<int>((second >> shift) & 0xffU);
    return shares[static_cast<std::size_t>(std::abs(a - b))];
}

} // namespace

double addPixels(double sum, const unsigned char *first, const unsigned char *second, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t a = pixelAt(first, i);
        const std::uint32_t b = pixelAt(second, i);
        sum += share(a, b, 16) + share(a, b, 8) + share(a, b, 0);
    }
    return sum;
}

AddPixels fastest()
{
    static const AddPixels chosen = ZyxPlatform::hasAvx2() ? addPixelsByVectors : addPixels;
    return chosen;
}

} // namespace ImageDifference
