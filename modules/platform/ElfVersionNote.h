// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Processes.h"

class QIODevice;

namespace ZyxPlatform {

/*!
    Reads the version note that the build's zyx_stamp_version() put into an ELF program or module (owner "zyx", type 1,
    four 32-bit numbers). \a file is open, seekable and may hold anything: a file that is not a 64-bit little-endian
    ELF, or lies about its own layout, has no version. Reads headers and notes alone.
*/
std::optional<FileVersion> readElfVersionNote(QIODevice &file);

} // namespace ZyxPlatform
