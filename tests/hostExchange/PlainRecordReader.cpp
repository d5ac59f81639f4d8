// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/PlainRecordReader.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace TestSupport {

namespace {

/*! What an input stream does, told by a position and whether the end was met. */
class Bytes
{
public:
    explicit Bytes(std::string_view bytes)
        : m_bytes(bytes)
    {
    }

    bool isGood() const
    {
        return m_isGood;
    }

    std::size_t position() const
    {
        return m_position;
    }

    /*! Nothing where there are fewer: then the rest is gone. */
    std::optional<std::string> take(std::uint64_t count)
    {
        if (!m_isGood) {
            return std::nullopt;
        }
        const std::size_t rest = m_bytes.size() - m_position;
        if (count > rest) {
            m_position = m_bytes.size();
            m_isGood = false;
            return std::nullopt;
        }
        const std::string taken(m_bytes.substr(m_position, count));
        m_position += count;
        return taken;
    }

    std::optional<std::uint64_t> takeNumber(std::size_t size)
    {
        const std::optional<std::string> taken = take(size);
        if (!taken) {
            return std::nullopt;
        }
        std::uint64_t number = 0;
        for (std::size_t i = size; i > 0; --i) {
            number = number * 256 + static_cast<unsigned char>((*taken)[i - 1]);
        }
        return number;
    }

    /*! The next byte, which stays; -1 at the end. */
    int peek()
    {
        m_isGood = m_isGood && m_position < m_bytes.size();
        return m_isGood ? static_cast<unsigned char>(m_bytes[m_position]) : -1;
    }

private:
    std::string_view m_bytes;
    std::size_t m_position = 0;
    bool m_isGood = true;
};

std::string takeKey(Bytes &bytes)
{
    if (bytes.takeNumber(4) != 7U) {
        return {};
    }
    const std::uint64_t length = bytes.takeNumber(4) == 4U ? bytes.takeNumber(8).value_or(0) : 0;
    return bytes.take(length).value_or(std::string());
}

std::optional<PlainValue> takeOwned(Bytes &bytes, int tag)
{
    if (bytes.takeNumber(4) != 4U) {
        return std::nullopt;
    }
    const std::optional<std::uint64_t> length = bytes.takeNumber(8);
    const std::optional<std::string> payload = length ? bytes.take(*length) : std::nullopt;
    return payload ? std::optional(PlainValue{tag, *payload, payload->empty()}) : std::nullopt;
}

std::optional<PlainValue> takeValue(Bytes &bytes)
{
    static const std::map<int, std::size_t> numberSizes{{1, 4}, {2, 4}, {3, 8}, {4, 8}, {6, 1}};
    const int tag = bytes.peek();
    if (tag < 1 || tag > 7 || bytes.takeNumber(4) != static_cast<std::uint64_t>(tag)) {
        return std::nullopt;
    }
    if (tag == 5 || tag == 7) {
        return takeOwned(bytes, tag);
    }
    std::optional<std::string> payload = bytes.take(numberSizes.at(tag));
    if (!payload) {
        return std::nullopt;
    }
    if (tag == 6) {
        payload = std::string(1, payload->front() == 0 ? '\0' : '\1');
    }
    return PlainValue{tag, *payload, false};
}

} // namespace

PlainReading readPlainly(std::string_view bytes)
{
    PlainReading reading;
    Bytes rest(bytes);
    const std::uint64_t count = rest.takeNumber(4) == 4U ? rest.takeNumber(8).value_or(0) : 0;
    for (std::uint64_t i = 0; i < count && rest.isGood(); ++i) {
        const std::string key = takeKey(rest);
        std::optional<PlainValue> value = key.empty() ? std::nullopt : takeValue(rest);
        if (value) {
            reading.table.insert_or_assign(key, *std::move(value));
        }
    }
    reading.good = rest.isGood();
    reading.end = rest.position();
    return reading;
}

} // namespace TestSupport
