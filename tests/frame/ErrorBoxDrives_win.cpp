// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ErrorBoxDrives.h"

QList<ErrorBoxDrive> errorBoxDrives(const QString & /*home*/)
{
    return {
        {"drive letter", "TMP", "C:\\windows\\temp", QStringLiteral("C:\\")},
        {"no colon", "TMP", "\\\\server\\share\\temp", QStringLiteral("//server/share/temp:\\")},
    };
}
