// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Processor.h"

namespace ZyxPlatform {

bool hasAvx2()
{
#ifdef __x86_64__
    return __builtin_cpu_supports("avx2") != 0;
#else
    return false;
#endif
}

} // namespace ZyxPlatform
