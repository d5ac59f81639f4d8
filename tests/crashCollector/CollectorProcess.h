// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

namespace CrashCollectorTest {

constexpr int watchdogMs = 60'000;

/*! The program crashCollector, with \a storage as its folder. Ends with the object. */
class CollectorProcess
{
public:
    explicit CollectorProcess(QString storage);
    ~CollectorProcess();

    CollectorProcess(const CollectorProcess &) = delete;
    CollectorProcess &operator=(const CollectorProcess &) = delete;

    /*! True when it listens. */
    bool start(const QStringList &options = {});

    /*! For starts that fail: the exit code, or -1 if there was none. */
    int run(const QStringList &options = {});

    /*! Closes the standard input and waits: the exit code, or -1. */
    int end();
    int waitForEnd();

    QUrl url(const QString &path) const;
    quint16 port() const;
    QProcess &process();

    /*! The lines on the standard output that contain \a text; waits until there are \a count of them. */
    QStringList lines(const QString &text, int count);
    /*! All that came on the standard error. */
    QString errors();

    /*! Names of the archives in the storage, sorted, and of all other files but the index. */
    QStringList storedFiles() const;
    QString storedPath(const QString &fileName) const;

private:
    void readLines();

    QString m_storage;
    QProcess m_process;
    QStringList m_lines;
    QByteArray m_errors;
    QUrl m_url;
};

/*! What \a statement selects in the index of \a storage, a text for each row, with "|" between the values. */
QStringList selectInIndex(const QString &storage, const QString &statement);

/*! Carries out statements on the index. */
bool changeIndex(const QString &storage, const QStringList &statements);

} // namespace CrashCollectorTest
