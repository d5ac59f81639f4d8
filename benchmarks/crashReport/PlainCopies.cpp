// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PlainCopies.h"

#include "TestFolder.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr std::size_t packingPiece = 16'384;
constexpr std::size_t unpackingPiece = 8'192;

class File
{
public:
    File(const QString &path, int flags)
        : m_descriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, 0666))
    {
    }

    ~File()
    {
        ::close(m_descriptor);
    }

    Q_DISABLE_COPY_MOVE(File)

    operator int() const
    {
        return m_descriptor;
    }

private:
    const int m_descriptor;
};

/*! Up to \a size bytes, or to the end. */
bool copy(int from, int into, std::vector<Bytef> &buffer, qint64 size)
{
    uLong checksum = crc32(0, nullptr, 0);
    while (size > 0) {
        const ssize_t count = ::read(from, buffer.data(), std::min<std::size_t>(buffer.size(), std::size_t(size)));
        if (count <= 0) {
            benchmark::DoNotOptimize(checksum);
            return count == 0;
        }
        checksum = crc32(checksum, buffer.data(), uInt(count));
        if (::write(into, buffer.data(), std::size_t(count)) != count) {
            return false;
        }
        size -= count;
    }
    benchmark::DoNotOptimize(checksum);
    return true;
}

bool copyEach(const TestFolder &folder, std::size_t pieceSize)
{
    std::vector<Bytef> buffer(pieceSize);
    const QStringList names = folder.sourceFiles();
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        const File from(folder.sources + u'/' + name, O_RDONLY);
        const File into(folder.unpacked + u'/' + name, O_WRONLY | O_CREAT | O_TRUNC);
        return copy(from, into, buffer, std::numeric_limits<qint64>::max());
    });
}

} // namespace

bool copyIn(const TestFolder &folder)
{
    return copyEach(folder, packingPiece);
}

bool copyOut(const TestFolder &folder)
{
    return copyEach(folder, unpackingPiece);
}

bool appendFiles(const TestFolder &folder, const QString &path)
{
    std::vector<Bytef> buffer(packingPiece);
    const File into(path, O_WRONLY | O_CREAT | O_TRUNC);
    const QStringList names = folder.sourceFiles();
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        const File from(folder.sources + u'/' + name, O_RDONLY);
        return copy(from, into, buffer, std::numeric_limits<qint64>::max());
    });
}

bool cutFiles(const TestFolder &folder)
{
    std::vector<Bytef> buffer(unpackingPiece);
    const File from(folder.joinedFiles, O_RDONLY);
    const QStringList names = folder.sourceFiles();
    const qint64 fileSize = QFileInfo(folder.joinedFiles).size() / names.size();
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        const File into(folder.unpacked + u'/' + name, O_WRONLY | O_CREAT | O_TRUNC);
        return copy(from, into, buffer, fileSize);
    });
}
