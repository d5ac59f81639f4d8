// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SlowPeer.h"

#include "ReportSender.h"

#include <QtNetwork/QHostAddress>
#include <QtTest/QTest>

namespace CrashCollectorTest {

SlowPeer::SlowPeer(const CollectorProcess &collector, const QByteArray &start, char byte)
{
    m_socket.connectToHost(QHostAddress::LocalHost, collector.port());
    if (!m_socket.waitForConnected(watchdogMs)) {
        return;
    }
    m_socket.write(start);
    static_cast<void>(m_socket.waitForBytesWritten(watchdogMs));
    QObject::connect(&m_timer, &QTimer::timeout, &m_socket, [this, byte] { m_socket.write(&byte, 1); });
    m_timer.start(200);
}

bool SlowPeer::isConnected() const
{
    return m_socket.state() == QAbstractSocket::ConnectedState;
}

bool SlowPeer::isEnded() const
{
    return m_socket.state() == QAbstractSocket::UnconnectedState;
}

QByteArray postHead(const QByteArray &length)
{
    return "POST " + reportPath().toUtf8() + " HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\nSOAPAction: "
        + reportAction() + "\r\n" + length + "\r\n\r\n";
}

bool waitForStop(const CollectorProcess &collector)
{
    return QTest::qWaitFor(
        [&] {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, collector.port());
            return !socket.waitForConnected(watchdogMs);
        },
        watchdogMs);
}

} // namespace CrashCollectorTest
