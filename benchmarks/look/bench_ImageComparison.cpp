// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// Comparing two photographs of 24 megapixels beside the same sum of another library, and beside reading both once.

#include "utilsDll/look/ImageComparison.h"

#include <QtCore/QRandomGenerator>
#include <QtGui/QImage>

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr QSize photograph(6000, 4000);

QImage randomImage(quint32 seed)
{
    QImage image(photograph, QImage::Format_RGB32);
    QRandomGenerator generator(seed);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::generate_n(line, image.width(), [&generator] { return generator.generate() | 0xff000000U; });
    }
    return image;
}

const QImage &first()
{
    static const QImage image = randomImage(1);
    return image;
}

const QImage &second()
{
    static const QImage image = randomImage(2);
    return image;
}

cv::Mat matrixOf(const QImage &image)
{
    return cv::Mat(image.height(), image.width(), CV_8UC4, const_cast<uchar *>(image.constBits()),
                   std::size_t(image.bytesPerLine()));
}

void compare_readingOnce(benchmark::State &state)
{
    const auto sumOf = [](const QImage &image) {
        const auto *words = reinterpret_cast<const quint64 *>(image.constBits());
        return std::accumulate(words, words + image.sizeInBytes() / qsizetype(sizeof *words), quint64(0));
    };
    benchmark::DoNotOptimize(sumOf(first()) + sumOf(second()));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(sumOf(first()) + sumOf(second()));
    }
}

void compare_opencv(benchmark::State &state)
{
    cv::setNumThreads(1);
    const cv::Mat one = matrixOf(first());
    const cv::Mat other = matrixOf(second());
    benchmark::DoNotOptimize(cv::norm(one, other, cv::NORM_L1));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(cv::norm(one, other, cv::NORM_L1));
    }
}

void compare_here(benchmark::State &state)
{
    double difference = 0.0;
    ZYX_zglv6::compareImages(first(), second(), 0.0, &difference);
    for ([[maybe_unused]] auto round : state) {
        ZYX_zglv6::compareImages(first(), second(), 0.0, &difference);
        benchmark::DoNotOptimize(difference);
    }
    const double perChannel = cv::norm(matrixOf(first()), matrixOf(second()), cv::NORM_L1)
        / (3.0 * photograph.width() * photograph.height()) / 255.0 * 100.0;
    if (std::abs(difference - perChannel) > 1e-9) {
        state.SkipWithError("another difference");
    }
}

BENCHMARK(compare_readingOnce)->Unit(benchmark::kMillisecond);
BENCHMARK(compare_opencv)->Unit(benchmark::kMillisecond);
BENCHMARK(compare_here)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
