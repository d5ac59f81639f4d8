// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/PhotoshopDataStructure.h"

#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

using ZYX_zglv6::PhotoshopDataStructure;
using DataVariant = PhotoshopDataStructure::DataVariant;
using dataHolder = DataVariant::dataHolder;

namespace {

static_assert(std::is_same_v<decltype(dataHolder::type), std::int32_t>);
static_assert(sizeof(dataHolder::Value) == 8);
static_assert(!std::is_copy_constructible_v<dataHolder>); // two would free the same bytes

constexpr std::array<unsigned char, 3> threeBytes{0x00, 0x80, 0xff};

/*! Which accessors give a value, as the tags that they are for. */
QList<int> answers(const DataVariant &value)
{
    const std::array<bool, 7> given{value.toInt().has_value(),    value.toBits32().has_value(),
                                    value.toBits64().has_value(), value.toUInt64().has_value(),
                                    value.toBytes().has_value(),  value.toBool().has_value(),
                                    value.toString().has_value()};
    QList<int> tags;
    for (std::size_t i = 0; i < given.size(); ++i) {
        if (given.at(i)) {
            tags << int(i) + 1;
        }
    }
    return tags;
}

} // namespace

class tst_DataVariant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void type_isThatOfTheMaker_data();
    void type_isThatOfTheMaker();
    void type_ofNoValue_isZero();
    void type_ofAnotherTag_hasNoAccessor();

    void toInt_givesWhatWasPutIn();
    void toBits32_givesWhatWasPutIn();
    void toBits64AndToUInt64_givesWhatWasPutIn();
    void toBytes_givesWhatWasPutIn();
    void toBool_givesWhatWasPutIn();
    void toString_givesWhatWasPutIn();

    void fromBytes_withoutBytes_isANullPointer();
    void fromString_ofEmptyText_isANullPointer();
    void fromBytes_copiesTheBytes();

    void copy_sharesTheHolder();
    void copy_outlivesTheFirst();
    void holder_goesWithTheLastVariant();

    void dataHolder_startsWithNothing_data();
    void dataHolder_startsWithNothing();
};

void tst_DataVariant::type_isThatOfTheMaker_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<std::shared_ptr<DataVariant>>("value");

    const auto row = [](const char *name, int type, const DataVariant &value) {
        QTest::newRow(name) << type << std::make_shared<DataVariant>(value);
    };
    row("integer", 1, DataVariant::fromInt(1));
    row("32 bits", 2, DataVariant::fromBits32(1));
    row("64 bits", 3, DataVariant::fromBits64(1));
    row("unsigned 64 bits", 4, DataVariant::fromUInt64(1));
    row("bytes", 5, DataVariant::fromBytes(threeBytes));
    row("no bytes", 5, DataVariant::fromBytes({}));
    row("bool", 6, DataVariant::fromBool(false));
    row("text", 7, DataVariant::fromString("text"));
    row("empty text", 7, DataVariant::fromString({}));
}

void tst_DataVariant::type_isThatOfTheMaker()
{
    QFETCH(int, type);
    QFETCH(std::shared_ptr<DataVariant>, value);

    QCOMPARE(value->type(), type);
    QCOMPARE(value->holder()->type, type);
    QCOMPARE(answers(*value), QList<int>{type});
}

void tst_DataVariant::type_ofNoValue_isZero()
{
    const DataVariant value;
    QCOMPARE(value.type(), 0);
    QVERIFY(!value.holder());
    QCOMPARE(answers(value), QList<int>());

    const DataVariant nullHolder(std::shared_ptr<dataHolder>{});
    QCOMPARE(nullHolder.type(), 0);
}

void tst_DataVariant::type_ofAnotherTag_hasNoAccessor()
{
    for (const int tag : {0, 8, -1, 0x101, std::numeric_limits<int>::max()}) {
        const DataVariant value(std::make_shared<dataHolder>(tag));
        QCOMPARE(value.type(), tag);
        QCOMPARE(answers(value), QList<int>());
    }
}

void tst_DataVariant::toInt_givesWhatWasPutIn()
{
    for (const std::int32_t number :
         {0, 1, -1, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
        QCOMPARE(DataVariant::fromInt(number).toInt().value(), number);
    }
}

void tst_DataVariant::toBits32_givesWhatWasPutIn()
{
    for (const std::uint32_t number : {0U, 1U, 0x80000000U, std::numeric_limits<std::uint32_t>::max()}) {
        QCOMPARE(DataVariant::fromBits32(number).toBits32().value(), number);
    }
}

void tst_DataVariant::toBits64AndToUInt64_givesWhatWasPutIn()
{
    for (const std::uint64_t number :
         {std::uint64_t{0}, std::uint64_t{1} << 63U, std::numeric_limits<std::uint64_t>::max()}) {
        QCOMPARE(DataVariant::fromBits64(number).toBits64().value(), number);
        QCOMPARE(DataVariant::fromUInt64(number).toUInt64().value(), number);
    }
}

void tst_DataVariant::toBytes_givesWhatWasPutIn()
{
    const DataVariant value = DataVariant::fromBytes(threeBytes);
    const std::span<const unsigned char> bytes = value.toBytes().value();
    QVERIFY(std::equal(bytes.begin(), bytes.end(), threeBytes.begin(), threeBytes.end()));
}

void tst_DataVariant::toBool_givesWhatWasPutIn()
{
    QCOMPARE(DataVariant::fromBool(true).toBool().value(), true);
    QCOMPARE(DataVariant::fromBool(false).toBool().value(), false);
}

void tst_DataVariant::toString_givesWhatWasPutIn()
{
    const std::string text("a\0\xff\n", 4);
    const DataVariant value = DataVariant::fromString(text);
    QCOMPARE(value.toString().value(), std::string_view(text));
}

void tst_DataVariant::fromBytes_withoutBytes_isANullPointer()
{
    const DataVariant value = DataVariant::fromBytes({});
    QVERIFY(value.holder());
    QVERIFY(!value.holder()->value.bytes);
    QVERIFY(value.toBytes().value().empty());
}

void tst_DataVariant::fromString_ofEmptyText_isANullPointer()
{
    const DataVariant value = DataVariant::fromString({});
    QVERIFY(value.holder());
    QVERIFY(!value.holder()->value.text);
    QVERIFY(value.toString().value().empty());
}

void tst_DataVariant::fromBytes_copiesTheBytes()
{
    std::vector<unsigned char> bytes{1, 2, 3};
    const DataVariant value = DataVariant::fromBytes(bytes);
    bytes[0] = 9;
    QCOMPARE(value.toBytes().value()[0], 1);
    QVERIFY(value.toBytes().value().data() != bytes.data());
}

void tst_DataVariant::copy_sharesTheHolder()
{
    const DataVariant value = DataVariant::fromBytes(threeBytes);
    const DataVariant copy = value; // NOLINT(performance-unnecessary-copy-initialization): the copy is what is tested
    QCOMPARE(copy.holder(), value.holder());
    DataVariant assigned = DataVariant::fromInt(1);
    assigned = value;
    QCOMPARE(assigned.holder(), value.holder());
}

void tst_DataVariant::copy_outlivesTheFirst()
{
    DataVariant copy;
    {
        const DataVariant value = DataVariant::fromString("text");
        copy = value;
    }
    QCOMPARE(copy.toString().value(), std::string_view("text"));
}

void tst_DataVariant::holder_goesWithTheLastVariant()
{
    auto holder = std::make_shared<dataHolder>(DataVariant::String);
    holder->value.text = std::make_unique<std::string>(1000, 'a').release();
    auto first = std::make_unique<DataVariant>(holder);
    auto second = std::make_unique<DataVariant>(*first);
    const std::weak_ptr<dataHolder> watched = std::exchange(holder, nullptr);

    first.reset();
    QVERIFY(!watched.expired());
    QCOMPARE(second->toString().value().size(), std::size_t{1000});
    second.reset();
    QVERIFY(watched.expired());
}

void tst_DataVariant::dataHolder_startsWithNothing_data()
{
    QTest::addColumn<int>("tag");

    for (int tag = 0; tag <= 8; ++tag) {
        QTest::addRow("tag %d", tag) << tag;
    }
}

void tst_DataVariant::dataHolder_startsWithNothing()
{
    QFETCH(int, tag);

    const dataHolder holder(tag);
    QCOMPARE(holder.type, tag);
    if (tag == DataVariant::Bytes) {
        QVERIFY(!holder.value.bytes);
    } else if (tag == DataVariant::String) {
        QVERIFY(!holder.value.text);
    } else {
        QCOMPARE(holder.value.bits64, 0U);
    }
}

QTEST_GUILESS_MAIN(tst_DataVariant)
#include "tst_DataVariant.moc"
