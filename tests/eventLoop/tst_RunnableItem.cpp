// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/UserInput.h"
#include "support/VirtualSlot.h"

#include "utilsDll/eventLoop/RunnableItem.h"
#include "utilsDll/eventLoop/Waits.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtCore/QThreadPool>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>
#include <type_traits>

using Item = CRunnableItem<QRunnable>;
using Wait = std::function<void(const Item &)>;
using TestSupport::EventRecorder;

static_assert(std::is_base_of_v<QRunnable, Item>);
static_assert(std::is_abstract_v<Item>);
static_assert(std::is_abstract_v<CQRunnableItem>);
static_assert(std::is_base_of_v<QObject, CQRunnableItem>);
static_assert(std::is_base_of_v<Item, CQRunnableItem>);

namespace {

/*! Only the brackets, with \a work between them. */
class Bracketed : public Item
{
public:
    using Work = std::function<void()>;

    explicit Bracketed(Work work = nullptr, Work onDestruction = nullptr)
        : m_work(std::move(work))
        , m_onDestruction(std::move(onDestruction))
    {
    }

    ~Bracketed() override
    {
        if (m_onDestruction) {
            m_onDestruction();
        }
    }

    void run() override
    {
        const Work work = m_work; // the member goes before the section ends
        enterExcecutableSecion();
        if (work) {
            work();
        }
        leaveExcecutableSecion();
    }

    Q_DISABLE_COPY_MOVE(Bracketed)

private:
    Work m_work;
    Work m_onDestruction;
};

class Task : public CQRunnableItem
{
public:
    using Work = std::function<void(Task &)>;

    explicit Task(Work work = nullptr)
        : m_work(std::move(work))
    {
    }

    int executions() const
    {
        return m_executions;
    }

    static std::optional<int> executeSlot()
    {
        return TestSupport::virtualSlot(&Task::execute);
    }

protected:
    void execute() override
    {
        ++m_executions;
        if (m_work) {
            m_work(*this);
        }
    }

private:
    Work m_work;
    std::atomic_int m_executions = 0;
};

/*! Holds a thread up until another one opens it. */
class Gate
{
public:
    void open()
    {
        m_isOpen = true;
    }

    void pass() const
    {
        while (!m_isOpen) {
            std::this_thread::yield();
        }
    }

private:
    std::atomic_bool m_isOpen = false;
};

/*! Makes the section itself, of which it uses nothing but what CQRunnableItem has. */
class StoppableItem : public CQRunnableItem
{
public:
    StoppableItem(Gate &hasBegun, std::atomic_bool &isOver)
        : m_hasBegun(hasBegun)
        , m_isOver(isOver)
    {
    }

    ~StoppableItem() override
    {
        stop();
    }

    void run() override
    {
        std::atomic_bool &isOver = m_isOver; // the members go before the section ends
        enterExcecutableSecion();
        m_hasBegun.open();
        while (!stopRequired().value()) {
            std::this_thread::yield();
        }
        for (int i = 0; i < 1000; ++i) { // long enough for the destructor to go on, if it did not wait
            stopRequired().value();
            std::this_thread::yield();
        }
        isOver = true;
        leaveExcecutableSecion();
    }

    Q_DISABLE_COPY_MOVE(StoppableItem)

protected:
    void execute() override
    {
    }

private:
    Gate &m_hasBegun;
    std::atomic_bool &m_isOver;
};

/*! Whether an event of \a type gets through to an object. */
bool isSeen(QEvent::Type type)
{
    EventRecorder receiver;
    return TestSupport::isSeen(receiver, type);
}

/*! Counts the children that the application gets, among them each filter that holds input out. */
class ChildCounter : public QObject
{
public:
    int added = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        added += watched == QCoreApplication::instance() && event->type() == QEvent::ChildAdded ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

void addBlockingWaits()
{
    QTest::newRow("start, blocking") << Wait(&Item::waitStartBlocking);
    QTest::newRow("finish, blocking") << Wait(&Item::waitFinishBlocking);
    QTest::newRow("execute, blocking") << Wait(&Item::waitExecuteBlocking);
}

void addNonBlockingWaits()
{
    QTest::newRow("start, input held out") << Wait([](const Item &item) { item.waitStartNonBlocking(true); });
    QTest::newRow("start, input let through") << Wait([](const Item &item) { item.waitStartNonBlocking(false); });
    QTest::newRow("finish, input held out") << Wait([](const Item &item) { item.waitFinishNonBlocking(true); });
    QTest::newRow("finish, input let through") << Wait([](const Item &item) { item.waitFinishNonBlocking(false); });
    QTest::newRow("execute, input held out") << Wait([](const Item &item) { item.waitExecuteNonBlocking(true); });
    QTest::newRow("execute, input let through") << Wait([](const Item &item) { item.waitExecuteNonBlocking(false); });
}

} // namespace

class tst_RunnableItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void section_setsAndClearsIsStarted();
    void section_enteredTwice_isLeftAtOnce();
    void section_leftWithoutEntering_changesNothing();
    void section_canBeRepeated();
    void wait_onItemNotStarted_returnsAtOnce_data();
    void wait_onItemNotStarted_returnsAtOnce();
    void wait_afterTheRun_returnsAtOnce_data();
    void wait_afterTheRun_returnsAtOnce();
    void blockingWait_insideTheSection_waitsForItsEnd_data();
    void blockingWait_insideTheSection_waitsForItsEnd();
    void nonBlockingWait_insideTheSection_handlesEventsUntilItsEnd_data();
    void nonBlockingWait_insideTheSection_handlesEventsUntilItsEnd();
    void nonBlockingWait_endsByAnotherThread_data();
    void nonBlockingWait_endsByAnotherThread();
    void nonBlockingWait_holdsInputOutOnlyIfAsked_data();
    void nonBlockingWait_holdsInputOutOnlyIfAsked();
    void nonBlockingWait_isOneOrTwoWaits_data();
    void nonBlockingWait_isOneOrTwoWaits();
    void nonBlockingWait_duringAnother_returnsAtOnce_data();
    void nonBlockingWait_duringAnother_returnsAtOnce();
    void blockingWait_duringANonBlockingOne_waits_data();
    void blockingWait_duringANonBlockingOne_waits();
    void destructor_waitsForTheSection();
    void destructor_whileTheSectionLooksForAStop_waits();
    void destructor_ofIdleItem_returns();

    void metaObject_hasSignalAndSlot();
    void execute_isBeyondTheOperationsOfQObject();
    void constructor_leavesParentAndAutoDeleteAtQtsDefaults();
    void run_executesAndThenTellsFinished();
    void run_isStartedOnlyInExecute();
    void finished_comesWhenTheItemIsIdle();
    void run_canBeRepeated();
    void stop_byName_isSeenInStopRequired();
    void stop_beforeRun_keepsItFromExecuting();
    void stop_staysSet();
    void stop_duringExecute_isUpToExecute();
    void stop_duringExecute_doesNotInterrupt();
    void run_leftByException_leavesTheSectionAndTellsNothing();
    void run_leftByException_canBeRepeated();
    void finished_isEmittedOnTheThreadOfTheRun();
    void finished_isQueuedToReceiversOnOtherThreads();
    void threadPool_runsTheItem();
    void threadPool_deletesTheItemByDefault();
};

void tst_RunnableItem::section_setsAndClearsIsStarted()
{
    Bracketed item;
    QVERIFY(!item.isStarted());
    item.enterExcecutableSecion();
    QVERIFY(item.isStarted());
    item.leaveExcecutableSecion();
    QVERIFY(!item.isStarted());
}

void tst_RunnableItem::section_enteredTwice_isLeftAtOnce()
{
    Bracketed item;
    item.enterExcecutableSecion();
    item.enterExcecutableSecion();
    QVERIFY(item.isStarted());
    item.leaveExcecutableSecion();
    QVERIFY(!item.isStarted());
    item.waitExecuteBlocking();
}

void tst_RunnableItem::section_leftWithoutEntering_changesNothing()
{
    Bracketed item;
    item.leaveExcecutableSecion();
    QVERIFY(!item.isStarted());
    item.waitExecuteBlocking();
    item.enterExcecutableSecion();
    QVERIFY(item.isStarted());
    item.leaveExcecutableSecion();
    item.leaveExcecutableSecion();
    QVERIFY(!item.isStarted());
    item.waitExecuteBlocking();
}

void tst_RunnableItem::section_canBeRepeated()
{
    int runs = 0;
    Bracketed item([&runs] { ++runs; });
    for (int i = 1; i <= 3; ++i) {
        item.run();
        QCOMPARE(runs, i);
        QVERIFY(!item.isStarted());
        item.waitExecuteBlocking();
    }
}

void tst_RunnableItem::wait_onItemNotStarted_returnsAtOnce_data()
{
    QTest::addColumn<Wait>("wait");
    addBlockingWaits();
    addNonBlockingWaits();
}

void tst_RunnableItem::wait_onItemNotStarted_returnsAtOnce()
{
    QFETCH(Wait, wait);
    const Bracketed item;
    EventRecorder receiver;
    QCoreApplication::postEvent(&receiver, std::make_unique<QEvent>(QEvent::User).release());
    wait(item);
    QCOMPARE(receiver.types, QList<int>()); // not even one turn of the events
    QVERIFY(!item.isStarted());
}

void tst_RunnableItem::wait_afterTheRun_returnsAtOnce_data()
{
    wait_onItemNotStarted_returnsAtOnce_data();
}

void tst_RunnableItem::wait_afterTheRun_returnsAtOnce()
{
    QFETCH(Wait, wait);
    Bracketed item;
    item.run();
    EventRecorder receiver;
    QCoreApplication::postEvent(&receiver, std::make_unique<QEvent>(QEvent::User).release());
    wait(item);
    QCOMPARE(receiver.types, QList<int>());
}

void tst_RunnableItem::blockingWait_insideTheSection_waitsForItsEnd_data()
{
    QTest::addColumn<Wait>("wait");
    addBlockingWaits();
}

void tst_RunnableItem::blockingWait_insideTheSection_waitsForItsEnd()
{
    QFETCH(Wait, wait);
    EventRecorder receiver;
    QCoreApplication::postEvent(&receiver, std::make_unique<QEvent>(QEvent::User).release());
    Bracketed item;
    std::atomic_bool isOver = false;
    item.enterExcecutableSecion();
    std::thread other([&] {
        isOver = true;
        item.leaveExcecutableSecion();
    });
    wait(item);
    const bool wasOver = isOver;
    other.join();
    QVERIFY(wasOver);
    QCOMPARE(receiver.types, QList<int>());
}

void tst_RunnableItem::nonBlockingWait_insideTheSection_handlesEventsUntilItsEnd_data()
{
    QTest::addColumn<Wait>("wait");
    addNonBlockingWaits();
}

void tst_RunnableItem::nonBlockingWait_insideTheSection_handlesEventsUntilItsEnd()
{
    QFETCH(Wait, wait);
    Bracketed item;
    item.enterExcecutableSecion();
    int timeouts = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (++timeouts == 3) {
            item.leaveExcecutableSecion();
        }
    });
    timer.start(0);
    wait(item);
    QCOMPARE(timeouts, 3);
    QVERIFY(!item.isStarted());
}

void tst_RunnableItem::nonBlockingWait_endsByAnotherThread_data()
{
    QTest::addColumn<Wait>("wait");
    addNonBlockingWaits();
}

void tst_RunnableItem::nonBlockingWait_endsByAnotherThread()
{
    QFETCH(Wait, wait);
    Bracketed item;
    item.enterExcecutableSecion();
    std::thread other;
    QTimer::singleShot(0, this, [&] { // so the wait has begun
        other = std::thread([&item] { item.leaveExcecutableSecion(); });
    });
    wait(item);
    QVERIFY(other.joinable());
    other.join();
    QVERIFY(!item.isStarted());
}

void tst_RunnableItem::nonBlockingWait_holdsInputOutOnlyIfAsked_data()
{
    using NonBlocking = void (Item::*)(bool) const;
    QTest::addColumn<NonBlocking>("wait");
    QTest::addColumn<bool>("excludeUserInput");

    QTest::newRow("start, held out") << NonBlocking(&Item::waitStartNonBlocking) << true;
    QTest::newRow("start, let through") << NonBlocking(&Item::waitStartNonBlocking) << false;
    QTest::newRow("finish, held out") << NonBlocking(&Item::waitFinishNonBlocking) << true;
    QTest::newRow("finish, let through") << NonBlocking(&Item::waitFinishNonBlocking) << false;
    QTest::newRow("execute, held out") << NonBlocking(&Item::waitExecuteNonBlocking) << true;
    QTest::newRow("execute, let through") << NonBlocking(&Item::waitExecuteNonBlocking) << false;
}

void tst_RunnableItem::nonBlockingWait_holdsInputOutOnlyIfAsked()
{
    using NonBlocking = void (Item::*)(bool) const;
    QFETCH(NonBlocking, wait);
    QFETCH(bool, excludeUserInput);
    Bracketed item;
    item.enterExcecutableSecion();
    bool isKeySeen = false;
    bool isReleaseSeen = false;
    QTimer::singleShot(0, this, [&] {
        isKeySeen = isSeen(QEvent::KeyPress);
        isReleaseSeen = isSeen(QEvent::MouseButtonRelease);
        item.leaveExcecutableSecion();
    });
    (item.*wait)(excludeUserInput);
    QCOMPARE(isKeySeen, !excludeUserInput);
    QVERIFY(isReleaseSeen);
    QVERIFY(isSeen(QEvent::KeyPress));
}

void tst_RunnableItem::nonBlockingWait_isOneOrTwoWaits_data()
{
    QTest::addColumn<Wait>("wait");
    QTest::addColumn<int>("filters");

    QTest::newRow("start, held out") << Wait([](const Item &item) { item.waitStartNonBlocking(true); }) << 1;
    QTest::newRow("start, let through") << Wait([](const Item &item) { item.waitStartNonBlocking(false); }) << 0;
    QTest::newRow("finish, held out") << Wait([](const Item &item) { item.waitFinishNonBlocking(true); }) << 1;
    QTest::newRow("finish, let through") << Wait([](const Item &item) { item.waitFinishNonBlocking(false); }) << 0;
    QTest::newRow("execute, held out") << Wait([](const Item &item) { item.waitExecuteNonBlocking(true); }) << 2;
    QTest::newRow("execute, let through") << Wait([](const Item &item) { item.waitExecuteNonBlocking(false); }) << 0;
}

void tst_RunnableItem::nonBlockingWait_isOneOrTwoWaits()
{
    QFETCH(Wait, wait);
    QFETCH(int, filters);
    const Bracketed item;
    ChildCounter children;
    QCoreApplication::instance()->installEventFilter(&children);
    wait(item);
    QCOMPARE(children.added, filters); // each wait makes its own
}

void tst_RunnableItem::nonBlockingWait_duringAnother_returnsAtOnce_data()
{
    QTest::addColumn<Wait>("wait");
    addNonBlockingWaits();
}

void tst_RunnableItem::nonBlockingWait_duringAnother_returnsAtOnce()
{
    QFETCH(Wait, wait);
    Bracketed item;
    item.enterExcecutableSecion();
    QAtomicInt isOver(0);
    bool wasStarted = false;
    QTimer::singleShot(0, this, [&] {
        wait(item);
        wasStarted = item.isStarted();
        isOver.storeRelease(1);
    });
    waitNonBlockingAtomicIntValue(isOver, 1, false);
    QVERIFY(wasStarted);
    item.leaveExcecutableSecion();
}

void tst_RunnableItem::blockingWait_duringANonBlockingOne_waits_data()
{
    QTest::addColumn<Wait>("wait");
    addBlockingWaits();
}

void tst_RunnableItem::blockingWait_duringANonBlockingOne_waits()
{
    QFETCH(Wait, wait);
    Bracketed item;
    item.enterExcecutableSecion();
    QAtomicInt isOver(0);
    bool wasStarted = true;
    QTimer::singleShot(0, this, [&] {
        std::thread other([&item] { item.leaveExcecutableSecion(); });
        wait(item);
        other.join();
        wasStarted = item.isStarted();
        isOver.storeRelease(1);
    });
    waitNonBlockingAtomicIntValue(isOver, 1, false);
    QVERIFY(!wasStarted);
}

void tst_RunnableItem::destructor_waitsForTheSection()
{
    Gate hasBegun;
    Gate isBeingDestroyed;
    std::atomic_bool isOver = false;
    auto item = std::make_unique<Bracketed>(
        [&] {
            hasBegun.open();
            isBeingDestroyed.pass();
            isOver = true;
        },
        [&isBeingDestroyed] { isBeingDestroyed.open(); });
    std::thread other([&item = *item] { item.run(); });
    hasBegun.pass();
    item.reset();
    const bool wasOver = isOver;
    other.join();
    QVERIFY(wasOver);
}

void tst_RunnableItem::destructor_whileTheSectionLooksForAStop_waits()
{
    Gate hasBegun;
    std::atomic_bool isOver = false;
    auto item = std::make_unique<StoppableItem>(hasBegun, isOver);
    std::thread other([&item = *item] { item.run(); });
    hasBegun.pass();
    item.reset(); // a memory checker complains if the flag goes before the section has ended
    const bool wasOver = isOver;
    other.join();
    QVERIFY(wasOver);
}

void tst_RunnableItem::destructor_ofIdleItem_returns()
{
    bool isDestroyed = false;
    {
        const Bracketed neverRun(nullptr, [&isDestroyed] { isDestroyed = true; });
        Bracketed run;
        run.run();
    }
    QVERIFY(isDestroyed);
}

void tst_RunnableItem::metaObject_hasSignalAndSlot()
{
    const QMetaObject &meta = CQRunnableItem::staticMetaObject;
    QCOMPARE(meta.className(), "CQRunnableItem");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);

    const QMetaMethod signal = meta.method(meta.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), "finished()");
    const QMetaMethod slot = meta.method(meta.methodOffset() + 1);
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Public);
    QCOMPARE(slot.methodSignature(), "stop()");
    QCOMPARE(slot.returnType(), int(QMetaType::Void));
}

void tst_RunnableItem::execute_isBeyondTheOperationsOfQObject()
{
    const auto slot = Task::executeSlot();
    if (!slot) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    class Opened : public QObject
    {
    public:
        static std::optional<int> lastSlot()
        {
            return TestSupport::virtualSlot(&Opened::disconnectNotify);
        }
    };
    const auto lastOfQObject = Opened::lastSlot();
    QVERIFY(lastOfQObject);
    QVERIFY(*slot > *lastOfQObject);
}

void tst_RunnableItem::constructor_leavesParentAndAutoDeleteAtQtsDefaults()
{
    const Task task;
    QCOMPARE(task.parent(), nullptr);
    QVERIFY(task.autoDelete());
    QVERIFY(Bracketed().autoDelete());
    QVERIFY(!task.isStarted());
    QVERIFY(!task.stopRequired().value());
}

void tst_RunnableItem::run_executesAndThenTellsFinished()
{
    QStringList steps;
    Task task([&steps](Task &) { steps.append(u"execute"_qs); });
    connect(&task, &CQRunnableItem::finished, this, [&steps] { steps.append(u"finished"_qs); });
    task.run();
    QCOMPARE(steps, QStringList({u"execute"_qs, u"finished"_qs}));
}

void tst_RunnableItem::run_isStartedOnlyInExecute()
{
    bool isStartedMeanwhile = false;
    Task task([&](Task &self) { isStartedMeanwhile = self.isStarted(); });
    QVERIFY(!task.isStarted());
    task.run();
    QVERIFY(isStartedMeanwhile);
    QVERIFY(!task.isStarted());
}

void tst_RunnableItem::finished_comesWhenTheItemIsIdle()
{
    Task task;
    bool isStarted = true;
    connect(&task, &CQRunnableItem::finished, this, [&] {
        isStarted = task.isStarted();
        task.waitExecuteBlocking(); // would hang inside the section
    });
    task.run();
    QVERIFY(!isStarted);
}

void tst_RunnableItem::run_canBeRepeated()
{
    Task task;
    const QSignalSpy finished(&task, &CQRunnableItem::finished);
    task.run();
    task.run();
    QCOMPARE(task.executions(), 2);
    QCOMPARE(finished.size(), 2);
}

void tst_RunnableItem::stop_byName_isSeenInStopRequired()
{
    Task task;
    const ThreadSafeVariable<bool> &stopRequired = task.stopRequired();
    QVERIFY(!stopRequired.value());
    QVERIFY(QMetaObject::invokeMethod(&task, "stop"));
    QVERIFY(stopRequired.value());
    QCOMPARE(&task.stopRequired(), &stopRequired);
}

void tst_RunnableItem::stop_beforeRun_keepsItFromExecuting()
{
    Task task;
    const QSignalSpy finished(&task, &CQRunnableItem::finished);
    task.stop();
    task.run();
    QCOMPARE(task.executions(), 0);
    QCOMPARE(finished.size(), 0);
    QVERIFY(!task.isStarted());
    task.waitExecuteBlocking();
}

void tst_RunnableItem::stop_staysSet()
{
    Task task;
    const QSignalSpy finished(&task, &CQRunnableItem::finished);
    task.run();
    task.stop();
    task.run();
    task.stop();
    task.run();
    QVERIFY(task.stopRequired().value());
    QCOMPARE(task.executions(), 1);
    QCOMPARE(finished.size(), 1);
}

void tst_RunnableItem::stop_duringExecute_isUpToExecute()
{
    Gate hasBegun;
    std::atomic_int finishedCount = 0;
    std::atomic_bool hasSeenStop = false;
    Task task([&](Task &self) {
        hasBegun.open();
        while (!self.stopRequired().value()) {
            std::this_thread::yield();
        }
        hasSeenStop = true;
    });
    connect(
        &task, &CQRunnableItem::finished, &task, [&] { ++finishedCount; }, Qt::DirectConnection);
    std::thread other([&task] { task.run(); });
    hasBegun.pass();
    const bool wasStarted = task.isStarted();
    const int finishedBefore = finishedCount;
    task.stop();
    other.join();
    QVERIFY(wasStarted);
    QCOMPARE(finishedBefore, 0);
    QVERIFY(hasSeenStop);
    QCOMPARE(finishedCount.load(), 1);
}

void tst_RunnableItem::stop_duringExecute_doesNotInterrupt()
{
    bool isExecuted = false;
    Task task([&isExecuted](Task &self) {
        self.stop();
        isExecuted = self.stopRequired().value() && self.isStarted();
    });
    const QSignalSpy finished(&task, &CQRunnableItem::finished);
    task.run();
    QVERIFY(isExecuted);
    QCOMPARE(finished.size(), 1);
}

void tst_RunnableItem::run_leftByException_leavesTheSectionAndTellsNothing()
{
    {
        Task task([](Task &) { throw std::runtime_error("from the work"); });
        const QSignalSpy finished(&task, &CQRunnableItem::finished);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, task.run());
        QCOMPARE(task.executions(), 1);
        QCOMPARE(finished.size(), 0);
        QVERIFY(!task.isStarted());
        task.waitExecuteBlocking();
        task.waitExecuteNonBlocking(true);
    }
    QVERIFY(isSeen(QEvent::KeyPress)); // and the destructor has come back
}

void tst_RunnableItem::run_leftByException_canBeRepeated()
{
    Task task([](Task &self) {
        if (self.executions() == 1) {
            throw std::runtime_error("from the work");
        }
    });
    const QSignalSpy finished(&task, &CQRunnableItem::finished);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, task.run());
    task.run();
    QCOMPARE(task.executions(), 2);
    QCOMPARE(finished.size(), 1);
}

void tst_RunnableItem::finished_isEmittedOnTheThreadOfTheRun()
{
    std::atomic<std::thread::id> emittedOn;
    Task task;
    connect(
        &task, &CQRunnableItem::finished, &task, [&] { emittedOn = std::this_thread::get_id(); }, Qt::DirectConnection);
    std::thread other([&task] { task.run(); });
    const std::thread::id expected = other.get_id();
    other.join();
    QVERIFY(emittedOn.load() == expected);
    QVERIFY(expected != std::this_thread::get_id());
}

void tst_RunnableItem::finished_isQueuedToReceiversOnOtherThreads()
{
    int finishedCount = 0;
    std::thread::id receivedOn;
    Task task;
    connect(&task, &CQRunnableItem::finished, this, [&] {
        ++finishedCount;
        receivedOn = std::this_thread::get_id();
    });
    std::thread([&task] { task.run(); }).join();
    QCOMPARE(finishedCount, 0);
    QCoreApplication::processEvents();
    QCOMPARE(finishedCount, 1);
    QVERIFY(receivedOn == std::this_thread::get_id());
}

void tst_RunnableItem::threadPool_runsTheItem()
{
    Gate hasBegun;
    Gate goOn;
    std::atomic_int finishedCount = 0;
    Task task([&](Task &) {
        hasBegun.open();
        goOn.pass();
    });
    task.setAutoDelete(false);
    connect(
        &task, &CQRunnableItem::finished, &task, [&finishedCount] { ++finishedCount; }, Qt::DirectConnection);

    QThreadPool pool; // behind the item: it is done before the item goes
    pool.start(&task);
    hasBegun.pass();
    const bool wasStarted = task.isStarted();
    QTimer::singleShot(0, this, [&goOn] { goOn.open(); });
    task.waitExecuteNonBlocking(true);
    QVERIFY(wasStarted);
    QVERIFY(!task.isStarted());
    QVERIFY(pool.waitForDone());
    QCOMPARE(finishedCount.load(), 1);
    QCOMPARE(task.executions(), 1);
}

void tst_RunnableItem::threadPool_deletesTheItemByDefault()
{
    int finishedCount = 0;
    Gate isEmitted;
    QThreadPool pool;
    auto task = std::make_unique<Task>();
    const QPointer<QObject> watcher(task.get());
    connect(task.get(), &CQRunnableItem::finished, this, [&finishedCount] { ++finishedCount; });
    connect(
        task.get(), &CQRunnableItem::finished, task.get(), [&isEmitted] { isEmitted.open(); }, Qt::DirectConnection);
    pool.start(task.release());
    QVERIFY(pool.waitForDone());
    isEmitted.pass(); // tells the thread sanitizer what the pool's own locks do not
    QVERIFY(watcher.isNull());
    QTRY_COMPARE(finishedCount, 1);
}

QTEST_MAIN(tst_RunnableItem)

#include "tst_RunnableItem.moc"
