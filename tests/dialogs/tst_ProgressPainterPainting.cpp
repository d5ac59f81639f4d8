// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyledWindow.h"
#include "support/Sandbox.h"

#include "utilsDll/dialogs/ProgressPainter.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOption>

using namespace ZYX_zglv6;
using StyledWidgets::StyledWindow;

namespace {

/*! Writes down the grounds that it is asked for. */
class GroundStyle : public QProxyStyle
{
public:
    mutable QStringList names;
    mutable QList<QRect> rects;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_Widget && widget) {
            names.append(widget->objectName());
            rects.append(option->rect);
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

/*! The overlay alone, on white. */
QImage onWhite(QWidget &overlay, double ratio)
{
    QImage image(overlay.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    overlay.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/*! A corner of 3 units: where it is open and where it is closed. */
void compareCorners(const QImage &image, int ratio, QRgb ground)
{
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    const int radius = 3 * ratio;
    for (const QPoint &corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        const QPoint inwards(corner.x() == 0 ? 1 : -1, corner.y() == 0 ? 1 : -1);
        QVERIFY(qGray(image.pixel(corner)) > qGray(ground) + 100);
        QCOMPARE(image.pixel(corner + QPoint(inwards.x() * radius, 0)), ground);
        QCOMPARE(image.pixel(corner + QPoint(0, inwards.y() * radius)), ground);
        QCOMPARE(image.pixel(corner + inwards * radius), ground);
        QVERIFY(image.pixel(corner + QPoint(inwards.x() * (radius - 2), 0)) != ground);
    }
}

/*! How many pixels in \a area have that colour. */
int countOf(const QImage &image, const QRect &area, QRgb colour)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += int(image.pixel(x, y) == colour);
        }
    }
    return count;
}

} // namespace

class tst_ProgressPainterPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void overlays_askTheStyleForTheirGround();
    void progress_isATranslucentPill_data();
    void progress_isATranslucentPill();
    void progress_showsTextAndAnimationBesideEachOther();
    void zoom_isADarkPill_data();
    void zoom_isADarkPill();
    void zoom_isWrittenInItsColour();
    void withoutSheets_thereIsNoGround();

private:
    const TestSupport::Sandbox m_sandbox;
};

void tst_ProgressPainterPainting::initTestCase()
{
    addApplicationFonts();
    QApplication::setStyle(new CustomZyxAppStyle); // the application owns it
}

void tst_ProgressPainterPainting::overlays_askTheStyleForTheirGround()
{
    GroundStyle style;
    QWidget window;
    ProgressPainter progress(&window, &window);
    ZoomPainter zoom(&window, &window);
    auto *animation = progress.findChild<AnimatedLabel *>();
    for (QWidget *each :
         {static_cast<QWidget *>(&progress), static_cast<QWidget *>(&zoom), static_cast<QWidget *>(animation)}) {
        each->setStyle(&style);
    }
    onWhite(progress, 1);
    QCOMPARE(style.names, (QStringList{u"processingWidget"_qs, u"AnimatedLabel"_qs}));
    QCOMPARE(style.rects, (QList<QRect>{progress.rect(), animation->rect()}));
    style.names.clear();
    onWhite(zoom, 1);
    QCOMPARE(style.names, QStringList{u"zoomWidget"_qs});
}

void tst_ProgressPainterPainting::progress_isATranslucentPill_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void tst_ProgressPainterPainting::progress_isATranslucentPill()
{
    QFETCH(const int, ratio);
    StyledWindow window;
    ProgressPainter progress(&window, &window);
    window.show();
    progress.onStartProgress(false);
    const QImage image = onWhite(progress, ratio);
    const QRgb ground = 0xff696969; // black with an opacity of 150 of 255, over white
    QCOMPARE(image.pixel(5 * ratio, 5 * ratio), ground);
    QCOMPARE(image.pixel(image.width() / 2, 3), ground);
    compareCorners(image, ratio, ground);
    QVERIFY(countOf(image, image.rect(), ground) > image.width() * image.height() / 2);
}

void tst_ProgressPainterPainting::progress_showsTextAndAnimationBesideEachOther()
{
    StyledWindow window;
    ProgressPainter progress(&window, &window);
    window.show();
    progress.onStartProgress(false);
    auto *label = progress.findChild<QLabel *>(u"processLabel"_qs);
    auto *animation = progress.findChild<AnimatedLabel *>();
    QVERIFY(label->geometry().right() < animation->geometry().left());
    QVERIFY(progress.rect().contains(label->geometry()));
    QVERIFY(progress.rect().contains(animation->geometry()));
    QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()) + 5);
    QVERIFY(animation->width() >= 32 + 11);
    QVERIFY(animation->height() >= 32 + 7);
    const QImage image = onWhite(progress, 1);
    for (const QWidget *each : {static_cast<QWidget *>(label), static_cast<QWidget *>(animation)}) {
        const int area = each->width() * each->height();
        const int ground = countOf(image, each->geometry(), 0xff696969);
        QVERIFY(ground < area - 30 && ground > 30); // something stands on the ground
    }
}

void tst_ProgressPainterPainting::zoom_isADarkPill_data()
{
    progress_isATranslucentPill_data();
}

void tst_ProgressPainterPainting::zoom_isADarkPill()
{
    QFETCH(const int, ratio);
    StyledWindow window;
    ZoomPainter zoom(&window, &window);
    window.show();
    zoom.showZoom(u"100"_qs, 20);
    const QImage image = onWhite(zoom, ratio);
    QCOMPARE(image.size(), QSize(100, 41) * ratio);
    QCOMPARE(image.pixel(5 * ratio, 20 * ratio), 0xff1b1b1b);
    compareCorners(image, ratio, 0xff1b1b1b);
}

void tst_ProgressPainterPainting::zoom_isWrittenInItsColour()
{
    StyledWindow window;
    ZoomPainter zoom(&window, &window);
    window.show();
    zoom.showZoom(u"111"_qs, 20);
    auto *label = zoom.findChild<QLabel *>(u"zoomLabel"_qs);
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(0xA33F12));
    QCOMPARE(label->font().pixelSize(), 14);
    const QImage image = onWhite(zoom, 4); // strokes wider than a pixel
    QVERIFY(countOf(image, image.rect(), 0xffa33f12) > 20);
}

void tst_ProgressPainterPainting::withoutSheets_thereIsNoGround()
{
    QWidget window;
    ProgressPainter progress(&window, &window);
    const QImage image = onWhite(progress, 1);
    QCOMPARE(image.pixel(0, 0), 0xffffffff);
    QCOMPARE(image.pixel(image.width() / 2, 3), 0xffffffff);
}

QTEST_MAIN(tst_ProgressPainterPainting)
#include "tst_ProgressPainterPainting.moc"
