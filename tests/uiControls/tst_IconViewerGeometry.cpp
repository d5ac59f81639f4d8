// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/PaintedWidgets.h"

#include "uiControls/IconViewer.h"

#include <QtTest/QTest>

namespace {

/*! A viewer whose area is told. */
class Viewer : public CIconViewer
{
public:
    QRect area;

    QRect viewportRect() const override
    {
        return area.isNull() ? CIconViewer::viewportRect() : area;
    }
};

} // namespace

class tst_IconViewerGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outputRect_byImageAndArea_data();
    void outputRect_byImageAndArea();
    void outputRect_isWithinTheMargins();
    void outputRect_ofIcon_takesTheLargestOfEach();
    void sizeHint_byImageAndMandatorySize_data();
    void sizeHint_byImageAndMandatorySize();
};

void tst_IconViewerGeometry::outputRect_byImageAndArea_data()
{
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QSize>("image"); // a null size: no image
    QTest::addColumn<QSize>("mandatory");
    QTest::addColumn<Qt::AspectRatioMode>("mode");
    QTest::addColumn<bool>("isExpanded");
    QTest::addColumn<QRect>("output");

    constexpr auto keep = Qt::KeepAspectRatio;
    constexpr auto beyond = Qt::KeepAspectRatioByExpanding;
    constexpr auto ignore = Qt::IgnoreAspectRatio;
    const QRect square(0, 0, 200, 200);
    const QRect aside(30, 40, 200, 100);
    const QSize none(-1, -1);
    const QSize small(50, 50);

    QTest::newRow("small: in the middle") << square << small << none << keep << false << QRect(75, 75, 50, 50);
    QTest::newRow("small, expanded") << square << small << none << keep << true << square;
    QTest::newRow("small, aside") << aside << small << none << keep << false << QRect(105, 65, 50, 50);
    QTest::newRow("small and wide, expanded")
        << square << QSize(40, 20) << none << keep << true << QRect(0, 50, 200, 100);
    QTest::newRow("as large as the area") << square << QSize(200, 200) << none << keep << false << square;
    QTest::newRow("too wide") << square << QSize(400, 100) << none << keep << false << QRect(0, 75, 200, 50);
    QTest::newRow("a pixel too wide") << aside << QSize(201, 67) << none << keep << false << QRect(30, 57, 200, 67);
    QTest::newRow("too high") << square << QSize(100, 400) << none << keep << false << QRect(75, 0, 50, 200);
    QTest::newRow("too wide and high") << aside << QSize(400, 400) << none << keep << false << QRect(80, 40, 100, 100);
    QTest::newRow("too wide, beyond the area")
        << square << QSize(400, 100) << none << beyond << false << QRect(-300, 0, 800, 200);
    QTest::newRow("small, beyond the area") << aside << small << none << beyond << false << QRect(105, 65, 50, 50);
    QTest::newRow("small, expanded beyond the area")
        << aside << small << none << beyond << true << QRect(30, -10, 200, 200);
    QTest::newRow("half a pixel") << square << QSize(51, 50) << none << keep << false << QRect(75, 75, 51, 50);

    QTest::newRow("ratio ignored") << aside << small << none << ignore << false << aside;
    QTest::newRow("ratio ignored, mandatory") << aside << small << QSize(10, 10) << ignore << false << aside;
    QTest::newRow("ratio ignored, mandatory nothing") << aside << small << QSize(0, 0) << ignore << false << aside;
    QTest::newRow("ratio ignored, no image") << aside << QSize() << none << ignore << false << aside;

    QTest::newRow("mandatory") << square << small << QSize(20, 10) << keep << false << QRect(90, 95, 20, 10);
    QTest::newRow("mandatory, too wide") << square << small << QSize(400, 200) << keep << false
                                         << QRect(0, 50, 200, 100);
    QTest::newRow("mandatory, no image") << square << QSize() << QSize(20, 10) << keep << false
                                         << QRect(90, 95, 20, 10);
    QTest::newRow("mandatory width alone")
        << square << small << QSize(20, -1) << keep << false << QRect(75, 75, 50, 50);
    QTest::newRow("mandatory height alone")
        << square << small << QSize(-1, 20) << keep << false << QRect(75, 75, 50, 50);
    QTest::newRow("mandatory nothing") << square << small << QSize(0, 0) << keep << false << QRect(100, 100, 0, 0);
    // what has no width has no ratio either, so all of the area is its scaled size
    QTest::newRow("mandatory nothing, expanded") << square << small << QSize(0, 0) << keep << true << square;
    QTest::newRow("mandatory line, too high") << square << small << QSize(0, 300) << keep << false << square;

    QTest::newRow("no image") << square << QSize() << none << keep << false << QRect();
    QTest::newRow("no image, expanded") << square << QSize() << none << keep << true << QRect();
    QTest::newRow("area without width") << QRect(5, 5, 0, 50) << small << none << keep << true << QRect();
    QTest::newRow("area without height") << QRect(5, 5, 50, 0) << small << none << ignore << false << QRect();
    QTest::newRow("inverted area") << QRect(5, 5, -10, 50) << small << none << ignore << true << QRect();
}

void tst_IconViewerGeometry::outputRect_byImageAndArea()
{
    QFETCH(const QRect, area);
    QFETCH(const QSize, image);
    QFETCH(const QSize, mandatory);
    QFETCH(const Qt::AspectRatioMode, mode);
    QFETCH(const bool, isExpanded);

    for (const bool isIcon : {false, true}) {
        Viewer viewer;
        viewer.area = area;
        if (isIcon && image.isValid()) {
            viewer.setIcon(iconOf({image}));
        } else if (image.isValid()) {
            viewer.setPixmap(filled(image));
        }
        viewer.setMandatoryImageSize(mandatory);
        viewer.setAspectRatio(mode);
        viewer.setExpandContent(isExpanded);
        QTEST(viewer.outputRect(), "output");
    }
}

void tst_IconViewerGeometry::outputRect_isWithinTheMargins()
{
    Viewer viewer;
    viewer.resize(200, 100);
    viewer.setContentsMargins(10, 20, 30, 40);
    viewer.setPixmap(filled({300, 300}));
    QCOMPARE(viewer.contentsRect(), QRect(10, 20, 160, 40));
    QCOMPARE(viewer.viewportRect(), QRect(10, 20, 160, 40));
    QCOMPARE(viewer.outputRect(), QRect(70, 20, 40, 40));
}

void tst_IconViewerGeometry::outputRect_ofIcon_takesTheLargestOfEach()
{
    Viewer viewer;
    viewer.resize(200, 200);
    viewer.setIcon(iconOf({{16, 40}, {60, 20}}));
    QCOMPARE(viewer.sizeHint(), QSize(60, 40));
    QCOMPARE(viewer.outputRect(), QRect(70, 80, 60, 40));

    QIcon disabledAlone;
    disabledAlone.addPixmap(filled({30, 30}), QIcon::Disabled);
    disabledAlone.addPixmap(filled({30, 30}), QIcon::Normal, QIcon::On);
    viewer.setIcon(disabledAlone);
    QVERIFY(!viewer.isEmpty());
    QVERIFY(viewer.outputRect().isNull()); // none of the normal ones that are off
    QCOMPARE(viewer.sizeHint(), QSize(100, 100));
}

void tst_IconViewerGeometry::sizeHint_byImageAndMandatorySize_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("mandatory");
    QTest::addColumn<QSize>("hint");

    QTest::newRow("nothing") << QSize() << QSize() << QSize(100, 100);
    QTest::newRow("image") << QSize(30, 20) << QSize() << QSize(30, 20);
    QTest::newRow("mandatory") << QSize(30, 20) << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("mandatory without image") << QSize() << QSize(300, 200) << QSize(300, 200);
    QTest::newRow("mandatory nothing") << QSize(30, 20) << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("mandatory height alone") << QSize(30, 20) << QSize(-1, 5) << QSize(30, 20);
    QTest::newRow("mandatory width alone") << QSize() << QSize(5, -1) << QSize(100, 100);
}

void tst_IconViewerGeometry::sizeHint_byImageAndMandatorySize()
{
    QFETCH(const QSize, image);
    QFETCH(const QSize, mandatory);
    CIconViewer viewer;
    viewer.setPixmap(image.isValid() ? filled(image) : QPixmap());
    viewer.setMandatoryImageSize(mandatory);
    QTEST(viewer.sizeHint(), "hint");
    QCOMPARE(viewer.minimumSizeHint(), QSize(100, 100));
}

QTEST_MAIN(tst_IconViewerGeometry)
#include "tst_IconViewerGeometry.moc"
