// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtNetwork/QTcpServer>

#include <functional>

class QTcpSocket;

/*! An HTTP server on 127.0.0.1 that keeps each body posted to it and answers with what a function makes of it. */
class RecordingServer final : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<QByteArray(const QByteArray &body)>;

    explicit RecordingServer(Answer answer);

    /*! Of any path on this server; empty if it does not listen. */
    QString url() const;
    QList<QByteArray> bodies() const;

private Q_SLOTS:
    void acceptConnection();

private:
    void read(QTcpSocket *socket);

    QTcpServer m_server;
    Answer m_answer;
    QList<QByteArray> m_bodies;
};
