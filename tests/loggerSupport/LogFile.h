// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*! The bytes of the log file \a path with line ends "\n"; none if it can't be read. */
QByteArray readLog(const QString &path);

/*!
    The records of the log file \a path, each "LEVEL message", such as "DEBUG f: text". A line that has not the form
    of a record is given as it is.
*/
QStringList readRecords(const QString &path);

/*! The records of readRecords() that don't come from initLogger(). */
QStringList readHostRecords(const QString &path);
