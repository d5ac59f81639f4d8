// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/MonitorProfile.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QString>

#include <windows.h>

#include <string>

namespace ZyxPlatform {

namespace {

/*! Empty where the device has no profile. */
std::wstring profileOf(HDC device)
{
    DWORD length = 0; // with the terminator
    if (GetICMProfileW(device, &length, nullptr) || GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
        return {};
    }
    std::wstring path(length, L'\0');
    if (!GetICMProfileW(device, &length, path.data())) {
        return {};
    }
    return path.c_str();
}

} // namespace

std::string monitorProfile(quint64 window)
{
    MONITORINFOEXW monitor{};
    monitor.cbSize = sizeof(monitor);
    if (!GetMonitorInfoW(MonitorFromWindow(reinterpret_cast<HWND>(window), MONITOR_DEFAULTTOPRIMARY), &monitor)) {
        return {};
    }
    const HDC device = CreateDCW(L"DISPLAY", monitor.szDevice, nullptr, nullptr);
    if (!device) {
        return {};
    }
    const auto deleteDevice = qScopeGuard([device] { DeleteDC(device); });
    return QString::fromStdWString(profileOf(device)).toStdString();
}

} // namespace ZyxPlatform
