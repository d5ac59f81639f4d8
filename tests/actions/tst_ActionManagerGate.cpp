// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "actions/ActionGate.h"
#include "support/AssertionReports.h"

#include <QtTest/QTest>
#include <QtWidgets/QMenu>

using namespace ZYX_zglv6;

namespace {

enum class Course { Open, Replay };

/*! Appends also what is asked of it and done to it. */
class LoggedBoolProxy : public PlainBoolProxy
{
public:
    LoggedBoolProxy(QObject *action, QStringList &log)
        : PlainBoolProxy(action)
        , m_log(log)
    {
    }

    void setChecked(bool checked) override
    {
        m_log.append(checked ? u"setChecked true"_qs : u"setChecked false"_qs);
        PlainBoolProxy::setChecked(checked);
    }

    bool isChecked() const override
    {
        const bool checked = PlainBoolProxy::isChecked();
        m_log.append(checked ? u"isChecked true"_qs : u"isChecked false"_qs);
        return checked;
    }

private:
    QStringList &m_log;
};

/*! A plain and a checkable command, and all that happens to them in order. */
struct LoggedGate
{
    QStringList log;
    ActionReceiver receiver{log};
    CActionManager manager;
    QAction plain;
    LoggedBoolProxy proxy{&manager, log};

    LoggedGate()
    {
        manager.addAction(&plain, &receiver, "run");
        manager.addBoolActionAbstractProxy(&proxy, &receiver, "setOn");
    }

    void trigger(Kind kind)
    {
        if (kind == Kind::Plain) {
            plain.trigger();
        } else {
            proxy.flip();
        }
    }

    /*! Carries the command out; the log has what that alone brings. */
    void carryOut(Kind kind, Course course)
    {
        if (course == Course::Open) {
            log.clear();
            trigger(kind);
            return;
        }
        manager.blockActions();
        trigger(kind);
        log.clear();
        manager.callLastAction(); // still in the block, where no timer is armed
    }
};

} // namespace

Q_DECLARE_METATYPE(Course)

class tst_ActionManagerGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void gate_data();
    void gate();
    void flip_inABlock_isTakenBackUntilTheReplay_data();
    void flip_inABlock_isTakenBackUntilTheReplay();
    void flipTwice_inABlock_isOneCallWithTheLastState_data();
    void flipTwice_inABlock_isOneCallWithTheLastState();
    void flip_ofACommandRegisteredInABlock_goesBackToItsStateThen_data();
    void flip_ofACommandRegisteredInABlock_goesBackToItsStateThen();
    void blockActions_notesTheStatesAnew();
    void blockActionForSomeTime_inABlock_notesTheStatesAnew();
    void trigger_notesTheStateThatItBringsBeforeTheSlot();
    void callLastAction_notesTheStatesBeforeItSetsTheControl();
    void command_isPreparedBeforeTheMenuIsHiddenAndTheSlotRuns_data();
    void command_isPreparedBeforeTheMenuIsHiddenAndTheSlotRuns();
    void newerCommand_replacesTheOlder_data();
    void newerCommand_replacesTheOlder();
    void twoControlsInABlock_areBothFlippedBackAndTheNewerIsCarriedOut_data();
    void twoControlsInABlock_areBothFlippedBackAndTheNewerIsCarriedOut();
    void triggerOfADoubleRegistrationInABlock_isOneCall();
    void unBlockActions_withoutABlock_armsTheTimer();
    void unBlockActions_tooOften_leavesTheNextBlockWhole();
    void blockActionForSomeTime_doesNotBlock();
    void blockActionForSomeTime_inABlock_armsTheTimerAndStaysClosed();
    void clearLock_forgetsTheCommand_data();
    void clearLock_forgetsTheCommand();
    void clear_endsBlocksAndForgetsTheCommand();
};

void tst_ActionManagerGate::gate_data()
{
    QTest::addColumn<Situation>("situation");
    QTest::addColumn<Event>("event");
    QTest::addColumn<QStringList>("calls"); // at once
    QTest::addColumn<bool>("isArmed");
    QTest::addColumn<QStringList>("remembered"); // what is carried out when it is asked for
    QTest::addColumn<bool>("isOpen");

    const QStringList none;
    const QStringList run({u"run"_qs});
    const QStringList other({u"runOther"_qs});
    const QStringList on({u"setOn true"_qs});

    QTest::newRow("open: plain") << Situation::Open << Event::TriggerPlain << other << true << none << true;
    QTest::newRow("open: checkable") << Situation::Open << Event::TriggerChecked << on << true << none << true;
    QTest::newRow("open: block") << Situation::Open << Event::Block << none << false << none << false;
    QTest::newRow("open: unblock") << Situation::Open << Event::UnBlock << none << true << none << true;
    QTest::newRow("open: timer") << Situation::Open << Event::Timer << none << false << none << true;

    QTest::newRow("closed: plain") << Situation::Closed << Event::TriggerPlain << none << false << other << false;
    QTest::newRow("closed: checkable") << Situation::Closed << Event::TriggerChecked << none << false << on << false;
    QTest::newRow("closed: block") << Situation::Closed << Event::Block << none << false << none << false;
    QTest::newRow("closed: unblock") << Situation::Closed << Event::UnBlock << none << true << none << true;
    QTest::newRow("closed: timer") << Situation::Closed << Event::Timer << none << false << none << false;

    QTest::newRow("closed twice: plain") << Situation::ClosedTwice << Event::TriggerPlain << none << true << other
                                         << false;
    QTest::newRow("closed twice: checkable")
        << Situation::ClosedTwice << Event::TriggerChecked << none << true << on << false;
    QTest::newRow("closed twice: block") << Situation::ClosedTwice << Event::Block << none << false << none << false;
    QTest::newRow("closed twice: unblock") << Situation::ClosedTwice << Event::UnBlock << none << true << none << false;
    QTest::newRow("closed twice: timer") << Situation::ClosedTwice << Event::Timer << none << true << none << false;

    const Situation closedWith = Situation::ClosedWithCommand;
    QTest::newRow("closed with command: plain") << closedWith << Event::TriggerPlain << none << false << other << false;
    QTest::newRow("closed with command: checkable")
        << closedWith << Event::TriggerChecked << none << false << on << false;
    QTest::newRow("closed with command: block") << closedWith << Event::Block << none << false << run << false;
    QTest::newRow("closed with command: unblock") << closedWith << Event::UnBlock << none << true << run << true;
    QTest::newRow("closed with command: timer") << closedWith << Event::Timer << none << false << run << false;

    const Situation twiceWith = Situation::ClosedTwiceWithCommand;
    QTest::newRow("closed twice with command: plain")
        << twiceWith << Event::TriggerPlain << none << true << other << false;
    QTest::newRow("closed twice with command: checkable")
        << twiceWith << Event::TriggerChecked << none << true << on << false;
    QTest::newRow("closed twice with command: block") << twiceWith << Event::Block << none << false << run << false;
    QTest::newRow("closed twice with command: unblock") << twiceWith << Event::UnBlock << none << true << run << false;
    QTest::newRow("closed twice with command: timer") << twiceWith << Event::Timer << none << true << run << false;

    const Situation openWith = Situation::OpenWithCommand;
    QTest::newRow("open with command: plain") << openWith << Event::TriggerPlain << other << true << run << true;
    QTest::newRow("open with command: checkable") << openWith << Event::TriggerChecked << on << true << run << true;
    QTest::newRow("open with command: block") << openWith << Event::Block << none << false << run << false;
    QTest::newRow("open with command: unblock") << openWith << Event::UnBlock << none << true << run << true;
    QTest::newRow("open with command: timer") << openWith << Event::Timer << run << true << none << true;
}

void tst_ActionManagerGate::gate()
{
    QFETCH(const Situation, situation);
    QFETCH(const Event, event);
    QFETCH(const QStringList, calls);
    QFETCH(const bool, isArmed);
    QFETCH(const QStringList, remembered);
    QFETCH(const bool, isOpen);

    const TestSupport::AssertionReports reports;
    Gate gate;
    gate.enter(situation);
    QCOMPARE(gate.calls, QStringList());
    gate.take(event);
    QCOMPARE(gate.calls, calls);
    QCOMPARE(gate.isArmed(), isArmed);
    QCOMPARE(gate.commands.action.isChecked(), calls == QStringList({u"setOn true"_qs}));
    QCOMPARE(gate.takeRemembered(), remembered);
    QCOMPARE(gate.takeRemembered(), QStringList()); // once
    QCOMPARE(gate.isOpen(), isOpen);
    QCOMPARE(reports.texts(), QStringList());
}

namespace {

void addCheckableKinds()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("before");
    QTest::newRow("action that is off") << Kind::Boolean << false;
    QTest::newRow("action that is on") << Kind::Boolean << true;
    QTest::newRow("row that is off") << Kind::Row << false;
    QTest::newRow("row that is on") << Kind::Row << true;
    QTest::newRow("proxy that is off") << Kind::Proxy << false;
    QTest::newRow("proxy that is on") << Kind::Proxy << true;
}

QStringList setOnCall(bool on)
{
    return {on ? u"setOn true"_qs : u"setOn false"_qs};
}

} // namespace

void tst_ActionManagerGate::flip_inABlock_isTakenBackUntilTheReplay_data()
{
    addCheckableKinds();
}

void tst_ActionManagerGate::flip_inABlock_isTakenBackUntilTheReplay()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, before);
    Gate gate;
    gate.commands.setChecked(kind, before);
    gate.manager.blockActions();
    gate.commands.trigger(kind);
    QCOMPARE(gate.commands.isChecked(kind), before);

    gate.manager.unBlockActions();
    QCOMPARE(gate.commands.isChecked(kind), before);
    bool stateInSlot = before;
    gate.receiver.duringCall = [&] { stateInSlot = gate.commands.isChecked(kind); };
    gate.fireTimer();
    QCOMPARE(gate.calls, setOnCall(!before));
    QCOMPARE(stateInSlot, !before);
    QCOMPARE(gate.commands.isChecked(kind), !before);
}

void tst_ActionManagerGate::flipTwice_inABlock_isOneCallWithTheLastState_data()
{
    addCheckableKinds();
}

void tst_ActionManagerGate::flipTwice_inABlock_isOneCallWithTheLastState()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, before);
    Gate gate;
    gate.commands.setChecked(kind, before);
    gate.manager.blockActions();
    gate.commands.trigger(kind);
    gate.commands.trigger(kind); // it was flipped back, so this asks for the same state again
    QCOMPARE(gate.commands.isChecked(kind), before);
    gate.manager.unBlockActions();
    gate.fireTimer();
    gate.fireTimer();
    QCOMPARE(gate.calls, setOnCall(!before));
    QCOMPARE(gate.commands.isChecked(kind), !before);
}

void tst_ActionManagerGate::flip_ofACommandRegisteredInABlock_goesBackToItsStateThen_data()
{
    addCheckableKinds();
}

void tst_ActionManagerGate::flip_ofACommandRegisteredInABlock_goesBackToItsStateThen()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, before);
    Gate gate;
    gate.manager.blockActions();
    Commands late;
    late.action.setCheckable(true);
    late.setChecked(kind, before);
    late.registerIn(gate.manager, kind, &gate.receiver, "setOn");
    late.trigger(kind);
    QCOMPARE(late.isChecked(kind), before);
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(gate.calls, setOnCall(!before));
    QCOMPARE(late.isChecked(kind), !before);
}

void tst_ActionManagerGate::blockActions_notesTheStatesAnew()
{
    Gate gate;
    gate.manager.blockActions();
    gate.commands.setChecked(Kind::Row, true); // by the program, in its busy phase
    gate.commands.trigger(Kind::Row);
    QVERIFY(!gate.commands.isChecked(Kind::Row));

    gate.commands.setChecked(Kind::Row, true);
    gate.manager.blockActions();
    gate.commands.trigger(Kind::Row);
    QVERIFY(gate.commands.isChecked(Kind::Row));
}

void tst_ActionManagerGate::blockActionForSomeTime_inABlock_notesTheStatesAnew()
{
    Gate gate;
    gate.manager.blockActions();
    gate.commands.setChecked(Kind::Row, true);
    gate.manager.blockActionForSomeTime();
    gate.commands.trigger(Kind::Row);
    QVERIFY(gate.commands.isChecked(Kind::Row));
}

void tst_ActionManagerGate::trigger_notesTheStateThatItBringsBeforeTheSlot()
{
    LoggedGate gate;
    gate.carryOut(Kind::Proxy, Course::Open);
    QCOMPARE(gate.log, QStringList({u"isChecked true"_qs, u"setOn true"_qs}));
}

void tst_ActionManagerGate::callLastAction_notesTheStatesBeforeItSetsTheControl()
{
    LoggedGate gate;
    gate.carryOut(Kind::Proxy, Course::Replay);
    QCOMPARE(gate.log, QStringList({u"isChecked false"_qs, u"setChecked true"_qs, u"setOn true"_qs}));
}

void tst_ActionManagerGate::command_isPreparedBeforeTheMenuIsHiddenAndTheSlotRuns_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Course>("course");
    QTest::addColumn<QStringList>("log");
    const QString menu = u"menu hides, armed"_qs;
    const QString slot = u"slot, armed"_qs;
    const QString isOff = u"isChecked false"_qs;
    QTest::newRow("plain") << Kind::Plain << Course::Open << QStringList({isOff, menu, u"run"_qs, slot});
    QTest::newRow("plain, replayed") << Kind::Plain << Course::Replay << QStringList({isOff, menu, u"run"_qs, slot});
    QTest::newRow("checkable") << Kind::Proxy << Course::Open
                               << QStringList({u"isChecked true"_qs, menu, u"setOn true"_qs, slot});
    QTest::newRow("checkable, replayed") << Kind::Proxy << Course::Replay
                                         << QStringList({isOff, u"setChecked true"_qs, menu, u"setOn true"_qs, slot});
}

void tst_ActionManagerGate::command_isPreparedBeforeTheMenuIsHiddenAndTheSlotRuns()
{
    QFETCH(const Kind, kind);
    QFETCH(const Course, course);
    QFETCH(const QStringList, log);
    LoggedGate gate;
    const auto note = [&gate](const QString &place) {
        gate.log.append(place + (isReplayArmed(gate.manager) ? u", armed"_qs : u", not armed"_qs));
    };
    gate.receiver.duringCall = [&note] { note(u"slot"_qs); };
    QMenu menu;
    menu.addAction(u"entry"_qs);
    connect(&menu, &QMenu::aboutToHide, this, [&note] { note(u"menu hides"_qs); });
    menu.popup({});
    QVERIFY(!isReplayArmed(gate.manager));
    gate.carryOut(kind, course);
    QCOMPARE(gate.log, log);
}

void tst_ActionManagerGate::newerCommand_replacesTheOlder_data()
{
    QTest::addColumn<Event>("first");
    QTest::addColumn<Event>("second");
    QTest::addColumn<QString>("call");
    QTest::newRow("plain, then checkable") << Event::TriggerPlain << Event::TriggerChecked << u"setOn true"_qs;
    QTest::newRow("checkable, then plain") << Event::TriggerChecked << Event::TriggerPlain << u"runOther"_qs;
    QTest::newRow("plain twice") << Event::TriggerPlain << Event::TriggerPlain << u"runOther"_qs;
}

void tst_ActionManagerGate::newerCommand_replacesTheOlder()
{
    QFETCH(const Event, first);
    QFETCH(const Event, second);
    QFETCH(const QString, call);
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.take(first);
    gate.take(second);
    QVERIFY(!gate.commands.action.isChecked());
    gate.manager.unBlockActions();
    gate.fireTimer();
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({call}));
    QCOMPARE(gate.commands.action.isChecked(), second == Event::TriggerChecked);
}

void tst_ActionManagerGate::twoControlsInABlock_areBothFlippedBackAndTheNewerIsCarriedOut_data()
{
    QTest::addColumn<Kind>("older");
    QTest::addColumn<Kind>("newer");
    QTest::newRow("action, then row") << Kind::Boolean << Kind::Row;
    QTest::newRow("row, then action") << Kind::Row << Kind::Boolean;
    QTest::newRow("row, then proxy") << Kind::Row << Kind::Proxy;
    QTest::newRow("proxy, then action") << Kind::Proxy << Kind::Boolean;
}

void tst_ActionManagerGate::twoControlsInABlock_areBothFlippedBackAndTheNewerIsCarriedOut()
{
    QFETCH(const Kind, older);
    QFETCH(const Kind, newer);
    Gate gate;
    gate.commands.setChecked(older, true);
    gate.manager.blockActions();
    gate.commands.trigger(older);
    QVERIFY(gate.commands.isChecked(older));
    gate.commands.trigger(newer);
    QVERIFY(gate.commands.isChecked(older));
    QVERIFY(!gate.commands.isChecked(newer));

    gate.manager.unBlockActions();
    gate.fireTimer();
    gate.fireTimer();
    QCOMPARE(gate.calls, setOnCall(true)); // the older one asked for off
    QVERIFY(gate.commands.isChecked(older));
    QVERIFY(gate.commands.isChecked(newer));
}

void tst_ActionManagerGate::triggerOfADoubleRegistrationInABlock_isOneCall()
{
    const TestSupport::AssertionReports reports;
    Gate gate;
    gate.manager.addAction(&gate.plain, &gate.receiver, "runOther");
    QCOMPARE(reports.texts().size(), 1);
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    gate.fireTimer();
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"runOther"_qs}));
}

void tst_ActionManagerGate::unBlockActions_withoutABlock_armsTheTimer()
{
    Gate gate;
    QVERIFY(!gate.isArmed());
    gate.manager.unBlockActions();
    QVERIFY(gate.isArmed());
    QVERIFY(gate.isOpen());
}

void tst_ActionManagerGate::unBlockActions_tooOften_leavesTheNextBlockWhole()
{
    Gate gate;
    gate.manager.unBlockActions();
    gate.manager.unBlockActions();
    gate.manager.blockActions();
    QVERIFY(!gate.isOpen());
    gate.manager.unBlockActions();
    QVERIFY(gate.isOpen());
}

void tst_ActionManagerGate::blockActionForSomeTime_doesNotBlock()
{
    Gate gate;
    gate.manager.blockActionForSomeTime();
    QVERIFY(gate.isArmed());
    gate.plain.trigger();
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
}

void tst_ActionManagerGate::blockActionForSomeTime_inABlock_armsTheTimerAndStaysClosed()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.blockActionForSomeTime();
    QVERIFY(gate.isArmed());
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList());
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
    QVERIFY(gate.isOpen());
}

void tst_ActionManagerGate::clearLock_forgetsTheCommand_data()
{
    QTest::addColumn<Event>("event");
    QTest::newRow("plain") << Event::TriggerPlain;
    QTest::newRow("checkable") << Event::TriggerChecked;
}

void tst_ActionManagerGate::clearLock_forgetsTheCommand()
{
    QFETCH(const Event, event);
    const TestSupport::AssertionReports reports;
    Gate gate;
    gate.manager.blockActions();
    gate.manager.blockActions();
    gate.take(event);
    gate.manager.unBlockActions();
    gate.manager.clearLock();
    QVERIFY(gate.isArmed());
    gate.fireTimer(); // finds nothing
    QCOMPARE(gate.calls, QStringList());
    QVERIFY(!gate.commands.action.isChecked()); // stays as it was flipped back
    QVERIFY(gate.isOpen());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerGate::clear_endsBlocksAndForgetsTheCommand()
{
    const TestSupport::AssertionReports reports;
    Gate gate;
    gate.manager.blockActions();
    gate.manager.blockActions();
    gate.commands.action.trigger();
    gate.manager.unBlockActions();
    gate.manager.clear();
    QVERIFY(gate.isArmed());
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList());
    QVERIFY(!gate.commands.action.isChecked());
    QCOMPARE(reports.texts(), QStringList());

    gate.commands.registerIn(gate.manager, Kind::Plain, &gate.receiver, "run");
    gate.commands.action.trigger();
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
}

QTEST_MAIN(tst_ActionManagerGate)
#include "tst_ActionManagerGate.moc"
