// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "common/OwnStore.h"

#include <QtCore/QtGlobal>

#include <windows.h>

void useOwnStore(const QString & /*workFolder*/)
{
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\UtilsDllzglv6 Lightbox", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                        &key, nullptr)
            != ERROR_SUCCESS
        || RegOverridePredefKey(HKEY_CURRENT_USER, key) != ERROR_SUCCESS) {
        qFatal("The registry key of the examples could not be opened.");
    }
    RegCloseKey(key);
}

void noteInstallation()
{
}
