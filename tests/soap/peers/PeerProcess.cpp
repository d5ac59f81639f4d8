// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/peers/PeerProcess.h"

#include <QtCore/QDebug>
#include <QtTest/QTest>

namespace {

constexpr int watchdogMs = 60'000;
constexpr char announcement[] = "listening on ";

} // namespace

PeerProcess::~PeerProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool PeerProcess::start(const PeerProgram &peer)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(peer.program, peer.arguments);
    QByteArray output;
    while (!output.endsWith('\n')) {
        if (!m_process.waitForReadyRead(watchdogMs)) {
            qWarning() << peer.program << m_process.errorString() << output;
            return false;
        }
        output += m_process.readAllStandardOutput();
    }
    m_port = output.startsWith(announcement) ? output.mid(qsizetype(qstrlen(announcement))).trimmed().toInt() : 0;
    return m_port > 0;
}

bool PeerProcess::endByInput()
{
    m_process.closeWriteChannel();
    return m_process.waitForFinished(watchdogMs) && m_process.exitStatus() == QProcess::NormalExit
        && m_process.exitCode() == 0;
}

int PeerProcess::port() const
{
    return m_port;
}

QString runClient(const PeerProgram &peer, const QString &url)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"no_proxy"_qs, u"127.0.0.1"_qs);
    process.setProcessEnvironment(environment);
    process.start(peer.program, peer.arguments + QStringList(url));
    const bool isFinished = QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, watchdogMs);
    if (!isFinished) {
        process.kill();
        process.waitForFinished();
    }
    QString output = QString::fromUtf8(process.readAll());
    if (!isFinished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        output += u"ended with "_qs + process.errorString() + u", code " + QString::number(process.exitCode());
    }
    return output;
}
