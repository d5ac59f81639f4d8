// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <QtCore/QStringList>

/*! A process of the program loggingHost; its commands stand in loggingHost.cpp. Line ends in its output read "\n". */
class LogHost
{
public:
    static constexpr int systemRefused = 4; // an exit code: the system doesn't grant what a command needs

    explicit LogHost(const QStringList &commands);
    ~LogHost();

    /*! Returns when the process has come to its next "wait=" command. */
    [[nodiscard]] bool waitUntilItWaits();

    /*! Ends a "wait=", waits for the end of the process and gives its exit code; -1 if it crashed or hangs. */
    [[nodiscard]] int finish();

    /*! All that was written to the standard output and the standard error channel; after finish(). */
    QByteArray output() const;
    QByteArray errors() const;

private:
    QProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
};

/*! Carries out \a commands in a process of their own; its exit code. */
[[nodiscard]] int runLogHost(const QStringList &commands);
