// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/RecordingStyle.h"

#include <QtTest/QTest>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QTreeWidget>

#include <memory>

using namespace ZYX_zglv6;

class tst_StyleAnswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pixelMetric_subMenuOverlap_isMinusOne();
    void pixelMetric_others_areTheBaseStyles_data();
    void pixelMetric_others_areTheBaseStyles();

    void styleHint_ofTheTable_isFixed_data();
    void styleHint_ofTheTable_isFixed();
    void styleHint_alternatingRowsInEmptyArea_areNotForTrees_data();
    void styleHint_alternatingRowsInEmptyArea_areNotForTrees();
    void styleHint_others_areTheBaseStyles_data();
    void styleHint_others_areTheBaseStyles();
    void styleHint_clickOnTheGroove_jumpsThere();
};

void tst_StyleAnswers::pixelMetric_subMenuOverlap_isMinusOne()
{
    const RecordedStyle style;
    const QWidget widget;
    const QStyleOption option;
    QCOMPARE(style.pixelMetric(QStyle::PM_SubMenuOverlap), -1);
    QCOMPARE(style.pixelMetric(QStyle::PM_SubMenuOverlap, &option, &widget), -1);
    QCOMPARE(style.takeCalls().size(), 0);
}

void tst_StyleAnswers::pixelMetric_others_areTheBaseStyles_data()
{
    QTest::addColumn<int>("metric");

    QTest::newRow("margin of a button") << int(QStyle::PM_ButtonMargin);
    QTest::newRow("shift to the side") << int(QStyle::PM_ButtonShiftHorizontal);
    QTest::newRow("shift down") << int(QStyle::PM_ButtonShiftVertical);
    QTest::newRow("frame of a menu") << int(QStyle::PM_MenuPanelWidth);
}

void tst_StyleAnswers::pixelMetric_others_areTheBaseStyles()
{
    QFETCH(const int, metric);
    const RecordedStyle style;
    QPushButton button;
    button.setObjectName(u"unknown"_qs);
    const QStyleOption option;
    QCOMPARE(style.pixelMetric(QStyle::PixelMetric(metric), &option, &button), RecordingStyle::metricOffset + metric);
    QCOMPARE(style.pixelMetric(QStyle::PixelMetric(metric)), RecordingStyle::metricOffset + metric);
    QCOMPARE(style.takeCalls(),
             (QList<Call>{{metric, &option, nullptr, &button}, {metric, nullptr, nullptr, nullptr}}));
}

void tst_StyleAnswers::styleHint_ofTheTable_isFixed_data()
{
    QTest::addColumn<int>("hint");
    QTest::addColumn<int>("value");

    QTest::newRow("progress dialog") << int(QStyle::SH_ProgressDialog_CenterCancelButton) << 1;
    QTest::newRow("disabled action") << int(QStyle::SH_Menu_AllowActiveAndDisabled) << 1;
    QTest::newRow("Alt key") << int(QStyle::SH_MenuBar_AltKeyNavigation) << 1;
    QTest::newRow("mouse in a combo box's list") << int(QStyle::SH_ComboBox_ListMouseTracking) << 1;
    QTest::newRow("mouse in a menu") << int(QStyle::SH_Menu_MouseTracking) << 1;
    QTest::newRow("mouse in a menu bar") << int(QStyle::SH_MenuBar_MouseTracking) << 1;
    QTest::newRow("buttons of a slider") << int(QStyle::SH_Slider_AbsoluteSetButtons) << 1;
    QTest::newRow("sub-menu") << int(QStyle::SH_Menu_SubMenuPopupDelay) << 300;
}

void tst_StyleAnswers::styleHint_ofTheTable_isFixed()
{
    QFETCH(const int, hint);
    QFETCH(const int, value);
    const RecordedStyle style;
    const QTreeView widget;
    const QStyleOption option;
    QStyleHintReturn returnData;
    QCOMPARE(style.styleHint(QStyle::StyleHint(hint)), value);
    QCOMPARE(style.styleHint(QStyle::StyleHint(hint), &option, &widget, &returnData), value);
    QCOMPARE(style.takeCalls().size(), 0);
}

void tst_StyleAnswers::styleHint_alternatingRowsInEmptyArea_areNotForTrees_data()
{
    const int ofTheBase = RecordingStyle::hintOffset + int(QStyle::SH_ItemView_PaintAlternatingRowColorsForEmptyArea);
    QTest::addColumn<std::shared_ptr<QWidget>>("widget");
    QTest::addColumn<int>("value");

    QTest::newRow("tree") << std::shared_ptr<QWidget>(new QTreeView) << 0;
    QTest::newRow("derived tree") << std::shared_ptr<QWidget>(new QTreeWidget) << 0;
    QTest::newRow("list") << std::shared_ptr<QWidget>(new QListView) << ofTheBase;
    QTest::newRow("table") << std::shared_ptr<QWidget>(new QTableView) << ofTheBase;
    QTest::newRow("none") << std::shared_ptr<QWidget>() << ofTheBase;
}

void tst_StyleAnswers::styleHint_alternatingRowsInEmptyArea_areNotForTrees()
{
    QFETCH(const std::shared_ptr<QWidget>, widget);
    QFETCH(const int, value);
    const RecordedStyle style;
    QCOMPARE(style.styleHint(QStyle::SH_ItemView_PaintAlternatingRowColorsForEmptyArea, nullptr, widget.get()), value);
}

void tst_StyleAnswers::styleHint_others_areTheBaseStyles_data()
{
    QTest::addColumn<int>("hint");

    QTest::newRow("keys in a menu") << int(QStyle::SH_Menu_SpaceActivatesItem);
    QTest::newRow("pages of a slider") << int(QStyle::SH_Slider_PageSetButtons);
    QTest::newRow("sloppy sub-menus") << int(QStyle::SH_Menu_SloppySubMenus);
    QTest::newRow("rubber band") << int(QStyle::SH_RubberBand_Mask);
}

void tst_StyleAnswers::styleHint_others_areTheBaseStyles()
{
    QFETCH(const int, hint);
    const RecordedStyle style;
    const QWidget widget;
    const QStyleOption option;
    QStyleHintReturnMask returnData;
    QCOMPARE(style.styleHint(QStyle::StyleHint(hint), &option, &widget, &returnData),
             RecordingStyle::hintOffset + hint);
    QCOMPARE(style.takeCalls(), (QList<Call>{{hint, &option, static_cast<QStyleHintReturn *>(&returnData), &widget}}));
}

void tst_StyleAnswers::styleHint_clickOnTheGroove_jumpsThere()
{
    CustomZyxAppStyle style;
    QSlider slider(Qt::Horizontal);
    slider.setStyle(&style);
    slider.setRange(0, 1000);
    slider.setPageStep(1);
    slider.resize(400, 30);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(200, 15));
    QVERIFY2(qAbs(slider.value() - 500) < 20, qPrintable(QString::number(slider.value())));
}

QTEST_MAIN(tst_StyleAnswers)
#include "tst_StyleAnswers.moc"
