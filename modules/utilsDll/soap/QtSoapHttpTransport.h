// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/soap/QtSoapMessage.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>

namespace ZYX_zglv6 {

/*!
    Posts messages over HTTP or HTTPS and hands back the answers.

    Whatever becomes of a request comes through the two signals. getResponse().isFault() is true for a fault of the
    service with a code that SOAP knows, for an answer that can't be read (QtSoapMessage::setContent() tells of an
    exception), and for an error of the network: "Network transport error (number): text", with the numbers of
    QNetworkReply::NetworkError.

    Proxy, time limit, cookies and certificates are those of networkAccessManager(); an answer has no time limit unless
    one is set there. One of more than 64 MiB is aborted, error 5; but what comes with the status 401 or 407 Qt collects
    unseen, and only a time limit ends that.

    Lives on the thread that made it and needs its event loop. Delete it with deleteLater() from a slot of its own
    signals.
*/
class UTILSDLL_EXPORT QtSoapHttpTransport : public QObject
{
    Q_OBJECT

public:
    explicit QtSoapHttpTransport(QObject *parent = nullptr);
    ~QtSoapHttpTransport() override;

    /*! HTTP; a \a port of 0 is 80. */
    void setHost(const QString &host, int port = 0);

    /*! HTTPS or HTTP; a \a port of 0 is 443 or 80. */
    void setHost(const QString &host, bool useSecureHTTP, int port = 0);

    /*!
        Value of the header "SOAPAction", one line in Latin-1, as it is: the quotes that services expect are part of it.
    */
    void setAction(const QString &action);

    /*!
        Posts \a request to \a path, which begins with "/" and has no query. Clears the response first, which therefore
        can't be the request. Does not wait: several requests may be on their way, and each answer replaces the one
        before.
    */
    void submitRequest(const QtSoapMessage &request, const QString &path);

    /*! The last answer; an empty message before it has come. */
    const QtSoapMessage &getResponse() const;

    QNetworkAccessManager *networkAccessManager();

    /*! The request on its way, or the one last answered; null when it has gone, soon after the signals. */
    QNetworkReply *networkReply();

Q_SIGNALS:
    void responseReady();
    void responseReady(const ZYX_zglv6::QtSoapMessage &response);

private Q_SLOTS:
    void readResponse(QNetworkReply *reply);

private:
    void readAnswer(QNetworkReply &reply);

    QNetworkAccessManager m_manager;
    QPointer<QNetworkReply> m_reply;
    QUrl m_url;
    QString m_action;
    QtSoapMessage m_response;
};

} // namespace ZYX_zglv6
