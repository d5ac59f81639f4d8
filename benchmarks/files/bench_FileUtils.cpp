// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// Stepping through a folder of 10,000 files beside its listing alone, and a copy of a tree beside the program cp. The
// files are in the system's cache.

#include "support/Sandbox.h"
#include "utilsDll/files/FileUtils.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

constexpr int fileCount = 10'000;
constexpr int treeWidth = 100; // folders, with as many files each
constexpr int fileSize = 10'000;

/*! Where everything is written to; set in main(). */
const TestSupport::Sandbox *sandbox = nullptr;

bool writeFile(const QString &path, int size)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray(size, 'x')) == size;
}

/*! A folder of short files, as a camera names them. */
QDir photographs()
{
    QDir folder(sandbox->filePath(u"photographs"_qs));
    if (!folder.exists()) {
        folder.mkpath(u"."_qs);
        for (int i = 0; i < fileCount; ++i) {
            writeFile(folder.filePath(u"IMG_%1.JPG"_qs.arg(i, 5, 10, QLatin1Char('0'))), 0);
        }
    }
    return folder;
}

void neighbour_listing(benchmark::State &state)
{
    const QString path = photographs().path();
    for ([[maybe_unused]] auto round : state) {
        QStringList names
            = QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Name | QDir::IgnoreCase);
        benchmark::DoNotOptimize(names);
    }
}

void neighbour_next(benchmark::State &state)
{
    const QString middle = photographs().filePath(u"IMG_05000.JPG"_qs);
    for ([[maybe_unused]] auto round : state) {
        QString next = ZYX_zglv6::getNextFilePath(middle);
        if (!next.endsWith(u"IMG_05001.JPG")) {
            state.SkipWithError("another neighbour");
            return;
        }
    }
}

QString tree()
{
    QString path = sandbox->filePath(u"tree"_qs);
    const QDir top(path);
    for (int i = 0; i < treeWidth && !top.exists(u"%1"_qs.arg(treeWidth - 1)); ++i) {
        const QDir folder(top.filePath(QString::number(i)));
        folder.mkpath(u"."_qs);
        for (int j = 0; j < treeWidth; ++j) {
            writeFile(folder.filePath(QString::number(j)), fileSize);
        }
    }
    return path;
}

bool copyByLibrary(const QString &source, const QString &target)
{
    return ZYX_zglv6::copyRecursively(source, target);
}

bool copyByCp(const QString &source, const QString &target)
{
    return QProcess::execute(u"cp"_qs, {u"-r"_qs, source, target}) == 0;
}

void copy(benchmark::State &state, bool (*work)(const QString &, const QString &))
{
    using Clock = std::chrono::steady_clock;
    const QString source = tree();
    const QString target = sandbox->filePath(u"copy"_qs);
    for ([[maybe_unused]] auto round : state) {
        QDir(target).removeRecursively();
        const Clock::time_point start = Clock::now();
        const bool isCopied = work(source, target);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        if (!isCopied) {
            state.SkipWithError("the tree was not copied");
            return;
        }
    }
    state.SetItemsProcessed(state.iterations() * treeWidth * treeWidth);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const TestSupport::Sandbox ownSandbox;
    sandbox = &ownSandbox;
    benchmark::RegisterBenchmark("neighbour_listing", neighbour_listing)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("neighbour_next", neighbour_next)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("copy_library", copy, copyByLibrary)->UseManualTime()->Unit(benchmark::kMillisecond);
    if (!QStandardPaths::findExecutable(u"cp"_qs).isEmpty()) {
        benchmark::RegisterBenchmark("copy_cp", copy, copyByCp)->UseManualTime()->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
