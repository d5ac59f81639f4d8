// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace TestSupport {

using Files = QMap<QString, QByteArray>; // relative path and content

/*! Makes the file \a path anew, with its folder. */
void writeFile(const QString &path, const QByteArray &content);
void writeFiles(const QString &folder, const Files &files);

/*! Null if there is no such file. */
QByteArray contentOf(const QString &path);

/*! All files in and below \a folder, also hidden ones; links and other special files with a content that says so. */
Files filesBelow(const QString &folder);

/*! Bytes without a pattern, the same for the same \a size. */
QByteArray bytesOf(qsizetype size);

} // namespace TestSupport
