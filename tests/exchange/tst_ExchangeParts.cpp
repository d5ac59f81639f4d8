// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Frame.h"
#include "RecordPaths.h"
#include "TestImages.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <cstring>
#include <limits>

using namespace ExchangeTest;

namespace {

Pixels copyOf(const QByteArray &bytes)
{
    Pixels pixels(static_cast<char *>(::operator new(size_t(bytes.size()))));
    std::memcpy(pixels.get(), bytes.constData(), size_t(bytes.size()));
    return pixels;
}

QByteArray bytesOf(const CPackedFrame &frame)
{
    const FrameSize &size = frame.size();
    return QByteArray(frame.pixels(), qsizetype(size.width) * size.height * size.depth * 3 / 8);
}

} // namespace

/*! What the programs of the exchange share, without a process. */
class tst_ExchangeParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packing_takesEachFormat_data();
    void packing_takesEachFormat();
    void packing_usesTheImagesOwnMemory_data();
    void packing_usesTheImagesOwnMemory();
    void packing_leavesASharedImageAlone();
    void unpacking_givesTheSamePixels_data();
    void unpacking_givesTheSamePixels();
    void unpacking8Bits_copiesNothing();
    void refusal_saysWhatIsWrong_data();
    void refusal_saysWhatIsWrong();
    void narrowPath_isAbsolute();
    void narrowPath_withoutAnEncoding_isEmpty();
};

void tst_ExchangeParts::packing_takesEachFormat_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("depth");

    QTest::newRow("RGB 888") << QImage::Format_RGB888 << 8;
    QTest::newRow("BGR 888") << QImage::Format_BGR888 << 8;
    QTest::newRow("RGB 32") << QImage::Format_RGB32 << 8;
    QTest::newRow("ARGB 32") << QImage::Format_ARGB32 << 8;
    QTest::newRow("palette") << QImage::Format_Indexed8 << 8;
    QTest::newRow("grey") << QImage::Format_Grayscale8 << 8;
    QTest::newRow("deep grey") << QImage::Format_Grayscale16 << 16;
    QTest::newRow("10 bits") << QImage::Format_RGB30 << 16;
    QTest::newRow("RGBX 64") << QImage::Format_RGBX64 << 16;
    QTest::newRow("RGBA 64") << QImage::Format_RGBA64 << 16;
    QTest::newRow("floating point") << QImage::Format_RGBX32FPx4 << 16;
}

void tst_ExchangeParts::packing_takesEachFormat()
{
    QFETCH(const QImage::Format, format);
    QFETCH(const int, depth);
    const QImage image = noise(5, 3, depth).convertToFormat(format);
    const CPackedFrame frame(image);
    QCOMPARE(frame.size(), (FrameSize{5, 3, depth}));
    QCOMPARE(bytesOf(frame),
             packed(image.convertToFormat(depth == 16 ? QImage::Format_RGBX64 : QImage::Format_RGB888)));
}

void tst_ExchangeParts::packing_usesTheImagesOwnMemory_data()
{
    QTest::addColumn<int>("depth");

    QTest::newRow("8 bits, padded rows") << 8;
    QTest::newRow("16 bits") << 16;
}

void tst_ExchangeParts::packing_usesTheImagesOwnMemory()
{
    QFETCH(const int, depth);
    QImage image = noise(3, 3, depth);
    const void *memory = image.constBits();
    const CPackedFrame frame(std::move(image));
    QCOMPARE(static_cast<const void *>(frame.pixels()), memory);
}

void tst_ExchangeParts::packing_leavesASharedImageAlone()
{
    const QImage image = noise(3, 3, 8);
    const QImage before = image.copy();
    const CPackedFrame frame(image);
    QCOMPARE(image, before);
}

void tst_ExchangeParts::unpacking_givesTheSamePixels_data()
{
    QTest::addColumn<QImage>("image");

    for (const int depth : {8, 16}) {
        for (const int width : {1, 3, 4}) {
            QTest::addRow("width %d, %d bits", width, depth) << noise(width, 3, depth);
        }
    }
}

void tst_ExchangeParts::unpacking_givesTheSamePixels()
{
    QFETCH(const QImage, image);
    const QImage result = imageOfFrame(copyOf(packed(image)), {image.width(), image.height(), depthOf(image)});
    QCOMPARE(difference(result, image), QString());
}

void tst_ExchangeParts::unpacking8Bits_copiesNothing()
{
    Pixels pixels = copyOf(QByteArray(27, 'a'));
    const void *memory = pixels.get();
    const QImage image = imageOfFrame(std::move(pixels), {3, 3, 8});
    QCOMPARE(static_cast<const void *>(image.constBits()), memory); // and the leak check says whether it is freed
}

void tst_ExchangeParts::refusal_saysWhatIsWrong_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("depth");
    QTest::addColumn<QString>("refusal");

    constexpr int largest = std::numeric_limits<int>::max();
    QTest::newRow("smallest") << 1 << 1 << 8 << QString();
    QTest::newRow("usual") << 20'000 << 10'000 << 16 << QString();
    QTest::newRow("depth 7") << 1 << 1 << 7 << u"7 bits a channel are not known, only 8 and 16"_qs;
    QTest::newRow("width 0") << 0 << 1 << 8 << u"0 x 1 pixels are none"_qs;
    QTest::newRow("last that can be counted") << largest << 178'956'970 << 16 << QString();
    QTest::newRow("first that can't") << largest << 178'956'971 << 16
                                      << u"2147483647 x 178956971 pixels can't be counted"_qs;
}

void tst_ExchangeParts::refusal_saysWhatIsWrong()
{
    QFETCH(const int, width);
    QFETCH(const int, height);
    QFETCH(const int, depth);
    QTEST(FrameSize({width, height, depth}).refusal(), "refusal");
}

void tst_ExchangeParts::narrowPath_isAbsolute()
{
    const QString expected = QDir::toNativeSeparators(QDir::current().absoluteFilePath(u"a record"_qs));
    QCOMPARE(QString::fromLocal8Bit(QByteArray::fromStdString(narrowPath(u"a record"_qs))), expected);
}

void tst_ExchangeParts::narrowPath_withoutAnEncoding_isEmpty()
{
    const QString halfACharacter = QStringLiteral("record") + QChar(0xd800); // in no encoding
    QCOMPARE(narrowPath(halfACharacter), std::string());
}

QTEST_GUILESS_MAIN(tst_ExchangeParts)

#include "tst_ExchangeParts.moc"
