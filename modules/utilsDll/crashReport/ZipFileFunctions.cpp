// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/ZipFileFunctions_p.h"

#include "platform/NarrowFile.h"

#include <memory>

using ZyxPlatform::NarrowFile;

namespace ZYX_zglv6 {

namespace {

NarrowFile &file(voidpf stream)
{
    return *static_cast<NarrowFile *>(stream);
}

voidpf openFile(voidpf /*opaque*/, const void *path, int mode)
{
    NarrowFile::Mode fileMode = NarrowFile::Mode::Create;
    if ((mode & ZLIB_FILEFUNC_MODE_READWRITEFILTER) == ZLIB_FILEFUNC_MODE_READ) {
        fileMode = NarrowFile::Mode::Read;
    } else if ((mode & ZLIB_FILEFUNC_MODE_EXISTING) != 0) {
        fileMode = NarrowFile::Mode::ReadAndWrite;
    }
    return NarrowFile::open(static_cast<const char *>(path), fileMode).release(); // closeFile() takes it back
}

uLong readFile(voidpf /*opaque*/, voidpf stream, void *bytes, uLong size)
{
    return uLong(file(stream).read(bytes, size));
}

uLong writeFile(voidpf /*opaque*/, voidpf stream, const void *bytes, uLong size)
{
    return uLong(file(stream).write(bytes, size));
}

ZPOS64_T tellFile(voidpf /*opaque*/, voidpf stream)
{
    return file(stream).tell();
}

long seekFile(voidpf /*opaque*/, voidpf stream, ZPOS64_T offset, int origin)
{
    switch (origin) {
    case ZLIB_FILEFUNC_SEEK_SET:
        return file(stream).seek(offset, NarrowFile::Origin::Start) ? 0 : -1;
    case ZLIB_FILEFUNC_SEEK_CUR:
        return file(stream).seek(offset, NarrowFile::Origin::Current) ? 0 : -1;
    case ZLIB_FILEFUNC_SEEK_END:
        return file(stream).seek(offset, NarrowFile::Origin::End) ? 0 : -1;
    default:
        return -1;
    }
}

int closeFile(voidpf /*opaque*/, voidpf stream)
{
    const std::unique_ptr<NarrowFile> closed(&file(stream));
    return closed->close() ? 0 : -1;
}

int errorOfFile(voidpf /*opaque*/, voidpf stream)
{
    return file(stream).error();
}

} // namespace

zlib_filefunc64_def zipFileFunctions()
{
    return {&openFile, &readFile, &writeFile, &tellFile, &seekFile, &closeFile, &errorOfFile, nullptr};
}

} // namespace ZYX_zglv6
