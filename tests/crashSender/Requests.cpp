// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Requests.h"

#include <QtXml/QDomDocument>

namespace CrashTest {

QByteArray Operation::archive() const
{
    if (arguments.isEmpty() || arguments.last().first != u"data") {
        return QByteArray();
    }
    const auto decoded
        = QByteArray::fromBase64Encoding(arguments.last().second.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? *decoded : QByteArray();
}

Operation operationOf(const SoapTest::ReceivedRequest &request)
{
    QDomDocument document;
    document.setContent(request.body, true);
    const QDomElement method = document.documentElement().firstChildElement().firstChildElement();
    Operation operation{method.localName(), method.namespaceURI(), {}};
    for (QDomElement argument = method.firstChildElement(); !argument.isNull();
         argument = argument.nextSiblingElement()) {
        operation.arguments.append({argument.localName(), argument.text()});
    }
    return operation;
}

QByteArray verdictAnswer(const QByteArray &result, const QByteArray &identifier)
{
    const QByteArray second
        = identifier.isNull() ? QByteArray() : QByteArray("<identifier>" + identifier + "</identifier>");
    return "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
           "<ReportCrashResponse xmlns=\"urn:any\"><ReportCrashResult>"
        + result + "</ReportCrashResult>" + second + "</ReportCrashResponse></soap:Body></soap:Envelope>";
}

} // namespace CrashTest
