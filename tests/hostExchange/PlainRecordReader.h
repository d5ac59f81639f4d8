// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace TestSupport {

/*! A value by its bytes in the file: those of a number, of a text, of a list of bytes; "\0" or "\1" of a bool. */
struct PlainValue
{
    int tag = 0;
    std::string bytes;
    bool isNull = false; // tags 5 and 7 alone: there is no vector and no string

    bool operator==(const PlainValue &) const = default;
};

using PlainTable = std::map<std::string, PlainValue>;

struct PlainReading
{
    PlainTable table;
    bool good = true; // the stream, afterwards
    std::size_t end = 0; // how many bytes were taken
};

/*! What a reader has to make of \a bytes: the steps of the format in memory, without a line of the library. */
PlainReading readPlainly(std::string_view bytes);

} // namespace TestSupport
