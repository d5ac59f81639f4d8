// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/PlainRecordReader.h"
#include "hostExchange/RecordTable.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

using namespace TestSupport;

namespace {

void check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

std::string writtenAgain(const std::string &bytes)
{
    std::istringstream stream(bytes);
    ZYX_zglv6::PhotoshopDataStructure record;
    record.deserialize(stream);
    return serialized(record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    const PlainReading reading = deserialized(bytes);
    const PlainReading expected = readPlainly(bytes);
    check(reading.table == expected.table && reading.good == expected.good && reading.end == expected.end);

    const std::string written = writtenAgain(bytes);
    const PlainReading again = deserialized(written);
    check(again.table == reading.table && again.good && again.end == written.size());
    return 0;
}
