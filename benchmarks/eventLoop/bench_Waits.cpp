// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// How long a wait goes on after another thread has set its flag; beside an event loop that the other thread ends.

#include "utilsDll/eventLoop/Waits.h"

#include <QtCore/QAtomicInt>
#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto untilWaiting = std::chrono::microseconds(200); // by then the wait has begun

/*! Time from \a report, on another thread, to the return of \a wait. */
void measure(benchmark::State &state, const std::function<void()> &wait, const std::function<void()> &report)
{
    for ([[maybe_unused]] auto round : state) {
        Clock::time_point reported;
        std::thread other([&] {
            const auto start = Clock::now();
            while (Clock::now() < start + untilWaiting) { }
            reported = Clock::now();
            report();
        });
        wait();
        const auto returned = Clock::now();
        other.join();
        state.SetIterationTime(std::chrono::duration<double>(returned - reported).count());
    }
}

/*! A thread that is not let run for a while makes the mean meaningless: see the median and the shortest time. */
void eachAlone(benchmark::internal::Benchmark *benchmark)
{
    benchmark->UseManualTime()->Iterations(1)->Repetitions(1001)->ReportAggregatesOnly();
    benchmark->ComputeStatistics(
        "min", [](const std::vector<double> &times) { return *std::min_element(times.begin(), times.end()); });
}

void wait_nonBlocking(benchmark::State &state, bool excludeUserInput)
{
    QAtomicInt flag = 0;
    measure(
        state,
        [&] {
            waitNonBlockingAtomicIntValue(flag, 1, excludeUserInput);
            flag.storeRelaxed(0);
        },
        [&] { flag.storeRelease(1); });
}
BENCHMARK_CAPTURE(wait_nonBlocking, inputLetIn, false)->Apply(eachAlone);
BENCHMARK_CAPTURE(wait_nonBlocking, inputHeldOut, true)->Apply(eachAlone);

void wait_blocking(benchmark::State &state)
{
    QAtomicInt flag = 0;
    measure(
        state,
        [&] {
            waitBlockingAtomicIntValue(flag, 1);
            flag.storeRelaxed(0);
        },
        [&] { flag.storeRelease(1); });
}
BENCHMARK(wait_blocking)->Apply(eachAlone);

void wait_eventLoop(benchmark::State &state)
{
    QEventLoop loop;
    measure(
        state, [&] { loop.exec(); },
        [&] { QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection); });
}
BENCHMARK(wait_eventLoop)->Apply(eachAlone);

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
