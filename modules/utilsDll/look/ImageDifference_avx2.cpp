// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//
// How integers give the sum of adding pixel by pixel in double precision, to the last bit.
//
// While a sum stays between two powers of two, 2^e and 2^(e+1), its unit in the last place is u = 2^(e-52), and adding
// a pixel's share to it adds the share rounded to a multiple of u. Multiples of u below 2^(e+1) are added without
// error, in any order. A share is n / 255, where n is the sum of its three differences, with an error below 2^-50 from
// its own roundings. As 255 is odd, n / 255 lies at least u / 510 away from the middle between two multiples of u, so
// from e = 12 on that error decides nothing, and the share adds round(n / 255 / u) units.
//
// With m = 52 - e, n / 255 / u = n * 2^m / 255. Of 2^m, 255 leaves 2^(m mod 8), which gives
//     round(n * 2^m / 255) = n * ((2^m - 2^(m mod 8)) / 255) + round(n * 2^(m mod 8) / 255),
// two whole numbers; a block of pixels adds up n and the second term by lanes. A block that leads to 2^(e+1) or beyond
// goes pixel by pixel instead, and so do differing pixels while the sum is small.
#include "utilsDll/look/ImageDifference_p.h"

#include <immintrin.h>

namespace ImageDifference {

namespace {

constexpr std::size_t blockSize = 512; // pixels
constexpr std::size_t vectorSize = 8;
constexpr double smallestSum = 4096; // 2^12

__m256i loaded(const unsigned char *pixels)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(pixels));
}

/*! The three differences of each of eight pixels, added up: 0 to 765. */
__m256i sumsOfChannels(const unsigned char *first, const unsigned char *second)
{
    const __m256i a = loaded(first);
    const __m256i b = loaded(second);
    const __m256i differences = _mm256_or_si256(_mm256_subs_epu8(a, b), _mm256_subs_epu8(b, a));
    const __m256i pairs = _mm256_maddubs_epi16(differences, _mm256_set1_epi32(0x00010101)); // without alpha
    return _mm256_madd_epi16(pairs, _mm256_set1_epi16(1));
}

std::uint64_t sumOfLanes(__m256i lanes)
{
    alignas(32) std::uint32_t values[vectorSize]; // NOLINT(modernize-avoid-c-arrays): no other header, as _p.h says
    _mm256_store_si256(reinterpret_cast<__m256i *>(values), lanes);
    std::uint64_t sum = 0;
    for (const std::uint32_t value : values) {
        sum += value;
    }
    return sum;
}

/*! What a block adds, in units of 2^-m. */
std::uint64_t unitsOf(int m, const unsigned char *first, const unsigned char *second)
{
    const __m128i shift = _mm_cvtsi32_si128(m % 8);
    const __m256i half = _mm256_set1_epi32(128);
    __m256i whole = _mm256_setzero_si256();
    __m256i rounded = _mm256_setzero_si256();
    for (std::size_t i = 0; i < blockSize; i += vectorSize) {
        const __m256i sums = sumsOfChannels(first + i * pixelSize, second + i * pixelSize);
        whole = _mm256_add_epi32(whole, sums);
        // the quotient by 255 to the nearest: right for each of the sums, 0 to 765, and each shift, 0 to 7
        const __m256i x = _mm256_add_epi32(_mm256_sll_epi32(sums, shift), half);
        rounded = _mm256_add_epi32(rounded, _mm256_srli_epi32(_mm256_add_epi32(x, _mm256_srli_epi32(x, 8)), 8));
    }
    const std::uint64_t factor = ((std::uint64_t(1) << m) - (std::uint64_t(1) << (m % 8))) / 255;
    return sumOfLanes(whole) * factor + sumOfLanes(rounded);
}

/*! The e of the sum's greatest power of two that is not above it. */
int exponentOf(double sum)
{
    return static_cast<int>(_mm_cvtsi128_si64(_mm_castpd_si128(_mm_set_sd(sum))) >> 52) - 1023;
}

double powerOfTwo(int exponent)
{
    return _mm_cvtsd_f64(_mm_castsi128_pd(_mm_cvtsi64_si128(static_cast<std::int64_t>(exponent + 1023) << 52)));
}

/*! Passes over pixels that are equal, which add nothing. */
double addDifferingPixels(double sum, const unsigned char *first, const unsigned char *second)
{
    for (std::size_t i = 0; i < blockSize; i += vectorSize) {
        const __m256i sums = sumsOfChannels(first + i * pixelSize, second + i * pixelSize);
        if (!_mm256_testz_si256(sums, sums)) {
            sum = addPixels(sum, first + i * pixelSize, second + i * pixelSize, vectorSize);
        }
    }
    return sum;
}

double addBlock(double sum, const unsigned char *first, const unsigned char *second)
{
    if (sum < smallestSum) {
        return addDifferingPixels(sum, first, second);
    }
    const int exponent = exponentOf(sum);
    const int m = 52 - exponent;
    const auto units = static_cast<double>(static_cast<std::int64_t>(unitsOf(m, first, second)));
    const double next = sum + units * powerOfTwo(-m);
    return next < powerOfTwo(exponent + 1) ? next : addPixels(sum, first, second, blockSize);
}

} // namespace

double addPixelsByVectors(double sum, const unsigned char *first, const unsigned char *second, std::size_t count)
{
    std::size_t done = 0;
    for (; done + blockSize <= count; done += blockSize) {
        sum = addBlock(sum, first + done * pixelSize, second + done * pixelSize);
    }
    return addPixels(sum, first + done * pixelSize, second + done * pixelSize, count - done);
}

} // namespace ImageDifference
