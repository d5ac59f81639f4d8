// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/PaintedWidgets.h"

#include "uiControls/IconViewer.h"
#include "utilsDll/look/GuiUtils.h"

#include <QtCore/QPointer>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtTest/QTest>

#include <functional>
#include <memory>

namespace {

/*! Counts its paintings and does something in each. */
class Parent : public QWidget
{
public:
    Parent()
    {
        resize(120, 100);
    }

    int paintings = 0;
    std::function<void()> reaction;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        ++paintings;
        if (reaction) {
            reaction();
        }
    }
};

/*! Counts the events of others that it gets to see. */
class FilteringViewer : public CIconViewer
{
public:
    using CIconViewer::CIconViewer;

    int seen = 0;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        ++seen;
        return CIconViewer::eventFilter(object, event);
    }

    /*! How many times it sees one event of \a widget. */
    int countOf(QWidget &widget)
    {
        seen = 0;
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&widget, &event);
        return seen;
    }
};

/*! A viewer in the middle of a parent of 120 by 100. */
void place(CIconViewer &viewer)
{
    viewer.setGeometry(20, 10, 80, 70);
    viewer.setPixmap(filled({40, 30}));
}

constexpr QRect imageOnParent(40, 30, 40, 30);

QImage expectedImage(double ratio, bool hasShadow)
{
    QImage image = sheet({120, 100}, ratio);
    QPainter painter(&image);
    if (hasShadow) {
        drawShadowRect(&painter, imageOnParent);
    }
    painter.fillRect(imageOnParent, Qt::red);
    return image;
}

} // namespace

class tst_IconViewerShadow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shadow_isPaintedOnTheParent();
    void shadow_beyondTheViewer_isPaintedAsWell();
    void shadow_followsTheViewportOfASubclass();
    void shadow_liesOverTheFirstPaintingAndUnderTheSecond();
    void shadow_switchedOff_isNotPainted();
    void shadow_withoutImage_isNotPainted_data();
    void shadow_withoutImage_isNotPainted();
    void setShowShadow_paintsTheParent();
    void parentless_paintsNoShadow();
    void setParent_bringsTheShadowAlong();
    void setParent_ofShownViewer_bringsTheShadowAlong();
    void setParent_withoutShadow_bringsNone();
    void twoViewers_haveAShadowEach();
    void deletedViewer_leavesTheParentAlone();
    void deletionInThePainting_isSurvived();
    void changeInThePainting_isFollowed();
    void eventFilter_neverSwallows();
    void eventFilter_isOnTheParentOnlyWhileThereIsAShadow();
    void eventFilter_leavesTheFormerParent();
};

void tst_IconViewerShadow::shadow_isPaintedOnTheParent()
{
    Parent parent;
    CIconViewer viewer(&parent);
    place(viewer);
    for (const double ratio : {1.0, 2.0}) {
        parent.paintings = 0;
        QCOMPARE(rendered(parent, ratio), expectedImage(ratio, true));
        QCOMPARE(parent.paintings, 2); // before the shadow, and in the normal way
    }
    QCOMPARE(inked(rendered(parent)), imageOnParent.adjusted(-3, -1, 3, 5));
}

void tst_IconViewerShadow::shadow_beyondTheViewer_isPaintedAsWell()
{
    Parent parent;
    CIconViewer viewer(&parent);
    viewer.setGeometry(imageOnParent);
    viewer.setPixmap(filled({40, 30}));
    QCOMPARE(viewer.outputRect(), viewer.rect());
    QCOMPARE(rendered(parent), expectedImage(1, true));
}

void tst_IconViewerShadow::shadow_followsTheViewportOfASubclass()
{
    class Narrow : public CIconViewer
    {
    public:
        using CIconViewer::CIconViewer;

    protected:
        QRect viewportRect() const override
        {
            return {40, 30, 40, 30};
        }
    };

    Parent parent;
    Narrow viewer(&parent);
    viewer.resize(parent.size());
    viewer.setPixmap(filled({400, 300}));
    QCOMPARE(rendered(parent), expectedImage(1, true));
}

void tst_IconViewerShadow::shadow_liesOverTheFirstPaintingAndUnderTheSecond()
{
    Parent parent;
    CIconViewer viewer(&parent);
    place(viewer);
    int paintedIn = 1;
    parent.reaction = [&] {
        if (parent.paintings == paintedIn) {
            QPainter(&parent).fillRect(parent.rect(), QColor(paper));
        }
    };
    QCOMPARE(rendered(parent), expectedImage(1, true));
    parent.paintings = 0;
    paintedIn = 2;
    QCOMPARE(rendered(parent), expectedImage(1, false)); // the parent covers it again: so it has always been
}

void tst_IconViewerShadow::shadow_switchedOff_isNotPainted()
{
    Parent parent;
    CIconViewer viewer(&parent);
    place(viewer);
    viewer.setShowShadow(false);
    QCOMPARE(rendered(parent), expectedImage(1, false));
    QCOMPARE(parent.paintings, 1);
    viewer.setShowShadow(true);
    QCOMPARE(rendered(parent), expectedImage(1, true));
    QCOMPARE(parent.paintings, 3);
}

void tst_IconViewerShadow::shadow_withoutImage_isNotPainted_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("mandatory");
    QTest::addColumn<bool>("hasShadow");

    QTest::newRow("image") << QSize(40, 30) << QSize() << true;
    QTest::newRow("no image") << QSize() << QSize() << false;
    QTest::newRow("mandatory nothing") << QSize(40, 30) << QSize(0, 0) << false;
    // the rectangle is what counts
    QTest::newRow("no image, mandatory size") << QSize() << QSize(40, 30) << true;
}

void tst_IconViewerShadow::shadow_withoutImage_isNotPainted()
{
    QFETCH(const QSize, image);
    QFETCH(const QSize, mandatory);
    QFETCH(const bool, hasShadow);
    Parent parent;
    CIconViewer viewer(&parent);
    place(viewer);
    viewer.setPixmap(image.isValid() ? filled(image) : QPixmap());
    viewer.setMandatoryImageSize(mandatory);
    const QImage painted = rendered(parent);
    QCOMPARE(parent.paintings, hasShadow ? 2 : 1);
    QCOMPARE(painted.pixel(imageOnParent.left() - 1, imageOnParent.center().y()) != paper, hasShadow);
}

void tst_IconViewerShadow::setShowShadow_paintsTheParent()
{
    Parent parent;
    CIconViewer viewer(&parent);
    place(viewer);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QTRY_VERIFY(parent.paintings > 0);
    QTest::qWait(0);
    parent.paintings = 0;
    viewer.setShowShadow(true); // no change
    QTest::qWait(0);
    QCOMPARE(parent.paintings, 0);
    viewer.setShowShadow(false);
    QTRY_COMPARE(parent.paintings, 1);
    viewer.setShowShadow(true);
    QTRY_COMPARE(parent.paintings, 3);
}

void tst_IconViewerShadow::parentless_paintsNoShadow()
{
    CIconViewer viewer;
    place(viewer);
    viewer.setShowShadow(false);
    viewer.setShowShadow(true);
    QCOMPARE(inked(rendered(viewer)), imageOnParent.translated(-20, -10));
}

void tst_IconViewerShadow::setParent_bringsTheShadowAlong()
{
    Parent first;
    Parent second;
    CIconViewer viewer;
    place(viewer);
    const auto moveTo = [&viewer](QWidget *parent) {
        viewer.setParent(parent);
        viewer.setGeometry(20, 10, 80, 70);
        viewer.show();
    };
    moveTo(&first);
    QCOMPARE(rendered(first), expectedImage(1, true));
    moveTo(&second);
    QCOMPARE(rendered(second), expectedImage(1, true));
    first.paintings = 0;
    QVERIFY(inked(rendered(first)).isNull());
    QCOMPARE(first.paintings, 1);
    moveTo(&first);
    first.paintings = 0;
    QCOMPARE(rendered(first), expectedImage(1, true));
    QCOMPARE(first.paintings, 2); // watched once
    viewer.setParent(nullptr);
    first.paintings = 0;
    QVERIFY(inked(rendered(first)).isNull());
    QCOMPARE(first.paintings, 1);
}

void tst_IconViewerShadow::setParent_ofShownViewer_bringsTheShadowAlong()
{
    Parent first;
    Parent second;
    CIconViewer viewer(&first);
    place(viewer);
    first.show();
    QVERIFY(QTest::qWaitForWindowExposed(&first));
    viewer.setParent(&second);
    viewer.show();
    QCOMPARE(rendered(second), expectedImage(1, true));
    QTest::qWait(0);
    first.paintings = 0;
    QVERIFY(inked(rendered(first)).isNull());
    QCOMPARE(first.paintings, 1);
}

void tst_IconViewerShadow::setParent_withoutShadow_bringsNone()
{
    Parent first;
    Parent second;
    CIconViewer viewer(&first);
    place(viewer);
    viewer.setShowShadow(false);
    viewer.setParent(&second);
    viewer.show();
    QCOMPARE(rendered(second), expectedImage(1, false));
    QCOMPARE(second.paintings, 1);
    viewer.setShowShadow(true);
    QCOMPARE(rendered(second), expectedImage(1, true));
}

void tst_IconViewerShadow::twoViewers_haveAShadowEach()
{
    Parent parent;
    CIconViewer left(&parent);
    CIconViewer right(&parent);
    left.setGeometry(10, 10, 30, 30);
    right.setGeometry(70, 10, 30, 30);
    for (CIconViewer *viewer : {&left, &right}) {
        viewer->setPixmap(filled({30, 30}));
    }
    const QImage image = rendered(parent);
    for (const QRect &place : {left.geometry(), right.geometry()}) {
        QVERIFY(image.pixel(place.left() - 1, 25) != paper);
        QVERIFY(image.pixel(place.right() + 1, 25) != paper);
        QVERIFY(image.pixel(place.center().x(), place.bottom() + 1) != paper);
    }
    QCOMPARE(image.pixel(55, 25), paper);
}

void tst_IconViewerShadow::deletedViewer_leavesTheParentAlone()
{
    Parent parent;
    auto viewer = std::make_unique<CIconViewer>(&parent);
    place(*viewer);
    viewer.reset();
    QVERIFY(inked(rendered(parent)).isNull());
    QCOMPARE(parent.paintings, 1);
}

void tst_IconViewerShadow::deletionInThePainting_isSurvived()
{
    Parent parent;
    auto viewer = std::make_unique<CIconViewer>(&parent);
    place(*viewer);
    parent.reaction = [&viewer] { viewer.reset(); };
    QPaintEvent event(parent.rect());
    QCoreApplication::sendEvent(&parent, &event);
    QVERIFY(!viewer);
    QCOMPARE(parent.paintings, 2);
}

void tst_IconViewerShadow::changeInThePainting_isFollowed()
{
    Parent parent;
    Parent other;
    CIconViewer viewer(&parent);
    place(viewer);
    parent.reaction = [&] { viewer.setShowShadow(false); };
    QCOMPARE(rendered(parent), expectedImage(1, false));
    parent.reaction = nullptr;
    parent.paintings = 0;
    QCOMPARE(rendered(parent), expectedImage(1, false));
    QCOMPARE(parent.paintings, 1);

    viewer.setShowShadow(true);
    parent.reaction = [&] { viewer.setParent(&other); };
    QPaintEvent event(parent.rect());
    QCoreApplication::sendEvent(&parent, &event);
    viewer.show();
    QCOMPARE(rendered(other), expectedImage(1, true));
}

void tst_IconViewerShadow::eventFilter_neverSwallows()
{
    Parent parent;
    Parent stranger;
    CIconViewer viewer(&parent);
    place(viewer);
    QEvent move(QEvent::Move);
    QPaintEvent paint(stranger.rect());
    QVERIFY(!viewer.eventFilter(&parent, &move));
    QVERIFY(!viewer.eventFilter(&stranger, &paint));
    QCOMPARE(parent.paintings + stranger.paintings, 0);
}

void tst_IconViewerShadow::eventFilter_isOnTheParentOnlyWhileThereIsAShadow()
{
    Parent parent;
    FilteringViewer viewer(&parent);
    QCOMPARE(viewer.countOf(parent), 1);
    viewer.setShowShadow(false);
    QCOMPARE(viewer.countOf(parent), 0);
    viewer.setShowShadow(true);
    QCOMPARE(viewer.countOf(parent), 1);
}

void tst_IconViewerShadow::eventFilter_leavesTheFormerParent()
{
    Parent first;
    Parent second;
    FilteringViewer viewer(&first);
    first.show(); // Qt announces the change only for a widget that was seen
    viewer.setParent(&second);
    QCOMPARE(viewer.countOf(first), 0);
    QCOMPARE(viewer.countOf(second), 1);
    second.show();
    viewer.show();
    viewer.setParent(nullptr);
    QCOMPARE(viewer.countOf(second), 0);
}

QTEST_MAIN(tst_IconViewerShadow)
#include "tst_IconViewerShadow.moc"
