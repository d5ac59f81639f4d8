// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace TestSupport {

/*!
    While it lives, QSettings' native format reads and writes an empty store in \a folder, or a registry key of its own.
*/
class SandboxSettings
{
public:
    explicit SandboxSettings(const QString &folder);
    ~SandboxSettings();

    SandboxSettings(const SandboxSettings &) = delete;
    SandboxSettings &operator=(const SandboxSettings &) = delete;

private:
    QString m_key;
};

} // namespace TestSupport
