// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "CollectorProcess.h"

#include <QtCore/QByteArray>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpSocket>

namespace CrashCollectorTest {

/*! Sends some bytes and then, as long as the event loop runs, one byte now and then for ever. */
class SlowPeer
{
public:
    SlowPeer(const CollectorProcess &collector, const QByteArray &start, char byte);

    bool isConnected() const;
    bool isEnded() const;

private:
    QTcpSocket m_socket;
    QTimer m_timer;
};

/*! The head of a request for the operation up to its last line; \a length says how long the body is. */
QByteArray postHead(const QByteArray &length);

/*! Waits until connections are no longer taken. */
bool waitForStop(const CollectorProcess &collector);

} // namespace CrashCollectorTest
