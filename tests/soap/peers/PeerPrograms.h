// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

/*! How to run a service or a client of another SOAP implementation. */
struct PeerProgram
{
    QString program;
    QStringList arguments;
    QByteArray skipReason; // not empty: it can't be run here
};

/*! By name: "spyne", "gSOAP" and "SOAP::Lite" are services, those with "client" in their name are clients. */
QHash<QString, PeerProgram> knownPeers();
