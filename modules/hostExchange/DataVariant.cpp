// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/PhotoshopDataStructure.h"

#include <utility>

namespace ZYX_zglv6 {

using DataVariant = PhotoshopDataStructure::DataVariant;
using dataHolder = DataVariant::dataHolder;

dataHolder::dataHolder(std::int32_t tag)
    : type(tag)
{
    if (tag == Bytes) {
        value.bytes = nullptr;
    } else if (tag == String) {
        value.text = nullptr;
    }
}

dataHolder::~dataHolder()
{
    if (type == Bytes) {
        delete value.bytes;
    } else if (type == String) {
        delete value.text;
    }
}

DataVariant::DataVariant(std::shared_ptr<dataHolder> holder)
    : m_holder(std::move(holder))
{
}

DataVariant DataVariant::fromInt(std::int32_t value)
{
    auto holder = std::make_shared<dataHolder>(Int);
    holder->value.number = value;
    return DataVariant(std::move(holder));
}

DataVariant DataVariant::fromBits32(std::uint32_t value)
{
    auto holder = std::make_shared<dataHolder>(Bits32);
    holder->value.bits32 = value;
    return DataVariant(std::move(holder));
}

DataVariant DataVariant::fromBits64(std::uint64_t value)
{
    auto holder = std::make_shared<dataHolder>(Bits64);
    holder->value.bits64 = value;
    return DataVariant(std::move(holder));
}

DataVariant DataVariant::fromUInt64(std::uint64_t value)
{
    auto holder = std::make_shared<dataHolder>(UInt64);
    holder->value.bits64 = value;
    return DataVariant(std::move(holder));
}

DataVariant DataVariant::fromBytes(std::span<const unsigned char> value)
{
    auto holder = std::make_shared<dataHolder>(Bytes);
    if (!value.empty()) {
        holder->value.bytes = std::make_unique<std::vector<unsigned char>>(value.begin(), value.end()).release();
    }
    return DataVariant(std::move(holder));
}

DataVariant DataVariant::fromBool(bool value)
{
    auto holder = std::make_shared<dataHolder>(Bool);
    holder->value.boolean = value;
    return DataVariant(std::move(holder));
}

DataVariant DataVariant::fromString(std::string_view value)
{
    auto holder = std::make_shared<dataHolder>(String);
    if (!value.empty()) {
        holder->value.text = std::make_unique<std::string>(value).release();
    }
    return DataVariant(std::move(holder));
}

std::int32_t DataVariant::type() const
{
    return m_holder ? m_holder->type : 0;
}

std::optional<std::int32_t> DataVariant::toInt() const
{
    return type() == Int ? std::optional(m_holder->value.number) : std::nullopt;
}

std::optional<std::uint32_t> DataVariant::toBits32() const
{
    return type() == Bits32 ? std::optional(m_holder->value.bits32) : std::nullopt;
}

std::optional<std::uint64_t> DataVariant::toBits64() const
{
    return type() == Bits64 ? std::optional(m_holder->value.bits64) : std::nullopt;
}

std::optional<std::uint64_t> DataVariant::toUInt64() const
{
    return type() == UInt64 ? std::optional(m_holder->value.bits64) : std::nullopt;
}

std::optional<std::span<const unsigned char>> DataVariant::toBytes() const
{
    using Span = std::span<const unsigned char>;
    if (type() != Bytes) {
        return std::nullopt;
    }
    return m_holder->value.bytes ? Span(*m_holder->value.bytes) : Span();
}

std::optional<bool> DataVariant::toBool() const
{
    return type() == Bool ? std::optional(m_holder->value.boolean) : std::nullopt;
}

std::optional<std::string_view> DataVariant::toString() const
{
    if (type() != String) {
        return std::nullopt;
    }
    return m_holder->value.text ? std::string_view(*m_holder->value.text) : std::string_view();
}

const DataVariant::dataHolder *DataVariant::holder() const
{
    return m_holder.get();
}

} // namespace ZYX_zglv6
