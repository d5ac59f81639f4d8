// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Registry.h"

namespace ZyxPlatform {

std::unique_ptr<QSettings> openIdentityStore()
{
    // A file of the organisation alone: the application's own lies in the folder of another organisation.
    auto store = std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("ZyxLabs"));
    store->setFallbacksEnabled(false); // a file of the machine would give all its users one identity
    return store;
}

std::unique_ptr<QSettings> openMachineStore(const QString &organization, const QString &application)
{
    // Fallbacks stay on: without them only the first folder of XDG_CONFIG_DIRS counts. Given as an organisation's, the
    // file is the only one in each folder: one key, as where there is a registry.
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::SystemScope,
                                       organization + u'/' + application);
}

} // namespace ZyxPlatform
