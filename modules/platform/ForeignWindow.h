// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

namespace ZyxPlatform {

/*!
    Makes \a window, a native id of this process's Qt windows, a child of \a parent, a native id of any process. With an
    id that is no window it stays where it is.
*/
void makeChildWindow(quint64 window, quint64 parent);

} // namespace ZyxPlatform
