// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soap/peers/PeerPrograms.h"

#include <QtCore/QProcess>
#include <QtCore/QString>

/*! A service as a process, which ends with this object. */
class PeerProcess
{
public:
    PeerProcess() = default;
    ~PeerProcess();

    PeerProcess(const PeerProcess &) = delete;
    PeerProcess &operator=(const PeerProcess &) = delete;

    /*! Starts it and waits until it listens. */
    bool start(const PeerProgram &peer);

    /*! Closes its input and waits for its end, which the service owes to that. */
    bool endByInput();

    int port() const;

private:
    QProcess m_process;
    int m_port = 0;
};

/*! Runs a client with \a url, serving the test's own sockets meanwhile. Its output; what went wrong follows it. */
QString runClient(const PeerProgram &peer, const QString &url);
