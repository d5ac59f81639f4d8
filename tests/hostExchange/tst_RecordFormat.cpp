// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordBytes.h"
#include "hostExchange/RecordTable.h"

#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <limits>
#include <sstream>
#include <vector>

using namespace TestSupport;
using ZYX_zglv6::PhotoshopDataStructure;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

using Bytes = std::vector<unsigned char>;

QByteArray qt(const std::string &bytes)
{
    return QByteArray::fromStdString(bytes);
}

/*! The bytes of a table of the entry "k" alone, whose value is \a value. */
QByteArray fileOf(const DataVariant &value)
{
    PhotoshopDataStructure record;
    record.setValue("k", value);
    return qt(serialized(record));
}

/*! A buffer that knows neither its length nor any position, and hands out its bytes one by one. */
class DripBuffer : public std::streambuf
{
public:
    explicit DripBuffer(std::string bytes)
        : m_bytes(std::move(bytes))
    {
    }

protected:
    int_type underflow() override
    {
        if (m_next == m_bytes.size()) {
            return traits_type::eof();
        }
        char *byte = &m_bytes[m_next];
        ++m_next;
        setg(byte, byte, byte + 1);
        return traits_type::to_int_type(*byte);
    }

private:
    std::string m_bytes;
    std::size_t m_next = 0;
};

} // namespace

class tst_RecordFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void serialize_emptyTable_isTheCountAlone();
    void serialize_width_isByteForByteAsAgreed();
    void serialize_valueOfEachTag_data();
    void serialize_valueOfEachTag();
    void serialize_manyEntries_areInTheTablesOrder();
    void serialize_entryWithoutValue_isAKeyAlone();
    void serialize_tagOutside1To7_isAKeyAlone_data();
    void serialize_tagOutside1To7_isAKeyAlone();
    void serialize_streamNotGood_writesNothing_data();
    void serialize_streamNotGood_writesNothing();
    void serialize_streamThatFills_isBad();

    void deserialize_valueOfEachTag_data();
    void deserialize_valueOfEachTag();
    void deserialize_whatWasWritten_isEqual();
    void deserialize_nullPointers_areHoldersWithNullPointers();
    void deserialize_bool_isOneByte_data();
    void deserialize_bool_isOneByte();
    void deserialize_anyOrderOfEntries_isTheSameTable();
    void deserialize_sameKeyTwice_keepsTheLaterValue();
    void deserialize_takesItsTableAlone();
    void deserialize_replacesThePresentTable();
    void deserialize_emptyTable_replacesThePresentTable();
    void deserialize_streamNotGood_keepsTheTable_data();
    void deserialize_streamNotGood_keepsTheTable();
    void deserialize_streamWithoutPositions_isRead();
    void deserialize_keysAreBytes();
    void deserialize_longValues_comeBackWhole_data();
    void deserialize_longValues_comeBackWhole();
    void deserialize_longKey_comesBackWhole_data();
    void deserialize_longKey_comesBackWhole();
    void deserialize_tenThousandEntries_comeBackWhole();
};

void tst_RecordFormat::serialize_emptyTable_isTheCountAlone()
{
    const PhotoshopDataStructure record;
    QCOMPARE(qt(serialized(record)), QByteArray::fromHex("04000000 0000000000000000"));
}

void tst_RecordFormat::serialize_width_isByteForByteAsAgreed()
{
    PhotoshopDataStructure record;
    record.setValue("width", 640);
    QCOMPARE(qt(serialized(record)),
             QByteArray::fromHex("04000000 0100000000000000"
                                 "07000000 04000000 0500000000000000 7769647468"
                                 "01000000 80020000"));
}

void tst_RecordFormat::serialize_valueOfEachTag_data()
{
    QTest::addColumn<std::shared_ptr<DataVariant>>("value");
    QTest::addColumn<QByteArray>("bytes");

    const auto row = [](const char *name, const DataVariant &value, const char *hex) {
        QTest::newRow(name) << std::make_shared<DataVariant>(value) << QByteArray::fromHex(hex);
    };
    row("integer", DataVariant::fromInt(0x01020304), "01000000 04030201");
    row("integer 0", DataVariant::fromInt(0), "01000000 00000000");
    row("integer -1", DataVariant::fromInt(-1), "01000000 ffffffff");
    row("least integer", DataVariant::fromInt(std::numeric_limits<int>::min()), "01000000 00000080");
    row("32 bits", DataVariant::fromBits32(0x89abcdef), "02000000 efcdab89");
    row("64 bits", DataVariant::fromBits64(0xfedcba9876543210), "03000000 1032547698badcfe");
    row("unsigned 64 bits", DataVariant::fromUInt64(0x8000000000000001), "04000000 0100000000000080");
    row("bytes", DataVariant::fromBytes(Bytes{0x00, 0x0a, 0x0d, 0x1a, 0xff}),
        "05000000 04000000 0500000000000000 000a0d1aff");
    row("no bytes", DataVariant::fromBytes({}), "05000000 04000000 0000000000000000");
    row("true", DataVariant::fromBool(true), "06000000 01");
    row("false", DataVariant::fromBool(false), "06000000 00");
    row("text", DataVariant::fromString(std::string("a\0\xe4", 3)), "07000000 04000000 0300000000000000 6100e4");
    row("empty text", DataVariant::fromString({}), "07000000 04000000 0000000000000000");
}

void tst_RecordFormat::serialize_valueOfEachTag()
{
    QFETCH(std::shared_ptr<DataVariant>, value);
    QFETCH(QByteArray, bytes);

    const QByteArray front = QByteArray::fromHex("04000000 0100000000000000 07000000 04000000 0100000000000000 6b");
    QCOMPARE(fileOf(*value), QByteArray(front + bytes));
}

void tst_RecordFormat::serialize_manyEntries_areInTheTablesOrder()
{
    PhotoshopDataStructure record;
    std::string expected = sizeField(50);
    for (int i = 0; i < 50; ++i) {
        record.setValue("key " + std::to_string(i), i);
    }
    for (const auto &[key, value] : record.data()) {
        expected += intEntry(key, value.toInt().value());
    }
    QCOMPARE(qt(serialized(record)), qt(expected));
}

void tst_RecordFormat::serialize_entryWithoutValue_isAKeyAlone()
{
    QCOMPARE(fileOf(DataVariant()), qt(sizeField(1) + keyField("k")));
}

void tst_RecordFormat::serialize_tagOutside1To7_isAKeyAlone_data()
{
    QTest::addColumn<int>("tag");

    for (const int tag : {0, 8, -1, 0x101, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QTest::addRow("tag %d", tag) << tag;
    }
}

void tst_RecordFormat::serialize_tagOutside1To7_isAKeyAlone()
{
    QFETCH(int, tag);

    const DataVariant value(std::make_shared<DataVariant::dataHolder>(tag));
    QCOMPARE(fileOf(value), qt(sizeField(1) + keyField("k")));
}

void tst_RecordFormat::serialize_streamNotGood_writesNothing_data()
{
    QTest::addColumn<int>("state");

    QTest::newRow("end of file") << int(std::ios::eofbit);
    QTest::newRow("failed") << int(std::ios::failbit);
    QTest::newRow("bad") << int(std::ios::badbit);
}

void tst_RecordFormat::serialize_streamNotGood_writesNothing()
{
    QFETCH(int, state);

    PhotoshopDataStructure record;
    fillWithEachTag(record);
    std::ostringstream stream;
    stream.setstate(std::ios::iostate(state));
    record.serialize(stream);
    QCOMPARE(stream.str(), std::string());
    QCOMPARE(int(stream.rdstate()), state);
}

void tst_RecordFormat::serialize_streamThatFills_isBad()
{
    class Full : public std::streambuf
    {
    };
    Full full; // takes not a byte
    std::ostream stream(&full);
    const PhotoshopDataStructure record;
    record.serialize(stream);
    QVERIFY(stream.bad());
}

void tst_RecordFormat::deserialize_valueOfEachTag_data()
{
    serialize_valueOfEachTag_data();
}

void tst_RecordFormat::deserialize_valueOfEachTag()
{
    QFETCH(std::shared_ptr<DataVariant>, value);
    QFETCH(QByteArray, bytes);

    PhotoshopDataStructure expected;
    expected.setValue("k", *value);
    const std::string file = sizeField(1) + keyField("k") + bytes.toStdString();
    const PlainReading reading = deserialized(file);
    QVERIFY(reading.table == plainTable(expected));
    QVERIFY(reading.good);
    QCOMPARE(reading.end, file.size());
}

void tst_RecordFormat::deserialize_whatWasWritten_isEqual()
{
    PhotoshopDataStructure record;
    fillWithEachTag(record);
    const PlainReading reading = deserialized(serialized(record));
    QCOMPARE(reading.table.size(), std::size_t{9});
    QVERIFY(reading.table == plainTable(record));
    QVERIFY(reading.good);
}

void tst_RecordFormat::deserialize_nullPointers_areHoldersWithNullPointers()
{
    std::istringstream stream(sizeField(2) + keyField("bytes") + bytesField(5, {}) + keyField("text")
                              + bytesField(7, {}));
    PhotoshopDataStructure record;
    record.deserialize(stream);
    QVERIFY(stream.good());
    const DataVariant &bytes = record.data().at("bytes");
    QCOMPARE(bytes.type(), 5);
    QVERIFY(!bytes.holder()->value.bytes);
    const DataVariant &text = record.data().at("text");
    QCOMPARE(text.type(), 7);
    QVERIFY(!text.holder()->value.text);
}

void tst_RecordFormat::deserialize_bool_isOneByte_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<bool>("value");

    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("2") << 2 << true;
    QTest::newRow("128") << 128 << true;
    QTest::newRow("255") << 255 << true;
}

void tst_RecordFormat::deserialize_bool_isOneByte()
{
    QFETCH(int, byte);
    QFETCH(bool, value);

    const std::string file = sizeField(2) + keyField("k") + number32(6) + char(byte) + intEntry("next", 5);
    std::istringstream stream(file);
    PhotoshopDataStructure record;
    record.deserialize(stream);
    QVERIFY(stream.good());
    QCOMPARE(record.data().at("k").toBool().value(), value);
    QCOMPARE(record.data().at("next").toInt().value(), 5);
}

void tst_RecordFormat::deserialize_anyOrderOfEntries_isTheSameTable()
{
    std::array<std::string, 4> entries{intEntry("a", 1), keyField("b") + bytesField(7, "text"),
                                       keyField("c") + number32(6) + '\1', keyField("d") + bytesField(5, {})};
    const PlainTable expected{{"a", {1, number32(1)}}, {"b", {7, "text"}}, {"c", {6, "\1"}}, {"d", {5, {}, true}}};
    std::sort(entries.begin(), entries.end());
    int orders = 0;
    do {
        std::string file = sizeField(entries.size());
        for (const std::string &entry : entries) {
            file += entry;
        }
        QVERIFY(deserialized(file).table == expected);
        ++orders;
    } while (std::next_permutation(entries.begin(), entries.end()));
    QCOMPARE(orders, 24);
}

void tst_RecordFormat::deserialize_sameKeyTwice_keepsTheLaterValue()
{
    const PlainReading reading
        = deserialized(sizeField(3) + intEntry("k", 1) + intEntry("other", 2) + keyField("k") + bytesField(7, "later"));
    QVERIFY((reading.table == PlainTable{{"k", {7, "later"}}, {"other", {1, number32(2)}}}));
    QVERIFY(reading.good);
}

void tst_RecordFormat::deserialize_takesItsTableAlone()
{
    std::istringstream stream(sizeField(1) + intEntry("first", 1) + sizeField(1) + intEntry("second", 2) + "rest");
    PhotoshopDataStructure record;
    record.deserialize(stream);
    QVERIFY((plainTable(record) == PlainTable{{"first", {1, number32(1)}}}));
    record.deserialize(stream);
    QVERIFY((plainTable(record) == PlainTable{{"second", {1, number32(2)}}}));
    std::string rest;
    stream >> rest;
    QCOMPARE(rest, std::string("rest"));
}

void tst_RecordFormat::deserialize_replacesThePresentTable()
{
    PhotoshopDataStructure record;
    record.setValue("old", 1);
    record.setValue("k", 1);
    std::istringstream stream(sizeField(1) + intEntry("k", 2));
    record.deserialize(stream);
    QVERIFY((plainTable(record) == PlainTable{{"k", {1, number32(2)}}}));
}

void tst_RecordFormat::deserialize_emptyTable_replacesThePresentTable()
{
    PhotoshopDataStructure record;
    record.setValue("old", 1);
    std::istringstream stream(sizeField(0));
    record.deserialize(stream);
    QVERIFY(record.data().empty());
    QVERIFY(stream.good());
}

void tst_RecordFormat::deserialize_streamNotGood_keepsTheTable_data()
{
    serialize_streamNotGood_writesNothing_data();
}

void tst_RecordFormat::deserialize_streamNotGood_keepsTheTable()
{
    QFETCH(int, state);

    PhotoshopDataStructure record;
    fillWithEachTag(record);
    const PlainTable before = plainTable(record);
    std::istringstream stream(sizeField(1) + intEntry("k", 1));
    stream.setstate(std::ios::iostate(state));
    record.deserialize(stream);
    QVERIFY(plainTable(record) == before);
    QCOMPARE(int(stream.rdstate()), state);
    stream.clear();
    QCOMPARE(int(stream.tellg()), 0);
}

void tst_RecordFormat::deserialize_streamWithoutPositions_isRead()
{
    PhotoshopDataStructure record;
    fillWithEachTag(record);
    DripBuffer buffer(serialized(record));
    std::istream stream(&buffer);
    PhotoshopDataStructure reader;
    reader.deserialize(stream);
    QVERIFY(stream.good());
    QVERIFY(plainTable(reader) == plainTable(record));
}

void tst_RecordFormat::deserialize_keysAreBytes()
{
    const std::array<std::string, 4> keys{raw("\0"), raw("a\0b"), raw("\xff\x80"), "\r\n\x1a"};
    PhotoshopDataStructure record;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        record.setValue(keys.at(i), int(i));
    }
    const PlainTable table = deserialized(serialized(record)).table;
    QCOMPARE(table.size(), keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        QCOMPARE(table.at(keys.at(i)).bytes, number32(std::uint32_t(i)));
    }
}

void tst_RecordFormat::deserialize_longValues_comeBackWhole_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {65535, 65536, 65537, 131072, 1024 * 1024 + 1}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void tst_RecordFormat::deserialize_longValues_comeBackWhole()
{
    QFETCH(int, size);

    std::string bytes;
    for (int i = 0; i < size; ++i) {
        bytes += char(i * 7 + i / 256 + i / 65536); // no two pieces alike
    }
    const auto value = DataVariant::fromBytes(Bytes(bytes.begin(), bytes.end()));
    PhotoshopDataStructure record;
    record.setValue("bytes", value);
    record.setValue("text", DataVariant::fromString(bytes));
    const std::string file = serialized(record);
    const PlainReading reading = deserialized(file);
    QVERIFY((reading.table == PlainTable{{"bytes", {5, bytes}}, {"text", {7, bytes}}}));
    QVERIFY(reading.good);
    QCOMPARE(reading.end, file.size());
}

void tst_RecordFormat::deserialize_longKey_comesBackWhole_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {65535, 65536, 65537, 70000}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void tst_RecordFormat::deserialize_longKey_comesBackWhole()
{
    QFETCH(int, size);

    std::string key;
    for (int i = 0; i < size; ++i) {
        key += char(i * 7 + i / 256 + i / 65536);
    }
    const PlainReading reading = deserialized(sizeField(2) + intEntry(key, 3) + intEntry("next", 4));
    QVERIFY((reading.table == PlainTable{{key, {1, number32(3)}}, {"next", {1, number32(4)}}}));
    QVERIFY(reading.good);
}

void tst_RecordFormat::deserialize_tenThousandEntries_comeBackWhole()
{
    PhotoshopDataStructure record;
    for (int i = 0; i < 10000; ++i) {
        record.setValue("key " + std::to_string(i), i);
    }
    const PlainReading reading = deserialized(serialized(record));
    QCOMPARE(reading.table.size(), std::size_t{10000});
    QVERIFY(reading.table == plainTable(record));
    QVERIFY(reading.good);
}

QTEST_GUILESS_MAIN(tst_RecordFormat)
#include "tst_RecordFormat.moc"
