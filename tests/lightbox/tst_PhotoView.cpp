// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoView.h"

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace {

/*! A photograph whose left half is red and whose right half is blue. */
QImage twoHalves()
{
    QImage photo(40, 20, QImage::Format_RGB32);
    photo.fill(Qt::red);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = photo.width() / 2; x < photo.width(); ++x) {
            photo.setPixelColor(x, y, Qt::blue);
        }
    }
    return photo;
}

} // namespace

class tst_PhotoView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void print_isThePhotographWithAllThatWasDone();
    void turn_ofAMirroredPrint_isClockwise();
    void zoom_walksTheScales();
    void zoom_ofSmallPhotographs_data();
    void zoom_ofSmallPhotographs();
    void zoomedPhotograph_canBeScrolled();
};

void tst_PhotoView::print_isThePhotographWithAllThatWasDone()
{
    CPhotoView view;
    QVERIFY(view.printOf(QImage()).isNull());
    const QImage photo = twoHalves();
    view.showPhoto(photo);
    QCOMPARE(view.printOf(photo), photo);
    view.setMirrored(true);
    QCOMPARE(view.printOf(photo).pixelColor(5, 10), QColor(Qt::blue));
    view.setMirrored(false);
    view.turn();
    QCOMPARE(view.turns(), 1);
    QCOMPARE(view.printOf(photo).size(), QSize(20, 40));
    QCOMPARE(view.printOf(photo).pixelColor(10, 5), QColor(Qt::red));
    QCOMPARE(view.printOf(photo).pixelColor(10, 35), QColor(Qt::blue));
    view.setBlackAndWhite(true);
    const QColor gray = view.printOf(photo).pixelColor(10, 5);
    QVERIFY(gray.red() == gray.green() && gray.green() == gray.blue());
    view.setFramed(true);
    QCOMPARE(view.printOf(photo).size(), QSize(22, 42));
    QCOMPARE(view.printOf(photo).pixelColor(0, 20), QColor(Qt::white));
    view.showPhoto(photo);
    QCOMPARE(view.turns(), 0);
    QCOMPARE(view.printOf(photo).size(), QSize(42, 22)); // another photograph is not turned; the panel still counts
}

void tst_PhotoView::turn_ofAMirroredPrint_isClockwise()
{
    CPhotoView view;
    view.showPhoto(twoHalves());
    view.setMirrored(true); // blue at the left
    view.turn();
    QCOMPARE(view.printOf(twoHalves()).pixelColor(10, 5), QColor(Qt::blue)); // the left side is on top
}

void tst_PhotoView::zoom_walksTheScales()
{
    CPhotoView view;
    view.resize(448, 448);
    QCOMPARE(view.zoom(), 0);
    view.zoomIn();
    QCOMPARE(view.zoom(), 0);
    QImage photo(1000, 1000, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    view.showPhoto(photo);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.zoom(), 40); // 448 without 24 at each side
    for (const int scale : {50, 67, 100, 150, 200, 300, 400, 400}) {
        view.zoomIn();
        QCOMPARE(view.zoom(), scale);
    }
    for (const int scale : {300, 200, 150, 100, 67, 50, 33, 25, 10, 5, 5}) {
        view.zoomOut();
        QCOMPARE(view.zoom(), scale);
    }
    view.zoomToFit();
    QCOMPARE(view.zoom(), 40);
}

void tst_PhotoView::zoom_ofSmallPhotographs_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QList<int>>("in");

    QTest::newRow("fits at more than the largest scale") << 50 << QList<int>{800, 800};
    QTest::newRow("a pixel is many percent") << 16 << QList<int>{2500, 2500};
}

void tst_PhotoView::zoom_ofSmallPhotographs()
{
    QFETCH(const int, width);
    QFETCH(const QList<int>, in);

    CPhotoView view;
    view.resize(448, 448);
    QImage photo(width, width, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    view.showPhoto(photo);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    for (const int scale : in) {
        view.zoomIn();
        QCOMPARE(view.zoom(), scale); // not smaller than it was
    }
    QList<int> widths;
    for (int i = 0; i < 12; ++i) {
        view.zoomOut();
        widths.append(view.zoom());
    }
    QVERIFY(std::is_sorted(widths.crbegin(), widths.crend()));
    QVERIFY(widths.constLast() < 10);
    view.zoomToFit();
    QCOMPARE(view.zoom(), in.constFirst());
}

void tst_PhotoView::zoomedPhotograph_canBeScrolled()
{
    CPhotoView view;
    view.resize(448, 448);
    QImage photo(1000, 1000, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    view.showPhoto(photo);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(!view.horizontalScrollBar()->isVisible());
    view.zoomIn();
    view.zoomIn();
    view.zoomIn();
    QTRY_VERIFY(view.horizontalScrollBar()->isVisible());
    QCOMPARE(view.widget()->width(), 1048);
}

QTEST_MAIN(tst_PhotoView)
#include "tst_PhotoView.moc"
