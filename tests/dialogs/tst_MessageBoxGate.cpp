// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "actions/ActionCommands.h"
#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"

#include <QtTest/QTest>

using namespace ZYX_zglv6;

namespace {

using Ask = void (*)();

void askSave()
{
    CMessageBox::saveDiscardCancelMessage(nullptr, u"Film"_qs, u"Save?"_qs, QMessageBox::Save);
}

void askBackground()
{
    CMessageBox::backgroundProcessingCancelMessage(nullptr, u"Film"_qs, u"Quit?"_qs);
}

void addAskRows()
{
    QTest::addColumn<Ask>("ask");
    QTest::newRow("save") << &askSave;
    QTest::newRow("background") << &askBackground;
}

CActionManager &gate()
{
    return Singleton<CActionManager>::instance();
}

} // namespace

Q_DECLARE_METATYPE(Ask)

/*! The gate for the user's commands around the two boxes that stop them. */
class tst_MessageBoxGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void commands_whileOpen_areDropped_data();
    void commands_whileOpen_areDropped();
    void checkableCommand_whileOpen_isFlippedBackAndDropped_data();
    void checkableCommand_whileOpen_isFlippedBackAndDropped();
    void blocksFromBefore_areCleared_data();
    void blocksFromBefore_areCleared();
    void commandFromBefore_isDropped_data();
    void commandFromBefore_isDropped();
    void pendingReplay_isDiscarded_data();
    void pendingReplay_isDiscarded();
    void otherBoxes_leaveTheGateAlone();

private:
    bool isOpen();

    TestSupport::Sandbox m_sandbox;
    BoxDriver m_driver;
    QStringList m_calls;
    ActionReceiver m_receiver{m_calls};
    QAction m_plain;
    QAction m_otherPlain;
    QAction m_checkable;
};

void tst_MessageBoxGate::initTestCase()
{
    m_checkable.setCheckable(true);
    gate().addAction(&m_plain, &m_receiver, "run");
    gate().addAction(&m_otherPlain, &m_receiver, "runOther");
    gate().addBooleanAction(&m_checkable, &m_receiver, "setOn");
}

void tst_MessageBoxGate::init()
{
    gate().clearLock();
    Singleton<CDelayedCall>::instance().discard(&gate(), "onTimer");
    m_checkable.setChecked(false);
    m_calls.clear();
}

bool tst_MessageBoxGate::isOpen()
{
    m_calls.clear();
    m_otherPlain.trigger();
    return m_calls == QStringList({u"runOther"_qs});
}

void tst_MessageBoxGate::commands_whileOpen_areDropped_data()
{
    addAskRows();
}

void tst_MessageBoxGate::commands_whileOpen_areDropped()
{
    QFETCH(const Ask, ask);
    m_driver.onNext([this](QMessageBox &box) {
        m_plain.trigger();
        box.close();
    });
    ask();
    QCOMPARE(m_calls, QStringList());
    QVERIFY(!isReplayArmed(gate()));
    gate().callLastAction();
    QCOMPARE(m_calls, QStringList());
    QVERIFY(isOpen());
}

void tst_MessageBoxGate::checkableCommand_whileOpen_isFlippedBackAndDropped_data()
{
    addAskRows();
}

void tst_MessageBoxGate::checkableCommand_whileOpen_isFlippedBackAndDropped()
{
    QFETCH(const Ask, ask);
    m_checkable.setChecked(true); // a state that only a snapshot at the box's beginning knows
    bool isCheckedWhileOpen = false;
    m_driver.onNext([&](QMessageBox &box) {
        m_checkable.trigger();
        isCheckedWhileOpen = m_checkable.isChecked();
        box.close();
    });
    ask();
    QVERIFY(isCheckedWhileOpen);
    gate().callLastAction();
    QCOMPARE(m_calls, QStringList());
    QVERIFY(m_checkable.isChecked());
    QVERIFY(isOpen());
}

void tst_MessageBoxGate::blocksFromBefore_areCleared_data()
{
    addAskRows();
}

void tst_MessageBoxGate::blocksFromBefore_areCleared()
{
    QFETCH(const Ask, ask);
    gate().blockActions();
    gate().blockActions();
    QVERIFY(!isOpen());
    m_driver.closeNext();
    ask();
    QVERIFY(!isReplayArmed(gate()));
    QVERIFY(isOpen());
}

void tst_MessageBoxGate::commandFromBefore_isDropped_data()
{
    addAskRows();
}

void tst_MessageBoxGate::commandFromBefore_isDropped()
{
    QFETCH(const Ask, ask);
    gate().blockActions();
    m_plain.trigger();
    m_driver.closeNext();
    ask();
    gate().callLastAction();
    QCOMPARE(m_calls, QStringList());
}

void tst_MessageBoxGate::pendingReplay_isDiscarded_data()
{
    addAskRows();
}

void tst_MessageBoxGate::pendingReplay_isDiscarded()
{
    QFETCH(const Ask, ask);
    gate().blockActionForSomeTime();
    QVERIFY(isReplayArmed(gate()));
    bool isArmedWhileOpen = true;
    m_driver.onNext([&](QMessageBox &box) {
        isArmedWhileOpen = isReplayArmed(gate());
        box.close();
    });
    ask();
    QVERIFY(!isArmedWhileOpen);
    QVERIFY(!isReplayArmed(gate()));
}

void tst_MessageBoxGate::otherBoxes_leaveTheGateAlone()
{
    const QString film = u"Film"_qs;
    const QList<std::function<void()>> boxes{
        [&] { CMessageBox::rotateQuestion(nullptr, film, film); },
        [&] { CMessageBox::yesNoMessage(nullptr, film, film, QMessageBox::Yes); },
        [&] { CMessageBox::yesNoMessageWithCheckBox(nullptr, film, film, film, true, QMessageBox::Yes); },
        [&] { CMessageBox::warning(nullptr, film, film, QMessageBox::Ok, QMessageBox::Ok, true); },
    };
    for (const std::function<void()> &ask : boxes) {
        m_calls.clear();
        m_driver.onNext([this](QMessageBox &box) {
            m_plain.trigger();
            box.close();
        });
        ask();
        QCOMPARE(m_calls, QStringList({u"run"_qs}));
        gate().blockActions();
        m_driver.closeNext();
        ask();
        QVERIFY(!isOpen());
        gate().clearLock();
    }
}

QTEST_MAIN(tst_MessageBoxGate)
#include "tst_MessageBoxGate.moc"
