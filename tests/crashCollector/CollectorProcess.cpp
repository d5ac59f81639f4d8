// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CollectorProcess.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>
#include <QtTest/QTest>

#include <algorithm>
#include <functional>
#include <utility>

namespace CrashCollectorTest {

namespace {

bool withIndex(const QString &storage, const std::function<bool(QSqlQuery &)> &function)
{
    const QString connection = u"test"_qs;
    const auto removal = qScopeGuard([&] { QSqlDatabase::removeDatabase(connection); });
    QSqlDatabase index = QSqlDatabase::addDatabase(u"QSQLITE"_qs, connection);
    index.setDatabaseName(storage + u"/index.sqlite");
    if (!index.open()) {
        return false;
    }
    QSqlQuery query(index);
    return function(query);
}

} // namespace

CollectorProcess::CollectorProcess(QString storage)
    : m_storage(std::move(storage))
{
    m_process.setProgram(QDir(QCoreApplication::applicationDirPath()).filePath(u"crashCollector"_qs));
}

CollectorProcess::~CollectorProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool CollectorProcess::start(const QStringList &options)
{
    m_lines.clear();
    m_process.setArguments(QStringList{u"--storage"_qs, m_storage} + options);
    m_process.start();
    const QStringList listening = lines(u"Listening on "_qs, 1);
    m_url = QUrl(listening.value(0).section(u' ', -1));
    return m_url.port() > 0;
}

int CollectorProcess::run(const QStringList &options)
{
    m_process.setArguments(QStringList{u"--storage"_qs, m_storage} + options);
    m_process.start();
    return waitForEnd();
}

int CollectorProcess::end()
{
    m_process.closeWriteChannel();
    return waitForEnd();
}

int CollectorProcess::waitForEnd()
{
    const bool isEnded = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(watchdogMs);
    return isEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QUrl CollectorProcess::url(const QString &path) const
{
    return m_url.resolved(QUrl(path));
}

quint16 CollectorProcess::port() const
{
    return quint16(m_url.port());
}

QProcess &CollectorProcess::process()
{
    return m_process;
}

void CollectorProcess::readLines()
{
    while (m_process.canReadLine()) {
        m_lines.append(QString::fromUtf8(m_process.readLine()).trimmed());
    }
}

QStringList CollectorProcess::lines(const QString &text, int count)
{
    static_cast<void>(QTest::qWaitFor(
        [&] {
            readLines();
            return m_lines.filter(text).size() >= count || m_process.state() == QProcess::NotRunning;
        },
        watchdogMs));
    readLines();
    return m_lines.filter(text);
}

QString CollectorProcess::errors()
{
    m_errors += m_process.readAllStandardError();
    return QString::fromUtf8(m_errors).trimmed();
}

QStringList CollectorProcess::storedFiles() const
{
    QStringList files = QDir(m_storage).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    files.removeOne(u"index.sqlite"_qs);
    return files;
}

QString CollectorProcess::storedPath(const QString &fileName) const
{
    return QDir(m_storage).filePath(fileName);
}

QStringList selectInIndex(const QString &storage, const QString &statement)
{
    QStringList rows;
    const bool isRead = withIndex(storage, [&](QSqlQuery &query) {
        bool isDone = query.exec(statement);
        while (isDone && query.next()) {
            QStringList values;
            for (int i = 0; i < query.record().count(); ++i) {
                values.append(query.value(i).toString());
            }
            rows.append(values.join(u'|'));
        }
        return isDone;
    });
    return isRead ? rows : QStringList{u"the index can't be read"_qs};
}

bool changeIndex(const QString &storage, const QStringList &statements)
{
    return withIndex(storage, [&](QSqlQuery &query) {
        return std::all_of(statements.cbegin(), statements.cend(),
                           [&query](const QString &statement) { return query.exec(statement); });
    });
}

} // namespace CrashCollectorTest
