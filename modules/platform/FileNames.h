// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*! Whether \a name, one part of a path, stands for a device in any folder, or for a stream of a file. */
bool namesDevice(const QString &name);

} // namespace ZyxPlatform
