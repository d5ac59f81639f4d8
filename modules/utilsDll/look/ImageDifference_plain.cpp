// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/ImageDifference_p.h"

namespace ImageDifference {

double addPixelsByVectors(double sum, const unsigned char *first, const unsigned char *second, std::size_t count)
{
    return addPixels(sum, first, second, count);
}

} // namespace ImageDifference
