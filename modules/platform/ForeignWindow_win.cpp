// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ForeignWindow.h"

#include <windows.h>

namespace ZyxPlatform {

void makeChildWindow(quint64 window, quint64 parent)
{
    const auto handle = reinterpret_cast<HWND>(window);
    SetWindowLongA(handle, GWL_STYLE, WS_CHILD | WS_CLIPSIBLINGS | WS_CLIPCHILDREN);
    SetParent(handle, reinterpret_cast<HWND>(parent));
}

} // namespace ZyxPlatform
