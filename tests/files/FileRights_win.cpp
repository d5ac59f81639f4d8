// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileRights.h"

#include <windows.h>

namespace TestSupport {

bool isReadOnly(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(reinterpret_cast<const wchar_t *>(path.utf16()));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool keepsReadOnlyFolders(const QString &folder)
{
    const auto *name = reinterpret_cast<const wchar_t *>(folder.utf16());
    const DWORD before = GetFileAttributesW(name);
    SetFileAttributesW(name, before | FILE_ATTRIBUTE_READONLY);
    const bool isKept = isReadOnly(folder);
    SetFileAttributesW(name, before);
    return isKept;
}

OrdinaryUser::OrdinaryUser()
    : m_before(0)
{
}

OrdinaryUser::~OrdinaryUser() = default;

} // namespace TestSupport
