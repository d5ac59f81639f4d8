// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/look/GuiUtils.h"

#include <QtGui/QAction>
#include <QtGui/QActionEvent>
#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtGui/QPointingDevice>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

using namespace ZYX_zglv6;

namespace {

/*! Which events of some kinds an object got. */
class EventList : public QObject
{
public:
    explicit EventList(QObject *watched)
        : QObject(watched)
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::Enter || type == QEvent::Leave || type == QEvent::MouseMove) {
            types.append(type);
        }
        paintings += type == QEvent::Paint ? 1 : 0;
        enterEvents += dynamic_cast<QEnterEvent *>(event) ? 1 : 0;
        if (const auto *mouse = dynamic_cast<QMouseEvent *>(event)) {
            places.append(mouse->position());
            isPlain = isPlain && mouse->button() == Qt::NoButton && mouse->buttons() == QGuiApplication::mouseButtons()
                && mouse->modifiers() == QGuiApplication::keyboardModifiers()
                && mouse->pointingDevice() == QPointingDevice::primaryPointingDevice();
        }
        return false;
    }

    QList<QEvent::Type> types;
    QList<QPointF> places; // of mouse events
    int paintings = 0;
    int enterEvents = 0; // that are QEnterEvents
    bool isPlain = true; // no mouse event had anything but the present state
};

/*! A window with a mouse in it that it follows. */
class TrackingWindow : public QWidget
{
public:
    explicit TrackingWindow(const QPoint &place)
    {
        setMouseTracking(true);
        setGeometry(QRect(place, QSize(100, 100)));
        show();
    }

    bool takeMouse(const QPoint &place)
    {
        QCursor::setPos(mapToGlobal(place));
        return QTest::qWaitFor([&] { return underMouse() && QCursor::pos() == mapToGlobal(place); });
    }
};

/*! Its active action is a separator after the mouse has moved. */
class MenuThatBecomesSeparators : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (!activeAction()) {
            QMenu::mouseMoveEvent(event); // only once: the next one would find the separator
        }
        if (activeAction()) {
            activeAction()->setSeparator(true);
        }
    }

    void actionEvent(QActionEvent *event) override
    {
        if (event->type() != QEvent::ActionChanged) { // by which it would drop the action itself
            QMenu::actionEvent(event);
        }
    }
};

/*! A window of 400 x 300 whose area scrolls a page of 2000 x 1500. */
class ScrolledPage
{
public:
    ScrolledPage()
    {
        area.setFrameShape(QFrame::NoFrame);
        area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        page = new QWidget;
        page->resize(2000, 1500);
        area.setWidget(page);
        area.resize(400, 300);
        area.show();
    }

    QWidget *child(const QRect &geometry) const
    {
        auto *widget = new QWidget(page);
        widget->setGeometry(geometry);
        widget->show();
        return widget;
    }

    void scrollTo(int x, int y)
    {
        area.horizontalScrollBar()->setValue(x);
        area.verticalScrollBar()->setValue(y);
    }

    QPoint place() const
    {
        return {area.horizontalScrollBar()->value(), area.verticalScrollBar()->value()};
    }

    QScrollArea area;
    QWidget *page = nullptr;
};

} // namespace

class tst_WidgetHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void adjustSizeByFont_isTheTextAndMore();
    void setWidgetFullTransparency_keepsTexts();
    void appendShortcutToActionToolTip_addsEachTime();
    void centerDialogOnDesktop_isInTheMiddle();
    void nullArguments_doNothing();
    void ensureWidgetVisible_scrolls_data();
    void ensureWidgetVisible_scrolls();
    void ensureWidgetVisible_outsideTheArea_doesNothing();
    void ensureWidgetVisible_logsTheGeometry();
    void flickAppCursor_movesAndComesBack();
    void flickHoverEvent_cursorOutside_sendsLeaveOnly();
    void flickHoverEvent_cursorInside_sendsLeaveAndEnter();
    void flickHoverEvent_menu_movesTheMouseTwice();
    void flickHoverEvent_menu_leavesASeparator();
    void flickHoverEvent_paintsAgain();
    void flickHoverEvent_withoutActiveWindow_doesNothing();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_WidgetHelpers::adjustSizeByFont_isTheTextAndMore()
{
    QLabel label;
    const int width = label.fontMetrics().horizontalAdvance(u"Kodachrome"_qs);
    adjustSizeByFont(&label, u"Kodachrome"_qs, 7);
    QCOMPARE(label.minimumWidth(), width + 7);
    QCOMPARE(label.maximumWidth(), width + 7);
    adjustSizeByFont(&label, QString(), 20);
    QCOMPARE(label.minimumWidth(), 20);
    QCOMPARE(label.maximumHeight(), QWIDGETSIZE_MAX);
}

void tst_WidgetHelpers::setWidgetFullTransparency_keepsTexts()
{
    QWidget widget;
    const QPalette before = widget.palette();
    setWidgetFullTransparency(&widget);
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto colourRole = QPalette::ColorRole(role);
        const bool isEmptied = QList<int>{QPalette::Window,   QPalette::Button, QPalette::Base, QPalette::Light,
                                          QPalette::Midlight, QPalette::Dark,   QPalette::Mid,  QPalette::Shadow}
                                   .contains(role);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(widget.palette().color(group, colourRole),
                     isEmptied ? QColor(Qt::transparent) : before.color(group, colourRole));
        }
    }
}

void tst_WidgetHelpers::appendShortcutToActionToolTip_addsEachTime()
{
    QAction action(u"&Open"_qs);
    action.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
    appendShortcutToActionToolTip(action);
    QCOMPARE(action.toolTip(), u"Open (Ctrl+O)"_qs);
    appendShortcutToActionToolTip(action);
    QCOMPARE(action.toolTip(), u"Open (Ctrl+O) (Ctrl+O)"_qs);

    QAction bare(u"Close"_qs);
    appendShortcutToActionToolTip(bare);
    QCOMPARE(bare.toolTip(), u"Close ()"_qs);
}

void tst_WidgetHelpers::centerDialogOnDesktop_isInTheMiddle()
{
    QWidget window;
    for (QWidget *parent : {static_cast<QWidget *>(nullptr), &window}) {
        QDialog dialog(parent);
        dialog.resize(201, 100);
        dialog.move(3, 4);
        centerDialogOnDesktop(&dialog);
        const QRect desktop = dialog.screen()->availableGeometry();
        QCOMPARE(dialog.pos(), desktop.center() - QPoint(100, 49));
    }
}

void tst_WidgetHelpers::nullArguments_doNothing()
{
    QScrollArea area;
    adjustSizeByFont(nullptr, u"text"_qs, 1);
    setWidgetFullTransparency(nullptr);
    centerDialogOnDesktop(nullptr);
    ensureWidgetVisible(nullptr, &area, 0, 0);
    ensureWidgetVisible(&area, nullptr, 0, 0);
    flickHoverEvent(nullptr);
    enableWindowCloseButton(0, true);
}

void tst_WidgetHelpers::ensureWidgetVisible_scrolls_data()
{
    QTest::addColumn<QRect>("child");
    QTest::addColumn<QPoint>("margins");
    QTest::addColumn<QPoint>("before");
    QTest::addColumn<QPoint>("after");

    const QPoint none(0, 0);
    QTest::newRow("inside") << QRect(500, 500, 50, 40) << none << QPoint(400, 400) << QPoint(400, 400);
    // at the very edge is not properly inside, but nothing passes it
    QTest::newRow("at the edges") << QRect(400, 400, 400, 300) << none << QPoint(400, 400) << QPoint(400, 400);
    QTest::newRow("passes the right edge") << QRect(790, 500, 50, 40) << none << QPoint(400, 400) << QPoint(440, 400);
    QTest::newRow("passes the lower edge") << QRect(500, 690, 50, 40) << none << QPoint(400, 400) << QPoint(400, 430);
    QTest::newRow("by its margins alone")
        << QRect(740, 640, 50, 40) << QPoint(15, 25) << QPoint(400, 400) << QPoint(405, 405);
    QTest::newRow("by its left margin") << QRect(405, 500, 50, 40) << QPoint(15, 0) << QPoint(400, 400)
                                        << QPoint(410, 400);
    QTest::newRow("by its upper margin") << QRect(500, 405, 50, 40) << QPoint(0, 15) << QPoint(400, 400)
                                         << QPoint(400, 410);
    QTest::newRow("wider by its margins")
        << QRect(450, 450, 350, 40) << QPoint(60, 0) << QPoint(400, 400) << QPoint((-10 + 459) / 2 - 200, 400);
    QTest::newRow("left: further away") << QRect(370, 500, 50, 40) << none << QPoint(400, 400) << QPoint(430, 400);
    QTest::newRow("above: further away") << QRect(500, 380, 50, 40) << none << QPoint(400, 400) << QPoint(400, 420);
    QTest::newRow("to the end of the bar")
        << QRect(1000, 1000, 50, 40) << none << QPoint(1600, 1200) << QPoint(1600, 1200);
    QTest::newRow("wider: the middle without regard to the value")
        << QRect(100, 450, 600, 40) << none << QPoint(0, 400) << QPoint((100 + 699) / 2 - 200, 400);
    QTest::newRow("higher") << QRect(450, 100, 40, 500) << none << QPoint(400, 0) << QPoint(400, (100 + 599) / 2 - 150);
    QTest::newRow("wider and elsewhere: counted from the viewport")
        << QRect(100, 450, 600, 40) << none << QPoint(300, 400) << QPoint((-200 + 399) / 2 - 200, 400);
}

void tst_WidgetHelpers::ensureWidgetVisible_scrolls()
{
    QFETCH(const QRect, child);
    QFETCH(const QPoint, margins);
    QFETCH(const QPoint, before);
    QFETCH(QPoint, after);

    ScrolledPage page;
    const QWidget *widget = page.child(child);
    page.scrollTo(before.x(), before.y());
    QCOMPARE(page.place(), before);
    ensureWidgetVisible(&page.area, widget, margins.x(), margins.y());
    after.setX(qBound(0, after.x(), page.area.horizontalScrollBar()->maximum()));
    QCOMPARE(page.place(), after);
}

void tst_WidgetHelpers::ensureWidgetVisible_outsideTheArea_doesNothing()
{
    ScrolledPage page;
    page.scrollTo(400, 400);
    QWidget stranger;
    stranger.setGeometry(5000, 5000, 10, 10);
    ensureWidgetVisible(&page.area, &stranger, 0, 0);
    ensureWidgetVisible(&page.area, &page.area, 0, 0);
    ensureWidgetVisible(&page.area, page.area.verticalScrollBar(), 0, 0); // in the area, but not in what it scrolls
    QCOMPARE(page.place(), QPoint(400, 400));
}

void tst_WidgetHelpers::ensureWidgetVisible_logsTheGeometry()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    ScrolledPage page;
    ensureWidgetVisible(&page.area, page.child({10, 20, 30, 40}), 0, 0);
    QCOMPARE(log.records(), QStringList());
    ensureWidgetVisible(&page.area, page.child({900, 20, 30, 40}), 0, 0);
    QCOMPARE(log.records(), QStringList{u"DEBUG ZYX_zglv6::ensureWidgetVisible: child at (900, 20), 30 x 40"_qs});
}

void tst_WidgetHelpers::flickAppCursor_movesAndComesBack()
{
    TrackingWindow window({200, 200});
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.takeMouse({50, 50}));
    const EventList events(&window);
    flickAppCursor();
    QCOMPARE(QCursor::pos(), window.mapToGlobal(QPoint(50, 50)));
    QTRY_COMPARE(events.places, (QList<QPointF>{{51, 51}, {50, 50}}));
}

void tst_WidgetHelpers::flickHoverEvent_cursorOutside_sendsLeaveOnly()
{
    TrackingWindow window({200, 200});
    TrackingWindow neighbour({400, 200});
    QVERIFY(QTest::qWaitForWindowActive(&neighbour));
    QVERIFY(neighbour.takeMouse({50, 50}));
    const EventList events(&window);
    const EventList eventsThere(&neighbour);
    flickHoverEvent(&window);
    flickAppCursor(); // the first movement that is seen
    QTRY_COMPARE(eventsThere.places.size(), 2);
    QCOMPARE(events.types, QList<QEvent::Type>{QEvent::Leave});
}

void tst_WidgetHelpers::flickHoverEvent_cursorInside_sendsLeaveAndEnter()
{
    TrackingWindow window({200, 200});
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(window.takeMouse({50, 50}));
    const EventList events(&window);
    flickHoverEvent(&window);
    QCOMPARE(events.types.first(2), (QList<QEvent::Type>{QEvent::Leave, QEvent::Enter}));
    QCOMPARE(events.enterEvents, 0); // plain ones
    QTRY_COMPARE(events.places, (QList<QPointF>{{51, 51}, {50, 50}})); // the mouse was moved, too
}

void tst_WidgetHelpers::flickHoverEvent_menu_movesTheMouseTwice()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QMenu menu(&window);
    QAction *first = menu.addAction(u"First"_qs);
    QAction *second = menu.addAction(u"Second"_qs);
    menu.popup(window.mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    menu.setActiveAction(first);
    QCursor::setPos(menu.mapToGlobal(menu.actionGeometry(second).center()));
    QTest::qWait(0);
    menu.setActiveAction(first);
    EventList events(&menu);
    flickHoverEvent(&menu);
    QCOMPARE(events.types, (QList<QEvent::Type>{QEvent::Leave, QEvent::Enter, QEvent::MouseMove, QEvent::MouseMove}));
    const QPointF place = menu.actionGeometry(second).center();
    QCOMPARE(events.places, (QList<QPointF>{place, place}));
    QVERIFY(events.isPlain);
    QCOMPARE(menu.activeAction(), second);
}

void tst_WidgetHelpers::flickHoverEvent_menu_leavesASeparator()
{
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    MenuThatBecomesSeparators menu(&window);
    QAction *action = menu.addAction(u"First"_qs);
    menu.popup(window.mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    QCursor::setPos(menu.mapToGlobal(menu.actionGeometry(action).center()));
    QTest::qWait(0);
    action->setSeparator(false);
    menu.setActiveAction(action);
    flickHoverEvent(&menu);
    QVERIFY(action->isSeparator());
    QVERIFY(!menu.activeAction());
}

void tst_WidgetHelpers::flickHoverEvent_paintsAgain()
{
    TrackingWindow window({200, 200});
    TrackingWindow neighbour({400, 200});
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(QTest::qWaitForWindowActive(&neighbour));
    QVERIFY(neighbour.takeMouse({50, 50}));
    const EventList events(&window);
    QCoreApplication::processEvents();
    int before = events.paintings;
    flickHoverEvent(&window); // with the mouse elsewhere
    QTRY_COMPARE(events.paintings, before + 1);

    QVERIFY(window.takeMouse({50, 50}));
    QCoreApplication::processEvents();
    before = events.paintings;
    flickHoverEvent(&window);
    QTRY_COMPARE(events.paintings, before + 1);
}

void tst_WidgetHelpers::flickHoverEvent_withoutActiveWindow_doesNothing()
{
    QWidget window;
    window.resize(100, 100);
    EventList events(&window);
    QVERIFY(!QApplication::activeWindow());
    flickHoverEvent(&window);
    QCOMPARE(events.types, QList<QEvent::Type>());
}

QTEST_MAIN(tst_WidgetHelpers)
#include "tst_WidgetHelpers.moc"
