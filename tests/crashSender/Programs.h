// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace CrashTest {

#ifdef Q_OS_WIN
constexpr int programWatchdogMs = 300'000; // Wine takes a minute and more for a dump
#else
constexpr int programWatchdogMs = 60'000;
#endif

/*! A program of the examples that has run to its end. */
struct Run
{
    bool isOver = false; // in time
    QProcess::ExitStatus exitStatus = QProcess::CrashExit;
    int exitCode = -1;
    qint64 process = 0;
    QStringList lines;
    QString errors;

    bool isClean() const;

    /*! What the program said in its step \a number. */
    QString step(int number) const;
};

/*! The folder in which the examples keep everything, one for each test function. */
class WorkFolder
{
public:
    /*! Starts empty, and on Windows without the settings of earlier runs. */
    explicit WorkFolder(const QString &path);

    QString path() const;

    /*! Folders with a closing separator. */
    QString crashFiles() const;
    QString crashTempFiles() const;
    QString logs() const;

    /*! Paths of the files, by name. */
    QStringList dumps() const;
    QStringList archives() const;

    /*! Puts a file where a dump lies; folders in its name are made. */
    bool writeDump(const QString &name, const QByteArray &bytes) const;

    /*! A program beside this one. Events are handled meanwhile, so a server of this process answers. */
    Run run(const QString &program, const QStringList &arguments) const;
    Run lightbox(const QStringList &arguments) const;
    Run crashSender(const QStringList &arguments) const;

private:
    QString m_path;
};

QByteArray contentOf(const QString &path);
bool writeFile(const QString &path, const QByteArray &bytes);

} // namespace CrashTest
