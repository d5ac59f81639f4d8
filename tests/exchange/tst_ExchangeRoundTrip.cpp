// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ExchangeFolder.h"
#include "TestImages.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtGui/QColorSpace>
#include <QtGui/QImageReader>
#include <QtGui/QImageWriter>
#include <QtTest/QTest>

#include <memory>

using namespace ExchangeTest;

namespace {

/*! Whether the system's narrow encoding, in which the record's path is told, has all characters of \a path. */
bool isNarrow(const QString &path)
{
    return QFile::decodeName(QFile::encodeName(path)) == path;
}

} // namespace

/*! exchange-plugin with exchange-app. What goes wrong: tst_ExchangeFailures. */
class tst_ExchangeRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void roundTrip_tonesEachPixel_data();
    void roundTrip_tonesEachPixel();
    void roundTrip_printsALineForEachStep();
    void photo_comesBackToned();
    void pathsOfAnyCharacters_work_data();
    void pathsOfAnyCharacters_work();
    void pixelsTravel_asRgbWithoutPadding_data();
    void pixelsTravel_asRgbWithoutPadding();
    void record_hasWhatTheSidesAgreedOn();
    void transparentImage_getsAWhiteGround();
    void turnedPhoto_isTurnedUpright();
    void colourProfile_comesBack();
    void withoutOutput_isNamedAfterTheImage();
    void folder_keepsTheRecordButNotThePixels();
    void help_tellsTheOrderOfPixels();
    void wrongUsage_isRefused_data();
    void wrongUsage_isRefused();

private:
    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<ExchangeFolder> m_folder;
};

void tst_ExchangeRoundTrip::init()
{
    m_folder = std::make_unique<ExchangeFolder>(m_sandbox.filePath(u"work %1"_qs.arg(++m_count)));
}

void tst_ExchangeRoundTrip::roundTrip_tonesEachPixel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("depth");

    for (const int depth : {8, 16}) {
        for (const QSize size : {QSize(1, 1), QSize(1, 5), QSize(3, 2), QSize(5, 1), QSize(13, 7), QSize(640, 97)}) {
            QTest::addRow("%d x %d, %d bits", size.width(), size.height(), depth) << size << depth;
        }
    }
}

void tst_ExchangeRoundTrip::roundTrip_tonesEachPixel()
{
    QFETCH(const QSize, size);
    QFETCH(const int, depth);
    const QImage image = noise(size.width(), size.height(), depth);
    QVERIFY(image.save(m_folder->filePath(u"image.png"_qs)));
    const Run run = m_folder->plugin({u"image.png"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(difference(QImage(m_folder->filePath(u"out.png"_qs)), toned(image)), QString());
    QCOMPARE(m_folder->leftBehind(), QStringList());
}

void tst_ExchangeRoundTrip::roundTrip_printsALineForEachStep()
{
    QVERIFY(noise(5, 2, 16).save(m_folder->filePath(u"image.png"_qs)));
    const Run run = m_folder->plugin({u"image.png"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(run.errors, QStringList());
    QCOMPARE(run.lines.size(), 6);
    static const QRegularExpression sent(
        u"^5 x 2 pixels, 16 bits a channel: 60 bytes, and a record of [89] entries, \\d+ bytes$"_qs);
    QVERIFY2(sent.match(run.line(u"sent"_qs)).hasMatch(), run.all());
    QCOMPARE(run.line(u"ended"_qs), QString(appPath() + u" with status 0"));
    static const QRegularExpression answer(u"^exit code 0 from process [1-9]\\d*$"_qs);
    QVERIFY2(answer.match(run.line(u"answer"_qs)).hasMatch(), run.all());
    QCOMPARE(run.line(u"received"_qs), u"5 x 2 pixels, 16 bits a channel: 60 bytes"_qs);
    static const QRegularExpression time(u"^(\\d+) ms: save (\\d+), other side (\\d+), load (\\d+)$"_qs);
    const QRegularExpressionMatch times = time.match(run.line(u"time"_qs));
    QVERIFY2(times.hasMatch(), run.all());
    QCOMPARE(times.captured(1).toInt(),
             times.captured(2).toInt() + times.captured(3).toInt() + times.captured(4).toInt());
    QCOMPARE(run.line(u"written"_qs), u"out.png"_qs);
}

void tst_ExchangeRoundTrip::photo_comesBackToned()
{
    const QString photo = QFileInfo(QStringLiteral(SAMPLE_FOLDER "/mountain-lake.jpg")).absoluteFilePath();
    if (!QImageReader::supportedImageFormats().contains("jpeg")) {
        QSKIP("Qt has no reader of JPEG here");
    }
    const Run run = m_folder->plugin({photo, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(run.line(u"received"_qs), u"1600 x 1067 pixels, 8 bits a channel: 5121600 bytes"_qs);
    const QImage expected = toned(QImage(photo).convertToFormat(QImage::Format_RGB888));
    QCOMPARE(difference(QImage(m_folder->filePath(u"out.png"_qs)), expected), QString());
}

void tst_ExchangeRoundTrip::pathsOfAnyCharacters_work_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("blanks") << u"two words  here"_qs;
    QTest::newRow("umlauts") << u"gr\u00fc\u00dfe aus k\u00f6ln"_qs;
    QTest::newRow("Japanese") << u"\u65e5\u672c\u8a9e\u306e\u5199\u771f"_qs;
    QTest::newRow("percent signs") << u"100%1 %2"_qs;
}

void tst_ExchangeRoundTrip::pathsOfAnyCharacters_work()
{
    QFETCH(const QString, name);
    const QString folder = m_folder->filePath(name);
    QVERIFY(QDir().mkpath(folder));
    const QImage image = noise(3, 3, 8);
    QVERIFY(image.save(folder + u"/image.png"));
    const QString output = folder + u"/out.png";
    const Run run
        = m_folder->plugin({folder + u"/image.png", u"--output"_qs, output, u"--folder"_qs, folder + u"/records"});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(difference(QImage(output), toned(image)), QString());
    QCOMPARE(run.line(u"written"_qs), QDir::toNativeSeparators(output));
    QCOMPARE(QFileInfo::exists(folder + u"/records/record"), isNarrow(folder));
    QCOMPARE(run.lines.filter(u"a temporary folder takes its place"_qs).size(), isNarrow(folder) ? 0 : 1);
    QCOMPARE(m_folder->leftBehind(), QStringList());
}

void tst_ExchangeRoundTrip::pixelsTravel_asRgbWithoutPadding_data()
{
    QTest::addColumn<QImage>("image");

    QTest::newRow("8 bits, width 3") << noise(3, 4, 8);
    QTest::newRow("8 bits, width 4") << noise(4, 4, 8);
    QTest::newRow("16 bits, width 3") << noise(3, 4, 16);
}

void tst_ExchangeRoundTrip::pixelsTravel_asRgbWithoutPadding()
{
    QFETCH(const QImage, image);
    QVERIFY(image.save(m_folder->filePath(u"image.png"_qs)));
    const Run run = m_folder->pluginWithPeer("keepCopies", {u"image.png"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(contentOf(m_folder->filePath(u"copy-image"_qs)), packed(image));
    QCOMPARE(difference(QImage(m_folder->filePath(u"out.png"_qs)), image), QString()); // the peer changes nothing
}

void tst_ExchangeRoundTrip::record_hasWhatTheSidesAgreedOn()
{
    QImage image = noise(4, 2, 8);
    image.setColorSpace(QColorSpace());
    QVERIFY(image.save(m_folder->filePath(u"image.ppm"_qs))); // a format without profiles
    const Run run = m_folder->pluginWithPeer("keepCopies", {u"image.ppm"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    const Run dump = m_folder->dump({u"copy"_qs});
    QVERIFY2(dump.status() == 0, dump.all());
    QString path = QDir::toNativeSeparators(m_folder->filePath(u"image.ppm"_qs));
    path = QFileInfo(path).absoluteFilePath();
    QCOMPARE(dump.lines,
             (QStringList{
                 u"\"HostAppName\"            7 String \"exchange-plugin\""_qs,
                 u"\"HostAppVersion\"         7 String \"" PROGRAM_VERSION "\""_qs,
                 u"\"batchMode\"              6 Bool   true"_qs,
                 u"\"depth\"                  1 Int    8"_qs,
                 u"\"height\"                 1 Int    2"_qs,
                 u"\"originalImageFilePath\"  7 String \"%1\""_qs.arg(path),
                 u"\"showUI\"                 6 Bool   false"_qs,
                 u"\"width\"                  1 Int    4"_qs,
                 u"image: copy-image, 24 bytes, as the record says"_qs,
             }));
}

void tst_ExchangeRoundTrip::transparentImage_getsAWhiteGround()
{
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(10, 20, 30, 0));
    image.setPixel(1, 0, qRgba(10, 20, 30, 255));
    image.setPixel(2, 0, qRgba(0, 0, 0, 51));
    QVERIFY(image.save(m_folder->filePath(u"image.png"_qs)));
    const Run run = m_folder->pluginWithPeer("keepCopies", {u"image.png"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(contentOf(m_folder->filePath(u"copy-image"_qs)).toHex(),
             QByteArray("ffffff"
                        "0a141e"
                        "cccccc"));
}

void tst_ExchangeRoundTrip::turnedPhoto_isTurnedUpright()
{
    QImageWriter writer(m_folder->filePath(u"image.jpg"_qs), "jpeg");
    if (!writer.supportsOption(QImageIOHandler::ImageTransformation)) {
        QSKIP("Qt has no writer of turned JPEG images here");
    }
    QImage image(16, 8, QImage::Format_RGB32);
    image.fill(Qt::black);
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    QVERIFY(writer.write(image));
    const Run run = m_folder->plugin({u"image.jpg"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(QImage(m_folder->filePath(u"out.png"_qs)).size(), QSize(8, 16));
}

void tst_ExchangeRoundTrip::colourProfile_comesBack()
{
    QImage image = noise(4, 4, 8);
    image.setColorSpace(QColorSpace::AdobeRgb);
    QVERIFY(image.save(m_folder->filePath(u"image.png"_qs)));
    const QColorSpace before = QImage(m_folder->filePath(u"image.png"_qs)).colorSpace();
    QVERIFY(before.isValid() && before != QColorSpace(QColorSpace::SRgb));

    const Run run = m_folder->pluginWithPeer("keepCopies", {u"image.png"_qs, u"--output"_qs, u"out.png"_qs});
    QVERIFY2(run.status() == 0, run.all());
    const Run dump = m_folder->dump({u"copy"_qs});
    QCOMPARE(dump.lines.filter(QRegularExpression(u"^\"IccProfile\" +5 Bytes  \\d{3,} bytes: (..[ ]){16}\\.\\.\\.$"_qs))
                 .size(),
             1);
    QCOMPARE(QImage(m_folder->filePath(u"out.png"_qs)).colorSpace(), before);
}

void tst_ExchangeRoundTrip::withoutOutput_isNamedAfterTheImage()
{
    QVERIFY(noise(3, 3, 8).save(m_folder->filePath(u"a.photo.png"_qs)));
    const Run run = m_folder->plugin({m_folder->filePath(u"a.photo.png"_qs)});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(run.line(u"written"_qs), u"a.photo-toned.png"_qs);
    QVERIFY(!QImage(m_folder->filePath(u"a.photo-toned.png"_qs)).isNull());
}

void tst_ExchangeRoundTrip::folder_keepsTheRecordButNotThePixels()
{
    QVERIFY(noise(3, 3, 8).save(m_folder->filePath(u"image.png"_qs)));
    const Run run = m_folder->plugin({u"image.png"_qs, u"--folder"_qs, u"new/records"_qs});
    QVERIFY2(run.status() == 0, run.all());
    QCOMPARE(QDir(m_folder->filePath(u"new/records"_qs)).entryList(QDir::Files), QStringList{u"record"_qs});
    const Run dump = m_folder->dump({u"new/records/record"_qs});
    QCOMPARE(dump.status(), 1);
    QVERIFY(dump.lines.contains(u"\"exitCode\"               1 Int    0"_qs));
    QCOMPARE(dump.lines.constLast(), u"image: expected 27 bytes, missing"_qs);
}

void tst_ExchangeRoundTrip::help_tellsTheOrderOfPixels()
{
    for (const Run &run :
         {m_folder->plugin({u"--help"_qs}), m_folder->app({u"--help"_qs}), m_folder->dump({u"--help"_qs})}) {
        QVERIFY2(run.status() == 0, run.all());
        QVERIFY2(run.output.contains("RGB, rows from the top, 16-bit values in the machine's byte order"), run.all());
    }
    QCOMPARE(m_folder->plugin({u"--version"_qs}).lines, QStringList{u"exchange-plugin " PROGRAM_VERSION ""_qs});
}

void tst_ExchangeRoundTrip::wrongUsage_isRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const QString one = u"exchange-plugin: takes one IMAGE; --help says more"_qs;
    const QString limit = u"exchange-plugin: --time-limit takes a number from 1 to 86400"_qs;
    QTest::newRow("no image") << QStringList{} << one;
    QTest::newRow("empty name") << QStringList{QString()} << one;
    QTest::newRow("two images") << QStringList{u"a"_qs, u"b"_qs} << one;
    QTest::newRow("unknown option") << QStringList{u"a"_qs, u"--faster"_qs}
                                    << u"exchange-plugin: Unknown option 'faster'."_qs;
    QTest::newRow("no limit") << QStringList{u"a"_qs, u"--time-limit"_qs, u"0"_qs} << limit;
    QTest::newRow("limit in words") << QStringList{u"a"_qs, u"--time-limit"_qs, u"ten"_qs} << limit;
    QTest::newRow("limit beyond a day") << QStringList{u"a"_qs, u"--time-limit"_qs, u"86401"_qs} << limit;
    QTest::newRow("empty output") << QStringList{u"a"_qs, u"--output="_qs}
                                  << u"exchange-plugin: --output takes the name of a file"_qs;
}

void tst_ExchangeRoundTrip::wrongUsage_isRefused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, error);
    const Run run = m_folder->plugin(arguments);
    QCOMPARE(run.status(), 2);
    QCOMPARE(run.errors, QStringList{error});
    QCOMPARE(run.lines, QStringList());
}

QTEST_GUILESS_MAIN(tst_ExchangeRoundTrip)

#include "tst_ExchangeRoundTrip.moc"
