// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>

#include <optional>

/*! What a sender says of its report. */
struct ReportOrigin
{
    QString platform;
    QString product;
    QString version;
};

/*! One row of the index. */
struct StoredReport
{
    QString identifier;
    QDateTime received;
    ReportOrigin origin;
    qint64 size = 0; // bytes of the archive
    QString sha256;
};

/*!
    The received archives, each in a file of its own, and their index, an SQLite database, in one folder. What is in the
    index is on the disk. Belongs to the thread that made it.
*/
class CReportStore
{
public:
    explicit CReportStore(QString folder);
    ~CReportStore();

    CReportStore(const CReportStore &) = delete;
    CReportStore &operator=(const CReportStore &) = delete;

    /*! Call it first. False, and nothing is changed, if there is no folder or an index that can't be used. */
    [[nodiscard]] bool open();

    /*! Why open() or add() failed. */
    QString errorString() const;

    /*! Keeps \a archive under a new identifier. Nothing, and no file, if it can't be kept. */
    std::optional<StoredReport> add(const ReportOrigin &origin, const QByteArray &archive);

    /*! How many reports there are; 0 if the index can't be read. */
    qint64 count() const;

    /*! The \a limit that came last, the newest first. */
    QList<StoredReport> newest(int limit) const;

    /*! The archive that is listed under \a identifier, which may be any text. */
    std::optional<QByteArray> archive(const QString &identifier) const;

private:
    bool openIndex();
    bool prepareIndex();
    bool createIndex();
    bool checkIndex(int version);
    bool run(const QString &statement, QVariant *value = nullptr);
    bool insert(const StoredReport &report);
    QString archivePath(const QString &identifier) const;
    bool fail(const QString &reason);

    QString m_folder;
    QString m_connection;
    QSqlDatabase m_index;
    QString m_error;
};
