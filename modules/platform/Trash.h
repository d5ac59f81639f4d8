// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*! Moves a file or folder to the user's recycle bin, without a question or a message. */
bool moveToTrash(const QString &path);

} // namespace ZyxPlatform
