// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*!
    Path of the loaded module \a name, told without the ending that modules have; that of the program if no such module
    is loaded. Empty if the system does not tell.
*/
QString pathOfModuleOrProgram(const QString &name);

} // namespace ZyxPlatform
