// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Elevation.h"

#include <windows.h>

#include <objbase.h>
#include <shellapi.h>

namespace ZyxPlatform {

void prepareElevation()
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE); // what was before is as good
}

void endElevation()
{
    CoUninitialize();
}

ElevatedCommand createFolderElevated(const QString &path, const QString & /*permissions*/)
{
    ElevatedCommand command{QStringLiteral("/C md \"") + path + u'"'};
    if (path.contains(u'"')) {
        return command; // no name has one, and the rest would run as a command of its own
    }
    const auto *arguments = reinterpret_cast<const wchar_t *>(command.arguments.utf16());
    const HINSTANCE answer = ShellExecuteW(nullptr, L"runas", L"cmd.exe", arguments, nullptr, SW_HIDE);
    command.isStarted = reinterpret_cast<INT_PTR>(answer) > 32;
    return command;
}

} // namespace ZyxPlatform
