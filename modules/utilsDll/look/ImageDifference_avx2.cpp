// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//
// How vectors give the sum of adding pixel by pixel, to the last bit.
//
// While a sum s stays between two powers of two, 2^e and 2^(e+1), its unit u in the last place is the same. Adding a
// pixel's share t then adds t rounded to a multiple of u, whatever s is; only where t lies half-way between two
// multiples it matters whether s is an even one. Multiples of u below 2^(e+1) are added without error, in any order. So
// a block of pixels is rounded and added up by lanes. A block that has a half-way share, or leads beyond 2^(e+1), goes
// pixel by pixel instead, and so do the first ones, while the sum is small. A block without any difference adds
// nothing.
#include "utilsDll/look/ImageDifference_p.h"

#include <immintrin.h>

namespace ImageDifference {

namespace {

constexpr std::size_t blockSize = 512; // pixels
constexpr double smallestSum = 16; // a share is at most 3, which has to be less than half of the power of two

// 1 / 255 in two parts: the first has so few digits that its products with 0 to 255 are exact
constexpr double upperPart = static_cast<double>(1ULL << 44U) / 255.0;
constexpr double inverseUpper
    = static_cast<double>(static_cast<std::uint64_t>(upperPart)) / static_cast<double>(1ULL << 44U);
constexpr double rest = 1.0 - inverseUpper * 255.0; // exact
constexpr double inverseLower = rest / 255.0;

struct Block
{
    double sum;
    bool isHalfWay;
};

double powerOfTwoBelow(double value)
{
    const __m128i exponent = _mm_set1_epi64x(0x7ff0000000000000);
    return _mm_cvtsd_f64(_mm_and_pd(_mm_set_sd(value), _mm_castsi128_pd(exponent)));
}

/*! Four differences of a channel, divided by 255.0 and rounded as a division rounds. */
__m256d quotients(__m128i differences)
{
    const __m256d values = _mm256_cvtepi32_pd(differences);
    return _mm256_add_pd(_mm256_mul_pd(values, _mm256_set1_pd(inverseUpper)),
                         _mm256_mul_pd(values, _mm256_set1_pd(inverseLower)));
}

__m256d sharesOf(const std::uint32_t *first, const std::uint32_t *second)
{
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i *>(first));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i *>(second));
    const __m128i differences = _mm_sub_epi8(_mm_max_epu8(a, b), _mm_min_epu8(a, b));
    const __m128i byte = _mm_set1_epi32(0xff);
    const __m256d red = quotients(_mm_and_si128(_mm_srli_epi32(differences, 16), byte));
    const __m256d green = quotients(_mm_and_si128(_mm_srli_epi32(differences, 8), byte));
    const __m256d blue = quotients(_mm_and_si128(differences, byte));
    return _mm256_add_pd(_mm256_add_pd(red, green), blue);
}

double sumOfLanes(__m256d lanes)
{
    const __m128d pairs = _mm_add_pd(_mm256_castpd256_pd128(lanes), _mm256_extractf128_pd(lanes, 1));
    return _mm_cvtsd_f64(_mm_add_sd(pairs, _mm_unpackhi_pd(pairs, pairs)));
}

/*! What a block adds to a sum whose next lower power of two is \a power. */
Block roundedBlock(double power, const std::uint32_t *first, const std::uint32_t *second)
{
    const __m256d shift = _mm256_set1_pd(1.5 * power); // what is added to it and taken off again, is rounded to units
    const __m256d half = _mm256_set1_pd(power * 0x1p-53);
    const __m256d sign = _mm256_set1_pd(-0.0);
    __m256d sum = _mm256_setzero_pd();
    __m256d isHalfWay = _mm256_setzero_pd();
    for (std::size_t i = 0; i < blockSize; i += 4) {
        const __m256d shares = sharesOf(first + i, second + i);
        const __m256d rounded = _mm256_sub_pd(_mm256_add_pd(shares, shift), shift);
        const __m256d error = _mm256_andnot_pd(sign, _mm256_sub_pd(shares, rounded));
        isHalfWay = _mm256_or_pd(isHalfWay, _mm256_cmp_pd(error, half, _CMP_EQ_OQ));
        sum = _mm256_add_pd(sum, rounded);
    }
    return {sumOfLanes(sum), _mm256_movemask_pd(isHalfWay) != 0};
}

} // namespace

double addPixelsByVectors(double sum, const std::uint32_t *first, const std::uint32_t *second, std::size_t count)
{
    std::size_t done = 0;
    for (; done + blockSize <= count; done += blockSize) {
        const double power = powerOfTwoBelow(sum < smallestSum ? smallestSum : sum);
        const Block block = roundedBlock(power, first + done, second + done);
        const bool isRight = sum >= smallestSum && !block.isHalfWay && sum + block.sum < 2 * power;
        if (isRight || block.sum == 0) { // the smallest share does not round to 0
            sum += block.sum;
        } else {
            sum = addPixels(sum, first + done, second + done, blockSize);
        }
    }
    return addPixels(sum, first + done, second + done, count - done);
}

} // namespace ImageDifference
