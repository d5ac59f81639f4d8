// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "hostExchange/PlainRecordReader.h"

#include "hostExchange/PhotoshopDataStructure.h"

#include <string>

namespace TestSupport {

/*! What \a record holds, read by its accessors; entries without a value have the tag 0. */
PlainTable plainTable(const ZYX_zglv6::PhotoshopDataStructure &record);

/*! What serialize() writes of \a record. */
std::string serialized(const ZYX_zglv6::PhotoshopDataStructure &record);

/*! What deserialize() makes of \a bytes in an empty record. */
PlainReading deserialized(const std::string &bytes);

/*! Gives \a record one entry of each tag, and a null pointer under the tags 5 and 7; the keys are "tag1" and so on. */
void fillWithEachTag(ZYX_zglv6::PhotoshopDataStructure &record);

} // namespace TestSupport
