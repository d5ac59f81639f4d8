// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "RecordPaths.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

std::string narrowPath(const QString &path)
{
    const QString absolute = QDir::toNativeSeparators(QDir().absoluteFilePath(path));
    const QByteArray narrow = QFile::encodeName(absolute);
    return QFile::decodeName(narrow) == absolute ? narrow.toStdString() : std::string();
}

QString imagePath(const QString &recordPath)
{
    return recordPath + u"-image";
}

qint64 fileSize(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() ? file.size() : -1;
}
