// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapMessage.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace SoapTest {

/*! For each wait: much longer than it takes, also with tools that slow a process down. */
constexpr int watchdogMs = 30'000;

/*! Keeps proxies of the environment and the system out of the way. */
void useNoProxies();

/*! The method "getPrice" with the argument "article". */
ZYX_zglv6::QtSoapMessage priceRequest(const QString &article = u"poster"_qs);

// Documents of a service.

QByteArray priceAnswer(const QByteArray &price = "12.50");
QByteArray faultAnswer(const QByteArray &code, const QByteArray &text);

/*! \a document with the attributes of each element in the order of their names, which Qt leaves to chance. */
QByteArray withSortedAttributes(const QByteArray &document);

/*! What became of a request, as a slot of the second signal sees it. */
struct Outcome
{
    bool hasCome = false;
    ZYX_zglv6::QtSoapMessage response;
    int error = -1;
    QString errorString;
    int status = -1;

    /*! The text that a failure of the network has. */
    QString transportErrorText() const;
};

/*! Posts and waits for the answer. */
Outcome submitAndWait(ZYX_zglv6::QtSoapHttpTransport &transport, const QString &path = u"/prices"_qs,
                      const ZYX_zglv6::QtSoapMessage &request = priceRequest());

} // namespace SoapTest
