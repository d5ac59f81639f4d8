// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QUrl>

namespace CrashCollectorTest {

using Headers = QHash<QByteArray, QByteArray>;

/*! An answer over HTTP. */
struct HttpReply
{
    int status = 0; // 0: there was none
    Headers headers; // names in lower case
    QByteArray body;
};

/*! Sends a request with Qt's client and waits for the answer. */
HttpReply exchange(const QByteArray &method, const QUrl &url, const Headers &headers = {}, const QByteArray &body = {});

HttpReply get(const QUrl &url, const Headers &headers = {});

/*! Sends \a bytes as they are to a port of this machine and reads until the other side closes. */
HttpReply exchangeBytes(quint16 port, const QByteArray &bytes);

} // namespace CrashCollectorTest
