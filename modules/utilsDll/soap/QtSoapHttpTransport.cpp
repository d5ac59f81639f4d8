// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapHttpTransport.h"

#include "utilsDll/soap/SoapDocument_p.h"

#include <QtNetwork/QNetworkRequest>

namespace ZYX_zglv6 {

namespace {

constexpr int httpPort = 80;
constexpr int httpsPort = 443;

/*! Whether a reply may hold a document. A service that answers with a fault does so under the status 500. */
bool mayHoldDocument(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::NoError:
    case QNetworkReply::ContentAccessDenied:
    case QNetworkReply::ContentOperationNotPermittedError:
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::UnknownContentError:
    case QNetworkReply::InternalServerError:
        return true;
    default:
        return false;
    }
}

QByteArray documentOf(const QtSoapMessage &message)
{
    QByteArray document = message.toXmlString(0).toUtf8();
    document.truncate(qsizetype(qstrlen(document.constData()))); // ends at a zero character; XML has none
    return document;
}

void limitAnswer(QNetworkReply *reply)
{
    reply->setReadBufferSize(maximumDocumentSize + 1); // Qt's own thread reads ahead
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > maximumDocumentSize) {
            reply->abort();
        }
    });
}

} // namespace

QtSoapHttpTransport::QtSoapHttpTransport(QObject *parent)
    : QObject(parent)
    , m_manager(this)
{
    connect(&m_manager, &QNetworkAccessManager::finished, this, &QtSoapHttpTransport::readResponse);
}

QtSoapHttpTransport::~QtSoapHttpTransport() = default;

void QtSoapHttpTransport::setHost(const QString &host, int port)
{
    setHost(host, false, port);
}

void QtSoapHttpTransport::setHost(const QString &host, bool useSecureHTTP, int port)
{
    const int defaultPort = useSecureHTTP ? httpsPort : httpPort;
    m_url.setScheme(useSecureHTTP ? u"https"_qs : u"http"_qs);
    m_url.setHost(host);
    m_url.setPort(port != 0 ? port : defaultPort);
}

void QtSoapHttpTransport::setAction(const QString &action)
{
    m_action = action;
}

void QtSoapHttpTransport::submitRequest(const QtSoapMessage &request, const QString &path)
{
    m_url.setPath(path);
    QNetworkRequest networkRequest(m_url);
    networkRequest.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("text/xml;charset=utf-8"));
    // SOAP demands the header, and a null value would leave it out.
    networkRequest.setRawHeader("SOAPAction", m_action.isEmpty() ? QByteArrayLiteral("") : m_action.toLatin1());
    m_response.clear();
    m_reply = m_manager.post(networkRequest, documentOf(request));
    limitAnswer(m_reply);
}

const QtSoapMessage &QtSoapHttpTransport::getResponse() const
{
    return m_response;
}

QNetworkAccessManager *QtSoapHttpTransport::networkAccessManager()
{
    return &m_manager;
}

QNetworkReply *QtSoapHttpTransport::networkReply()
{
    return m_reply;
}

void QtSoapHttpTransport::readResponse(QNetworkReply *reply)
{
    m_reply = reply;
    m_response.clear(); // it may hold the answer of another request
    if (mayHoldDocument(reply->error())) {
        readAnswer(*reply);
    } else {
        m_response.setFaultCode(QtSoapMessage::Client);
        m_response.setFaultString(
            u"Network transport error (%1): %2"_qs.arg(QString::number(reply->error()), reply->errorString()));
    }
    // A slot may send the next request, which clears the response, or delete this object.
    const QtSoapMessage response = m_response;
    const QPointer<QtSoapHttpTransport> self(this);
    const QPointer<QNetworkReply> answered(reply);
    Q_EMIT responseReady();
    if (self) {
        Q_EMIT responseReady(response);
    }
    if (answered) {
        answered->deleteLater();
    }
}

void QtSoapHttpTransport::readAnswer(QNetworkReply &reply)
{
    m_response.setContent(reply.readAll()); // false says no more than the response does
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 200 && status != 100 && m_response.faultCode() == QtSoapMessage::Other) {
        m_response.setFaultCode(QtSoapMessage::Client);
    }
}

} // namespace ZYX_zglv6
