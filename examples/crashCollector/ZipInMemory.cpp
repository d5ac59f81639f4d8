// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ZipInMemory.h"

#include <QtCore/QBuffer>

#include <memory>

namespace {

// The functions that minizip calls; a stream is a QBuffer.

QBuffer &buffer(voidpf stream)
{
    return *static_cast<QBuffer *>(stream);
}

voidpf openStream(voidpf bytes, const void * /*path*/, int /*mode*/)
{
    auto opened = std::make_unique<QBuffer>();
    opened->setData(*static_cast<const QByteArray *>(bytes)); // shared, not copied
    return opened->open(QIODevice::ReadOnly) ? opened.release() : nullptr;
}

uLong readStream(voidpf /*bytes*/, voidpf stream, void *target, uLong size)
{
    return uLong(qMax(qint64(0), buffer(stream).read(static_cast<char *>(target), qint64(size))));
}

uLong refuseToWrite(voidpf /*bytes*/, voidpf /*stream*/, const void * /*source*/, uLong /*size*/)
{
    return 0;
}

ZPOS64_T tellStream(voidpf /*bytes*/, voidpf stream)
{
    return ZPOS64_T(buffer(stream).pos());
}

long seekStream(voidpf /*bytes*/, voidpf stream, ZPOS64_T offset, int origin)
{
    QBuffer &seeked = buffer(stream);
    const qint64 start = origin == ZLIB_FILEFUNC_SEEK_CUR ? seeked.pos()
        : origin == ZLIB_FILEFUNC_SEEK_END                ? seeked.size()
                                                          : 0;
    const auto size = ZPOS64_T(seeked.size());
    const ZPOS64_T target
        = ZPOS64_T(start) + offset; // offsets of an archive may be anything: this wraps, and is refused
    return offset <= size && target <= size && seeked.seek(qint64(target)) ? 0 : -1;
}

int closeStream(voidpf /*bytes*/, voidpf stream)
{
    const std::unique_ptr<QBuffer> closed(&buffer(stream));
    return 0;
}

int streamError(voidpf /*bytes*/, voidpf /*stream*/)
{
    return 0;
}

} // namespace

CZipInMemory::CZipInMemory(const QByteArray &bytes)
{
    zlib_filefunc64_def functions{openStream, readStream,  refuseToWrite, tellStream,
                                  seekStream, closeStream, streamError,   const_cast<QByteArray *>(&bytes)};
    m_handle = unzOpen2_64("", &functions);
}

CZipInMemory::~CZipInMemory()
{
    if (m_handle != nullptr) {
        unzClose(m_handle);
    }
}

unzFile CZipInMemory::handle() const
{
    return m_handle;
}
