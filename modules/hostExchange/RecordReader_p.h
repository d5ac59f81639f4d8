// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "hostExchange/PhotoshopDataStructure.h"

namespace ZYX_zglv6::Record {

/*! A count or length; 0 where the file says something else there. */
std::uint64_t readSize(std::istream &stream);

/*! Empty: there is no key here, or its bytes end too soon. */
std::string readKey(std::istream &stream);

/*! No value: the tag or that of its length is wrong, or the bytes end too soon. Then nothing further is taken from the
 * stream. */
PhotoshopDataStructure::DataVariant readValue(std::istream &stream);

} // namespace ZYX_zglv6::Record
