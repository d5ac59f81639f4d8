// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/DiskSpace.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStorageInfo>

namespace ZyxPlatform {

qint64 availableDiskSpace(const QString &path)
{
    const QString absolute = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    return qMax<qint64>(0, QStorageInfo(absolute).bytesAvailable());
}

} // namespace ZyxPlatform
