// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/ShiftedButtons.h"
#include "support/AssertionReports.h"

#include <QtTest/QTest>

#include <memory>

using TestSupport::AssertionReports;

class tst_NonShiftedButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void disableButtonShift_registered_isForAllOfItsName();
    void disableButtonShift_null_isIgnored();
    void disableButtonShift_twice_isOneEntry();
    void disableButtonShift_nameInUse_keepsTheFirstButton();
    void disableButtonShift_withoutName_isReportedAndFollowed();
    void disableButtonShift_secondWithoutName_isRefused();
    void disableButtonShift_offWithoutName_isReported();

    void enabledAgain_ownEntry_isForgotten();
    void enabledAgain_allConnectionsToTheStyleGo();
    void enabledAgain_unknownName_changesNothing();
    void enabledAgain_otherButtonsEntry_goesAfterAReport();
    void enabledAgain_reportedEntry_leavesConnectionsBehind();

    void destroyed_button_leavesTheTable();
    void destroyed_buttonWithoutEntry_takesThatOfItsName();
    void destroyed_style_leavesNoConnections();
    void destroyed_null_isIgnored();

    void renamed_button_isFollowed();
    void renamed_allConnectionsToTheStyleGo();
    void renamed_toNameInUse_staysOut();
    void renamed_toNothing_leavesWithoutReport();
    void renamed_buttonWithoutEntry_isReported();
    void renamed_noWidget_isIgnored();

private:
    std::unique_ptr<AssertionReports> m_reports;
    std::unique_ptr<ShiftedStyle> m_style;
};

/*! Of the style's source, and nothing else. */
#define COMPARE_REPORTS(expectedCount)                                                                                 \
    do {                                                                                                               \
        const QStringList texts = m_reports->texts();                                                                  \
        QVERIFY2(texts.size() == (expectedCount), qPrintable(texts.join(u'\n')));                                      \
        QCOMPARE(texts.filter(u"customzyxappstyle.cpp"_qs).size(), texts.size());                                      \
    } while (false)

void tst_NonShiftedButtons::init()
{
    m_reports = std::make_unique<AssertionReports>();
    m_style = std::make_unique<ShiftedStyle>();
}

void tst_NonShiftedButtons::cleanup()
{
    m_style.reset();
    m_reports.reset();
}

void tst_NonShiftedButtons::disableButtonShift_registered_isForAllOfItsName()
{
    const Button button(u"shutter"_qs);
    const Button neverRegistered(u"shutter"_qs);
    const Button other(u"aperture"_qs);
    QCOMPARE(m_style->shift(&button), baseShift);
    m_style->disableButtonShift(&button, true);
    QCOMPARE(m_style->shift(&button), noShift);
    QCOMPARE(m_style->shift(&neverRegistered), noShift);
    QCOMPARE(m_style->shift(&other), baseShift);
    QCOMPARE(button.connections(), 1);
    QCOMPARE(neverRegistered.connections(), 0);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::disableButtonShift_null_isIgnored()
{
    m_style->disableButtonShift(nullptr, true);
    m_style->disableButtonShift(nullptr, false);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::disableButtonShift_twice_isOneEntry()
{
    const Button button(u"shutter"_qs);
    m_style->disableButtonShift(&button, true);
    m_style->disableButtonShift(&button, true);
    QCOMPARE(button.connections(), 1);
    QCOMPARE(m_style->shift(&button), noShift);
    m_style->disableButtonShift(&button, false);
    QCOMPARE(button.connections(), 0);
    QCOMPARE(m_style->shift(&button), baseShift);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::disableButtonShift_nameInUse_keepsTheFirstButton()
{
    auto first = std::make_unique<Button>(u"shutter"_qs);
    auto second = std::make_unique<Button>(u"shutter"_qs);
    m_style->disableButtonShift(first.get(), true);
    m_style->disableButtonShift(second.get(), true);
    QCOMPARE(first->connections(), 1);
    QCOMPARE(second->connections(), 0);

    second.reset();
    QCOMPARE(m_style->shift(u"shutter"_qs), noShift);
    first.reset();
    QCOMPARE(m_style->shift(u"shutter"_qs), baseShift);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::disableButtonShift_withoutName_isReportedAndFollowed()
{
    Button button{QString()};
    m_style->disableButtonShift(&button, true);
    COMPARE_REPORTS(1);
    QVERIFY(m_reports->texts().constFirst().startsWith(u"ASSERT in "));
    QCOMPARE(button.connections(), 1);
    QCOMPARE(m_style->shift(&button), baseShift);

    button.setObjectName(u"shutter"_qs);
    QCOMPARE(m_style->shift(&button), noShift);
    QCOMPARE(button.connections(), 1);
    COMPARE_REPORTS(1);
}

void tst_NonShiftedButtons::disableButtonShift_secondWithoutName_isRefused()
{
    const Button first{QString()};
    Button second{QString()};
    m_style->disableButtonShift(&first, true);
    m_style->disableButtonShift(&second, true);
    COMPARE_REPORTS(2);
    QCOMPARE(second.connections(), 0);
    second.setObjectName(u"shutter"_qs);
    QCOMPARE(m_style->shift(&second), baseShift);
}

void tst_NonShiftedButtons::disableButtonShift_offWithoutName_isReported()
{
    const Button button{QString()};
    m_style->disableButtonShift(&button, false);
    COMPARE_REPORTS(1);
    m_style->disableButtonShift(&button, true);
    COMPARE_REPORTS(2);
    m_style->disableButtonShift(&button, false);
    COMPARE_REPORTS(3);
    QCOMPARE(button.connections(), 0); // it was under the empty key
}

void tst_NonShiftedButtons::enabledAgain_ownEntry_isForgotten()
{
    Button button(u"shutter"_qs);
    m_style->disableButtonShift(&button, true);
    m_style->disableButtonShift(&button, false);
    QCOMPARE(m_style->shift(&button), baseShift);
    QCOMPARE(button.connections(), 0);
    button.setObjectName(u"aperture"_qs);
    QCOMPARE(m_style->shift(&button), baseShift);
    COMPARE_REPORTS(0);
}

/*! Also one that someone else made. */
void tst_NonShiftedButtons::enabledAgain_allConnectionsToTheStyleGo()
{
    Button button(u"shutter"_qs);
    int calls = 0;
    connect(&button, &QWidget::windowTitleChanged, m_style.get(), [&calls] { ++calls; });
    m_style->disableButtonShift(&button, true);
    button.setWindowTitle(u"first"_qs);
    m_style->disableButtonShift(&button, false);
    button.setWindowTitle(u"second"_qs);
    QCOMPARE(calls, 1);
}

void tst_NonShiftedButtons::renamed_allConnectionsToTheStyleGo()
{
    Button button(u"shutter"_qs);
    int calls = 0;
    connect(&button, &QWidget::windowTitleChanged, m_style.get(), [&calls] { ++calls; });
    m_style->disableButtonShift(&button, true);
    button.setObjectName(u"aperture"_qs);
    button.setWindowTitle(u"second"_qs);
    QCOMPARE(calls, 0);
}

void tst_NonShiftedButtons::enabledAgain_unknownName_changesNothing()
{
    Button button(u"shutter"_qs);
    Button other(u"aperture"_qs);
    m_style->disableButtonShift(&button, true);
    m_style->disableButtonShift(&other, false);
    QCOMPARE(m_style->shift(&button), noShift);
    QCOMPARE(button.connections(), 1);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::enabledAgain_otherButtonsEntry_goesAfterAReport()
{
    Button owner(u"shutter"_qs);
    const Button other(u"shutter"_qs);
    m_style->disableButtonShift(&owner, true);
    m_style->disableButtonShift(&other, false);
    COMPARE_REPORTS(1);
    QVERIFY(m_reports->texts().constFirst().startsWith(u"ASSERT in "));
    QCOMPARE(m_style->shift(&owner), baseShift);
    QCOMPARE(owner.connections(), 1); // stay
    QCOMPARE(other.connections(), 0);
}

void tst_NonShiftedButtons::enabledAgain_reportedEntry_leavesConnectionsBehind()
{
    Button owner(u"shutter"_qs);
    const Button other(u"shutter"_qs);
    m_style->disableButtonShift(&owner, true);
    m_style->disableButtonShift(&other, false);
    m_style->disableButtonShift(&owner, true);
    QCOMPARE(owner.connections(), 2);
    owner.setObjectName(u"aperture"_qs); // both slots are called; the first one replaces both connections
    QCOMPARE(owner.connections(), 1);
    QCOMPARE(m_style->shift(&owner), noShift);
    m_style->disableButtonShift(&owner, false);
    QCOMPARE(owner.connections(), 0);
    COMPARE_REPORTS(1);
}

void tst_NonShiftedButtons::destroyed_button_leavesTheTable()
{
    auto button = std::make_unique<Button>(u"shutter"_qs);
    m_style->disableButtonShift(button.get(), true);
    button.reset();
    QCOMPARE(m_style->shift(u"shutter"_qs), baseShift);

    const Button successor(u"shutter"_qs);
    m_style->disableButtonShift(&successor, true);
    QCOMPARE(successor.connections(), 1); // the name is free again
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::destroyed_buttonWithoutEntry_takesThatOfItsName()
{
    auto former = std::make_unique<Button>(u"shutter"_qs);
    const Button owner(u"shutter"_qs);
    m_style->disableButtonShift(former.get(), true);
    m_style->disableButtonShift(&owner, false); // leaves the connections of the former one
    m_style->disableButtonShift(&owner, true);
    COMPARE_REPORTS(1);
    QCOMPARE(m_style->shift(&owner), noShift);

    former.reset();
    COMPARE_REPORTS(2);
    QCOMPARE(m_style->shift(&owner), baseShift);
    QCOMPARE(owner.connections(), 1);
}

void tst_NonShiftedButtons::destroyed_style_leavesNoConnections()
{
    Button button(u"shutter"_qs);
    m_style->disableButtonShift(&button, true);
    m_style.reset();
    QCOMPARE(button.connections(), 0);
    button.setObjectName(u"aperture"_qs);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::destroyed_null_isIgnored()
{
    QVERIFY(QMetaObject::invokeMethod(m_style.get(), "onNonShiftedButtonDestroy",
                                      Q_ARG(QObject *, static_cast<QObject *>(nullptr))));
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::renamed_button_isFollowed()
{
    auto button = std::make_unique<Button>(u"shutter"_qs);
    m_style->disableButtonShift(button.get(), true);
    for (const QString &name : {u"aperture"_qs, u"focus"_qs}) {
        const QString formerName = button->objectName();
        button->setObjectName(name);
        QCOMPARE(m_style->shift(name), noShift);
        QCOMPARE(m_style->shift(formerName), baseShift);
        QCOMPARE(button->connections(), 1);
    }
    button.reset();
    QCOMPARE(m_style->shift(u"focus"_qs), baseShift);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::renamed_toNameInUse_staysOut()
{
    auto owner = std::make_unique<Button>(u"shutter"_qs);
    Button button(u"aperture"_qs);
    m_style->disableButtonShift(owner.get(), true);
    m_style->disableButtonShift(&button, true);
    button.setObjectName(u"shutter"_qs);
    QCOMPARE(m_style->shift(u"aperture"_qs), baseShift);
    QCOMPARE(m_style->shift(&button), noShift); // by the name of the other
    QCOMPARE(button.connections(), 0);
    QCOMPARE(owner->connections(), 1);

    owner.reset();
    QCOMPARE(m_style->shift(&button), baseShift);
    button.setObjectName(u"focus"_qs);
    QCOMPARE(m_style->shift(&button), baseShift);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::renamed_toNothing_leavesWithoutReport()
{
    Button button(u"shutter"_qs);
    m_style->disableButtonShift(&button, true);
    button.setObjectName(QString());
    QCOMPARE(button.connections(), 0);
    QCOMPARE(m_style->shift(u"shutter"_qs), baseShift);
    button.setObjectName(u"shutter"_qs);
    QCOMPARE(m_style->shift(&button), baseShift);
    COMPARE_REPORTS(0);
}

void tst_NonShiftedButtons::renamed_buttonWithoutEntry_isReported()
{
    Button owner(u"shutter"_qs);
    const Button other(u"shutter"_qs);
    m_style->disableButtonShift(&owner, true);
    m_style->disableButtonShift(&other, false);
    COMPARE_REPORTS(1);
    owner.setObjectName(u"aperture"_qs);
    COMPARE_REPORTS(2);
    QCOMPARE(m_style->shift(&owner), baseShift);
    QCOMPARE(owner.connections(), 1);
}

void tst_NonShiftedButtons::renamed_noWidget_isIgnored()
{
    QVERIFY(QMetaObject::invokeMethod(m_style.get(), "onNonShiftedButtonObjectNameChanged",
                                      Q_ARG(QString, u"shutter"_qs))); // without a sender
    QObject object;
    QVERIFY(connect(&object, SIGNAL(objectNameChanged(QString)), m_style.get(),
                    SLOT(onNonShiftedButtonObjectNameChanged(QString))));
    object.setObjectName(u"aperture"_qs);
    COMPARE_REPORTS(0);
    QCOMPARE(m_style->shift(u"shutter"_qs), baseShift);
    QCOMPARE(m_style->shift(u"aperture"_qs), baseShift);
}

QTEST_MAIN(tst_NonShiftedButtons)
#include "tst_NonShiftedButtons.moc"
