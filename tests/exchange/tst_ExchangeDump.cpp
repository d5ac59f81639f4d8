// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ExchangeFolder.h"
#include "RecordBytes.h"
#include "TestImages.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>

using namespace ExchangeTest;

/*! exchange-dump on records written byte by byte. */
class tst_ExchangeDump : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void entries_areSortedAndPrintedByTag();
    void emptyValues_arePrinted();
    void longTexts_areCut_data();
    void longTexts_areCut();
    void hostileTexts_areEscaped_data();
    void hostileTexts_areEscaped();
    void damagedRecord_isTold_data();
    void damagedRecord_isTold();
    void imageFile_isJudgedAndLeftAlone_data();
    void imageFile_isJudgedAndLeftAlone();
    void missingRecord_isTold();
    void png_hasTheSamePixels_data();
    void png_hasTheSamePixels();
    void pngThatCannotBeMade_isTold_data();
    void pngThatCannotBeMade_isTold();
    void wrongUsage_isRefused_data();
    void wrongUsage_isRefused();

private:
    Run dumpOf(const QByteArray &record) const;

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<ExchangeFolder> m_folder;
};

void tst_ExchangeDump::init()
{
    m_folder = std::make_unique<ExchangeFolder>(m_sandbox.filePath(u"work %1"_qs.arg(++m_count)));
}

Run tst_ExchangeDump::dumpOf(const QByteArray &record) const
{
    return writeFile(m_folder->filePath(u"record"_qs), record) ? m_folder->dump({u"record"_qs}) : Run();
}

void tst_ExchangeDump::entries_areSortedAndPrintedByTag()
{
    const Run run = dumpOf(recordOf({
        entry("seven", 7, sized("a \"text\"")),
        entry("one", 1, number32(quint32(-5))),
        entry("six", 6, QByteArray(1, '\1')),
        entry("two", 2, number32(0xfedcba98)),
        entry("five", 5, sized("0123456789abcdef!")),
        entry("three", 3, number64(0x0123456789abcdef)),
        entry("four", 4, number64(~quint64(0))),
        entry("Zeal", 6, QByteArray(1, '\0')),
    }));
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(
        run.lines,
        (QStringList{
            u"\"Zeal\"                   6 Bool   false"_qs, // by bytes: capitals first
            u"\"five\"                   5 Bytes  17 bytes: 30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66 ..."_qs,
            u"\"four\"                   4 UInt64 18446744073709551615"_qs,
            u"\"one\"                    1 Int    -5"_qs,
            u"\"seven\"                  7 String \"a \\\"text\\\"\""_qs,
            u"\"six\"                    6 Bool   true"_qs,
            u"\"three\"                  3 Bits64 0x0123456789abcdef"_qs,
            u"\"two\"                    2 Bits32 0xfedcba98"_qs,
            u"image: none, as the record says"_qs,
        }));
    QCOMPARE(run.errors, QStringList());
}

void tst_ExchangeDump::emptyValues_arePrinted()
{
    const Run run = dumpOf(recordOf({entry("bytes", 5, sized({})), entry("sixteen", 5, sized(QByteArray(16, '\xff'))),
                                     entry("text", 7, sized({}))}));
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(run.lines.value(0), u"\"bytes\"                  5 Bytes  0 bytes"_qs);
    QCOMPARE(run.lines.value(1),
             u"\"sixteen\"                5 Bytes  16 bytes: ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff"_qs);
    QCOMPARE(run.lines.value(2), u"\"text\"                   7 String \"\""_qs);
}

void tst_ExchangeDump::longTexts_areCut_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("shown");

    const QString start = QString(200, u'a');
    QTest::newRow("200 characters") << QByteArray(200, 'a') << QString(u'"' + start + u'"');
    QTest::newRow("201 characters") << QByteArray(201, 'a') << QString(u'"' + start + u"\"... (201 bytes)");
    QTest::newRow("200 of three bytes") << QByteArray("\xe6\x97\xa5").repeated(200)
                                        << QString(u'"' + QString(200, u'\u65e5') + u'"');
    QTest::newRow("a million") << QByteArray(1'000'000, 'a') << QString(u'"' + start + u"\"... (1000000 bytes)");
}

void tst_ExchangeDump::longTexts_areCut()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, shown);
    const Run run = dumpOf(recordOf({entry("t", 7, sized(text))}));
    QVERIFY(run.status() == 0);
    QCOMPARE(run.lines.value(0), QString(u"\"t\"                      7 String "_qs + shown));
}

void tst_ExchangeDump::hostileTexts_areEscaped_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("shown");

    QTest::newRow("colour") << QByteArray("\x1b[31mred") << u"\"\\u{1b}[31mred\""_qs;
    QTest::newRow("title of the window") << QByteArray("\x1b]0;x\x07") << u"\"\\u{1b}]0;x\\u{7}\""_qs;
    QTest::newRow("8-bit escape") << QByteArray("\xc2\x9b"
                                                "2J")
                                  << u"\"\\u{9b}2J\""_qs;
    QTest::newRow("lines") << QByteArray("a\nb\r\tc") << u"\"a\\nb\\r\\tc\""_qs;
    QTest::newRow("zero") << QByteArray("a\0b", 3) << u"\"a\\u{0}b\""_qs;
    QTest::newRow("delete") << QByteArray("\x7f") << u"\"\\u{7f}\""_qs;
    QTest::newRow("turned direction") << QByteArray::fromHex("e280ae67706a") << u"\"\\u{202e}gpj\""_qs;
    QTest::newRow("line separator") << QByteArray("\xe2\x80\xa8") << u"\"\\u{2028}\""_qs;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbfz") << u"\"\\u{feff}z\""_qs;
    QTest::newRow("tag character") << QByteArray("\xf3\xa0\x80\x81") << u"\"\\u{e0001}\""_qs;
    QTest::newRow("not UTF-8") << QByteArray("\xff\x1b"
                                             "e\xe4")
                               << u"\"\\xff\\u{1b}e\\xe4\""_qs;
    QTest::newRow("cut UTF-8") << QByteArray("\xe6\x97") << u"\"\\xe6\\x97\""_qs;
    QTest::newRow("backslash") << QByteArray("\\n") << u"\"\\\\n\""_qs;
    QTest::newRow("beyond 16 bits") << QByteArray("\xf0\x9f\x93\xb7") << u"\"\U0001f4f7\""_qs;
}

void tst_ExchangeDump::hostileTexts_areEscaped()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, shown);
    const Run run = dumpOf(recordOf({entry("t", 7, sized(text)), entry(text, 7, sized("!"))}));
    QVERIFY2(run.status() == 0, run.all());
    QVERIFY2(run.lines.contains(u"\"t\"                      7 String "_qs + shown), run.all());
    QVERIFY2(run.lines.contains(shown.leftJustified(24) + u" 7 String \"!\""), run.all());
    QCOMPARE(run.lines.size(), 3);
    QVERIFY(std::all_of(run.output.cbegin(), run.output.cend(),
                        [](char byte) { return quint8(byte) >= 0x20 ? byte != 0x7f : byte == '\n' || byte == '\r'; }));
}

void tst_ExchangeDump::damagedRecord_isTold_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QStringList>("keys"); // of the lines that are printed all the same
    QTest::addColumn<QString>("error");

    const QByteArray first = intEntry("a", 1);
    const QByteArray second = intEntry("b", 2);
    const QString notWhole = u"exchange-dump: the record can't be read whole"_qs;
    const QStringList onlyA{u"a"_qs};
    QTest::newRow("empty") << QByteArray("") << QStringList() << notWhole;
    QTest::newRow("no record")
        << QByteArray("A letter of 28 bytes or so...") << QStringList()
        << u"exchange-dump: the record can't be read whole: 17 of its bytes belong to no entry"_qs;
    QTest::newRow("cut in the count") << sizeField(1).chopped(1) << QStringList() << notWhole;
    QTest::newRow("cut by a byte") << recordOf({first, second}).chopped(1) << onlyA << notWhole;
    QTest::newRow("count beyond the entries") << QByteArray(sizeField(3) + first) << onlyA << notWhole;
    QTest::newRow("unknown tag")
        << recordOf({first, entry("b", 8, number32(0))}) << onlyA
        << u"exchange-dump: the record can't be read whole: 25 of its bytes belong to no entry"_qs;
    QTest::newRow("tag of three bytes")
        << recordOf({first, entry("b", 0x10001, number32(0))}) << onlyA
        << u"exchange-dump: the record can't be read whole: 25 of its bytes belong to no entry"_qs;
    QTest::newRow("bytes behind the end")
        << QByteArray(recordOf({first}) + "surplus") << onlyA
        << u"exchange-dump: the record can't be read whole: 7 of its bytes belong to no entry"_qs;
    QTest::newRow("a key twice") << recordOf(
        {intEntry("a", 7),
         first}) << onlyA << u"exchange-dump: the record can't be read whole: 25 of its bytes belong to no entry"_qs;
}

void tst_ExchangeDump::damagedRecord_isTold()
{
    QFETCH(const QByteArray, record);
    QFETCH(const QStringList, keys);
    QFETCH(const QString, error);
    const Run run = dumpOf(record);
    QVERIFY2(run.status() == 1, run.all());
    QCOMPARE(run.errors, QStringList{error});
    QCOMPARE(run.lines.size(), keys.size() + 1);
    for (const QString &key : keys) {
        QVERIFY2(run.lines.contains(u"\"%1\"                      1 Int    1"_qs.arg(key)), run.all());
    }
    QCOMPARE(run.lines.constLast(), u"image: none, as the record says"_qs);
}

void tst_ExchangeDump::imageFile_isJudgedAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QByteArray>("pixels"); // null: no image file
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("status");

    const QByteArray request = requestOf(2, 1, 8);
    const auto answer = [](const QByteArray &exitCode) {
        return recordOf({intEntry("width", 2), intEntry("height", 1), intEntry("depth", 8), exitCode});
    };
    const QByteArray fitting("abcdef");
    const QString fits = u"image: record-image, 6 bytes, as the record says"_qs;
    QTest::newRow("fits") << request << fitting << fits << 0;
    QTest::newRow("short by one") << request << QByteArray("abcde") << u"image: expected 6 bytes, has 5"_qs << 1;
    QTest::newRow("long by one") << request << QByteArray("abcdefg") << u"image: expected 6 bytes, has 7"_qs << 1;
    QTest::newRow("empty") << request << QByteArray("") << u"image: expected 6 bytes, has 0"_qs << 1;
    QTest::newRow("missing") << request << QByteArray() << u"image: expected 6 bytes, missing"_qs << 1;
    QTest::newRow("success") << answer(intEntry("exitCode", 0)) << fitting << fits << 0;
    QTest::newRow("missing behind success")
        << answer(intEntry("exitCode", 0)) << QByteArray() << u"image: expected 6 bytes, missing"_qs << 1;
    QTest::newRow("none behind a failure")
        << answer(intEntry("exitCode", 3)) << QByteArray() << u"image: none, as exit code 3 says"_qs << 0;
    QTest::newRow("there in spite of a failure") << answer(intEntry("exitCode", -1)) << fitting << fits << 0;
    QTest::newRow("exit code of another tag")
        << answer(entry("exitCode", 4, number64(0))) << QByteArray() << u"image: none, as exit code -1 says"_qs << 0;
    QTest::newRow("one that nothing says")
        << recordOf({intEntry("a", 1)}) << fitting << u"image: expected 0 bytes, has 6"_qs << 1;
    QTest::newRow("size that wraps round to nothing")
        << requestOf(1 << 30, 1 << 30, 16) << QByteArray("") << u"image: of a size that can't be counted"_qs << 1;
}

void tst_ExchangeDump::imageFile_isJudgedAndLeftAlone()
{
    QFETCH(const QByteArray, record);
    QFETCH(const QByteArray, pixels);
    QFETCH(const QString, line);
    QFETCH(const int, status);
    const QString imagePath = m_folder->filePath(u"record-image"_qs);
    QVERIFY(pixels.isNull() || writeFile(imagePath, pixels));
    const Run run = dumpOf(record);
    QCOMPARE(run.status(), status);
    QCOMPARE(run.lines.constLast(), line);
    QCOMPARE(run.errors, QStringList());
    QCOMPARE(QFileInfo::exists(imagePath), !pixels.isNull());
    QCOMPARE(contentOf(imagePath), pixels);
    QCOMPARE(contentOf(m_folder->filePath(u"record"_qs)), record);
}

void tst_ExchangeDump::missingRecord_isTold()
{
    const Run run = m_folder->dump({u"no\x1b[31mne"_qs});
    QCOMPARE(run.status(), 1);
    QCOMPARE(run.lines, QStringList());
    QCOMPARE(run.errors, QStringList{u"exchange-dump: no [31mne: there is no such file"_qs});
}

void tst_ExchangeDump::png_hasTheSamePixels_data()
{
    QTest::addColumn<QImage>("image");

    for (const int depth : {8, 16}) {
        for (const int width : {1, 3, 4, 640}) {
            QTest::addRow("width %d, %d bits", width, depth) << noise(width, 3, depth);
        }
    }
}

void tst_ExchangeDump::png_hasTheSamePixels()
{
    QFETCH(const QImage, image);
    QVERIFY(writeFile(m_folder->filePath(u"record"_qs), requestOf(image.width(), image.height(), depthOf(image))));
    QVERIFY(writeFile(m_folder->filePath(u"record-image"_qs), packed(image)));
    const Run run = m_folder->dump({u"record"_qs, u"--png"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(run.lines.constLast(), u"written: out.png"_qs);
    QCOMPARE(difference(QImage(m_folder->filePath(u"out.png"_qs)), image), QString());
    QCOMPARE(contentOf(m_folder->filePath(u"record-image"_qs)), packed(image));
}

void tst_ExchangeDump::pngThatCannotBeMade_isTold_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("error"); // its start

    QTest::newRow("depth 7") << requestOf(8, 1, 7) << u"out.png"_qs
                             << u"7 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("no dimensions") << recordOf({}) << u"out.png"_qs
                                   << u"0 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("no such image") << requestOf(2, 2, 8) << u"out.png"_qs << u"there are no pixels to write"_qs;
    QTest::newRow("no such folder") << requestOf(7, 1, 8) << u"none/out.png"_qs
                                    << QString(QDir::toNativeSeparators(u"none/out.png"_qs) + u" can't be written: ");
}

void tst_ExchangeDump::pngThatCannotBeMade_isTold()
{
    QFETCH(const QByteArray, record);
    QFETCH(const QString, output);
    QFETCH(const QString, error);
    QVERIFY(writeFile(m_folder->filePath(u"record"_qs), record));
    QVERIFY(writeFile(m_folder->filePath(u"record-image"_qs), QByteArray(21, 'a')));
    const Run run = m_folder->dump({u"record"_qs, u"--png"_qs, output});
    QCOMPARE(run.status(), 1);
    QCOMPARE(run.errors.size(), 1);
    QVERIFY2(run.errors.front().startsWith(u"exchange-dump: "_qs + error), run.all());
    QVERIFY(!QFileInfo::exists(m_folder->filePath(output)));
}

void tst_ExchangeDump::wrongUsage_isRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const QString one = u"exchange-dump: takes one FILE; --help says more"_qs;
    QTest::newRow("no file") << QStringList{} << one;
    QTest::newRow("two files") << QStringList{u"a"_qs, u"b"_qs} << one;
    QTest::newRow("unknown option") << QStringList{u"a"_qs, u"--all"_qs} << u"exchange-dump: Unknown option 'all'."_qs;
    QTest::newRow("PNG without a name") << QStringList{u"a"_qs, u"--png"_qs}
                                        << u"exchange-dump: Missing value after '--png'."_qs;
    QTest::newRow("PNG of an empty name")
        << QStringList{u"a"_qs, u"--png="_qs} << u"exchange-dump: --png takes the name of a file"_qs;
}

void tst_ExchangeDump::wrongUsage_isRefused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, error);
    const Run run = m_folder->dump(arguments);
    QCOMPARE(run.status(), 2);
    QCOMPARE(run.errors, QStringList{error});
    QCOMPARE(run.lines, QStringList());
}

QTEST_GUILESS_MAIN(tst_ExchangeDump)

#include "tst_ExchangeDump.moc"
