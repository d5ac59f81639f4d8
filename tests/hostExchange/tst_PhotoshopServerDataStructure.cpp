// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordBytes.h"
#include "hostExchange/RecordFiles.h"
#include "hostExchange/RecordTable.h"
#include "support/VirtualSlot.h"

#include "hostExchange/PhotoshopServerDataStructure.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtTest/QTest>

#include <limits>
#include <memory>
#include <optional>

using namespace ZYX_zglv6;
using namespace TestSupport;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

static_assert(sizeof(PhotoshopServerDataStructure) == sizeof(PhotoshopDataStructure)); // no fields of its own

/*! The answer of a server: an image of one pixel and, where there is one, an exit code. */
bool writeAnswer(const RecordFiles &files, const std::optional<DataVariant> &exitCode)
{
    PhotoshopDataStructure answer(files.path());
    if (exitCode) {
        answer.setValue("exitCode", *exitCode);
    }
    return answer.save("abc", 1, 1, 8);
}

} // namespace

class tst_PhotoshopServerDataStructure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_areInTheSlotsOfTheBase();

    void exitCode_andIsImageExpected_data();
    void exitCode_andIsImageExpected();
    void exitCode_withoutValue_isMinus1();
    void setFailed_isMinus1_data();
    void setFailed_isMinus1();

    void load_decidesByTheExitCode_data();
    void load_decidesByTheExitCode();
    void load_withoutExitCode_isTrueWithoutPixels();
    void load_throughTheBase_decidesByTheExitCode();
    void load_exitCodeFromEarlier_isForgotten();
    void load_success_withoutImageFile_isTrueWithoutPixels();
    void load_nullImageData_isTheResultAlone();
    void load_missingDataFile_isAFailedRun();
    void load_missingDataFile_afterASuccess_isAFailedRunWithPixels();
    void load_emptyPath_isAFailedRun();
    void load_dataFileCutShort_isAFailedRun_data();
    void load_dataFileCutShort_isAFailedRun();
    void load_dataFileWithoutCount_isTrueAndFailed();

    void save_isThatOfTheBase();
    void removeImageFile_removesItAlone();
    void removeImageFile_noImageFile_isNoFailure();
    void destructor_removesTheImageFile_data();
    void destructor_removesTheImageFile();
    void destructor_throughTheBase_removesTheImageFile();
    void destructor_ofTheOneOfTwo_removesTheImageFile();
    void destructor_emptyPath_removesNothing();
};

void tst_PhotoshopServerDataStructure::operations_areInTheSlotsOfTheBase()
{
    if (!virtualSlot(&PhotoshopServerDataStructure::load)) {
        QSKIP("pointers to members do not tell the slot here");
    }
    QCOMPARE(virtualSlot(&PhotoshopServerDataStructure::save).value(), 2); // the destructor is 1
    QCOMPARE(virtualSlot(&PhotoshopServerDataStructure::load).value(), 3);
    QCOMPARE(virtualSlot(&PhotoshopServerDataStructure::isImageExpected).value(), 4);
}

void tst_PhotoshopServerDataStructure::exitCode_andIsImageExpected_data()
{
    QTest::addColumn<std::shared_ptr<DataVariant>>("value");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<bool>("isImageExpected");

    const auto row = [](const char *name, const DataVariant &value, int exitCode, bool isImageExpected) {
        QTest::newRow(name) << std::make_shared<DataVariant>(value) << exitCode << isImageExpected;
    };
    row("0", DataVariant::fromInt(0), 0, true);
    row("1", DataVariant::fromInt(1), 1, false);
    row("3", DataVariant::fromInt(3), 3, false);
    row("-1", DataVariant::fromInt(-1), -1, false);
    row("256", DataVariant::fromInt(256), 256, false);
    row("least", DataVariant::fromInt(std::numeric_limits<int>::min()), std::numeric_limits<int>::min(), false);
    row("32 bits", DataVariant::fromBits32(0), -1, false);
    row("64 bits", DataVariant::fromBits64(0), -1, false);
    row("unsigned 64 bits", DataVariant::fromUInt64(0), -1, false);
    row("bytes", DataVariant::fromBytes({}), -1, false);
    row("bool", DataVariant::fromBool(false), -1, false);
    row("text", DataVariant::fromString("0"), -1, false);
}

void tst_PhotoshopServerDataStructure::exitCode_andIsImageExpected()
{
    QFETCH(std::shared_ptr<DataVariant>, value);
    QFETCH(int, exitCode);
    QFETCH(bool, isImageExpected);

    PhotoshopServerDataStructure record;
    record.setValue("exitCode", *value);
    QCOMPARE(record.exitCode(), exitCode);
    QCOMPARE(record.isImageExpected(), isImageExpected);
}

void tst_PhotoshopServerDataStructure::exitCode_withoutValue_isMinus1()
{
    PhotoshopServerDataStructure record;
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!record.isImageExpected());
    record.setValue("exitCode", DataVariant());
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!record.isImageExpected());
    for (const int unknownTag : {0, 8}) {
        record.setValue("exitCode", DataVariant(std::make_shared<DataVariant::dataHolder>(unknownTag)));
        QCOMPARE(record.exitCode(), -1);
        QVERIFY(!record.isImageExpected());
    }
    record.setValue("ExitCode", 0); // another key
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!record.isImageExpected());
}

void tst_PhotoshopServerDataStructure::setFailed_isMinus1_data()
{
    exitCode_andIsImageExpected_data();
}

void tst_PhotoshopServerDataStructure::setFailed_isMinus1()
{
    QFETCH(std::shared_ptr<DataVariant>, value);

    PhotoshopServerDataStructure record;
    record.setValue("exitCode", *value);
    record.setValue("other", 5);
    record.setFailed();
    QVERIFY((plainTable(record)
             == PlainTable{{"exitCode", {1, number32(0xffffffff), false}}, {"other", {1, number32(5), false}}}));
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!record.isImageExpected());
}

void tst_PhotoshopServerDataStructure::load_decidesByTheExitCode_data()
{
    exitCode_andIsImageExpected_data();
}

void tst_PhotoshopServerDataStructure::load_decidesByTheExitCode()
{
    QFETCH(std::shared_ptr<DataVariant>, value);
    QFETCH(int, exitCode);
    QFETCH(bool, isImageExpected);

    const RecordFiles files;
    QVERIFY(writeAnswer(files, *value));
    PhotoshopServerDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QCOMPARE(record.exitCode(), exitCode);
    QCOMPARE(loading.bytes(3), isImageExpected ? QByteArray("abc") : QByteArray());
    QCOMPARE(bool(loading.pixels), isImageExpected);
}

void tst_PhotoshopServerDataStructure::load_withoutExitCode_isTrueWithoutPixels()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, std::nullopt));
    PhotoshopServerDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!record.data().contains("exitCode")); // nothing was stored
}

void tst_PhotoshopServerDataStructure::load_throughTheBase_decidesByTheExitCode()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(3)));
    PhotoshopServerDataStructure record(files.path());
    PhotoshopDataStructure &base = record;
    QVERIFY(!loaded(base).pixels);
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    QCOMPARE(loaded(base).bytes(3), QByteArray("abc"));
    QVERIFY(QFile::remove(files.dataFile()));
    QVERIFY(!base.load(nullptr));
    QCOMPARE(record.exitCode(), -1);
}

void tst_PhotoshopServerDataStructure::load_exitCodeFromEarlier_isForgotten()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(3)));
    PhotoshopServerDataStructure record(files.path());
    record.setValue("exitCode", 0);
    QVERIFY(!loaded(record).pixels);
    QCOMPARE(record.exitCode(), 3);
}

void tst_PhotoshopServerDataStructure::load_success_withoutImageFile_isTrueWithoutPixels()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    QVERIFY(QFile::remove(files.imageFile()));
    PhotoshopServerDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
    QCOMPARE(record.exitCode(), 0);
}

void tst_PhotoshopServerDataStructure::load_nullImageData_isTheResultAlone()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    PhotoshopServerDataStructure record(files.path());
    QVERIFY(record.load(nullptr));
    QCOMPARE(record.exitCode(), 0);
    QVERIFY(QFile::remove(files.dataFile()));
    QVERIFY(!record.load(nullptr));
    QCOMPARE(record.exitCode(), -1);
}

void tst_PhotoshopServerDataStructure::load_missingDataFile_isAFailedRun()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.imageFile(), "abc"));
    PhotoshopServerDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QVERIFY(!loading.pixels);
    QVERIFY((plainTable(record) == PlainTable{{"exitCode", {1, number32(0xffffffff), false}}}));
    QCOMPARE(record.exitCode(), -1);
}

void tst_PhotoshopServerDataStructure::load_missingDataFile_afterASuccess_isAFailedRunWithPixels()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    PhotoshopServerDataStructure record(files.path());
    QVERIFY(record.load(nullptr));
    QVERIFY(QFile::remove(files.dataFile()));

    // the table of before still says that there is an image, and the run fails only after it was read
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QCOMPARE(loading.bytes(3), QByteArray("abc"));
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!loaded(record).pixels);
}

void tst_PhotoshopServerDataStructure::load_emptyPath_isAFailedRun()
{
    PhotoshopServerDataStructure record;
    record.setValue("exitCode", 0);
    const Loading loading = loaded(record);
    QVERIFY(!loading.result);
    QVERIFY(!loading.pixels);
    QCOMPARE(record.exitCode(), -1);
}

void tst_PhotoshopServerDataStructure::load_dataFileCutShort_isAFailedRun_data()
{
    QTest::addColumn<std::string>("file");
    QTest::addColumn<int>("entries");

    const std::string success = intEntry("exitCode", 0);
    QTest::newRow("empty") << std::string() << 1;
    QTest::newRow("behind the count") << sizeField(1) << 1;
    QTest::newRow("in the exit code") << sizeField(1) + success.substr(0, success.size() - 1) << 1;
    QTest::newRow("behind the exit code") << sizeField(3) + success + intEntry("k", 1) << 2;
}

void tst_PhotoshopServerDataStructure::load_dataFileCutShort_isAFailedRun()
{
    QFETCH(std::string, file);
    QFETCH(int, entries);

    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), file));
    PhotoshopServerDataStructure record(files.path());
    QVERIFY(!record.load(nullptr));
    QCOMPARE(record.exitCode(), -1);
    QVERIFY(!record.isImageExpected());
    QCOMPARE(int(record.data().size()), entries);
}

void tst_PhotoshopServerDataStructure::load_dataFileWithoutCount_isTrueAndFailed()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.dataFile(), "some text"));
    PhotoshopServerDataStructure record(files.path());
    QVERIFY(record.load(nullptr));
    QVERIFY(record.data().empty());
    QCOMPARE(record.exitCode(), -1);
}

void tst_PhotoshopServerDataStructure::save_isThatOfTheBase()
{
    const RecordFiles files;
    PhotoshopServerDataStructure record(files.path());
    record.setValue("exitCode", 0);
    QVERIFY(record.save("abc", 1, 1, 8));
    QCOMPARE(readFile(files.imageFile()), QByteArray("abc"));
    QVERIFY(readPlainly(readFile(files.dataFile()).toStdString()).table == plainTable(record));
    QCOMPARE(record.data().size(), std::size_t{4});
}

void tst_PhotoshopServerDataStructure::removeImageFile_removesItAlone()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    QVERIFY(writeFile(files.filePath(u"record.data-image2"_qs), "another"));
    PhotoshopServerDataStructure record(files.path());
    record.removeImageFile();
    QVERIFY(!QFile::exists(files.imageFile()));
    QVERIFY(QFile::exists(files.dataFile()));
    QVERIFY(QFile::exists(files.filePath(u"record.data-image2"_qs)));
}

void tst_PhotoshopServerDataStructure::removeImageFile_noImageFile_isNoFailure()
{
    const RecordFiles files;
    PhotoshopServerDataStructure record(files.path());
    record.removeImageFile();
    record.removeImageFile();
    QVERIFY(record.data().empty());
}

void tst_PhotoshopServerDataStructure::destructor_removesTheImageFile_data()
{
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<bool>("hasDataFile");
    QTest::addColumn<bool>("hasImageFile");

    QTest::newRow("read") << true << 0 << true << true;
    QTest::newRow("read, of a failed run") << true << 3 << true << true;
    QTest::newRow("not read") << false << 0 << true << true;
    QTest::newRow("no data file") << true << 0 << false << true;
    QTest::newRow("no image file") << true << 0 << true << false;
    QTest::newRow("neither file") << true << 0 << false << false;
}

void tst_PhotoshopServerDataStructure::destructor_removesTheImageFile()
{
    QFETCH(bool, isRead);
    QFETCH(int, exitCode);
    QFETCH(bool, hasDataFile);
    QFETCH(bool, hasImageFile);

    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(exitCode)));
    QVERIFY(hasDataFile || QFile::remove(files.dataFile()));
    QVERIFY(hasImageFile || QFile::remove(files.imageFile()));
    const QByteArray dataBefore = readFile(files.dataFile());
    {
        PhotoshopServerDataStructure record(files.path());
        if (isRead) {
            QCOMPARE(loaded(record).result, hasDataFile);
        }
        QCOMPARE(QFile::exists(files.imageFile()), hasImageFile);
    }
    QVERIFY(!QFile::exists(files.imageFile()));
    QCOMPARE(QFile::exists(files.dataFile()), hasDataFile);
    QCOMPARE(readFile(files.dataFile()), dataBefore);
}

void tst_PhotoshopServerDataStructure::destructor_throughTheBase_removesTheImageFile()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    std::unique_ptr<PhotoshopDataStructure> record = std::make_unique<PhotoshopServerDataStructure>(files.path());
    record.reset();
    QVERIFY(!QFile::exists(files.imageFile()));
    QVERIFY(QFile::exists(files.dataFile()));
}

void tst_PhotoshopServerDataStructure::destructor_ofTheOneOfTwo_removesTheImageFile()
{
    const RecordFiles files;
    QVERIFY(writeAnswer(files, DataVariant::fromInt(0)));
    PhotoshopServerDataStructure second(files.path());
    {
        const PhotoshopServerDataStructure first(files.path());
    }
    const Loading loading = loaded(second);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
}

void tst_PhotoshopServerDataStructure::destructor_emptyPath_removesNothing()
{
    const RecordFiles files;
    const QString before = QDir::currentPath();
    const auto back = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(files.filePath({})));
    QVERIFY(writeFile(files.filePath(u"-image"_qs), "abc"));
    {
        const PhotoshopServerDataStructure record;
    }
    QCOMPARE(readFile(files.filePath(u"-image"_qs)), QByteArray("abc"));
}

QTEST_GUILESS_MAIN(tst_PhotoshopServerDataStructure)
#include "tst_PhotoshopServerDataStructure.moc"
