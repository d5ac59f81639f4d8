// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/server/SoapExchange.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtNetwork/QNetworkProxy>
#include <QtTest/QSignalSpy>

using namespace ZYX_zglv6;

namespace SoapTest {

namespace {

QByteArray inEnvelope(const QByteArray &body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
           "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
        + body + "</soap:Body></soap:Envelope>";
}

} // namespace

void useNoProxies()
{
    for (const char *const name : {"http_proxy", "https_proxy", "all_proxy", "no_proxy"}) {
        qunsetenv(name);
        qunsetenv(QByteArray(name).toUpper().constData());
    }
    QNetworkProxyFactory::setUseSystemConfiguration(false);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
}

QtSoapMessage priceRequest(const QString &article)
{
    QtSoapMessage request;
    request.setMethod(u"getPrice"_qs, u"urn:shop"_qs);
    request.addMethodArgument(u"article"_qs, QString(), article);
    return request;
}

QByteArray priceAnswer(const QByteArray &price)
{
    return inEnvelope("<m:getPriceResponse xmlns:m=\"urn:shop\"><price>" + price + "</price></m:getPriceResponse>");
}

QByteArray faultAnswer(const QByteArray &code, const QByteArray &text)
{
    return inEnvelope("<soap:Fault><faultcode>" + code + "</faultcode><faultstring>" + text
                      + "</faultstring></soap:Fault>");
}

QByteArray withSortedAttributes(const QByteArray &document)
{
    static const QRegularExpression startTag(u"<([\\w:.-]+)((?:\\s+[\\w:.-]+=\"[^\"]*\")+)"_qs);
    static const QRegularExpression attribute(u"[\\w:.-]+=\"[^\"]*\""_qs);
    const QString text = QString::fromUtf8(document);
    QString result;
    qsizetype copied = 0;
    for (auto tags = startTag.globalMatch(text); tags.hasNext();) {
        const QRegularExpressionMatch tag = tags.next();
        QStringList attributes;
        for (auto found = attribute.globalMatch(tag.captured(2)); found.hasNext();) {
            attributes.append(found.next().captured());
        }
        attributes.sort();
        result += text.mid(copied, tag.capturedStart(2) - copied) + u' ' + attributes.join(u' ');
        copied = tag.capturedEnd(2);
    }
    return (result + text.mid(copied)).toUtf8();
}

QString Outcome::transportErrorText() const
{
    return u"Network transport error ("_qs + QString::number(error) + u"): "_qs + errorString;
}

Outcome submitAndWait(QtSoapHttpTransport &transport, const QString &path, const QtSoapMessage &request)
{
    Outcome outcome;
    const auto takeOutcome = [&outcome, &transport](const QtSoapMessage &response) {
        const QNetworkReply *const reply = transport.networkReply();
        outcome.hasCome = true;
        outcome.response = response;
        outcome.error = reply->error();
        outcome.errorString = reply->errorString();
        outcome.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    };
    const QMetaObject::Connection connection = QObject::connect(
        &transport, qOverload<const QtSoapMessage &>(&QtSoapHttpTransport::responseReady), &transport, takeOutcome);
    // Its wait() runs the loop without pauses, which much data would need long for.
    QSignalSpy answered(&transport, qOverload<const QtSoapMessage &>(&QtSoapHttpTransport::responseReady));
    transport.submitRequest(request, path);
    const bool isInTime = answered.wait(watchdogMs);
    QObject::disconnect(connection);
    outcome.hasCome = outcome.hasCome && isInTime;
    return outcome;
}

} // namespace SoapTest
