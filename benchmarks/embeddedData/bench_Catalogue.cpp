// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// Opening the embedded calibration catalogue and copying it out, beside inflating the same bytes and copying such a
// file.

#include "PeakMemory.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

const QString catalogue = QStringLiteral(":/calibration/db/CAFList5.db");

bool openCatalogue()
{
    QFile file(catalogue);
    return file.open(QIODevice::ReadOnly) && file.read(16).startsWith("SQLite format 3");
}

void open_library(benchmark::State &state)
{
    for ([[maybe_unused]] auto round : state) {
        if (!openCatalogue()) {
            state.SkipWithError("The catalogue can't be read.");
            return;
        }
    }
    state.counters["peak_MiB"] = peakInOwnProcess({});
}

void open_inflate(benchmark::State &state)
{
    const QResource resource(catalogue);
    for ([[maybe_unused]] auto round : state) {
        const QByteArray content = qUncompress(resource.data(), resource.size());
        if (content.size() != resource.uncompressedSize()) {
            state.SkipWithError("The catalogue can't be inflated.");
            return;
        }
    }
}

void copyOf(benchmark::State &state, const QString &source)
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    for ([[maybe_unused]] auto round : state) {
        if (!QFile::copy(source, copy)) {
            state.SkipWithError("The copy can't be written.");
            return;
        }
        state.PauseTiming();
        QFile::remove(copy);
        state.ResumeTiming();
    }
}

void copyOut_library(benchmark::State &state)
{
    copyOf(state, catalogue);
}

void copyOut_plainFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString plain = folder.filePath(QStringLiteral("plain.db"));
    QFile::copy(catalogue, plain);
    copyOf(state, plain);
}

} // namespace

BENCHMARK(open_library)->Unit(benchmark::kMillisecond);
BENCHMARK(open_inflate)->Unit(benchmark::kMillisecond);
BENCHMARK(copyOut_library)->Unit(benchmark::kMillisecond);
BENCHMARK(copyOut_plainFile)->Unit(benchmark::kMillisecond);

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    ZYX_zglv6::initQtResources();
    if (argc == 2 && qstrcmp(argv[1], "--peak") == 0) {
        return printPeak(openCatalogue);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
