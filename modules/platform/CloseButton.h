// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

namespace ZyxPlatform {

/*!
    Enables or disables the close button of the window with the native id \a window. On Linux of this process's windows
    only, and by a hint that a window manager may follow.
*/
void enableCloseButton(quint64 window, bool enable);

} // namespace ZyxPlatform
