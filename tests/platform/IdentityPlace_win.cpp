// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/IdentityPlace.h"

namespace TestSupport {

std::unique_ptr<QSettings> openIdentityPlace(const Sandbox & /*sandbox*/)
{
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\ZyxLabs"), QSettings::NativeFormat);
}

std::unique_ptr<QSettings> openPlaceOfAllUsers(const Sandbox & /*sandbox*/)
{
    return nullptr;
}

} // namespace TestSupport
