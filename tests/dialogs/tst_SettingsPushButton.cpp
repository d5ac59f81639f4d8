// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "interfaces/StateBytes.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/VirtualSlot.h"

#include "utilsDll/dialogs/SettingsPushButton.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRegularExpression>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <memory>
#include <utility>

using namespace TestSupport;
using namespace ZYX_zglv6;

namespace {

const QString checkedKey = u"SettingsPushButtonSerializePropIsChecked"_qs;
const QString visibleKey = u"SettingsPushButtonSerializePropIsVisible"_qs;

constexpr int flipSeed = 1618;

QLabel *labelOf(const QWidget &row)
{
    return row.findChild<QLabel *>(u"settingsPushButtonLabel"_qs);
}

QToolButton *buttonOf(const QWidget &row)
{
    return row.findChild<QToolButton *>(u"settingsPushButtonButton"_qs);
}

QWidget *columnOf(const QWidget &row)
{
    return row.layout()->itemAt(0)->widget();
}

QByteArray flagBytes(bool flag)
{
    return QByteArray(1, flag ? '\1' : '\0');
}

/*! A row's state without its visibility. */
QByteArray shortState(bool isChecked)
{
    return flagBytes(false) + mapBytes({{checkedKey, boolValueBytes(isChecked)}});
}

QByteArray fullState(bool isChecked, bool isVisible)
{
    return flagBytes(true)
        + mapBytes({{checkedKey, boolValueBytes(isChecked)}, {visibleKey, boolValueBytes(isVisible)}});
}

/*! What a row was emitting, in order: "clicked true". */
class Emissions : public QObject
{
public:
    explicit Emissions(const CSettingsPushButton &row)
    {
        connect(&row, &CSettingsPushButton::clicked, this, [this](bool checked) { add(u"clicked"_qs, checked); });
        connect(&row, &CSettingsPushButton::toggled, this, [this](bool checked) { add(u"toggled"_qs, checked); });
    }

    QStringList texts;

private:
    void add(const QString &signal, bool checked)
    {
        texts.append(u"%1 %2"_qs.arg(signal, checked ? u"true"_qs : u"false"_qs));
    }
};

/*! Stores a number of its own, as a subclass may. */
class NumberedRow : public CSettingsPushButton
{
public:
    explicit NumberedRow(int rowNumber)
        : number(rowNumber)
    {
    }

    int number;
    mutable int countOfWrites = 0;
    QList<QMap<QString, QVariant>> given;

    static void compareSlots();

protected:
    void serializeAdditionalData(QMap<QString, QVariant> &state) const override
    {
        ++countOfWrites;
        state.insert(u"Number"_qs, number);
    }

    void deserializeAdditionalData(const QMap<QString, QVariant> &state) override
    {
        given.append(state);
        number = state.value(u"Number"_qs, number).toInt();
    }
};

void NumberedRow::compareSlots()
{
    const auto writing = virtualSlot(&NumberedRow::serializeAdditionalData);
    const auto reading = virtualSlot(&NumberedRow::deserializeAdditionalData);
    if (!writing) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QVERIFY(reading.has_value());
    QCOMPARE(*reading, *writing + 1);
}

} // namespace

class tst_SettingsPushButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_takesParentAndFlags();
    void constructor_makesAHiddenEmptyRow();
    void constructor_setsTheColumn();
    void constructor_setsTheLabel();
    void constructor_setsTheButton();
    void constructor_setsTheRowsLayout();
    void constructor_setsAColumnAndAButtonSideBySide();
    void caption_standsAtTheLeftOfItsColumn_thoughItsTextIsRightAligned();
    void metaObject_hasSignalsAndSlotInOrder();
    void init_setsTheTextAndGivesItsWidth_data();
    void init_setsTheTextAndGivesItsWidth();
    void init_withWideText_leavesTheColumnAlone();
    void init_again_replacesTheText();
    void adjustWidth_widensTheColumn_data();
    void adjustWidth_widensTheColumn();
    void adjustWidth_toLessThanBefore_narrowsDownTo119();
    void setLeftContentMargin_setsOnlyTheLeftOne();
    void setLeftContentMargin_withoutLayout_doesNothing();
    void setButtonToolTip_isTheButtonsNotTheRows();
    void setButtonCheckable_isForwarded();
    void checkButton_isForwarded();
    void checkButton_ofPlainButton_doesNothing();
    void clickButton_emitsClickedAndToggled();
    void clickButton_ofPlainButton_emitsOnlyClicked();
    void clickButton_whileDisabled_emitsNothingAndReportsNothing();
    void click_ofCheckableRow_emitsClickedAndToggled();
    void click_byMouse_emitsClickedAndToggled();
    void click_ofPlainRow_emitsOnlyClicked();
    void click_whileDisabled_reportsAndEmitsNothing_data();
    void click_whileDisabled_reportsAndEmitsNothing();
    void click_whileEnabled_reportsNothing();
    void checkButton_emitsOnlyToggled();
    void clicked_hasFalseAsDefault();
    void withoutButton_allIsFalseAndNothing();
    void serializePropIsVisible_isTheKey();
    void serializeExclusive_writesTheseBytes_data();
    void serializeExclusive_writesTheseBytes();
    void serializeExclusive_ofShownRow_tellsWhetherItIsVisible_data();
    void serializeExclusive_ofShownRow_tellsWhetherItIsVisible();
    void serializeExclusive_inHiddenParent_tellsNotVisible();
    void serializeExclusive_ofVisibleRowThatIsMarkedHidden_tellsNotVisible();
    void serializeExclusive_withoutButton_tellsNotChecked();
    void deserializeExclusive_setsCheckMarkAndVisibility_data();
    void deserializeExclusive_setsCheckMarkAndVisibility();
    void deserializeExclusive_ofShortState_leavesVisibilityAlone_data();
    void deserializeExclusive_ofShortState_leavesVisibilityAlone();
    void deserializeExclusive_withoutVisibilityKey_leavesVisibilityAlone();
    void deserializeExclusive_ofPlainButton_leavesItUnchecked();
    void deserializeExclusive_withoutButton_setsTheVisibility();
    void deserializeExclusive_emitsOnlyToggled();
    void deserializeExclusive_keepsTheRowsOwnFlag_data();
    void deserializeExclusive_keepsTheRowsOwnFlag();
    void deserializeExclusive_takesOtherTypesAsBool();
    void deserializeExclusive_ofEveryPrefix_changesNothing();
    void deserializeExclusive_withoutAMap_asksForAdditionalDataByTheStoredFlag_data();
    void deserializeExclusive_withoutAMap_asksForAdditionalDataByTheStoredFlag();
    void deserializeExclusive_ofRandomFlips_endsInSomeState();
    void additionalData_isOfTheSubclass();
    void additionalData_switchedOff_isNeitherWrittenNorRead();
    void additionalData_isReadByTheStoredFlag();
    void additionalData_slotsAreInOrder();
    void getObject_isTheRow();
    void serialize_ofAForm_holdsItsRows();
    void deserialize_ofAForm_restoresItsRows();
    void render_showsTheCheckMark();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_SettingsPushButton::constructor_takesParentAndFlags()
{
    QWidget parent;
    const auto *row = new CSettingsPushButton(&parent, Qt::Tool);
    QCOMPARE(row->parentWidget(), &parent);
    QCOMPARE(row->windowType(), Qt::Tool);
    const CSettingsPushButton alone;
    QCOMPARE(alone.parentWidget(), nullptr);
    QCOMPARE(alone.windowType(), Qt::Window); // what Qt makes of no flags and no parent
}

void tst_SettingsPushButton::constructor_makesAHiddenEmptyRow()
{
    const CSettingsPushButton row;
    QVERIFY(!row.isVisible());
    QCOMPARE(row.labelText(), QString());
    QVERIFY(!row.isButtonCheckable());
    QVERIFY(!row.isButtonChecked());
    QCOMPARE(row.focusPolicy(), Qt::NoFocus);
    QCOMPARE(row.toolTip(), QString());
}

void tst_SettingsPushButton::constructor_setsTheColumn()
{
    const CSettingsPushButton row;
    const QWidget *column = columnOf(row);
    QVERIFY(column != nullptr);
    QCOMPARE(column->parentWidget(), &row);
    QCOMPARE(column->minimumWidth(), 118);
    QCOMPARE(column->maximumWidth(), 118);
    const auto *layout = qobject_cast<QHBoxLayout *>(column->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), labelOf(row));
}

void tst_SettingsPushButton::constructor_setsTheLabel()
{
    const CSettingsPushButton row;
    QCOMPARE(row.findChildren<QLabel *>().size(), 1);
    const QLabel *label = labelOf(row);
    QVERIFY(label != nullptr);
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QVERIFY(row.isAncestorOf(label));
}

void tst_SettingsPushButton::constructor_setsTheButton()
{
    const CSettingsPushButton row;
    QCOMPARE(row.findChildren<QToolButton *>().size(), 1);
    const QToolButton *button = buttonOf(row);
    QVERIFY(button != nullptr);
    QCOMPARE(button->parentWidget(), &row);
    QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->minimumSize(), QSize(30, 30));
    QCOMPARE(button->maximumSize(), QSize(30, 30));
    QCOMPARE(button->iconSize(), QSize(30, 30));
}

void tst_SettingsPushButton::constructor_setsTheRowsLayout()
{
    const CSettingsPushButton row;
    const auto *layout = qobject_cast<QHBoxLayout *>(row.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 3);
    QVERIFY(columnOf(row)->isAncestorOf(labelOf(row)));
    QCOMPARE(layout->itemAt(1)->widget(), buttonOf(row));
    const QSpacerItem *spacer = layout->itemAt(2)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(0, 0));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
}

void tst_SettingsPushButton::constructor_setsAColumnAndAButtonSideBySide()
{
    CSettingsPushButton row;
    row.init(u"Grain"_qs);
    row.resize(300, 30);
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    QCOMPARE(columnOf(row)->geometry().left(), 0);
    QCOMPARE(columnOf(row)->width(), 118);
    QCOMPARE(buttonOf(row)->geometry(), QRect(118, 0, 30, 30));
}

void tst_SettingsPushButton::caption_standsAtTheLeftOfItsColumn_thoughItsTextIsRightAligned()
{
    CSettingsPushButton row;
    row.init(u"Grain"_qs);
    row.show();
    const QLabel *label = labelOf(row);
    QCOMPARE(label->mapTo(&row, QPoint()).x(), 0);
    QCOMPARE(label->width(), label->sizeHint().width()); // the layout's alignment leaves it no more
    QVERIFY(label->width() < 118);
}

void tst_SettingsPushButton::metaObject_hasSignalsAndSlotInOrder()
{
    const QMetaObject &meta = CSettingsPushButton::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::CSettingsPushButton");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    const int first = meta.methodOffset();
    const QList<QByteArray> expected{"clicked(bool)", "clicked()", "toggled(bool)", "click()"};
    QCOMPARE(meta.methodCount() - first, int(expected.size()));
    for (int i = 0; i < expected.size(); ++i) {
        const QMetaMethod method = meta.method(first + i);
        QCOMPARE(method.methodSignature(), expected[i]);
        QCOMPARE(method.methodType(), i == expected.size() - 1 ? QMetaMethod::Slot : QMetaMethod::Signal);
        QCOMPARE(method.access(), QMetaMethod::Public);
        QVERIFY(method.parameterNames().isEmpty() || method.parameterNames() == QList<QByteArray>{"checked"});
    }
}

void tst_SettingsPushButton::init_setsTheTextAndGivesItsWidth_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << u""_qs;
    QTest::newRow("short") << u"Grain"_qs;
    QTest::newRow("not Latin") << u"\u0417\u0435\u0440\u043d\u043e"_qs;
    QTest::newRow("wide") << QString(200, u'W');
}

void tst_SettingsPushButton::init_setsTheTextAndGivesItsWidth()
{
    QFETCH(const QString, text);
    CSettingsPushButton row;
    const int width = row.init(text);
    QCOMPARE(row.labelText(), text);
    QCOMPARE(labelOf(row)->text(), text);
    QCOMPARE(width, qMin(118, labelOf(row)->fontMetrics().horizontalAdvance(text)));
}

void tst_SettingsPushButton::init_withWideText_leavesTheColumnAlone()
{
    CSettingsPushButton row;
    const QString text(100, u'W');
    QVERIFY(labelOf(row)->fontMetrics().horizontalAdvance(text) > 118);
    QCOMPARE(row.init(text), 118);
    QCOMPARE(columnOf(row)->minimumWidth(), 118);
    QCOMPARE(columnOf(row)->maximumWidth(), 118);
    row.adjustWidth(250);
    QCOMPARE(columnOf(row)->minimumWidth(), 250);
    QCOMPARE(row.init(text), 118); // also now
}

void tst_SettingsPushButton::init_again_replacesTheText()
{
    CSettingsPushButton row;
    row.init(u"first"_qs);
    row.init(u"second"_qs);
    QCOMPARE(row.labelText(), u"second"_qs);
    QCOMPARE(row.findChild<QToolButton *>()->accessibleName(), u"second"_qs);
}

void tst_SettingsPushButton::adjustWidth_widensTheColumn_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("expected");

    QTest::newRow("negative") << -1 << 118;
    QTest::newRow("zero") << 0 << 118;
    QTest::newRow("117") << 117 << 118;
    QTest::newRow("118") << 118 << 118;
    QTest::newRow("119") << 119 << 119;
    QTest::newRow("400") << 400 << 400;
}

void tst_SettingsPushButton::adjustWidth_widensTheColumn()
{
    QFETCH(const int, width);
    QFETCH(const int, expected);
    CSettingsPushButton row;
    row.adjustWidth(width);
    QCOMPARE(columnOf(row)->minimumWidth(), expected);
    QCOMPARE(columnOf(row)->maximumWidth(), expected);
}

void tst_SettingsPushButton::adjustWidth_toLessThanBefore_narrowsDownTo119()
{
    CSettingsPushButton row;
    row.adjustWidth(200);
    row.adjustWidth(118);
    QCOMPARE(columnOf(row)->minimumWidth(), 200);
    row.adjustWidth(119);
    QCOMPARE(columnOf(row)->minimumWidth(), 119);
    QCOMPARE(columnOf(row)->maximumWidth(), 119);
}

void tst_SettingsPushButton::setLeftContentMargin_setsOnlyTheLeftOne()
{
    CSettingsPushButton row;
    row.setLeftContentMargin(7);
    QCOMPARE(row.layout()->contentsMargins(), QMargins(7, 0, 0, 0));
    row.layout()->setContentsMargins(1, 2, 3, 4);
    row.setLeftContentMargin(0);
    QCOMPARE(row.layout()->contentsMargins(), QMargins(0, 2, 3, 4));
}

void tst_SettingsPushButton::setLeftContentMargin_withoutLayout_doesNothing()
{
    CSettingsPushButton row;
    delete row.layout();
    row.setLeftContentMargin(7);
    QVERIFY(row.layout() == nullptr);
    QCOMPARE(row.contentsMargins(), QMargins());
}

void tst_SettingsPushButton::setButtonToolTip_isTheButtonsNotTheRows()
{
    CSettingsPushButton row;
    row.setButtonToolTip(u"More \u0437\u0435\u0440\u043d\u0430"_qs);
    QCOMPARE(buttonOf(row)->toolTip(), u"More \u0437\u0435\u0440\u043d\u0430"_qs);
    QCOMPARE(row.toolTip(), QString());
    QCOMPARE(labelOf(row)->toolTip(), QString());
}

void tst_SettingsPushButton::setButtonCheckable_isForwarded()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    QVERIFY(row.isButtonCheckable());
    QVERIFY(buttonOf(row)->isCheckable());
    row.setButtonCheckable(false);
    QVERIFY(!row.isButtonCheckable());
    buttonOf(row)->setCheckable(true);
    QVERIFY(row.isButtonCheckable());
}

void tst_SettingsPushButton::checkButton_isForwarded()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.checkButton(true);
    QVERIFY(row.isButtonChecked());
    QVERIFY(buttonOf(row)->isChecked());
    row.checkButton(false);
    QVERIFY(!row.isButtonChecked());
    buttonOf(row)->setChecked(true);
    QVERIFY(row.isButtonChecked());
}

void tst_SettingsPushButton::checkButton_ofPlainButton_doesNothing()
{
    CSettingsPushButton row;
    row.checkButton(true);
    QVERIFY(!row.isButtonChecked());
}

void tst_SettingsPushButton::clickButton_emitsClickedAndToggled()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const Emissions emissions(row);
    row.clickButton();
    QVERIFY(row.isButtonChecked());
    row.clickButton();
    QCOMPARE(emissions.texts,
             QStringList({u"toggled true"_qs, u"clicked true"_qs, u"toggled false"_qs, u"clicked false"_qs}));
}

void tst_SettingsPushButton::clickButton_ofPlainButton_emitsOnlyClicked()
{
    CSettingsPushButton row;
    const Emissions emissions(row);
    row.clickButton();
    QCOMPARE(emissions.texts, QStringList(u"clicked false"_qs));
}

void tst_SettingsPushButton::clickButton_whileDisabled_emitsNothingAndReportsNothing()
{
    const AssertionReports reports;
    CSettingsPushButton row;
    buttonOf(row)->setEnabled(false);
    const Emissions emissions(row);
    row.clickButton();
    QCOMPARE(emissions.texts, QStringList());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SettingsPushButton::click_ofCheckableRow_emitsClickedAndToggled()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const Emissions emissions(row);
    QVERIFY(QMetaObject::invokeMethod(&row, "click"));
    QVERIFY(row.isButtonChecked());
    QCOMPARE(emissions.texts, QStringList({u"toggled true"_qs, u"clicked true"_qs}));
}

void tst_SettingsPushButton::click_byMouse_emitsClickedAndToggled()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.show();
    const Emissions emissions(row);
    QTest::mouseClick(buttonOf(row), Qt::LeftButton);
    QCOMPARE(emissions.texts, QStringList({u"toggled true"_qs, u"clicked true"_qs}));
    QTest::mouseClick(labelOf(row), Qt::LeftButton); // only the button counts
    QCOMPARE(emissions.texts.size(), 2);
}

void tst_SettingsPushButton::click_ofPlainRow_emitsOnlyClicked()
{
    CSettingsPushButton row;
    const Emissions emissions(row);
    row.click();
    QCOMPARE(emissions.texts, QStringList(u"clicked false"_qs));
}

void tst_SettingsPushButton::click_whileDisabled_reportsAndEmitsNothing_data()
{
    QTest::addColumn<bool>("isRowDisabled");

    QTest::newRow("button") << false;
    QTest::newRow("row") << true;
}

void tst_SettingsPushButton::click_whileDisabled_reportsAndEmitsNothing()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const bool, isRowDisabled);
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    (isRowDisabled ? static_cast<QWidget *>(&row) : buttonOf(row))->setEnabled(false);
    const Emissions emissions(row);
    row.click();
    QCOMPARE(emissions.texts, QStringList());
    QVERIFY(!row.isButtonChecked());

    static const QRegularExpression form(u"^ASSERT in \\S*SettingsPushButton\\.cpp line \\d+$"_qs);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY2(form.match(reports.texts().first()).hasMatch(), qPrintable(reports.texts().first()));
    QCOMPARE(log.records(), QStringList(u"ERROR ZYX_zglv6::CSettingsPushButton::click: " + reports.texts().first()));
}

void tst_SettingsPushButton::click_whileEnabled_reportsNothing()
{
    const AssertionReports reports;
    CSettingsPushButton row;
    row.click();
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SettingsPushButton::checkButton_emitsOnlyToggled()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const Emissions emissions(row);
    row.checkButton(true);
    row.checkButton(true);
    row.checkButton(false);
    QCOMPARE(emissions.texts, QStringList({u"toggled true"_qs, u"toggled false"_qs}));
}

void tst_SettingsPushButton::clicked_hasFalseAsDefault()
{
    CSettingsPushButton row;
    const QSignalSpy spy(&row, &CSettingsPushButton::clicked);
    Q_EMIT row.clicked();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), QVariantList{false});
}

void tst_SettingsPushButton::withoutButton_allIsFalseAndNothing()
{
    const AssertionReports reports;
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.checkButton(true);
    delete buttonOf(row);
    const Emissions emissions(row);
    row.setButtonCheckable(true);
    row.checkButton(true);
    row.setButtonToolTip(u"tip"_qs);
    row.clickButton();
    row.click();
    QVERIFY(!row.isButtonCheckable());
    QVERIFY(!row.isButtonChecked());
    QCOMPARE(row.toolTip(), QString());
    QCOMPARE(emissions.texts, QStringList());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SettingsPushButton::serializePropIsVisible_isTheKey()
{
    QCOMPARE(CSettingsPushButton::serializePropIsVisible(), visibleKey);
}

void tst_SettingsPushButton::serializeExclusive_writesTheseBytes_data()
{
    QTest::addColumn<bool>("isCheckable");
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QByteArray>("state");

    // The rows of this table are never shown.
    QTest::newRow("plain") << false << false << true << fullState(false, false);
    QTest::newRow("plain, short") << false << false << false << shortState(false);
    QTest::newRow("unchecked") << true << false << true << fullState(false, false);
    QTest::newRow("checked") << true << true << true << fullState(true, false);
    QTest::newRow("checked, short") << true << true << false << shortState(true);
}

void tst_SettingsPushButton::serializeExclusive_writesTheseBytes()
{
    QFETCH(const bool, isCheckable);
    QFETCH(const bool, isChecked);
    QFETCH(const bool, flag);
    CSettingsPushButton row;
    row.setButtonCheckable(isCheckable);
    row.checkButton(isChecked);
    row.setAllowToSerializationOfAdditionalData(!flag);
    row.setAllowToSerializationOfAdditionalData(flag);
    QTEST(row.serializeExclusive(), "state");
}

void tst_SettingsPushButton::serializeExclusive_ofShownRow_tellsWhetherItIsVisible_data()
{
    QTest::addColumn<bool>("isHiddenAgain");
    QTest::addColumn<QByteArray>("state");

    QTest::newRow("visible") << false << fullState(false, true);
    QTest::newRow("hidden again") << true << fullState(false, false);
}

void tst_SettingsPushButton::serializeExclusive_ofShownRow_tellsWhetherItIsVisible()
{
    QFETCH(const bool, isHiddenAgain);
    QWidget parent;
    CSettingsPushButton row(&parent);
    parent.show();
    row.setVisible(!isHiddenAgain);
    QTEST(row.serializeExclusive(), "state");
}

void tst_SettingsPushButton::serializeExclusive_inHiddenParent_tellsNotVisible()
{
    QWidget parent;
    CSettingsPushButton row(&parent);
    row.show();
    QVERIFY(!row.isHidden());
    QCOMPARE(row.serializeExclusive(), fullState(false, false));
    parent.show();
    QCOMPARE(row.serializeExclusive(), fullState(false, true));
    parent.hide();
    QCOMPARE(row.serializeExclusive(), fullState(false, false));
}

void tst_SettingsPushButton::serializeExclusive_ofVisibleRowThatIsMarkedHidden_tellsNotVisible()
{
    CSettingsPushButton row;
    row.show();
    row.setAttribute(Qt::WA_WState_Hidden); // as Qt does while it is hiding the row
    QVERIFY(row.isVisible());
    QCOMPARE(row.serializeExclusive(), fullState(false, false));
    row.setAttribute(Qt::WA_WState_Hidden, false);
    QCOMPARE(row.serializeExclusive(), fullState(false, true));
}

void tst_SettingsPushButton::serializeExclusive_withoutButton_tellsNotChecked()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.checkButton(true);
    delete buttonOf(row);
    QCOMPARE(row.serializeExclusive(), fullState(false, false));
}

void tst_SettingsPushButton::deserializeExclusive_setsCheckMarkAndVisibility_data()
{
    QTest::addColumn<bool>("wasVisible");
    QTest::addColumn<bool>("wasChecked");
    QTest::addColumn<bool>("isVisible");
    QTest::addColumn<bool>("isChecked");

    for (int i = 0; i < 16; ++i) {
        const bool wasVisible = (i & 1) != 0;
        const bool wasChecked = (i & 2) != 0;
        const bool isVisible = (i & 4) != 0;
        const bool isChecked = (i & 8) != 0;
        QTest::addRow("%s %s row, stored %s %s", wasVisible ? "visible" : "hidden",
                      wasChecked ? "checked" : "unchecked", isVisible ? "visible" : "hidden",
                      isChecked ? "checked" : "unchecked")
            << wasVisible << wasChecked << isVisible << isChecked;
    }
}

void tst_SettingsPushButton::deserializeExclusive_setsCheckMarkAndVisibility()
{
    QFETCH(const bool, wasVisible);
    QFETCH(const bool, wasChecked);
    QFETCH(const bool, isVisible);
    QFETCH(const bool, isChecked);
    QWidget parent;
    parent.show();
    CSettingsPushButton row(&parent);
    row.setButtonCheckable(true);
    row.checkButton(wasChecked);
    row.setVisible(wasVisible);
    row.deserializeExclusive(fullState(isChecked, isVisible));
    QCOMPARE(row.isVisible(), isVisible);
    QCOMPARE(row.isButtonChecked(), isChecked);
    QCOMPARE(row.serializeExclusive(), fullState(isChecked, isVisible));
}

void tst_SettingsPushButton::deserializeExclusive_ofShortState_leavesVisibilityAlone_data()
{
    QTest::addColumn<bool>("isVisible");

    QTest::newRow("visible") << true;
    QTest::newRow("hidden") << false;
}

void tst_SettingsPushButton::deserializeExclusive_ofShortState_leavesVisibilityAlone()
{
    QFETCH(const bool, isVisible);
    QWidget parent;
    parent.show();
    CSettingsPushButton row(&parent); // its own flag is true
    row.setButtonCheckable(true);
    row.setVisible(isVisible);
    row.deserializeExclusive(shortState(true));
    QCOMPARE(row.isVisible(), isVisible);
    QVERIFY(row.isButtonChecked());

    // A flag that is false counts, even in front of a map that has the key.
    row.deserializeExclusive(flagBytes(false) + mapBytes({{visibleKey, boolValueBytes(!isVisible)}}));
    QCOMPARE(row.isVisible(), isVisible);
    QVERIFY(row.isButtonChecked());
}

void tst_SettingsPushButton::deserializeExclusive_withoutVisibilityKey_leavesVisibilityAlone()
{
    QWidget parent;
    parent.show();
    CSettingsPushButton row(&parent);
    for (const bool isVisible : {true, false}) {
        row.setVisible(isVisible);
        row.deserializeExclusive(flagBytes(true) + mapBytes({{checkedKey, boolValueBytes(false)}}));
        QCOMPARE(row.isVisible(), isVisible);
    }
}

void tst_SettingsPushButton::deserializeExclusive_ofPlainButton_leavesItUnchecked()
{
    CSettingsPushButton row;
    row.deserializeExclusive(fullState(true, false));
    QVERIFY(!row.isButtonChecked());
}

void tst_SettingsPushButton::deserializeExclusive_withoutButton_setsTheVisibility()
{
    CSettingsPushButton row;
    delete buttonOf(row);
    row.deserializeExclusive(fullState(true, true));
    QVERIFY(row.isVisible());
    QVERIFY(!row.isButtonChecked());
}

void tst_SettingsPushButton::deserializeExclusive_emitsOnlyToggled()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const Emissions emissions(row);
    row.deserializeExclusive(fullState(true, false));
    row.deserializeExclusive(fullState(true, false)); // no change, no signal
    row.deserializeExclusive(shortState(false));
    QCOMPARE(emissions.texts, QStringList({u"toggled true"_qs, u"toggled false"_qs}));
}

void tst_SettingsPushButton::deserializeExclusive_keepsTheRowsOwnFlag_data()
{
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("state");

    QTest::newRow("off, stored on") << false << fullState(true, false) << shortState(true);
    QTest::newRow("off, stored off") << false << shortState(true) << shortState(true);
    QTest::newRow("on, stored off") << true << shortState(true) << fullState(true, false);
    QTest::newRow("on, stored on") << true << fullState(true, false) << fullState(true, false);
    QTest::newRow("off, stored nothing") << false << QByteArray() << shortState(false);
    QTest::newRow("on, stored nothing") << true << QByteArray() << fullState(false, false);
}

void tst_SettingsPushButton::deserializeExclusive_keepsTheRowsOwnFlag()
{
    QFETCH(const bool, flag);
    QFETCH(const QByteArray, stored);
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    row.setAllowToSerializationOfAdditionalData(flag);
    row.deserializeExclusive(stored);
    QTEST(row.serializeExclusive(), "state");
}

void tst_SettingsPushButton::deserializeExclusive_takesOtherTypesAsBool()
{
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    const QByteArray one = typeBytes(QMetaType::Int) + numberBytes(1);
    const QByteArray text = typeBytes(QMetaType::QString) + textBytes(u"false"_qs);
    row.deserializeExclusive(flagBytes(true) + mapBytes({{checkedKey, one}, {visibleKey, one}}));
    QVERIFY(row.isButtonChecked());
    QVERIFY(row.isVisible());
    row.deserializeExclusive(flagBytes(true) + mapBytes({{checkedKey, text}, {visibleKey, text}}));
    QVERIFY(!row.isButtonChecked());
    QVERIFY(!row.isVisible());
}

void tst_SettingsPushButton::deserializeExclusive_ofEveryPrefix_changesNothing()
{
    for (const QByteArray &state : {fullState(true, false), shortState(true)}) {
        for (qsizetype size = 0; size < state.size(); ++size) {
            CSettingsPushButton row;
            row.setButtonCheckable(true);
            row.show();
            row.deserializeExclusive(state.first(size));
            QVERIFY2(!row.isButtonChecked() && row.isVisible(), qPrintable(QString::number(size)));
        }
        CSettingsPushButton row;
        row.setButtonCheckable(true);
        row.deserializeExclusive(state);
        QVERIFY(row.isButtonChecked());
    }
}

void tst_SettingsPushButton::deserializeExclusive_withoutAMap_asksForAdditionalDataByTheStoredFlag_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<bool>("isAsked");

    // Without bytes the flag is read as false, whatever the row's own one is.
    QTest::newRow("no bytes, flag on") << QByteArray() << true << false;
    QTest::newRow("no bytes, flag off") << QByteArray() << false << false;
    QTest::newRow("only the flag on") << flagBytes(true) << false << true;
    QTest::newRow("only the flag off") << flagBytes(false) << true << false;
}

void tst_SettingsPushButton::deserializeExclusive_withoutAMap_asksForAdditionalDataByTheStoredFlag()
{
    QFETCH(const QByteArray, data);
    QFETCH(const bool, flag);
    QFETCH(const bool, isAsked);
    NumberedRow row(5);
    row.setAllowToSerializationOfAdditionalData(flag);
    row.deserializeExclusive(data);
    QCOMPARE(row.given.size(), isAsked ? 1 : 0);
    QVERIFY(!isAsked || row.given.first().isEmpty());
    QCOMPARE(row.number, 5);
}

void tst_SettingsPushButton::deserializeExclusive_ofRandomFlips_endsInSomeState()
{
    const AssertionReports quiet; // Qt warns of each type that it does not know
    const QByteArray state = fullState(true, false);
    QRandomGenerator random(flipSeed);
    int countOfChecked = 0;
    constexpr int rounds = 5000;
    CSettingsPushButton row;
    row.setButtonCheckable(true);
    for (int round = 0; round < rounds; ++round) {
        QByteArray changed = state;
        for (int flips = random.bounded(1, 4); flips > 0; --flips) {
            changed[random.bounded(int(changed.size()))] = char(random.bounded(256));
        }
        row.checkButton(false);
        row.deserializeExclusive(changed);
        countOfChecked += row.isButtonChecked() ? 1 : 0;
    }
    QVERIFY(countOfChecked > 0);
    QVERIFY(countOfChecked < rounds);
    row.deserializeExclusive(state);
    QCOMPARE(row.serializeExclusive(), state);
}

void tst_SettingsPushButton::additionalData_isOfTheSubclass()
{
    NumberedRow row(5);
    row.setButtonCheckable(true);
    row.checkButton(true);
    const QByteArray number = typeBytes(QMetaType::Int) + numberBytes(5);
    const QByteArray state = flagBytes(true) + mapBytes({{u"Number"_qs, number}, {checkedKey, boolValueBytes(true)}});
    QCOMPARE(row.serializeExclusive(), state);

    NumberedRow other(6);
    other.setButtonCheckable(true);
    other.deserializeExclusive(state);
    QCOMPARE(other.number, 5);
    QVERIFY(other.isButtonChecked());
    QCOMPARE(other.given, (QList<QMap<QString, QVariant>>{{{u"Number"_qs, 5}, {checkedKey, true}}}));
}

void tst_SettingsPushButton::additionalData_switchedOff_isNeitherWrittenNorRead()
{
    NumberedRow row(5);
    row.setAllowToSerializationOfAdditionalData(false);
    QCOMPARE(row.serializeExclusive(), shortState(false));
    QCOMPARE(row.countOfWrites, 0);
    NumberedRow other(6);
    other.deserializeExclusive(row.serializeExclusive());
    QCOMPARE(other.given.size(), 0);
}

void tst_SettingsPushButton::additionalData_isReadByTheStoredFlag()
{
    NumberedRow row(6);
    row.setAllowToSerializationOfAdditionalData(false);
    row.deserializeExclusive(NumberedRow(5).serializeExclusive());
    QCOMPARE(row.number, 5);
}

void tst_SettingsPushButton::additionalData_slotsAreInOrder()
{
    NumberedRow::compareSlots();
}

void tst_SettingsPushButton::getObject_isTheRow()
{
    CSettingsPushButton row;
    QCOMPARE(row.getObject(), &row);
    QCOMPARE(std::as_const(row).getObject(), &row);
}

void tst_SettingsPushButton::serialize_ofAForm_holdsItsRows()
{
    CSettingsPushButton form;
    form.setProperty("GUID", u"form"_qs);
    auto *row = new CSettingsPushButton(&form);
    row->setProperty("GUID", u"row"_qs);
    row->setButtonCheckable(true);
    row->checkButton(true);
    row->setAllowToSerializationOfAdditionalData(false);
    QCOMPARE(form.serialize(),
             mapBytes({{u"form"_qs, arrayValueBytes(fullState(false, false))},
                       {u"row"_qs, arrayValueBytes(shortState(true))}}));
}

void tst_SettingsPushButton::deserialize_ofAForm_restoresItsRows()
{
    CSettingsPushButton form;
    form.setProperty("GUID", u"form"_qs);
    auto *first = new CSettingsPushButton(&form);
    auto *second = new CSettingsPushButton(new QWidget(&form));
    for (CSettingsPushButton *row : {first, second}) {
        row->setButtonCheckable(true);
    }
    first->setProperty("GUID", u"first"_qs);
    second->setProperty("GUID", u"second"_qs);
    first->checkButton(true);
    const QByteArray data = form.serialize();
    first->checkButton(false);
    second->checkButton(true);
    form.deserialize(data, false, QString());
    QVERIFY(first->isButtonChecked());
    QVERIFY(!second->isButtonChecked());
    QCOMPARE(form.serialize(), data);
}

void tst_SettingsPushButton::render_showsTheCheckMark()
{
    CSettingsPushButton row;
    row.init(u"Grain"_qs);
    row.setButtonCheckable(true);
    row.resize(row.sizeHint());
    const QImage unchecked = row.grab().toImage();
    row.checkButton(true);
    const QImage checked = row.grab().toImage();
    const QRect caption = QRect(0, 0, 118, unchecked.height());
    QCOMPARE(checked.copy(caption), unchecked.copy(caption));
    QVERIFY(checked != unchecked);
}

QTEST_MAIN(tst_SettingsPushButton)
#include "tst_SettingsPushButton.moc"
