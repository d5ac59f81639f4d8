// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportDelivery.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/soap/QtSoapMessage.h"

using namespace ZYX_zglv6;

namespace {

constexpr int httpPort = 80;
constexpr int patienceMs = 30'000;
constexpr QLatin1StringView operation("ReportCrash");
constexpr QLatin1StringView networkError("Network transport error ("); // and a QNetworkReply::NetworkError

QString serviceNamespace()
{
    return QStringLiteral("http://" ZYX_SERVICE_OWNER_HOST) + crashServiceNamespacePath;
}

/*! The service knows reports by these three texts, whichever product of the family has crashed. */
QtSoapMessage requestFor(const QByteArray &archive)
{
    QtSoapMessage request;
    request.setMethod(operation, serviceNamespace());
    request.addMethodArgument(u"platform"_qs, QString(), u"Win"_qs);
    request.addMethodArgument(u"product"_qs, QString(), productDisplayName);
    request.addMethodArgument(u"version"_qs, QString(), QStringLiteral(CRASH_SENDER_VERSION));
    request.addMethodArgument(u"data"_qs, QString(), QString::fromLatin1(archive.toBase64()));
    return request;
}

QString inWords(const QString &fault)
{
    if (fault.isEmpty()) {
        return CReportDelivery::tr("The service tells of an error without a reason");
    }
    if (!fault.startsWith(networkError)) {
        return fault;
    }
    const int code = fault.mid(networkError.size()).section(u')', 0, 0).toInt();
    if (code == QNetworkReply::OperationCanceledError) { // by the transport, which has a limit of its own
        return CReportDelivery::tr("The answer of the service is too long");
    }
    const bool isReached = code == QNetworkReply::RemoteHostClosedError || code > QNetworkReply::UnknownProxyError;
    return (isReached ? CReportDelivery::tr("The service gave no proper answer (%1)")
                      : CReportDelivery::tr("The service could not be reached (%1)"))
        .arg(fault);
}

} // namespace

CReportDelivery::CReportDelivery(const QUrl &service, QObject *parent)
    : QObject(parent)
{
    m_transport.setHost(service.host(), service.port(httpPort));
    m_transport.setAction(serviceNamespace() + u'/' + operation);
    m_silence.setSingleShot(true);
    setTimeLimit(patienceMs);
    connect(&m_silence, &QTimer::timeout, this, [this] {
        m_isSilent = true;
        abort(); // keep last
    });
    connect(&m_transport, qOverload<const QtSoapMessage &>(&QtSoapHttpTransport::responseReady), this,
            &CReportDelivery::takeAnswer);
}

void CReportDelivery::setTimeLimit(int milliseconds)
{
    m_silence.setInterval(milliseconds);
}

void CReportDelivery::send(const QByteArray &archive)
{
    m_isSending = true;
    m_isCancelled = false;
    m_isSilent = false;
    m_transport.submitRequest(requestFor(archive), crashServicePath);
    const QNetworkReply *reply = m_transport.networkReply();
    connect(reply, &QNetworkReply::uploadProgress, this, &CReportDelivery::progressed);
    connect(reply, &QNetworkReply::uploadProgress, this, &CReportDelivery::awaitMore);
    connect(reply, &QNetworkReply::readyRead, this, &CReportDelivery::awaitMore);
    awaitMore();
}

bool CReportDelivery::isSending() const
{
    return m_isSending;
}

void CReportDelivery::cancel()
{
    if (!m_isSending) {
        return;
    }
    m_isCancelled = true;
    abort(); // keep last
}

void CReportDelivery::awaitMore()
{
    if (m_isSending) { // not if a slot before this one has ended it
        m_silence.start();
    }
}

void CReportDelivery::abort()
{
    if (m_transport.networkReply() != nullptr) {
        m_transport.networkReply()->abort();
    }
}

void CReportDelivery::takeAnswer(const QtSoapMessage &answer)
{
    m_isSending = false;
    m_silence.stop();
    Q_EMIT finished(resultOf(answer)); // keep last
}

DeliveryResult CReportDelivery::resultOf(const QtSoapMessage &answer) const
{
    if (m_isCancelled) {
        return {DeliveryResult::Cancelled, tr("It was cancelled")};
    }
    if (m_isSilent) {
        return {DeliveryResult::Failed, tr("The service does not answer")};
    }
    if (answer.isFault()) { // also if there was no service, or no answer that could be read
        return {DeliveryResult::Failed, inWords(answer.faultString().toString())};
    }
    const QtSoapType &method = answer.method();
    const QString word = method[u"ReportCrashResult"_qs].toString();
    if (word != u"NoError") {
        return {DeliveryResult::Refused, word.isEmpty() ? tr("The answer holds no verdict") : word};
    }
    return {DeliveryResult::Accepted, method[u"identifier"_qs].toString()};
}
