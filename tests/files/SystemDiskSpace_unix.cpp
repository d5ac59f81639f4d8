// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/SystemDiskSpace.h"

#include <QtCore/QFile>

#include <sys/statvfs.h>

qint64 systemDiskSpace(const QString &folder)
{
    struct statvfs information
    {
    };
    const bool isKnown = statvfs(QFile::encodeName(folder).constData(), &information) == 0;
    return isKnown ? qint64(information.f_bavail) * qint64(information.f_frsize) : -1;
}
