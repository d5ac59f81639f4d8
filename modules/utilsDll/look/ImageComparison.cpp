// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/ImageComparison.h"

#include "utilsDll/look/ImageDifference_p.h"

#include <QtGui/QImage>

#include <algorithm>
#include <cstdint>

namespace ZYX_zglv6 {

namespace {

/*! As many as a row has of whole ones, whatever its format. Not its padding, which the last row may not have. */
qsizetype pixelsInRow(const QImage &image)
{
    constexpr int bitsOfPixel = 8 * int(ImageDifference::pixelSize);
    return std::min<qsizetype>(image.width(), qsizetype(image.width()) * image.depth() / bitsOfPixel);
}

std::int32_t channelCount(const QImage &image)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(image.width())
                                     * static_cast<std::uint32_t>(image.height()) * 3U);
}

} // namespace

imgCmpResult compareImages(const QImage &first, const QImage &second, double threshold, double *difference)
{
    if (first.isNull() || second.isNull()) {
        return imgCmpNullImage;
    }
    if (first.size() != second.size()) {
        return imgCmpSizeDiffers;
    }
    const ImageDifference::AddPixels add = ImageDifference::fastest();
    const auto count = static_cast<std::size_t>(std::min(pixelsInRow(first), pixelsInRow(second)));
    double sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        sum = add(sum, first.constScanLine(y), second.constScanLine(y), count);
    }
    const double percent = sum * 100.0 / channelCount(first);
    if (difference) {
        *difference = percent;
    }
    return percent > threshold ? imgCmpDifferent : imgCmpEqual;
}

} // namespace ZYX_zglv6
