// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

namespace ZyxPlatform {

/*! Whether the processor and the system know AVX2. */
bool hasAvx2();

} // namespace ZyxPlatform
