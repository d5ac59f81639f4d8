// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/UserInput.h"
#include "support/VirtualSlot.h"

#include "utilsDll/eventLoop/ExcludeUserInputEventLoop.h"
#include "utilsDll/eventLoop/Waits.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <algorithm>
#include <atomic>
#include <functional>
#include <limits>
#include <memory>
#include <stdexcept>
#include <thread>
#include <type_traits>

using TestSupport::EventRecorder;
using TestSupport::MouseWindow;

static_assert(std::is_abstract_v<ICustomWaitPredicate>);
static_assert(std::has_virtual_destructor_v<ICustomWaitPredicate>);
static_assert(std::is_copy_assignable_v<ICustomWaitPredicate>);
static_assert(std::is_copy_constructible_v<CAtomicIntWaitPredicate>);

namespace {

constexpr int smallestInt = std::numeric_limits<int>::min();
constexpr int largestInt = std::numeric_limits<int>::max();

/*! Answers as it is told, and counts how often it is asked. */
class Predicate : public ICustomWaitPredicate
{
public:
    explicit Predicate(std::function<bool()> answer)
        : m_answer(std::move(answer))
    {
    }

    bool done() const override
    {
        ++m_asked;
        return m_answer();
    }

    int asked() const
    {
        return m_asked;
    }

private:
    std::function<bool()> m_answer;
    mutable int m_asked = 0;
};

Predicate doneAtOnce()
{
    return Predicate([] { return true; });
}

void post(QObject &receiver, QEvent::Type type = QEvent::User)
{
    QCoreApplication::postEvent(&receiver, std::make_unique<QEvent>(type).release());
}

/*! How many filters the application has. */
qsizetype filterCount()
{
    const QObjectList children = QCoreApplication::instance()->children();
    return std::count_if(children.begin(), children.end(), [](const QObject *child) {
        return dynamic_cast<const CExcludeUserInpuEventsFilter *>(child) != nullptr;
    });
}

/*! Whether a non-blocking wait gets as far as its predicate. */
bool canWait()
{
    const Predicate predicate = doneAtOnce();
    waitNonBlocking(predicate, false);
    return predicate.asked() == 1;
}

/*! Lets \a steps run within a non-blocking wait, in an event handler, and the wait end afterwards. */
void waitWith(bool excludeUserInput, const std::function<void()> &steps)
{
    bool isDone = false;
    QTimer::singleShot(0, qApp, [&] {
        steps();
        isDone = true;
    });
    waitNonBlocking(Predicate([&isDone] { return isDone; }), excludeUserInput);
}

void addExcludeRows()
{
    QTest::addColumn<bool>("excludeUserInput");

    QTest::newRow("user input held out") << true;
    QTest::newRow("user input let through") << false;
}

} // namespace

class tst_Waits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void predicate_doneIsTheFirstOperation();
    void predicate_canBeCopiedAndAssigned();
    void atomicPredicate_done_data();
    void atomicPredicate_done();
    void atomicPredicate_copy_watchesTheSameValue();

    void waitBlocking_withPredicateDone_asksOnce();
    void waitBlocking_asksUntilDone();
    void waitBlocking_handlesNoEvents();
    void waitBlocking_endsByAnotherThread();
    void waitBlocking_onAnotherThread_works();
    void waitBlocking_duringNonBlockingWait_waits();
    void waitBlocking_leftByException_passesItOn();
    void waitBlockingAtomicIntValue_withValueReached_returns_data();
    void waitBlockingAtomicIntValue_withValueReached_returns();
    void waitBlockingAtomicIntValue_endsByAnotherThread();

    void waitNonBlocking_withPredicateDone_handlesNoEvents_data();
    void waitNonBlocking_withPredicateDone_handlesNoEvents();
    void waitNonBlocking_handlesEventsUntilDone_data();
    void waitNonBlocking_handlesEventsUntilDone();
    void waitNonBlocking_endsByAnotherThread_data();
    void waitNonBlocking_endsByAnotherThread();
    void waitNonBlocking_hasFilterOnTheApplicationMeanwhile_data();
    void waitNonBlocking_hasFilterOnTheApplicationMeanwhile();
    void waitNonBlocking_ofSentAndPostedEvents_data();
    void waitNonBlocking_ofSentAndPostedEvents();
    void waitNonBlocking_withInputHeldOut_leavesPlatformInputQueued();
    void waitNonBlocking_withInputLetThrough_handlesPlatformInput();
    void waitNonBlocking_nestedInEventHandler_returnsAtOnceThoughNotDone_data();
    void waitNonBlocking_nestedInEventHandler_returnsAtOnceThoughNotDone();
    void waitNonBlocking_nestedInPredicate_returnsAtOnceThoughNotDone();
    void waitNonBlocking_fromAnotherThreadMeanwhile_returnsAtOnceThoughNotDone();
    void waitNonBlocking_canBeRepeated();
    void waitNonBlocking_leftByExceptionOfPredicate_canBeRepeated_data();
    void waitNonBlocking_leftByExceptionOfPredicate_canBeRepeated();
    void waitNonBlocking_leftByExceptionOfEventHandler_canBeRepeated_data();
    void waitNonBlocking_leftByExceptionOfEventHandler_canBeRepeated();
    void waitNonBlockingAtomicIntValue_withValueReached_handlesNoEvents_data();
    void waitNonBlockingAtomicIntValue_withValueReached_handlesNoEvents();
    void waitNonBlockingAtomicIntValue_handlesEventsUntilReached_data();
    void waitNonBlockingAtomicIntValue_handlesEventsUntilReached();
    void waitNonBlockingAtomicIntValue_nested_returnsAtOnceThoughNotReached();
};

void tst_Waits::predicate_doneIsTheFirstOperation()
{
    const auto slot = TestSupport::virtualSlot(&ICustomWaitPredicate::done);
    if (!slot) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(*slot, 0); // the destructor comes behind it
    QCOMPARE(*TestSupport::virtualSlot(&CAtomicIntWaitPredicate::done), 0);
}

void tst_Waits::predicate_canBeCopiedAndAssigned()
{
    const Predicate done = doneAtOnce();
    const auto copy = std::make_unique<Predicate>(done);
    QVERIFY(copy->done());

    Predicate assigned([] { return false; });
    QVERIFY(!assigned.done());
    assigned = done;
    QVERIFY(assigned.done());
}

void tst_Waits::atomicPredicate_done_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expected");
    QTest::addColumn<bool>("isDone");

    QTest::newRow("0 and 0") << 0 << 0 << true;
    QTest::newRow("1 and 1") << 1 << 1 << true;
    QTest::newRow("-1 and -1") << -1 << -1 << true;
    QTest::newRow("smallest and smallest") << smallestInt << smallestInt << true;
    QTest::newRow("largest and largest") << largestInt << largestInt << true;
    QTest::newRow("0 and 1") << 0 << 1 << false;
    QTest::newRow("2 and 1: more is not enough") << 2 << 1 << false;
    QTest::newRow("1 and -1") << 1 << -1 << false;
    QTest::newRow("smallest and largest") << smallestInt << largestInt << false;
}

void tst_Waits::atomicPredicate_done()
{
    QFETCH(int, value);
    QFETCH(int, expected);
    const QAtomicInt atomic(value);
    QTEST(CAtomicIntWaitPredicate(atomic, expected).done(), "isDone");
}

void tst_Waits::atomicPredicate_copy_watchesTheSameValue()
{
    QAtomicInt value(1);
    const CAtomicIntWaitPredicate predicate(value, 2);
    const auto copy = std::make_unique<CAtomicIntWaitPredicate>(predicate);
    QVERIFY(!predicate.done());
    QVERIFY(!copy->done());
    value.storeRelease(2);
    QVERIFY(predicate.done());
    QVERIFY(copy->done());
    value.storeRelease(3);
    QVERIFY(!predicate.done());
    QVERIFY(!copy->done());
}

void tst_Waits::waitBlocking_withPredicateDone_asksOnce()
{
    const Predicate predicate = doneAtOnce();
    waitBlocking(predicate);
    QCOMPARE(predicate.asked(), 1);
}

void tst_Waits::waitBlocking_asksUntilDone()
{
    int passes = 0;
    const Predicate predicate([&passes] { return ++passes == 4; });
    waitBlocking(predicate);
    QCOMPARE(predicate.asked(), 4);
}

void tst_Waits::waitBlocking_handlesNoEvents()
{
    EventRecorder receiver;
    post(receiver);
    int passes = 0;
    waitBlocking(Predicate([&passes] { return ++passes == 100; }));
    QCOMPARE(receiver.types, QList<int>());
    QCoreApplication::processEvents();
    QCOMPARE(receiver.types, QList<int>{QEvent::User});
}

void tst_Waits::waitBlocking_endsByAnotherThread()
{
    std::atomic_bool isDone = false;
    std::thread thread;
    const Predicate predicate([&] {
        if (!thread.joinable()) { // so the wait has begun
            thread = std::thread([&isDone] { isDone = true; });
            return false;
        }
        return isDone.load();
    });
    waitBlocking(predicate);
    thread.join();
    QVERIFY(isDone);
    QVERIFY(predicate.asked() >= 2);
}

void tst_Waits::waitBlocking_onAnotherThread_works()
{
    QAtomicInt value(0);
    int asked = 0;
    std::thread thread([&] {
        const Predicate predicate([&value] { return value.loadAcquire() == 1; });
        waitBlocking(predicate);
        asked = predicate.asked();
    });
    value.storeRelease(1);
    thread.join();
    QVERIFY(asked >= 1);
}

void tst_Waits::waitBlocking_duringNonBlockingWait_waits()
{
    int passes = 0;
    const Predicate inner([&passes] { return ++passes == 3; });
    waitWith(false, [&] { waitBlocking(inner); });
    QCOMPARE(inner.asked(), 3);
}

void tst_Waits::waitBlocking_leftByException_passesItOn()
{
    const Predicate throws([]() -> bool { throw std::runtime_error("from the predicate"); });
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, waitBlocking(throws));
    QCOMPARE(throws.asked(), 1);
}

void tst_Waits::waitBlockingAtomicIntValue_withValueReached_returns_data()
{
    QTest::addColumn<int>("value");

    QTest::newRow("0") << 0;
    QTest::newRow("1") << 1;
    QTest::newRow("-7") << -7;
}

void tst_Waits::waitBlockingAtomicIntValue_withValueReached_returns()
{
    QFETCH(int, value);
    const QAtomicInt atomic(value);
    EventRecorder receiver;
    post(receiver);
    waitBlockingAtomicIntValue(atomic, value);
    QCOMPARE(receiver.types, QList<int>());
}

void tst_Waits::waitBlockingAtomicIntValue_endsByAnotherThread()
{
    constexpr int expected = 1000;
    QAtomicInt value(0);
    std::thread thread([&value] {
        for (int i = 0; i < expected; ++i) {
            value.ref();
        }
    });
    waitBlockingAtomicIntValue(value, expected);
    QCOMPARE(value.loadAcquire(), expected);
    thread.join();
}

void tst_Waits::waitNonBlocking_withPredicateDone_handlesNoEvents_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlocking_withPredicateDone_handlesNoEvents()
{
    QFETCH(bool, excludeUserInput);
    EventRecorder receiver;
    post(receiver);
    qsizetype filtersMeanwhile = -1;
    const Predicate predicate([&filtersMeanwhile] {
        filtersMeanwhile = filterCount();
        return true;
    });
    waitNonBlocking(predicate, excludeUserInput);
    QCOMPARE(predicate.asked(), 1);
    QCOMPARE(receiver.types, QList<int>());
    QCOMPARE(filtersMeanwhile, excludeUserInput ? 1 : 0); // made also for a wait that is over at once
    QCOMPARE(filterCount(), 0);
}

void tst_Waits::waitNonBlocking_handlesEventsUntilDone_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlocking_handlesEventsUntilDone()
{
    QFETCH(bool, excludeUserInput);
    QStringList steps;
    EventRecorder receiver;
    receiver.reaction = [&steps] { steps.append(u"event"_qs); };
    post(receiver);
    waitNonBlocking(Predicate([&steps] {
                        steps.append(u"asked"_qs);
                        return steps.contains(u"event"_qs);
                    }),
                    excludeUserInput);
    QCOMPARE(steps.first(), u"asked"_qs);
    QCOMPARE(steps.mid(steps.size() - 2), QStringList({u"event"_qs, u"asked"_qs}));
}

void tst_Waits::waitNonBlocking_endsByAnotherThread_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlocking_endsByAnotherThread()
{
    QFETCH(bool, excludeUserInput);
    std::atomic_bool isDone = false;
    std::thread thread;
    waitNonBlocking(Predicate([&] {
                        if (!thread.joinable()) {
                            thread = std::thread([&isDone] { isDone = true; });
                            return false;
                        }
                        return isDone.load();
                    }),
                    excludeUserInput);
    thread.join();
    QVERIFY(isDone);
    QCOMPARE(filterCount(), 0);
}

void tst_Waits::waitNonBlocking_hasFilterOnTheApplicationMeanwhile_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlocking_hasFilterOnTheApplicationMeanwhile()
{
    QFETCH(bool, excludeUserInput);
    QList<qsizetype> counts{filterCount()};
    waitWith(excludeUserInput, [&counts] { counts.append(filterCount()); });
    counts.append(filterCount());
    QCOMPARE(counts, QList<qsizetype>({0, excludeUserInput ? 1 : 0, 0}));
}

void tst_Waits::waitNonBlocking_ofSentAndPostedEvents_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isPosted");
    QTest::addColumn<bool>("excludeUserInput");
    QTest::addColumn<bool>("isSeen");

    QTest::newRow("key sent, held out") << int(QEvent::KeyPress) << false << true << false;
    QTest::newRow("key posted, held out") << int(QEvent::KeyPress) << true << true << false;
    QTest::newRow("key sent, let through") << int(QEvent::KeyPress) << false << false << true;
    QTest::newRow("key posted, let through") << int(QEvent::KeyPress) << true << false << true;
    QTest::newRow("closing sent, held out") << int(QEvent::Close) << false << true << false;
    QTest::newRow("closing sent, let through") << int(QEvent::Close) << false << false << true;
    QTest::newRow("release sent, though held out") << int(QEvent::MouseButtonRelease) << false << true << true;
    QTest::newRow("release posted, though held out") << int(QEvent::MouseButtonRelease) << true << true << true;
    QTest::newRow("timer sent, though held out") << int(QEvent::Timer) << false << true << true;
}

void tst_Waits::waitNonBlocking_ofSentAndPostedEvents()
{
    QFETCH(int, type);
    QFETCH(bool, isPosted);
    QFETCH(bool, excludeUserInput);
    EventRecorder receiver;
    waitWith(excludeUserInput, [&] {
        QEvent event{QEvent::Type(type)};
        if (isPosted) {
            post(receiver, event.type());
            QCoreApplication::sendPostedEvents(&receiver);
        } else {
            QCoreApplication::sendEvent(&receiver, &event);
        }
    });
    QCoreApplication::processEvents(); // what was swallowed does not come later
    QTEST(receiver.types.contains(type), "isSeen");
}

void tst_Waits::waitNonBlocking_withInputHeldOut_leavesPlatformInputQueued()
{
    MouseWindow window;
    QVERIFY(window.showUnderCursor());
    window.queueMove();
    int passes = 0;
    waitNonBlocking(Predicate([&passes] { return ++passes == 20; }), true);
    QCOMPARE(window.moves, 0);
    post(window); // GLib's dispatcher does not look for input left in the queue before it is woken
    QTRY_COMPARE(window.moves, 1); // so it was not swallowed
}

void tst_Waits::waitNonBlocking_withInputLetThrough_handlesPlatformInput()
{
    MouseWindow window;
    QVERIFY(window.showUnderCursor());
    window.queueMove();
    QCOMPARE(window.moves, 0);
    waitNonBlocking(Predicate([&window] { return window.moves > 0; }), false);
    QCOMPARE(window.moves, 1);
}

void tst_Waits::waitNonBlocking_nestedInEventHandler_returnsAtOnceThoughNotDone_data()
{
    QTest::addColumn<bool>("outerExcludes");
    QTest::addColumn<bool>("innerExcludes");

    QTest::newRow("neither holds input out") << false << false;
    QTest::newRow("the outer holds input out") << true << false;
    QTest::newRow("the inner would hold input out") << false << true;
    QTest::newRow("both would hold input out") << true << true;
}

void tst_Waits::waitNonBlocking_nestedInEventHandler_returnsAtOnceThoughNotDone()
{
    QFETCH(bool, outerExcludes);
    QFETCH(bool, innerExcludes);
    EventRecorder receiver;
    QList<int> handledByInner;
    qsizetype filters = -1;
    const Predicate inner([] { return false; });
    waitWith(outerExcludes, [&] {
        post(receiver);
        waitNonBlocking(inner, innerExcludes);
        handledByInner = receiver.types;
        waitNonBlocking(inner, innerExcludes); // the marker is still the outer one's
        filters = filterCount();
    });
    QCOMPARE(inner.asked(), 0);
    QCOMPARE(handledByInner, QList<int>());
    QCOMPARE(filters, outerExcludes ? 1 : 0);
    QVERIFY(canWait());
}

void tst_Waits::waitNonBlocking_nestedInPredicate_returnsAtOnceThoughNotDone()
{
    const Predicate inner([] { return false; });
    const Predicate outer([&inner] {
        waitNonBlocking(inner, true);
        return true;
    });
    waitNonBlocking(outer, false);
    QCOMPARE(outer.asked(), 1);
    QCOMPARE(inner.asked(), 0);
}

void tst_Waits::waitNonBlocking_fromAnotherThreadMeanwhile_returnsAtOnceThoughNotDone()
{
    const Predicate other([] { return false; });
    qsizetype filters = -1;
    const Predicate outer([&] {
        std::thread([&other] { waitNonBlocking(other, true); }).join();
        filters = filterCount();
        return true;
    });
    waitNonBlocking(outer, false);
    QCOMPARE(outer.asked(), 1);
    QCOMPARE(other.asked(), 0);
    QCOMPARE(filters, 0);
    QVERIFY(canWait());
}

void tst_Waits::waitNonBlocking_canBeRepeated()
{
    for (const bool excludeUserInput : {true, false, true}) {
        int passes = 0;
        const Predicate predicate([&passes] { return ++passes == 3; });
        waitNonBlocking(predicate, excludeUserInput);
        QCOMPARE(predicate.asked(), 3);
    }
}

void tst_Waits::waitNonBlocking_leftByExceptionOfPredicate_canBeRepeated_data()
{
    QTest::addColumn<bool>("excludeUserInput");
    QTest::addColumn<int>("throwingPass");

    QTest::newRow("held out, asked first") << true << 1;
    QTest::newRow("held out, asked again") << true << 3;
    QTest::newRow("let through, asked first") << false << 1;
    QTest::newRow("let through, asked again") << false << 3;
}

void tst_Waits::waitNonBlocking_leftByExceptionOfPredicate_canBeRepeated()
{
    QFETCH(bool, excludeUserInput);
    QFETCH(int, throwingPass);
    int passes = 0;
    const Predicate predicate([&] {
        if (++passes == throwingPass) {
            throw std::runtime_error("from the predicate");
        }
        return false;
    });
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, waitNonBlocking(predicate, excludeUserInput));
    QCOMPARE(predicate.asked(), throwingPass);
    QCOMPARE(filterCount(), 0);
    QVERIFY(canWait());
}

void tst_Waits::waitNonBlocking_leftByExceptionOfEventHandler_canBeRepeated_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlocking_leftByExceptionOfEventHandler_canBeRepeated()
{
    RUN_IN_FRESH_PROCESS(); // what the platform's dispatcher makes of it is not other tests' concern
    QFETCH(bool, excludeUserInput);
    EventRecorder receiver;
    receiver.reaction = [] { throw std::runtime_error("from an event handler"); };
    post(receiver);
    const Predicate predicate([] { return false; });
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, waitNonBlocking(predicate, excludeUserInput));
    QVERIFY(predicate.asked() >= 1);
    QCOMPARE(filterCount(), 0);
    QVERIFY(canWait());
}

void tst_Waits::waitNonBlockingAtomicIntValue_withValueReached_handlesNoEvents_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlockingAtomicIntValue_withValueReached_handlesNoEvents()
{
    QFETCH(bool, excludeUserInput);
    const QAtomicInt value(-3);
    EventRecorder receiver;
    post(receiver);
    waitNonBlockingAtomicIntValue(value, -3, excludeUserInput);
    QCOMPARE(receiver.types, QList<int>());
    QCOMPARE(filterCount(), 0);
}

void tst_Waits::waitNonBlockingAtomicIntValue_handlesEventsUntilReached_data()
{
    addExcludeRows();
}

void tst_Waits::waitNonBlockingAtomicIntValue_handlesEventsUntilReached()
{
    QFETCH(bool, excludeUserInput);
    QAtomicInt value(0);
    EventRecorder keys;
    bool isKeySeen = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        QEvent event(QEvent::KeyPress);
        QCoreApplication::sendEvent(&keys, &event);
        isKeySeen = keys.types.contains(QEvent::KeyPress);
        value.ref();
    });
    timer.start(0);
    waitNonBlockingAtomicIntValue(value, 3, excludeUserInput);
    QCOMPARE(value.loadAcquire(), 3);
    QCOMPARE(isKeySeen, !excludeUserInput);
    QCOMPARE(filterCount(), 0);
}

void tst_Waits::waitNonBlockingAtomicIntValue_nested_returnsAtOnceThoughNotReached()
{
    const QAtomicInt value(0);
    bool hasReturned = false;
    waitWith(false, [&] {
        waitNonBlockingAtomicIntValue(value, 1, true);
        hasReturned = true;
    });
    QVERIFY(hasReturned);
    QCOMPARE(value.loadAcquire(), 0);
}

QTEST_MAIN(tst_Waits)

#include "tst_Waits.moc"
