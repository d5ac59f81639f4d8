// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/ShiftedButtons.h"
#include "support/FreshProcess.h"
#include "support/VirtualSlot.h"
#include "uiControls/ButtonImages.h"

#include <QtGui/QAccessible>
#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <memory>

namespace {

/*! A button that counts how often it chooses its icon. */
class TestButton : public CRetinaToolButton
{
public:
    using CRetinaToolButton::CRetinaToolButton;

    int updates = 0;

    static void compareSlots()
    {
        const auto enter = TestSupport::virtualSlot(&TestButton::enterEvent);
        const auto update = TestSupport::virtualSlot(&TestButton::updateIcon);
        if (!enter) {
            QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
        }
        QVERIFY(update.has_value());
        QCOMPARE(*update, *enter + 1);
        const auto lastOfQt = TestSupport::virtualSlot(&QToolButtonSlots::nextCheckState);
        QVERIFY(lastOfQt.has_value());
        QVERIFY(*enter > *lastOfQt);
    }

protected:
    void updateIcon() override
    {
        ++updates;
        CRetinaToolButton::updateIcon();
    }

private:
    class QToolButtonSlots : public QToolButton
    {
    public:
        using QToolButton::nextCheckState;
    };
};

} // namespace

class tst_RetinaToolButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIconSize_is44();
    void constructor_setsSizeNameAndIcon();
    void constructor_numbersTheButtons();
    void virtualSlots_areInOrder();
    void changeIcons_servesAllModesAndStates();
    void changeIcons_addsToWhatWasThere();
    void changeIcons_failedFiles_leaveNoImage();
    void updateIcon_byState_data();
    void updateIcon_byState();
    void setPressState_unchanged_doesNothing();
    void forced_statesUpdateTheIcon();
    void pressShift_isOffByTheStyle();
    void pressShift_withoutTheStyle_isLeftAlone();
    void accessibility_isThatOfAButton();

private:
    const ButtonImages m_images;
};

void tst_RetinaToolButton::defaultIconSize_is44()
{
    QCOMPARE(CRetinaToolButton::defaultIconSize(), QSize(44, 44));
    QCOMPARE(&CRetinaToolButton::defaultIconSize(), &CRetinaToolButton::defaultIconSize());
}

void tst_RetinaToolButton::constructor_setsSizeNameAndIcon()
{
    QWidget parent;
    const CRetinaToolButton empty(&parent);
    QCOMPARE(empty.parentWidget(), &parent);
    QCOMPARE(empty.iconSize(), QSize(44, 44));
    QVERIFY(empty.icon().isNull());
    const CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, &parent);
    QCOMPARE(button.parentWidget(), &parent);
    QCOMPARE(button.iconSize(), QSize(44, 44));
    QCOMPARE(look(button), normalColour);
    QVERIFY(empty.objectName() != button.objectName());
}

void tst_RetinaToolButton::constructor_numbersTheButtons()
{
    RUN_IN_FRESH_PROCESS();
    auto first = std::make_unique<CRetinaToolButton>(nullptr);
    QCOMPARE(first->objectName(), u"CRetinaToolButton1"_qs);
    const CRetinaToolButton second(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QCOMPARE(second.objectName(), u"CRetinaToolButton2"_qs);
    first.reset();
    QCOMPARE(CRetinaToolButton(nullptr).objectName(), u"CRetinaToolButton3"_qs); // made so far, not living
}

void tst_RetinaToolButton::virtualSlots_areInOrder()
{
    TestButton::compareSlots();
}

void tst_RetinaToolButton::changeIcons_servesAllModesAndStates()
{
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    const auto compareAll = [&button](QRgb colour) {
        for (const auto mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
            for (const auto state : {QIcon::On, QIcon::Off}) {
                QCOMPARE(button.icon().availableSizes(mode, state), QList<QSize>{QSize(44, 44)});
                QCOMPARE(button.icon().pixmap(QSize(44, 44), mode, state).toImage().pixel(9, 9), colour);
            }
        }
    };
    compareAll(normalColour); // also the disabled one is not grayed
    button.markAsPressed();
    compareAll(pressedColour);
    button.markAsUnpressed();
    QEvent enter(QEvent::Enter);
    button.enterEvent(&enter);
    compareAll(hoverColour);
}

void tst_RetinaToolButton::changeIcons_addsToWhatWasThere()
{
    const ButtonImages large({88, 88});
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.changeIcons(large.hover, large.hover, large.hover);
    QCOMPARE(button.icon().availableSizes(), QList<QSize>({QSize(44, 44), QSize(88, 88)}));
    QCOMPARE(look(button), normalColour);
    QCOMPARE(button.icon().pixmap(QSize(88, 88)).toImage().pixel(40, 40), hoverColour);
}

void tst_RetinaToolButton::changeIcons_failedFiles_leaveNoImage()
{
    CRetinaToolButton button(u"none.png"_qs, QString(), m_images.pressed, nullptr);
    QVERIFY(button.icon().availableSizes().isEmpty());
    button.resize(60, 60);
    QVERIFY(!button.grab().isNull());
    button.markAsPressed();
    QCOMPARE(look(button), pressedColour);
}

void tst_RetinaToolButton::updateIcon_byState_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("isPressed");
    QTest::addColumn<bool>("isForced");
    QTest::addColumn<bool>("isHovered");
    QTest::addColumn<QRgb>("colour");

    for (const QString &action : {u"none"_qs, u"enabled"_qs, u"disabled"_qs}) {
        for (int bits = 0; bits < 8; ++bits) {
            const bool isPressed = (bits & 1) != 0;
            const bool isForced = (bits & 2) != 0;
            const bool isHovered = (bits & 4) != 0;
            const QRgb colour = action == u"disabled" ? normalColour
                : isPressed || isForced               ? pressedColour
                : isHovered                           ? hoverColour
                                                      : normalColour;
            QTest::addRow("action: %s, pressed: %d, forced: %d, hover: %d", qPrintable(action), isPressed, isForced,
                          isHovered)
                << action << isPressed << isForced << isHovered << colour;
        }
    }
}

void tst_RetinaToolButton::updateIcon_byState()
{
    QFETCH(const QString, action);
    QFETCH(const bool, isPressed);
    QFETCH(const bool, isForced);
    QFETCH(const bool, isHovered);
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QAction defaultAction;
    if (action != u"none") {
        button.setDefaultAction(&defaultAction);
        defaultAction.setEnabled(action == u"enabled");
    }
    button.setPressState(isPressed);
    button.forcePress(isForced);
    if (isHovered) {
        QEvent enter(QEvent::Enter);
        button.enterEvent(&enter);
    }
    button.forceDisable(false); // chooses anew, also after the action has set its own icon
    QTEST(look(button), "colour");
    button.forceDisable(true); // of the painting alone
    QTEST(look(button), "colour");
}

void tst_RetinaToolButton::setPressState_unchanged_doesNothing()
{
    TestButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.updates = 0;
    button.setPressState(false);
    QCOMPARE(button.updates, 0);
    button.setPressState(true);
    QCOMPARE(button.updates, 1);
    button.setPressState(true);
    QCOMPARE(button.updates, 1);
    QCOMPARE(look(button), pressedColour);
    button.markAsUnpressed(); // another state than the forced one
    QCOMPARE(look(button), pressedColour);
    button.setPressState(false);
    QCOMPARE(look(button), normalColour);
}

void tst_RetinaToolButton::forced_statesUpdateTheIcon()
{
    TestButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.updates = 0;
    button.markAsPressed();
    QCOMPARE(look(button), pressedColour);
    button.markAsUnpressed();
    QCOMPARE(look(button), normalColour);
    button.forcePress(true);
    QCOMPARE(look(button), pressedColour);
    button.forcePress(true);
    button.forceDisable(true);
    QVERIFY(button.isEnabled());
    QCOMPARE(button.updates, 5);
    QVERIFY(QMetaObject::invokeMethod(&button, "markAsUnpressed"));
    QCOMPARE(look(button), normalColour);
    QVERIFY(QMetaObject::invokeMethod(&button, "markAsPressed"));
    QVERIFY(QMetaObject::invokeMethod(&button, "setPressState", Q_ARG(bool, true)));
    QCOMPARE(look(button), pressedColour);
}

void tst_RetinaToolButton::pressShift_isOffByTheStyle()
{
    RUN_IN_FRESH_PROCESS();
    const CRetinaToolButton early(nullptr);
    auto *style = new ShiftedStyle;
    QApplication::setStyle(style); // takes it over
    QToolButton plain;
    plain.setObjectName(u"plain"_qs);
    auto button = std::make_unique<CRetinaToolButton>(nullptr);
    const CRetinaToolButton withImages(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QCOMPARE(style->shift(button.get()), noShift);
    QCOMPARE(style->shift(&withImages), noShift);
    QCOMPARE(style->shift(&plain), baseShift);
    QCOMPARE(style->shift(&early), baseShift); // made before the style
    const QString firstName = button->objectName();
    button->setObjectName(u"backButton"_qs);
    QCOMPARE(style->shift(button.get()), noShift);
    QCOMPARE(style->shift(firstName), baseShift);
    button.reset();
    QCOMPARE(style->shift(u"backButton"_qs), baseShift);
}

void tst_RetinaToolButton::pressShift_withoutTheStyle_isLeftAlone()
{
    RUN_IN_FRESH_PROCESS();
    auto *style = new ShiftingStyle;
    QApplication::setStyle(style); // takes it over
    const CRetinaToolButton button(nullptr);
    QCOMPARE(style->pixelMetric(QStyle::PM_ButtonShiftHorizontal, nullptr, &button), 11);
    QCOMPARE(button.objectName(), u"CRetinaToolButton1"_qs);
}

void tst_RetinaToolButton::accessibility_isThatOfAButton()
{
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.setAccessibleName(u"Back"_qs);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&button);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Button);
    QCOMPARE(accessible->text(QAccessible::Name), u"Back"_qs);
    button.setDown(true);
    QVERIFY(accessible->state().pressed);
}

QTEST_MAIN(tst_RetinaToolButton)
#include "tst_RetinaToolButton.moc"
