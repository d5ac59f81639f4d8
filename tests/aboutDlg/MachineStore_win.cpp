// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/MachineStore.h"

#include <QtCore/QSettings>

#include <windows.h>

namespace TestSupport {

MachineStore::MachineStore(const Sandbox & /*sandbox*/)
{
    HKEY key = nullptr; // in the sandbox's own branch of the user's registry
    if (RegCreateKeyExW(HKEY_CURRENT_USER, L"Machine", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr)
            != ERROR_SUCCESS
        || RegOverridePredefKey(HKEY_LOCAL_MACHINE, key) != ERROR_SUCCESS) {
        qFatal("The machine's registry key of the test could not be made.");
    }
    RegCloseKey(key);
}

MachineStore::~MachineStore()
{
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Machine");
}

void MachineStore::setValue(const QString &key, const QString &value)
{
    QSettings(QStringLiteral("HKEY_CURRENT_USER\\Machine\\SOFTWARE\\Zyx Labs\\Zyx Grainlab 6"), QSettings::NativeFormat)
        .setValue(key, value);
}

} // namespace TestSupport
