// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <string>

/*!
    \a path as the record takes it: absolute, in the system's narrow encoding. That is UTF-8 on Linux and the code page
    on Windows, in which not every name of a file can be said: empty if this one can't.
*/
std::string narrowPath(const QString &path);

/*! The path of the pixels that belong to the record at \a recordPath. */
QString imagePath(const QString &recordPath);

/*! -1 if there is no such file. */
qint64 fileSize(const QString &path);
