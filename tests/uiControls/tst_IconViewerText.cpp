// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/PaintedWidgets.h"

#include "uiControls/IconViewer.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtTest/QTest>

namespace {

/*! Remembers with which hints texts are painted. */
class HintsEngine : public QPaintEngine
{
public:
    HintsEngine()
        : QPaintEngine(AllFeatures)
    {
    }

    QList<QPainter::RenderHints> hintsOfTexts;

    bool begin(QPaintDevice * /*device*/) override
    {
        return true;
    }

    bool end() override
    {
        return true;
    }

    void updateState(const QPaintEngineState & /*newState*/) override
    {
    }

    void drawPixmap(const QRectF & /*rect*/, const QPixmap & /*pixmap*/, const QRectF & /*source*/) override
    {
    }

    void drawTextItem(const QPointF & /*place*/, const QTextItem & /*text*/) override
    {
        hintsOfTexts.append(painter()->renderHints());
    }

    Type type() const override
    {
        return User;
    }
};

class HintsDevice : public QPaintDevice
{
public:
    explicit HintsDevice(HintsEngine &engine)
        : m_engine(engine)
    {
    }

    QPaintEngine *paintEngine() const override
    {
        return &m_engine;
    }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 400;
        case PdmDevicePixelRatio:
        case PdmNumColors:
        case PdmDepth:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 96;
        }
    }

private:
    HintsEngine &m_engine;
};

/*! The smallest rectangle with all pixels that are neither paper nor black. */
QRect lettersIn(const QImage &image)
{
    QRect letters;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (pixel != paper && pixel != qRgb(0, 0, 0)) {
                letters |= QRect(x, y, 1, 1);
            }
        }
    }
    return letters;
}

bool hasPixel(const QImage &image, QRgb colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
}

void setBoldFont(CIconViewer &viewer)
{
    QFont font = viewer.font();
    font.setPixelSize(40);
    font.setBold(true);
    viewer.setFont(font);
}

} // namespace

class tst_IconViewerText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_liesOverTheImage();
    void text_withoutImage_isNotSeen();
    void text_isClippedToTheImage();
    void text_isInTheMiddleOfTheImage();
    void text_hasTheColourOfTheState_data();
    void text_hasTheColourOfTheState();
    void text_overAPixmap_isPaintedWithItsHints();
};

void tst_IconViewerText::text_liesOverTheImage()
{
    CIconViewer viewer;
    viewer.resize(200, 100);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::yellow);
    palette.setColor(QPalette::WindowText, Qt::green);
    viewer.setPalette(palette);
    viewer.setPixmap(filled({100, 80}, Qt::black));
    viewer.setText(u"H"_qs);
    setBoldFont(viewer);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(viewer, ratio);
        const QRect letter = lettersIn(image);
        QVERIFY(hasPixel(image, qRgb(255, 255, 0)));
        QVERIFY(letter.height() > 25 * ratio && letter.height() < 40 * ratio);
        QVERIFY(qAbs(letter.center().x() - 100 * ratio) <= 3 * ratio);
        QVERIFY(qAbs(letter.center().y() - 50 * ratio) <= 5 * ratio);
    }
}

void tst_IconViewerText::text_withoutImage_isNotSeen()
{
    CIconViewer viewer;
    viewer.resize(200, 100);
    viewer.setText(u"Grain"_qs);
    viewer.setMandatoryImageSize({100, 80}); // an output rectangle alone is not enough
    QCOMPARE(viewer.outputRect(), QRect(50, 10, 100, 80));
    QVERIFY(inked(rendered(viewer)).isNull());
}

void tst_IconViewerText::text_isClippedToTheImage()
{
    CIconViewer viewer;
    viewer.resize(400, 100);
    setBoldFont(viewer);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::yellow);
    viewer.setPalette(palette);
    viewer.setPixmap(filled({50, 20}, Qt::black));
    viewer.setText(QString(30, u'H'));
    const QRect place(175, 40, 50, 20);
    QCOMPARE(viewer.outputRect(), place);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(viewer, ratio);
        QCOMPARE(inked(image), inPixels(place, ratio));
        QVERIFY(hasPixel(image, qRgb(255, 255, 0)));
    }
}

void tst_IconViewerText::text_isInTheMiddleOfTheImage()
{
    class Right : public CIconViewer
    {
    protected:
        QRect viewportRect() const override
        {
            return {200, 0, 200, 60};
        }
    };

    Right viewer;
    viewer.resize(400, 200);
    setBoldFont(viewer);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::yellow);
    viewer.setPalette(palette);
    viewer.setPixmap(filled({100, 60}, Qt::black));
    viewer.setText(u"H"_qs);
    QCOMPARE(viewer.outputRect(), QRect(250, 0, 100, 60));
    const QPoint middle = lettersIn(rendered(viewer)).center();
    QVERIFY(qAbs(middle.x() - 300) <= 3);
    QVERIFY(qAbs(middle.y() - 30) <= 5);
}

void tst_IconViewerText::text_hasTheColourOfTheState_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QRgb>("colour");

    QTest::newRow("enabled") << true << qRgb(255, 255, 0);
    QTest::newRow("disabled") << false << qRgb(0, 255, 255);
}

void tst_IconViewerText::text_hasTheColourOfTheState()
{
    QFETCH(const bool, isEnabled);
    QFETCH(const QRgb, colour);
    CIconViewer viewer;
    viewer.resize(200, 100);
    setBoldFont(viewer);
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Text, Qt::yellow);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::yellow);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::cyan);
    viewer.setPalette(palette);
    viewer.setPixmap(filled({100, 80}, Qt::black));
    viewer.setText(u"H"_qs);
    viewer.setShowDisableState(false); // the image stays as it is
    viewer.setEnabled(isEnabled);
    const QImage image = rendered(viewer);
    for (const QRgb each : {qRgb(255, 255, 0), qRgb(0, 255, 255)}) {
        QCOMPARE(hasPixel(image, each), each == colour);
    }
}

void tst_IconViewerText::text_overAPixmap_isPaintedWithItsHints()
{
    CIconViewer viewer;
    viewer.resize(200, 100);
    viewer.setPixmap(filled({100, 80}));
    viewer.setText(u"H"_qs);
    HintsEngine engine;
    HintsDevice device(engine);
    viewer.render(&device, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(engine.hintsOfTexts.size(), 1);
    QVERIFY(engine.hintsOfTexts[0].testFlag(QPainter::Antialiasing));
    QVERIFY(engine.hintsOfTexts[0].testFlag(QPainter::SmoothPixmapTransform));

    viewer.setIcon(iconOf({QSize(100, 80)}));
    viewer.render(&device, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(engine.hintsOfTexts.size(), 2);
    QVERIFY(!engine.hintsOfTexts[1].testFlag(QPainter::Antialiasing)); // an icon leaves them alone
}

QTEST_MAIN(tst_IconViewerText)
#include "tst_IconViewerText.moc"
