// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

// No more than this: inline functions of other headers must not be compiled for a processor that is not there.
#include <cstddef>
#include <cstdint>

/*! The inner loop of compareImages(). */
namespace ImageDifference {

/*!
    Adds to \a sum, pixel by pixel, |r1 - r2| / 255.0 + |g1 - g2| / 255.0 + |b1 - b2| / 255.0 of 0x..RRGGBB;
    the two rows have \a count pixels of four bytes, which may lie anywhere. All functions of this type give the
    same, to the last bit.
*/
using AddPixels = double (*)(double sum, const unsigned char *first, const unsigned char *second, std::size_t count);

double addPixels(double sum, const unsigned char *first, const unsigned char *second, std::size_t count);

/*! For processors with AVX2 alone. */
double addPixelsByVectors(double sum, const unsigned char *first, const unsigned char *second, std::size_t count);

inline constexpr std::size_t pixelSize = 4; // bytes

/*! The fastest one that this processor can run. */
AddPixels fastest();

} // namespace ImageDifference
