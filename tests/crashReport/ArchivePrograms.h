// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TestSupport {

bool hasProgram(const QString &name);

struct ProgramRun
{
    int exitCode = -1; // also where the program did not end by itself
    QByteArray output; // without what it wrote to standard error
    QString errors;
};

/*! Runs the program in a UTF-8 locale, in \a folder. */
ProgramRun runProgram(const QString &name, const QStringList &arguments, const QString &folder = {});

/*! What Python's zipfile reads: "comment" and "entries"; empty if it refuses the archive or a content. */
QJsonObject readByPython(const QString &archive, const QString &password = {});

/*! The same, but of the contents only that of the entry \a name is read. */
QJsonObject lookByPython(const QString &archive, const QString &name);

/*! Has Python pack the files of \a folder with \a method. */
bool packByPython(const QString &archive, int method, const QString &folder);

/*! As Python tells contents. */
QString sha256Of(const QByteArray &content);

} // namespace TestSupport
