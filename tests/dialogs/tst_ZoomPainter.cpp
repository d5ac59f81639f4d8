// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/OverlayCalls.h"

#include "utilsDll/dialogs/ProgressPainter.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QHBoxLayout>

#include <memory>

using namespace ZYX_zglv6;

namespace {

/*! An overlay over a preview of 401 by 300 at (50, 70) of a shown window. */
class ZoomedWindow : public QWidget
{
public:
    ZoomedWindow()
    {
        resize(640, 480);
        preview.setGeometry(50, 70, 401, 300);
        show();
    }

    QWidget preview{this};
    ZoomPainter zoom{this, &preview};

    QLabel *label() const
    {
        return zoom.findChild<QLabel *>(u"zoomLabel"_qs);
    }

    bool isHidingDue()
    {
        return delayedCall().isActive(&zoom, "onHideTimer");
    }
};

} // namespace

class tst_ZoomPainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject_hasNoMethodsOfItsOwn();
    void construction_namesAndAlignment();
    void showZoom_showsTheTextInOneSize_data();
    void showZoom_showsTheTextInOneSize();
    void showZoom_places_data();
    void showZoom_places();
    void showZoom_withEmptyText_showsNothing();
    void showZoom_withEmptyText_leavesAVisibleOneAndItsTimer();
    void showZoom_lastsASecond();
    void showZoom_again_restartsTheSecond();
    void showZoom_cancelsWhatIsPending();
    void showZoom_updatesTheReference();
    void showZoom_tenThousandTimes_leavesNoTimer();
    void show_movesNothing();
    void updateZoomPos_movesOnlyAVisibleOne();
    void hide_endsTheTimer();
    void referenceWidget_thatIsNull_isSurvived();
    void referenceWidget_thatDies_isSurvived();
    void deletedWhileShown_leavesNoTimer();
    void accessibleName_isTheText();

private:
    const DelayedTimers m_timers;
};

void tst_ZoomPainter::metaObject_hasNoMethodsOfItsOwn()
{
    const QMetaObject &meta = ZoomPainter::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::ZoomPainter");
    QCOMPARE(meta.superClass(), &BaseProgressPainter::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_ZoomPainter::construction_namesAndAlignment()
{
    ZoomedWindow window;
    QCOMPARE(window.zoom.objectName(), u"zoomWidget"_qs);
    QCOMPARE(window.zoom.findChildren<QWidget *>().size(), 1);
    QVERIFY(window.label());
    QCOMPARE(window.label()->alignment(), Qt::AlignCenter);
    QCOMPARE(window.zoom.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QVERIFY(qobject_cast<QHBoxLayout *>(window.zoom.layout()));
    QCOMPARE(window.zoom.focusPolicy(), Qt::NoFocus);
    QVERIFY(!window.zoom.isVisible());
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::showZoom_showsTheTextInOneSize_data()
{
    QTest::addColumn<QString>("percent");
    QTest::addColumn<QString>("text");

    QTest::newRow("number") << u"50"_qs << u"50 %"_qs;
    QTest::newRow("fraction") << u"33.3"_qs << u"33.3 %"_qs;
    QTest::newRow("space") << u" "_qs << u"  %"_qs;
    QTest::newRow("place for an argument") << u"%1"_qs << u"%1 %"_qs;
    QTest::newRow("wider than the overlay") << QString(10'000, u'8') << QString(10'000, u'8') + u" %";
}

void tst_ZoomPainter::showZoom_showsTheTextInOneSize()
{
    QFETCH(const QString, percent);
    ZoomedWindow window;
    window.zoom.showZoom(percent, 0);
    QTEST(window.label()->text(), "text");
    QCOMPARE(window.zoom.size(), QSize(100, 41));
    QCOMPARE(window.zoom.minimumSize(), QSize(100, 41));
    QCOMPARE(window.zoom.maximumSize(), QSize(100, 41));
    QVERIFY(window.zoom.isVisible());
    QVERIFY(window.isHidingDue());
    QCOMPARE(m_timers.count(), 1);
}

void tst_ZoomPainter::showZoom_places_data()
{
    QTest::addColumn<QRect>("preview");
    QTest::addColumn<int>("y");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("at the top") << QRect(0, 0, 400, 300) << 0 << QPoint(150, 10);
    QTest::newRow("the preview's own top has no part") << QRect(50, 70, 400, 300) << 20 << QPoint(200, 30);
    QTest::newRow("half a pixel") << QRect(50, 0, 401, 300) << 5 << QPoint(200, 15);
    QTest::newRow("as wide") << QRect(50, 0, 100, 300) << 5 << QPoint(50, 15);
    QTest::newRow("narrower") << QRect(50, 0, 41, 300) << 5 << QPoint(21, 15); // -29, not -30
    QTest::newRow("beyond the parent") << QRect(0, 0, 0, 0) << -30 << QPoint(-50, -20);
    QTest::newRow("below the parent") << QRect(0, 0, 400, 300) << 5000 << QPoint(150, 5010);
}

void tst_ZoomPainter::showZoom_places()
{
    QFETCH(const QRect, preview);
    QFETCH(const int, y);
    ZoomedWindow window;
    window.preview.setGeometry(preview);
    window.zoom.showZoom(u"50"_qs, y);
    QTEST(window.zoom.pos(), "place");
}

void tst_ZoomPainter::showZoom_withEmptyText_showsNothing()
{
    ZoomedWindow window;
    const QRect before = window.zoom.geometry();
    window.zoom.showZoom(QString(), 20);
    QVERIFY(!window.zoom.isVisible());
    QCOMPARE(window.zoom.geometry(), before);
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::showZoom_withEmptyText_leavesAVisibleOneAndItsTimer()
{
    ZoomedWindow window;
    window.zoom.showZoom(u"50"_qs, 20);
    QVERIFY(answerAfter(500, [&] { return window.zoom.isVisible(); }));
    window.zoom.showZoom(QString(), 90);
    QCOMPARE(window.label()->text(), u"50 %"_qs);
    QCOMPARE(window.zoom.pos(), QPoint(200, 30));
    QVERIFY(window.isHidingDue());
    QVERIFY(answerAfter(800, [&] { return !window.zoom.isVisible(); })); // 1000 since the first, not the second
}

void tst_ZoomPainter::showZoom_lastsASecond()
{
    ZoomedWindow window;
    const WidgetEvents events(window.zoom);
    window.zoom.showZoom(u"50"_qs, 20);
    QCOMPARE(m_timers.intervals(), QList<int>{1000});
    QCOMPARE(events.placeWhenShown, QPoint(200, 30)); // moved before it is shown
    QVERIFY(answerAfter(850, [&] { return window.zoom.isVisible(); }));
    QVERIFY(answerAfter(300, [&] { return !window.zoom.isVisible(); }));
    QCOMPARE(events.shows, 1);
    QCOMPARE(events.hides, 1);
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::showZoom_again_restartsTheSecond()
{
    ZoomedWindow window;
    const WidgetEvents events(window.zoom);
    window.zoom.showZoom(u"50"_qs, 20);
    QVERIFY(answerAfter(500, [&] { return window.zoom.isVisible(); }));
    window.zoom.showZoom(u"66"_qs, 40);
    QCOMPARE(window.label()->text(), u"66 %"_qs);
    QCOMPARE(window.zoom.pos(), QPoint(200, 50));
    QCOMPARE(m_timers.count(), 1);
    QVERIFY(answerAfter(750, [&] { return window.zoom.isVisible(); })); // 1250 since the first
    QCOMPARE(events.hides, 0);
    QTRY_VERIFY(!window.zoom.isVisible());
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::showZoom_cancelsWhatIsPending()
{
    ZoomedWindow window;
    delayedCall().invoke(300, &window.zoom, "show", true);
    window.zoom.showZoom(u"50"_qs, 20);
    QVERIFY(!delayedCall().isActive(&window.zoom, "show"));
    QVERIFY(window.isHidingDue());
}

void tst_ZoomPainter::showZoom_updatesTheReference()
{
    ZoomedWindow window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.zoom.showZoom(u"50"_qs, 400); // below the preview
    QVERIFY(!window.zoom.geometry().intersects(window.preview.geometry()));
    QTest::qWait(0);
    const WidgetEvents events(window.preview);
    window.zoom.moveToCenter(400);
    QTRY_COMPARE(events.paintings, 1);
}

void tst_ZoomPainter::showZoom_tenThousandTimes_leavesNoTimer()
{
    ZoomedWindow window;
    for (int i = 0; i < 10'000; ++i) {
        window.zoom.showZoom(QString::number(i), i % 300);
        QCOMPARE(m_timers.count(), 1);
    }
    QCOMPARE(window.label()->text(), u"9999 %"_qs);
    window.zoom.hide();
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::show_movesNothing()
{
    ZoomedWindow window;
    window.zoom.move(7, 8);
    window.zoom.show();
    QVERIFY(window.zoom.isVisible());
    QCOMPARE(window.zoom.pos(), QPoint(7, 8));
    QCOMPARE(m_timers.count(), 0); // it stays until it is hidden
}

void tst_ZoomPainter::updateZoomPos_movesOnlyAVisibleOne()
{
    ZoomedWindow window;
    window.zoom.showZoom(u"50"_qs, 20);
    window.zoom.updateZoomPos(100);
    QCOMPARE(window.zoom.pos(), QPoint(200, 110));
    QVERIFY(window.isHidingDue());
    window.zoom.hide();
    window.zoom.updateZoomPos(150);
    QCOMPARE(window.zoom.pos(), QPoint(200, 110));
    QVERIFY(!window.zoom.isVisible());
    window.zoom.show();
    window.hide(); // the overlay with it
    window.zoom.updateZoomPos(150);
    QCOMPARE(window.zoom.pos(), QPoint(200, 110));
}

void tst_ZoomPainter::hide_endsTheTimer()
{
    ZoomedWindow window;
    window.zoom.showZoom(u"50"_qs, 20);
    window.zoom.hide();
    QVERIFY(!window.isHidingDue());
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::referenceWidget_thatIsNull_isSurvived()
{
    QWidget window;
    ZoomPainter zoom(&window, nullptr);
    zoom.move(3, 4);
    window.show();
    zoom.showZoom(u"50"_qs, 20);
    QVERIFY(zoom.isVisible());
    zoom.updateZoomPos(30);
    QCOMPARE(zoom.pos(), QPoint(3, 4));
}

void tst_ZoomPainter::referenceWidget_thatDies_isSurvived()
{
    QWidget window;
    auto preview = std::make_unique<QWidget>(&window);
    preview->setGeometry(0, 0, 400, 300);
    ZoomPainter zoom(&window, preview.get());
    window.show();
    zoom.showZoom(u"50"_qs, 20);
    preview.reset();
    zoom.showZoom(u"66"_qs, 40);
    zoom.updateZoomPos(30);
    QVERIFY(zoom.isVisible());
    QCOMPARE(zoom.pos(), QPoint(150, 30));
}

void tst_ZoomPainter::deletedWhileShown_leavesNoTimer()
{
    QWidget window;
    auto zoom = std::make_unique<ZoomPainter>(&window, &window);
    window.show();
    zoom->showZoom(u"50"_qs, 20);
    QCOMPARE(m_timers.count(), 1);
    zoom.reset();
    QCOMPARE(m_timers.count(), 0);
}

void tst_ZoomPainter::accessibleName_isTheText()
{
    ZoomedWindow window;
    window.zoom.showZoom(u"50"_qs, 20);
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&window.zoom);
    QVERIFY(accessible);
    QCOMPARE(accessible->text(QAccessible::Name), u"50 %"_qs);
    QCOMPARE(accessible->childCount(), 1);
    QCOMPARE(accessible->child(0)->role(), QAccessible::StaticText);
    QCOMPARE(accessible->child(0)->text(QAccessible::Name), u"50 %"_qs);
}

QTEST_MAIN(tst_ZoomPainter)
#include "tst_ZoomPainter.moc"
