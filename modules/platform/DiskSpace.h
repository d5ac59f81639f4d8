// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*! Bytes that the calling user may still write on the volume of \a path; 0 where there is no such path. */
qint64 availableDiskSpace(const QString &path);

} // namespace ZyxPlatform
