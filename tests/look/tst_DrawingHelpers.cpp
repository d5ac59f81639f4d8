// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/AssertionReports.h"

#include "support/FreshProcess.h"

#include "utilsDll/frame/QtResources.h"
#include "utilsDll/look/GuiUtils.h"

#include <QtGui/QIconEngine>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

#include <functional>

using namespace ZYX_zglv6;

namespace {

constexpr QRgb paper = 0xff404040;

/*! An image of \a size units with what \a draw paints on it. */
QImage painted(const QSize &size, const std::function<void(QPainter &)> &draw, double pixelRatio = 1)
{
    QImage image(size * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(paper);
    QPainter painter(&image);
    draw(painter);
    return image;
}

/*! The smallest rectangle with all pixels that are no paper. */
QRect inked(const QImage &image)
{
    QRect all;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != paper) {
                all |= QRect(x, y, 1, 1);
            }
        }
    }
    return all;
}

/*! An image of 2 * corner + 1 pixels whose nine parts each have a colour of their own. */
QPixmap nineParts(int corner)
{
    const int side = 2 * corner + 1;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const auto part = [corner](int place) { return place < corner ? 0 : place == corner ? 1 : 2; };
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            image.setPixel(x, y, qRgb(100 + 50 * part(x), 50 + 80 * part(y), 0));
        }
    }
    return QPixmap::fromImage(image);
}

/*! Remembers how it was asked to paint. */
class RecordingIcon : public QIconEngine
{
public:
    struct Call
    {
        QRect rect;
        QIcon::Mode mode;
        QIcon::State state;
    };

    explicit RecordingIcon(QList<QSize> sizes, QList<Call> &calls)
        : m_sizes(std::move(sizes))
        , m_calls(calls)
    {
    }

    void paint(QPainter * /*painter*/, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        m_calls.append({rect, mode, state});
    }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return mode == QIcon::Selected && state == QIcon::On ? m_sizes : QList<QSize>();
    }

    QSize actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return size;
    }

    QIconEngine *clone() const override
    {
        return new RecordingIcon(m_sizes, m_calls);
    }

    bool isNull() override
    {
        return false;
    }

private:
    QList<QSize> m_sizes;
    QList<Call> &m_calls;
};

} // namespace

class tst_DrawingHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawWidgetBackground_fillsWithGray();
    void drawWidgetBackground_nullDevice_isReported();
    void drawSeparatorLine_isAGroove_data();
    void drawSeparatorLine_isAGroove();
    void drawSeparatorLine_negativeLength_isTheSameLine();
    void drawSeparatorLine_keepsThePen();
    void drawSeparatorLine_withoutPainterOrLength_drawsNothing();
    void drawShadowRect_liesAroundTheRectangle_data();
    void drawShadowRect_liesAroundTheRectangle();
    void drawShadowRect_hasEightPiecesInTheirPlaces();
    void drawShadowRect_loadsItsImagesOnce();
    void drawShadowRect_growsPalerOutwards();
    void drawShadowRect_invalidRectangle_drawsNothing();
    void drawRoundedImageBorder_hasEightParts_data();
    void drawRoundedImageBorder_hasEightParts();
    void drawRoundedImageBorder_nullRectangle_drawsNothing();
    void sizeOfIcon_isTheLargestOfEach();
    void paintIcon_fitsItsLargestSize_data();
    void paintIcon_fitsItsLargestSize();
    void paintIcon_ignoringTheRatio_getsTheRectangle();
    void paintIcon_withoutPainterOrIcon_paintsNothing();
    void createComboFont_byWeight_data();
    void createComboFont_byWeight();
    void createComboFont_ofAWidget();
};

void tst_DrawingHelpers::drawWidgetBackground_fillsWithGray()
{
    for (const double ratio : {1.0, 2.0}) {
        QImage image(QSize(10, 8) * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(paper);
        drawWidgetBackground(&image, QRect(2, 1, 5, 3), 200);
        const int r = int(ratio);
        QCOMPARE(inked(image), QRect(2 * r, 1 * r, 5 * r, 3 * r));
        QCOMPARE(image.pixel(3 * r, 2 * r), qRgba(200, 200, 200, 255));
    }
}

void tst_DrawingHelpers::drawWidgetBackground_nullDevice_isReported()
{
    const TestSupport::AssertionReports reports;
    drawWidgetBackground(nullptr, QRect(0, 0, 5, 5), 100);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY2(reports.texts().front().contains(u"Bug!!!"), qPrintable(reports.texts().front()));
}

void tst_DrawingHelpers::drawSeparatorLine_isAGroove_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QRect>("first");
    QTest::addColumn<QRect>("second");

    // the caps are half a pixel at either end
    QTest::newRow("vertical") << Qt::Vertical << QRect(4, 3, 1, 6) << QRect(5, 3, 1, 6);
    QTest::newRow("horizontal") << Qt::Horizontal << QRect(5, 2, 6, 1) << QRect(5, 3, 6, 1);
    QTest::newRow("anything else") << Qt::Orientation(0) << QRect(5, 2, 6, 1) << QRect(5, 3, 6, 1);
}

void tst_DrawingHelpers::drawSeparatorLine_isAGroove()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QRect, first);
    QFETCH(const QRect, second);

    const QImage image = painted({20, 20}, [orientation](QPainter &painter) {
        drawSeparatorLine(&painter, QPointF(5, 3), 5, orientation, Qt::red, Qt::blue);
    });
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor expected = first.contains(x, y) ? QColor(Qt::red)
                : second.contains(x, y)                  ? QColor(Qt::blue)
                                                         : QColor::fromRgba(paper);
            QVERIFY2(image.pixel(x, y) == expected.rgba(), qPrintable(u"%1, %2"_qs.arg(x).arg(y)));
        }
    }
}

void tst_DrawingHelpers::drawSeparatorLine_negativeLength_isTheSameLine()
{
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
        for (const double ratio : {1.0, 2.0}) {
            const auto line = [&](double length) {
                return painted(
                    {20, 20},
                    [&](QPainter &painter) {
                        drawSeparatorLine(&painter, QPointF(4.5, 6), length, orientation, Qt::white, Qt::black);
                    },
                    ratio);
            };
            QCOMPARE(line(-7.5), line(7.5));
            QVERIFY(!inked(line(7.5)).isNull());
        }
    }
}

void tst_DrawingHelpers::drawSeparatorLine_keepsThePen()
{
    painted({9, 9}, [](QPainter &painter) {
        const QPen pen(Qt::green, 3, Qt::DotLine);
        painter.setPen(pen);
        drawSeparatorLine(&painter, QPointF(1, 1), 5, Qt::Vertical, Qt::white, Qt::black);
        QCOMPARE(painter.pen(), pen);
    });
}

void tst_DrawingHelpers::drawSeparatorLine_withoutPainterOrLength_drawsNothing()
{
    drawSeparatorLine(nullptr, QPointF(1, 1), 5, Qt::Vertical, Qt::white, Qt::black);
    const QImage image = painted({9, 9}, [](QPainter &painter) {
        drawSeparatorLine(&painter, QPointF(1, 1), 0, Qt::Vertical, Qt::white, Qt::black);
    });
    QVERIFY(inked(image).isNull());
}

void tst_DrawingHelpers::drawShadowRect_liesAroundTheRectangle_data()
{
    QTest::addColumn<QRect>("rect");

    QTest::newRow("a photograph") << QRect(8, 6, 20, 12);
    QTest::newRow("one pixel") << QRect(9, 9, 1, 1);
    QTest::newRow("wide") << QRect(5, 7, 30, 2);
}

void tst_DrawingHelpers::drawShadowRect_liesAroundTheRectangle()
{
    QFETCH(const QRect, rect);

    for (const double ratio : {1.0, 2.0}) {
        const QImage image = painted(
            {40, 32}, [&rect](QPainter &painter) { drawShadowRect(&painter, rect); }, ratio);
        const int r = int(ratio);
        const QRect around = rect.adjusted(-3, -1, 3, 5);
        QCOMPARE(inked(image), QRect(around.topLeft() * r, around.size() * r));
        for (int y = rect.top() * r; y <= rect.bottom() * r; ++y) {
            for (int x = rect.left() * r; x <= rect.right() * r; ++x) {
                QCOMPARE(image.pixel(x, y), paper); // nothing on the photograph itself
            }
        }
    }
}

void tst_DrawingHelpers::drawShadowRect_hasEightPiecesInTheirPlaces()
{
    const QRect rect(8, 6, 20, 12); // to (27, 17)
    const QImage image = painted({40, 32}, [&rect](QPainter &painter) { drawShadowRect(&painter, rect); });
    const QImage expected = painted({40, 32}, [](QPainter &painter) {
        const auto piece = [](const char *name) {
            return QPixmap(u":/icons/backgroungs/preview-shadow-%1.png"_qs.arg(QLatin1String(name)));
        };
        painter.drawPixmap(5, 6, piece("left-top"));
        painter.drawPixmap(5, 6, 3, 12, piece("left"));
        painter.drawPixmap(5, 18, piece("left-bottom"));
        painter.drawPixmap(8, 18, 20, 5, piece("bottom"));
        painter.drawPixmap(28, 18, piece("right-bottom"));
        painter.drawPixmap(28, 6, 3, 12, piece("right"));
        painter.drawPixmap(28, 5, 3, 1, piece("right-top"));
        painter.drawPixmap(8, 5, 20, 1, piece("top"));
    });
    QCOMPARE(image, expected);
}

void tst_DrawingHelpers::drawShadowRect_loadsItsImagesOnce()
{
    RUN_IN_FRESH_PROCESS();
    const auto shadow = [] {
        return painted({40, 32}, [](QPainter &painter) { drawShadowRect(&painter, QRect(8, 6, 20, 12)); });
    };
    const QImage before = shadow();
    cleanupQtResources();
    QVERIFY(QPixmap(u":/icons/backgroungs/preview-shadow-left.png"_qs).isNull());
    QCOMPARE(shadow(), before);
}

void tst_DrawingHelpers::drawShadowRect_growsPalerOutwards()
{
    const QRect rect(8, 6, 20, 12);
    const QImage image = painted({40, 32}, [&rect](QPainter &painter) { drawShadowRect(&painter, rect); });
    const auto gray = [&image](int x, int y) { return qGray(image.pixel(x, y)); };
    const int middleX = rect.center().x();
    const int middleY = rect.center().y();
    for (int step = 1; step < 3; ++step) {
        QVERIFY(gray(rect.left() - step - 1, middleY) > gray(rect.left() - step, middleY));
        QVERIFY(gray(rect.right() + step + 1, middleY) > gray(rect.right() + step, middleY));
    }
    for (int step = 1; step < 5; ++step) {
        QVERIFY(gray(middleX, rect.bottom() + step + 1) > gray(middleX, rect.bottom() + step));
        QVERIFY(gray(rect.left() - 1, rect.bottom() + step + 1) > gray(rect.left() - 1, rect.bottom() + step));
    }
    QVERIFY(gray(middleX, rect.top() - 1) < qGray(paper));
    QCOMPARE(image.pixel(rect.left() - 1, rect.top() - 1), paper); // no corner there, but on the right
    QVERIFY(gray(rect.right() + 1, rect.top() - 1) < qGray(paper));
}

void tst_DrawingHelpers::drawShadowRect_invalidRectangle_drawsNothing()
{
    drawShadowRect(nullptr, QRect(1, 1, 5, 5));
    for (const QRect &rect : {QRect(), QRect(10, 10, 0, 5), QRect(10, 10, 5, -1)}) {
        const QImage image = painted({30, 30}, [&rect](QPainter &painter) { drawShadowRect(&painter, rect); });
        QVERIFY(inked(image).isNull());
    }
}

void tst_DrawingHelpers::drawRoundedImageBorder_hasEightParts_data()
{
    QTest::addColumn<int>("corner");
    QTest::addColumn<int>("shift");

    QTest::newRow("on the rectangle") << 2 << 0;
    QTest::newRow("around it") << 3 << 4;
    QTest::newRow("within it") << 1 << -2;
}

void tst_DrawingHelpers::drawRoundedImageBorder_hasEightParts()
{
    QFETCH(const int, corner);
    QFETCH(const int, shift);

    const QRect rect(10, 9, 20, 16);
    const QImage image = painted(
        {40, 36}, [&](QPainter &painter) { drawRoundedImageBorder(&painter, rect, nineParts(corner), corner, shift); });
    const QRect frame = rect.adjusted(-shift, -shift, shift, shift);
    const QImage parts = nineParts(corner).toImage();
    QCOMPARE(inked(image), frame);
    for (int y = frame.top(); y <= frame.bottom(); ++y) {
        for (int x = frame.left(); x <= frame.right(); ++x) {
            const auto part = [corner](int fromStart, int fromEnd) {
                return fromStart < corner ? 0 : fromEnd < corner ? 2 * corner : corner;
            };
            const QPoint place(part(x - frame.left(), frame.right() - x), part(y - frame.top(), frame.bottom() - y));
            const bool isInside = place == QPoint(corner, corner);
            QCOMPARE(image.pixel(x, y), isInside ? paper : parts.pixel(place));
        }
    }
}

void tst_DrawingHelpers::drawRoundedImageBorder_nullRectangle_drawsNothing()
{
    drawRoundedImageBorder(nullptr, QRect(0, 0, 9, 9), nineParts(2), 2, 0);
    const QImage image = painted(
        {30, 30}, [](QPainter &painter) { drawRoundedImageBorder(&painter, QRect(9, 9, 0, 0), nineParts(2), 2, 5); });
    QVERIFY(inked(image).isNull());
}

void tst_DrawingHelpers::sizeOfIcon_isTheLargestOfEach()
{
    QList<RecordingIcon::Call> calls;
    const QIcon icon(new RecordingIcon({{16, 32}, {40, 8}, {20, 20}}, calls));
    QCOMPARE(sizeOfIcon(icon, QIcon::Selected, QIcon::On), QSize(40, 32));
    QCOMPARE(sizeOfIcon(icon, QIcon::Normal, QIcon::Off), QSize(0, 0));
    QCOMPARE(sizeOfIcon(QIcon(), QIcon::Normal, QIcon::Off), QSize(0, 0));
}

void tst_DrawingHelpers::paintIcon_fitsItsLargestSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Qt::AspectRatioMode>("mode");
    QTest::addColumn<QRect>("place");

    QTest::newRow("high") << QSize(16, 32) << QRect(0, 0, 100, 100) << Qt::KeepAspectRatio << QRect(25, 0, 50, 100);
    QTest::newRow("wide") << QSize(32, 16) << QRect(10, 20, 100, 100) << Qt::KeepAspectRatio << QRect(10, 45, 100, 50);
    QTest::newRow("smaller") << QSize(64, 64) << QRect(0, 0, 16, 20) << Qt::KeepAspectRatio << QRect(0, 2, 16, 16);
    QTest::newRow("beyond") << QSize(16, 32) << QRect(0, 0, 100, 100) << Qt::KeepAspectRatioByExpanding
                            << QRect(0, -50, 100, 200);
}

void tst_DrawingHelpers::paintIcon_fitsItsLargestSize()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, rect);
    QFETCH(const Qt::AspectRatioMode, mode);
    QFETCH(const QRect, place);

    QList<RecordingIcon::Call> calls;
    const QIcon icon(new RecordingIcon({size}, calls));
    painted({200, 200}, [&](QPainter &painter) { paintIcon(&painter, icon, rect, mode, QIcon::Selected, QIcon::On); });
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.front().rect, place);
    QCOMPARE(calls.front().mode, QIcon::Selected);
    QCOMPARE(calls.front().state, QIcon::On);
}

void tst_DrawingHelpers::paintIcon_ignoringTheRatio_getsTheRectangle()
{
    QPixmap pixmap(16, 32);
    pixmap.fill(Qt::yellow);
    const QImage image = painted({120, 120}, [&pixmap](QPainter &painter) {
        paintIcon(&painter, QIcon(pixmap), QRect(10, 10, 100, 100), Qt::IgnoreAspectRatio, QIcon::Normal, QIcon::Off);
    });
    QCOMPARE(inked(image).size(), QSize(16, 32)); // a pixmap is not enlarged
    QVERIFY((inked(image).center() - QRect(10, 10, 100, 100).center()).manhattanLength() <= 1);

    const QImage fitted = painted({120, 120}, [&pixmap](QPainter &painter) {
        paintIcon(&painter, QIcon(pixmap), QRect(10, 10, 100, 100), Qt::KeepAspectRatio, QIcon::Normal, QIcon::Off);
    });
    QCOMPARE(inked(fitted).size(), QSize(16, 32));

    QList<RecordingIcon::Call> calls;
    const QIcon icon(new RecordingIcon({{16, 32}}, calls));
    painted({120, 120}, [&](QPainter &painter) {
        paintIcon(&painter, icon, QRect(10, 10, 100, 90), Qt::IgnoreAspectRatio, QIcon::Disabled, QIcon::Off);
    });
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls.front().rect, QRect(10, 10, 100, 90));
    QCOMPARE(calls.front().mode, QIcon::Disabled);
    QCOMPARE(calls.front().state, QIcon::Off);
}

void tst_DrawingHelpers::paintIcon_withoutPainterOrIcon_paintsNothing()
{
    QList<RecordingIcon::Call> calls;
    const QIcon icon(new RecordingIcon({{16, 32}}, calls));
    paintIcon(nullptr, icon, QRect(0, 0, 9, 9), Qt::KeepAspectRatio, QIcon::Normal, QIcon::Off);
    QVERIFY(calls.isEmpty());
    const QImage image = painted({30, 30}, [](QPainter &painter) {
        paintIcon(&painter, QIcon(), QRect(0, 0, 9, 9), Qt::KeepAspectRatio, QIcon::Normal, QIcon::Off);
    });
    QVERIFY(inked(image).isNull());
}

void tst_DrawingHelpers::createComboFont_byWeight_data()
{
    QTest::addColumn<QFont::Weight>("weight");
    QTest::addColumn<QString>("family");

    const QString own = QApplication::font().family();
    QTest::newRow("300") << QFont::Light << u"Roboto Light"_qs;
    QTest::newRow("400") << QFont::Normal << u"RobotoMedium"_qs;
    QTest::newRow("100") << QFont::Thin << own;
    QTest::newRow("500") << QFont::Medium << own;
    QTest::newRow("700") << QFont::Bold << own;
}

void tst_DrawingHelpers::createComboFont_byWeight()
{
    QFETCH(const QFont::Weight, weight);
    QFETCH(const QString, family);

    const QFont font = createComboFont(nullptr, weight);
    QCOMPARE(font.pointSizeF(), 10.0);
    QCOMPARE(font.family(), family);
    QCOMPARE(font.weight(), QApplication::font().weight());
}

void tst_DrawingHelpers::createComboFont_ofAWidget()
{
    QLabel label;
    QFont own(u"Serif"_qs, 31, QFont::Black, true);
    label.setFont(own);
    own.setPointSizeF(10.0);
    QCOMPARE(createComboFont(&label, QFont::Bold), own);
    own.setFamily(u"Roboto Light"_qs);
    QCOMPARE(createComboFont(&label, QFont::Light), own);
}

QTEST_MAIN(tst_DrawingHelpers)
#include "tst_DrawingHelpers.moc"
