// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace ZyxPlatform {

// A date and time as zip archives have it: local, in steps of two seconds, from 1980 to 2107; 0 is none. Paths are in
// the system's narrow encoding.

/*! When \a path was last written; 0 if there is no such file, or no such DOS time. */
std::uint32_t lastWriteDosTime(const char *path);

/*!
    Makes \a dosTime the time at which \a path was last written, and made where the system lets that be set; when it
    was last read stays. A failure is not reported.
*/
void setDosTime(const char *path, std::uint32_t dosTime);

} // namespace ZyxPlatform
