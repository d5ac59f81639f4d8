// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "TestArchives.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <minizip/zip.h>

namespace CrashCollectorTest {

namespace {

void addEntry(zipFile archive, const ZipEntry &entry)
{
    const zip_fileinfo noTimes{};
    const int method = entry.isDeflated ? Z_DEFLATED : 0;
    zipOpenNewFileInZip(archive, entry.name.constData(), &noTimes, nullptr, 0, nullptr, 0, nullptr, method,
                        entry.isDeflated ? Z_BEST_COMPRESSION : 0);
    zipWriteInFileInZip(archive, entry.content.constData(), unsigned(entry.content.size()));
    zipCloseFileInZip(archive);
}

QList<ZipEntry> reportEntries()
{
    return {{"crash.dmp", QByteArray("MDMP") + QByteArray(2000, '\x91')},
            {"Zyx.log", "DEBUG start\nFATAL end\n"},
            {"report.xml", "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<ZyxCrashReport>\n</ZyxCrashReport>\n"}};
}

} // namespace

QByteArray zipWith(const QList<ZipEntry> &entries)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"archive.zip"_qs);
    const zipFile archive = zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    for (const ZipEntry &entry : entries) {
        addEntry(archive, entry);
    }
    zipClose(archive, nullptr);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray reportArchive()
{
    return zipWith(reportEntries());
}

QByteArray reportArchiveOfSize(qsizetype size)
{
    QList<ZipEntry> entries = reportEntries();
    entries.append(ZipEntry{"filling", ""});
    const qsizetype smallest = zipWith(entries).size();
    entries.last().content = QByteArray(size - smallest, 'x');
    return zipWith(entries);
}

QByteArray replaced(QByteArray bytes, const QByteArray &part, const QByteArray &other)
{
    return bytes.replace(bytes.indexOf(part), part.size(), other);
}

} // namespace CrashCollectorTest
