// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/XServer_unix.h"

#include <QtCore/QStandardPaths>

namespace TestSupport {

namespace {

constexpr int serverTimeMs = 30'000;

bool isMissing(const QString &program)
{
    return QStandardPaths::findExecutable(program).isEmpty();
}

} // namespace

XServer::XServer(QStringList programs)
{
    programs.append(u"Xvfb"_qs);
    programs.removeIf([](const QString &program) { return !isMissing(program); });
    if (programs.isEmpty()) {
        start();
    } else {
        qWarning("%s: missing", qPrintable(programs.join(u", ")));
    }
}

XServer::~XServer()
{
    m_server.terminate();
    m_server.waitForFinished(serverTimeMs);
}

bool XServer::isRunning() const
{
    return m_server.state() == QProcess::Running;
}

void XServer::start()
{
    m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_server.start(u"Xvfb"_qs, {u"-displayfd"_qs, u"1"_qs, u"-nolisten"_qs, u"tcp"_qs}, QIODevice::ReadOnly);
    QByteArray number;
    while (!number.endsWith('\n') && m_server.waitForReadyRead(serverTimeMs)) {
        number += m_server.readAllStandardOutput();
    }
    qputenv("DISPLAY", ':' + number.trimmed());
}

} // namespace TestSupport
