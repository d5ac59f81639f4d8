// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/ImageDifference_p.h"

namespace ImageDifference {

double addPixelsByVectors(double sum, const std::uint32_t *first, const std::uint32_t *second, std::size_t count)
{
    return addPixels(sum, first, second, count);
}

} // namespace ImageDifference
