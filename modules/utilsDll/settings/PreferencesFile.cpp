// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// The one place where the settings know the storage locations: they hold the path of the preferences file.

#include "storageLocation/storageLocation.h"
#include "utilsDll/settings/Settings.h"

namespace ZYX_zglv6 {

QString CSettings::getStringFromPreferencesFile(const QString &key, const QString &defaultValue)
{
    const QString &path = CStorageLocation::getCurrentPreferencesFilePath();
    const QString text = getValueFromIniFile(path, key, QVariant(defaultValue)).toString();
    return text.isEmpty() ? defaultValue : text;
}

} // namespace ZYX_zglv6
