// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordWriter_p.h"

#include <array>
#include <ostream>

namespace ZYX_zglv6::Record {

using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

template <typename Number>
void writeNumber(std::ostream &stream, Number number)
{
    std::array<char, sizeof(Number)> bytes{}; // the file is little-endian on any machine
    for (char &byte : bytes) {
        byte = static_cast<char>(number & 0xFFU);
        number = static_cast<Number>(number >> 8U);
    }
    stream.write(bytes.data(), bytes.size());
}

template <typename Bytes>
void writeBytes(std::ostream &stream, const Bytes *bytes)
{
    writeSize(stream, bytes ? bytes->size() : 0);
    if (bytes) {
        stream.write(reinterpret_cast<const char *>(bytes->data()), static_cast<std::streamsize>(bytes->size()));
    }
}

void writePayload(std::ostream &stream, const DataVariant::dataHolder &holder)
{
    switch (holder.type) {
    case DataVariant::Int:
        return writeNumber(stream, static_cast<std::uint32_t>(holder.value.number));
    case DataVariant::Bits32:
        return writeNumber(stream, holder.value.bits32);
    case DataVariant::Bits64:
    case DataVariant::UInt64:
        return writeNumber(stream, holder.value.bits64);
    case DataVariant::Bytes:
        return writeBytes(stream, holder.value.bytes);
    case DataVariant::Bool:
        return writeNumber(stream, static_cast<std::uint8_t>(holder.value.boolean));
    case DataVariant::String:
        return writeBytes(stream, holder.value.text);
    default:
        return;
    }
}

} // namespace

void writeSize(std::ostream &stream, std::uint64_t size)
{
    writeNumber(stream, sizeTag);
    writeNumber(stream, size);
}

void writeKey(std::ostream &stream, const std::string &key)
{
    writeNumber(stream, keyTag);
    writeBytes(stream, &key);
}

void writeValue(std::ostream &stream, const DataVariant &value)
{
    const DataVariant::dataHolder *holder = value.holder();
    if (!holder || holder->type < DataVariant::Int || holder->type > DataVariant::String) {
        return;
    }
    writeNumber(stream, static_cast<std::uint32_t>(holder->type));
    writePayload(stream, *holder);
}

} // namespace ZYX_zglv6::Record
