// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace ZyxPlatform {

/*! A file with 64-bit offsets that is opened by a path in the system's narrow encoding. For one thread at a time. */
class NarrowFile
{
public:
    enum class Mode {
        Read, // others may read it too
        ReadAndWrite, // nobody else, on Windows
        Create // the same; made anew, or emptied
    };
    enum class Origin { Start, Current, End };

    /*! Null if the file can't be opened. What is no regular file is not opened for reading: a pipe would wait. */
    static std::unique_ptr<NarrowFile> open(const char *path, Mode mode);

    /*! Closes the file; use close() to learn what became of the last bytes. */
    ~NarrowFile();

    NarrowFile(const NarrowFile &) = delete;
    NarrowFile &operator=(const NarrowFile &) = delete;

    /*! How many bytes there were; less than \a size also at the end, where error() stays 0. */
    std::size_t read(void *bytes, std::size_t size);
    std::size_t write(const void *bytes, std::size_t size);

    std::uint64_t tell();
    bool seek(std::uint64_t offset, Origin origin);
    bool close();

    /*!
        The system's number of the last failure before close(); 0 for none. Windows counts those of reading and writing
        alone.
    */
    int error() const;

private:
    explicit NarrowFile(void *handle);

    void *m_handle; // null when it is closed
    int m_error = 0;
};

} // namespace ZyxPlatform
