// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordReader_p.h"

#include "hostExchange/RecordWriter_p.h"

#include <algorithm>
#include <array>
#include <istream>

namespace ZYX_zglv6::Record {

using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

constexpr std::uint64_t pieceSize = 65536; // a length that lies costs little more than what is there

template <typename Number>
bool readNumber(std::istream &stream, Number &number)
{
    std::array<char, sizeof(Number)> bytes{};
    if (!stream.read(bytes.data(), bytes.size())) {
        return false;
    }
    number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        number |= static_cast<Number>(static_cast<Number>(static_cast<unsigned char>(bytes[i])) << (8 * i));
    }
    return true;
}

template <typename Bytes>
bool readBytes(std::istream &stream, std::uint64_t count, Bytes &bytes)
{
    while (count > 0) {
        const std::uint64_t piece = std::min(count, pieceSize);
        const std::size_t before = bytes.size();
        bytes.resize(before + piece);
        if (!stream.read(reinterpret_cast<char *>(bytes.data()) + before, static_cast<std::streamsize>(piece))) {
            return false;
        }
        count -= piece;
    }
    return true;
}

bool readTag(std::istream &stream, std::uint32_t wanted)
{
    std::uint32_t tag = 0;
    return readNumber(stream, tag) && tag == wanted;
}

/*! Bytes for an owner: none at all for a length of 0. */
template <typename Bytes>
bool readOwned(std::istream &stream, Bytes *&owned)
{
    std::uint64_t count = 0;
    if (!readTag(stream, sizeTag) || !readNumber(stream, count)) {
        return false;
    }
    if (count > 0) {
        owned = std::make_unique<Bytes>().release();
    }
    return count == 0 || readBytes(stream, count, *owned);
}

bool readPayload(std::istream &stream, DataVariant::dataHolder &holder)
{
    std::uint32_t bits32 = 0;
    std::uint8_t byte = 0;
    switch (holder.type) {
    case DataVariant::Int:
        holder.value.number = readNumber(stream, bits32) ? static_cast<std::int32_t>(bits32) : 0;
        return stream.good();
    case DataVariant::Bits32:
        return readNumber(stream, holder.value.bits32);
    case DataVariant::Bits64:
    case DataVariant::UInt64:
        return readNumber(stream, holder.value.bits64);
    case DataVariant::Bytes:
        return readOwned(stream, holder.value.bytes);
    case DataVariant::Bool:
        holder.value.boolean = readNumber(stream, byte) && byte != 0;
        return stream.good();
    case DataVariant::String:
        return readOwned(stream, holder.value.text);
    default:
        return false;
    }
}

} // namespace

std::uint64_t readSize(std::istream &stream)
{
    std::uint64_t size = 0;
    return readTag(stream, sizeTag) && readNumber(stream, size) ? size : 0;
}

std::string readKey(std::istream &stream)
{
    std::string key;
    if (!readTag(stream, keyTag) || !readBytes(stream, readSize(stream), key)) {
        key.clear();
    }
    return key;
}

DataVariant readValue(std::istream &stream)
{
    const int type = stream.peek(); // the low byte of the tag: an unknown one is left where it stands
    if (type < DataVariant::Int || type > DataVariant::String) {
        return {};
    }
    auto holder = std::make_shared<DataVariant::dataHolder>(type);
    if (!readTag(stream, static_cast<std::uint32_t>(type)) || !readPayload(stream, *holder)) {
        return {};
    }
    return DataVariant(std::move(holder));
}

} // namespace ZYX_zglv6::Record
