// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/crashReport/zipCrashReport.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <memory>

/*!
    The report that there is to send: a new one of the crash that has just been, or else the newest that an earlier run
    has packed. CStorageLocation has to know the data directory.
*/
class CCrashReport
{
public:
    enum class Origin {
        None, // there is nothing to send
        NotPacked, // a dump waited, but no archive came of it
        Earlier, // its texts are fixed
        New
    };

    /*! Packs the report if a dump waits. */
    CCrashReport(const QString &product, const QString &email, const QString &comment);
    ~CCrashReport(); // after a new report leaves the ten newest

    Origin origin() const;

    /*! Path of the archive; empty if there is nothing to send. */
    QString archive() const;

    // Of a new report; empty for any other.
    QString email() const;
    QString comment() const;

    /*! Brings the two texts into the archive of a new report. False: they are not in it, or it is no longer whole. */
    bool setTexts(const QString &email, const QString &comment);

    /*! The archive's bytes; null if they can't be read. */
    QByteArray read() const;

private:
    bool isWholeWith(const QString &email, const QString &comment) const;

    ZYX_zglv6::CBaseCrashParser m_parser; // outlives the report
    std::unique_ptr<ZYX_zglv6::CZipCrashReport> m_report; // of a new one
    Origin m_origin = Origin::None;
    QString m_archive;
    QString m_email;
    QString m_comment;
    QMap<QString, qint64> m_packed; // files of a new report besides its description, with their sizes
    bool m_isWhole = true; // as far as it was looked at
};
