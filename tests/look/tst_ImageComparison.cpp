// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/ImageComparison.h"

#include <QtCore/QList>
#include <QtCore/QRandomGenerator>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

using namespace ZYX_zglv6;

namespace {

constexpr double untouched = -7;

struct Comparison
{
    imgCmpResult result;
    double difference;
};

Comparison compared(const QImage &first, const QImage &second, double threshold)
{
    double difference = untouched;
    const imgCmpResult result = compareImages(first, second, threshold, &difference);
    return {result, difference};
}

QImage filled(const QSize &size, QRgb colour, QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::fill_n(row, size.width(), colour);
    }
    return image;
}

/*! Each pixel as \a colourOf says. */
QImage painted(const QSize &size, const std::function<QRgb()> &colourOf)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::generate_n(row, size.width(), colourOf);
    }
    return image;
}

/*! By rows and pixel by pixel, with a division for each channel. */
double sumByHand(const QImage &first, const QImage &second)
{
    double sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) / 255.0 + std::abs(qGreen(a) - qGreen(b)) / 255.0
                + std::abs(qBlue(a) - qBlue(b)) / 255.0;
        }
    }
    return sum;
}

double differenceByHand(const QImage &first, const QImage &second)
{
    return sumByHand(first, second) * 100.0 / (first.width() * first.height() * 3);
}

} // namespace

class tst_ImageComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void results_haveTheirNumbers();
    void nullImage_leavesTheDifference_data();
    void nullImage_leavesTheDifference();
    void otherSize_leavesTheDifference();
    void sameImage_isEqual();
    void blackAndWhite_differWholly();
    void alpha_isNotCompared();
    void channel_isAThird_data();
    void channel_isAThird();
    void threshold_isInclusive();
    void differencePointer_mayBeNull();
    void eachStep_isDividedExactly();
    void eachSumOfChannels_isRoundedAsPixelByPixel_data();
    void eachSumOfChannels_isRoundedAsPixelByPixel();
    void randomImages_giveTheSumOfPixelByPixel_data();
    void randomImages_giveTheSumOfPixelByPixel();
    void partOfAnImage_isReadByItsRows();
    void formatsOfOtherDepths_areReadWithinTheirRows_data();
    void formatsOfOtherDepths_areReadWithinTheirRows();
    void anyThread_givesTheSame();
    void bufferOfTheCaller_isReadWithinItsPixels();
    void manyPixels_countInThirtyTwoBits();
};

void tst_ImageComparison::results_haveTheirNumbers()
{
    QCOMPARE(int(imgCmpNullImage), 0);
    QCOMPARE(int(imgCmpSizeDiffers), 1);
    QCOMPARE(int(imgCmpEqual), 2);
    QCOMPARE(int(imgCmpDifferent), 3);
}

void tst_ImageComparison::nullImage_leavesTheDifference_data()
{
    QTest::addColumn<QImage>("first");
    QTest::addColumn<QImage>("second");

    const QImage image = filled({2, 2}, 0xff000000);
    QTest::newRow("first") << QImage() << image;
    QTest::newRow("second") << image << QImage();
    QTest::newRow("both") << QImage() << QImage();
    QTest::newRow("no pixels") << QImage(0, 0, QImage::Format_ARGB32) << QImage(0, 5, QImage::Format_ARGB32);
}

void tst_ImageComparison::nullImage_leavesTheDifference()
{
    QFETCH(const QImage, first);
    QFETCH(const QImage, second);

    const Comparison comparison = compared(first, second, 0);
    QCOMPARE(comparison.result, imgCmpNullImage);
    QCOMPARE(comparison.difference, untouched);
}

void tst_ImageComparison::otherSize_leavesTheDifference()
{
    for (const QSize &size : {QSize(2, 4), QSize(4, 3), QSize(3, 2)}) {
        const Comparison comparison = compared(filled({3, 4}, 0xffffffff), filled(size, 0xffffffff), 100);
        QCOMPARE(comparison.result, imgCmpSizeDiffers);
        QCOMPARE(comparison.difference, untouched);
    }
}

void tst_ImageComparison::sameImage_isEqual()
{
    const QImage image = painted({37, 29}, [] { return QRandomGenerator::global()->generate(); });
    for (const double threshold : {0.0, 1.0, 100.0}) {
        const Comparison comparison = compared(image, image, threshold);
        QCOMPARE(comparison.result, imgCmpEqual);
        QCOMPARE(comparison.difference, 0.0);
    }
    QCOMPARE(compared(image, image, -1.0).result, imgCmpDifferent);
}

void tst_ImageComparison::blackAndWhite_differWholly()
{
    const QImage black = filled({640, 480}, 0xff000000);
    const QImage white = filled({640, 480}, 0xffffffff);
    const Comparison comparison = compared(black, white, 99.0);
    QCOMPARE(comparison.result, imgCmpDifferent);
    QVERIFY(comparison.difference == 100.0); // exactly
    QVERIFY(compared(white, black, 99.0).difference == 100.0);
}

void tst_ImageComparison::alpha_isNotCompared()
{
    const Comparison comparison = compared(filled({33, 5}, 0x00123456), filled({33, 5}, 0xff123456), 0);
    QCOMPARE(comparison.result, imgCmpEqual);
    QCOMPARE(comparison.difference, 0.0);
}

void tst_ImageComparison::channel_isAThird_data()
{
    QTest::addColumn<QRgb>("colour");

    QTest::newRow("red") << QRgb(0xffff0000);
    QTest::newRow("green") << QRgb(0xff00ff00);
    QTest::newRow("blue") << QRgb(0xff0000ff);
}

void tst_ImageComparison::channel_isAThird()
{
    QFETCH(const QRgb, colour);

    const Comparison comparison = compared(filled({30, 1}, colour), filled({30, 1}, 0xff000000), 33);
    QVERIFY(comparison.difference == 30 * 100.0 / 90);
    QCOMPARE(comparison.result, imgCmpDifferent);
}

void tst_ImageComparison::threshold_isInclusive()
{
    const QImage first = filled({10, 10}, 0xff102030);
    const QImage second = filled({10, 10}, 0xff203040);
    const double difference = compared(first, second, 0).difference;
    QCOMPARE(compared(first, second, difference).result, imgCmpEqual);
    QCOMPARE(compared(first, second, std::nextafter(difference, 0)).result, imgCmpDifferent);
}

void tst_ImageComparison::differencePointer_mayBeNull()
{
    const QImage black = filled({9, 9}, 0xff000000);
    QCOMPARE(compareImages(black, filled({9, 9}, 0xffffffff), 50, nullptr), imgCmpDifferent);
    QCOMPARE(compareImages(black, black, 0, nullptr), imgCmpEqual);
    QCOMPARE(compareImages(QImage(), black, 0, nullptr), imgCmpNullImage);
    QCOMPARE(compareImages(filled({9, 8}, 0), black, 0, nullptr), imgCmpSizeDiffers);
}

/*! In a row of its own, long enough for vectors and a sum that they take. */
void tst_ImageComparison::eachStep_isDividedExactly()
{
    const QSize size(40'000, 1);
    for (QRgb step = 0; step < 256; ++step) {
        const QImage first = filled(size, 0xff000000 | step);
        const QImage second = filled(size, 0xff000000);
        QVERIFY2(compared(first, second, 0).difference == differenceByHand(first, second), QByteArray::number(step));
    }
}

void tst_ImageComparison::eachSumOfChannels_isRoundedAsPixelByPixel_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("sums below 4096") << QSize(600, 3);
    QTest::newRow("through ten powers of two from there on") << QSize(2000, 1500);
}

void tst_ImageComparison::eachSumOfChannels_isRoundedAsPixelByPixel()
{
    QFETCH(const QSize, size);

    int next = 0;
    const QImage first = painted(size, [&next] {
        const int sum = next++ % (3 * 255 + 1);
        const int red = std::min(sum, 255);
        const int green = std::min(sum - red, 255);
        return qRgb(red, green, sum - red - green);
    });
    const QImage second = filled(size, 0xff000000);
    QVERIFY(compared(first, second, 0).difference == differenceByHand(first, second));
}

void tst_ImageComparison::randomImages_giveTheSumOfPixelByPixel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRgb>("mask"); // which bits differ

    for (const QSize &size :
         {QSize(1, 1), QSize(3, 1), QSize(511, 3), QSize(512, 3), QSize(513, 40), QSize(2000, 1500)}) {
        for (const QRgb mask : {0xffffffffU, 0x010101U, 0x0f0f0fU, 0xff0000U, 0x00ff00U, 0x0000ffU, 0xf0f0f0U}) {
            QTest::addRow("%d x %d, %06x", size.width(), size.height(), mask) << size << QRgb(mask);
        }
    }
}

void tst_ImageComparison::randomImages_giveTheSumOfPixelByPixel()
{
    QFETCH(const QSize, size);
    QFETCH(const QRgb, mask);

    QRandomGenerator dice(20260101U + mask);
    const QImage first = painted(size, [&dice] { return dice.generate(); });
    const QImage noise = painted(size, [&] { return dice.generate() & mask; });
    QImage second = first;
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(second.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            row[x] ^= reinterpret_cast<const QRgb *>(noise.constScanLine(y))[x];
        }
    }
    const double difference = compared(first, second, 0).difference;
    QVERIFY2(difference == differenceByHand(first, second), QByteArray::number(difference, 'g', 17));
}

void tst_ImageComparison::partOfAnImage_isReadByItsRows()
{
    QRandomGenerator dice(5);
    const QImage whole = painted({1200, 20}, [&dice] { return dice.generate(); });
    const QImage part(whole.constBits() + qsizetype(4) * 100, 1000, 20, whole.bytesPerLine(), QImage::Format_RGB32);
    const QImage copy = part.copy();
    QVERIFY(part.bytesPerLine() != copy.bytesPerLine());
    QCOMPARE(compared(part, copy, 0).difference, 0.0);
    const QImage other = filled({1000, 20}, 0xff808080);
    QVERIFY(compared(part, other, 0).difference == differenceByHand(copy, other));
}

void tst_ImageComparison::formatsOfOtherDepths_areReadWithinTheirRows_data()
{
    QTest::addColumn<QImage::Format>("format");

    QTest::newRow("1 bit") << QImage::Format_Mono;
    QTest::newRow("8 bits") << QImage::Format_Grayscale8;
    QTest::newRow("16 bits") << QImage::Format_RGB16;
    QTest::newRow("24 bits") << QImage::Format_RGB888;
    QTest::newRow("64 bits") << QImage::Format_RGBA64;
}

/*! A sanitizer sees a byte too far. */
void tst_ImageComparison::formatsOfOtherDepths_areReadWithinTheirRows()
{
    QFETCH(const QImage::Format, format);

    for (const int width : {1, 7, 600}) {
        const QImage wide = filled({width, 3}, 0xffffffff);
        QImage image(width, 3, format);
        image.fill(0);
        QCOMPARE(compared(image, image, 0).result, imgCmpEqual);
        QCOMPARE(compared(image, image, 0).difference, 0.0);
        QVERIFY(compared(image, wide, 0).difference >= 0.0);
        QVERIFY(compared(wide, image, 0).difference <= 100.0);
    }
}

void tst_ImageComparison::anyThread_givesTheSame()
{
    QRandomGenerator dice(9);
    const QImage first = painted({2000, 100}, [&dice] { return dice.generate(); });
    const QImage second = painted({2000, 100}, [&dice] { return dice.generate(); });
    const double here = compared(first, second, 0).difference;
    QList<double> there(4, -1.0);
    std::vector<std::unique_ptr<QThread>> threads;
    for (double &difference : there) {
        threads.emplace_back(QThread::create([&] { compareImages(first, second, 0.0, &difference); }));
        threads.back()->start();
    }
    for (const std::unique_ptr<QThread> &thread : threads) {
        QVERIFY(thread->wait());
    }
    QCOMPARE(there, QList<double>(4, here));
}

/*! Rows that begin anywhere, and a last one without what pads the others. */
void tst_ImageComparison::bufferOfTheCaller_isReadWithinItsPixels()
{
    const std::vector<uchar> narrow(21, 1); // 7 x 3
    const QImage unaligned(narrow.data(), 7, 3, 7, QImage::Format_Grayscale8);
    const std::vector<uchar> padded(138, 1); // 64, 64 and 10: on the heap, where a sanitizer guards the end
    const QImage withoutEnd(padded.data(), 10, 3, 64, QImage::Format_Grayscale8);
    for (const QImage &image : {unaligned, withoutEnd}) {
        const QImage wide = filled(image.size(), 0xffffffff);
        QVERIFY(compared(image, wide, 0).difference > 0.0);
        QVERIFY(compared(wide, image, 0).difference > 0.0);
        QCOMPARE(compared(image, image, 0).difference, 0.0);
    }
}

/*! 32,768 x 32,768 pixels have 3,221,225,472 channels, which are -1,073,741,824 in 32 bits. */
void tst_ImageComparison::manyPixels_countInThirtyTwoBits()
{
#ifdef ZYX_SLOW_PIXELS
    QSKIP("takes a minute under a sanitizer");
#else
    constexpr int side = 32'768;
    const QImage black(side, side, QImage::Format_RGB32); // not filled: the system gives such memory page by page
    if (black.isNull()) {
        QSKIP("4 GiB for an image are not there");
    }
    const Comparison comparison = compared(black, black, 0);
    QCOMPARE(comparison.result, imgCmpEqual);
    QVERIFY(comparison.difference == 0.0 && std::signbit(comparison.difference));
#endif
}

QTEST_APPLESS_MAIN(tst_ImageComparison)
#include "tst_ImageComparison.moc"
