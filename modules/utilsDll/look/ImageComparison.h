// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

class QImage;

namespace ZYX_zglv6 {

enum imgCmpResult {
    imgCmpNullImage = 0, //!< at least one image is null
    imgCmpSizeDiffers = 1,
    imgCmpEqual = 2, //!< the difference is at or below the threshold
    imgCmpDifferent = 3
};

/*!
    Compares the colours of two images, without regard to alpha. \a difference, which may be null, gets the
    mean difference of a channel in percent, 0 to 100; it stays as it is where an image is null or the sizes
    differ.

    For images of 32 bits a pixel (QImage::Format_RGB32, Format_ARGB32): the format is not looked at, and
    bytes of others are taken for such pixels. The number of channels is counted in 32 bits: from 715,827,883
    pixels on it wraps round, and the percentage is of no use.

    The sum is the one of adding up pixel by pixel in row order, to its last bit, on every processor. Safe
    from any thread.
*/
UTILSDLL_EXPORT imgCmpResult compareImages(const QImage &first, const QImage &second, double threshold,
                                           double *difference);

} // namespace ZYX_zglv6
