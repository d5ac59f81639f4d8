// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/FileNames.h"

namespace ZyxPlatform {

bool namesDevice(const QString & /*name*/)
{
    return false; // devices lie in a folder of their own
}

} // namespace ZyxPlatform
