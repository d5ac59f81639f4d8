// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBox.h"

#include <windows.h>

namespace ZyxPlatform {

void showErrorBox(quintptr parent, const QString &text, const QString &title)
{
    MessageBoxW(reinterpret_cast<HWND>(parent), reinterpret_cast<const wchar_t *>(text.utf16()),
                reinterpret_cast<const wchar_t *>(title.utf16()), MB_ICONERROR);
}

} // namespace ZyxPlatform
