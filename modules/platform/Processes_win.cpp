// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Processes.h"

#include <QtCore/QScopeGuard>

#include <windows.h>

#include <psapi.h>

#include <cstring>
#include <vector>

namespace ZyxPlatform {

namespace {

constexpr DWORD mostPathCharacters = 260;
constexpr std::size_t mostProcesses = 1024;

using PathBuffer = std::array<wchar_t, mostPathCharacters>;

struct ModuleName
{
    QString text;
    bool known = false;
};

ModuleName moduleBaseName(HANDLE process, HMODULE module)
{
    PathBuffer buffer{};
    const DWORD length = GetModuleBaseNameW(process, module, buffer.data(), mostPathCharacters);
    return {QString::fromWCharArray(buffer.data(), int(length)), length > 0};
}

std::vector<DWORD> runningProcesses()
{
    std::vector<DWORD> identifiers(mostProcesses);
    DWORD bytes = 0;
    if (!EnumProcesses(identifiers.data(), DWORD(identifiers.size() * sizeof(DWORD)), &bytes)) {
        return {};
    }
    identifiers.resize(bytes / sizeof(DWORD));
    return identifiers;
}

bool hasBaseName(HANDLE process, const QString &name)
{
    HMODULE firstModule = nullptr;
    DWORD bytes = 0;
    if (!EnumProcessModules(process, &firstModule, sizeof(firstModule), &bytes)) {
        return false;
    }
    const ModuleName found = moduleBaseName(process, firstModule);
    return found.known && found.text.compare(name, Qt::CaseInsensitive) == 0;
}

QString pathOf(HANDLE process)
{
    PathBuffer buffer{};
    const DWORD length = GetModuleFileNameExW(process, nullptr, buffer.data(), mostPathCharacters);
    return QString::fromWCharArray(buffer.data(), int(length));
}

/*! The root block of a version resource, out of the copy that VerQueryValueW needs. */
std::optional<FileVersion> versionInBlock(void *block)
{
    VS_FIXEDFILEINFO *information = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(block, L"\\", reinterpret_cast<void **>(&information), &size) || information == nullptr
        || size < sizeof(VS_FIXEDFILEINFO)) {
        return std::nullopt;
    }
    return FileVersion{HIWORD(information->dwFileVersionMS), LOWORD(information->dwFileVersionMS),
                       HIWORD(information->dwFileVersionLS), LOWORD(information->dwFileVersionLS)};
}

/*! True if the length in front of a version resource is one that the resource has. */
bool tellsItsSize(const void *bytes, DWORD size)
{
    WORD length = 0;
    if (size < sizeof(length)) {
        return false;
    }
    std::memcpy(&length, bytes, sizeof(length));
    return length <= size;
}

std::optional<FileVersion> versionInResource(HMODULE module, HRSRC resource)
{
    const DWORD size = SizeofResource(module, resource);
    const HGLOBAL loaded = LoadResource(module, resource);
    const void *bytes = loaded == nullptr ? nullptr : LockResource(loaded);
    if (bytes == nullptr || !tellsItsSize(bytes, size)) {
        return std::nullopt;
    }
    const HLOCAL block = LocalAlloc(LMEM_FIXED, size);
    const auto freeBlock = qScopeGuard([block] { LocalFree(block); });
    if (block == nullptr) {
        return std::nullopt;
    }
    std::memcpy(block, bytes, size);
    FreeResource(loaded);
    return versionInBlock(block);
}

} // namespace

QString currentProcessName()
{
    return moduleBaseName(GetCurrentProcess(), nullptr).text;
}

QString pathOfFirstProcessNamed(const QString &name)
{
    for (const DWORD identifier : runningProcesses()) {
        if (identifier == 0) {
            continue;
        }
        const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, identifier);
        if (process == nullptr) {
            continue;
        }
        const auto closeProcess = qScopeGuard([process] { CloseHandle(process); });
        if (hasBaseName(process, name)) {
            return pathOf(process);
        }
    }
    return {};
}

std::optional<FileVersion> fileVersion(const QString &path)
{
    // Never freed: the file may be a module of this process already, or become one.
    const HMODULE module = LoadLibraryW(reinterpret_cast<const wchar_t *>(path.utf16()));
    if (module == nullptr) {
        return std::nullopt;
    }
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(1), RT_VERSION);
    if (resource == nullptr) {
        return std::nullopt;
    }
    return versionInResource(module, resource);
}

} // namespace ZyxPlatform
