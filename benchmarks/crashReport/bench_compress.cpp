// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// Packing and unpacking a folder, of few long files and of many short ones: beside the programs zip and unzip, beside
// another library, and beside copying with a checksum, into files of their own and into or out of a single one. The
// files are in the system's cache. CPU time is that of this process and of the programs; the peak of the memory is the
// one of a process that does it once and nothing else.

#include "PeakMemory.h"
#include "PlainCopies.h"
#include "TestFolder.h"

#ifdef HAS_LIBZIP
#include "LibzipArchives.h"
#endif

#include "support/Sandbox.h"
#include "utilsDll/crashReport/compress.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>

#include <benchmark/benchmark.h>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <string>

namespace {

constexpr Load loads[] = {{"50x10MB", 50, 10'000'000}, {"20000x1KiB", 20'000, 1'024}};

/*! Where everything is written to; set in main(). */
const TestSupport::Sandbox *sandbox = nullptr;

bool packByLibrary(const TestFolder &folder)
{
    return ZYX_zglv6::CompressDir(QDir(folder.sources), QFileInfo(folder.packed));
}

bool unpackByLibrary(const TestFolder &folder)
{
    return !ZYX_zglv6::DecompressFiles(QFileInfo(folder.archive), QDir(folder.unpacked), QString()); // false is success
}

bool runProgram(const QString &name, const QStringList &arguments, const QString &workingFolder)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setWorkingDirectory(workingFolder);
    process.start(name, arguments);
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool packByZip(const TestFolder &folder)
{
    return runProgram(u"zip"_qs, {u"-0"_qs, u"-q"_qs, u"-r"_qs, folder.packed, u"."_qs}, folder.sources);
}

bool unpackByUnzip(const TestFolder &folder)
{
    return runProgram(u"unzip"_qs, {u"-q"_qs, folder.archive, u"-d"_qs, folder.unpacked}, folder.sources);
}

bool appendAll(const TestFolder &folder)
{
    return appendFiles(folder, folder.packed);
}

struct Candidate
{
    const char *name;
    bool (*work)(const TestFolder &folder);
    bool (TestFolder::*isDone)(const Load &load) const;
    const char *program; // that does the work; null: this process
};

constexpr Candidate candidates[] = {
    {"pack_library", packByLibrary, &TestFolder::isPacked, nullptr},
    {"pack_zip", packByZip, &TestFolder::isPacked, "zip"},
#ifdef HAS_LIBZIP
    {"pack_libzip", packByLibzip, &TestFolder::isPacked, nullptr},
#endif
    {"pack_copying", copyIn, &TestFolder::isUnpacked, nullptr},
    {"pack_appending", appendAll, &TestFolder::isPacked, nullptr},
    {"unpack_library", unpackByLibrary, &TestFolder::isUnpacked, nullptr},
    {"unpack_unzip", unpackByUnzip, &TestFolder::isUnpacked, "unzip"},
#ifdef HAS_LIBZIP
    {"unpack_libzip", unpackByLibzip, &TestFolder::isUnpacked, nullptr},
#endif
    {"unpack_copying", copyOut, &TestFolder::isUnpacked, nullptr},
    {"unpack_cutting", cutFiles, &TestFolder::isUnpacked, nullptr},
};

double cpuSecondsOf(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    const auto seconds = [](const timeval &time) { return double(time.tv_sec) + double(time.tv_usec) * 1e-6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double cpuSeconds()
{
    return cpuSecondsOf(RUSAGE_SELF) + cpuSecondsOf(RUSAGE_CHILDREN);
}

bool doOnce(const QByteArray &name, const QString &folder)
{
    const auto *candidate = std::find_if(std::begin(candidates), std::end(candidates),
                                         [&name](const Candidate &one) { return name == one.name; });
    return candidate != std::end(candidates) && candidate->work(TestFolder(folder));
}

void measure(benchmark::State &state, const Candidate &candidate, const Load &load)
{
    using Clock = std::chrono::steady_clock;
    const QString path = sandbox->filePath(QString::fromLatin1(load.name));
    const TestFolder folder(path);
    if (!folder.make(load)) {
        state.SkipWithError("the files could not be made");
        return;
    }
    double cpu = 0;
    for ([[maybe_unused]] auto round : state) {
        if (!folder.clear()) {
            state.SkipWithError("the files of the last round could not be removed");
            return;
        }
        const double cpuBefore = cpuSeconds();
        const Clock::time_point start = Clock::now();
        const bool works = candidate.work(folder);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        cpu += cpuSeconds() - cpuBefore;
        if (!works || !(folder.*candidate.isDone)(load)) {
            state.SkipWithError("not all has arrived");
            return;
        }
    }
    state.counters["cpu_ms"] = benchmark::Counter(cpu * 1000, benchmark::Counter::kAvgIterations);
    if (candidate.program == nullptr && folder.clear()) {
        state.counters["peak_MiB"] = peakInOwnProcess({QLatin1StringView(candidate.name), path});
    }
}

void add(const Candidate &candidate, const Load &load)
{
    if (candidate.program != nullptr
        && QStandardPaths::findExecutable(QLatin1StringView(candidate.program)).isEmpty()) {
        return;
    }
    const std::string name = std::string(candidate.name) + '/' + load.name;
    benchmark::RegisterBenchmark(name.c_str(), measure, candidate, load)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 4 && QByteArray(argv[1]) == "--peak") {
        return printPeak([argv] { return doOnce(argv[2], QFile::decodeName(argv[3])); });
    }
    const TestSupport::Sandbox ownSandbox;
    sandbox = &ownSandbox;
    for (const Load &load : loads) {
        for (const Candidate &candidate : candidates) {
            add(candidate, load);
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
