// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ImportTable_win.h"

#include <cstring>

#include <windows.h>

// The library calls other modules through its table of imported addresses.

namespace {

template <typename Type>
Type *inModule(HMODULE module, DWORD offset)
{
    return reinterpret_cast<Type *>(reinterpret_cast<char *>(module) + offset);
}

void *replace(IMAGE_THUNK_DATA &entry, void *function)
{
    void *const before = reinterpret_cast<void *>(entry.u1.Function);
    DWORD access = 0;
    VirtualProtect(&entry, sizeof(entry), PAGE_READWRITE, &access);
    entry.u1.Function = reinterpret_cast<ULONGLONG>(function);
    VirtualProtect(&entry, sizeof(entry), access, &access);
    return before;
}

} // namespace

namespace TestSupport {

void *replaceImport(const char *part, void *function)
{
    const HMODULE module = GetModuleHandleW(L"UtilsDllzglv6.dll");
    const auto *dosHeader = inModule<IMAGE_DOS_HEADER>(module, 0);
    const auto *headers = inModule<IMAGE_NT_HEADERS>(module, DWORD(dosHeader->e_lfanew));
    const IMAGE_DATA_DIRECTORY &imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto *from = inModule<IMAGE_IMPORT_DESCRIPTOR>(module, imports.VirtualAddress); from->Name != 0; ++from) {
        auto *name = inModule<IMAGE_THUNK_DATA>(module, from->OriginalFirstThunk);
        auto *entry = inModule<IMAGE_THUNK_DATA>(module, from->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry) {
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)
                && std::strstr(inModule<IMAGE_IMPORT_BY_NAME>(module, DWORD(name->u1.AddressOfData))->Name, part)
                    != nullptr) {
                return replace(*entry, function);
            }
        }
    }
    return nullptr;
}

} // namespace TestSupport
