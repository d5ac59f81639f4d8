// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveFiles.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

namespace TestSupport {

void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile::remove(path); // some file systems write a file to the disk at once when it was emptied before
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

void writeFiles(const QString &folder, const Files &files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        writeFile(folder + u'/' + file.key(), file.value());
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QByteArray("").append(file.readAll()) : QByteArray();
}

Files filesBelow(const QString &folder)
{
    Files files;
    QDirIterator walk(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QFileInfo item(walk.next());
        const QString name = QDir(folder).relativeFilePath(item.filePath());
        if (item.isSymbolicLink()) {
            files.insert(name, "link");
        } else if (item.isFile()) {
            files.insert(name, contentOf(item.filePath()));
        } else if (!item.isDir()) {
            files.insert(name, "special");
        }
    }
    return files;
}

QByteArray bytesOf(qsizetype size)
{
    QRandomGenerator random(1895);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes) {
        byte = char(random.bounded(256));
    }
    return bytes;
}

} // namespace TestSupport
