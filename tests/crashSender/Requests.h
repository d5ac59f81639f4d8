// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soap/server/SoapServer.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>

namespace CrashTest {

/*! What a request asks of the service. */
struct Operation
{
    QString name;
    QString uri; // its namespace
    QList<QPair<QString, QString>> arguments; // in their order

    /*! The archive in the last argument; null if that is not "data". */
    QByteArray archive() const;
};

Operation operationOf(const SoapTest::ReceivedRequest &request);

/*! An answer with these two members; without \a identifier the second is left out. */
QByteArray verdictAnswer(const QByteArray &result, const QByteArray &identifier = QByteArray());

} // namespace CrashTest
