// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*! The user's folder for application data of this machine, without a closing separator; empty if there is none. */
QString localApplicationDataFolder();

/*! The folder of pictures that all users share, made if it is missing; empty if there is none. */
QString sharedPicturesFolder();

/*! Makes \a path, given in native separators, with all folders above it. A failure is not told. */
void createFolder(const QString &path);

} // namespace ZyxPlatform
