// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Registry.h"

namespace ZyxPlatform {

std::unique_ptr<QSettings> openIdentityStore()
{
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\ZyxLabs\\"),
                                       QSettings::NativeFormat);
}

} // namespace ZyxPlatform
