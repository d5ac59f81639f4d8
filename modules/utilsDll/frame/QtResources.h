// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

namespace ZYX_zglv6 {

/*!
    Registers the main and the translation collection of the library's embedded files once more. The module registers
    all four collections itself when it is loaded, so a host only needs this after cleanupQtResources(); calling it
    more often is harmless.
*/
UTILSDLL_EXPORT void initQtResources();

/*! Releases the main and the translation collection. */
UTILSDLL_EXPORT void cleanupQtResources();

} // namespace ZYX_zglv6
