// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <functional>
#include <memory>

namespace SoapTest {

/*! An HTTP request as it came, with the headers in their spelling. */
struct ReceivedRequest
{
    QByteArray line;
    QByteArrayList headers; // "Name: value"
    QByteArray body;

    QByteArray method() const;
    QByteArray target() const;

    /*! Of each header of this name, in any case. */
    QByteArrayList values(const QByteArray &name) const;
};

/*! What a server does with a request that has come completely. */
using Script = std::function<void(QTcpSocket &connection, const ReceivedRequest &request)>;

/*! An HTTP server on a port of this machine's own choice. Follows one script and keeps what it has received. */
class SoapServer : public QObject
{
    Q_OBJECT

public:
    explicit SoapServer(Script script, const QHostAddress &address = QHostAddress::LocalHost);

    /*! With a \a server of another kind, which is not listening yet. */
    SoapServer(Script script, std::unique_ptr<QTcpServer> server, const QHostAddress &address);
    ~SoapServer() override;

    bool isListening() const;
    int port() const;
    const QList<ReceivedRequest> &requests() const;

    /*! Connections that were not closed yet. */
    int connectionCount() const;

    /*! Instead of receiving requests; is called with each connection as soon as it is made. */
    void setConnectionScript(std::function<void(QTcpSocket &connection)> script);

private:
    void takeConnections();
    void read(QTcpSocket *connection);

    Script m_script;
    std::function<void(QTcpSocket &connection)> m_connectionScript;
    std::unique_ptr<QTcpServer> m_server;
    QHash<QTcpSocket *, QByteArray> m_received; // of each connection, what is no complete request yet
    QList<ReceivedRequest> m_requests;
};

/*! A complete answer with its length; \a status such as "200 OK". */
QByteArray httpAnswer(const QByteArray &status, const QByteArray &body, const QByteArrayList &headers = {});

// Scripts.

Script answerWith(const QByteArray &status, const QByteArray &body, const QByteArrayList &headers = {});
Script writeAndClose(const QByteArray &bytes);
Script keepSilent();

/*! One byte at a time, each after the one before has left. */
Script trickle(const QByteArray &bytes);

/*! \a start, then \a block for ever, as fast as it is taken. */
Script flood(const QByteArray &start, const QByteArray &block);

/*! For a connection: the peer sees a reset instead of an end. */
void resetWhenWritten(QTcpSocket &connection);

QByteArray gzipped(const QByteArray &data);
QByteArray deflated(const QByteArray &data);

} // namespace SoapTest
