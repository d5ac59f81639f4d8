// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/SandboxSettings.h"

#include <QtCore/QSettings>

namespace TestSupport {

SandboxSettings::SandboxSettings(const QString &folder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder + u"/userSettings");
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, folder + u"/systemSettings");
}

SandboxSettings::~SandboxSettings() = default;

} // namespace TestSupport
