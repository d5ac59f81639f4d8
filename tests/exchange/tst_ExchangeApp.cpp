// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ExchangeFolder.h"
#include "RecordBytes.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <limits>
#include <memory>

using namespace ExchangeTest;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int twoToThe30 = 1 << 30;

} // namespace

/*! exchange-app alone, on records written byte by byte. */
class tst_ExchangeApp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tones_areThoseOfTheDescription_data();
    void tones_areThoseOfTheDescription();
    void outermostPixels_areDarkened();
    void answer_keepsTheEntriesAndAddsItsOwn();
    void failOption_leavesExitCodeAndNoPixels();
    void hostileRecord_isRefusedInTheRecord_data();
    void hostileRecord_isRefusedInTheRecord();
    void whatIsNoRecord_isLeftAlone_data();
    void whatIsNoRecord_isLeftAlone();
    void missingRecord_isNotMade();
    void wrongUsage_isRefused();

private:
    bool writeRecord(const QByteArray &record, const QByteArray &pixels) const;
    QByteArray pixels() const;

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<ExchangeFolder> m_folder;
    QString m_record;
};

void tst_ExchangeApp::init()
{
    m_folder = std::make_unique<ExchangeFolder>(m_sandbox.filePath(u"work %1"_qs.arg(++m_count)));
    m_record = m_folder->filePath(u"record"_qs);
}

bool tst_ExchangeApp::writeRecord(const QByteArray &record, const QByteArray &pixels) const
{
    return writeFile(m_record, record) && writeFile(m_record + u"-image", pixels);
}

QByteArray tst_ExchangeApp::pixels() const
{
    return contentOf(m_record + u"-image");
}

void tst_ExchangeApp::tones_areThoseOfTheDescription_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<QList<quint16>>("color");
    QTest::addColumn<QList<quint16>>("tone");

    using Color = QList<quint16>;
    QTest::newRow("black") << 8 << Color{0, 0, 0} << Color{0, 0, 0};
    QTest::newRow("dark") << 8 << Color{64, 64, 64} << Color{52, 40, 28};
    QTest::newRow("middle") << 8 << Color{128, 128, 128} << Color{151, 128, 105};
    QTest::newRow("bright") << 8 << Color{200, 200, 200} << Color{234, 224, 214};
    QTest::newRow("white") << 8 << Color{255, 255, 255} << Color{255, 255, 255};
    QTest::newRow("red is grey 76") << 8 << Color{255, 0, 0} << Color{69, 54, 39};
    QTest::newRow("green is grey 150") << 8 << Color{0, 255, 0} << Color{182, 160, 138};
    QTest::newRow("blue is grey 29") << 8 << Color{0, 0, 255} << Color{12, 9, 6};
    QTest::newRow("16 bits, black") << 16 << Color{0, 0, 0} << Color{0, 0, 0};
    QTest::newRow("16 bits, dark") << 16 << Color{16384, 16384, 16384} << Color{13479, 10240, 7001};
    QTest::newRow("16 bits, middle") << 16 << Color{32768, 32768, 32768} << Color{38911, 32768, 26625};
    QTest::newRow("16 bits, bright") << 16 << Color{50000, 50000, 50000} << Color{59225, 56233, 53241};
    QTest::newRow("16 bits, white") << 16 << Color{65535, 65535, 65535} << Color{65535, 65535, 65535};
}

void tst_ExchangeApp::tones_areThoseOfTheDescription()
{
    QFETCH(const int, depth);
    QFETCH(const QList<quint16>, color);
    QFETCH(const QList<quint16>, tone);
    const auto bytes = [depth](const QList<quint16> &channels) {
        return depth == 16 ? deepPixels(channels)
                           : QByteArray().append(char(channels[0])).append(char(channels[1])).append(char(channels[2]));
    };
    QVERIFY(writeRecord(requestOf(3, 3, depth), bytes(color).repeated(9)));
    const Run run = m_folder->app({m_record});
    QVERIFY2(run.status() == 0, run.all());
    const QByteArray answer = pixels();
    const qsizetype pixel = depth * 3 / 8;
    QCOMPARE(answer.size(), 9 * pixel);
    QCOMPARE(answer.mid(4 * pixel, pixel).toHex(' '), bytes(tone).toHex(' ')); // the one that is not on the frame
}

void tst_ExchangeApp::outermostPixels_areDarkened()
{
    QVERIFY(writeRecord(requestOf(4, 3, 8), QByteArray(qsizetype(4) * 3 * 3, char(0xff))));
    QVERIFY(m_folder->app({m_record}).status() == 0);
    const QByteArray dark(3, char(0x3f));
    const QByteArray bright(3, char(0xff));
    const QByteArray expected = dark.repeated(5) + bright.repeated(2) + dark.repeated(5);
    QCOMPARE(pixels().toHex(' '), expected.toHex(' '));
}

void tst_ExchangeApp::answer_keepsTheEntriesAndAddsItsOwn()
{
    const QByteArray record = recordOf({intEntry("width", 1), intEntry("height", 1), intEntry("depth", 8),
                                        intEntry("exitCode", 9), entry("pPluginData", 3, number64(5))});
    QVERIFY(writeRecord(record, "abc"));
    const Run run = m_folder->app({m_record});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(run.errors, QStringList());
    const Run dump = m_folder->dump({m_record});
    QCOMPARE(dump.status(), 0);
    QStringList expected{u"\"depth\"                  1 Int    8"_qs,
                         u"\"exitCode\"               1 Int    0"_qs,
                         u"\"height\"                 1 Int    1"_qs,
                         u"\"pPluginData\"            3 Bits64 0x0000000000000005"_qs,
                         u"\"serverPID\"              4 UInt64 %1"_qs.arg(run.process),
                         u"\"width\"                  1 Int    1"_qs};
    QCOMPARE(dump.lines.mid(0, 6), expected);
}

void tst_ExchangeApp::failOption_leavesExitCodeAndNoPixels()
{
    QVERIFY(writeRecord(requestOf(1, 1, 8), "abc"));
    const Run run = m_folder->app({m_record, u"--fail"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QVERIFY(!QFileInfo::exists(m_record + u"-image"));
    const Run dump = m_folder->dump({m_record});
    QVERIFY2(dump.status() == 0, dump.all());
    QCOMPARE(dump.lines.filter(u"exitCode"_qs), QStringList{u"\"exitCode\"               1 Int    3"_qs});
    QCOMPARE(dump.lines.constLast(), u"image: none, as exit code 3 says"_qs);
}

void tst_ExchangeApp::hostileRecord_isRefusedInTheRecord_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QByteArray>("pixels"); // null: no image file
    QTest::addColumn<QString>("error");

    const QByteArray none("");
    const QString notWhole = u"RECORD is no record that can be read whole"_qs;
    const QByteArray fitting = requestOf(1, 1, 8);
    QTest::newRow("depth 7") << requestOf(8, 1, 7) << QByteArray(21, 'a')
                             << u"7 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("depth 0") << requestOf(8, 1, 0) << none << u"0 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("depth 32") << requestOf(1, 1, 32) << QByteArray(12, 'a')
                              << u"32 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("largest depth") << requestOf(1, 1, largest) << none
                                   << u"2147483647 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("no pixels in a row") << requestOf(0, 1, 8) << none << u"0 x 1 pixels are none"_qs;
    QTest::newRow("negative height") << requestOf(1, -5, 8) << none << u"1 x -5 pixels are none"_qs;
    QTest::newRow("largest width") << requestOf(largest, 1, 8) << QByteArray("abc")
                                   << u"the image file has 3 bytes, not 6442450941"_qs;
    QTest::newRow("largest frame") << requestOf(largest, largest, 16) << none
                                   << u"2147483647 x 2147483647 pixels can't be counted"_qs;
    QTest::newRow("size that wraps round to nothing")
        << requestOf(twoToThe30, twoToThe30, 16) << none << u"1073741824 x 1073741824 pixels can't be counted"_qs;
    QTest::newRow("dimensions of other tags")
        << recordOf({entry("width", 4, number64(1)), entry("height", 7, sized("1")), intEntry("depth", 8)})
        << QByteArray("abc") << u"0 x 0 pixels are none"_qs;
    QTest::newRow("no dimensions") << recordOf({entry("showUI", 6, "\1")}) << none
                                   << u"0 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("no image file") << fitting << QByteArray() << u"there is no image file: RECORD-image"_qs;
    QTest::newRow("empty image file") << fitting << none << u"the image file has 0 bytes, not 3"_qs;
    QTest::newRow("short image file") << fitting << QByteArray("ab") << u"the image file has 2 bytes, not 3"_qs;
    QTest::newRow("long image file") << fitting << QByteArray("abcd") << u"the image file has 4 bytes, not 3"_qs;
    QTest::newRow("cut by a byte") << fitting.chopped(1) << QByteArray("abc") << notWhole;
    QTest::newRow("length beyond the file")
        << recordOf({intEntry("width", 1), number32(7) + sizeField(~quint64(0)) + "key"}) << QByteArray("abc")
        << notWhole;
    QTest::newRow("count beyond the file")
        << QByteArray(sizeField(~quint64(0)) + fitting.mid(12)) << QByteArray("abc") << notWhole;
}

void tst_ExchangeApp::hostileRecord_isRefusedInTheRecord()
{
    QFETCH(const QByteArray, record);
    QFETCH(const QByteArray, pixels);
    QFETCH(QString, error);
    QVERIFY(writeFile(m_record, record));
    QVERIFY(pixels.isNull() || writeFile(m_record + u"-image", pixels));
    const Run run = m_folder->app({m_record});
    QVERIFY2(run.status() == 1, run.all());
    error.replace(u"RECORD"_qs, QDir::toNativeSeparators(m_record));
    QCOMPARE(run.errors, QStringList{u"exchange-app: "_qs + error});
    QVERIFY(!QFileInfo::exists(m_record + u"-image"));
    const Run dump = m_folder->dump({m_record});
    QCOMPARE(dump.lines.filter(u"exitCode"_qs), QStringList{u"\"exitCode\"               1 Int    -1"_qs});
    QCOMPARE(dump.lines.filter(u"serverPID"_qs),
             QStringList{u"\"serverPID\"              4 UInt64 %1"_qs.arg(run.process)});
}

void tst_ExchangeApp::whatIsNoRecord_isLeftAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("a text") << QByteArray("A letter that somebody needs.");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("no entries") << sizeField(0);
    QTest::newRow("entries without a key") << QByteArray(sizeField(3) + QByteArray(64, '\0'));
}

void tst_ExchangeApp::whatIsNoRecord_isLeftAlone()
{
    QFETCH(const QByteArray, bytes);
    QVERIFY(writeRecord(bytes, "abc"));
    const Run run = m_folder->app({m_record});
    QCOMPARE(run.status(), 1);
    QCOMPARE(run.errors,
             QStringList{
                 u"exchange-app: %1 is no record that can be read whole"_qs.arg(QDir::toNativeSeparators(m_record))});
    QCOMPARE(contentOf(m_record), bytes);
    QCOMPARE(pixels(), QByteArray("abc"));
}

void tst_ExchangeApp::missingRecord_isNotMade()
{
    const Run run = m_folder->app({m_record});
    QCOMPARE(run.status(), 1);
    QCOMPARE(run.errors.size(), 1);
    QVERIFY(!QFileInfo::exists(m_record));
}

void tst_ExchangeApp::wrongUsage_isRefused()
{
    for (const QStringList &arguments : {QStringList{}, QStringList{u"a"_qs, u"b"_qs}}) {
        const Run run = m_folder->app(arguments);
        QCOMPARE(run.status(), 2);
        QCOMPARE(run.errors, QStringList{u"exchange-app: takes one RECORD; --help says more"_qs});
    }
}

QTEST_GUILESS_MAIN(tst_ExchangeApp)

#include "tst_ExchangeApp.moc"
