// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "eventLoop/CallRecorder.h"
#include "eventLoop/RandomCalls.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/eventLoop/DelayedInvoker_p.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QRectF>
#include <QtCore/QRegularExpression>
#include <QtCore/QSize>
#include <QtCore/QTimer>
#include <QtCore/QTimerEvent>
#include <QtCore/QUrl>
#include <QtTest/QTest>

#include <optional>
#include <stdexcept>

using namespace ZYX_zglv6;

namespace {

/*! Lets the test look into the maps. No event loop runs here: each timer event is sent by hand. */
class OpenInvoker : public CDelayedInvoker
{
public:
    using CDelayedInvoker::m_receivers;
    using CDelayedInvoker::m_timers;

    void call(int msec, QObject *receiver, const char *method, bool isSingleShot, const QVariantList &arguments = {})
    {
        schedule(msec, {receiver, method, isSingleShot, arguments});
    }

    /*! The timer that was started last among those of \a receiver. */
    int lastTimer(const QObject *receiver) const
    {
        const auto [first, last] = m_receivers.equal_range(receiver);
        return first == last ? 0 : std::prev(last)->second;
    }

    QList<int> timers(const QObject *receiver) const
    {
        QList<int> ids;
        const auto [first, last] = m_receivers.equal_range(receiver);
        std::for_each(first, last, [&](const auto &entry) { ids.append(entry.second); });
        return ids;
    }

    /*! True if the event came back accepted. */
    bool fire(int timerId)
    {
        QTimerEvent event(timerId);
        event.ignore();
        QCoreApplication::sendEvent(this, &event);
        return event.isAccepted();
    }
};

class InvokerSubject : public DelayedCallSubject
{
public:
    void schedule(int msec, QObject *receiver, const char *method, bool isSingleShot,
                  const QVariantList &arguments) override
    {
        m_invoker.call(msec, receiver, method, isSingleShot, arguments);
    }

    void discard(QObject *receiver, const char *method) override
    {
        m_invoker.discard(receiver, method);
    }

    bool isActive(QObject *receiver, const char *method) const override
    {
        return m_invoker.isActive(receiver, method);
    }

    QObject *timerOwner() const override
    {
        return &m_invoker;
    }

    /*! What the maps have that \a model has not, or the other way round; empty if nothing. */
    QString difference(const DelayedCallModel &model) const
    {
        std::multimap<const QObject *, int> receivers;
        std::size_t pending = 0;
        for (const DelayedCallModel::Entry &entry : model.entries()) {
            receivers.emplace(entry.address, entry.timerId);
            if (!entry.isPending) {
                continue;
            }
            ++pending;
            const auto found = m_invoker.m_timers.find(entry.timerId);
            if (found == m_invoker.m_timers.end() || !isSame(found->second, entry)) {
                return u"another call under timer %1"_qs.arg(entry.timerId);
            }
        }
        return receivers == m_invoker.m_receivers && pending == m_invoker.m_timers.size() ? QString()
                                                                                          : u"other entries"_qs;
    }

private:
    static bool isSame(const CDelayedInvoker::methodData &call, const DelayedCallModel::Entry &entry)
    {
        return call.receiver == (entry.isReceiverAlive ? entry.address : nullptr) && call.method == entry.method
            && call.isSingleShot == entry.isSingleShot && call.arguments == entry.arguments;
    }

    mutable OpenInvoker m_invoker;
};

/*! Small, but not to be moved as bytes, which a QVariant wants of what it keeps inside. */
class NotMovable
{
public:
    NotMovable() = default;
    NotMovable(const NotMovable &other)
        : m_number(other.m_number + 1)
    {
    }
    NotMovable &operator=(const NotMovable &) = delete;
    ~NotMovable() = default;

private:
    int m_number = 0; // of the copy
};

std::optional<QAbstractEventDispatcher::TimerInfo> timerInfo(QObject *owner, int timerId)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(owner);
    for (const QAbstractEventDispatcher::TimerInfo &timer : timers) {
        if (timer.timerId == timerId) {
            return timer;
        }
    }
    return std::nullopt;
}

const QVariantList nineArguments{true,  2, 3.5,  u"four"_qs, QVariant::fromValue<QObject *>(nullptr),
                                 false, 7, 8.25, u"nine"_qs};

} // namespace

Q_DECLARE_METATYPE(NotMovable)

class tst_DelayedInvoker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void schedule_keepsTheCallUnderItsTimer();
    void schedule_startsCoarseTimer();
    void schedule_again_replaces_data();
    void schedule_again_replaces();
    void schedule_again_comparesNamesByText();
    void schedule_again_releasesTheOldArguments();
    void schedule_again_goesToTheEndOfTheIndex();
    void schedule_ofOtherMethodOrReceiver_keepsBoth();
    void schedule_withNegativeDelay_onlyEndsThePendingCall();
    void index_isInOrderOfInsertion();
    void discard_withMethod_stopsAfterTheFirstMatch();
    void discard_withMethod_comparesByText();
    void discard_withNullMethod_endsAllOfThatReceiverAndNoOthers();
    void discard_ofWhatIsNotPending_doesNothing();
    void discard_releasesTheArguments();
    void isActive_tellsOfThatReceiverAndMethod();
    void timerEvent_ofSingleShot_forgetsItBeforeTheCall();
    void timerEvent_ofSingleShot_keepsItsTimerDuringTheCall();
    void timerEvent_ofSingleShot_acceptsTheEvent();
    void timerEvent_ofRepeatingCall_keepsAllAndDoesNotAccept();
    void timerEvent_ofUnknownTimer_callsNothing();
    void timerEvent_withNullMethod_isReported();
    void timerEvent_withNullMethod_leavesErrorInTheLog();
    void timerEvent_releasesTheArgumentsOfSingleShot();
    void slot_thatSchedulesItselfAnew_getsAFreshTimer();
    void slot_thatDiscardsItself_data();
    void slot_thatDiscardsItself();
    void slot_thatReplacesItsRepeatingCall_leavesOne();
    void slot_thatDeletesItsReceiver_data();
    void slot_thatDeletesItsReceiver();
    void slot_thatFiresAnotherCall_nests();
    void slot_thatThrows_data();
    void slot_thatThrows();
    void deadReceiver_ofSingleShot_isSkippedAndItsIndexEntryStays();
    void deadReceiver_ofRepeatingCall_isOutOfReachForEver();
    void newReceiver_atTheAddressOfADeadOne_hasItsOwnCalls();
    void invokeMethod_passesArgumentsInOrder_data();
    void invokeMethod_passesArgumentsInOrder();
    void invokeMethod_withoutReceiverOrMethod_isFalse();
    void invokeMethod_withMoreThanNineArguments_isReportedAndFalse();
    void invokeMethod_withMoreThanNineArguments_leavesErrorInTheLog();
    void invokeMethod_withValueOutsideItsVariant_isReportedAndFalse_data();
    void invokeMethod_withValueOutsideItsVariant_isReportedAndFalse();
    void invokeMethod_withUnfittingCall_makesQtWarn_data();
    void invokeMethod_withUnfittingCall_makesQtWarn();
    void invokeMethod_withEmptyVariant_dropsTheArgumentsFromThereOn();
    void unknownMethod_ofRepeatingCall_staysPending();
    void destructor_dropsPendingCalls();
    void randomCalls_agreeWithTheModel_data();
    void randomCalls_agreeWithTheModel();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_DelayedInvoker::schedule_keepsTheCallUnderItsTimer()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    static constexpr char method[] = "call";
    invoker.call(300, &receiver, method, true, {true, 2});

    QCOMPARE(invoker.m_timers.size(), std::size_t(1));
    const auto &[timerId, call] = *invoker.m_timers.begin();
    QVERIFY(timerId >= 1);
    QCOMPARE(call.receiver.data(), &receiver);
    QCOMPARE(static_cast<const void *>(call.method), static_cast<const void *>(method)); // not copied
    QCOMPARE(call.isSingleShot, true);
    QCOMPARE(call.arguments, (QVariantList{true, 2}));
    QCOMPARE(invoker.m_receivers, (std::multimap<const QObject *, int>{{&receiver, timerId}}));
    QCOMPARE(timersOf(&invoker), QSet<int>{timerId});
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedInvoker::schedule_startsCoarseTimer()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", false);
    const auto timer = timerInfo(&invoker, invoker.lastTimer(&receiver));
    QVERIFY(timer.has_value());
    QCOMPARE(timer->interval, 300);
    QCOMPARE(timer->timerType, Qt::CoarseTimer);
}

void tst_DelayedInvoker::schedule_again_replaces_data()
{
    QTest::addColumn<int>("msec");
    QTest::addColumn<bool>("isSingleShot");
    QTest::addColumn<QVariantList>("arguments");
    QTest::newRow("the same again") << 300 << true << QVariantList{1};
    QTest::newRow("shorter") << 100 << true << QVariantList{1};
    QTest::newRow("longer") << 1000 << true << QVariantList{1};
    QTest::newRow("repeating") << 300 << false << QVariantList{1};
    QTest::newRow("other argument") << 300 << true << QVariantList{2};
    QTest::newRow("without arguments") << 300 << true << QVariantList();
    QTest::newRow("nine arguments") << 300 << true << nineArguments;
}

void tst_DelayedInvoker::schedule_again_replaces()
{
    QFETCH(const int, msec);
    QFETCH(const bool, isSingleShot);
    QFETCH(const QVariantList, arguments);
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "call", true, {1});
    invoker.call(msec, &receiver, "call", isSingleShot, arguments);
    const int after = invoker.lastTimer(&receiver);

    QCOMPARE(timersOf(&invoker), QSet<int>{after});
    QCOMPARE(timerInfo(&invoker, after)->interval, msec);
    QCOMPARE(invoker.timers(&receiver), QList<int>{after});
    QCOMPARE(invoker.m_timers.size(), std::size_t(1));
    QCOMPARE(invoker.m_timers.at(after).isSingleShot, isSingleShot);
    QCOMPARE(invoker.m_timers.at(after).arguments, arguments);
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedInvoker::schedule_again_comparesNamesByText()
{
    static constexpr char here[] = "tick";
    static constexpr char there[] = {'t', 'i', 'c', 'k', '\0'};
    QVERIFY(static_cast<const void *>(here) != static_cast<const void *>(there));
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, here, true);
    invoker.call(300, &receiver, there, true);
    QCOMPARE(invoker.m_timers.size(), std::size_t(1));
    QCOMPARE(static_cast<const void *>(invoker.m_timers.begin()->second.method), static_cast<const void *>(there));
    QVERIFY(invoker.isActive(&receiver, here));
}

void tst_DelayedInvoker::schedule_again_releasesTheOldArguments()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    const auto value = std::make_shared<int>(1);
    invoker.call(300, &receiver, "call", true, {QVariant::fromValue(value)});
    QVERIFY(value.use_count() > 1);
    invoker.call(300, &receiver, "call", true);
    QCOMPARE(value.use_count(), 1L);
}

void tst_DelayedInvoker::schedule_again_goesToTheEndOfTheIndex()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", true);
    invoker.call(300, &receiver, "tock", true);
    const int tock = invoker.lastTimer(&receiver);
    invoker.call(300, &receiver, "tick", true);
    const int tick = invoker.lastTimer(&receiver);
    QCOMPARE(invoker.timers(&receiver), (QList<int>{tock, tick}));
    QCOMPARE(invoker.m_timers.at(tick).method, "tick");
}

void tst_DelayedInvoker::schedule_ofOtherMethodOrReceiver_keepsBoth()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    CallRecorder other;
    invoker.call(300, &receiver, "tick", true);
    invoker.call(300, &receiver, "Tick", true); // names differ by case
    invoker.call(300, &receiver, "tic", true);
    invoker.call(300, &other, "tick", true);
    QCOMPARE(invoker.m_timers.size(), std::size_t(4));
    QCOMPARE(invoker.timers(&receiver).size(), 3);
    QCOMPARE(invoker.timers(&other).size(), 1);
}

void tst_DelayedInvoker::schedule_withNegativeDelay_onlyEndsThePendingCall()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", true);
    invoker.call(300, &receiver, "tock", true);
    const int tock = invoker.lastTimer(&receiver);
    invoker.call(-1, &receiver, "tick", true);
    QVERIFY(!invoker.isActive(&receiver, "tick"));
    QCOMPARE(invoker.timers(&receiver), QList<int>{tock});
    QCOMPARE(invoker.m_timers.size(), std::size_t(1));
    QCOMPARE(timersOf(&invoker), QSet<int>{tock});
}

void tst_DelayedInvoker::index_isInOrderOfInsertion()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    CallRecorder other;
    QList<int> expected;
    for (const char *method : {"c", "a", "d", "b"}) {
        invoker.call(300, &receiver, method, true);
        expected.append(invoker.lastTimer(&receiver));
        invoker.call(300, &other, method, true);
    }
    QCOMPARE(invoker.timers(&receiver), expected);
    invoker.discard(&receiver, "a");
    expected.removeAt(1);
    QCOMPARE(invoker.timers(&receiver), expected);
}

void tst_DelayedInvoker::discard_withMethod_stopsAfterTheFirstMatch()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", true);
    const int first = invoker.lastTimer(&receiver);
    const int second = invoker.startTimer(300); // a second call of one method, which schedule() does not let come
    invoker.m_timers.emplace(second, CDelayedInvoker::methodData{&receiver, "tick", true, {}});
    invoker.m_receivers.emplace(&receiver, second);

    invoker.discard(&receiver, "tick");
    QCOMPARE(invoker.timers(&receiver), QList<int>{second});
    QCOMPARE(timersOf(&invoker), QSet<int>{second});
    QVERIFY(!invoker.m_timers.contains(first));
    QVERIFY(invoker.isActive(&receiver, "tick"));
}

void tst_DelayedInvoker::discard_withMethod_comparesByText()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", true);
    invoker.call(300, &receiver, "tock", true);
    const QByteArray name("tick");
    invoker.discard(&receiver, name.constData());
    QVERIFY(!invoker.isActive(&receiver, "tick"));
    QVERIFY(invoker.isActive(&receiver, "tock"));
}

void tst_DelayedInvoker::discard_withNullMethod_endsAllOfThatReceiverAndNoOthers()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    CallRecorder other;
    for (const char *method : {"tick", "tock", "call"}) {
        invoker.call(300, &receiver, method, method[1] == 'i');
        invoker.call(300, &other, method, method[1] == 'i');
    }
    const QList<int> others = invoker.timers(&other);
    invoker.discard(&receiver, nullptr);
    QVERIFY(invoker.timers(&receiver).isEmpty());
    QCOMPARE(invoker.timers(&other), others);
    QCOMPARE(invoker.m_timers.size(), std::size_t(3));
    QCOMPARE(timersOf(&invoker), QSet<int>(others.begin(), others.end()));
}

void tst_DelayedInvoker::discard_ofWhatIsNotPending_doesNothing()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    CallRecorder other;
    invoker.discard(&receiver, "tick");
    invoker.discard(&receiver, nullptr);
    invoker.call(300, &receiver, "tick", true);
    invoker.discard(&receiver, "tock");
    invoker.discard(&other, "tick");
    invoker.discard(&other, nullptr);
    invoker.discard(nullptr, "tick");
    invoker.discard(nullptr, nullptr);
    QCOMPARE(timersOf(&invoker), QSet<int>{invoker.lastTimer(&receiver)});
    QVERIFY(invoker.isActive(&receiver, "tick"));
}

void tst_DelayedInvoker::discard_releasesTheArguments()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    const auto value = std::make_shared<int>(1);
    invoker.call(300, &receiver, "call", false, {QVariant::fromValue(value)});
    QVERIFY(value.use_count() > 1);
    invoker.discard(&receiver, "call");
    QCOMPARE(value.use_count(), 1L);
}

void tst_DelayedInvoker::isActive_tellsOfThatReceiverAndMethod()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    CallRecorder other;
    QVERIFY(!invoker.isActive(&receiver, "tick"));
    invoker.call(300, &receiver, "tick", true);
    invoker.call(300, &receiver, "tock", true);
    QVERIFY(invoker.isActive(&receiver, "tick"));
    QVERIFY(invoker.isActive(&receiver, "tock"));
    QVERIFY(invoker.isActive(&receiver, QByteArray("tick").constData()));
    QVERIFY(!invoker.isActive(&receiver, "call"));
    QVERIFY(!invoker.isActive(&receiver, ""));
    QVERIFY(!invoker.isActive(&other, "tick"));
    QVERIFY(!invoker.isActive(nullptr, "tick"));
}

void tst_DelayedInvoker::timerEvent_ofSingleShot_forgetsItBeforeTheCall()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    bool wasForgotten = false;
    receiver.reaction = [&](const RecordedCall & /*call*/) {
        wasForgotten = invoker.m_timers.empty() && invoker.m_receivers.empty() && !invoker.isActive(&receiver, "tick");
    };
    invoker.call(300, &receiver, "tick", true);
    invoker.fire(invoker.lastTimer(&receiver));
    QCOMPARE(receiver.calls.size(), 1);
    QVERIFY(wasForgotten);
}

void tst_DelayedInvoker::timerEvent_ofSingleShot_keepsItsTimerDuringTheCall()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    QSet<int> running;
    receiver.reaction = [&](const RecordedCall & /*call*/) { running = timersOf(&invoker); };
    invoker.call(300, &receiver, "tick", true);
    const int timerId = invoker.lastTimer(&receiver);
    invoker.fire(timerId);
    QCOMPARE(running, QSet<int>{timerId}); // so nothing that the slot starts can get its number
    QVERIFY(timersOf(&invoker).isEmpty());
    invoker.fire(timerId);
    QCOMPARE(receiver.calls.size(), 1);
}

void tst_DelayedInvoker::timerEvent_ofSingleShot_acceptsTheEvent()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", true);
    QVERIFY(invoker.fire(invoker.lastTimer(&receiver)));
}

void tst_DelayedInvoker::timerEvent_ofRepeatingCall_keepsAllAndDoesNotAccept()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    bool isActiveInside = false;
    receiver.reaction = [&](const RecordedCall & /*call*/) { isActiveInside = invoker.isActive(&receiver, "call"); };
    invoker.call(300, &receiver, "call", false, {true, 2});
    const int timerId = invoker.lastTimer(&receiver);
    for (int round = 1; round <= 3; ++round) {
        QVERIFY(!invoker.fire(timerId));
        QCOMPARE(receiver.calls.size(), round);
        QCOMPARE(receiver.calls.last(), (RecordedCall{"call", {true, 2}}));
        QVERIFY(isActiveInside);
        QCOMPARE(invoker.timers(&receiver), QList<int>{timerId});
        QCOMPARE(timersOf(&invoker), QSet<int>{timerId});
    }
}

void tst_DelayedInvoker::timerEvent_ofUnknownTimer_callsNothing()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "tick", true);
    const int foreign = invoker.startTimer(60'000);
    QVERIFY(!invoker.fire(foreign));
    QVERIFY(receiver.calls.isEmpty());
    QVERIFY(timersOf(&invoker).contains(foreign)); // and is not ended
    QCOMPARE(invoker.m_timers.size(), std::size_t(1));
}

void tst_DelayedInvoker::timerEvent_withNullMethod_isReported()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    const int timerId = invoker.startTimer(60'000);
    invoker.m_timers.emplace(timerId, CDelayedInvoker::methodData{&receiver, nullptr, true, {}});
    invoker.m_receivers.emplace(&receiver, timerId);
    QStringList reports;
    {
        const TestSupport::AssertionReports collector;
        invoker.fire(timerId);
        reports = collector.texts();
    }
    QCOMPARE(reports.size(), 1);
    QVERIFY2(reports.first().contains(u"DelayedInvoker.cpp"_qs), qPrintable(reports.first()));
    QVERIFY(receiver.calls.isEmpty());
    QVERIFY(invoker.m_timers.empty());
    QVERIFY(timersOf(&invoker).isEmpty());
}

void tst_DelayedInvoker::timerEvent_withNullMethod_leavesErrorInTheLog()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    OpenInvoker invoker;
    CallRecorder receiver;
    const int timerId = invoker.startTimer(60'000);
    invoker.m_timers.emplace(timerId, CDelayedInvoker::methodData{&receiver, nullptr, true, {}});
    invoker.m_receivers.emplace(&receiver, timerId);
    invoker.fire(timerId);
    QCOMPARE(log.records().size(), 1);
    static const QRegularExpression form(u"^ERROR ZYX_zglv6::CDelayedInvoker::timerEvent: "
                                         "ASSERT in .*DelayedInvoker\\.cpp line \\d+$"_qs);
    QVERIFY2(form.match(log.records().first()).hasMatch(), qPrintable(log.records().first()));
}

void tst_DelayedInvoker::timerEvent_releasesTheArgumentsOfSingleShot()
{
    OpenInvoker invoker;
    std::optional<CallRecorder> receiver(std::in_place);
    const auto value = std::make_shared<int>(1);
    invoker.call(300, &*receiver, "call", true, {QVariant::fromValue(value)});
    const int timerId = invoker.lastTimer(&*receiver);
    receiver.reset(); // as the value can't be passed
    invoker.fire(timerId);
    QCOMPARE(value.use_count(), 1L);
}

void tst_DelayedInvoker::slot_thatSchedulesItselfAnew_getsAFreshTimer()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    receiver.reaction = [&](const RecordedCall &call) {
        const int next = call.arguments.value(1).toInt() + 1;
        invoker.call(300 + next, &receiver, "call", true, {true, next});
    };
    invoker.call(300, &receiver, "call", true, {true, 0});
    for (int round = 0; round < 4; ++round) {
        const int timerId = invoker.lastTimer(&receiver);
        invoker.fire(timerId);
        QCOMPARE(receiver.calls.size(), round + 1);
        QCOMPARE(receiver.calls.last(), (RecordedCall{"call", {true, round}}));
        const int fresh = invoker.lastTimer(&receiver);
        QVERIFY(fresh != timerId);
        QCOMPARE(timersOf(&invoker), QSet<int>{fresh});
        QCOMPARE(timerInfo(&invoker, fresh)->interval, 301 + round);
        QCOMPARE(invoker.m_timers.size(), std::size_t(1));
    }
}

void tst_DelayedInvoker::slot_thatDiscardsItself_data()
{
    QTest::addColumn<bool>("isSingleShot");
    QTest::addColumn<QByteArray>("method");
    QTest::newRow("single shot, by name") << true << QByteArray("tick");
    QTest::newRow("single shot, all") << true << QByteArray();
    QTest::newRow("repeating, by name") << false << QByteArray("tick");
    QTest::newRow("repeating, all") << false << QByteArray();
}

void tst_DelayedInvoker::slot_thatDiscardsItself()
{
    QFETCH(const bool, isSingleShot);
    QFETCH(const QByteArray, method);
    OpenInvoker invoker;
    CallRecorder receiver;
    CallRecorder other;
    receiver.reaction
        = [&](const RecordedCall & /*call*/) { invoker.discard(&receiver, method.isNull() ? nullptr : method.data()); };
    invoker.call(300, &receiver, "tick", isSingleShot);
    const int timerId = invoker.lastTimer(&receiver);
    invoker.call(300, &other, "tick", true);
    invoker.fire(timerId);
    invoker.fire(timerId);
    QCOMPARE(receiver.calls.size(), 1);
    QVERIFY(invoker.timers(&receiver).isEmpty());
    QCOMPARE(timersOf(&invoker), QSet<int>{invoker.lastTimer(&other)});
    QCOMPARE(invoker.m_timers.size(), std::size_t(1));
}

void tst_DelayedInvoker::slot_thatReplacesItsRepeatingCall_leavesOne()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    receiver.reaction = [&](const RecordedCall & /*call*/) { invoker.call(500, &receiver, "tick", true); };
    invoker.call(300, &receiver, "tick", false);
    const int timerId = invoker.lastTimer(&receiver);
    invoker.fire(timerId);
    const int fresh = invoker.lastTimer(&receiver);
    QCOMPARE(timersOf(&invoker), QSet<int>{fresh}); // may have the number of the one that has ended
    QCOMPARE(timerInfo(&invoker, fresh)->interval, 500);
    QVERIFY(invoker.m_timers.at(fresh).isSingleShot);
}

void tst_DelayedInvoker::slot_thatDeletesItsReceiver_data()
{
    QTest::addColumn<bool>("isSingleShot");
    QTest::newRow("single shot") << true;
    QTest::newRow("repeating") << false;
}

void tst_DelayedInvoker::slot_thatDeletesItsReceiver()
{
    QFETCH(const bool, isSingleShot);
    OpenInvoker invoker;
    std::optional<CallRecorder> receiver(std::in_place);
    const QObject *const address = &*receiver;
    int calls = 0;
    receiver->reaction = [&](const RecordedCall & /*call*/) {
        ++calls;
        receiver.reset();
    };
    invoker.call(300, &*receiver, "tick", isSingleShot);
    const int timerId = invoker.lastTimer(address);
    invoker.fire(timerId);
    invoker.fire(timerId);
    QCOMPARE(calls, 1);
    QCOMPARE(invoker.timers(address).isEmpty(), isSingleShot);
    QCOMPARE(timersOf(&invoker).isEmpty(), isSingleShot);
}

void tst_DelayedInvoker::slot_thatFiresAnotherCall_nests()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    receiver.reaction = [&](const RecordedCall &call) {
        if (call.method == "tick") {
            invoker.fire(invoker.lastTimer(&receiver));
        }
    };
    invoker.call(300, &receiver, "tick", true);
    const int tick = invoker.lastTimer(&receiver);
    invoker.call(300, &receiver, "tock", true);
    invoker.fire(tick);
    QCOMPARE(receiver.calls, (QList<RecordedCall>{{"tick", {}}, {"tock", {}}}));
    QVERIFY(invoker.m_timers.empty());
    QVERIFY(invoker.m_receivers.empty());
    QVERIFY(timersOf(&invoker).isEmpty());
}

void tst_DelayedInvoker::slot_thatThrows_data()
{
    slot_thatDeletesItsReceiver_data();
}

void tst_DelayedInvoker::slot_thatThrows()
{
    QFETCH(const bool, isSingleShot);
    OpenInvoker invoker;
    CallRecorder receiver;
    receiver.reaction = [](const RecordedCall & /*call*/) { throw std::runtime_error("no"); };
    invoker.call(300, &receiver, "tick", isSingleShot);
    const int timerId = invoker.lastTimer(&receiver);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, invoker.fire(timerId));
    QCOMPARE(receiver.calls.size(), 1);
    QCOMPARE(timersOf(&invoker).isEmpty(), isSingleShot);
    QCOMPARE(invoker.isActive(&receiver, "tick"), !isSingleShot);
}

void tst_DelayedInvoker::deadReceiver_ofSingleShot_isSkippedAndItsIndexEntryStays()
{
    OpenInvoker invoker;
    std::optional<CallRecorder> receiver(std::in_place);
    const QObject *const address = &*receiver;
    invoker.call(300, &*receiver, "tick", true);
    const int timerId = invoker.lastTimer(address);
    receiver.reset();
    QCOMPARE(invoker.m_timers.size(), std::size_t(1)); // nothing tells the invoker

    QVERIFY(invoker.fire(timerId));
    QVERIFY(invoker.m_timers.empty());
    QCOMPARE(invoker.timers(address), QList<int>{timerId});
    QVERIFY(timersOf(&invoker).isEmpty());
    invoker.discard(address, "tick");
    invoker.discard(address, nullptr);
    QCOMPARE(invoker.timers(address), QList<int>{timerId});
}

void tst_DelayedInvoker::deadReceiver_ofRepeatingCall_isOutOfReachForEver()
{
    OpenInvoker invoker;
    std::optional<CallRecorder> receiver(std::in_place);
    const QObject *const address = &*receiver;
    invoker.call(300, &*receiver, "tick", false);
    const int timerId = invoker.lastTimer(address);
    receiver.reset();
    for (int round = 0; round < 3; ++round) {
        QVERIFY(!invoker.isActive(address, "tick"));
        invoker.discard(address, "tick");
        invoker.discard(address, nullptr);
        QVERIFY(!invoker.fire(timerId));
        QCOMPARE(invoker.m_timers.size(), std::size_t(1));
        QVERIFY(invoker.m_timers.at(timerId).receiver.isNull());
        QCOMPARE(invoker.timers(address), QList<int>{timerId});
        QCOMPARE(timersOf(&invoker), QSet<int>{timerId});
    }
}

void tst_DelayedInvoker::newReceiver_atTheAddressOfADeadOne_hasItsOwnCalls()
{
    OpenInvoker invoker;
    std::optional<CallRecorder> receiver(std::in_place);
    const QObject *const address = &*receiver;
    invoker.call(300, &*receiver, "tick", false);
    const int ghost = invoker.lastTimer(address);
    receiver.reset();
    receiver.emplace();
    QCOMPARE(static_cast<const QObject *>(&*receiver), address);

    QVERIFY(!invoker.isActive(address, "tick"));
    invoker.call(500, &*receiver, "tick", false);
    const int own = invoker.lastTimer(address);
    QCOMPARE(invoker.timers(address), (QList<int>{ghost, own}));
    QVERIFY(invoker.isActive(address, "tick"));
    invoker.fire(ghost);
    QVERIFY(receiver->calls.isEmpty());
    invoker.fire(own);
    QCOMPARE(receiver->calls.size(), 1);

    invoker.discard(address, "tick");
    QVERIFY(!invoker.isActive(address, "tick"));
    QCOMPARE(invoker.timers(address), QList<int>{ghost});
    QCOMPARE(timersOf(&invoker), QSet<int>{ghost});
    invoker.call(500, &*receiver, "tick", true);
    invoker.fire(invoker.lastTimer(address));
    QCOMPARE(receiver->calls.size(), 2);
    QCOMPARE(invoker.timers(address), QList<int>{ghost});
}

void tst_DelayedInvoker::invokeMethod_passesArgumentsInOrder_data()
{
    QTest::addColumn<int>("count");
    for (int count = 0; count <= 9; ++count) {
        QTest::addRow("%d arguments", count) << count;
    }
}

void tst_DelayedInvoker::invokeMethod_passesArgumentsInOrder()
{
    QFETCH(const int, count);
    CallRecorder receiver;
    QVariantList arguments = nineArguments;
    arguments[4] = QVariant::fromValue<QObject *>(this);
    arguments = arguments.first(count);
    QVERIFY(CDelayedInvoker::methodData::invokeMethod(&receiver, "call", arguments));
    QCOMPARE(receiver.calls, (QList<RecordedCall>{{"call", arguments}}));
}

void tst_DelayedInvoker::invokeMethod_withoutReceiverOrMethod_isFalse()
{
    CallRecorder receiver;
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(nullptr, "tick", {}));
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(&receiver, nullptr, {}));
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(nullptr, nullptr, nineArguments));
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedInvoker::invokeMethod_withMoreThanNineArguments_isReportedAndFalse()
{
    CallRecorder receiver;
    QStringList reports;
    bool isCalled = true;
    {
        const TestSupport::AssertionReports collector;
        isCalled = CDelayedInvoker::methodData::invokeMethod(&receiver, "call", nineArguments + QVariantList{10});
        reports = collector.texts();
    }
    QVERIFY(!isCalled);
    QCOMPARE(reports.size(), 1);
    QVERIFY2(reports.first().contains(u"DelayedInvoker.cpp"_qs), qPrintable(reports.first()));
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedInvoker::invokeMethod_withMoreThanNineArguments_leavesErrorInTheLog()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    CallRecorder receiver;
    QVERIFY(CDelayedInvoker::methodData::invokeMethod(&receiver, "call", nineArguments));
    QVERIFY(log.records().isEmpty());
    QVERIFY(!CDelayedInvoker::methodData::invokeMethod(&receiver, "call", nineArguments + QVariantList{10}));
    QCOMPARE(log.records().size(), 1);
    static const QRegularExpression form(u"^ERROR ZYX_zglv6::CDelayedInvoker::methodData::invokeMethod: "
                                         "ASSERT in .*DelayedInvoker\\.cpp line \\d+$"_qs);
    QVERIFY2(form.match(log.records().first()).hasMatch(), qPrintable(log.records().first()));
}

void tst_DelayedInvoker::invokeMethod_withValueOutsideItsVariant_isReportedAndFalse_data()
{
    QTest::addColumn<QVariantList>("arguments");
    QTest::newRow("too big") << QVariantList{QRectF(1, 2, 3, 4)};
    QTest::newRow("not movable") << QVariantList{QVariant::fromValue(NotMovable())};
    QTest::newRow("behind others") << QVariantList{true, 2, QRectF(1, 2, 3, 4)};
    QTest::newRow("as the ninth") << nineArguments.first(8) + QVariantList{QRectF(1, 2, 3, 4)};
}

void tst_DelayedInvoker::invokeMethod_withValueOutsideItsVariant_isReportedAndFalse()
{
    QFETCH(const QVariantList, arguments);
    OpenInvoker invoker;
    CallRecorder receiver;
    QStringList reports;
    bool isCalled = true;
    {
        const TestSupport::AssertionReports collector;
        isCalled = CDelayedInvoker::methodData::invokeMethod(&receiver, "call", arguments);
        invoker.call(300, &receiver, "call", true, arguments);
        invoker.fire(invoker.lastTimer(&receiver));
        reports = collector.texts();
    }
    QVERIFY(!isCalled);
    QCOMPARE(reports.size(), 2);
    QVERIFY2(reports.last().contains(u"DelayedInvoker.cpp"_qs), qPrintable(reports.last()));
    QVERIFY(receiver.calls.isEmpty());
    QVERIFY(timersOf(&invoker).isEmpty());
}

void tst_DelayedInvoker::invokeMethod_withUnfittingCall_makesQtWarn_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<QString>("called");
    QTest::newRow("unknown") << QByteArray("nothing") << QVariantList() << u"nothing()"_qs;
    QTest::newRow("with slot prefix") << QByteArray("1tick") << QVariantList() << u"1tick()"_qs;
    QTest::newRow("with signature") << QByteArray("tick()") << QVariantList() << u"tick()()"_qs;
    QTest::newRow("too many arguments") << QByteArray("tick") << QVariantList{1} << u"tick(int)"_qs;
    QTest::newRow("wrong type") << QByteArray("call") << QVariantList{u"text"_qs} << u"call(QString)"_qs;
    QTest::newRow("wrong order") << QByteArray("call") << QVariantList{1, true} << u"call(int,bool)"_qs;
    QTest::newRow("pointer to a derived class")
        << QByteArray("call") << QVariantList{QVariant::fromValue<QTimer *>(nullptr)} << u"call(QTimer*)"_qs;
}

void tst_DelayedInvoker::invokeMethod_withUnfittingCall_makesQtWarn()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QVariantList, arguments);
    QFETCH(const QString, called);
    CallRecorder receiver;
    const QString warning = u"QMetaObject::invokeMethod: No such method CallRecorder::"_qs + called;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(warning)));
    QVERIFY(CDelayedInvoker::methodData::invokeMethod(&receiver, method, arguments));
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedInvoker::invokeMethod_withEmptyVariant_dropsTheArgumentsFromThereOn()
{
    CallRecorder receiver;
    QVERIFY(CDelayedInvoker::methodData::invokeMethod(&receiver, "call", {true, QVariant(), 2.5}));
    QCOMPARE(receiver.calls, (QList<RecordedCall>{{"call", {true}}}));
}

void tst_DelayedInvoker::unknownMethod_ofRepeatingCall_staysPending()
{
    OpenInvoker invoker;
    CallRecorder receiver;
    invoker.call(300, &receiver, "nothing", false);
    const int timerId = invoker.lastTimer(&receiver);
    for (int round = 0; round < 2; ++round) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"No such method CallRecorder::nothing\\(\\)"_qs));
        invoker.fire(timerId);
        QVERIFY(invoker.isActive(&receiver, "nothing"));
    }
    QCOMPARE(timersOf(&invoker), QSet<int>{timerId});
}

void tst_DelayedInvoker::destructor_dropsPendingCalls()
{
    CallRecorder receiver;
    const auto value = std::make_shared<int>(1);
    std::optional<OpenInvoker> invoker(std::in_place);
    invoker->call(0, &receiver, "call", true, {QVariant::fromValue(value)});
    invoker->call(0, &receiver, "tick", false);
    invoker.reset();
    QCOMPARE(value.use_count(), 1L);
    QTest::qWait(0);
    QVERIFY(receiver.calls.isEmpty());
}

void tst_DelayedInvoker::randomCalls_agreeWithTheModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {11U, 222U, 3333U, 44444U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void tst_DelayedInvoker::randomCalls_agreeWithTheModel()
{
    QFETCH(const quint32, seed);
    constexpr int steps = 3000;
    qInfo("seed %u", seed);
    InvokerSubject subject;
    RandomCalls random(subject, seed);
    for (int step = 0; step < steps; ++step) {
        const QString behaviour = random.step();
        QVERIFY2(behaviour.isEmpty(), qPrintable(u"step %1: %2"_qs.arg(step).arg(behaviour)));
        const QString maps = subject.difference(random.model());
        QVERIFY2(maps.isEmpty(), qPrintable(u"step %1: %2"_qs.arg(step).arg(maps)));
    }
    QVERIFY(random.firings() > steps / 4);
}

QTEST_GUILESS_MAIN(tst_DelayedInvoker)
#include "tst_DelayedInvoker.moc"
