// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/UnZipMod_p.h"

#include "utilsDll/crashReport/EntryNames_p.h"
#include "utilsDll/crashReport/ZipFileFunctions_p.h"

#include "platform/DosTimes.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <minizip/unzip.h>

#include <array>
#include <filesystem>
#include <memory>
#include <system_error>

namespace ZYX_zglv6 {

namespace {

constexpr int failed = -1;

struct alignas(32) Buffer
{
    std::array<char, 8192> bytes{};
};

struct ArchiveCloser
{
    void operator()(unzFile archive) const
    {
        unzClose(archive); // also the entry that is still open
    }
};

struct Entry
{
    unz_file_info64 info{};
    QByteArray name; // as it stands in the archive
    bool isNameWhole = false;
};

/*! Status of minizip. Of a name that is longer than the 255 bytes that are read only the beginning is there. */
int readEntry(unzFile archive, Entry &entry)
{
    std::array<char, 256> name{};
    const int status
        = unzGetCurrentFileInfo64(archive, &entry.info, name.data(), uLong(name.size()), nullptr, 0, nullptr, 0);
    entry.name = QByteArray(name.data(), qsizetype(qstrnlen(name.data(), name.size() - 1)));
    entry.isNameWhole = uLong(entry.name.size()) == entry.info.size_filename;
    return status;
}

/*! A link of Unix: its content is the path that it leads to. */
bool isLink(const unz_file_info64 &info)
{
    constexpr uLong unixSystem = 3;
    constexpr uLong typeMask = 0170000;
    constexpr uLong linkType = 0120000;
    return (info.version >> 8) == unixSystem && ((info.external_fa >> 16) & typeMask) == linkType;
}

/*! Archives may come from anybody: whatever might end outside of \a folder is not written at all. */
bool isRefused(const Entry &entry, const QString &folder)
{
    const QString name = QFile::decodeName(entry.name);
    if (entry.isNameWhole && !isLink(entry.info) && !leavesFolder(name) && !passesLink(folder, name)) {
        return false;
    }
    ZYX_LOG('E', u"Refused to extract: "_qs + name);
    return true;
}

/*! One level only. False: somebody else has just made it. */
bool makeFolder(const QString &folder)
{
    const QFileInfo item(folder);
    if (item.isDir()) {
        return true;
    }
    const std::filesystem::path path = item.filesystemFilePath();
    std::error_code error;
    const bool isMade = std::filesystem::create_directory(path, error);
    if (error) {
        throw std::filesystem::filesystem_error("create_directory", path, error);
    }
    return isMade;
}

/*! The lines of all steps of extracting an entry are those of doExtractCurrentFile(). */
void logExtracting(const char *text, const QString &name = {})
{
    if (const ILoggerInterface *logger = loggerInstance()) {
        writeLogLine(*logger, 'E', "ZYX_zglv6::`anonymous-namespace'::doExtractCurrentFile",
                     QString(QString::fromLatin1(text) + name));
    }
}

/*! Copies what is left of the open entry into \a file. Status of the last reading, 0 at the end. */
int copyEntry(unzFile archive, QFile &file, const QString &name)
{
    const auto buffer = std::make_unique<Buffer>();
    for (;;) {
        const int count = unzReadCurrentFile(archive, buffer->bytes.data(), unsigned(buffer->bytes.size()));
        if (count < 0) {
            logExtracting("Error with zipfile in unzReadCurrentFile: ");
        }
        if (count <= 0) {
            return count;
        }
        if (file.write(buffer->bytes.data(), count) != count) {
            logExtracting("Error in writing extracted file: ", name);
            return count;
        }
    }
}

/*! Writes the open entry to \a path. A file that can't be made is no failure of the entry. */
int writeEntry(unzFile archive, const QString &path, const Entry &entry)
{
    const QString name = QFile::decodeName(entry.name);
    QFile file(path);
    // Without a buffer, so that a full disk shows while there is still something to tell.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        logExtracting("Error opening file: ", name);
        return UNZ_OK;
    }
    const int status = copyEntry(archive, file, name);
    file.close();
    if (status == UNZ_OK) {
        // By the name in the archive, from the working folder: as a rule there is no such file, and the
        // extracted one keeps the time of the extraction.
        ZyxPlatform::setDosTime(entry.name.constData(), std::uint32_t(entry.info.dosDate));
    }
    return status;
}

int doExtractCurrentFile(unzFile archive, const QString &folder, const QByteArray &password)
{
    Entry entry;
    int status = readEntry(archive, entry);
    if (status != UNZ_OK) {
        logExtracting("Error with zipfile in unzGetCurrentFileInfo: ");
        return status;
    }
    if (isRefused(entry, folder)) {
        return UNZ_BADZIPFILE;
    }
    status = unzOpenCurrentFilePassword(archive, password.isEmpty() ? nullptr : password.constData());
    if (status != UNZ_OK) {
        logExtracting("Error with zipfile in unzOpenCurrentFilePassword: ");
    } else {
        const QString path = folder + u'/' + QFile::decodeName(entry.name);
        const QString parent = path.left(path.lastIndexOf(u'/'));
        if (!makeFolder(parent)) {
            logExtracting("Cannot create directory: ", parent);
            return failed;
        }
        status = writeEntry(archive, path, entry);
    }
    const int closeStatus = unzCloseCurrentFile(archive);
    if (closeStatus != UNZ_OK) {
        logExtracting("Error with zipfile in unzCloseCurrentFile: ");
    }
    return status != UNZ_OK ? status : closeStatus;
}

/*! Status of going through the archive: an entry that fails ends it, and the status stays 0. */
int doExtractAllFilesInZip(unzFile archive, const QString &folder, const QByteArray &password)
{
    unz_global_info64 info{};
    int status = unzGetGlobalInfo64(archive, &info);
    if (status != UNZ_OK) {
        ZYX_LOG('E', "Error with zipfile in unzGetGlobalInfo: ");
        return status;
    }
    for (ZPOS64_T i = 0; i < info.number_entry; ++i) {
        if (doExtractCurrentFile(archive, folder, password) != UNZ_OK) {
            break;
        }
        if (i + 1 < info.number_entry) {
            status = unzGoToNextFile(archive);
            if (status != UNZ_OK) {
                ZYX_LOG('E', "Error with zipfile in unzGoToNextFile: ");
                break;
            }
        }
    }
    return status;
}

/*! Goes to the entry whose name is \a wanted, with ASCII letters in any case. */
bool findEntry(unzFile archive, const QByteArray &wanted)
{
    for (int status = unzGoToFirstFile(archive); status == UNZ_OK; status = unzGoToNextFile(archive)) {
        Entry entry;
        if (readEntry(archive, entry) == UNZ_OK && entry.isNameWhole
            && qstricmp(entry.name.constData(), wanted.constData()) == 0) {
            return true;
        }
    }
    return false;
}

bool doExtractOneFile(unzFile archive, const QString &folder, const QString &entryName, const QByteArray &password)
{
    if (!findEntry(archive, QFile::encodeName(entryName))) {
        ZYX_LOG('E', u"File not found in the zip archive: "_qs + entryName);
        return false;
    }
    return doExtractCurrentFile(archive, folder, password) == UNZ_OK;
}

} // namespace

bool UnZipMod::extractZipArchive(const QString &folder, const QString &zipPath, const QString &entryName,
                                 const QByteArray &password)
{
    zlib_filefunc64_def functions = zipFileFunctions();
    const std::unique_ptr<void, ArchiveCloser> archive(unzOpen2_64(QFile::encodeName(zipPath).constData(), &functions));
    if (!archive) {
        ZYX_LOG('E', u"Cannot open file: "_qs + zipPath);
        return false;
    }
    if (!entryName.isEmpty()) {
        return doExtractOneFile(archive.get(), folder, entryName, password);
    }
    return doExtractAllFilesInZip(archive.get(), folder, password) != 0; // true of a status means that it failed
}

} // namespace ZYX_zglv6
