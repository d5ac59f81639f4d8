// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Processor.h"

#include <windows.h>

namespace ZyxPlatform {

bool hasAvx2()
{
    constexpr DWORD avx2 = 40; // PF_AVX2_INSTRUCTIONS_AVAILABLE, which older headers do not have
    return IsProcessorFeaturePresent(avx2) != FALSE;
}

} // namespace ZyxPlatform
