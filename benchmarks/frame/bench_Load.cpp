// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// What loading the library costs a process that has Qt and the other dependencies loaded already; each load in a
// process of its own, beside that of an empty module in such a process.

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>

#include <benchmark/benchmark.h>

namespace {

constexpr int processes = 101; // odd, so that the median is one of them

struct Load
{
    double seconds = 0;
    double minorFaults = 0;
    double residentKibibytes = 0;
    QStringList loaded;
};

/*! Loads \a module in a fresh process, after \a dependencies. Nothing is loaded if that failed. */
Load loadInFreshProcess(const QString &module, const QStringList &dependencies)
{
    QProcess probe;
    probe.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    probe.start(QStringLiteral(LOAD_PROBE), QStringList(module) + dependencies);
    if (!probe.waitForFinished() || probe.exitCode() != 0) {
        return {};
    }
    QStringList lines = QString::fromLocal8Bit(probe.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    const QStringList numbers = lines.takeFirst().split(u' ');
    return {numbers.value(0).toDouble() * 1e-9, numbers.value(1).toDouble(), numbers.value(2).toDouble(), lines};
}

/*! What the library brings along. */
QStringList dependenciesOfLibrary()
{
    static const QStringList dependencies = [] {
        QStringList loaded = loadInFreshProcess(QStringLiteral(LIBRARY), {}).loaded;
        loaded.removeAll(QStringLiteral(LIBRARY));
        return loaded;
    }();
    return dependencies;
}

void load(benchmark::State &state, const QString &module)
{
    const QStringList dependencies = dependenciesOfLibrary();
    for ([[maybe_unused]] auto round : state) {
        const Load load = loadInFreshProcess(module, dependencies);
        if (load.loaded.isEmpty()) {
            state.SkipWithError("The module could not be loaded.");
            return;
        }
        state.SetIterationTime(load.seconds);
        state.counters["minorFaults"] = load.minorFaults;
        state.counters["residentKiB"] = load.residentKibibytes;
    }
}

void add(const char *name, const QString &module)
{
    benchmark::RegisterBenchmark(name, load, module)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(processes)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    add("load_emptyModule", QStringLiteral(EMPTY_MODULE));
    add("load_library", QStringLiteral(LIBRARY));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
