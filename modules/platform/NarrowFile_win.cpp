// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/NarrowFile.h"

#include <windows.h>

#include <algorithm>

namespace ZyxPlatform {

namespace {

HANDLE openHandle(const char *path, NarrowFile::Mode mode)
{
    switch (mode) {
    case NarrowFile::Mode::Read:
        return CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    case NarrowFile::Mode::ReadAndWrite:
        return CreateFileA(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    case NarrowFile::Mode::Create:
        return CreateFileA(path, GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                           nullptr);
    }
    return INVALID_HANDLE_VALUE;
}

DWORD moveMethod(NarrowFile::Origin origin)
{
    switch (origin) {
    case NarrowFile::Origin::Start:
        return FILE_BEGIN;
    case NarrowFile::Origin::Current:
        return FILE_CURRENT;
    case NarrowFile::Origin::End:
        return FILE_END;
    }
    return FILE_BEGIN;
}

/*! What one call takes: its counts have 32 bits. */
DWORD pieceOf(std::size_t size)
{
    constexpr std::size_t largest = 0x40000000;
    return static_cast<DWORD>(std::min(size, largest));
}

int lastErrorButTheEnd()
{
    const DWORD error = GetLastError();
    return error == ERROR_HANDLE_EOF ? 0 : static_cast<int>(error);
}

} // namespace

std::unique_ptr<NarrowFile> NarrowFile::open(const char *path, Mode mode)
{
    const HANDLE handle = openHandle(path, mode);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    if (mode == Mode::Read && GetFileType(handle) != FILE_TYPE_DISK) {
        CloseHandle(handle);
        return nullptr;
    }
    return std::unique_ptr<NarrowFile>(new NarrowFile(handle));
}

NarrowFile::NarrowFile(void *handle)
    : m_handle(handle)
{
}

NarrowFile::~NarrowFile()
{
    close();
}

std::size_t NarrowFile::read(void *bytes, std::size_t size)
{
    std::size_t count = 0;
    while (count < size) {
        DWORD piece = 0;
        if (!ReadFile(m_handle, static_cast<char *>(bytes) + count, pieceOf(size - count), &piece, nullptr)) {
            m_error = lastErrorButTheEnd();
            break;
        }
        if (piece == 0) {
            break; // the end
        }
        count += piece;
    }
    return count;
}

std::size_t NarrowFile::write(const void *bytes, std::size_t size)
{
    std::size_t count = 0;
    while (count < size) {
        DWORD piece = 0;
        if (!WriteFile(m_handle, static_cast<const char *>(bytes) + count, pieceOf(size - count), &piece, nullptr)) {
            m_error = lastErrorButTheEnd();
            break;
        }
        count += piece;
    }
    return count;
}

std::uint64_t NarrowFile::tell()
{
    LONG high = 0;
    const DWORD low = SetFilePointer(m_handle, 0, &high, FILE_CURRENT);
    return (static_cast<std::uint64_t>(static_cast<DWORD>(high)) << 32) | low;
}

bool NarrowFile::seek(std::uint64_t offset, Origin origin)
{
    LONG high = static_cast<LONG>(offset >> 32);
    const DWORD low = SetFilePointer(m_handle, static_cast<LONG>(offset & 0xffffffff), &high, moveMethod(origin));
    return low != INVALID_SET_FILE_POINTER || GetLastError() == NO_ERROR;
}

bool NarrowFile::close()
{
    const HANDLE handle = m_handle;
    m_handle = nullptr;
    return handle == nullptr || CloseHandle(handle);
}

int NarrowFile::error() const
{
    return m_error;
}

} // namespace ZyxPlatform
