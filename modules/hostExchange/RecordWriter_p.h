// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "hostExchange/PhotoshopDataStructure.h"

namespace ZYX_zglv6::Record {

/*! The tag of a key, and that of a count or length. */
inline constexpr std::uint32_t keyTag = 7;
inline constexpr std::uint32_t sizeTag = 4;

void writeSize(std::ostream &stream, std::uint64_t size);
void writeKey(std::ostream &stream, const std::string &key);

/*! Writes nothing for no value and for a tag that the file does not know. */
void writeValue(std::ostream &stream, const PhotoshopDataStructure::DataVariant &value);

} // namespace ZYX_zglv6::Record
