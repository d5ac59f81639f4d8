// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordBytes.h"
#include "hostExchange/RecordFiles.h"
#include "hostExchange/RecordTable.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtTest/QTest>

#include <sstream>

#include <limits>

using namespace TestSupport;
using ZYX_zglv6::PhotoshopDataStructure;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

PlainTable dimensions(int width, int height, int depth)
{
    const auto dimension = [](int value) { return PlainValue{1, number32(std::uint32_t(value)), false}; };
    return {{"width", dimension(width)}, {"height", dimension(height)}, {"depth", dimension(depth)}};
}

PlainTable tableIn(const QString &path)
{
    return readPlainly(readFile(path).toStdString()).table;
}

/*! The bytes of a data file of an image of \a width times \a height pixels of 8 bits. */
std::string recordOf(int width, int height)
{
    return sizeField(3) + intEntry("width", width) + intEntry("height", height) + intEntry("depth", 8);
}

} // namespace

class tst_RecordFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void save_writesBothFiles_data();
    void save_writesBothFiles();
    void save_keepsTheOtherEntries();
    void save_storesHeightWidthAndDepthInThisOrder();
    void save_nullImageData_leavesTheImageFile();
    void save_sizeOf0_leavesTheImageFile_data();
    void save_sizeOf0_leavesTheImageFile();
    void save_longerFilesFromEarlier_areReplaced();
    void save_dataFileThatCannotBeWritten_isFalse_data();
    void save_dataFileThatCannotBeWritten_isFalse();
    void save_imageFileThatCannotBeOpened_isTrue();
    void save_emptyPath_isFalseAndWritesNothing();

    void load_givesThePixels_data();
    void load_givesThePixels();
    void load_imageOfAnotherLength_isTrueWithoutPixels_data();
    void load_imageOfAnotherLength_isTrueWithoutPixels();
    void load_noImageFile_isTrueWithoutPixels();
    void load_imageIsAFolder_isTrueWithoutPixels();
    void load_emptyImageOfSize0_isABuffer();
    void load_nullImageData_readsTheDataAlone();
    void load_missingDataFile_isFalse();
    void load_missingDataFile_keepsTheTableAndReadsItsImage();
    void load_emptyDataFile_isFalse();
    void load_dataFileIsAFolder_isFalse();
    void load_dataFileCutShort_isFalseWithPixelsAllTheSame();
    void load_dataFileWithoutCount_isTrueAndEmpty();
    void load_bytesBehindTheTable_areNoFailure();
    void load_emptyPath_isFalse();

    void writeToFile_andReadFromFile_keepEveryByte();
    void writeToFile_doesNotLookAtTheRecordsOwnPath();
    void writeToFile_failures_areFalse();
    void readFromFile_failures_areFalse();
    void destructor_removesNoFile();
};

void tst_RecordFiles::save_writesBothFiles_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("size");

    QTest::newRow("one pixel") << 1 << 1 << 8 << 3;
    QTest::newRow("8 bits") << 64 << 48 << 8 << 9216;
    QTest::newRow("16 bits") << 64 << 48 << 16 << 18432;
    QTest::newRow("12 bits, rounded down") << 5 << 1 << 12 << 22;
    QTest::newRow("1 bit, rounded down") << 3 << 1 << 1 << 1;
    QTest::newRow("a megabyte") << 1024 << 400 << 8 << 1228800;
}

void tst_RecordFiles::save_writesBothFiles()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, depth);
    QFETCH(int, size);

    const RecordFiles files;
    PhotoshopDataStructure record(files.path());
    const QByteArray pixels = pixelBytes(size);
    QVERIFY(record.save(pixels.constData(), width, height, depth));
    QVERIFY(tableIn(files.dataFile()) == dimensions(width, height, depth));
    QVERIFY(readFile(files.imageFile()) == pixels);
    QCOMPARE(record.width(), width);
    QCOMPARE(record.height(), height);
    QCOMPARE(record.depth(), depth);
    QCOMPARE(QDir(files.filePath({})).entryList(QDir::Files).size(), 2);
}

void tst_RecordFiles::save_keepsTheOtherEntries()
{
    const RecordFiles files;
    PhotoshopDataStructure record(files.path());
    fillWithEachTag(record);
    record.setValue("width", DataVariant::fromString("of another tag"));
    QVERIFY(record.save(nullptr, 1, 2, 8));
    PlainTable expected = dimensions(1, 2, 8);
    PhotoshopDataStructure others;
    fillWithEachTag(others);
    expected.merge(plainTable(others));
    QCOMPARE(expected.size(), std::size_t{12});
    QVERIFY(tableIn(files.dataFile()) == expected);
}

void tst_RecordFiles::save_storesHeightWidthAndDepthInThisOrder()
{
    const RecordFiles files;
    PhotoshopDataStructure expected;
    expected.setValue("height", 2); // the order shows in the file: a table walks its keys by how they came in
    expected.setValue("width", 1);
    expected.setValue("depth", 8);
    std::ostringstream bytes;
    expected.serialize(bytes);

    QVERIFY(PhotoshopDataStructure(files.path()).save(nullptr, 1, 2, 8));
    QCOMPARE(readFile(files.dataFile()), QByteArray::fromStdString(bytes.str()));
}

void tst_RecordFiles::save_nullImageData_leavesTheImageFile()
{
    const RecordFiles files;
    QVERIFY(PhotoshopDataStructure(files.path()).save(nullptr, 2, 3, 8));
    QVERIFY(tableIn(files.dataFile()) == dimensions(2, 3, 8));
    QVERIFY(!QFile::exists(files.imageFile()));

    QVERIFY(writeFile(files.imageFile(), "from earlier"));
    QVERIFY(PhotoshopDataStructure(files.path()).save(nullptr, 4, 5, 16));
    QVERIFY(tableIn(files.dataFile()) == dimensions(4, 5, 16));
    QCOMPARE(readFile(files.imageFile()), QByteArray("from earlier"));
}

void tst_RecordFiles::save_sizeOf0_leavesTheImageFile_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("depth");

    constexpr int least = std::numeric_limits<int>::min();
    QTest::newRow("width 0") << 0 << 4 << 8;
    QTest::newRow("height 0") << 4 << 0 << 8;
    QTest::newRow("depth 0") << 4 << 4 << 0;
    QTest::newRow("width -1") << -1 << 4 << 8;
    QTest::newRow("two are negative") << -4 << -4 << 8;
    QTest::newRow("least numbers") << least << least << least;
    QTest::newRow("less than a byte") << 1 << 2 << 1;
}

void tst_RecordFiles::save_sizeOf0_leavesTheImageFile()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, depth);

    const RecordFiles files;
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.save("pixels", width, height, depth));
    QVERIFY(!QFile::exists(files.imageFile()));
    QVERIFY(writeFile(files.imageFile(), "from earlier"));
    QVERIFY(record.save("pixels", width, height, depth));
    QCOMPARE(readFile(files.imageFile()), QByteArray("from earlier"));

    const PlainTable stored = dimensions(qMax(width, 0), qMax(height, 0), qMax(depth, 0));
    QVERIFY(tableIn(files.dataFile()) == stored);
    QVERIFY(plainTable(record) == stored);
}

void tst_RecordFiles::save_longerFilesFromEarlier_areReplaced()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), QByteArray(5000, 'x')));
    QVERIFY(writeFile(files.imageFile(), QByteArray(5000, 'x')));
    QVERIFY(PhotoshopDataStructure(files.path()).save("abcdef", 2, 1, 8));
    QCOMPARE(QFileInfo(files.dataFile()).size(), qint64(recordOf(2, 1).size()));
    QVERIFY(tableIn(files.dataFile()) == dimensions(2, 1, 8));
    QCOMPARE(readFile(files.imageFile()), QByteArray("abcdef"));
}

void tst_RecordFiles::save_dataFileThatCannotBeWritten_isFalse_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing folder") << u"none/record.data"_qs;
    QTest::newRow("a folder") << u"folder"_qs;
}

void tst_RecordFiles::save_dataFileThatCannotBeWritten_isFalse()
{
    QFETCH(QString, name);

    const RecordFiles files;
    QVERIFY(QDir(files.filePath({})).mkdir(u"folder"_qs));
    const QString image = files.filePath(u"folder-image"_qs);
    QVERIFY(writeFile(image, "from earlier"));
    PhotoshopDataStructure record(QFile::encodeName(files.filePath(name)).toStdString());
    QVERIFY(!record.save("abc", 1, 1, 8));
    QVERIFY(!record.save(nullptr, 1, 1, 8));
    QCOMPARE(readFile(image), QByteArray("from earlier")); // the data file comes first
    QVERIFY(plainTable(record) == dimensions(1, 1, 8));
    QVERIFY(!QFile::exists(files.filePath(u"none"_qs)));
}

void tst_RecordFiles::save_imageFileThatCannotBeOpened_isTrue()
{
    const RecordFiles files;
    QVERIFY(QDir().mkdir(files.imageFile()));
    QVERIFY(PhotoshopDataStructure(files.path()).save("abc", 1, 1, 8));
    QVERIFY(tableIn(files.dataFile()) == dimensions(1, 1, 8));
    QVERIFY(QFileInfo(files.imageFile()).isDir());
}

void tst_RecordFiles::save_emptyPath_isFalseAndWritesNothing()
{
    const RecordFiles files;
    const QString before = QDir::currentPath();
    const auto back = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(files.filePath({})));
    PhotoshopDataStructure record;
    QVERIFY(!record.save("abc", 1, 1, 8));
    QVERIFY(!record.save(nullptr, 1, 1, 8));
    QCOMPARE(record.imageSize(), 3U); // the dimensions are stored all the same
    QCOMPARE(QDir(files.filePath({})).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_RecordFiles::load_givesThePixels_data()
{
    save_writesBothFiles_data();
}

void tst_RecordFiles::load_givesThePixels()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, depth);
    QFETCH(int, size);

    const RecordFiles files;
    PhotoshopDataStructure writer(files.path());
    fillWithEachTag(writer);
    const QByteArray pixels = pixelBytes(size);
    QVERIFY(writer.save(pixels.constData(), width, height, depth));

    PhotoshopDataStructure reader(files.path());
    const Loading loading = loaded(reader);
    QVERIFY(loading.result);
    QVERIFY(plainTable(reader) == plainTable(writer));
    QCOMPARE(reader.imageSize(), std::uint64_t(size));
    QVERIFY(loading.bytes(reader.imageSize()) == pixels);
}

void tst_RecordFiles::load_imageOfAnotherLength_isTrueWithoutPixels_data()
{
    QTest::addColumn<int>("length");

    QTest::newRow("one byte short") << 11;
    QTest::newRow("one byte long") << 13;
    QTest::newRow("empty") << 0;
    QTest::newRow("twice as long") << 24;
}

void tst_RecordFiles::load_imageOfAnotherLength_isTrueWithoutPixels()
{
    QFETCH(int, length);

    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(2, 2)));
    QVERIFY(writeFile(files.imageFile(), pixelBytes(length)));
    PhotoshopDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);

    QVERIFY(writeFile(files.imageFile(), pixelBytes(12))); // only the length was wrong
    QVERIFY(loaded(record).pixels);
}

void tst_RecordFiles::load_noImageFile_isTrueWithoutPixels()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(2, 2)));
    PhotoshopDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
    QCOMPARE(record.width(), 2);
}

void tst_RecordFiles::load_imageIsAFolder_isTrueWithoutPixels()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(2, 2)));
    QVERIFY(QDir().mkdir(files.imageFile()));
    PhotoshopDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
}

void tst_RecordFiles::load_emptyImageOfSize0_isABuffer()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(0, 2)));
    PhotoshopDataStructure record(files.path());
    QVERIFY(!loaded(record).pixels);

    QVERIFY(writeFile(files.imageFile(), QByteArray()));
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(loading.pixels);

    QVERIFY(writeFile(files.imageFile(), "a"));
    QVERIFY(!loaded(record).pixels);
}

void tst_RecordFiles::load_nullImageData_readsTheDataAlone()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(2, 2)));
    QVERIFY(writeFile(files.imageFile(), pixelBytes(12)));
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.load(nullptr));
    QVERIFY(plainTable(record) == dimensions(2, 2, 8));

    QVERIFY(QFile::remove(files.dataFile()));
    QVERIFY(!record.load(nullptr));
}

void tst_RecordFiles::load_missingDataFile_isFalse()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.imageFile(), pixelBytes(12)));
    PhotoshopDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QVERIFY(!loading.pixels);
    QVERIFY(record.data().empty());
    QVERIFY(!QFile::exists(files.dataFile()));
}

void tst_RecordFiles::load_missingDataFile_keepsTheTableAndReadsItsImage()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.imageFile(), pixelBytes(12)));
    PhotoshopDataStructure record(files.path());
    record.setValue("width", 2);
    record.setValue("height", 2);
    record.setValue("depth", 8);
    const Loading loading = loaded(record);
    QVERIFY(!loading.result); // speaks for the data file alone
    QCOMPARE(loading.bytes(12), pixelBytes(12));
    QVERIFY(plainTable(record) == dimensions(2, 2, 8));
}

void tst_RecordFiles::load_emptyDataFile_isFalse()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), QByteArray()));
    PhotoshopDataStructure record(files.path());
    record.setValue("width", 2);
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QVERIFY(!loading.pixels);
    QVERIFY(record.data().empty());
}

void tst_RecordFiles::load_dataFileIsAFolder_isFalse()
{
    const RecordFiles files;
    QVERIFY(QDir().mkdir(files.dataFile()));
    PhotoshopDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QVERIFY(!loading.pixels);
    QVERIFY(!record.load(nullptr));
}

void tst_RecordFiles::load_dataFileCutShort_isFalseWithPixelsAllTheSame()
{
    const RecordFiles files;
    const std::string entries = recordOf(2, 2).substr(sizeField(3).size());
    QVERIFY(writeFile(files.dataFile(), sizeField(4) + entries + keyField("k")));
    QVERIFY(writeFile(files.imageFile(), pixelBytes(12)));
    PhotoshopDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QCOMPARE(loading.bytes(12), pixelBytes(12));
}

void tst_RecordFiles::load_dataFileWithoutCount_isTrueAndEmpty()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), "some text"));
    PhotoshopDataStructure record(files.path());
    record.setValue("width", 2);
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
    QVERIFY(record.data().empty());
}

void tst_RecordFiles::load_bytesBehindTheTable_areNoFailure()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(2, 2) + "more"));
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.load(nullptr));
    QVERIFY(plainTable(record) == dimensions(2, 2, 8));
}

void tst_RecordFiles::load_emptyPath_isFalse()
{
    const RecordFiles files;
    const QString before = QDir::currentPath();
    const auto back = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(files.filePath({})));
    QVERIFY(writeFile(files.filePath(u"-image"_qs), QByteArray()));
    PhotoshopDataStructure record;
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QVERIFY(!loading.pixels);
    QVERIFY(!record.load(nullptr));
}

void tst_RecordFiles::writeToFile_andReadFromFile_keepEveryByte()
{
    const RecordFiles files;
    PhotoshopDataStructure record;
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += char(byte);
    }
    record.setValue("\r\n\x1a", DataVariant::fromString(all + "\r\n\n\x1a"));
    record.setValue("number", 0x0a0d1a0a);
    QVERIFY(record.writeToFile(files.path()));
    QVERIFY(readFile(files.dataFile()).toStdString() == serialized(record));

    PhotoshopDataStructure reader;
    reader.setValue("old", 1);
    QVERIFY(reader.readFromFile(files.path()));
    QVERIFY(plainTable(reader) == plainTable(record));
}

void tst_RecordFiles::writeToFile_doesNotLookAtTheRecordsOwnPath()
{
    const RecordFiles files;
    const QString other = files.filePath(u"other"_qs);
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.writeToFile(QFile::encodeName(other).toStdString()));
    QVERIFY(!QFile::exists(files.dataFile()));
    QCOMPARE(readFile(other), QByteArray::fromStdString(sizeField(0)));
    QVERIFY(record.readFromFile(QFile::encodeName(other).toStdString()));
}

void tst_RecordFiles::writeToFile_failures_areFalse()
{
    const RecordFiles files;
    const PhotoshopDataStructure record(files.path());
    QVERIFY(!record.writeToFile({}));
    QVERIFY(!record.writeToFile(files.path() + "/none"));
    QVERIFY(!record.writeToFile(QFile::encodeName(files.filePath({})).toStdString()));
    QVERIFY(!QFile::exists(files.dataFile()));
}

void tst_RecordFiles::readFromFile_failures_areFalse()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), recordOf(2, 2)));
    PhotoshopDataStructure record(files.path());
    record.setValue("old", 1);
    QVERIFY(!record.readFromFile({}));
    QVERIFY(!record.readFromFile(files.path() + ".none"));
    QVERIFY((plainTable(record) == PlainTable{{"old", {1, number32(1), false}}})); // nothing could be opened
}

void tst_RecordFiles::destructor_removesNoFile()
{
    const RecordFiles files;
    {
        PhotoshopDataStructure record(files.path());
        QVERIFY(record.save("abc", 1, 1, 8));
        QVERIFY(loaded(record).pixels);
    }
    QVERIFY(QFile::exists(files.dataFile()));
    QVERIFY(QFile::exists(files.imageFile()));
}

QTEST_GUILESS_MAIN(tst_RecordFiles)
#include "tst_RecordFiles.moc"
