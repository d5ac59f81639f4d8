// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "eventLoop/CallRecorder.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/UserInput.h"

#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/eventLoop/OperationCompletionWaiter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QMetaMethod>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>

using namespace ZYX_zglv6;

namespace {

constexpr int farAway = 600'000; // ms; longer than any test takes

/*! What a test waits for. */
class Operation : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void done();
    void finished(bool /*success*/);
    void finished(bool /*success*/, int /*code*/);
    void told(const QString & /*text*/);
};

class OpenWaiter : public COperationCompletionWaiter
{
public:
    using COperationCompletionWaiter::COperationCompletionWaiter;
    using COperationCompletionWaiter::setOperationCompleted;
    using COperationCompletionWaiter::setOperationFailed;
};

using Waiter = std::unique_ptr<COperationCompletionWaiter>;
using Maker = std::function<Waiter(Operation &, QObject *parent)>;

bool isTimeOutPending(QObject &waiter)
{
    return Singleton<CDelayedCall>::instance().isActive(&waiter, "setOperationFailed");
}

/*! Handles events until a call that is asked for now has come after \a msec: what was due earlier has come too. */
bool handleEventsFor(int msec)
{
    CallRecorder marker;
    Singleton<CDelayedCall>::instance().invoke(msec, &marker, "tick", true);
    return QTest::qWaitFor([&] { return marker.calls.size() == 1; }, 60'000);
}

void addLoops()
{
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("blocked") << true;
    QTest::newRow("not blocked") << false;
}

enum Report { Success, NoSuccess, Failure };

void report(OpenWaiter &waiter, Report report)
{
    if (report == Failure) {
        waiter.setOperationFailed();
    } else {
        waiter.setOperationCompleted(report == Success);
    }
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class tst_OperationCompletionWaiter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_choosesTheLoop_data();
    void constructor_choosesTheLoop();
    void constructor_withoutArguments_hasNoParent();
    void constructor_withSignalList_endsByAnyOfThem_data();
    void constructor_withSignalList_endsByAnyOfThem();
    void constructor_withSignalList_takesNoResult();
    void constructor_withBadConnection_goesOn();
    void startWaiting_afterCompletion_returnsAtOnce();
    void startWaiting_afterCompletion_leavesNothingInTheLog();
    void startWaiting_logsItsBeginningAndEnd_data();
    void startWaiting_logsItsBeginningAndEnd();
    void startWaiting_withTimeOut_fails_data();
    void startWaiting_withTimeOut_fails();
    void startWaiting_withZero_losesAgainstQueuedCompletion();
    void startWaiting_withoutLimit_outlastsOtherTimers_data();
    void startWaiting_withoutLimit_outlastsOtherTimers();
    void startWaiting_again_returnsAtOnce();
    void startWaiting_whileWaiting_returnsAtOnce_data();
    void startWaiting_whileWaiting_returnsAtOnce();
    void startWaiting_endedByTheApplication_leavesTheOperationOpen_data();
    void startWaiting_endedByTheApplication_leavesTheOperationOpen();
    void startWaiting_leftByException_isNotWaiting_data();
    void startWaiting_leftByException_isNotWaiting();
    void startWaiting_blocked_leavesPlatformInputQueued();
    void startWaiting_notBlocked_handlesPlatformInput();
    void startWaiting_onAnotherThread_timesOutThere();
    void isWaiting_isTrueOnlyDuringTheWait();
    void firstReport_wins_data();
    void firstReport_wins();
    void setOperationCompleted_byDefault_isSuccess();
    void makeConnection_withResult_tellsOfSuccess_data();
    void makeConnection_withResult_tellsOfSuccess();
    void makeConnection_withoutResult_ignoresTheArgument();
    void makeConnection_withNull_isReportedAndFalse_data();
    void makeConnection_withNull_isReportedAndFalse();
    void makeConnection_withNulls_leavesTheSendersErrorAndThenTheSignals();
    void makeConnection_withUnfittingSignal_isFalse_data();
    void makeConnection_withUnfittingSignal_isFalse();
    void isOperationSuccess_beforeCompletion_isReportedAndFalse();
    void isOperationSuccess_beforeCompletion_leavesErrorInTheLog();
    void lateTimeOut_afterAnEarlyEnd_isNotWithdrawn();
    void lateTimeOut_afterAnEarlyEnd_doesNothing();
    void lateTimeOut_ofDestroyedWaiter_doesNothing();
    void signal_fromAnotherThread_comesByTheEventLoop();
    void metaObject_hasTheSlotsInOrderAndNoSignals();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_OperationCompletionWaiter::constructor_choosesTheLoop_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("by default") << Maker([](Operation &operation, QObject * /*parent*/) {
        auto waiter = std::make_unique<COperationCompletionWaiter>();
        waiter->makeConnection(&operation, SIGNAL(done()), false);
        return waiter;
    }) << true;
    for (const bool isBlocked : {true, false}) {
        const char *const loop = isBlocked ? "blocked" : "not blocked";
        QTest::addRow("no signal, %s", loop) << Maker([isBlocked](Operation &operation, QObject *parent) {
            auto waiter = std::make_unique<COperationCompletionWaiter>(isBlocked, parent);
            waiter->makeConnection(&operation, SIGNAL(done()), false);
            return waiter;
        }) << isBlocked;
        QTest::addRow("signal, %s", loop) << Maker([isBlocked](Operation &operation, QObject *parent) {
            return std::make_unique<COperationCompletionWaiter>(&operation, SIGNAL(done()), false, isBlocked, parent);
        }) << isBlocked;
        QTest::addRow("signal list, %s", loop) << Maker([isBlocked](Operation &operation, QObject *parent) {
            const QList<std::pair<QObject *, QString>> signalList{{&operation, QLatin1String(SIGNAL(done()))}};
            return std::make_unique<COperationCompletionWaiter>(signalList, isBlocked, parent);
        }) << isBlocked;
    }
}

void tst_OperationCompletionWaiter::constructor_choosesTheLoop()
{
    QFETCH(const Maker, make);
    QFETCH(const bool, isBlocked);
    Operation operation;
    QObject parent;
    TestSupport::EventRecorder keys;
    const Waiter waiter = make(operation, &parent);
    QVERIFY(isSeen(keys));
    std::optional<bool> isSeenInside;
    QTimer::singleShot(0, &operation, [&] {
        isSeenInside = isSeen(keys);
        Q_EMIT operation.done();
    });
    waiter->startWaiting();
    QCOMPARE(isSeenInside, std::optional(!isBlocked));
    QVERIFY(isSeen(keys));
    QVERIFY(waiter->isOperationCompleted());
    QVERIFY(waiter->isOperationSuccess());
    if (qstrcmp(QTest::currentDataTag(), "by default") != 0) {
        QCOMPARE(waiter->parent(), &parent);
    }
}

void tst_OperationCompletionWaiter::constructor_withoutArguments_hasNoParent()
{
    const COperationCompletionWaiter waiter;
    QCOMPARE(waiter.parent(), nullptr);
    QVERIFY(!waiter.isOperationCompleted());
    QVERIFY(!waiter.isWaiting());
}

void tst_OperationCompletionWaiter::constructor_withSignalList_endsByAnyOfThem_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
    QTest::newRow("third") << 2;
}

void tst_OperationCompletionWaiter::constructor_withSignalList_endsByAnyOfThem()
{
    QFETCH(const int, which);
    std::array<Operation, 3> operations;
    COperationCompletionWaiter waiter({{&operations[0], QLatin1String(SIGNAL(done()))},
                                       {&operations[1], QLatin1String(SIGNAL(done()))},
                                       {&operations[2], QLatin1String(SIGNAL(done()))}},
                                      true, nullptr);
    QTimer::singleShot(0, this, [&] { Q_EMIT operations[std::size_t(which)].done(); });
    waiter.startWaiting();
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::constructor_withSignalList_takesNoResult()
{
    Operation operation;
    const COperationCompletionWaiter waiter({{&operation, QLatin1String(SIGNAL(finished(bool)))}}, true, nullptr);
    Q_EMIT operation.finished(false);
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::constructor_withBadConnection_goesOn()
{
    Operation operation;
    QStringList reports;
    {
        const TestSupport::AssertionReports collector;
        const COperationCompletionWaiter waiter(nullptr, SIGNAL(done()), false, true, nullptr);
        const COperationCompletionWaiter listWaiter(
            {{nullptr, QLatin1String(SIGNAL(done()))}, {&operation, QLatin1String(SIGNAL(done()))}}, true, nullptr);
        Q_EMIT operation.done();
        QVERIFY(!waiter.isOperationCompleted());
        QVERIFY(listWaiter.isOperationCompleted());
        reports = collector.texts();
    }
    QCOMPARE(reports.size(), 2);
}

void tst_OperationCompletionWaiter::startWaiting_afterCompletion_returnsAtOnce()
{
    OpenWaiter waiter;
    CallRecorder other;
    Singleton<CDelayedCall>::instance().invoke(0, &other, "tick", true);
    waiter.setOperationCompleted(true);
    waiter.startWaiting(); // would never come back otherwise
    waiter.startWaiting(farAway);
    QVERIFY(!waiter.isWaiting());
    QVERIFY(!isTimeOutPending(waiter));
    QVERIFY(other.calls.isEmpty()); // no events were handled
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::startWaiting_afterCompletion_leavesNothingInTheLog()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    OpenWaiter waiter;
    waiter.setOperationFailed();
    waiter.startWaiting(0);
    QCOMPARE(log.records(), QStringList());
}

void tst_OperationCompletionWaiter::startWaiting_logsItsBeginningAndEnd_data()
{
    QTest::addColumn<int>("timeout");
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("no limit, blocked") << -1 << true;
    QTest::newRow("no limit, not blocked") << -1 << false;
    QTest::newRow("negative") << -20 << true;
    QTest::newRow("zero") << 0 << true;
    QTest::newRow("some time") << 25 << false;
}

void tst_OperationCompletionWaiter::startWaiting_logsItsBeginningAndEnd()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, timeout);
    QFETCH(const bool, isBlocked);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString start
        = u"DEBUG ZYX_zglv6::COperationCompletionWaiter::startWaiting: Start waiting: %1"_qs.arg(timeout);
    const QString end = u"DEBUG ZYX_zglv6::COperationCompletionWaiter::startWaiting: End waiting: %1"_qs.arg(timeout);
    OpenWaiter waiter(isBlocked);
    QStringList inside{start};
    if (timeout < 0) {
        QTimer::singleShot(0, this, [&] {
            inside = log.records();
            waiter.setOperationCompleted();
        });
    }
    waiter.startWaiting(timeout);
    QCOMPARE(inside, QStringList{start});
    const QStringList byLoop{u"DEBUG CExcludeUserInpuEventLoop::exit: Exit with return code: 0"_qs};
    QCOMPARE(log.records(), QStringList{start} + (isBlocked ? byLoop : QStringList()) + QStringList{end});
}

void tst_OperationCompletionWaiter::startWaiting_withTimeOut_fails_data()
{
    QTest::addColumn<int>("timeout");
    QTest::addColumn<bool>("isBlocked");
    QTest::newRow("zero, input held out") << 0 << true;
    QTest::newRow("zero") << 0 << false;
    QTest::newRow("100 ms, input held out") << 100 << true;
    QTest::newRow("100 ms") << 100 << false;
}

void tst_OperationCompletionWaiter::startWaiting_withTimeOut_fails()
{
    QFETCH(const int, timeout);
    QFETCH(const bool, isBlocked);
    COperationCompletionWaiter waiter(isBlocked);
    QElapsedTimer clock;
    clock.start();
    waiter.startWaiting(timeout);
    if (timeout > 0) {
        QVERIFY(clock.elapsed() >= timeout - timeout / 20 - 16); // a coarse timer may be early
    }
    QVERIFY(waiter.isOperationCompleted());
    QVERIFY(!waiter.isOperationSuccess());
    QVERIFY(!waiter.isWaiting());
    QVERIFY(!isTimeOutPending(waiter));
}

void tst_OperationCompletionWaiter::startWaiting_withZero_losesAgainstQueuedCompletion()
{
    Operation operation;
    COperationCompletionWaiter waiter(&operation, SIGNAL(done()), false, true, nullptr);
    QMetaObject::invokeMethod(&operation, "done", Qt::QueuedConnection);
    waiter.startWaiting(0);
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::startWaiting_withoutLimit_outlastsOtherTimers_data()
{
    QTest::addColumn<bool>("isBlocked");
    QTest::addColumn<int>("timeout");
    QTest::newRow("blocked") << true << -1;
    QTest::newRow("not blocked") << false << -1;
    QTest::newRow("very negative") << true << std::numeric_limits<int>::min();
}

void tst_OperationCompletionWaiter::startWaiting_withoutLimit_outlastsOtherTimers()
{
    QFETCH(const bool, isBlocked);
    QFETCH(const int, timeout);
    OpenWaiter waiter(isBlocked);
    CallRecorder timer;
    QList<bool> isStillWaiting;
    bool isTimeOutPendingInside = false;
    timer.reaction = [&](const RecordedCall & /*call*/) {
        isStillWaiting.append(waiter.isWaiting() && !waiter.isOperationCompleted());
        isTimeOutPendingInside = isTimeOutPendingInside || isTimeOutPending(waiter);
        if (isStillWaiting.size() == 20) {
            waiter.setOperationCompleted();
        }
    };
    Singleton<CDelayedCall>::instance().invoke(5, &timer, "tick", false);
    waiter.startWaiting(timeout);
    Singleton<CDelayedCall>::instance().discard(&timer, nullptr);
    QCOMPARE(isStillWaiting, QList<bool>(20, true));
    QVERIFY(!isTimeOutPendingInside);
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::startWaiting_again_returnsAtOnce()
{
    COperationCompletionWaiter waiter;
    waiter.startWaiting(0);
    CallRecorder other;
    Singleton<CDelayedCall>::instance().invoke(0, &other, "tick", true);
    waiter.startWaiting();
    waiter.startWaiting(farAway);
    QVERIFY(other.calls.isEmpty());
    QVERIFY(!isTimeOutPending(waiter));
    QVERIFY(waiter.isOperationCompleted());
    QVERIFY(!waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::startWaiting_whileWaiting_returnsAtOnce_data()
{
    addLoops();
}

void tst_OperationCompletionWaiter::startWaiting_whileWaiting_returnsAtOnce()
{
    QFETCH(const bool, isBlocked);
    OpenWaiter waiter(isBlocked);
    CallRecorder other;
    bool isHandledInside = true;
    bool isStillWaiting = false;
    bool isCompletedInside = true;
    if (!isBlocked) { // the blocked one does not even ask its loop
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^QEventLoop::exec: instance .* has already called"_qs));
    }
    QTimer::singleShot(0, this, [&] {
        Singleton<CDelayedCall>::instance().invoke(0, &other, "tick", true);
        waiter.startWaiting();
        isHandledInside = !other.calls.isEmpty();
        isStillWaiting = waiter.isWaiting();
        isCompletedInside = waiter.isOperationCompleted();
        waiter.setOperationCompleted();
    });
    waiter.startWaiting();
    QVERIFY(!isHandledInside);
    QVERIFY(isStillWaiting);
    QVERIFY(!isCompletedInside);
    QVERIFY(waiter.isOperationSuccess());
    QVERIFY(!waiter.isWaiting());
}

void tst_OperationCompletionWaiter::startWaiting_endedByTheApplication_leavesTheOperationOpen_data()
{
    addLoops();
}

void tst_OperationCompletionWaiter::startWaiting_endedByTheApplication_leavesTheOperationOpen()
{
    QFETCH(const bool, isBlocked);
    OpenWaiter waiter(isBlocked);
    std::optional<bool> isCompleted;
    bool isWaiting = true;
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, &waiter, &QCoreApplication::quit);
        waiter.startWaiting(farAway);
        isCompleted = waiter.isOperationCompleted();
        isWaiting = waiter.isWaiting();
    });
    QCOMPARE(QCoreApplication::exec(), 0);
    QCOMPARE(isCompleted, std::optional(false));
    QVERIFY(!isWaiting);
    QTimer::singleShot(0, &waiter, [&waiter] { waiter.setOperationCompleted(); });
    waiter.startWaiting(); // the wait can be taken up again
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::startWaiting_leftByException_isNotWaiting_data()
{
    addLoops();
}

void tst_OperationCompletionWaiter::startWaiting_leftByException_isNotWaiting()
{
    RUN_IN_FRESH_PROCESS(); // what the platform's dispatcher makes of it is not other tests' concern
    QFETCH(const bool, isBlocked);
    OpenWaiter waiter(isBlocked);
    TestSupport::EventRecorder keys;
    bool wasWaiting = false;
    QTimer::singleShot(0, &waiter, [&] {
        wasWaiting = waiter.isWaiting();
        throw std::runtime_error("from an event handler");
    });
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Qt has caught an exception thrown from an event"_qs));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, waiter.startWaiting());
    QVERIFY(wasWaiting);
    QVERIFY(!waiter.isWaiting());
    QVERIFY(!waiter.isOperationCompleted());
    QVERIFY(isSeen(keys));
}

void tst_OperationCompletionWaiter::startWaiting_blocked_leavesPlatformInputQueued()
{
    TestSupport::MouseWindow window;
    QVERIFY(window.showUnderCursor());
    OpenWaiter waiter(true);
    int passes = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (++passes == 20) {
            waiter.setOperationCompleted();
        }
    });
    timer.start(0);
    window.queueMove();
    waiter.startWaiting();
    timer.stop();
    QCOMPARE(passes, 20);
    QCOMPARE(window.moves, 0);
    QCoreApplication::postEvent(&window, std::make_unique<QEvent>(QEvent::User).release()); // wakes the dispatcher
    QTRY_COMPARE(window.moves, 1); // so it was not swallowed
}

void tst_OperationCompletionWaiter::startWaiting_notBlocked_handlesPlatformInput()
{
    TestSupport::MouseWindow window;
    QVERIFY(window.showUnderCursor());
    OpenWaiter waiter(false);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (window.moves > 0) {
            waiter.setOperationCompleted();
        }
    });
    timer.start(0);
    window.queueMove();
    QCOMPARE(window.moves, 0);
    waiter.startWaiting(20'000);
    QVERIFY(waiter.isOperationSuccess());
    QCOMPARE(window.moves, 1);
}

void tst_OperationCompletionWaiter::startWaiting_onAnotherThread_timesOutThere()
{
    constexpr int timeout = 50;
    qint64 elapsed = -1;
    std::optional<bool> isSuccess;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        COperationCompletionWaiter waiter(false);
        QElapsedTimer clock;
        clock.start();
        waiter.startWaiting(timeout);
        elapsed = clock.elapsed();
        isSuccess = waiter.isOperationCompleted() ? std::optional(waiter.isOperationSuccess()) : std::nullopt;
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(isSuccess, std::optional(false));
    QVERIFY(elapsed >= timeout - timeout / 20 - 16);
}

void tst_OperationCompletionWaiter::isWaiting_isTrueOnlyDuringTheWait()
{
    for (const bool isBlocked : {true, false}) {
        OpenWaiter waiter(isBlocked);
        std::optional<bool> isWaitingInside;
        QVERIFY(!waiter.isWaiting());
        QTimer::singleShot(0, this, [&] {
            isWaitingInside = waiter.isWaiting();
            waiter.setOperationFailed();
        });
        waiter.startWaiting();
        QCOMPARE(isWaitingInside, std::optional(true));
        QVERIFY(!waiter.isWaiting());
    }
}

void tst_OperationCompletionWaiter::firstReport_wins_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("isSuccess");
    constexpr std::array names{"completed with true", "completed with false", "failed"};
    for (const int first : {Success, NoSuccess, Failure}) {
        for (const int second : {Success, NoSuccess, Failure}) {
            QTest::addRow("%s, then %s", names[std::size_t(first)], names[std::size_t(second)])
                << first << second << (first == Success);
        }
    }
}

void tst_OperationCompletionWaiter::firstReport_wins()
{
    QFETCH(const int, first);
    QFETCH(const int, second);
    QFETCH(const bool, isSuccess);
    OpenWaiter before;
    report(before, Report(first));
    report(before, Report(second));
    QVERIFY(before.isOperationCompleted());
    QCOMPARE(before.isOperationSuccess(), isSuccess);

    OpenWaiter during;
    QTimer::singleShot(0, this, [&] {
        report(during, Report(first));
        report(during, Report(second));
    });
    during.startWaiting();
    QVERIFY(during.isOperationCompleted());
    QCOMPARE(during.isOperationSuccess(), isSuccess);
}

void tst_OperationCompletionWaiter::setOperationCompleted_byDefault_isSuccess()
{
    OpenWaiter waiter;
    waiter.setOperationCompleted();
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::makeConnection_withResult_tellsOfSuccess_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("result");
    for (const bool result : {true, false}) {
        const char *const name = result ? "true" : "false";
        QTest::addRow("bool, %s", name) << QByteArray(SIGNAL(finished(bool))) << result;
        QTest::addRow("bool and int, %s", name) << QByteArray(SIGNAL(finished(bool, int))) << result;
    }
}

void tst_OperationCompletionWaiter::makeConnection_withResult_tellsOfSuccess()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const bool, result);
    Operation operation;
    COperationCompletionWaiter waiter;
    QVERIFY(waiter.makeConnection(&operation, signal, true));
    QTimer::singleShot(0, this, [&] {
        Q_EMIT operation.finished(result);
        Q_EMIT operation.finished(result, 1);
    });
    waiter.startWaiting();
    QCOMPARE(waiter.isOperationSuccess(), result);
}

void tst_OperationCompletionWaiter::makeConnection_withoutResult_ignoresTheArgument()
{
    Operation operation;
    for (const char *signal : {SIGNAL(finished(bool)), SIGNAL(finished(bool, int)), SIGNAL(told(QString))}) {
        COperationCompletionWaiter waiter;
        QVERIFY(waiter.makeConnection(&operation, signal, false));
        Q_EMIT operation.finished(false);
        Q_EMIT operation.finished(false, 0);
        Q_EMIT operation.told(QString());
        QVERIFY(waiter.isOperationCompleted());
        QVERIFY(waiter.isOperationSuccess());
    }
}

void tst_OperationCompletionWaiter::makeConnection_withNull_isReportedAndFalse_data()
{
    QTest::addColumn<bool>("hasSender");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("reports");
    QTest::newRow("no sender") << false << QByteArray(SIGNAL(done())) << 1;
    QTest::newRow("no signal") << true << QByteArray() << 1;
    QTest::newRow("neither") << false << QByteArray() << 2;
}

void tst_OperationCompletionWaiter::makeConnection_withNull_isReportedAndFalse()
{
    QFETCH(const bool, hasSender);
    QFETCH(const QByteArray, signal);
    QFETCH(const int, reports);
    Operation operation;
    OpenWaiter waiter;
    QStringList texts;
    bool isMade = true;
    {
        const TestSupport::AssertionReports collector;
        isMade
            = waiter.makeConnection(hasSender ? &operation : nullptr, signal.isNull() ? nullptr : signal.data(), false);
        texts = collector.texts();
    }
    QVERIFY(!isMade);
    QCOMPARE(texts.size(), reports);
    for (const QString &text : texts) {
        QVERIFY2(text.contains(u"OperationCompletionWaiter.cpp"_qs), qPrintable(text));
    }
    QVERIFY(!waiter.isOperationCompleted());
}

void tst_OperationCompletionWaiter::makeConnection_withNulls_leavesTheSendersErrorAndThenTheSignals()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const Operation operation;
    COperationCompletionWaiter waiter;
    QVERIFY(!waiter.makeConnection(nullptr, SIGNAL(done()), true));
    const QStringList ofSender = log.records();
    QVERIFY(!waiter.makeConnection(&operation, nullptr, true));
    const QStringList ofSignal = log.records().mid(ofSender.size());
    static const QRegularExpression form(u"^ERROR ZYX_zglv6::COperationCompletionWaiter::makeConnection: "
                                         "ASSERT in .*OperationCompletionWaiter\\.cpp line \\d+$"_qs);
    for (const QStringList &records : {ofSender, ofSignal}) {
        QCOMPARE(records.size(), 1);
        QVERIFY2(form.match(records.first()).hasMatch(), qPrintable(records.first()));
    }
    QVERIFY(ofSender != ofSignal); // the lines differ

    QVERIFY(!waiter.makeConnection(nullptr, nullptr, true));
    QCOMPARE(log.records().mid(2), ofSender + ofSignal);
}

void tst_OperationCompletionWaiter::makeConnection_withUnfittingSignal_isFalse_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("withResult");
    QTest::addColumn<QString>("warning");
    QTest::newRow("unknown") << QByteArray(SIGNAL(nothing())) << false
                             << u"No such signal .*Operation::nothing\\(\\)"_qs;
    QTest::newRow("other argument") << QByteArray(SIGNAL(done(int))) << false << u"No such signal"_qs;
    QTest::newRow("without prefix") << QByteArray("done()") << false << u"Use the SIGNAL macro"_qs;
    QTest::newRow("result of a signal without one")
        << QByteArray(SIGNAL(done())) << true << u"Incompatible sender/receiver arguments"_qs;
    QTest::newRow("result of a signal with text")
        << QByteArray(SIGNAL(told(QString))) << true << u"Incompatible sender/receiver arguments"_qs;
}

void tst_OperationCompletionWaiter::makeConnection_withUnfittingSignal_isFalse()
{
    QFETCH(const QByteArray, signal);
    QFETCH(const bool, withResult);
    QFETCH(const QString, warning);
    Operation operation;
    COperationCompletionWaiter waiter;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"QObject::connect: "_qs + warning));
    QVERIFY(!waiter.makeConnection(&operation, signal, withResult));
    Q_EMIT operation.done();
    Q_EMIT operation.told(QString());
    QVERIFY(!waiter.isOperationCompleted());
}

void tst_OperationCompletionWaiter::isOperationSuccess_beforeCompletion_isReportedAndFalse()
{
    const COperationCompletionWaiter waiter;
    QStringList reports;
    bool isSuccess = true;
    {
        const TestSupport::AssertionReports collector;
        isSuccess = waiter.isOperationSuccess();
        reports = collector.texts();
    }
    QVERIFY(!isSuccess);
    QCOMPARE(reports.size(), 1);
    QVERIFY2(reports.first().startsWith(u"ASSERT_X_RETURN in "_qs), qPrintable(reports.first()));
    QVERIFY2(reports.first().endsWith(u": Wait until operation completed"_qs), qPrintable(reports.first()));
}

void tst_OperationCompletionWaiter::isOperationSuccess_beforeCompletion_leavesErrorInTheLog()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    OpenWaiter waiter;
    QVERIFY(!waiter.isOperationSuccess());
    static const QRegularExpression form(u"^ERROR ZYX_zglv6::COperationCompletionWaiter::isOperationSuccess: "
                                         "ASSERT_X_RETURN in .*OperationCompletionWaiter\\.cpp line \\d+: "
                                         "Wait until operation completed$"_qs);
    QCOMPARE(log.records().size(), 1);
    QVERIFY2(form.match(log.records().first()).hasMatch(), qPrintable(log.records().first()));
    waiter.setOperationFailed();
    QVERIFY(!waiter.isOperationSuccess());
    QCOMPARE(log.records().size(), 1);
}

void tst_OperationCompletionWaiter::lateTimeOut_afterAnEarlyEnd_isNotWithdrawn()
{
    OpenWaiter waiter;
    QTimer::singleShot(0, this, [&] { waiter.setOperationCompleted(); });
    waiter.startWaiting(farAway);
    QVERIFY(isTimeOutPending(waiter));
}

void tst_OperationCompletionWaiter::lateTimeOut_afterAnEarlyEnd_doesNothing()
{
    OpenWaiter waiter;
    QMetaObject::invokeMethod(&waiter, "setOperationCompleted", Qt::QueuedConnection); // comes before all timers
    waiter.startWaiting(50);
    QTRY_VERIFY(!isTimeOutPending(waiter));
    QVERIFY(waiter.isOperationCompleted());
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::lateTimeOut_ofDestroyedWaiter_doesNothing()
{
    std::optional<OpenWaiter> waiter(std::in_place);
    QMetaObject::invokeMethod(&*waiter, "setOperationCompleted", Qt::QueuedConnection);
    waiter->startWaiting(50);
    QVERIFY(waiter->isOperationSuccess());
    waiter.reset();
    waiter.emplace(); // at the same address
    QVERIFY(!isTimeOutPending(*waiter));
    QVERIFY(handleEventsFor(200));
    QVERIFY(!waiter->isOperationCompleted());
}

void tst_OperationCompletionWaiter::signal_fromAnotherThread_comesByTheEventLoop()
{
    Operation operation;
    COperationCompletionWaiter waiter(&operation, SIGNAL(finished(bool)), true, true, nullptr);
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        Q_EMIT operation.finished(true);
        Q_EMIT operation.finished(false);
    }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(!waiter.isOperationCompleted()); // not touched on that thread
    waiter.startWaiting();
    QVERIFY(waiter.isOperationSuccess());
}

void tst_OperationCompletionWaiter::metaObject_hasTheSlotsInOrderAndNoSignals()
{
    const QMetaObject &meta = COperationCompletionWaiter::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::COperationCompletionWaiter");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.returnMetaType(), QMetaType::fromType<void>());
        const QString access = method.access() == QMetaMethod::Protected ? u"protected "_qs : u"public "_qs;
        methods.append(access + QLatin1String(method.methodSignature()) + u' '
                       + QLatin1String(method.parameterNames().join()));
    }
    QCOMPARE(methods,
             (QStringList{u"protected setOperationCompleted(bool) bSuccess"_qs,
                          u"protected setOperationCompleted() "_qs, u"protected setOperationFailed() "_qs,
                          u"public startWaiting(int) nTimeout"_qs, u"public startWaiting() "_qs}));
    const COperationCompletionWaiter waiter;
    QCOMPARE(waiter.metaObject(), &meta);
    QVERIFY(waiter.inherits("ZYX_zglv6::COperationCompletionWaiter"));
    QCOMPARE(COperationCompletionWaiter::tr("text"), u"text"_qs);
}

QTEST_MAIN(tst_OperationCompletionWaiter)
#include "tst_OperationCompletionWaiter.moc"
