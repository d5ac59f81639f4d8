// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "GoldenSpecimens.h"

#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/look/ImageComparison.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

/*!
    Percent of the mean difference of a channel. Compilers and systems paint the same to the bit, so little is passed
    over: a rounding of smoothed edges by another processor's instructions, 1 of 255 in one value of four hundred. The
    corner of a shadow a pixel lower is 0.004, the edge of a box's strip a pixel higher 0.026.
*/
constexpr double threshold = 0.001;

QString fileNameOf(const QString &specimen, const QByteArray &ratio)
{
    return specimen + u"-" + QString::fromLatin1(ratio) + u".png";
}

QImage kept(const QString &fileName)
{
    return QImage(u":/golden/"_qs + fileName).convertToFormat(QImage::Format_RGB32);
}

/*! Moved by \a offset; what comes in is the edge. */
QImage shifted(const QImage &image, const QPoint &offset)
{
    QImage result = image;
    for (int y = offset.y(); y < image.height(); ++y) {
        for (int x = offset.x(); x < image.width(); ++x) {
            result.setPixel(x, y, image.pixel(x - offset.x(), y - offset.y()));
        }
    }
    return result;
}

/*! How many pixels differ from the one in the corner. */
qsizetype inkOf(const QImage &image)
{
    qsizetype count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == image.pixel(0, 0) ? 0 : 1;
        }
    }
    return count;
}

} // namespace

/*! Parts whose painting is told by pixels look as in the images kept. */
class tst_GoldenImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void parts_lookAsKept_data();
    void parts_lookAsKept();
    void keptImages_areThoseOfTheParts();
    void comparison_seesAPixelOfShift();
    void comparison_seesAnotherColour();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_GoldenImages::initTestCase()
{
    addApplicationFonts();
    QApplication::setStyle(new CustomZyxAppStyle); // the application owns it
}

void tst_GoldenImages::parts_lookAsKept_data()
{
    QTest::addColumn<QByteArray>("ratio");

    QTest::newRow("ratio 1") << QByteArray("1");
    QTest::newRow("ratio 2") << QByteArray("2");
}

void tst_GoldenImages::parts_lookAsKept()
{
    QFETCH(const QByteArray, ratio);
    qputenv("QT_SCALE_FACTOR", ratio); // read by the next application object
    RUN_IN_FRESH_PROCESS();

    const QString folder = qEnvironmentVariable("ZYX_WRITE_GOLDEN");
    QStringList failures;
    for (const GoldenSpecimen &specimen : goldenSpecimens()) {
        const QString fileName = fileNameOf(specimen.name, ratio);
        const QImage image = specimen.paint();
        if (!folder.isEmpty()) {
            QVERIFY2(image.save(QDir(folder).filePath(fileName)), qPrintable(fileName));
            continue;
        }
        double difference = -1;
        if (compareImages(image, kept(fileName), threshold, &difference) != imgCmpEqual) {
            failures.append(u"%1 %2 %"_qs.arg(fileName).arg(difference, 0, 'f', 3)); // short: Qt cuts long ones
        }
    }
    if (!folder.isEmpty()) {
        QSKIP("The images were written, and not compared.");
    }
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join(u", ")));
}

void tst_GoldenImages::keptImages_areThoseOfTheParts()
{
    QStringList names;
    for (const GoldenSpecimen &specimen : goldenSpecimens()) {
        const QString single = fileNameOf(specimen.name, "1");
        const QString twofold = fileNameOf(specimen.name, "2");
        QCOMPARE(kept(twofold).size(), kept(single).size() * 2);
        names += {single, twofold};
    }
    names.sort();
    QCOMPARE(QDir(u":/golden"_qs).entryList(QDir::Files, QDir::Name), names);
}

void tst_GoldenImages::comparison_seesAPixelOfShift()
{
    const QStringList files = QDir(u":/golden"_qs).entryList(QDir::Files);
    for (const QString &fileName : files) {
        const QImage image = kept(fileName);
        double difference = 0;
        QVERIFY2(compareImages(image, shifted(image, QPoint(0, 1)), threshold, &difference) == imgCmpDifferent,
                 qPrintable(u"%1 down: %2"_qs.arg(fileName).arg(difference)));
        if (fileName.startsWith(u"box-without-icon")) {
            continue; // all columns are alike
        }
        QVERIFY2(compareImages(image, shifted(image, QPoint(1, 0)), threshold, &difference) == imgCmpDifferent,
                 qPrintable(u"%1 right: %2"_qs.arg(fileName).arg(difference)));
    }
}

/*! Everything but the ground lighter by a fiftieth. */
void tst_GoldenImages::comparison_seesAnotherColour()
{
    const QStringList files = QDir(u":/golden"_qs).entryList(QDir::Files);
    for (const QString &fileName : files) {
        const QImage image = kept(fileName);
        QVERIFY2(inkOf(image) > 100, qPrintable(fileName));
        QImage other = image;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (image.pixel(x, y) != image.pixel(0, 0)) {
                    other.setPixelColor(x, y, QColor(qMin(colour.red() + 5, 255), colour.green(), colour.blue()));
                }
            }
        }
        double difference = 0;
        QVERIFY2(compareImages(image, other, threshold, &difference) == imgCmpDifferent,
                 qPrintable(u"%1: %2"_qs.arg(fileName).arg(difference)));
    }
}

QTEST_MAIN(tst_GoldenImages)
#include "tst_GoldenImages.moc"
