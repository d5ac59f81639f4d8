// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

namespace ZYX_zglv6 {

/*! What a crash report has to know of the dumps that a crash handler leaves. Derive from it for another format. */
class UTILSDLL_EXPORT CBaseCrashParser
{
public:
    CBaseCrashParser();
    CBaseCrashParser(const CBaseCrashParser &other);
    CBaseCrashParser(CBaseCrashParser &&other) noexcept;
    CBaseCrashParser &operator=(const CBaseCrashParser &other);
    CBaseCrashParser &operator=(CBaseCrashParser &&other) noexcept;

    /*! A parser may convert the dump at \a path and return where the result lies; this one returns \a path. */
    virtual QString parsePLCrashFile(const QString &path) const;

    /*! How the names of dumps end: ".dmp". */
    virtual QString getCrashDumpExtension() const;

    virtual ~CBaseCrashParser(); // last: the places of the two operations are fixed
};

/*!
    One crash report: what a crash handler left in CStorageLocation::crashTempFilesPath(), the logs and a description,
    in a zip file in CStorageLocation::crashFilesPath(). The destructor leaves the last ten zip files there, by name.

    Belongs to the thread that made it. Each call works until its files are written; an upload needs the event loop.
    Failures are failed assertions, and lines of the archive functions, in the log; a log that can't be copied is told
    by nothing. CStorageLocation has to know the data directory: until then the constructor and isCrashDumpCreated()
    throw std::runtime_error.
*/
class UTILSDLL_EXPORT CZipCrashReport : public QObject
{
    Q_OBJECT

public:
    /*!
        Gathers and packs the report; \a product, \a email and \a comments go into it as they are. With
        \a deleteWhenDone the object deletes itself after the answer of the service. \a parser has to live as long as
        the report.
    */
    CZipCrashReport(const QString &product, const QString &email, const QString &comments, bool deleteWhenDone,
                    const CBaseCrashParser &parser, QObject *parent);
    ~CZipCrashReport() override;

    /*! True if there is a dump to report. */
    static bool isCrashDumpCreated(const CBaseCrashParser &parser);

    /*!
        What the constructor has done already. Once more, it replaces the zip file by one of what lies in the folder
        now: without the dump.
    */
    void createCrashReport();

    /*!
        Replaces the two texts in the zip file, whose name and other content stay. The way is through the temporary
        folder: what can't be unpacked, of a damaged zip file or on a full disk, is lost. If a folder can't be made, the
        zip file stays as it is.
    */
    void repack(const QString &email, const QString &comments);

    /*! The folder of the zip file, absolute; not the file. */
    QString getZipFilePath() const;

    /*!
        Tries once to send the zip file to the collection service; resultOfSend() tells what became of it. What it
        opens is getZipFilePath(), a folder, so as a rule the signal says false before this call returns, and nothing
        has left the machine. The zip file stays in any case.

        If something could be read, but CStorageLocation has no path of a preferences file, it throws
        std::runtime_error.
    */
    void sendZipToServer();

Q_SIGNALS:
    /*! True only if the service has accepted the report. Delete the object with deleteLater() here. */
    void resultOfSend(bool sendResult);

private Q_SLOTS:
    void httpResponce();

private:
    void createXmlReport() const;

    class Pimpl;
    const std::unique_ptr<Pimpl> pimpl;
};

} // namespace ZYX_zglv6
