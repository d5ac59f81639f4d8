// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordTable.h"

#include "hostExchange/RecordBytes.h"

#include <array>
#include <sstream>

using ZYX_zglv6::PhotoshopDataStructure;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace TestSupport {

namespace {

std::string textOf(std::span<const unsigned char> bytes)
{
    return {bytes.begin(), bytes.end()};
}

PlainValue plainValue(const DataVariant &value)
{
    switch (value.type()) {
    case DataVariant::Int:
        return {1, number32(static_cast<std::uint32_t>(value.toInt().value()))};
    case DataVariant::Bits32:
        return {2, number32(value.toBits32().value())};
    case DataVariant::Bits64:
        return {3, number64(value.toBits64().value())};
    case DataVariant::UInt64:
        return {4, number64(value.toUInt64().value())};
    case DataVariant::Bytes:
        return {5, textOf(value.toBytes().value()), value.holder()->value.bytes == nullptr};
    case DataVariant::Bool:
        return {6, number(value.toBool().value() ? 1 : 0, 1)};
    case DataVariant::String:
        return {7, std::string(value.toString().value()), value.holder()->value.text == nullptr};
    default:
        return {value.type(), {}};
    }
}

} // namespace

PlainTable plainTable(const PhotoshopDataStructure &record)
{
    PlainTable table;
    for (const auto &[key, value] : record.data()) {
        table.insert_or_assign(key, plainValue(value));
    }
    return table;
}

std::string serialized(const PhotoshopDataStructure &record)
{
    std::ostringstream stream;
    record.serialize(stream);
    return stream.str();
}

PlainReading deserialized(const std::string &bytes)
{
    std::istringstream stream(bytes);
    PhotoshopDataStructure record;
    record.deserialize(stream);
    const bool good = stream.good();
    stream.clear();
    return {plainTable(record), good, static_cast<std::size_t>(stream.tellg())};
}

void fillWithEachTag(PhotoshopDataStructure &record)
{
    const std::array<unsigned char, 4> bytes{0x00, 0x7f, 0x80, 0xff};
    record.setValue("tag1", DataVariant::fromInt(-559038737));
    record.setValue("tag2", DataVariant::fromBits32(0x89abcdef));
    record.setValue("tag3", DataVariant::fromBits64(0xfedcba9876543210));
    record.setValue("tag4", DataVariant::fromUInt64(0x0123456789abcdef));
    record.setValue("tag5", DataVariant::fromBytes(bytes));
    record.setValue("tag6", DataVariant::fromBool(true));
    record.setValue("tag7", DataVariant::fromString("text"));
    record.setValue("null5", DataVariant::fromBytes({}));
    record.setValue("null7", DataVariant::fromString({}));
}

} // namespace TestSupport
