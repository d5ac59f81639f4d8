// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// A frame of 100 megapixels in 16 bits, handed over in files: beside one call of write() or read() for the same bytes.
// The files are in the system's cache. The peak of the memory is the one of a process that does it once, beyond the
// frame that it hands over.

#include "PeakMemory.h"

#include "hostExchange/PhotoshopDataStructure.h"
#include "support/Sandbox.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <new>

namespace {

constexpr int side = 10'000; // pixels
constexpr int depth = 16;
constexpr std::size_t frameSize = std::size_t(side) * side * 3 * depth / 8;
constexpr std::size_t pieceSize = std::size_t(1) << 30; // read() and write() take no 2 GiB at once

struct FreeFrame
{
    void operator()(char *frame) const
    {
        ::operator delete(frame);
    }
};
using Frame = std::unique_ptr<char, FreeFrame>;

Frame newFrame()
{
    return Frame(static_cast<char *>(::operator new(frameSize)));
}

/*! Bytes that no file system can leave out. */
const char *frame()
{
    static const Frame bytes = [] {
        Frame made = newFrame();
        for (std::size_t i = 0; i < frameSize; ++i) {
            made.get()[i] = char(i * 31 + (i >> 12));
        }
        return made;
    }();
    return bytes.get();
}

QByteArray imageFileOf(const QByteArray &path)
{
    return path + "-image";
}

bool save(const QByteArray &path)
{
    return ZYX_zglv6::PhotoshopDataStructure(path.toStdString()).save(frame(), side, side, depth);
}

bool writePlainly(const QByteArray &path)
{
    const int file = ::open(imageFileOf(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    std::size_t done = 0;
    for (ssize_t count = 1; done < frameSize && count > 0; done += std::size_t(std::max<ssize_t>(count, 0))) {
        count = ::write(file, frame() + done, std::min(pieceSize, frameSize - done));
    }
    return ::close(file) == 0 && done == frameSize;
}

bool load(const QByteArray &path)
{
    char *pixels = nullptr;
    const bool isRead = ZYX_zglv6::PhotoshopDataStructure(path.toStdString()).load(&pixels);
    const Frame owned(pixels);
    return isRead && owned != nullptr;
}

bool readPlainly(const QByteArray &path)
{
    const Frame pixels = newFrame();
    const int file = ::open(imageFileOf(path).constData(), O_RDONLY | O_CLOEXEC);
    std::size_t done = 0;
    for (ssize_t count = 1; done < frameSize && count > 0; done += std::size_t(std::max<ssize_t>(count, 0))) {
        count = ::read(file, pixels.get() + done, std::min(pieceSize, frameSize - done));
    }
    benchmark::DoNotOptimize(pixels.get());
    return ::close(file) == 0 && done == frameSize;
}

struct Candidate
{
    const char *name;
    bool (*work)(const QByteArray &path);
    bool hasFrame; // before it begins
};

constexpr Candidate candidates[] = {
    {"save_library", save, true},
    {"save_write", writePlainly, true},
    {"load_library", load, false},
    {"load_read", readPlainly, false},
};

bool doOnce(const Candidate *candidate, const QByteArray &path)
{
    return candidate != std::end(candidates) && candidate->work(path);
}

int printPeakOf(const QByteArray &name, const QByteArray &path)
{
    const auto *candidate = std::find_if(std::begin(candidates), std::end(candidates),
                                         [&name](const Candidate &one) { return name == one.name; });
    if (candidate != std::end(candidates) && candidate->hasFrame) {
        frame();
    }
    return printPeak([&] { return doOnce(candidate, path); });
}

void measure(benchmark::State &state, const Candidate &candidate, const QByteArray &path)
{
    frame(); // in all, so that they differ in nothing else
    for ([[maybe_unused]] auto round : state) {
        if (!candidate.work(path)) {
            state.SkipWithError("the frame was not handed over");
            return;
        }
    }
    state.SetBytesProcessed(state.iterations() * qint64(frameSize));
    state.counters["peak_MiB"] = peakInOwnProcess({QLatin1StringView(candidate.name), QFile::decodeName(path)});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 4 && QByteArray(argv[1]) == "--peak") {
        return printPeakOf(argv[2], argv[3]);
    }
    const TestSupport::Sandbox sandbox;
    const QByteArray path = QFile::encodeName(sandbox.filePath(u"record"_qs));
    if (!save(path)) {
        return 1;
    }
    for (const Candidate &candidate : candidates) {
        benchmark::RegisterBenchmark(candidate.name, measure, candidate, path)
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
