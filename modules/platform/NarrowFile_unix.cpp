// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/NarrowFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace ZyxPlatform {

namespace {

static_assert(sizeof(off_t) == 8);

using FileStatus = struct stat;

constexpr mode_t permissions = 0666; // less those of the user's mask
constexpr std::size_t readAhead = 4096;

/*!
    An open file with a buffer of its own: archives are read and written in very small pieces, with jumps between them
    that would empty the one of the C library.
*/
class File
{
public:
    explicit File(int descriptor)
        : m_descriptor(descriptor)
    {
    }

    /*! The bytes read; fewer at the end and after an error, which is in errno then. */
    std::size_t read(char *bytes, std::size_t size, bool &hasFailed)
    {
        std::size_t count = 0;
        hasFailed = !flush();
        while (!hasFailed && count < size) {
            const std::size_t buffered = takeFromBuffer(bytes + count, size - count);
            if (buffered > 0) {
                count += buffered;
                continue;
            }
            const bool isLong = size - count >= readAhead;
            const ssize_t piece = isLong ? readAt(bytes + count, size - count) : readAt(m_bytes.data(), readAhead);
            if (piece <= 0) {
                hasFailed = piece < 0;
                break;
            }
            if (isLong) {
                m_position += std::uint64_t(piece);
                count += std::size_t(piece);
            } else {
                m_start = m_position;
                m_filled = std::size_t(piece);
            }
        }
        return count;
    }

    /*! False if some of \a bytes, or of those before them, could not be written. */
    bool write(const char *bytes, std::size_t size)
    {
        if (!m_isDirty || m_position < m_start || m_position > m_start + m_filled
            || m_position - m_start + size > m_bytes.size()) {
            if (!flush()) {
                return false;
            }
            m_start = m_position;
            m_filled = 0;
        }
        if (size > m_bytes.size()) {
            const bool isWritten = writeAt(bytes, size, m_position);
            m_position += isWritten ? size : 0;
            return isWritten;
        }
        const auto offset = std::size_t(m_position - m_start);
        std::memcpy(m_bytes.data() + offset, bytes, size);
        m_filled = std::max(m_filled, offset + size);
        m_position += size;
        m_isDirty = true;
        return true;
    }

    std::uint64_t position() const
    {
        return m_position;
    }

    bool seek(std::uint64_t offset, NarrowFile::Origin origin)
    {
        std::uint64_t base = origin == NarrowFile::Origin::Current ? m_position : 0;
        if (origin == NarrowFile::Origin::End && !findEnd(base)) {
            return false;
        }
        const std::uint64_t target = base + offset; // a way back comes as a very large number
        if (static_cast<std::int64_t>(target) < 0) {
            errno = EINVAL;
            return false;
        }
        m_position = target;
        return true;
    }

    /*! False also if bytes were lost before. */
    bool close()
    {
        flush();
        return ::close(m_descriptor) == 0 && !m_hasLostBytes;
    }

private:
    bool findEnd(std::uint64_t &end)
    {
        FileStatus status{};
        if (!flush() || fstat(m_descriptor, &status) != 0) {
            return false;
        }
        end = std::uint64_t(status.st_size);
        return true;
    }

    std::size_t takeFromBuffer(char *bytes, std::size_t size)
    {
        if (m_position < m_start || m_position >= m_start + m_filled) {
            return 0;
        }
        const auto offset = std::size_t(m_position - m_start);
        const std::size_t count = std::min(size, m_filled - offset);
        std::memcpy(bytes, m_bytes.data() + offset, count);
        m_position += count;
        return count;
    }

    ssize_t readAt(char *bytes, std::size_t size)
    {
        ssize_t count = 0;
        do {
            count = pread(m_descriptor, bytes, size, off_t(m_position));
        } while (count < 0 && errno == EINTR);
        return count;
    }

    bool writeAt(const char *bytes, std::size_t size, std::uint64_t position)
    {
        for (std::size_t written = 0; written < size;) {
            const ssize_t count = pwrite(m_descriptor, bytes + written, size - written, off_t(position + written));
            if (count > 0) {
                written += std::size_t(count);
            } else if (count == 0 || errno != EINTR) {
                m_hasLostBytes = true;
                return false;
            }
        }
        return true;
    }

    bool flush()
    {
        if (!m_isDirty) {
            return true;
        }
        m_isDirty = false; // also after a failure: the bytes can't be kept
        return writeAt(m_bytes.data(), std::exchange(m_filled, 0), m_start);
    }

    const int m_descriptor;
    std::uint64_t m_position = 0; // where the caller is
    std::uint64_t m_start = 0; // of the buffer
    std::size_t m_filled = 0;
    bool m_isDirty = false;
    bool m_hasLostBytes = false;
    std::array<char, 65536> m_bytes{};
};

bool isRegular(int descriptor)
{
    FileStatus status{};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

int openDescriptor(const char *path, NarrowFile::Mode mode)
{
    switch (mode) {
    case NarrowFile::Mode::Read:
        return ::open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC); // does not wait for the other end of a pipe
    case NarrowFile::Mode::ReadAndWrite:
        return ::open(path, O_RDWR | O_CLOEXEC);
    case NarrowFile::Mode::Create:
        return ::open(path, O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, permissions);
    }
    return -1;
}

File &file(void *handle)
{
    return *static_cast<File *>(handle);
}

} // namespace

std::unique_ptr<NarrowFile> NarrowFile::open(const char *path, Mode mode)
{
    const int descriptor = openDescriptor(path, mode);
    if (descriptor < 0) {
        return nullptr;
    }
    if (mode == Mode::Read && !isRegular(descriptor)) {
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<NarrowFile>(new NarrowFile(new File(descriptor)));
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
    bool hasFailed = false;
    const std::size_t count = file(m_handle).read(static_cast<char *>(bytes), size, hasFailed);
    if (hasFailed) {
        m_error = errno;
    }
    return count;
}

std::size_t NarrowFile::write(const void *bytes, std::size_t size)
{
    if (!file(m_handle).write(static_cast<const char *>(bytes), size)) {
        m_error = errno;
        return 0;
    }
    return size;
}

std::uint64_t NarrowFile::tell()
{
    return file(m_handle).position();
}

bool NarrowFile::seek(std::uint64_t offset, Origin origin)
{
    if (!file(m_handle).seek(offset, origin)) {
        m_error = errno;
        return false;
    }
    return true;
}

bool NarrowFile::close()
{
    const std::unique_ptr<File> closed(static_cast<File *>(m_handle));
    m_handle = nullptr;
    return !closed || closed->close();
}

int NarrowFile::error() const
{
    return m_error;
}

} // namespace ZyxPlatform
