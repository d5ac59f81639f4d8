// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordTable.h"
#include "support/VirtualSlot.h"

#include "utilsDll/frame/PluginKeys.h"

#include <QtTest/QTest>

#include <limits>

using namespace ZYX_zglv6;
using namespace TestSupport;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

using Number = int (PhotoshopDataStructure::*)() const;

} // namespace

Q_DECLARE_METATYPE(Number)

class tst_PhotoshopDataStructure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_areInTheirSlots();
    void keys_areAsAgreed();

    void setValue_isAnInteger();
    void setValue_emptyKey_storesNothing();
    void setValue_existingKey_getsTheNewValue();
    void setValue_noValue_isAnEntryAllTheSame();

    void dimension_isTheIntegerUnderItsKey_data();
    void dimension_isTheIntegerUnderItsKey();
    void dimension_ofAnotherTag_isZero_data();
    void dimension_ofAnotherTag_isZero();

    void imageSize_isComputedIn64Bits_data();
    void imageSize_isComputedIn64Bits();
    void imageSize_withoutADimension_isZero_data();
    void imageSize_withoutADimension_isZero();

    void imageFilePath_isBehindTheDataFiles();
    void isImageExpected_isAlwaysTrue();
};

void tst_PhotoshopDataStructure::operations_areInTheirSlots()
{
    if (!virtualSlot(&PhotoshopDataStructure::save)) {
        QSKIP("pointers to members do not tell the slot here");
    }
    QCOMPARE(virtualSlot(&PhotoshopDataStructure::save).value(), 2); // the destructor is 1
    QCOMPARE(virtualSlot(&PhotoshopDataStructure::load).value(), 3);
    QCOMPARE(virtualSlot(&PhotoshopDataStructure::isImageExpected).value(), 4);
}

void tst_PhotoshopDataStructure::keys_areAsAgreed()
{
    QCOMPARE(std::string(PluginKeys::batchMode), std::string("batchMode"));
    QCOMPARE(std::string(PluginKeys::hostAppName), std::string("HostAppName"));
    QCOMPARE(std::string(PluginKeys::hostAppVersion), std::string("HostAppVersion"));
    QCOMPARE(std::string(PluginKeys::width), std::string("width"));
    QCOMPARE(std::string(PluginKeys::height), std::string("height"));
    QCOMPARE(std::string(PluginKeys::depth), std::string("depth"));
    QCOMPARE(std::string(PluginKeys::pluginData), std::string("pPluginData"));
    QCOMPARE(std::string(PluginKeys::exitCode), std::string("exitCode"));
    QCOMPARE(std::string(PluginKeys::exif), std::string("exif"));
    QCOMPARE(std::string(PluginKeys::iccProfile), std::string("IccProfile"));
    QCOMPARE(std::string(PluginKeys::showUi), std::string("showUI"));
    QCOMPARE(std::string(PluginKeys::originalImageFilePath), std::string("originalImageFilePath"));
    QCOMPARE(std::string(PluginKeys::serverProcessId), std::string("serverPID"));
}

void tst_PhotoshopDataStructure::setValue_isAnInteger()
{
    PhotoshopDataStructure record;
    record.setValue("k", -7);
    QCOMPARE(record.data().size(), std::size_t{1});
    QCOMPARE(record.data().at("k").type(), 1);
    QCOMPARE(record.data().at("k").toInt().value(), -7);
}

void tst_PhotoshopDataStructure::setValue_emptyKey_storesNothing()
{
    PhotoshopDataStructure record;
    record.setValue({}, 1);
    record.setValue({}, DataVariant::fromString("text"));
    QVERIFY(record.data().empty());
}

void tst_PhotoshopDataStructure::setValue_existingKey_getsTheNewValue()
{
    PhotoshopDataStructure record;
    record.setValue("k", DataVariant::fromString("text"));
    record.setValue("k", 5);
    QCOMPARE(record.data().size(), std::size_t{1});
    QCOMPARE(record.data().at("k").toInt().value(), 5);
    record.setValue("k", 6);
    QCOMPARE(record.data().at("k").toInt().value(), 6);
    record.setValue("k", DataVariant::fromBool(true));
    QCOMPARE(record.data().at("k").toBool().value(), true);
}

void tst_PhotoshopDataStructure::setValue_noValue_isAnEntryAllTheSame()
{
    PhotoshopDataStructure record;
    record.setValue("k", DataVariant());
    QCOMPARE(record.data().size(), std::size_t{1});
    QCOMPARE(record.data().at("k").type(), 0);
}

void tst_PhotoshopDataStructure::dimension_isTheIntegerUnderItsKey_data()
{
    QTest::addColumn<Number>("dimension");
    QTest::addColumn<std::string>("key");

    QTest::newRow("width") << Number(&PhotoshopDataStructure::width) << std::string("width");
    QTest::newRow("height") << Number(&PhotoshopDataStructure::height) << std::string("height");
    QTest::newRow("depth") << Number(&PhotoshopDataStructure::depth) << std::string("depth");
}

void tst_PhotoshopDataStructure::dimension_isTheIntegerUnderItsKey()
{
    QFETCH(Number, dimension);
    QFETCH(std::string, key);

    PhotoshopDataStructure record;
    for (const char *other : {"width", "height", "depth"}) {
        if (key != other) {
            record.setValue(other, 99);
        }
    }
    QCOMPARE((record.*dimension)(), 0);
    for (const int value : {640, 0, -5, std::numeric_limits<int>::max()}) {
        record.setValue(key, value);
        QCOMPARE((record.*dimension)(), value);
    }
}

void tst_PhotoshopDataStructure::dimension_ofAnotherTag_isZero_data()
{
    dimension_isTheIntegerUnderItsKey_data();
}

void tst_PhotoshopDataStructure::dimension_ofAnotherTag_isZero()
{
    QFETCH(Number, dimension);
    QFETCH(std::string, key);

    PhotoshopDataStructure record;
    fillWithEachTag(record);
    const auto values = record.data();
    for (const auto &[name, value] : values) {
        if (value.type() != DataVariant::Int) {
            record.setValue(key, value);
            QCOMPARE((record.*dimension)(), 0);
        }
    }
    record.setValue(key, DataVariant());
    QCOMPARE((record.*dimension)(), 0);
}

void tst_PhotoshopDataStructure::imageSize_isComputedIn64Bits_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("depth");
    QTest::addColumn<quint64>("size");

    constexpr int most = std::numeric_limits<int>::max();
    QTest::newRow("8 bits") << 640 << 480 << 8 << quint64(921600);
    QTest::newRow("16 bits") << 640 << 480 << 16 << quint64(1843200);
    QTest::newRow("one pixel of 8 bits") << 1 << 1 << 8 << quint64(3);
    QTest::newRow("one pixel of 16 bits") << 1 << 1 << 16 << quint64(6);
    QTest::newRow("one pixel of 1 bit, rounded down") << 1 << 1 << 1 << quint64(0);
    QTest::newRow("3 pixels of 1 bit, rounded down") << 3 << 1 << 1 << quint64(1);
    QTest::newRow("8 pixels of 1 bit") << 8 << 1 << 1 << quint64(3);
    QTest::newRow("12 bits, rounded down") << 5 << 1 << 12 << quint64(22);
    QTest::newRow("12 bits") << 7 << 2 << 12 << quint64(63);
    QTest::newRow("rounded once, not by row") << 3 << 3 << 1 << quint64(3);
    QTest::newRow("more than 32 bits") << 100000 << 100000 << 16 << quint64(60'000'000'000);
    QTest::newRow("product just below 64 bits") << most << most << 1 << quint64(1729382255299657728);
    QTest::newRow("product beyond 64 bits") << most << most << most << ((quint64(3) << 59U) + (quint64(9) << 28U) - 1);
}

void tst_PhotoshopDataStructure::imageSize_isComputedIn64Bits()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, depth);
    QFETCH(quint64, size);

    PhotoshopDataStructure record;
    record.setValue("width", width);
    record.setValue("height", height);
    record.setValue("depth", depth);
    QCOMPARE(quint64(record.imageSize()), size);
}

void tst_PhotoshopDataStructure::imageSize_withoutADimension_isZero_data()
{
    QTest::addColumn<std::string>("key");

    for (const char *key : {"width", "height", "depth"}) {
        QTest::newRow(key) << std::string(key);
    }
}

void tst_PhotoshopDataStructure::imageSize_withoutADimension_isZero()
{
    QFETCH(std::string, key);

    PhotoshopDataStructure record;
    for (const char *other : {"width", "height", "depth"}) {
        if (key != other) {
            record.setValue(other, 8);
        }
    }
    QCOMPARE(quint64(record.imageSize()), quint64(0));
    for (const int value : {0, -1, -8, std::numeric_limits<int>::min()}) {
        record.setValue(key, value);
        QCOMPARE(quint64(record.imageSize()), quint64(0));
    }
    record.setValue(key, 8);
    QCOMPARE(quint64(record.imageSize()), quint64(192));
    record.setValue(key, DataVariant::fromBits32(8));
    QCOMPARE(quint64(record.imageSize()), quint64(0));
}

void tst_PhotoshopDataStructure::imageFilePath_isBehindTheDataFiles()
{
    QCOMPARE(PhotoshopDataStructure("folder/record.data").imageFilePath(), std::string("folder/record.data-image"));
    QCOMPARE(PhotoshopDataStructure("record").imageFilePath(), std::string("record-image"));
    QCOMPARE(PhotoshopDataStructure(std::string()).imageFilePath(), std::string());
    QCOMPARE(PhotoshopDataStructure().imageFilePath(), std::string());
}

void tst_PhotoshopDataStructure::isImageExpected_isAlwaysTrue()
{
    PhotoshopDataStructure record;
    QVERIFY(record.isImageExpected());
    record.setValue("exitCode", 3);
    QVERIFY(record.isImageExpected());
}

QTEST_GUILESS_MAIN(tst_PhotoshopDataStructure)
#include "tst_PhotoshopDataStructure.moc"
