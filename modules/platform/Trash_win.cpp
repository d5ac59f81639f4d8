// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Trash.h"

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace ZyxPlatform {

bool moveToTrash(const QString &path)
{
    std::wstring paths = path.toStdWString();
    paths.push_back(L'\0'); // a list, which a second zero ends
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = paths.c_str();
    operation.fFlags = FOF_SILENT | FOF_NOCONFIRMATION | FOF_ALLOWUNDO | FOF_NOERRORUI;
    return SHFileOperationW(&operation) == 0;
}

} // namespace ZyxPlatform
