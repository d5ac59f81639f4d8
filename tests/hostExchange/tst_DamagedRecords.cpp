// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordBytes.h"
#include "hostExchange/RecordTable.h"

#include <QtTest/QTest>

#include <array>
#include <sstream>

using namespace TestSupport;
using ZYX_zglv6::PhotoshopDataStructure;

Q_DECLARE_METATYPE(TestSupport::PlainTable)

namespace {

const PlainValue one{1, number32(1), false};
const PlainValue two{1, number32(2), false};

/*! A table of \a count entries: "a", then \a entries. */
std::string fileBehindA(std::uint64_t count, const std::string &entries)
{
    return sizeField(count) + intEntry("a", 1) + entries;
}

/*! All seven tags, null pointers, and a key that comes twice. */
std::string validFile()
{
    PhotoshopDataStructure record;
    fillWithEachTag(record);
    const std::string file = serialized(record);
    return sizeField(10) + file.substr(sizeField(0).size()) + intEntry("tag7", 2);
}

bool agree(const PlainReading &reading, const PlainReading &expected)
{
    return reading.table == expected.table && reading.good == expected.good && reading.end == expected.end;
}

/*! Nothing, or in which way the library and the plain reader do not agree. */
QByteArray difference(const std::string &file)
{
    const PlainReading reading = deserialized(file);
    const PlainReading expected = readPlainly(file);
    if (agree(reading, expected)) {
        return {};
    }
    const auto told = [](const PlainReading &of) -> QByteArray {
        return QByteArray::number(qsizetype(of.table.size())) + " entries, " + (of.good ? "good" : "not good")
            + " at byte " + QByteArray::number(qsizetype(of.end));
    };
    return QByteArray(told(reading) + " in place of " + told(expected) + ": "
                      + QByteArray::fromStdString(file).toHex());
}

/*! Key lengths, value lengths and counts that no file can be as long as. */
constexpr std::array<std::uint64_t, 5> lyingNumbers{std::uint64_t{1} << 32U, (std::uint64_t{1} << 63U) - 1,
                                                    std::uint64_t{1} << 63U, ~std::uint64_t{0} - 7, ~std::uint64_t{0}};

} // namespace

class tst_DamagedRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainReader_readsAValidFile();

    void deserialize_damage_data();
    void deserialize_damage();
    void deserialize_everyPrefix_agreesWithThePlainReader();
    void deserialize_everyChangedByte_agreesWithThePlainReader();
    void deserialize_everyChangedByteOfAPrefix_agreesWithThePlainReader();
    void deserialize_everyByteTakenOut_agreesWithThePlainReader();
    void deserialize_everyByteDoubled_agreesWithThePlainReader();
    void deserialize_lyingNumbers_keepTheEntriesBefore_data();
    void deserialize_lyingNumbers_keepTheEntriesBefore();
    void deserialize_longValueCutByOneByte_isDropped_data();
    void deserialize_longValueCutByOneByte_isDropped();
};

void tst_DamagedRecords::plainReader_readsAValidFile()
{
    const PlainReading reading = readPlainly(validFile());
    QCOMPARE(reading.table.size(), std::size_t{9});
    QVERIFY(reading.table.at("tag1") == (PlainValue{1, "\xef\xbe\xad\xde", false}));
    QVERIFY(reading.table.at("tag2") == (PlainValue{2, "\xef\xcd\xab\x89", false}));
    QVERIFY(reading.table.at("tag3") == (PlainValue{3, "\x10\x32\x54\x76\x98\xba\xdc\xfe", false}));
    QVERIFY(reading.table.at("tag4") == (PlainValue{4, "\xef\xcd\xab\x89\x67\x45\x23\x01", false}));
    QVERIFY(reading.table.at("tag5") == (PlainValue{5, raw("\x00\x7f\x80\xff"), false}));
    QVERIFY(reading.table.at("tag6") == (PlainValue{6, "\1", false}));
    QVERIFY(reading.table.at("tag7") == two);
    QVERIFY(reading.table.at("null5") == (PlainValue{5, {}, true}));
    QVERIFY(reading.table.at("null7") == (PlainValue{7, {}, true}));
    QVERIFY(reading.good);
    QCOMPARE(reading.end, validFile().size());
}

void tst_DamagedRecords::deserialize_damage_data()
{
    QTest::addColumn<std::string>("file");
    QTest::addColumn<PlainTable>("table");
    QTest::addColumn<bool>("good");
    QTest::addColumn<int>("left"); // bytes of the file that are not taken

    const PlainTable a{{"a", one}};
    const std::string b = intEntry("b", 2);
    const auto row = [](const char *name, const std::string &file, const PlainTable &table, bool good,
                        std::size_t left) { QTest::newRow(name) << file << table << good << int(left); };

    row("empty file", {}, {}, false, 0);
    row("first tag is 5", number32(5) + number64(1) + b, {}, true, 8 + b.size());
    row("first tag is 0x104", number32(0x104) + number64(1) + b, {}, true, 8 + b.size());
    row("first tag is 0x4000004", number32(0x4000004) + number64(1) + b, {}, true, 8 + b.size());
    row("count cut short", number32(4) + "\1", {}, false, 0);
    row("count of 0 in front of entries", sizeField(0) + b, {}, true, b.size());
    row("count too small", fileBehindA(1, b), a, true, b.size());
    row("count too large by one", fileBehindA(2, {}), a, false, 0);

    row("key's tag is 1", fileBehindA(2, number32(1) + "rest"), a, true, 4);
    row("key's tag is 0x107", fileBehindA(2, number32(0x107) + "rest"), a, true, 4);
    row("key's tag is cut short", fileBehindA(2, raw("\7\0")), a, false, 0);
    row("key's size has the tag 5", fileBehindA(2, number32(7) + number32(5) + number64(1) + "b" + intField(2)), a,
        true, 9 + intField(2).size());
    row("key's size is cut short", fileBehindA(2, number32(7) + number32(4) + raw("\1\0\0\0\0\0\0")), a, false, 0);
    row("key is cut short", fileBehindA(2, number32(7) + sizeField(5) + "widt"), a, false, 0);
    row("empty key, whose value is not taken", fileBehindA(2, keyField({}) + intField(2)), a, true, 8);
    row("empty key, last", fileBehindA(2, keyField({})), a, true, 0);
    row("empty key, then an entry", fileBehindA(3, keyField({}) + b), {{"a", one}, {"b", two}}, true, 0);
    row("key's tag is wrong, then an entry", fileBehindA(3, number32(1) + b), {{"a", one}, {"b", two}}, true, 0);

    row("nothing behind the key", fileBehindA(2, keyField("b")), a, false, 0);
    row("nothing behind the key of the only entry", sizeField(1) + keyField("b"), {}, false, 0);
    row("value's low byte is 0", fileBehindA(2, keyField("b") + number32(0x100)), a, true, 4);
    row("value's tag is 8", fileBehindA(2, keyField("b") + number32(8)), a, true, 4);
    row("value's tag is 0x81", fileBehindA(2, keyField("b") + number32(0x81)), a, true, 4);
    row("value's tag is 0xff", fileBehindA(2, keyField("b") + number32(0xff)), a, true, 4);
    row("value's tag is 0x101", fileBehindA(2, keyField("b") + number32(0x101) + number32(2)), a, true, 4);
    row("value's tag is 0x1000007", fileBehindA(2, keyField("b") + number32(0x1000007) + sizeField(0)), a, true, 12);
    row("value's tag is cut short", fileBehindA(2, keyField("b") + raw("\1\0\0")), a, false, 0);
    row("value's tag alone", fileBehindA(2, keyField("b") + number32(6)), a, false, 0);
    row("integer cut short", fileBehindA(2, keyField("b") + number32(1) + "\2"), a, false, 0);
    row("64 bits cut short", fileBehindA(2, keyField("b") + number32(3) + number32(1)), a, false, 0);
    for (const std::uint32_t tag : {5U, 7U}) {
        const std::string name = tag == 5 ? "bytes" : "text";
        const std::string front = keyField("b") + number32(tag);
        row((name + ", whose size has the tag 3").c_str(), fileBehindA(2, front + number32(3) + number64(0)), a, true,
            8);
        row((name + ", whose size has the tag 0x104").c_str(), fileBehindA(2, front + number32(0x104) + number64(0)), a,
            true, 8);
        row((name + ", whose size is cut short").c_str(), fileBehindA(2, front + number32(4) + "\1"), a, false, 0);
        row((name + " cut short").c_str(), fileBehindA(2, front + sizeField(3) + "ab"), a, false, 0);
    }

    // what is not taken is looked at as the next key
    row("unknown value, its tag is taken as the next key's", fileBehindA(4, keyField("c") + number32(8) + b),
        {{"a", one}, {"b", two}}, true, 0);
    row("unknown value in front of an entry, as many entries as are left",
        fileBehindA(3, keyField("c") + number32(8) + b), a, true, b.size());
    row("value with a wrong tag, then an entry", fileBehindA(3, keyField("c") + number32(0x101) + b),
        {{"a", one}, {"b", two}}, true, 0);
    // so an entry without a value hides the one behind it: that key is its value
    row("no value, then an entry", fileBehindA(3, keyField("empty") + b), {{"a", one}, {"empty", {7, "b", false}}},
        true, 4);

    row("same key twice, the later one damaged", fileBehindA(2, keyField("a") + number32(8)), a, true, 4);
    row("same key twice, the later one cut short", fileBehindA(2, keyField("a") + number32(1) + "\2"), a, false, 0);
    row("same key twice, the later one of another tag", fileBehindA(2, keyField("a") + number32(6) + raw("\0")),
        {{"a", {6, raw("\0"), false}}}, true, 0);
}

void tst_DamagedRecords::deserialize_damage()
{
    QFETCH(std::string, file);
    QFETCH(PlainTable, table);
    QFETCH(bool, good);
    QFETCH(int, left);

    const PlainReading reading = deserialized(file);
    QVERIFY(reading.table == table);
    QCOMPARE(reading.good, good);
    QCOMPARE(qsizetype(reading.end), qsizetype(file.size()) - left);
    QCOMPARE(difference(file), QByteArray());
}

void tst_DamagedRecords::deserialize_everyPrefix_agreesWithThePlainReader()
{
    const std::string file = validFile();
    for (std::size_t size = 0; size <= file.size(); ++size) {
        const QByteArray found = difference(file.substr(0, size));
        QVERIFY2(found.isEmpty(), found);
        QCOMPARE(deserialized(file.substr(0, size)).good, size == file.size());
    }
}

void tst_DamagedRecords::deserialize_everyChangedByte_agreesWithThePlainReader()
{
    std::string file = validFile();
    for (char &byte : file) {
        const char good = byte;
        for (int change = 1; change < 256; ++change) {
            byte = char(good ^ change);
            const QByteArray found = difference(file);
            QVERIFY2(found.isEmpty(), found);
        }
        byte = good;
    }
}

void tst_DamagedRecords::deserialize_everyChangedByteOfAPrefix_agreesWithThePlainReader()
{
    const std::string file = validFile();
    for (std::size_t size = 1; size < file.size(); ++size) {
        std::string part = file.substr(0, size);
        for (std::size_t i = size > 20 ? size - 20 : 0; i < size; ++i) {
            for (const int change : {0x01, 0x80, 0xff}) {
                part[i] = char(file[i] ^ change);
                const QByteArray found = difference(part);
                QVERIFY2(found.isEmpty(), found);
            }
            part[i] = file[i];
        }
    }
}

void tst_DamagedRecords::deserialize_everyByteTakenOut_agreesWithThePlainReader()
{
    const std::string file = validFile();
    for (std::size_t i = 0; i < file.size(); ++i) {
        const QByteArray found = difference(std::string(file).erase(i, 1));
        QVERIFY2(found.isEmpty(), found);
    }
}

void tst_DamagedRecords::deserialize_everyByteDoubled_agreesWithThePlainReader()
{
    const std::string file = validFile();
    for (std::size_t i = 0; i < file.size(); ++i) {
        const QByteArray found = difference(std::string(file).insert(i, 1, file[i]));
        QVERIFY2(found.isEmpty(), found);
    }
}

void tst_DamagedRecords::deserialize_lyingNumbers_keepTheEntriesBefore_data()
{
    QTest::addColumn<std::string>("file");

    for (const std::uint64_t lie : lyingNumbers) {
        const QByteArray hex = QByteArray::number(quint64(lie), 16);
        const auto row = [&hex](const char *what, const std::string &file) {
            QTest::addRow("%s of 0x%s", what, hex.constData()) << file;
        };
        row("count", fileBehindA(lie, {}));
        row("key", fileBehindA(2, number32(7) + sizeField(lie) + "key" + intField(2)));
        row("bytes", fileBehindA(2, keyField("b") + number32(5) + sizeField(lie) + "bytes"));
        row("text", fileBehindA(2, keyField("b") + number32(7) + sizeField(lie) + "text"));
        row("count and bytes", fileBehindA(lie, keyField("b") + number32(5) + sizeField(lie) + "bytes"));
        row("count in front of garbage", fileBehindA(lie, std::string(1000, '\xff')));
    }
}

void tst_DamagedRecords::deserialize_lyingNumbers_keepTheEntriesBefore()
{
    QFETCH(std::string, file);

    std::istringstream stream(file);
    PhotoshopDataStructure record;
    record.deserialize(stream);
    QVERIFY(stream.fail());
    QVERIFY(stream.eof());
    QVERIFY((plainTable(record) == PlainTable{{"a", one}}));
}

void tst_DamagedRecords::deserialize_longValueCutByOneByte_isDropped_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {65536, 65537, 131072, 1024 * 1024 + 1}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void tst_DamagedRecords::deserialize_longValueCutByOneByte_isDropped()
{
    QFETCH(int, size);

    const std::string bytes(std::size_t(size), 'x');
    for (const std::string &entry :
         {keyField("b") + bytesField(5, bytes), keyField("b") + bytesField(7, bytes), keyField(bytes)}) {
        std::string file = fileBehindA(2, entry);
        file.pop_back();
        const PlainReading reading = deserialized(file);
        QVERIFY((reading.table == PlainTable{{"a", one}}));
        QVERIFY(!reading.good);
    }
}

QTEST_GUILESS_MAIN(tst_DamagedRecords)
#include "tst_DamagedRecords.moc"
