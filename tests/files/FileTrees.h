// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*! Files and folders of tests. */
namespace FileTrees {

/*! Makes the file anew, with its folder. */
[[nodiscard]] bool write(const QString &path, const QByteArray &content);

/*! Makes the files below \a folder, each with its own name as content; a name that ends in '/' is a folder. */
[[nodiscard]] bool make(const QString &folder, const QStringList &names);

/*! Null if the file can't be read. */
QByteArray contentOf(const QString &path);

/*!
    All below \a folder, sorted: "a/" for a folder, "b=content" for a file, "c@" for a link, which is not followed, "d|"
    for anything else. A content of more than 64 bytes is shown by its hash.
*/
QStringList treeOf(const QString &folder);

#ifdef ZYX_SLOW_FILES
inline constexpr int manyFiles = 1'000;
#else
inline constexpr int manyFiles = 10'000;
#endif

/*! Names "0000.tif" and on. */
QStringList numberedNames(int count);

} // namespace FileTrees
