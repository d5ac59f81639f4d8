// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <minizip/ioapi.h>

namespace ZYX_zglv6 {

/*! How minizip opens, reads and writes archives: by narrow paths, with offsets of 64 bits. */
zlib_filefunc64_def zipFileFunctions();

} // namespace ZYX_zglv6
