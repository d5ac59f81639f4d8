// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapHttpTransport.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtCore/QUrl>

/*! What became of a delivery. */
struct DeliveryResult
{
    enum Verdict { Accepted, Refused, Failed, Cancelled };

    Verdict verdict = Failed;
    QString text; // the report's identifier; the service's word for a refusal; why it failed
};

/*!
    Brings a report to the service that collects them: one operation, one attempt, with the archive in it.

    CZipCrashReport::sendZipToServer() speaks the same way, but reads the archive from where it is not, and so never
    sends a report.
*/
class CReportDelivery final : public QObject
{
    Q_OBJECT

public:
    /*! Of \a service host and port count; without a port it is 80. */
    explicit CReportDelivery(const QUrl &service, QObject *parent = nullptr);

    /*! Of silence, until the delivery has failed. */
    void setTimeLimit(int milliseconds);

    /*! Sends the bytes of an archive; finished() tells what became of it. One at a time. */
    void send(const QByteArray &archive);

    bool isSending() const;

public Q_SLOTS:
    /*! Ends a delivery: finished() comes from within. The service may have got the report all the same. */
    void cancel();

Q_SIGNALS:
    void progressed(qint64 sent, qint64 total);

    /*! Not from within send(). */
    void finished(const DeliveryResult &result);

private:
    void awaitMore();
    void abort();
    void takeAnswer(const ZYX_zglv6::QtSoapMessage &answer);
    DeliveryResult resultOf(const ZYX_zglv6::QtSoapMessage &answer) const;

    ZYX_zglv6::QtSoapHttpTransport m_transport;
    QTimer m_silence; // the network's own time limit does not tell that it was the reason
    bool m_isSending = false;
    bool m_isCancelled = false;
    bool m_isSilent = false;
};
