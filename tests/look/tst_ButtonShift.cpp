// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/ShiftedButtons.h"

#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtWidgets/QStyleOption>

using ZYX_zglv6::CustomZyxAppStyle;

namespace {

QImage labelOf(const QStyle &style, const QPushButton &button, QStyle::State state)
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    QStyleOptionButton option;
    option.rect = QRect(0, 0, 64, 64);
    option.state = state | QStyle::State_Enabled;
    option.icon = QIcon(red);
    option.iconSize = red.size();
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    style.drawControl(QStyle::CE_PushButtonLabel, &option, &painter, &button);
    return image;
}

} // namespace

class tst_ButtonShift : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertyName_isFixed();
    void property_anyValidValue_turnsTheShiftOff_data();
    void property_anyValidValue_turnsTheShiftOff();
    void property_withoutName_keepsTheShift();
    void property_takenAway_bringsTheShiftBack();
    void disableButtonShift_pressedButton_keepsItsContentInPlace();
};

void tst_ButtonShift::propertyName_isFixed()
{
    QCOMPARE(CustomZyxAppStyle::disableButtonShiftPropertyName(), "disableButtonShiftProperty");
}

void tst_ButtonShift::property_anyValidValue_turnsTheShiftOff_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr);
}

void tst_ButtonShift::property_anyValidValue_turnsTheShiftOff()
{
    ShiftedStyle style;
    QFETCH(const QVariant, value);
    Button button(u"shutter"_qs);
    const Button other(u"shutter"_qs);
    button.setProperty("disableButtonShiftProperty", value);
    QCOMPARE(style.shift(&button), noShift);
    QCOMPARE(style.shift(&other), baseShift); // it has no property, and there is no entry
    QCOMPARE(style.shift(nullptr), baseShift);
}

void tst_ButtonShift::property_withoutName_keepsTheShift()
{
    ShiftedStyle style;
    Button button{QString()};
    button.setProperty("disableButtonShiftProperty", true);
    QCOMPARE(style.shift(&button), baseShift);
    button.setObjectName(u"shutter"_qs);
    QCOMPARE(style.shift(&button), noShift);
}

void tst_ButtonShift::property_takenAway_bringsTheShiftBack()
{
    ShiftedStyle style;
    Button button(u"shutter"_qs);
    button.setProperty("disableButtonShiftProperty", true);
    button.setProperty("disableButtonShiftProperty", QVariant());
    QCOMPARE(style.shift(&button), baseShift);
}

void tst_ButtonShift::disableButtonShift_pressedButton_keepsItsContentInPlace()
{
    ShiftedStyle style;
    const Button button(u"shutter"_qs);
    const QImage raised = labelOf(style, button, QStyle::State_Raised);
    const QImage pressed = labelOf(style, button, QStyle::State_Sunken);
    QVERIFY(pressed != raised);
    QCOMPARE(pressed.copy(11, 13, 53, 51), raised.copy(0, 0, 53, 51));

    style.disableButtonShift(&button, true);
    QCOMPARE(labelOf(style, button, QStyle::State_Sunken), raised);
}

QTEST_MAIN(tst_ButtonShift)
#include "tst_ButtonShift.moc"
