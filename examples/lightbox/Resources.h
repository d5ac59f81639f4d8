// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! Makes the files of ":/lightbox" readable. Without the call the linker leaves them out of a static library. */
void initLightboxResources();
