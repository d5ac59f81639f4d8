// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/CloseButton.h"

#include <windows.h>

namespace ZyxPlatform {

void enableCloseButton(quint64 window, bool enable)
{
    EnableMenuItem(GetSystemMenu(reinterpret_cast<HWND>(window), FALSE), SC_CLOSE, enable ? MF_ENABLED : MF_GRAYED);
}

} // namespace ZyxPlatform
