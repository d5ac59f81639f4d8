// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/AssertionReports.h"
#include "uiControls/PaintedWidgets.h"

#include "uiControls/IconViewer.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QStyleOption>

namespace {

/*! Makes the disabled form of a pixmap blue, or nothing of it, and counts that. */
class BlueStyle : public QCommonStyle
{
public:
    mutable int countOfPixmaps = 0;
    mutable QPalette palette;
    bool isFailing = false;

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override
    {
        if (mode != QIcon::Disabled) {
            return pixmap;
        }
        ++countOfPixmaps;
        palette = option->palette;
        return isFailing ? QPixmap() : filled(pixmap.size(), Qt::blue);
    }
};

/*! An application style for a while. */
class InstalledStyle
{
public:
    InstalledStyle()
        : style(new BlueStyle)
    {
        QApplication::setStyle(style); // takes it over
    }

    ~InstalledStyle()
    {
        QApplication::setStyle(u"Fusion"_qs);
    }

    InstalledStyle(const InstalledStyle &) = delete;
    InstalledStyle &operator=(const InstalledStyle &) = delete;

    BlueStyle *const style;
};

struct IconCall
{
    QRect rect;
    QIcon::Mode mode;
    QIcon::State state;

    bool operator==(const IconCall &other) const = default;
};

/*! An icon of 50 by 40 that remembers how it was asked to paint. */
class RecordingIcon : public QIconEngine
{
public:
    explicit RecordingIcon(QList<IconCall> &calls)
        : m_calls(calls)
    {
    }

    void paint(QPainter * /*painter*/, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        m_calls.append({rect, mode, state});
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return filled(size);
    }

    QSize actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return size;
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return {QSize(50, 40)};
    }

    QIconEngine *clone() const override
    {
        return new RecordingIcon(m_calls);
    }

private:
    QList<IconCall> &m_calls;
};

} // namespace

class tst_IconViewerPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pixmap_isPaintedInItsRectangle_data();
    void pixmap_isPaintedInItsRectangle();
    void pixmap_halfAPixelAside_isPaintedThere();
    void pixmap_largerThanTheArea_isScaledSmoothly();
    void pixmap_ofTwiceTheResolution_isPaintedByItsOwnPixels();
    void pixmap_disabled_isMadeOnce();
    void pixmap_disabledWithoutThatState_isTheNormalOne();
    void pixmap_thatCannotBeDisabled_isReported();
    void icon_isPaintedByItsMode();
    void icon_ofVectors_needsAMandatorySize();
    void mandatoryNothing_paintsNothing();
};

void tst_IconViewerPainting::pixmap_isPaintedInItsRectangle_data()
{
    QTest::addColumn<bool>("isExpanded");
    QTest::addColumn<Qt::AspectRatioMode>("mode");
    QTest::addColumn<QRect>("place");

    QTest::newRow("small") << false << Qt::KeepAspectRatio << QRect(75, 80, 50, 40);
    QTest::newRow("expanded") << true << Qt::KeepAspectRatio << QRect(0, 20, 200, 160);
    QTest::newRow("beyond the area") << true << Qt::KeepAspectRatioByExpanding << QRect(0, 0, 200, 200);
    QTest::newRow("all of the area") << false << Qt::IgnoreAspectRatio << QRect(0, 0, 200, 200);
}

void tst_IconViewerPainting::pixmap_isPaintedInItsRectangle()
{
    QFETCH(const bool, isExpanded);
    QFETCH(const Qt::AspectRatioMode, mode);
    QFETCH(const QRect, place);
    CIconViewer viewer;
    viewer.resize(200, 200);
    viewer.setPixmap(filled({50, 40}));
    viewer.setExpandContent(isExpanded);
    viewer.setAspectRatio(mode);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(viewer, ratio);
        const QRect pixels = inPixels(place, ratio);
        QCOMPARE(inked(image), pixels);
        for (const QPoint &corner :
             {pixels.topLeft(), pixels.topRight(), pixels.center(), pixels.bottomLeft(), pixels.bottomRight()}) {
            QCOMPARE(image.pixelColor(corner), QColor(Qt::red));
        }
    }
}

void tst_IconViewerPainting::pixmap_halfAPixelAside_isPaintedThere()
{
    CIconViewer viewer;
    viewer.resize(200, 200);
    viewer.setPixmap(filled({51, 50})); // from 74.5 to 125.5
    QCOMPARE(inked(rendered(viewer)), QRect(75, 75, 51, 50)); // what is not scaled goes to whole pixels
    QCOMPARE(inked(rendered(viewer, 2)), QRect(149, 150, 102, 100));
}

void tst_IconViewerPainting::pixmap_largerThanTheArea_isScaledSmoothly()
{
    QImage stripes(400, 400, QImage::Format_RGB32);
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 400; ++x) {
            stripes.setPixel(x, y, x % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    }
    CIconViewer viewer;
    viewer.resize(200, 200);
    viewer.setPixmap(QPixmap::fromImage(stripes));
    const QImage image = rendered(viewer);
    for (const int x : {50, 101, 150}) {
        const int gray = qGray(image.pixel(x, 100)); // no stripe alone
        QVERIFY2(gray > 100 && gray < 155, qPrintable(QString::number(gray)));
    }
}

void tst_IconViewerPainting::pixmap_ofTwiceTheResolution_isPaintedByItsOwnPixels()
{
    QPixmap pixmap = filled({80, 60});
    pixmap.setDevicePixelRatio(2);
    CIconViewer viewer;
    viewer.resize(200, 200);
    viewer.setPixmap(pixmap);
    QCOMPARE(viewer.sizeHint(), QSize(80, 60));
    QCOMPARE(inked(rendered(viewer)), QRect(60, 70, 80, 60));
    QCOMPARE(inked(rendered(viewer, 2)), QRect(120, 140, 160, 120));
}

void tst_IconViewerPainting::pixmap_disabled_isMadeOnce()
{
    const InstalledStyle installed;
    QWidget parent;
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, Qt::green);
    parent.setPalette(palette);
    CIconViewer viewer(&parent);
    viewer.resize(100, 100);
    viewer.setPixmap(filled({50, 40}));
    QCOMPARE(rendered(viewer).pixelColor(50, 50), QColor(Qt::red));
    QCOMPARE(installed.style->countOfPixmaps, 0);

    parent.setEnabled(false);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(viewer, ratio);
        QCOMPARE(inked(image), inPixels(QRect(25, 30, 50, 40), ratio));
        QCOMPARE(image.pixelColor(int(50 * ratio), int(50 * ratio)), QColor(Qt::blue));
    }
    QCOMPARE(installed.style->countOfPixmaps, 1);
    QCOMPARE(installed.style->palette, QGuiApplication::palette()); // not the widget's

    viewer.setPixmap(filled({50, 40}));
    QCOMPARE(rendered(viewer).pixelColor(50, 50), QColor(Qt::blue));
    QCOMPARE(installed.style->countOfPixmaps, 2);
    parent.setEnabled(true);
    QCOMPARE(rendered(viewer).pixelColor(50, 50), QColor(Qt::red));
}

void tst_IconViewerPainting::pixmap_disabledWithoutThatState_isTheNormalOne()
{
    const InstalledStyle installed;
    CIconViewer viewer;
    viewer.resize(100, 100);
    viewer.setPixmap(filled({50, 40}));
    viewer.setEnabled(false);
    viewer.setShowDisableState(false);
    QCOMPARE(rendered(viewer).pixelColor(50, 50), QColor(Qt::red));
    QCOMPARE(installed.style->countOfPixmaps, 0);
    viewer.setShowDisableState(true);
    QCOMPARE(rendered(viewer).pixelColor(50, 50), QColor(Qt::blue));
}

void tst_IconViewerPainting::pixmap_thatCannotBeDisabled_isReported()
{
    const InstalledStyle installed;
    installed.style->isFailing = true;
    CIconViewer viewer;
    viewer.resize(100, 100);
    viewer.setPixmap(filled({50, 40}));
    viewer.setEnabled(false);
    const TestSupport::AssertionReports reports;
    QVERIFY(inked(rendered(viewer)).isNull());
    QCOMPARE(reports.texts().size(), 1);
    QCOMPARE(installed.style->countOfPixmaps, 1);
    rendered(viewer);
    QCOMPARE(installed.style->countOfPixmaps, 2); // tried anew
}

void tst_IconViewerPainting::icon_isPaintedByItsMode()
{
    QList<IconCall> calls;
    CIconViewer viewer;
    viewer.resize(101, 100);
    viewer.setIcon(QIcon(new RecordingIcon(calls)));
    const QRect place(26, 30, 50, 40); // 25.5, rounded
    rendered(viewer);
    QCOMPARE(calls, QList<IconCall>({{place, QIcon::Normal, QIcon::Off}}));
    calls.clear();
    viewer.setEnabled(false);
    rendered(viewer);
    QCOMPARE(calls, QList<IconCall>({{place, QIcon::Disabled, QIcon::Off}}));
    calls.clear();
    viewer.setShowDisableState(false);
    rendered(viewer);
    QCOMPARE(calls, QList<IconCall>({{place, QIcon::Normal, QIcon::Off}}));
}

void tst_IconViewerPainting::icon_ofVectors_needsAMandatorySize()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"square.svg"_qs);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
               "<rect width='8' height='8' fill='#ff0000'/></svg>");
    file.close();
    CIconViewer viewer;
    viewer.resize(100, 100);
    viewer.setIcon(path);
    if (viewer.isEmpty() || !viewer.icon().availableSizes().isEmpty()) {
        QSKIP("Needs Qt's icon engine for SVG, of a version that tells no sizes.");
    }
    QVERIFY(viewer.outputRect().isEmpty());
    QVERIFY(inked(rendered(viewer)).isNull());
    viewer.setMandatoryImageSize({60, 40});
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(viewer, ratio);
        QCOMPARE(inked(image), inPixels(QRect(30, 30, 40, 40), ratio)); // it keeps its own ratio
        QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::red));
    }
}

void tst_IconViewerPainting::mandatoryNothing_paintsNothing()
{
    CIconViewer viewer;
    viewer.resize(100, 100);
    viewer.setPixmap(filled({50, 50}));
    viewer.setText(u"Grain"_qs);
    viewer.setMandatoryImageSize({0, 0});
    QVERIFY(viewer.outputRect().isEmpty());
    QVERIFY(inked(rendered(viewer)).isNull());
    QCOMPARE(viewer.sizeHint(), QSize(0, 0));
}

QTEST_MAIN(tst_IconViewerPainting)
#include "tst_IconViewerPainting.moc"
