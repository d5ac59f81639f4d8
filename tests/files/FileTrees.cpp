// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace FileTrees {

namespace {

constexpr qsizetype longestShownContent = 64;

QString shown(const QByteArray &content)
{
    return QString::fromUtf8(content.size() <= longestShownContent
                                 ? content
                                 : QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

QString shownEntry(const QString &name, const QFileInfo &entry)
{
    if (entry.isSymLink()) {
        return name + u'@';
    }
    if (entry.isDir()) {
        return name + u'/';
    }
    return entry.isFile() ? QString(name + u'=' + shown(contentOf(entry.filePath()))) : QString(name + u'|');
}

} // namespace

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

bool make(const QString &folder, const QStringList &names)
{
    bool isMade = QDir().mkpath(folder);
    for (const QString &name : names) {
        const QString path = folder + u'/' + name;
        isMade = isMade && (name.endsWith(u'/') ? QDir().mkpath(path) : write(path, name.toUtf8()));
    }
    return isMade;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList treeOf(const QString &folder)
{
    const QDir root(folder);
    QStringList entries;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        entries.append(shownEntry(root.relativeFilePath(path), walk.fileInfo()));
    }
    entries.sort();
    return entries;
}

QStringList numberedNames(int count)
{
    QStringList names;
    for (int number = 0; number < count; ++number) {
        names.append(u"%1.tif"_qs.arg(number, 4, 10, QLatin1Char('0')));
    }
    return names;
}

} // namespace FileTrees
