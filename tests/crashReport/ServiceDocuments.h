// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soap/SoapElements.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

/*! What goes to a crash collection service, and what comes from it. */
namespace ServiceDocuments {

inline QByteArray inBody(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
           "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
        + content + "</soap:Body></soap:Envelope>";
}

/*! The struct with \a members, under the name that the service gives it. */
inline QByteArray answer(const QByteArray &members, const QByteArray &name = "ReportCrashResponse")
{
    return inBody('<' + name + " xmlns=\"http://" ZYX_SERVICE_OWNER_HOST "/CollectDump\">" + members + "</" + name
                  + '>');
}

inline QByteArray accepted()
{
    return answer("<ReportCrashResult>NoError</ReportCrashResult><identifier>42-a</identifier>");
}

inline QByteArray refused()
{
    return answer("<ReportCrashResult>QuotaExceeded</ReportCrashResult><identifier>42-a</identifier>");
}

inline QByteArray fault(const QByteArray &code, const QByteArray &text)
{
    return inBody("<soap:Fault><faultcode>" + code + "</faultcode><faultstring>" + text
                  + "</faultstring></soap:Fault>");
}

/*! The content of the body of \a document in one line, names as they are written. */
inline QString bodyOf(const QString &document)
{
    QDomDocument elements;
    const QDomElement envelope = TestSupport::elementFrom(elements, document, false);
    const QDomElement body = envelope.firstChildElement();
    const bool isOne = envelope.tagName() == u"SOAP-ENV:Envelope" && body.tagName() == u"SOAP-ENV:Body"
        && body == envelope.lastChildElement() && body.firstChildElement() == body.lastChildElement();
    return isOne ? TestSupport::outline(body.firstChildElement()) : document;
}

/*! What bodyOf() gives for the call; without the archive if \a base64 is empty. */
inline QString expectedCall(const QString &base64)
{
    const QString argument = u"%1[xmlns:xsi=http://www.w3.org/1999/XMLSchema-instance xsi:type=xsd:string]('%2')"_qs;
    QStringList arguments{argument.arg(u"platform"_qs, u"Win"_qs), argument.arg(u"product"_qs, u"Zyx Grainlab 6"_qs),
                          argument.arg(u"version"_qs, u"6.4.0.314"_qs)};
    if (!base64.isEmpty()) {
        arguments.append(argument.arg(u"data"_qs, base64));
    }
    return u"ReportCrash[xmlns=http://" ZYX_SERVICE_OWNER_HOST "/CollectDump]("_qs + arguments.join(u' ') + u')';
}

} // namespace ServiceDocuments
