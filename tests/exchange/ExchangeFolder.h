// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ExchangeTest {

constexpr int watchdogMs = 120'000;

/*! A program that has run to its end. */
struct Run
{
    bool isOver = false; // in time
    QProcess::ExitStatus exitStatus = QProcess::CrashExit;
    int exitCode = -1;
    quint64 process = 0;
    QByteArray output; // as it was written
    QStringList lines; // of the standard output
    QStringList errors; // lines of the standard error

    /*! That of an end in order, else -1000. */
    int status() const;

    /*! The text behind \a subject, of the one line that starts with it. */
    QString line(const QString &subject) const;

    /*! All that was said, for messages. */
    QByteArray all() const;
};

/*! An empty folder with the files of one test function, and in it the temporary folder of the programs. */
class ExchangeFolder
{
public:
    explicit ExchangeFolder(const QString &path);

    QString filePath(const QString &name) const;

    /*! What lies in the programs' temporary folder. */
    QStringList leftBehind() const;

    Run plugin(const QStringList &arguments) const;
    Run app(const QStringList &arguments) const;
    Run dump(const QStringList &arguments) const;

    /*! The plug-in with exchangePeer as its other side, going the \a way. */
    Run pluginWithPeer(const QByteArray &way, const QStringList &arguments) const;

private:
    Run run(const QString &program, const QStringList &arguments, const QByteArray &peerWay = {}) const;

    QString m_path;
    QString m_temporaryFolder;
};

/*! Paths as the programs print them. */
QString appPath();
QString peerPath();

QByteArray contentOf(const QString &path);
bool writeFile(const QString &path, const QByteArray &bytes);

} // namespace ExchangeTest
