// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "eventLoop/CallRecorder.h"
#include "eventLoop/ObjectCensus.h"
#include "eventLoop/RandomCalls.h"
#include "support/FreshProcess.h"

#include "utilsDll/eventLoop/DelayedCall.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QLibrary>
#include <QtCore/QScopeGuard>
#include <QtCore/QThread>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <atomic>
#include <barrier>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <thread>
#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr int farAway = 600'000; // ms; longer than any test takes

CDelayedCall &delayedCall()
{
    return Singleton<CDelayedCall>::instance();
}

/*! The earliest moment at which a coarse timer may fire; Windows' clock ticks each 16 ms. */
qint64 earliest(qint64 msec)
{
    return msec - msec / 20 - 16;
}

void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariantList &a)
{
    CDelayedCall &calls = delayedCall();
    switch (a.size()) {
    case 1:
        return calls.invokeWithArgs(msec, receiver, method, a[0]);
    case 2:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1]);
    case 3:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2]);
    case 4:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3]);
    case 5:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4]);
    case 6:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5]);
    case 7:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
    case 8:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]);
    case 9:
        return calls.invokeWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    default:
        return calls.invoke(msec, receiver, method, false);
    }
}

void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariantList &a)
{
    CDelayedCall &calls = delayedCall();
    switch (a.size()) {
    case 1:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0]);
    case 2:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1]);
    case 3:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2]);
    case 4:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3]);
    case 5:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4]);
    case 6:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5]);
    case 7:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
    case 8:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]);
    case 9:
        return calls.invokeSingleShotWithArgs(msec, receiver, method, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7],
                                              a[8]);
    default:
        return calls.invoke(msec, receiver, method, true);
    }
}

/*! The form of the call with as many arguments as there are; without any it is invoke(). */
void invoke(int msec, QObject *receiver, const char *method, bool isSingleShot, const QVariantList &arguments)
{
    if (isSingleShot) {
        invokeSingleShotWithArgs(msec, receiver, method, arguments);
    } else {
        invokeWithArgs(msec, receiver, method, arguments);
    }
}

/*! Handles events until a call that is asked for now has come after \a msec: what was due earlier has come too. */
bool handleEventsFor(int msec)
{
    CallRecorder marker;
    delayedCall().invoke(msec, &marker, "tick", true);
    return QTest::qWaitFor([&] { return marker.calls.size() == 1; }, 60'000);
}

/*! Runs \a work on a thread of its own, to its end. */
void runInThread(const std::function<void()> &work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->start();
    thread->wait();
}

/*! The calling thread's keeper of delayed calls, made just now. Needs a census. */
QObject *makeInvoker()
{
    CallRecorder receiver;
    delayedCall().invoke(farAway, &receiver, "tick", true);
    QObject *const invoker = ObjectCensus::latestMadeHere();
    delayedCall().discard(&receiver, nullptr);
    return invoker;
}

/*! The delayed calls of the thread on which it is made. */
class FrontEndSubject : public DelayedCallSubject
{
public:
    void schedule(int msec, QObject *receiver, const char *method, bool isSingleShot,
                  const QVariantList &arguments) override
    {
        invoke(msec, receiver, method, isSingleShot, arguments);
    }

    void discard(QObject *receiver, const char *method) override
    {
        delayedCall().discard(receiver, method);
    }

    bool isActive(QObject *receiver, const char *method) const override
    {
        return delayedCall().isActive(receiver, method);
    }

    QObject *timerOwner() const override
    {
        return m_invoker;
    }

private:
    QObject *const m_invoker = makeInvoker();
};

/*! Random calls whose times lie on a grid, so that it is clear which comes before which. */
class TimedCalls
{
public:
    explicit TimedCalls(quint32 seed)
        : m_random(seed)
    {
        m_clock.start();
        for (std::size_t i = 0; i < m_receivers.size(); ++i) {
            m_receivers[i].reaction = [this, i](const RecordedCall &call) { called(i, call); };
        }
    }

    /*! Asks for a call in place of an earlier one, or discards. */
    void request()
    {
        const std::size_t i = m_random() % m_receivers.size();
        const QByteArray method = m_random() % 2 == 0 ? "tick" : "call";
        const auto what = m_random() % 40;
        if (what == 0) {
            delayedCall().discard(&m_receivers[i], nullptr);
            m_pending.erase({i, "tick"});
            m_pending.erase({i, "call"});
            return;
        }
        if (what < 8) {
            delayedCall().discard(&m_receivers[i], method);
            m_pending.erase({i, method});
            return;
        }
        const QVariantList values{true, 2, 3.5};
        const QVariantList arguments = method == "call" ? values.first(qsizetype(m_random() % 4)) : QVariantList();
        const int msec = grid * int(m_random() % 5);
        const qint64 before = m_clock.elapsed();
        invoke(msec, &m_receivers[i], method == "call" ? "call" : "tick", true, arguments);
        m_pending[{i, method}] = {before + msec, m_clock.elapsed() + msec, arguments};
    }

    std::size_t pendingCount() const
    {
        return m_pending.size();
    }

    QStringList complaints() const
    {
        return m_complaints;
    }

private:
    struct Pending
    {
        qint64 earliestDue; // by m_clock read before the request
        qint64 latestDue; // by m_clock read after it
        QVariantList arguments;
    };

    static constexpr int grid = 200; // ms

    void called(std::size_t i, const RecordedCall &call)
    {
        const auto found = m_pending.find({i, call.method});
        if (found == m_pending.end()) {
            m_complaints.append(u"a call that was not pending"_qs);
            return;
        }
        const Pending pending = found->second;
        m_pending.erase(found);
        if (pending.arguments != call.arguments) {
            m_complaints.append(u"other arguments"_qs);
        }
        if (m_clock.elapsed() < earliest(pending.earliestDue)) {
            m_complaints.append(u"too early"_qs);
        }
        if (pending.latestDue < m_dueSoFar - grid / 2) {
            m_complaints.append(u"a call that was due at %1 after one of %2"_qs.arg(pending.latestDue).arg(m_dueSoFar));
        }
        m_dueSoFar = std::max(m_dueSoFar, pending.earliestDue);
    }

    std::mt19937 m_random;
    QElapsedTimer m_clock;
    std::array<CallRecorder, 30> m_receivers;
    std::map<std::pair<std::size_t, QByteArray>, Pending> m_pending;
    qint64 m_dueSoFar = 0; // the latest of the earliest moments of those that have come
    QStringList m_complaints;
};

} // namespace

class tst_DelayedCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void instance_isOneForAllModules();
    void invoke_withoutReceiverOrMethod_doesNothing();
    void invoke_inEachForm_bringsItsArgumentsInOrder_data();
    void invoke_inEachForm_bringsItsArgumentsInOrder();
    void invoke_again_countsTheDelayAnew();
    void invoke_again_newestWins_data();
    void invoke_again_newestWins();
    void invoke_withZeroDelay_comesWithTheNextPass();
    void invoke_withNegativeDelay_endsThePendingCall();
    void repeatingCall_comesUntilItIsDiscarded();
    void repeatingCall_keepsItsIntervalBetweenCalls();
    void isActive_insideTheSlot_data();
    void isActive_insideTheSlot();
    void isActive_withoutReceiverOrMethod_isFalse();
    void discard_withNullMethod_leavesOtherReceiversAlone();
    void discard_withNullReceiver_doesNothing();
    void slot_thatInvokesItselfAnew_comesAgain();
    void slot_withNestedEventLoop_isNotCalledInside();
    void slot_thatDeletesItsReceiver_isTheLast();
    void receiver_thatDiesBeforeItsCall_isNotCalled();
    void receiver_onAnotherThread_isCalledThere();
    void invoker_isMadeByTheFirstInvokeOnAThread();
    void invoker_goesWithItsThreadAndItsPendingCalls();
    void otherThread_neitherSeesNorDiscards();
    void twoThreads_callAtOnce();
    void threadWithoutEventDispatcher_losesTheCall();
    void pendingCalls_atProcessExit_areDropped();
    void randomCalls_bySentTimerEvents_agreeWithTheModel_data();
    void randomCalls_bySentTimerEvents_agreeWithTheModel();
    void randomCalls_inTheEventLoop_comeInOrderOfTime_data();
    void randomCalls_inTheEventLoop_comeInOrderOfTime();
};

void tst_DelayedCall::instance_isOneForAllModules()
{
    QLibrary module(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(DELAYED_CALL_MODULE)));
    QVERIFY2(module.load(), qPrintable(module.errorString()));
    const auto address = reinterpret_cast<const void *(*)()>(module.resolve("delayedCallOfModule"));
    const auto invokeThere
        = reinterpret_cast<void (*)(int, QObject *, const char *)>(module.resolve("invokeFromModule"));
    QVERIFY(address != nullptr);
    QVERIFY(invokeThere != nullptr);
    QCOMPARE(address(), static_cast<const void *>(&delayedCall()));

    CallRecorder receiver;
    invokeThere(0, &receiver, "tick");
    QVERIFY(delayedCall().isActive(&receiver, "tick"));
    QTRY_COMPARE(receiver.calls.size(), 1);
    invokeThere(farAway, &receiver, "tick");
    delayedCall().discard(&receiver, "tick");
    QVERIFY(!delayedCall().isActive(&receiver, "tick"));
}

void tst_DelayedCall::invoke_withoutReceiverOrMethod_doesNothing()
{
    const ObjectCensus census;
    bool isDead = true;
    runInThread([&] {
        CallRecorder receiver;
        const QVariantList nine(9, true);
        const int before = ObjectCensus::madeHere();
        for (qsizetype count = 0; count <= 9; ++count) {
            for (const bool isSingleShot : {true, false}) {
                invoke(0, nullptr, "tick", isSingleShot, nine.first(count));
                invoke(0, &receiver, nullptr, isSingleShot, nine.first(count));
                invoke(0, nullptr, nullptr, isSingleShot, nine.first(count));
            }
        }
        isDead = ObjectCensus::madeHere() == before && receiver.calls.isEmpty();
    });
    QVERIFY(isDead); // not even an object that would keep the calls
}

void tst_DelayedCall::invoke_inEachForm_bringsItsArgumentsInOrder_data()
{
    QTest::addColumn<bool>("isSingleShot");
    QTest::addColumn<int>("count");
    QTest::newRow("invoke, single shot") << true << 0;
    QTest::newRow("invoke, repeating") << false << 0;
    for (int count = 1; count <= 9; ++count) {
        QTest::addRow("invokeSingleShotWithArgs, %d", count) << true << count;
        QTest::addRow("invokeWithArgs repeats, %d", count) << false << count;
    }
}

void tst_DelayedCall::invoke_inEachForm_bringsItsArgumentsInOrder()
{
    QFETCH(const bool, isSingleShot);
    QFETCH(const int, count);
    const QVariantList all{
        true, 42,     2.5,      u"\u0444\u043e\u0442\u043e"_qs, QVariant::fromValue<QObject *>(this), false,
        -7,   -0.125, QString()};
    const RecordedCall expected{"call", all.first(count)};
    CallRecorder receiver;
    invoke(1, &receiver, "call", isSingleShot, expected.arguments);
    QVERIFY(delayedCall().isActive(&receiver, "call"));
    QVERIFY(receiver.calls.isEmpty());
    if (isSingleShot) {
        QTRY_COMPARE(receiver.calls.size(), 1);
        QVERIFY(!delayedCall().isActive(&receiver, "call"));
        QVERIFY(handleEventsFor(10));
        QCOMPARE(receiver.calls, QList<RecordedCall>{expected});
        return;
    }
    QTRY_VERIFY(receiver.calls.size() >= 3);
    QVERIFY(delayedCall().isActive(&receiver, "call"));
    delayedCall().discard(&receiver, "call");
    const qsizetype calls = receiver.calls.size();
    QVERIFY(handleEventsFor(10));
    QCOMPARE(receiver.calls, QList<RecordedCall>(calls, expected));
}

void tst_DelayedCall::invoke_again_countsTheDelayAnew()
{
    constexpr int msec = 300;
    CallRecorder receiver;
    delayedCall().invoke(msec, &receiver, "tick", true);
    QThread::msleep(100); // no events: on a slow machine, too, the first is still pending
    QElapsedTimer sinceSecond;
    sinceSecond.start();
    delayedCall().invoke(msec, &receiver, "tick", true);
    QTRY_COMPARE(receiver.calls.size(), 1);
    QVERIFY2(sinceSecond.elapsed() >= earliest(msec), qPrintable(QString::number(sinceSecond.elapsed())));
    QVERIFY(!delayedCall().isActive(&receiver, "tick"));
    QVERIFY(handleEventsFor(2 * msec));
    QCOMPARE(receiver.calls.size(), 1);
}

void tst_DelayedCall::invoke_again_newestWins_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::newRow("single shot, then single shot") << true << true;
    QTest::newRow("single shot, then repeating") << true << false;
    QTest::newRow("repeating, then single shot") << false << true;
    QTest::newRow("repeating, then repeating") << false << false;
}

void tst_DelayedCall::invoke_again_newestWins()
{
    QFETCH(const bool, first);
    QFETCH(const bool, second);
    CallRecorder receiver;
    const QByteArray sameName("call");
    invoke(0, &receiver, "call", first, {true, 1});
    invoke(0, &receiver, sameName.constData(), second, {false});
    QTRY_VERIFY(!receiver.calls.isEmpty());
    QVERIFY(handleEventsFor(20));
    QCOMPARE(receiver.calls.size() > 1, !second);
    QCOMPARE(receiver.calls, QList<RecordedCall>(receiver.calls.size(), {"call", {false}}));
    QCOMPARE(delayedCall().isActive(&receiver, "call"), !second);
    delayedCall().discard(&receiver, "call");
    QVERIFY(!delayedCall().isActive(&receiver, "call")); // there was one only
}

void tst_DelayedCall::invoke_withZeroDelay_comesWithTheNextPass()
{
    CallRecorder receiver;
    for (int round = 1; round <= 20; ++round) {
        delayedCall().invoke(0, &receiver, "tick", true);
        QCOMPARE(receiver.calls.size(), round - 1);
        QVERIFY(delayedCall().isActive(&receiver, "tick"));
        QCoreApplication::processEvents();
        QCOMPARE(receiver.calls.size(), round);
    }
}

void tst_DelayedCall::invoke_withNegativeDelay_endsThePendingCall()
{
    CallRecorder receiver;
    delayedCall().invoke(20, &receiver, "tick", true);
    delayedCall().invoke(20, &receiver, "tock", true);
    delayedCall().invoke(-1, &receiver, "tick", true);
    QVERIFY(!delayedCall().isActive(&receiver, "tick"));
    QTRY_COMPARE(receiver.count("tock"), 1);
    QVERIFY(handleEventsFor(40));
    QCOMPARE(receiver.count("tick"), 0);
}

void tst_DelayedCall::repeatingCall_comesUntilItIsDiscarded()
{
    constexpr int msec = 200;
    CallRecorder receiver;
    QElapsedTimer sinceStart;
    sinceStart.start();
    delayedCall().invoke(msec, &receiver, "changeImage", false);
    for (int round = 1; round <= 3; ++round) {
        QTRY_VERIFY(receiver.calls.size() >= round);
        QVERIFY(delayedCall().isActive(&receiver, "changeImage"));
    }
    // by its own beat, which a late call does not move
    QVERIFY(sinceStart.elapsed() >= earliest(receiver.calls.size() * msec));
    delayedCall().discard(&receiver, "changeImage");
    const qsizetype calls = receiver.calls.size();
    QVERIFY(!delayedCall().isActive(&receiver, "changeImage"));
    QVERIFY(handleEventsFor(3 * msec));
    QCOMPARE(receiver.calls, QList<RecordedCall>(calls, {"changeImage", {}}));
}

void tst_DelayedCall::repeatingCall_keepsItsIntervalBetweenCalls()
{
    const ObjectCensus census;
    QList<int> intervals;
    qsizetype calls = 0;
    runInThread([&] { // of whose timers all are the test's own
        QObject *const invoker = makeInvoker();
        const auto note = [&] {
            for (const auto &timer : QAbstractEventDispatcher::instance()->registeredTimers(invoker)) {
                intervals.append(timer.interval);
            }
        };
        CallRecorder receiver;
        QEventLoop loop;
        receiver.reaction = [&](const RecordedCall & /*call*/) {
            note();
            loop.quit();
        };
        delayedCall().invoke(200, &receiver, "changeImage", false);
        note();
        loop.exec();
        loop.exec();
        delayedCall().discard(&receiver, "changeImage");
        note();
        calls = receiver.calls.size();
    });
    QCOMPARE(intervals, QList<int>(3, 200));
    QCOMPARE(calls, 2);
}

void tst_DelayedCall::isActive_insideTheSlot_data()
{
    QTest::addColumn<bool>("isSingleShot");
    QTest::addColumn<bool>("isActive");
    QTest::newRow("single shot") << true << false;
    QTest::newRow("repeating") << false << true;
}

void tst_DelayedCall::isActive_insideTheSlot()
{
    QFETCH(const bool, isSingleShot);
    QFETCH(const bool, isActive);
    CallRecorder receiver;
    std::optional<bool> found;
    receiver.reaction = [&](const RecordedCall & /*call*/) { found = delayedCall().isActive(&receiver, "tick"); };
    delayedCall().invoke(0, &receiver, "tick", isSingleShot);
    QTRY_VERIFY(found.has_value());
    delayedCall().discard(&receiver, nullptr);
    QCOMPARE(*found, isActive);
}

void tst_DelayedCall::isActive_withoutReceiverOrMethod_isFalse()
{
    CallRecorder receiver;
    CallRecorder other;
    delayedCall().invoke(farAway, &receiver, "tick", true);
    QVERIFY(delayedCall().isActive(&receiver, "tick"));
    QVERIFY(!delayedCall().isActive(&receiver, nullptr));
    QVERIFY(!delayedCall().isActive(nullptr, "tick"));
    QVERIFY(!delayedCall().isActive(nullptr, nullptr));
    QVERIFY(!delayedCall().isActive(&receiver, "tock"));
    QVERIFY(!delayedCall().isActive(&other, "tick"));
}

void tst_DelayedCall::discard_withNullMethod_leavesOtherReceiversAlone()
{
    CallRecorder receiver;
    CallRecorder other;
    for (const char *method : {"tick", "tock", "call"}) {
        delayedCall().invoke(0, &receiver, method, true);
        delayedCall().invoke(0, &other, method, true);
    }
    delayedCall().discard(&receiver, nullptr);
    QTRY_COMPARE(other.calls, (QList<RecordedCall>{{"tick", {}}, {"tock", {}}, {"call", {}}}));
    QVERIFY(handleEventsFor(10));
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedCall::discard_withNullReceiver_doesNothing()
{
    CallRecorder receiver;
    delayedCall().invoke(0, &receiver, "tick", true);
    delayedCall().discard(nullptr, "tick");
    delayedCall().discard(nullptr, nullptr);
    QTRY_COMPARE(receiver.calls.size(), 1);
}

void tst_DelayedCall::slot_thatInvokesItselfAnew_comesAgain()
{
    CallRecorder receiver;
    receiver.reaction = [&](const RecordedCall &call) {
        const int round = call.arguments.value(1).toInt();
        if (round < 5) {
            delayedCall().invokeSingleShotWithArgs(1, &receiver, "call", true, round + 1);
        }
    };
    delayedCall().invokeSingleShotWithArgs(1, &receiver, "call", true, 1);
    QTRY_COMPARE(receiver.calls.size(), 5);
    QVERIFY(handleEventsFor(20));
    QCOMPARE(receiver.calls.size(), 5);
    for (int round = 1; round <= 5; ++round) {
        QCOMPARE(receiver.calls.at(round - 1).arguments, (QVariantList{true, round}));
    }
    QVERIFY(!delayedCall().isActive(&receiver, "call"));
}

void tst_DelayedCall::slot_withNestedEventLoop_isNotCalledInside()
{
    CallRecorder receiver;
    QEventLoop nested;
    receiver.reaction = [&](const RecordedCall &call) {
        if (call.method == "tick") {
            nested.exec();
        } else {
            nested.quit();
        }
    };
    delayedCall().invoke(1, &receiver, "tick", true);
    delayedCall().invoke(100, &receiver, "tock", true);
    QTRY_COMPARE(receiver.calls.size(), 2);
    QVERIFY(handleEventsFor(20));
    QCOMPARE(receiver.calls, (QList<RecordedCall>{{"tick", {}}, {"tock", {}}}));
}

void tst_DelayedCall::slot_thatDeletesItsReceiver_isTheLast()
{
    std::optional<CallRecorder> receiver(std::in_place);
    QList<QByteArray> called;
    receiver->reaction = [&](const RecordedCall &call) {
        called.append(call.method);
        receiver.reset();
    };
    delayedCall().invoke(0, &*receiver, "tick", true);
    delayedCall().invoke(0, &*receiver, "tock", true);
    QTRY_VERIFY(!called.isEmpty());
    QVERIFY(handleEventsFor(10));
    QCOMPARE(called, QList<QByteArray>{"tick"});
}

void tst_DelayedCall::receiver_thatDiesBeforeItsCall_isNotCalled()
{
    std::optional<CallRecorder> receiver(std::in_place);
    int calls = 0;
    const auto count = [&](const RecordedCall & /*call*/) { ++calls; };
    receiver->reaction = count;
    delayedCall().invoke(0, &*receiver, "tick", true);
    receiver.reset();
    receiver.emplace(); // at the same address
    receiver->reaction = count;
    QVERIFY(!delayedCall().isActive(&*receiver, "tick"));
    QVERIFY(handleEventsFor(10));
    QCOMPARE(calls, 0);
    delayedCall().invoke(0, &*receiver, "tick", true);
    QTRY_COMPARE(calls, 1);
}

void tst_DelayedCall::receiver_onAnotherThread_isCalledThere()
{
    QThread thread;
    CallRecorder receiver;
    std::atomic<QThread *> calledOn = nullptr;
    const auto end = qScopeGuard([&thread] {
        thread.quit();
        thread.wait();
    });
    thread.start();
    receiver.moveToThread(&thread);
    receiver.reaction = [&](const RecordedCall & /*call*/) { calledOn = QThread::currentThread(); };
    const QVariantList arguments{true, 2, 3.5, u"four"_qs};
    invoke(0, &receiver, "call", true, arguments);
    QTRY_VERIFY(calledOn != nullptr);
    thread.quit();
    QVERIFY(thread.wait());
    QCOMPARE(calledOn.load(), &thread);
    QCOMPARE(receiver.calls, (QList<RecordedCall>{{"call", arguments}}));
}

void tst_DelayedCall::invoker_isMadeByTheFirstInvokeOnAThread()
{
    const ObjectCensus census;
    CallRecorder receiver;
    QList<int> made;
    bool isActive = true;
    runInThread([&] {
        int before = ObjectCensus::madeHere();
        const auto note = [&] {
            made.append(ObjectCensus::madeHere() - before);
            before = ObjectCensus::madeHere();
        };
        delayedCall().discard(&receiver, "tick");
        delayedCall().discard(&receiver, nullptr);
        note();
        isActive = delayedCall().isActive(&receiver, "tick");
        note();
        delayedCall().invoke(farAway, &receiver, "tick", true);
        note();
        delayedCall().invoke(farAway, &receiver, "tock", true);
        delayedCall().discard(&receiver, nullptr);
        note();
    });
    QCOMPARE(made, (QList<int>{0, 0, 1, 0}));
    QVERIFY(!isActive);
}

void tst_DelayedCall::invoker_goesWithItsThreadAndItsPendingCalls()
{
    const ObjectCensus census;
    CallRecorder receiver;
    const auto value = std::make_shared<int>(1);
    bool wasThere = false;
    long usesBefore = 0;
    runInThread([&] {
        ObjectCensus::watch(makeInvoker());
        delayedCall().invokeWithArgs(farAway, &receiver, "call", QVariant::fromValue(value));
        delayedCall().invoke(0, &receiver, "tick", true);
        wasThere = !ObjectCensus::isWatchedGone();
        usesBefore = value.use_count();
    });
    QVERIFY(wasThere);
    QVERIFY(usesBefore > 1);
    QVERIFY(ObjectCensus::isWatchedGone());
    QCOMPARE(value.use_count(), 1L);
    QVERIFY(handleEventsFor(10));
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedCall::otherThread_neitherSeesNorDiscards()
{
    CallRecorder receiver;
    delayedCall().invoke(0, &receiver, "tick", true);
    bool isSeen = true;
    runInThread([&] {
        isSeen = delayedCall().isActive(&receiver, "tick");
        delayedCall().invoke(farAway, &receiver, "tock", true); // so that this thread keeps calls, too
        isSeen = isSeen || delayedCall().isActive(&receiver, "tick");
        delayedCall().discard(&receiver, "tick");
        delayedCall().discard(&receiver, nullptr);
    });
    QVERIFY(!isSeen);
    QVERIFY(delayedCall().isActive(&receiver, "tick"));
    QTRY_COMPARE(receiver.count("tick"), 1);
    QCOMPARE(receiver.count("tock"), 0);
}

void tst_DelayedCall::twoThreads_callAtOnce()
{
    constexpr int rounds = 200;
    std::barrier start(2);
    std::array<int, 2> counts{};
    const auto work = [&start](int &count) {
        CallRecorder receiver;
        QEventLoop loop;
        receiver.reaction = [&](const RecordedCall &call) {
            if (call.arguments != QVariantList{true, int(receiver.calls.size())}) {
                return loop.exit(1);
            }
            if (receiver.calls.size() == rounds) {
                return loop.quit();
            }
            invoke(0, &receiver, "call", true, {false});
            invoke(0, &receiver, "call", true, {true, int(receiver.calls.size()) + 1});
        };
        start.arrive_and_wait();
        invoke(0, &receiver, "call", true, {true, 1});
        loop.exec();
        count = int(receiver.calls.size());
    };
    const std::unique_ptr<QThread> first(QThread::create([&] { work(counts[0]); }));
    const std::unique_ptr<QThread> second(QThread::create([&] { work(counts[1]); }));
    first->start();
    second->start();
    first->wait();
    second->wait();
    QCOMPARE(counts, (std::array{rounds, rounds}));
}

void tst_DelayedCall::threadWithoutEventDispatcher_losesTheCall()
{
    CallRecorder receiver;
    bool isActive = true;
    QTest::ignoreMessage(QtWarningMsg,
                         "QObject::startTimer: Timers can only be used with threads started with QThread");
    std::thread thread([&] {
        delayedCall().invoke(0, &receiver, "tick", true);
        isActive = delayedCall().isActive(&receiver, "tick");
        delayedCall().discard(&receiver, nullptr);
    });
    thread.join();
    QVERIFY(!isActive);
    QVERIFY(handleEventsFor(10));
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedCall::pendingCalls_atProcessExit_areDropped()
{
    RUN_IN_FRESH_PROCESS();
    static const ObjectCensus census;
    static CallRecorder receiver;
    static const auto checkAtExit = qScopeGuard([] { // when the application object has gone
        if (!ObjectCensus::isWatchedGone() || !receiver.calls.isEmpty()) {
            std::_Exit(EXIT_FAILURE);
        }
    });
    ObjectCensus::watch(makeInvoker());
    delayedCall().invoke(0, &receiver, "tick", true);
    delayedCall().invokeWithArgs(farAway, &receiver, "call", u"text"_qs);
    QVERIFY(delayedCall().isActive(&receiver, "call"));
    QVERIFY(!ObjectCensus::isWatchedGone());
}

void tst_DelayedCall::randomCalls_bySentTimerEvents_agreeWithTheModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {5U, 66U, 777U, 8888U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void tst_DelayedCall::randomCalls_bySentTimerEvents_agreeWithTheModel()
{
    QFETCH(const quint32, seed);
    constexpr int steps = 3000;
    qInfo("seed %u", seed);
    const ObjectCensus census;
    QString difference;
    qsizetype firings = 0;
    runInThread([&] { // where no event loop runs, and what is left ends with the thread
        FrontEndSubject subject;
        RandomCalls random(subject, seed);
        for (int step = 0; step < steps && difference.isEmpty(); ++step) {
            difference = random.step();
        }
        firings = random.firings();
    });
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
    QVERIFY(firings > steps / 4);
}

void tst_DelayedCall::randomCalls_inTheEventLoop_comeInOrderOfTime_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::newRow("seed 9") << 9U;
    QTest::newRow("seed 1010") << 1010U;
}

void tst_DelayedCall::randomCalls_inTheEventLoop_comeInOrderOfTime()
{
    QFETCH(const quint32, seed);
    qInfo("seed %u", seed);
    TimedCalls calls(seed);
    for (int step = 0; step < 1000; ++step) {
        calls.request();
    }
    QVERIFY(calls.pendingCount() > 10);
    QTRY_COMPARE(calls.pendingCount(), std::size_t(0));
    QVERIFY(handleEventsFor(100));
    QCOMPARE(calls.complaints(), QStringList());
}

QTEST_GUILESS_MAIN(tst_DelayedCall)
#include "tst_DelayedCall.moc"
