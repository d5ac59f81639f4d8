// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "HttpExchange.h"

#include "CollectorProcess.h"

#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <memory>

namespace CrashCollectorTest {

namespace {

HttpReply parsed(const QByteArray &answer)
{
    HttpReply reply;
    const qsizetype headEnd = answer.indexOf("\r\n\r\n");
    const QList<QByteArray> lines = answer.left(headEnd).split('\n');
    reply.status = lines.constFirst().split(' ').value(1).toInt();
    for (const QByteArray &line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        reply.headers.insert(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
    }
    reply.body = headEnd < 0 ? QByteArray() : answer.mid(headEnd + 4);
    return reply;
}

} // namespace

HttpReply exchange(const QByteArray &method, const QUrl &url, const Headers &headers, const QByteArray &body)
{
    QNetworkAccessManager manager;
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    for (auto header = headers.cbegin(); header != headers.cend(); ++header) {
        request.setRawHeader(header.key(), header.value());
    }
    const std::unique_ptr<QNetworkReply> answer(manager.sendCustomRequest(request, method, body));
    if (!QTest::qWaitFor([&] { return answer->isFinished(); }, watchdogMs)) {
        return {};
    }
    HttpReply reply;
    reply.status = answer->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    for (const auto &[name, value] : answer->rawHeaderPairs()) {
        reply.headers.insert(name.toLower(), value);
    }
    reply.body = answer->readAll();
    return reply;
}

HttpReply get(const QUrl &url, const Headers &headers)
{
    return exchange("GET", url, headers);
}

HttpReply exchangeBytes(quint16 port, const QByteArray &bytes)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    if (!socket.waitForConnected(watchdogMs)) {
        return {};
    }
    QByteArray answer; // read at once: what a reset connection still has can't be read later
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [&] { answer += socket.readAll(); });
    socket.write(bytes);
    const bool isClosed
        = QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::UnconnectedState; }, watchdogMs);
    return isClosed ? parsed(answer) : HttpReply();
}

} // namespace CrashCollectorTest
