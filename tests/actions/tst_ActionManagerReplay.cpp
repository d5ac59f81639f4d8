// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "actions/ActionGate.h"
#include "eventLoop/ObjectCensus.h"
#include "support/AssertionReports.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QElapsedTimer>
#include <QtTest/QTest>

#include <memory>
#include <optional>

using namespace ZYX_zglv6;

namespace {

// a coarse timer may come five per cent early
constexpr qint64 leastDelayMs = 950;

using Arming = void (*)(Gate &);

/*! Lets time pass without events, so that a timer that is armed now is overdue. */
void letArmedTimerBecomeOverdue()
{
    QTest::qSleep(1100);
}

} // namespace

class tst_ActionManagerReplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void replayTimer_isArmedForExactlyOneSecond_data();
    void replayTimer_isArmedForExactlyOneSecond();
    void twoBlocks_needTwoUnblocks();
    void callLastAction_goesThroughABlock_data();
    void callLastAction_goesThroughABlock();
    void callLastAction_withNothingRemembered_doesNothing();
    void callLastAction_forgetsTheCommandBeforeItsSlot();
    void trigger_inTheReplaysSlot_runsAtOnceInside();
    void block_inTheReplaysSlot_keepsTheGateClosed();
    void busySlot_remembersWhatComesMeanwhile();
    void deletedAction_thatIsRemembered_isCarriedOutAllTheSame();
    void deletedAction_thatIsRemembered_isNotTakenForANewOneAtItsAddress();
    void deletedControl_thatIsRemembered_isNotCarriedOut_data();
    void deletedControl_thatIsRemembered_isNotCarriedOut();
    void clearedCommand_isReportedAndNotCarriedOut();
    void clearedCommand_isNotReportedAThirdTime();
    void replay_comesASecondAfterTheUnblock();
    void replay_ofAFlippedControl_comesASecondAfterTheUnblock();
    void replay_isDecidedByTheNewestUnblock();
    void replay_isPutOffByTheNextBusyPhase();
    void replay_isMovedByACommandThatComesBefore();
    void replay_outlivesTheManager();

private:
    QList<int> armedIntervals() const;

    QObject *m_invoker = nullptr; // whose timers are the delayed calls of this thread
};

void tst_ActionManagerReplay::initTestCase()
{
    const ObjectCensus census;
    QObject receiver;
    Singleton<CDelayedCall>::instance().invoke(1, &receiver, "deleteLater", true);
    m_invoker = ObjectCensus::latestMadeHere(); // made by the first call
    Singleton<CDelayedCall>::instance().discard(&receiver, "deleteLater");
    QVERIFY(m_invoker != &receiver);
}

QList<int> tst_ActionManagerReplay::armedIntervals() const
{
    QList<int> intervals;
    for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(m_invoker)) {
        intervals.append(timer.interval);
    }
    return intervals;
}

void tst_ActionManagerReplay::replayTimer_isArmedForExactlyOneSecond_data()
{
    QTest::addColumn<Arming>("arm");
    QTest::newRow("unBlockActions") << Arming([](Gate &gate) { gate.manager.unBlockActions(); });
    QTest::newRow("unBlockActions twice") << Arming([](Gate &gate) {
        gate.manager.unBlockActions();
        gate.manager.unBlockActions();
    });
    QTest::newRow("unBlockActions of two blocks") << Arming([](Gate &gate) {
        gate.manager.blockActions();
        gate.manager.blockActions();
        gate.manager.unBlockActions();
    });
    QTest::newRow("blockActionForSomeTime") << Arming([](Gate &gate) { gate.manager.blockActionForSomeTime(); });
    QTest::newRow("plain trigger") << Arming([](Gate &gate) { gate.plain.trigger(); });
    QTest::newRow("checkable trigger") << Arming([](Gate &gate) { gate.commands.row.clickButton(); });
    QTest::newRow("callLastAction") << Arming([](Gate &gate) {
        gate.enter(Situation::ClosedWithCommand);
        gate.manager.callLastAction();
    });
}

void tst_ActionManagerReplay::replayTimer_isArmedForExactlyOneSecond()
{
    QFETCH(const Arming, arm);
    QTRY_COMPARE(armedIntervals(), QList<int>()); // those of earlier gates have run out
    Gate gate;
    arm(gate);
    QCOMPARE(armedIntervals(), QList<int>({1000}));
    gate.manager.blockActions();
    QCOMPARE(armedIntervals(), QList<int>());
}

void tst_ActionManagerReplay::twoBlocks_needTwoUnblocks()
{
    Gate gate;
    gate.manager.blockActions();
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    QTRY_VERIFY(!gate.isArmed()); // it fires
    QCOMPARE(gate.calls, QStringList());

    QElapsedTimer sinceUnblock;
    sinceUnblock.start();
    gate.manager.unBlockActions();
    QVERIFY(gate.isArmed());
    QTRY_COMPARE(gate.calls, QStringList({u"run"_qs}));
    QVERIFY(sinceUnblock.elapsed() >= leastDelayMs);
}

void tst_ActionManagerReplay::callLastAction_goesThroughABlock_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QString>("call");
    QTest::newRow("plain") << Event::TriggerPlain << u"runOther"_qs;
    QTest::newRow("checkable") << Event::TriggerChecked << u"setOn true"_qs;
}

void tst_ActionManagerReplay::callLastAction_goesThroughABlock()
{
    QFETCH(const Event, event);
    QFETCH(const QString, call);
    Gate gate;
    gate.manager.blockActions();
    gate.take(event);
    gate.manager.callLastAction();
    QCOMPARE(gate.calls, QStringList({call}));
    QCOMPARE(gate.commands.action.isChecked(), event == Event::TriggerChecked);
    QVERIFY(gate.isArmed());
    gate.manager.callLastAction();
    QCOMPARE(gate.calls, QStringList({call}));
    QVERIFY(!gate.isOpen());
}

void tst_ActionManagerReplay::callLastAction_withNothingRemembered_doesNothing()
{
    Gate gate;
    gate.manager.callLastAction();
    QCOMPARE(gate.calls, QStringList());
    QVERIFY(!gate.isArmed());
}

void tst_ActionManagerReplay::callLastAction_forgetsTheCommandBeforeItsSlot()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.receiver.duringCall = [&gate] {
        if (gate.calls.size() < 5) {
            gate.manager.callLastAction();
        }
    };
    gate.manager.callLastAction();
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
}

void tst_ActionManagerReplay::trigger_inTheReplaysSlot_runsAtOnceInside()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    gate.receiver.duringCall = [&gate] {
        if (gate.calls.size() == 1) {
            gate.otherPlain.trigger();
            gate.commands.action.trigger();
            gate.calls.append(u"end of run"_qs);
        }
    };
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"run"_qs, u"runOther"_qs, u"setOn true"_qs, u"end of run"_qs}));
}

void tst_ActionManagerReplay::block_inTheReplaysSlot_keepsTheGateClosed()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    gate.receiver.duringCall = [&gate] { gate.manager.blockActions(); };
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
    QVERIFY(!gate.isArmed());
    QVERIFY(!gate.isOpen());
}

void tst_ActionManagerReplay::busySlot_remembersWhatComesMeanwhile()
{
    Gate gate;
    gate.receiver.duringCall = [&gate] {
        if (gate.calls.size() == 1) {
            gate.manager.blockActions();
            gate.otherPlain.trigger();
            gate.manager.unBlockActions();
        }
    };
    gate.plain.trigger();
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"run"_qs, u"runOther"_qs}));
}

void tst_ActionManagerReplay::deletedAction_thatIsRemembered_isCarriedOutAllTheSame()
{
    const TestSupport::AssertionReports reports;
    Gate gate;
    auto action = std::make_unique<QAction>();
    gate.manager.addAction(action.get(), &gate.receiver, "runOther");
    gate.manager.blockActions();
    action->trigger();
    action.reset();
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"runOther"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerReplay::deletedAction_thatIsRemembered_isNotTakenForANewOneAtItsAddress()
{
    const TestSupport::AssertionReports reports;
    Gate gate;
    std::optional<QAction> action;
    const QAction *address = &action.emplace();
    gate.manager.addAction(&*action, &gate.receiver, "runOther");
    gate.manager.blockActions();
    action->trigger();
    action.reset();
    QCOMPARE(&action.emplace(), address);
    gate.manager.addAction(&*action, &gate.receiver, "run");
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList({u"runOther"_qs}));
    action->trigger();
    QCOMPARE(gate.calls, QStringList({u"runOther"_qs, u"run"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ActionManagerReplay::deletedControl_thatIsRemembered_isNotCarriedOut_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("action") << Kind::Boolean;
    QTest::newRow("row") << Kind::Row;
    QTest::newRow("proxy") << Kind::Proxy;
}

void tst_ActionManagerReplay::deletedControl_thatIsRemembered_isNotCarriedOut()
{
    QFETCH(const Kind, kind);
    const TestSupport::AssertionReports reports;
    Gate gate;
    auto commands = std::make_unique<Commands>();
    commands->action.setCheckable(true);
    commands->registerIn(gate.manager, kind, &gate.receiver, "setOn");
    gate.manager.blockActions();
    commands->trigger(kind);
    commands.reset();
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(gate.calls, QStringList());
    QCOMPARE(reports.texts(), QStringList());
    QVERIFY(gate.isOpen());
}

void tst_ActionManagerReplay::clearedCommand_isReportedAndNotCarriedOut()
{
    const TestSupport::AssertionReports reports;
    Gate gate;
    gate.manager.clear();
    gate.manager.blockActions();
    gate.plain.trigger();
    QCOMPARE(reports.texts().size(), 1);
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(reports.texts().size(), 2);
    QCOMPARE(gate.calls, QStringList());
}

void tst_ActionManagerReplay::clearedCommand_isNotReportedAThirdTime()
{
    const TestSupport::AssertionReports reports;
    Gate gate;
    gate.manager.clear();
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(reports.texts().size(), 2);

    gate.plain.trigger();
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    gate.fireTimer();
    QCOMPARE(reports.texts().size(), 2);
    QCOMPARE(gate.calls, QStringList());
    gate.otherPlain.trigger(); // each command is reported for itself
    QCOMPARE(reports.texts().size(), 3);
}

void tst_ActionManagerReplay::replay_comesASecondAfterTheUnblock()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    QElapsedTimer sinceUnblock;
    sinceUnblock.start();
    gate.manager.unBlockActions();
    QTRY_COMPARE(gate.calls, QStringList({u"run"_qs}));
    QVERIFY(sinceUnblock.elapsed() >= leastDelayMs);
    QTRY_VERIFY(!gate.isArmed()); // the carrying out has armed it again, for nothing
    QCOMPARE(gate.calls, QStringList({u"run"_qs}));
}

void tst_ActionManagerReplay::replay_ofAFlippedControl_comesASecondAfterTheUnblock()
{
    Gate gate;
    gate.manager.blockActions();
    gate.commands.row.clickButton();
    QVERIFY(!gate.commands.row.isButtonChecked());
    QElapsedTimer sinceUnblock;
    sinceUnblock.start();
    gate.manager.unBlockActions();
    QTRY_COMPARE(gate.calls, QStringList({u"setOn true"_qs}));
    QVERIFY(sinceUnblock.elapsed() >= leastDelayMs);
    QVERIFY(gate.commands.row.isButtonChecked());
}

void tst_ActionManagerReplay::replay_isDecidedByTheNewestUnblock()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    letArmedTimerBecomeOverdue();
    QElapsedTimer sinceNewest;
    sinceNewest.start();
    gate.manager.unBlockActions(); // one too many arms it anew, too
    QTRY_COMPARE(gate.calls, QStringList({u"run"_qs}));
    QVERIFY(sinceNewest.elapsed() >= leastDelayMs);
}

void tst_ActionManagerReplay::replay_isPutOffByTheNextBusyPhase()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    gate.manager.blockActions(); // within the second
    QVERIFY(!gate.isArmed());
    QElapsedTimer inSecondPhase;
    inSecondPhase.start();
    QVERIFY(QTest::qWaitFor([&inSecondPhase] { return inSecondPhase.elapsed() >= 1200; }));
    QCOMPARE(gate.calls, QStringList());

    QElapsedTimer sinceUnblock;
    sinceUnblock.start();
    gate.manager.unBlockActions();
    QTRY_COMPARE(gate.calls, QStringList({u"run"_qs}));
    QVERIFY(sinceUnblock.elapsed() >= leastDelayMs);
}

void tst_ActionManagerReplay::replay_isMovedByACommandThatComesBefore()
{
    Gate gate;
    gate.manager.blockActions();
    gate.plain.trigger();
    gate.manager.unBlockActions();
    letArmedTimerBecomeOverdue();
    QElapsedTimer sinceOther;
    sinceOther.start();
    gate.otherPlain.trigger(); // at once, ahead of the older one
    QCOMPARE(gate.calls, QStringList({u"runOther"_qs}));
    QTRY_COMPARE(gate.calls, QStringList({u"runOther"_qs, u"run"_qs}));
    QVERIFY(sinceOther.elapsed() >= leastDelayMs);
}

void tst_ActionManagerReplay::replay_outlivesTheManager()
{
    QStringList calls;
    ActionReceiver receiver(calls);
    auto manager = std::make_unique<CActionManager>();
    QAction action;
    manager->addAction(&action, &receiver, "run");
    manager->blockActions();
    action.trigger();
    manager->unBlockActions();
    manager.reset();
    action.trigger();

    Gate later; // its timer is armed after the one that has nobody left
    later.manager.unBlockActions();
    QTRY_VERIFY(!later.isArmed());
    QCOMPARE(calls, QStringList());
}

QTEST_MAIN(tst_ActionManagerReplay)
#include "tst_ActionManagerReplay.moc"
