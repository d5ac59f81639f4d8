// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/HeapWatch.h"
#include "hostExchange/RecordBytes.h"

#include "hostExchange/PhotoshopDataStructure.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <array>
#include <memory>
#include <new>
#include <sstream>
#include <vector>

using namespace TestSupport;
using ZYX_zglv6::PhotoshopDataStructure;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

constexpr int imageWidth = 4096;
constexpr int imageHeight = 1024;
constexpr std::size_t imageSize = std::size_t{imageWidth} * imageHeight * 3;

/*! Writes the two files of an image of that size, whose pixels are a hole; returns the path of its record. */
std::string makeImage(const QTemporaryDir &folder)
{
    const std::string path = QFile::encodeName(folder.filePath(u"record.data"_qs)).toStdString();
    QFile image(folder.filePath(u"record.data-image"_qs));
    const bool isMade = PhotoshopDataStructure(path).save(nullptr, imageWidth, imageHeight, 8)
        && image.open(QIODevice::WriteOnly) && image.resize(qint64(imageSize));
    return isMade ? path : std::string();
}

} // namespace

class tst_RecordMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void heapWatch_seesTheLibrary();
    void deserialize_lyingNumbers_costNoMemory_data();
    void deserialize_lyingNumbers_costNoMemory();
    void deserialize_longValue_costsFewTimesItsLength();
    void dataHolder_freesWhatItOwns_data();
    void dataHolder_freesWhatItOwns();
    void record_freesEachValue();
    void save_pixelsAreNotCopied();
    void load_pixelsAreOneBlockOfTheirSize();
    void load_pixelsThatDoNotFitIntoMemory_areNull();
    void load_imageOfAnotherLength_allocatesNothingForIt();
};

void tst_RecordMemory::heapWatch_seesTheLibrary()
{
    const std::string text(5000, 'x');
    const HeapWatch watch;
    const DataVariant value = DataVariant::fromString(text);
    QVERIFY(watch.largestRequest() >= 5000);
    QVERIFY(watch.liveBlocks() >= 3); // holder, string, its bytes
}

void tst_RecordMemory::deserialize_lyingNumbers_costNoMemory_data()
{
    QTest::addColumn<std::string>("file");

    constexpr std::uint64_t one = 1;
    for (const std::uint64_t lie : {one << 24U, one << 32U, (one << 63U) - 1, one << 63U, ~std::uint64_t{0}}) {
        const QByteArray hex = QByteArray::number(quint64(lie), 16);
        const auto row = [&hex](const char *what, const std::string &file) {
            QTest::addRow("%s of 0x%s", what, hex.constData()) << file;
        };
        const std::string front = sizeField(2) + intEntry("a", 1);
        row("count", sizeField(lie) + intEntry("a", 1));
        row("key", front + number32(7) + sizeField(lie) + "key");
        row("bytes", front + keyField("b") + number32(5) + sizeField(lie) + "bytes");
        row("text", front + keyField("b") + number32(7) + sizeField(lie) + "text");
    }
}

void tst_RecordMemory::deserialize_lyingNumbers_costNoMemory()
{
    QFETCH(std::string, file);

    std::istringstream stream(file);
    PhotoshopDataStructure record;
    QElapsedTimer timer;
    timer.start();
    std::size_t requested = 0;
    {
        const HeapWatch watch;
        record.deserialize(stream);
        requested = watch.requestedBytes();
    }
    QVERIFY2(requested < 100'000, QByteArray::number(quint64(requested)));
    QVERIFY(timer.elapsed() < 1000);
    QVERIFY(stream.fail());
    QCOMPARE(record.data().size(), std::size_t{1});
    QCOMPARE(record.data().at("a").toInt().value(), 1);
}

void tst_RecordMemory::deserialize_longValue_costsFewTimesItsLength()
{
    constexpr std::size_t length = 1U << 22U;
    const std::string text(length, 'x');
    std::istringstream stream(sizeField(1) + keyField("k") + bytesField(7, text));
    PhotoshopDataStructure record;
    std::size_t requested = 0;
    {
        const HeapWatch watch;
        record.deserialize(stream);
        requested = watch.requestedBytes();
    }
    QVERIFY2(requested < 5 * length, QByteArray::number(quint64(requested)));
    QVERIFY(record.data().at("k").toString().value() == text);
}

void tst_RecordMemory::dataHolder_freesWhatItOwns_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<bool>("isNull");

    for (int tag = 1; tag <= 7; ++tag) {
        QTest::addRow("tag %d", tag) << tag << (tag != DataVariant::Bytes && tag != DataVariant::String);
    }
    QTest::newRow("null bytes") << int(DataVariant::Bytes) << true;
    QTest::newRow("null text") << int(DataVariant::String) << true;
    QTest::newRow("unknown tag") << 8 << true;
}

void tst_RecordMemory::dataHolder_freesWhatItOwns()
{
    QFETCH(int, tag);
    QFETCH(bool, isNull);

    const HeapWatch watch;
    {
        DataVariant::dataHolder holder(tag);
        if (tag == DataVariant::Bytes && !isNull) {
            holder.value.bytes = std::make_unique<std::vector<unsigned char>>(1000).release();
        } else if (tag == DataVariant::String && !isNull) {
            holder.value.text = std::make_unique<std::string>(1000, 'x').release();
        } else if (isNull && tag != DataVariant::Bytes && tag != DataVariant::String) {
            holder.value.bits64 = 0x1111111111111111; // no pointer, so nothing to free
        }
        QCOMPARE(watch.liveBlocks(), std::ptrdiff_t{isNull ? 0 : 2});
    }
    QCOMPARE(watch.liveBlocks(), std::ptrdiff_t{0});
}

void tst_RecordMemory::record_freesEachValue()
{
    const std::array<unsigned char, 3> bytes{1, 2, 3};
    const std::string text(1000, 'x');
    const HeapWatch watch;
    {
        PhotoshopDataStructure record;
        for (int i = 0; i < 3; ++i) {
            record.setValue("bytes", DataVariant::fromBytes(bytes));
            record.setValue("text", DataVariant::fromString(text));
            record.setValue("number", i);
        }
        QVERIFY(watch.liveBlocks() > 0);
    }
    QCOMPARE(watch.liveBlocks(), std::ptrdiff_t{0});
}

void tst_RecordMemory::save_pixelsAreNotCopied()
{
    const QTemporaryDir folder;
    PhotoshopDataStructure record(QFile::encodeName(folder.filePath(u"record.data"_qs)).toStdString());
    const auto pixels = std::make_unique<char[]>(imageSize);
    const HeapWatch watch;
    QVERIFY(record.save(pixels.get(), imageWidth, imageHeight, 8));
    QVERIFY2(watch.requestedBytes() < 100'000, QByteArray::number(quint64(watch.requestedBytes())));
}

void tst_RecordMemory::load_pixelsAreOneBlockOfTheirSize()
{
    const QTemporaryDir folder;
    PhotoshopDataStructure record(makeImage(folder));
    char *pixels = nullptr;
    const HeapWatch watch;
    QVERIFY(record.load(&pixels));
    QVERIFY(pixels);
    QCOMPARE(watch.largestRequest(), imageSize);
    QVERIFY(watch.requestedBytes() < imageSize + 100'000);

    const std::ptrdiff_t blocks = watch.liveBlocks();
    ::operator delete(pixels);
    QCOMPARE(watch.liveBlocks(), blocks - 1);
}

void tst_RecordMemory::load_pixelsThatDoNotFitIntoMemory_areNull()
{
    const QTemporaryDir folder;
    PhotoshopDataStructure record(makeImage(folder));
    char *pixels = reinterpret_cast<char *>(&record); // load() has to set it
    const HeapWatch watch(imageSize - 1);
    QVERIFY(record.load(&pixels));
    QVERIFY(!pixels);
    QCOMPARE(watch.refusedRequests(), std::size_t{1});
    QCOMPARE(watch.largestRequest(), imageSize);
    QCOMPARE(record.width(), imageWidth);
}

void tst_RecordMemory::load_imageOfAnotherLength_allocatesNothingForIt()
{
    const QTemporaryDir folder;
    PhotoshopDataStructure record(makeImage(folder));
    QVERIFY(QFile::resize(folder.filePath(u"record.data-image"_qs), qint64(imageSize) + 1));
    char *pixels = nullptr;
    const HeapWatch watch;
    QVERIFY(record.load(&pixels));
    QVERIFY(!pixels);
    QVERIFY(watch.largestRequest() < 100'000);
}

QTEST_GUILESS_MAIN(tst_RecordMemory)
#include "tst_RecordMemory.moc"
