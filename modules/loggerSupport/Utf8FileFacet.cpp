// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "loggerSupport/Utf8FileFacet_p.h"

#include <QtCore/QChar>

#include <algorithm>
#include <array>
#include <cstring>

namespace ZYX_zglv6 {

namespace {

constexpr std::ptrdiff_t longestPiece = 3 + 4; // the replacement of half a pair, and a character

// The stream hands its text over in pieces; a pair that is cut in two has its first half kept in the stream's state.
char16_t pendingHalf(const std::mbstate_t &state)
{
    char16_t half = 0;
    std::memcpy(&half, &state, sizeof half);
    return half;
}

void setPendingHalf(std::mbstate_t &state, char16_t half)
{
    static_assert(sizeof state >= sizeof half);
    std::memcpy(&state, &half, sizeof half);
}

char *put(char *to, char32_t character)
{
    const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (character < 0x80) {
        *to++ = byte(character);
        return to;
    }
    if (character < 0x800) {
        *to++ = byte(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            *to++ = byte(0xE0 | character >> 12);
        } else {
            *to++ = byte(0xF0 | character >> 18);
            *to++ = byte(0x80 | (character >> 12 & 0x3F));
        }
        *to++ = byte(0x80 | (character >> 6 & 0x3F));
    }
    *to++ = byte(0x80 | (character & 0x3F));
    return to;
}

/*! Writes \a unit, up to longestPiece bytes; or keeps it, if it is the first half of a pair. */
char *putUnit(std::mbstate_t &state, char *to, char32_t unit)
{
    const char16_t half = pendingHalf(state);
    setPendingHalf(state, 0);
    if (half != 0 && QChar::isLowSurrogate(unit)) {
        return put(to, QChar::surrogateToUcs4(half, static_cast<char16_t>(unit)));
    }
    if (half != 0) {
        to = put(to, QChar::ReplacementCharacter);
    }
    if (QChar::isHighSurrogate(unit)) {
        setPendingHalf(state, static_cast<char16_t>(unit));
        return to;
    }
    const bool isCharacter = !QChar::isLowSurrogate(unit) && unit <= QChar::LastValidCodePoint;
    return put(to, isCharacter ? unit : char32_t(QChar::ReplacementCharacter));
}

} // namespace

Utf8FileFacet::result Utf8FileFacet::do_out(std::mbstate_t &state, const wchar_t *from, const wchar_t *fromEnd,
                                            const wchar_t *&fromNext, char *to, char *toEnd, char *&toNext) const
{
    while (from != fromEnd) {
        std::mbstate_t next = state;
        std::array<char, longestPiece> piece{};
        char *const end = putUnit(next, piece.data(), static_cast<char32_t>(*from));
        if (end - piece.data() > toEnd - to) {
            break;
        }
        to = std::copy(piece.data(), end, to);
        state = next;
        ++from;
    }
    fromNext = from;
    toNext = to;
    return from == fromEnd ? ok : partial;
}

Utf8FileFacet::result Utf8FileFacet::do_unshift(std::mbstate_t &state, char *to, char *toEnd, char *&toNext) const
{
    toNext = to;
    if (pendingHalf(state) == 0) {
        return noconv;
    }
    if (toEnd - to < 3) {
        return partial;
    }
    toNext = put(to, QChar::ReplacementCharacter);
    setPendingHalf(state, 0);
    return ok;
}

Utf8FileFacet::result Utf8FileFacet::do_in(std::mbstate_t & /*state*/, const char *from, const char * /*fromEnd*/,
                                           const char *&fromNext, wchar_t *to, wchar_t * /*toEnd*/,
                                           wchar_t *&toNext) const
{
    fromNext = from;
    toNext = to;
    return error;
}

int Utf8FileFacet::do_encoding() const noexcept
{
    return 0; // characters differ in their lengths
}

bool Utf8FileFacet::do_always_noconv() const noexcept
{
    return false;
}

int Utf8FileFacet::do_max_length() const noexcept
{
    return longestPiece;
}

} // namespace ZYX_zglv6
