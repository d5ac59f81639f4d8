// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Registry.h"

namespace ZyxPlatform {

std::unique_ptr<QSettings> openIdentityStore()
{
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\ZyxLabs\\"),
                                       QSettings::NativeFormat);
}

std::unique_ptr<QSettings> openMachineStore(const QString &organization, const QString &application)
{
    return std::make_unique<QSettings>(
        QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\%1\\%2\\").arg(organization, application),
        QSettings::NativeFormat);
}

} // namespace ZyxPlatform
