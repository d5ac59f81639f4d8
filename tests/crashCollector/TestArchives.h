// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

namespace CrashCollectorTest {

struct ZipEntry
{
    QByteArray name;
    QByteArray content;
    bool isDeflated = false;
};

/*! A zip archive with these entries. */
QByteArray zipWith(const QList<ZipEntry> &entries);

/*! An archive like those of crash reports: a report, a dump and a log, stored. */
QByteArray reportArchive();

/*! An archive of exactly \a size bytes. */
QByteArray reportArchiveOfSize(qsizetype size);

/*! \a bytes with the first \a part replaced by \a other. */
QByteArray replaced(QByteArray bytes, const QByteArray &part, const QByteArray &other);

} // namespace CrashCollectorTest
