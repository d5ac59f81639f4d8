// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/peers/RecordingServer.h"

#include <QtCore/QRegularExpression>
#include <QtNetwork/QTcpSocket>

#include <utility>

namespace {

/*! The body of a request with a "Content-Length"; null as long as it is not complete. */
QByteArray bodyOf(const QByteArray &request)
{
    const qsizetype headEnd = request.indexOf("\r\n\r\n");
    if (headEnd < 0) {
        return {};
    }
    static const QRegularExpression lengthField(u"\r\ncontent-length: *(\\d+)"_qs,
                                                QRegularExpression::CaseInsensitiveOption);
    const int length = lengthField.match(QString::fromLatin1(request.left(headEnd))).captured(1).toInt();
    const QByteArray body = request.mid(headEnd + 4);
    return length > 0 && body.size() >= length ? body.left(length) : QByteArray();
}

} // namespace

RecordingServer::RecordingServer(Answer answer)
    : m_answer(std::move(answer))
{
    connect(&m_server, &QTcpServer::newConnection, this, &RecordingServer::acceptConnection);
    m_server.listen(QHostAddress::LocalHost);
}

QString RecordingServer::url() const
{
    return m_server.isListening() ? u"http://127.0.0.1:%1/photos"_qs.arg(m_server.serverPort()) : QString();
}

QList<QByteArray> RecordingServer::bodies() const
{
    return m_bodies;
}

void RecordingServer::acceptConnection()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void RecordingServer::read(QTcpSocket *socket)
{
    const QByteArray body = bodyOf(socket->peek(socket->bytesAvailable()));
    if (body.isNull()) {
        return;
    }
    socket->readAll();
    m_bodies += body;
    const QByteArray answer = m_answer(body);
    socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/xml; charset=utf-8\r\nConnection: close\r\nContent-Length: "
                  + QByteArray::number(answer.size()) + "\r\n\r\n" + answer);
    socket->disconnectFromHost();
}
