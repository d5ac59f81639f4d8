// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/*! Pieces of a data file, to put together good ones and bad ones. */
namespace TestSupport {

/*! Little-endian. */
inline std::string number(std::uint64_t value, int size)
{
    std::string bytes;
    for (int i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> (8 * i));
    }
    return bytes;
}

inline std::string number32(std::uint32_t value)
{
    return number(value, 4);
}

inline std::string number64(std::uint64_t value)
{
    return number(value, 8);
}

inline std::string sizeField(std::uint64_t size)
{
    return number32(4) + number64(size);
}

inline std::string keyField(const std::string &key)
{
    return number32(7) + sizeField(key.size()) + key;
}

inline std::string intField(std::int32_t value)
{
    return number32(1) + number32(static_cast<std::uint32_t>(value));
}

/*! A value of tag 5 or 7. */
inline std::string bytesField(std::uint32_t tag, const std::string &bytes)
{
    return number32(tag) + sizeField(bytes.size()) + bytes;
}

inline std::string intEntry(const std::string &key, std::int32_t value)
{
    return keyField(key) + intField(value);
}

/*! The bytes of a literal that has null bytes in it. */
template <std::size_t size>
std::string raw(const char (&literal)[size])
{
    return {literal, size - 1};
}

} // namespace TestSupport
