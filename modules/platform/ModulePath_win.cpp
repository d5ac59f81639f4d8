// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ModulePath.h"

#include <windows.h>

#include <vector>

namespace ZyxPlatform {

namespace {

constexpr DWORD mostPathCharacters = 32'768; // the longest path that the system knows

} // namespace

QString pathOfModuleOrProgram(const QString &name)
{
    const QString fileName = name + QStringLiteral(".dll");
    const HMODULE module = GetModuleHandleW(reinterpret_cast<const wchar_t *>(fileName.utf16()));
    std::vector<wchar_t> buffer(mostPathCharacters);
    const DWORD length = GetModuleFileNameW(module, buffer.data(), mostPathCharacters); // of the program for null
    return QString::fromWCharArray(buffer.data(), int(length));
}

} // namespace ZyxPlatform
