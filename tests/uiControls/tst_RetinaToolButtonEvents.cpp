// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/ButtonImages.h"

#include <QtGui/QAction>
#include <QtGui/QCursor>
#include <QtGui/QEnterEvent>
#include <QtGui/QMouseEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

namespace {

/*! Counts how often it chooses its icon. */
class TestButton : public CRetinaToolButton
{
public:
    using CRetinaToolButton::CRetinaToolButton;

    int updates = 0;
    int changesSeen = 0; // of actions, by its filter

    bool eventFilter(QObject *object, QEvent *event) override
    {
        changesSeen += int(event->type() == QEvent::ActionChanged);
        return CRetinaToolButton::eventFilter(object, event);
    }

protected:
    void updateIcon() override
    {
        ++updates;
        CRetinaToolButton::updateIcon();
    }
};

void sendMouse(QWidget &widget, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    const QPointF place(5, 5);
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_RetinaToolButtonEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mouse_setsAndClearsPressed_data();
    void mouse_setsAndClearsPressed();
    void hover_onlyByADirectCall();
    void hover_isForgottenWhenTheMouseLeaves();
    void action_changed_updatesTheIcon();
    void action_disabled_showsTheNormalIcon();
    void action_setAfterTheFirstShow_isNotWatched();
    void eventFilter_isOnTheActionFromTheFirstShowOn();
    void eventFilter_neverSwallows();
    void moveAndResize_renewTheLook();
    void click_thatDeletesTheButton_isSurvived();
    void press_thatDeletesTheButton_isSurvived();
    void hover_thatDeletesTheButton_isSurvived();

private:
    const ButtonImages m_images;
};

void tst_RetinaToolButtonEvents::mouse_setsAndClearsPressed_data()
{
    QTest::addColumn<bool>("wasPressed");
    QTest::addColumn<bool>("isPress");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    QTest::addColumn<bool>("isPressed");

    const Qt::MouseButtons none;
    const Qt::MouseButtons left = Qt::LeftButton;
    const Qt::MouseButtons right = Qt::RightButton;
    QTest::newRow("left pressed") << false << true << Qt::LeftButton << left << true;
    QTest::newRow("right pressed") << false << true << Qt::RightButton << right << false;
    QTest::newRow("right pressed, left down") << false << true << Qt::RightButton << (left | right) << true;
    QTest::newRow("right pressed, was pressed") << true << true << Qt::RightButton << right << true;
    QTest::newRow("left released") << true << false << Qt::LeftButton << none << false;
    QTest::newRow("left released, right down") << true << false << Qt::LeftButton << right << false;
    QTest::newRow("right released, left down") << true << false << Qt::RightButton << left << true;
    QTest::newRow("right released, was not pressed") << false << false << Qt::RightButton << left << false;
    QTest::newRow("right released, none down") << true << false << Qt::RightButton << none << false;
}

void tst_RetinaToolButtonEvents::mouse_setsAndClearsPressed()
{
    QFETCH(const bool, wasPressed);
    QFETCH(const bool, isPress);
    QFETCH(const Qt::MouseButton, button);
    QFETCH(const Qt::MouseButtons, buttons);
    QFETCH(const bool, isPressed);
    TestButton widget(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    widget.setPressState(wasPressed);
    widget.updates = 0;
    sendMouse(widget, isPress ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, button, buttons);
    QCOMPARE(look(widget), isPressed ? pressedColour : normalColour);
    QCOMPARE(widget.updates, 1);
    QCOMPARE(widget.isDown(), isPress && button == Qt::LeftButton); // the button itself works as ever
}

void tst_RetinaToolButtonEvents::hover_onlyByADirectCall()
{
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QAction action;
    button.setDefaultAction(&action);
    button.forcePress(false);
    const QSignalSpy hovered(&action, &QAction::hovered);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(&button, &enter);
    QCOMPARE(hovered.count(), 1);
    QCOMPARE(look(button), normalColour); // Qt calls its own operation
    button.enterEvent(&enter);
    QCOMPARE(hovered.count(), 2); // and it gets the event from here, too
    QCOMPARE(look(button), hoverColour);
}

void tst_RetinaToolButtonEvents::hover_isForgottenWhenTheMouseLeaves()
{
    TestButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QAction action;
    button.setDefaultAction(&action);
    const QSignalSpy hovered(&action, &QAction::hovered);
    QEvent plain(QEvent::Enter);
    button.enterEvent(&plain);
    QCOMPARE(hovered.count(), 0); // no QEnterEvent, in spite of its type
    QCOMPARE(look(button), hoverColour);
    button.updates = 0;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    QCOMPARE(look(button), normalColour);
    QCOMPARE(button.updates, 1);
}

void tst_RetinaToolButtonEvents::action_changed_updatesTheIcon()
{
    QPixmap white(44, 44);
    white.fill(Qt::white);
    QAction action(QIcon(white), u"Film"_qs);
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.setDefaultAction(&action);
    button.show();
    QCOMPARE(look(button), normalColour);
    action.setText(u"Other film"_qs); // the button takes the action's icon over at first
    QCOMPARE(button.text(), u"Other film"_qs);
    QCOMPARE(look(button), normalColour);
    button.markAsPressed();
    action.setToolTip(u"Tip"_qs);
    QCOMPARE(look(button), pressedColour);

    QAction other;
    button.setDefaultAction(&other);
    const QRgb before = look(button);
    action.setText(u"No film"_qs); // no longer the default one
    QCOMPARE(look(button), before);
}

void tst_RetinaToolButtonEvents::action_disabled_showsTheNormalIcon()
{
    QAction action;
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.setDefaultAction(&action);
    button.show();
    button.forcePress(true);
    QCOMPARE(look(button), pressedColour);
    action.setEnabled(false);
    QCOMPARE(look(button), normalColour);
    action.setEnabled(true);
    QCOMPARE(look(button), pressedColour);
}

void tst_RetinaToolButtonEvents::action_setAfterTheFirstShow_isNotWatched()
{
    QAction action;
    TestButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.show();
    button.setDefaultAction(&action);
    button.hide();
    button.updates = 0;
    button.show();
    QCOMPARE(button.updates, 1);
    action.setText(u"Film"_qs);
    QCOMPARE(button.updates, 1);
}

void tst_RetinaToolButtonEvents::eventFilter_isOnTheActionFromTheFirstShowOn()
{
    QAction action;
    TestButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.setDefaultAction(&action);
    action.setText(u"Film"_qs);
    QCOMPARE(button.changesSeen, 0);
    button.show();
    action.setText(u"Grain"_qs);
    QCOMPARE(button.changesSeen, 1);
    button.hide();
    button.show();
    action.setText(u"Light"_qs);
    QCOMPARE(button.changesSeen, 2);
}

void tst_RetinaToolButtonEvents::eventFilter_neverSwallows()
{
    QAction action;
    QAction other;
    TestButton button(nullptr);
    button.setDefaultAction(&action);
    button.updates = 0;
    QActionEvent changed(QEvent::ActionChanged, &action);
    QEvent timer(QEvent::Timer);
    QVERIFY(!button.eventFilter(&other, &changed));
    QVERIFY(!button.eventFilter(&action, &timer));
    QCOMPARE(button.updates, 0);
    QVERIFY(!button.eventFilter(&action, &changed));
    QCOMPARE(button.updates, 1);
}

void tst_RetinaToolButtonEvents::moveAndResize_renewTheLook()
{
    QWidget window;
    window.resize(300, 200);
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, &window);
    button.resize(50, 50);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCursor::setPos(window.mapToGlobal(QPoint(280, 180)));
    QTest::qWait(0);
    QEvent enter(QEvent::Enter);
    button.enterEvent(&enter);
    QCOMPARE(look(button), hoverColour);
    button.move(60, 60);
    QCOMPARE(look(button), normalColour);
    button.enterEvent(&enter);
    button.resize(60, 60);
    QCOMPARE(look(button), normalColour);

    CRetinaToolButton unseen(m_images.normal, m_images.hover, m_images.pressed, &window);
    unseen.enterEvent(&enter);
    QMoveEvent move(QPoint(9, 9), QPoint());
    QCoreApplication::sendEvent(&unseen, &move);
    QResizeEvent resize(QSize(9, 9), QSize());
    QCoreApplication::sendEvent(&unseen, &resize);
    QCOMPARE(look(unseen), hoverColour); // not before the first show
}

void tst_RetinaToolButtonEvents::click_thatDeletesTheButton_isSurvived()
{
    auto button = std::make_unique<CRetinaToolButton>(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button->resize(50, 50);
    CRetinaToolButton *const raw = button.get();
    connect(raw, &QToolButton::clicked, this, [&button] { button.reset(); });
    sendMouse(*raw, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    sendMouse(*raw, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    QVERIFY(!button);
}

void tst_RetinaToolButtonEvents::press_thatDeletesTheButton_isSurvived()
{
    auto button = std::make_unique<CRetinaToolButton>(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button->resize(50, 50);
    CRetinaToolButton *const raw = button.get();
    connect(raw, &QToolButton::pressed, this, [&button] { button.reset(); });
    sendMouse(*raw, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    QVERIFY(!button);
}

void tst_RetinaToolButtonEvents::hover_thatDeletesTheButton_isSurvived()
{
    auto button = std::make_unique<CRetinaToolButton>(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QAction action;
    button->setDefaultAction(&action);
    connect(&action, &QAction::hovered, this, [&button] { button.reset(); });
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    button->enterEvent(&enter);
    QVERIFY(!button);
}

QTEST_MAIN(tst_RetinaToolButtonEvents)
#include "tst_RetinaToolButtonEvents.moc"
