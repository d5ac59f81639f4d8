// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// What asking for a delayed call, replacing it and discarding it costs while others are pending; each beside
// QTimer::singleShot() with a context object, and beside a QTimer for each call.

#include "utilsDll/eventLoop/DelayedCall.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <random>
#include <vector>

namespace {

using ZYX_zglv6::CDelayedCall;

constexpr std::array methods{"m0", "m1", "m2", "m3", "m4", "m5", "m6", "m7", "m8", "m9"};

/*! Far enough that nothing fires, and scattered, so that Qt has to sort its timers. */
int delay(std::size_t i)
{
    return 600'000 + static_cast<int>(i * 7919 % 100'003);
}

/*! Where the pending calls are: on \a receivers objects, \a each on each. */
struct Load
{
    std::size_t receivers;
    std::size_t each;

    std::size_t pending() const
    {
        return receivers * each;
    }
};

/*! Those of the pending calls that are worked on in one round, so few that there are hardly more or less of them. */
std::vector<std::size_t> chosen(Load load)
{
    std::vector<std::size_t> calls(load.pending());
    for (std::size_t i = 0; i < calls.size(); ++i) {
        calls[i] = i;
    }
    std::mt19937 random(1); // NOLINT(cert-msc*): the same in each run
    std::shuffle(calls.begin(), calls.end(), random);
    calls.resize(std::max<std::size_t>(1, calls.size() / 10));
    return calls;
}

class Library
{
public:
    explicit Library(Load load)
        : m_load(load)
        , m_receivers(load.receivers)
    {
    }

    ~Library()
    {
        clear(); // nothing of it is left for the next measurement
    }

    Q_DISABLE_COPY_MOVE(Library)

    void fill()
    {
        clear();
        for (std::size_t i = 0; i < m_load.pending(); ++i) {
            replace(i);
        }
    }

    void clear()
    {
        for (QObject &receiver : m_receivers) {
            m_calls.discard(&receiver, nullptr);
        }
    }

    void schedule(std::size_t i)
    {
        // by another method than the pending ones, which it would replace
        m_calls.invoke(delay(i), &m_receivers[i / m_load.each], further(i), true);
    }

    void replace(std::size_t i)
    {
        m_calls.invoke(delay(i), &m_receivers[i / m_load.each], methods[i % m_load.each], true);
    }

    void discard(std::size_t i)
    {
        m_calls.discard(&m_receivers[i / m_load.each], methods[i % m_load.each]);
    }

    bool isActive(std::size_t i) const
    {
        return m_calls.isActive(const_cast<QObject *>(&m_receivers[i / m_load.each]), methods[i % m_load.each]);
    }

private:
    static const char *further(std::size_t i)
    {
        static constexpr std::array names{"f0", "f1", "f2", "f3", "f4", "f5", "f6", "f7", "f8", "f9"};
        return names[i % names.size()];
    }

    CDelayedCall &m_calls = Singleton<CDelayedCall>::instance();
    Load m_load;
    std::vector<QObject> m_receivers;
};

/*!
    QTimer::singleShot() with a context object for each call. To discard is to destroy that object: then the slot is not
    called, but the timer stays in Qt's list and fires for nothing when its time comes.
*/
class SingleShot
{
public:
    explicit SingleShot(Load load)
        : m_contexts(load.pending())
    {
    }

    ~SingleShot()
    {
        clear();
    }

    Q_DISABLE_COPY_MOVE(SingleShot)

    void fill()
    {
        clear();
        for (std::size_t i = 0; i < m_contexts.size(); ++i) {
            replace(i);
        }
    }

    void clear()
    {
        std::fill(m_contexts.begin(), m_contexts.end(), nullptr);
        m_further.clear();
        const QObjectList timers = QAbstractEventDispatcher::instance()->children();
        for (QObject *timer : timers) {
            if (timer->inherits("QSingleShotTimer")) {
                delete timer; // as if its time had come
            }
        }
    }

    void schedule(std::size_t i)
    {
        m_further.push_back(call(i));
    }

    void replace(std::size_t i)
    {
        m_contexts[i] = call(i);
    }

    void discard(std::size_t i)
    {
        m_contexts[i].reset();
    }

private:
    static std::unique_ptr<QObject> call(std::size_t i)
    {
        auto context = std::make_unique<QObject>();
        QTimer::singleShot(delay(i), Qt::CoarseTimer, context.get(), [] {});
        return context;
    }

    std::vector<std::unique_ptr<QObject>> m_contexts;
    std::vector<std::unique_ptr<QObject>> m_further;
};

/*! A QTimer for each call, which ends its timer as the library does. */
class TimerObject
{
public:
    explicit TimerObject(Load load)
        : m_timers(load.pending())
    {
    }

    void fill()
    {
        m_further.clear();
        for (std::size_t i = 0; i < m_timers.size(); ++i) {
            replace(i);
        }
    }

    void schedule(std::size_t i)
    {
        m_further.push_back(call(i));
    }

    void replace(std::size_t i)
    {
        m_timers[i] = call(i);
    }

    void discard(std::size_t i)
    {
        m_timers[i].reset();
    }

private:
    static std::unique_ptr<QTimer> call(std::size_t i)
    {
        auto timer = std::make_unique<QTimer>();
        timer->setSingleShot(true);
        timer->setTimerType(Qt::CoarseTimer);
        QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [] {});
        timer->start(delay(i));
        return timer;
    }

    std::vector<std::unique_ptr<QTimer>> m_timers;
    std::vector<std::unique_ptr<QTimer>> m_further;
};

/*! Time of one \a operation while \a load is pending. */
template <typename Calls>
void run(benchmark::State &state, Load load, void (Calls::*operation)(std::size_t))
{
    const std::vector<std::size_t> worked = chosen(load);
    Calls calls(load);
    for ([[maybe_unused]] auto round : state) {
        calls.fill();
        const auto before = std::chrono::steady_clock::now();
        for (const std::size_t i : worked) {
            (calls.*operation)(i);
        }
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - before;
        state.SetIterationTime(time.count() / static_cast<double>(worked.size()));
    }
}

/*! Time of finding a call among those of \a load: the library alone, as Qt's timers have no part in it. */
void find(benchmark::State &state, Load load)
{
    const std::vector<std::size_t> worked = chosen(load);
    Library calls(load);
    calls.fill();
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(worked.size()))) {
        for (const std::size_t i : worked) {
            benchmark::DoNotOptimize(calls.isActive(i));
        }
    }
}

template <typename Calls>
void add(const std::string &peer, Load load)
{
    const std::string ending = "_" + peer + "/" + std::to_string(load.pending());
    const int rounds = load.pending() < 1000 ? 501 : 11; // odd, so that the median is one of them
    for (const auto &[name, operation] :
         {std::pair("schedule", &Calls::schedule), std::pair("replace", &Calls::replace),
          std::pair("discard", &Calls::discard)}) {
        benchmark::RegisterBenchmark((name + ending).c_str(), run<Calls>, load, operation)
            ->UseManualTime()
            ->Iterations(1)
            ->Repetitions(rounds)
            ->ReportAggregatesOnly();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    for (const Load load : {Load{1, 1}, Load{10, 10}, Load{1000, 10}}) {
        add<Library>("library", load);
        add<SingleShot>("singleShot", load);
        add<TimerObject>("QTimer", load);
    }
    for (const std::size_t receivers : std::initializer_list<std::size_t>{1U, 10U, 100U, 1000U, 10'000U}) {
        const std::string name = "isActive_library/receivers:" + std::to_string(receivers);
        benchmark::RegisterBenchmark(name.c_str(), find, Load{receivers, 1});
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
