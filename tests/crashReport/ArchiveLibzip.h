// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "crashReport/ArchiveFiles.h"

#include <QtCore/QList>

namespace TestSupport {

/*! An entry as libzip, a second reader of archives, sees it. */
struct LibzipEntry
{
    QString name;
    quint64 size = 0;
    quint32 crc = 0;
    quint16 method = 0;
    quint16 encryption = 0;
    QByteArray content; // null if it can't be read
};

/*! Whether the tests were built with libzip. */
bool hasLibzip();

/*! Checked for consistency; empty if libzip refuses the archive. */
QList<LibzipEntry> readByLibzip(const QString &archive, const QByteArray &password = {});

bool packByLibzip(const QString &archive, const Files &files, bool isStored);

} // namespace TestSupport
