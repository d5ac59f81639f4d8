// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxDesktop_unix.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>

namespace TestSupport {

namespace {

constexpr int watchdogMs = 60'000;

QString exactly(const QString &title)
{
    return u'^' + QRegularExpression::escape(title) + u'$';
}

} // namespace

ErrorBoxDesktop::ErrorBoxDesktop()
    : m_userProgram(QStandardPaths::findExecutable(QStringLiteral("xdotool")))
{
    const QStringList anyFreeNumber{QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                                    QStringLiteral("tcp")};
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("Xvfb"), anyFreeNumber, QIODevice::ReadOnly);
    while (!m_server.canReadLine()) {
        if (!m_server.waitForReadyRead(watchdogMs)) {
            return;
        }
    }
    m_display = ':' + m_server.readLine().trimmed();
}

ErrorBoxDesktop::~ErrorBoxDesktop()
{
    m_server.terminate();
    m_server.waitForFinished();
}

QString ErrorBoxDesktop::lack() const
{
    if (m_display.isEmpty()) {
        return QStringLiteral("Xvfb does not run.");
    }
    return m_userProgram.isEmpty() ? QStringLiteral("xdotool is not installed.") : QString();
}

QByteArray ErrorBoxDesktop::display() const
{
    return m_display;
}

QString ErrorBoxDesktop::waitForWindow(const QString &title) const
{
    return user({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                 QStringLiteral("--name"), exactly(title)})
        .section(u'\n', 0, 0);
}

qsizetype ErrorBoxDesktop::windowCount(const QString &title) const
{
    return user({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), exactly(title)})
        .split(u'\n', Qt::SkipEmptyParts)
        .size();
}

bool ErrorBoxDesktop::pressUntilClosed(const QString &key, const QString &window) const
{
    const QDeadlineTimer watchdog(watchdogMs);
    while (!user({QStringLiteral("getwindowname"), window}).isEmpty()) {
        if (watchdog.hasExpired()) {
            return false;
        }
        user({QStringLiteral("windowfocus"), window, QStringLiteral("key"), key});
        QThread::msleep(50);
    }
    return true;
}

QString ErrorBoxDesktop::user(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(m_display));
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(m_userProgram, arguments);
    if (!process.waitForFinished(watchdogMs)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace TestSupport
