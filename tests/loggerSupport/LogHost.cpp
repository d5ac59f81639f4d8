// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LogHost.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>

namespace {

constexpr int watchdogMs = 120'000;

QByteArray withPlainLineEnds(QByteArray text)
{
    return text.replace("\r\n", "\n");
}

} // namespace

LogHost::LogHost(const QStringList &commands)
{
    m_process.start(QCoreApplication::applicationDirPath() + u'/' + QStringLiteral(LOGGING_HOST_NAME), commands);
}

LogHost::~LogHost()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool LogHost::waitUntilItWaits()
{
    while (!m_output.contains("\nwaiting")) {
        if (!m_process.waitForReadyRead(watchdogMs)) {
            return false;
        }
        m_output += m_process.readAllStandardOutput();
    }
    return true;
}

int LogHost::finish()
{
    m_process.closeWriteChannel();
    const bool isFinished = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(watchdogMs);
    m_output = withPlainLineEnds(m_output + m_process.readAllStandardOutput());
    m_errors = withPlainLineEnds(m_process.readAllStandardError());
    if (isFinished && m_process.exitStatus() == QProcess::NormalExit) {
        return m_process.exitCode();
    }
    qWarning() << m_process.errorString() << m_errors;
    return -1;
}

QByteArray LogHost::output() const
{
    return m_output;
}

QByteArray LogHost::errors() const
{
    return m_errors;
}

int runLogHost(const QStringList &commands)
{
    LogHost host(commands);
    const int exitCode = host.finish();
    if (exitCode != 0) {
        qWarning() << exitCode << host.errors();
    }
    return exitCode;
}
