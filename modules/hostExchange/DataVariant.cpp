// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/PhotoshopDataStructure.h"

#include <utility>

namespace ZYX_zglv6 {

using DataVariant = PhotoshopDataStructure::DataVariant;
using dataHolder = DataVariant::dataHolder;

namespace {

/*! A value of that tag, whose place in the union is \a place. */
template <typename T>
DataVariant made(DataVariant::Type tag, T dataHolder::Value::*place, T value)
{
    auto holder = std::make_shared<dataHolder>(tag);
    holder->value.*place = value;
    return DataVariant(std::move(holder));
}

template <typename T>
std::optional<T> found(const DataVariant &variant, DataVariant::Type tag, T dataHolder::Value::*place)
{
    return variant.type() == tag ? std::optional(variant.holder()->value.*place) : std::nullopt;
}

} // namespace

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
    return made(Int, &dataHolder::Value::number, value);
}

DataVariant DataVariant::fromBits32(std::uint32_t value)
{
    return made(Bits32, &dataHolder::Value::bits32, value);
}

DataVariant DataVariant::fromBits64(std::uint64_t value)
{
    return made(Bits64, &dataHolder::Value::bits64, value);
}

DataVariant DataVariant::fromUInt64(std::uint64_t value)
{
    return made(UInt64, &dataHolder::Value::bits64, value);
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
    return made(Bool, &dataHolder::Value::boolean, value);
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
    return found(*this, Int, &dataHolder::Value::number);
}

std::optional<std::uint32_t> DataVariant::toBits32() const
{
    return found(*this, Bits32, &dataHolder::Value::bits32);
}

std::optional<std::uint64_t> DataVariant::toBits64() const
{
    return found(*this, Bits64, &dataHolder::Value::bits64);
}

std::optional<std::uint64_t> DataVariant::toUInt64() const
{
    return found(*this, UInt64, &dataHolder::Value::bits64);
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
    return found(*this, Bool, &dataHolder::Value::boolean);
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
