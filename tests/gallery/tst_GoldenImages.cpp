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

/*! In what form parts are painted. */
struct Form
{
    const char *suffix; // of the files
    const char *ratio;
    Qt::LayoutDirection direction;
    QStringList specimens; // empty for all
};

/*! Fractions of a pixel, and the direction, are a matter of few parts. */
const QList<Form> &forms()
{
    static const QList<Form> all{
        {"1", "1", Qt::LeftToRight, {}},
        {"2", "2", Qt::LeftToRight, {}},
        {"1.5",
         "1.5",
         Qt::LeftToRight,
         {u"box-critical"_qs, u"viewer"_qs, u"tool-button-normal"_qs, u"button"_qs, u"setting-on"_qs,
          u"overlay-progress"_qs}},
        {"rtl", "1", Qt::RightToLeft, {u"box-critical"_qs, u"setting-on"_qs}},
    };
    return all;
}

QList<GoldenSpecimen> specimensIn(const Form &form)
{
    QList<GoldenSpecimen> specimens = goldenSpecimens();
    specimens.removeIf([&form](const GoldenSpecimen &specimen) {
        return !form.specimens.isEmpty() && !form.specimens.contains(specimen.name);
    });
    return specimens;
}

QString fileNameOf(const QString &specimen, const Form &form)
{
    return specimen + u"-" + QLatin1StringView(form.suffix) + u".png";
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
    QTest::addColumn<int>("number");

    QTest::newRow("ratio 1") << 0;
    QTest::newRow("ratio 2") << 1;
    QTest::newRow("ratio 1.5") << 2;
    QTest::newRow("right to left") << 3;
}

void tst_GoldenImages::parts_lookAsKept()
{
    QFETCH(const int, number);
    const Form &form = forms().at(number);
    qputenv("QT_SCALE_FACTOR", form.ratio); // read by the next application object
    RUN_IN_FRESH_PROCESS();
    QGuiApplication::setLayoutDirection(form.direction);

    const QString folder = qEnvironmentVariable("ZYX_WRITE_GOLDEN");
    QStringList failures;
    for (const GoldenSpecimen &specimen : specimensIn(form)) {
        const QString fileName = fileNameOf(specimen.name, form);
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
    for (const Form &form : forms()) {
        const QList<GoldenSpecimen> specimens = specimensIn(form);
        QVERIFY(form.specimens.isEmpty() || form.specimens.size() == specimens.size());
        for (const GoldenSpecimen &specimen : specimens) {
            names.append(fileNameOf(specimen.name, form));
            const QSize single = kept(fileNameOf(specimen.name, forms().first())).size();
            QCOMPARE(kept(names.last()).size(), single * QByteArray(form.ratio).toDouble());
        }
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
