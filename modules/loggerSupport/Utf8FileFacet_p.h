// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cwchar>
#include <locale>

namespace ZYX_zglv6 {

/*!
    Lets a wide file stream write UTF-8, whatever the locale of the process is; for writing only.

    It never fails: one character that can't be converted would otherwise break the stream, and the standard library of
    MinGW then throws out of the next close. Half a surrogate pair becomes U+FFFD.
*/
class Utf8FileFacet final : public std::codecvt<wchar_t, char, std::mbstate_t>
{
protected:
    result do_out(std::mbstate_t &state, const wchar_t *from, const wchar_t *fromEnd, const wchar_t *&fromNext,
                  char *to, char *toEnd, char *&toNext) const override;
    result do_unshift(std::mbstate_t &state, char *to, char *toEnd, char *&toNext) const override;
    result do_in(std::mbstate_t &state, const char *from, const char *fromEnd, const char *&fromNext, wchar_t *to,
                 wchar_t *toEnd, wchar_t *&toNext) const override;
    int do_encoding() const noexcept override;
    bool do_always_noconv() const noexcept override;
    int do_max_length() const noexcept override;
};

} // namespace ZYX_zglv6
