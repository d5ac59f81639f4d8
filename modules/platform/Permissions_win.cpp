// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Permissions.h"

#include <QtCore/QScopeGuard>

#include <windows.h>

namespace ZyxPlatform {

namespace {

constexpr unsigned writeBits = 0222;

std::error_code lastError()
{
    return {static_cast<int>(GetLastError()), std::system_category()};
}

} // namespace

std::error_code setPermissions(const std::filesystem::path &path, int mode)
{
    // through a handle, because it stands for what a link leads to
    const HANDLE handle = CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return lastError();
    }
    const auto close = qScopeGuard([handle] { CloseHandle(handle); });
    FILE_BASIC_INFO info{};
    if (!GetFileInformationByHandleEx(handle, FileBasicInfo, &info, sizeof(info))) {
        return lastError();
    }
    const bool isReadOnly = (static_cast<unsigned>(mode) & writeBits) == 0;
    FILE_BASIC_INFO changed{}; // the times are zero: they stay
    changed.FileAttributes = isReadOnly ? info.FileAttributes | FILE_ATTRIBUTE_READONLY
                                        : info.FileAttributes & ~DWORD(FILE_ATTRIBUTE_READONLY);
    if (changed.FileAttributes == 0) {
        changed.FileAttributes = FILE_ATTRIBUTE_NORMAL; // zero would change nothing
    }
    if (!SetFileInformationByHandle(handle, FileBasicInfo, &changed, sizeof(changed))) {
        return lastError();
    }
    return {};
}

} // namespace ZyxPlatform
