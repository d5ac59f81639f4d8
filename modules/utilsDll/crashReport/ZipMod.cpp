// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/ZipMod_p.h"

#include "utilsDll/crashReport/EntryNames_p.h"
#include "utilsDll/crashReport/ZipFileFunctions_p.h"

#include "platform/DosTimes.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <minizip/zip.h>
#include <zlib.h>

#include <array>
#include <memory>

namespace ZYX_zglv6::ZipMod {

namespace {

constexpr qint64 zip64Length = 0xFFFFFFFF; // from here on lengths don't fit the plain fields
constexpr uLong utf8Names = 0x800; // a general purpose flag
constexpr uLong madeOnVfat = (14 << 8) | 20; // names of plain FAT, which is 0, have a code page for some programs

struct alignas(32) Buffer
{
    std::array<char, 16384> bytes{};
};

struct ArchiveCloser
{
    void operator()(zipFile archive) const
    {
        zipClose(archive, nullptr);
    }
};

using Archive = std::unique_ptr<void, ArchiveCloser>;

/*! The lines of all steps are the one function's that is called from outside. */
void logStep(char level, const char *text, const QString &name)
{
    if (const ILoggerInterface *logger = loggerInstance()) {
        writeLogLine(*logger, level, "ZYX_zglv6::ZipMod::addToZipFile", QString(QString::fromLatin1(text) + name));
    }
}

/*! Reads on; less than the buffer is the end or, with false, an error. */
bool readPiece(QFile &file, Buffer &buffer, unsigned &size)
{
    const qint64 count = file.read(buffer.bytes.data(), qint64(buffer.bytes.size()));
    size = unsigned(qMax(count, qint64(0)));
    return count >= 0;
}

/*! Of the whole file, or of as much of it as can be read; packing tells of what can't. */
uLong checksum(const QString &path, Buffer &buffer)
{
    QFile file(path);
    uLong crc = crc32(0, nullptr, 0);
    unsigned size = 0;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return crc;
    }
    while (readPiece(file, buffer, size) && size > 0) {
        crc = crc32(crc, reinterpret_cast<const Bytef *>(buffer.bytes.data()), size);
    }
    return crc;
}

bool needsZip64(const QString &path)
{
    return QFileInfo(path).size() >= zip64Length;
}

int openEntry(zipFile archive, const QString &path, const QString &name, const QByteArray &password, uLong crc)
{
    zip_fileinfo information{};
    information.tmz_date.tm_mon = uInt(-1); // without a time: DOS counts months from one, so this becomes 0
    information.dosDate = ZyxPlatform::lastWriteDosTime(QFile::encodeName(path).constData());
    const QByteArray entry = entryName(name);
    const bool isUtf8 = isUtf8EntryName(entry, name);
    return zipOpenNewFileInZip4_64(archive, entry.constData(), &information, nullptr, 0, nullptr, 0, nullptr, 0, 0, 0,
                                   -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY,
                                   password.isEmpty() ? nullptr : password.constData(), crc, isUtf8 ? madeOnVfat : 0,
                                   isUtf8 ? utf8Names : 0, needsZip64(path) ? 1 : 0);
}

/*! Copies the file into the open entry. -1 if it can't be read to its end. */
int writeContent(zipFile archive, const QString &path, const QString &name, Buffer &buffer)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        logStep('E', "Error opening for reading: ", name);
        return ZIP_ERRNO;
    }
    for (;;) {
        unsigned size = 0;
        if (!readPiece(file, buffer, size)) {
            logStep('E', "Error reading: ", name);
            return ZIP_ERRNO;
        }
        if (size == 0) {
            return ZIP_OK;
        }
        const int status = zipWriteInFileInZip(archive, buffer.bytes.data(), size);
        if (status != ZIP_OK) {
            logStep('E', "Error writing zipfile: ", name);
            return status;
        }
    }
}

int addEntry(zipFile archive, const QString &baseFolder, const QString &name, const QByteArray &password,
             Buffer &buffer)
{
    const QString path = baseFolder + u'/' + name;
    const uLong crc = password.isEmpty() ? 0 : checksum(path, buffer);
    int status = openEntry(archive, path, name, password, crc);
    if (status != ZIP_OK) {
        logStep('E', "Error opening zipfile: ", name);
    } else {
        status = writeContent(archive, path, name, buffer);
    }
    if (status < 0) {
        return ZIP_ERRNO; // the entry stays open: closing the archive closes it
    }
    status = zipCloseFileInZip(archive);
    if (status != ZIP_OK) {
        logStep('E', "Error closing zipfile: ", name);
    }
    return status;
}

} // namespace

bool addToZipFile(const QString &zipPath, bool /*flag*/, const QString &baseFolder, const std::list<QString> &files,
                  int /*level*/, const QByteArray &password)
{
    const auto buffer = std::make_unique<Buffer>();
    zlib_filefunc64_def functions = zipFileFunctions();
    Archive archive(zipOpen2_64(QFile::encodeName(zipPath).constData(), APPEND_STATUS_CREATE, nullptr, &functions));
    int status = archive ? ZIP_OK : ZIP_ERRNO;
    logStep(archive ? 'I' : 'E', archive ? "Creating zip file: " : "Error opening zip file: ", zipPath);
    for (const QString &name : files) {
        if (status != ZIP_OK) {
            break;
        }
        status = addEntry(archive.get(), baseFolder, name, password, *buffer);
    }
    const int closeStatus = zipClose(archive.release(), nullptr); // of an archive that was not opened an error, too
    if (closeStatus != ZIP_OK) {
        logStep('E', "Error in closing: ", zipPath);
    }
    // An input that could not be read ends the packing early; the archive holds what came before it.
    return (status == ZIP_OK || status == ZIP_ERRNO) && closeStatus == ZIP_OK;
}

} // namespace ZYX_zglv6::ZipMod
