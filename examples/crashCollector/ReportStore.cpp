// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportStore.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QUuid>
#include <QtCore/QVariant>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <utility>

namespace {

constexpr int indexVersion = 1;

/*! The only value of a statement that has one; invalid if it fails. */
QVariant singleValue(const QSqlDatabase &index, const QString &statement)
{
    QSqlQuery query(index);
    return query.exec(statement) && query.next() ? query.value(0) : QVariant();
}

/*! Compares as a text as it does as a time. */
QString timeText(const QDateTime &time)
{
    return time.toUTC().toString(u"yyyy-MM-ddTHH:mm:ss.zzzZ"_qs);
}

StoredReport reportIn(const QSqlQuery &row)
{
    StoredReport report;
    report.identifier = row.value(0).toString();
    report.received = QDateTime::fromString(row.value(1).toString(), Qt::ISODateWithMs);
    report.origin = {row.value(2).toString(), row.value(3).toString(), row.value(4).toString()};
    report.size = row.value(5).toLongLong();
    report.sha256 = row.value(6).toString();
    return report;
}

bool write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path); // complete, and its bytes on the disk, when commit() returns
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner); // dumps and logs are no one else's business
    return file.write(bytes) == bytes.size() && file.commit();
}

} // namespace

CReportStore::CReportStore(QString folder)
    : m_folder(std::move(folder))
    , m_connection(QUuid::createUuid().toString())
{
}

CReportStore::~CReportStore()
{
    m_index = QSqlDatabase(); // a connection that is in use can't be removed
    QSqlDatabase::removeDatabase(m_connection);
}

bool CReportStore::open()
{
    if (!QDir().mkpath(m_folder)) {
        return fail(u"the folder %1 can't be made"_qs.arg(QDir::toNativeSeparators(m_folder)));
    }
    return openIndex();
}

bool CReportStore::openIndex()
{
    const QString path = QDir(m_folder).filePath(u"index.sqlite"_qs);
    m_index = QSqlDatabase::addDatabase(u"QSQLITE"_qs, m_connection);
    m_index.setDatabaseName(path);
    if (m_index.open() ? prepareIndex() : fail(m_index.lastError().text())) {
        return true;
    }
    m_index.close();
    return fail(
        u"%1 can't be used as the index of reports: %2"_qs.arg(QDir::toNativeSeparators(path), m_error.trimmed()));
}

bool CReportStore::prepareIndex()
{
    QVariant version;
    QVariant entries;
    if (!run(u"PRAGMA user_version"_qs, &version) || !run(u"SELECT count(*) FROM sqlite_master"_qs, &entries)) {
        return false;
    }
    // Also what a start left that was ended while it made the index.
    const bool isNew = version.toInt() == 0 && entries.toInt() == 0;
    return isNew ? createIndex() : checkIndex(version.toInt());
}

bool CReportStore::createIndex()
{
    return run(u"BEGIN"_qs)
        && run(u"CREATE TABLE reports (identifier TEXT PRIMARY KEY, received TEXT NOT NULL, platform TEXT NOT NULL, "
               "product TEXT NOT NULL, version TEXT NOT NULL, size INTEGER NOT NULL, sha256 TEXT NOT NULL)"_qs)
        && run(u"CREATE INDEX reports_received ON reports (received)"_qs)
        && run(u"PRAGMA user_version = %1"_qs.arg(indexVersion)) && run(u"COMMIT"_qs);
}

/*! Only reads: a file that is something else stays as it is. */
bool CReportStore::checkIndex(int version)
{
    if (version != indexVersion) {
        return fail(u"it has the version %1 instead of %2"_qs.arg(version).arg(indexVersion));
    }
    QVariant state;
    if (!run(u"PRAGMA quick_check(1)"_qs, &state)) {
        return false;
    }
    return state.toString() == u"ok"
        ? run(u"SELECT identifier, received, platform, product, version, size, sha256 FROM reports LIMIT 0"_qs)
        : fail(state.toString());
}

/*! \a value becomes that of a statement that has one. */
bool CReportStore::run(const QString &statement, QVariant *value)
{
    QSqlQuery query(m_index);
    if (!query.exec(statement)) {
        return fail(query.lastError().text());
    }
    if (value != nullptr) {
        *value = query.next() ? query.value(0) : QVariant();
    }
    return true;
}

QString CReportStore::errorString() const
{
    return m_error;
}

bool CReportStore::fail(const QString &reason)
{
    m_error = reason;
    return false;
}

std::optional<StoredReport> CReportStore::add(const ReportOrigin &origin, const QByteArray &archive)
{
    StoredReport report;
    report.identifier = QUuid::createUuid().toString(QUuid::WithoutBraces);
    report.received = QDateTime::currentDateTimeUtc();
    report.origin = origin;
    report.size = archive.size();
    report.sha256 = QString::fromLatin1(QCryptographicHash::hash(archive, QCryptographicHash::Sha256).toHex());

    const QString path = archivePath(report.identifier);
    if (!write(path, archive)) {
        fail(u"%1 can't be written"_qs.arg(QDir::toNativeSeparators(path)));
        return std::nullopt;
    }
    // SQLite syncs the folder, and with it the name of the archive, before it changes the index.
    if (!insert(report)) {
        QFile::remove(path); // if that fails too, there is a file that nothing refers to
        return std::nullopt;
    }
    return report;
}

bool CReportStore::insert(const StoredReport &report)
{
    QSqlQuery query(m_index);
    query.prepare(u"INSERT INTO reports (identifier, received, platform, product, version, size, sha256) "
                  "VALUES (?, ?, ?, ?, ?, ?, ?)"_qs);
    const auto bindText = [&query](const QString &text) { query.addBindValue(text.isNull() ? u""_qs : text); };
    bindText(report.identifier);
    bindText(timeText(report.received));
    bindText(report.origin.platform);
    bindText(report.origin.product);
    bindText(report.origin.version);
    query.addBindValue(report.size);
    bindText(report.sha256);
    return query.exec() || fail(u"the index can't be written: %1"_qs.arg(query.lastError().text()));
}

qint64 CReportStore::count() const
{
    return singleValue(m_index, u"SELECT count(*) FROM reports"_qs).toLongLong();
}

QList<StoredReport> CReportStore::newest(int limit) const
{
    QSqlQuery query(m_index);
    query.prepare(u"SELECT identifier, received, platform, product, version, size, sha256 FROM reports "
                  "ORDER BY received DESC, rowid DESC LIMIT ?"_qs);
    query.addBindValue(limit);
    QList<StoredReport> reports;
    for (query.exec(); query.next();) {
        reports.append(reportIn(query));
    }
    return reports;
}

std::optional<QByteArray> CReportStore::archive(const QString &identifier) const
{
    QSqlQuery query(m_index);
    query.prepare(u"SELECT identifier FROM reports WHERE identifier = ?"_qs);
    query.addBindValue(identifier);
    if (!query.exec() || !query.next()) {
        return std::nullopt;
    }
    QFile file(archivePath(query.value(0).toString())); // as the index has it
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

QString CReportStore::archivePath(const QString &identifier) const
{
    return QDir(m_folder).filePath(identifier + u".zip");
}
