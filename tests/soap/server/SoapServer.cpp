// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/server/SoapServer.h"

#include <QtNetwork/QHostAddress>

#include <utility>

namespace SoapTest {

namespace {

constexpr qint64 floodAhead = 1 << 20; // bytes that wait in the server's socket at most

/*! The first request in \a bytes, which loses it; false as long as it is not complete. */
bool takeRequest(QByteArray &bytes, ReceivedRequest &request)
{
    const qsizetype headerEnd = bytes.indexOf("\r\n\r\n");
    if (headerEnd < 0) {
        return false;
    }
    QByteArrayList lines;
    for (const QByteArray &line : bytes.left(headerEnd).split('\n')) {
        lines.append(line.endsWith('\r') ? line.chopped(1) : line);
    }
    request.line = lines.takeFirst();
    request.headers = lines;
    const qsizetype length = request.values("Content-Length").join().toLongLong();
    const qsizetype bodyStart = headerEnd + 4;
    if (bytes.size() < bodyStart + length) {
        return false;
    }
    request.body = bytes.mid(bodyStart, length);
    bytes.remove(0, bodyStart + length);
    return true;
}

quint32 crc32(const QByteArray &data)
{
    quint32 crc = 0xffffffffU;
    for (const char byte : data) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1U) != 0 ? 0xedb88320U : 0U);
        }
    }
    return ~crc;
}

QByteArray littleEndian(quint32 number)
{
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes.append(char(number >> shift));
    }
    return bytes;
}

} // namespace

QByteArray ReceivedRequest::method() const
{
    return line.left(line.indexOf(' '));
}

QByteArray ReceivedRequest::target() const
{
    const qsizetype start = line.indexOf(' ') + 1;
    return line.mid(start, line.lastIndexOf(' ') - start);
}

QByteArrayList ReceivedRequest::values(const QByteArray &name) const
{
    QByteArrayList values;
    for (const QByteArray &header : headers) {
        const qsizetype colon = header.indexOf(':');
        if (header.left(colon).compare(name, Qt::CaseInsensitive) == 0) {
            const QByteArray value = header.mid(colon + 1);
            values.append(value.startsWith(' ') ? value.mid(1) : value);
        }
    }
    return values;
}

SoapServer::SoapServer(Script script, const QHostAddress &address)
    : SoapServer(std::move(script), std::make_unique<QTcpServer>(), address)
{
}

SoapServer::SoapServer(Script script, std::unique_ptr<QTcpServer> server, const QHostAddress &address)
    : m_script(std::move(script))
    , m_server(std::move(server))
{
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &SoapServer::takeConnections);
    m_server->listen(address, 0);
}

SoapServer::~SoapServer()
{
    for (auto connection = m_received.keyBegin(); connection != m_received.keyEnd(); ++connection) {
        (*connection)->disconnect(this);
    }
}

bool SoapServer::isListening() const
{
    return m_server->isListening();
}

int SoapServer::port() const
{
    return m_server->serverPort();
}

const QList<ReceivedRequest> &SoapServer::requests() const
{
    return m_requests;
}

int SoapServer::connectionCount() const
{
    return int(m_received.size());
}

void SoapServer::setConnectionScript(std::function<void(QTcpSocket &connection)> script)
{
    m_connectionScript = std::move(script);
}

void SoapServer::takeConnections()
{
    while (QTcpSocket *connection = m_server->nextPendingConnection()) {
        m_received.insert(connection, {});
        connect(connection, &QTcpSocket::disconnected, this, [this, connection] {
            m_received.remove(connection);
            connection->deleteLater();
        });
        if (m_connectionScript) {
            m_connectionScript(*connection);
            continue;
        }
        connect(connection, &QTcpSocket::readyRead, this, [this, connection] { read(connection); });
        read(connection); // an encrypted connection may have brought its request with it
    }
}

void SoapServer::read(QTcpSocket *connection)
{
    QByteArray bytes = m_received.value(connection) + connection->readAll();
    ReceivedRequest request;
    while (takeRequest(bytes, request)) {
        m_requests.append(request);
        m_script(*connection, request);
    }
    if (m_received.contains(connection)) { // not closed by the script
        m_received.insert(connection, bytes);
    }
}

QByteArray httpAnswer(const QByteArray &status, const QByteArray &body, const QByteArrayList &headers)
{
    const QByteArrayList lines = QByteArrayList{"HTTP/1.1 " + status} + headers
        + QByteArrayList{"Content-Length: " + QByteArray::number(body.size())};
    return lines.join("\r\n") + "\r\n\r\n" + body;
}

Script answerWith(const QByteArray &status, const QByteArray &body, const QByteArrayList &headers)
{
    return [answer = httpAnswer(status, body, headers)](QTcpSocket &connection, const ReceivedRequest & /*request*/) {
        connection.write(answer);
    };
}

Script writeAndClose(const QByteArray &bytes)
{
    return [bytes](QTcpSocket &connection, const ReceivedRequest & /*request*/) {
        connection.write(bytes);
        connection.disconnectFromHost();
    };
}

Script keepSilent()
{
    return [](QTcpSocket & /*connection*/, const ReceivedRequest & /*request*/) {};
}

Script trickle(const QByteArray &bytes)
{
    return [bytes](QTcpSocket &connection, const ReceivedRequest & /*request*/) {
        connection.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const auto writeNext = [&connection, bytes, at = qsizetype(1)]() mutable {
            if (at < bytes.size()) {
                connection.write(bytes.mid(at++, 1));
            }
        };
        QObject::connect(&connection, &QTcpSocket::bytesWritten, &connection, writeNext);
        connection.write(bytes.left(1));
    };
}

Script flood(const QByteArray &start, const QByteArray &block)
{
    return [start, block](QTcpSocket &connection, const ReceivedRequest & /*request*/) {
        const auto writeMore = [&connection, block] {
            while (connection.isOpen() && connection.bytesToWrite() < floodAhead) {
                connection.write(block);
            }
        };
        connection.write(start);
        QObject::connect(&connection, &QTcpSocket::bytesWritten, &connection, writeMore);
    };
}

void resetWhenWritten(QTcpSocket &connection)
{
    connection.setReadBufferSize(1); // what stays unread makes a reset of the close
    QObject::connect(&connection, &QTcpSocket::readyRead, &connection, [&connection] { connection.abort(); });
}

QByteArray gzipped(const QByteArray &data)
{
    const QByteArray zlib = qCompress(data).mid(4); // without the length that Qt puts in front
    const QByteArray header = QByteArray::fromHex("1f8b08000000000000ff");
    return header + zlib.mid(2).chopped(4) + littleEndian(crc32(data)) + littleEndian(quint32(data.size()));
}

QByteArray deflated(const QByteArray &data)
{
    return qCompress(data).mid(4);
}

} // namespace SoapTest
