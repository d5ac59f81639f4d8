// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/IdentityPlace.h"

namespace TestSupport {

std::unique_ptr<QSettings> openIdentityPlace(const Sandbox &sandbox)
{
    return std::make_unique<QSettings>(sandbox.filePath(QStringLiteral("userSettings/ZyxLabs.conf")),
                                       QSettings::IniFormat);
}

std::unique_ptr<QSettings> openPlaceOfAllUsers(const Sandbox &sandbox)
{
    return std::make_unique<QSettings>(sandbox.filePath(QStringLiteral("systemSettings/ZyxLabs.conf")),
                                       QSettings::IniFormat);
}

} // namespace TestSupport
