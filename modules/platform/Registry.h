// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QSettings>

#include <memory>

namespace ZyxPlatform {

/*! The user's store for facts that outlive the product's own settings: the anonymous identity. Never null. */
std::unique_ptr<QSettings> openIdentityStore();

/*! What the installer left for all users of the machine about \a application. To be read; never null. */
std::unique_ptr<QSettings> openMachineStore(const QString &organization, const QString &application);

} // namespace ZyxPlatform
