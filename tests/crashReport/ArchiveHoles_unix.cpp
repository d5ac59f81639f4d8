// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//
// Functions of the C library of the program's own, in front of the library's: pieces of zeros become holes in the
// files, and holes are not read from the system. So gigabytes are packed and unpacked in seconds and take no room on
// the disk nor in the system's memory.

#include <cstring>

#include <dlfcn.h>
#include <unistd.h>

namespace {

constexpr size_t smallestHole = 4096;

bool isZero(const void *bytes, size_t size)
{
    const char *first = static_cast<const char *>(bytes);
    return size >= smallestHole && *first == 0 && std::memcmp(first, first + 1, size - 1) == 0;
}

/*! Whether the \a size bytes from \a position on lie in the file and were never written; may move the descriptor. */
bool wasNeverWritten(int descriptor, off_t position, size_t size)
{
    return size >= smallestHole && position >= 0
        && lseek(descriptor, position, SEEK_DATA) >= position + static_cast<off_t>(size);
}

/*! Whether a hole is next; goes behind it if so. */
bool skipHole(int descriptor, size_t size)
{
    const off_t position = lseek(descriptor, 0, SEEK_CUR);
    if (position < 0) {
        return false; // what is no file
    }
    const bool isSkipped = wasNeverWritten(descriptor, position, size);
    lseek(descriptor, isSkipped ? position + static_cast<off_t>(size) : position, SEEK_SET);
    return isSkipped;
}

/*! Leaves the descriptor where it is. */
bool isHoleAt(int descriptor, off_t offset, size_t size)
{
    const off_t position = lseek(descriptor, 0, SEEK_CUR);
    const bool isHole = wasNeverWritten(descriptor, offset, size);
    lseek(descriptor, position, SEEK_SET);
    return isHole;
}

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

extern "C" __attribute__((visibility("default"))) ssize_t pwrite(int descriptor, const void *bytes, size_t size,
                                                                 off_t offset)
{
    using Function = ssize_t(int, const void *, size_t, off_t);
    static const auto real = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, "pwrite"));
    return isZero(bytes, size) ? static_cast<ssize_t>(size) : real(descriptor, bytes, size, offset);
}

extern "C" __attribute__((visibility("default"))) ssize_t write(int descriptor, const void *bytes, size_t size)
{
    using Function = ssize_t(int, const void *, size_t);
    static const auto real = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, "write"));
    if (isZero(bytes, size) && lseek(descriptor, static_cast<off_t>(size), SEEK_CUR) >= 0) {
        return static_cast<ssize_t>(size);
    }
    return real(descriptor, bytes, size);
}

extern "C" __attribute__((visibility("default"))) ssize_t read(int descriptor, void *bytes, size_t size)
{
    using Function = ssize_t(int, void *, size_t);
    static const auto real = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, "read"));
    if (skipHole(descriptor, size)) {
        std::memset(bytes, 0, size);
        return static_cast<ssize_t>(size);
    }
    return real(descriptor, bytes, size);
}

extern "C" __attribute__((visibility("default"))) ssize_t pread(int descriptor, void *bytes, size_t size, off_t offset)
{
    using Function = ssize_t(int, void *, size_t, off_t);
    static const auto real = reinterpret_cast<Function *>(dlsym(RTLD_NEXT, "pread"));
    if (isHoleAt(descriptor, offset, size)) {
        std::memset(bytes, 0, size);
        return static_cast<ssize_t>(size);
    }
    return real(descriptor, bytes, size, offset);
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
