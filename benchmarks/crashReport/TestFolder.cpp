// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "TestFolder.h"

#include "PlainCopies.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <unistd.h>

#include <algorithm>

namespace {

/*! Bytes that no file system can leave out or share. */
bool writeFile(const QString &path, int size, QRandomGenerator &generator)
{
    QByteArray bytes(qsizetype(size + 3) / 4 * 4, Qt::Uninitialized);
    generator.fillRange(reinterpret_cast<quint32 *>(bytes.data()), bytes.size() / 4);
    bytes.truncate(size);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == size && file.flush();
}

} // namespace

TestFolder::TestFolder(const QString &folder)
    : sources(folder + u"/sources")
    , archive(folder + u"/archive.zip")
    , joinedFiles(folder + u"/joinedFiles")
    , packed(folder + u"/packed.zip") // zip adds the ending where there is none
    , unpacked(folder + u"/unpacked")
{
}

QStringList TestFolder::sourceFiles() const
{
    QStringList names;
    for (QDirIterator files(sources, QDir::Files); files.hasNext();) {
        files.next();
        names.append(files.fileName());
    }
    return names;
}

bool TestFolder::make(const Load &load) const
{
    if (QFileInfo::exists(sources)) {
        return true;
    }
    if (!QDir().mkpath(sources)) {
        return false;
    }
    QRandomGenerator generator(1);
    for (int i = 0; i < load.files; ++i) {
        if (!writeFile(sources + u"/file_%1.dat"_qs.arg(i, 5, 10, QChar(u'0')), load.fileSize, generator)) {
            return false;
        }
    }
    const bool isMade = ZYX_zglv6::CompressDir(QDir(sources), QFileInfo(archive)) && appendFiles(*this, joinedFiles);
    ::sync(); // or the disk is still busy with it while packing is measured
    return isMade;
}

bool TestFolder::clear() const
{
    return (!QFileInfo::exists(packed) || QFile::remove(packed)) && QDir(unpacked).removeRecursively()
        && QDir().mkpath(unpacked);
}

bool TestFolder::isPacked(const Load &load) const
{
    return QFileInfo(packed).size() >= load.size();
}

bool TestFolder::isUnpacked(const Load &load) const
{
    const QFileInfoList files = QDir(unpacked).entryInfoList(QDir::Files);
    return files.size() == load.files
        && std::all_of(files.begin(), files.end(), [&](const QFileInfo &file) { return file.size() == load.fileSize; });
}
