// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Folders.h"

#include <QtCore/QScopeGuard>

#include <windows.h>

#include <shlobj.h>

#include <array>

namespace ZyxPlatform {

QString localApplicationDataFolder()
{
    wchar_t *path = nullptr;
    const auto freePath = qScopeGuard([&path] { CoTaskMemFree(path); });
    if (FAILED(SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &path))) {
        return {};
    }
    return QString::fromWCharArray(path);
}

QString sharedPicturesFolder()
{
    std::array<wchar_t, MAX_PATH + 1> path{};
    if (!SHGetSpecialFolderPathW(nullptr, path.data(), CSIDL_COMMON_PICTURES, TRUE)) {
        return {};
    }
    return QString::fromWCharArray(path.data());
}

void createFolder(const QString &path)
{
    SHCreateDirectoryExW(nullptr, reinterpret_cast<const wchar_t *>(path.utf16()), nullptr);
}

} // namespace ZyxPlatform
