// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/SandboxSettings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QUuid>

#include <windows.h>

namespace TestSupport {

SandboxSettings::SandboxSettings(const QString & /*folder*/)
    : m_key(QStringLiteral("Software\\ZyxTests\\") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    HKEY key = nullptr;
    const auto *name = reinterpret_cast<const wchar_t *>(m_key.utf16());
    if (RegCreateKeyExW(HKEY_CURRENT_USER, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr) != ERROR_SUCCESS
        || RegOverridePredefKey(HKEY_CURRENT_USER, key) != ERROR_SUCCESS) {
        qFatal("The registry key of the test could not be made.");
    }
    RegCloseKey(key);
}

SandboxSettings::~SandboxSettings()
{
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, reinterpret_cast<const wchar_t *>(m_key.utf16()));
}

} // namespace TestSupport
