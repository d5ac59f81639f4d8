// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/compress.h"

#include "utilsDll/crashReport/UnZipMod_p.h"
#include "utilsDll/crashReport/ZipMod_p.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <filesystem>
#include <list>

namespace ZYX_zglv6 {

namespace {

/*!
    Adds the files in \a prefix of \a dir, as paths from \a dir. Links to folders may lead in a circle or out of the
    folder, links to devices to bytes without an end, and the archive must not be packed into itself.
*/
void gatherFiles(const QDir &dir, const QString &prefix, const QFileInfo &zipFile, std::list<QString> &files)
{
    const QDir folder(dir.absolutePath() + u'/' + prefix);
    for (const QFileInfo &item : folder.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString name = prefix.isEmpty() ? item.fileName() : QString(prefix + u'/' + item.fileName());
        if (item.isDir() && !item.isSymbolicLink() && !item.isJunction()) {
            gatherFiles(dir, name, zipFile, files);
        } else if (item.isFile() && !(zipFile.exists() && item == zipFile)) {
            files.push_back(name);
        }
    }
}

/*! From the first file on that was not removed, each is reported, also those that were. */
bool removePathItems(const QDir &dir, const std::list<QString> &files)
{
    bool areAllRemoved = true;
    for (const QString &name : files) {
        const QString path = dir.absolutePath() + u'/' + name; // QDir would take a name with a colon for a resource
        areAllRemoved = std::filesystem::remove_all(QFileInfo(path).filesystemFilePath()) > 0 && areAllRemoved;
        ASSERT_X_RETURN_BUT_GO_ON(areAllRemoved, qUtf8Printable(u"Cannot remove item: "_qs + path));
    }
    return areAllRemoved;
}

bool doCompressDir(const QDir &dir, const QFileInfo &zipFile, bool clearContent)
{
    ZYX_LOG('D', u"Try to compress all files in folder: "_qs + dir.absolutePath());
    std::list<QString> files;
    gatherFiles(dir, QString(), QFileInfo(zipFile.absoluteFilePath()), files); // afresh: it may have come into being
    ASSERT_X_RETURN_VALUE(!files.empty(), false, "No files to compress");
    const bool isPacked
        = ZipMod::addToZipFile(zipFile.absoluteFilePath(), false, dir.absolutePath(), files, -1, QByteArray());
    if (clearContent) {
        // Also after a failure: the folder is ready for the next report in any case.
        ZYX_LOG('D', u"Delete all compressed files in folder: "_qs + dir.absolutePath());
        removePathItems(dir, files);
    }
    return isPacked;
}

} // namespace

bool CompressDir(const QDir &dir, const QFileInfo &zipFile)
{
    return doCompressDir(dir, zipFile, false);
}

bool CompressDirAndClearContent(const QDir &dir, const QFileInfo &zipFile)
{
    return doCompressDir(dir, zipFile, true);
}

bool DecompressFiles(const QFileInfo &zipFile, const QDir &dir, const QString &password)
{
    return UnZipMod::extractZipArchive(dir.absolutePath(), zipFile.absoluteFilePath(), QString(), password.toUtf8());
}

} // namespace ZYX_zglv6
