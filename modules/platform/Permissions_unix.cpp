// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Permissions.h"

namespace ZyxPlatform {

std::error_code setPermissions(const std::filesystem::path &path, int mode)
{
    std::error_code error;
    const auto wanted = std::filesystem::perms(static_cast<unsigned>(mode)) & std::filesystem::perms::mask;
    if (std::filesystem::status(path, error).permissions() != wanted) { // another's folder may have them already
        std::filesystem::permissions(path, wanted, error);
    }
    return error;
}

} // namespace ZyxPlatform
