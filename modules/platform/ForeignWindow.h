// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

namespace ZyxPlatform {

/*!
    Makes \a window, a native id of this process's Qt windows, a child of \a parent, a native id of any process. With a
    parent that is no window it stays where it is, on Windows without its frame; there 0 is the desktop.
*/
void makeChildWindow(quint64 window, quint64 parent);

} // namespace ZyxPlatform
