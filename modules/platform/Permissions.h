// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

namespace ZyxPlatform {

/*!
    Gives what is at \a path, or where a link there leads, the octal \a mode. Windows knows its write bits alone:
    without any of them the path becomes read-only.
*/
std::error_code setPermissions(const std::filesystem::path &path, int mode);

} // namespace ZyxPlatform
