// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "storageLocation/storageLocation.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*! The folders of crash reports in a program that has set the data directory; without the double separators. */
namespace ReportFolders {

inline QString reports()
{
    return QDir::cleanPath(ZYX_zglv6::CStorageLocation::crashFilesPath());
}

inline QString dumps()
{
    return QDir::cleanPath(ZYX_zglv6::CStorageLocation::crashFilesPath() + u"temp");
}

inline QString logs()
{
    return QDir::cleanPath(ZYX_zglv6::CStorageLocation::loggerFilesPath());
}

/*! Makes the three folders anew. */
[[nodiscard]] inline bool empty()
{
    return QDir(reports()).removeRecursively() && QDir(logs()).removeRecursively() && QDir().mkpath(dumps())
        && QDir().mkpath(logs());
}

/*! Makes the file anew, with its folder. */
[[nodiscard]] inline bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(content) == content.size();
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! The zip files, whole paths. */
inline QStringList zipFiles()
{
    QStringList paths;
    const QStringList names = QDir(reports()).entryList({u"*.zip"_qs}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        paths.append(reports() + u'/' + name);
    }
    return paths;
}

/*! What lies below \a folder, as sorted paths from there: files as they are, folders with "/" behind. */
inline QStringList treeOf(const QString &folder)
{
    QStringList paths;
    QDirIterator items(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (items.hasNext()) {
        const QString path = QDir(folder).relativeFilePath(items.next());
        const bool isFolder = items.fileInfo().isDir() && !items.fileInfo().isSymLink();
        paths.append(isFolder ? QString(path + u'/') : path);
    }
    paths.sort();
    return paths;
}

} // namespace ReportFolders
