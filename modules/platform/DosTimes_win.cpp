// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/DosTimes.h"

#include <windows.h>

namespace ZyxPlatform {

std::uint32_t lastWriteDosTime(const char *path)
{
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA(path, &found);
    if (search == INVALID_HANDLE_VALUE) {
        return 0;
    }
    FindClose(search);
    FILETIME local{};
    WORD date = 0;
    WORD time = 0;
    if (!FileTimeToLocalFileTime(&found.ftLastWriteTime, &local) || !FileTimeToDosDateTime(&local, &date, &time)) {
        return 0;
    }
    return (static_cast<std::uint32_t>(date) << 16) | time;
}

void setDosTime(const char *path, std::uint32_t dosTime)
{
    FILETIME local{};
    FILETIME universal{};
    if (!DosDateTimeToFileTime(static_cast<WORD>(dosTime >> 16), static_cast<WORD>(dosTime & 0xffff), &local)
        || !LocalFileTimeToFileTime(&local, &universal)) {
        return;
    }
    const HANDLE file
        = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return;
    }
    FILETIME lastAccess{};
    GetFileTime(file, nullptr, &lastAccess, nullptr);
    SetFileTime(file, &universal, &lastAccess, &universal);
    CloseHandle(file);
}

} // namespace ZyxPlatform
