// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

#include <string>

namespace ZyxPlatform {

/*!
    Path of the colour profile of the monitor that shows the window with the native id \a window, of the primary one
    for 0, in UTF-8; empty where there is none. The system's colour service is asked, and waited for a few seconds.
*/
std::string monitorProfile(quint64 window);

} // namespace ZyxPlatform
