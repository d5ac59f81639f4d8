// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportService.h"

#include "ArchiveCheck.h"
#include "ServiceOutput.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <QtCore/QUrl>

#include <optional>

using namespace ZYX_zglv6;

namespace {

constexpr qsizetype maximumTextLength = 256; // of platform, product and version: names, not texts

QString operation()
{
    return u"ReportCrash"_qs;
}

ServiceAnswer fault(int status, QtSoapMessage::FaultCode code, const QString &text)
{
    QtSoapMessage message;
    message.setFaultCode(code);
    message.setFaultString(text);
    return {status, message.toXmlString().toUtf8()};
}

ServiceAnswer clientFault(const QString &text)
{
    return fault(500, QtSoapMessage::Client, text);
}

ServiceAnswer result(const QString &uri, const QString &word, const QString &identifier)
{
    QtSoapMessage message;
    message.setMethod(operation() + u"Response", uri);
    message.addMethodArgument(operation() + u"Result", QString(), word);
    message.addMethodArgument(u"identifier"_qs, QString(), identifier);
    return {200, message.toXmlString().toUtf8()};
}

/*! The host in it is a matter of the product that sends; the path is the service's. */
bool isServiceNamespace(const QString &uri)
{
    const QUrl url(uri, QUrl::StrictMode);
    return url.isValid() && !url.isRelative() && url.path().endsWith(crashServiceNamespacePath);
}

bool isActionOf(const QByteArray &action, const QString &uri)
{
    const QByteArray expected = (uri + u'/' + operation()).toUtf8();
    return action == expected || action == '"' + expected + '"';
}

/*! The one member of \a method with this name that is a text; nothing if there is none, or another one. */
std::optional<QString> textArgument(const QtSoapType &method, const QString &name)
{
    std::optional<QString> text;
    for (int i = 0; i < int(method.count()); ++i) {
        const QtSoapType &member = method[i];
        if (!(member.name() == QtSoapQName(name))) {
            continue;
        }
        if (text || member.type() != QtSoapType::String) {
            return std::nullopt;
        }
        text = member.toString();
    }
    return text;
}

std::optional<ReportOrigin> originIn(const QtSoapType &method)
{
    const auto platform = textArgument(method, u"platform"_qs);
    const auto product = textArgument(method, u"product"_qs);
    const auto version = textArgument(method, u"version"_qs);
    if (!platform || !product || !version) {
        return std::nullopt;
    }
    for (const auto &text : {platform, product, version}) {
        if (text->size() > maximumTextLength) {
            return std::nullopt;
        }
    }
    return ReportOrigin{*platform, *product, *version};
}

/*! Strictly Base64: with its padding, without line breaks or anything else from outside of the alphabet. */
std::optional<QByteArray> decoded(const QString &text)
{
    if (text.size() % 4 != 0) {
        return std::nullopt; // Qt does without the padding
    }
    const auto decoding = QByteArray::fromBase64Encoding(text.toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    return decoding ? std::optional(*decoding) : std::nullopt;
}

QString wordFor(ArchiveVerdict verdict)
{
    switch (verdict) {
    case ArchiveVerdict::Good:
        return u"NoError"_qs;
    case ArchiveVerdict::NotAnArchive:
        return u"NotAnArchive"_qs;
    case ArchiveVerdict::DamagedArchive:
        return u"DamagedArchive"_qs;
    case ArchiveVerdict::TooManyEntries:
        return u"TooManyEntries"_qs;
    case ArchiveVerdict::UnsafeName:
        return u"UnsafeName"_qs;
    case ArchiveVerdict::TooMuchContent:
        return u"TooMuchContent"_qs;
    case ArchiveVerdict::NoReport:
        return u"NoReport"_qs;
    }
    return {};
}

} // namespace

CReportService::CReportService(CReportStore &store, qint64 archiveSizeLimit)
    : m_store(store)
    , m_archiveSizeLimit(archiveSizeLimit)
{
}

ServiceAnswer CReportService::answer(const QByteArray &request, const QByteArray &action)
{
    QtSoapMessage message;
    if (!message.setContent(request)) {
        const QString why = message.faultString().toString();
        return clientFault(why.isEmpty() ? u"SOAP structure invalid"_qs : why);
    }
    const QtSoapType &method = message.method();
    const QtSoapQName name = method.name();
    if (method.type() != QtSoapType::Struct || name.name() != operation() || !isServiceNamespace(name.uri())) {
        return clientFault(u"The operation is not known"_qs);
    }
    if (!isActionOf(action, name.uri())) {
        return clientFault(u"The SOAPAction is not the one of the operation"_qs);
    }
    return carryOut(method);
}

ServiceAnswer CReportService::carryOut(const QtSoapType &method)
{
    const auto origin = originIn(method);
    const auto data = textArgument(method, u"data"_qs);
    if (!origin || !data) {
        return clientFault(u"ReportCrash takes the texts platform, product, version and data, once each"_qs);
    }
    const QString uri = method.name().uri();
    const auto archive = decoded(*data);
    if (!archive) {
        return result(uri, u"NotBase64"_qs, QString());
    }
    if (archive->size() > m_archiveSizeLimit) {
        return tooLarge();
    }
    QString identifier;
    const QString word = store(*origin, *archive, identifier);
    return result(uri, word, identifier);
}

/*! Returns the word for the answer. */
QString CReportService::store(const ReportOrigin &origin, const QByteArray &archive, QString &identifier)
{
    const ArchiveVerdict verdict = checkArchive(archive);
    if (verdict != ArchiveVerdict::Good) {
        return wordFor(verdict);
    }
    const auto stored = m_store.add(origin, archive);
    if (!stored) {
        printServiceError(m_store.errorString());
        return u"StorageFailed"_qs;
    }
    identifier = stored->identifier;
    printServiceLine(u"Received %1: %2, %3 bytes"_qs.arg(identifier, origin.product, QString::number(stored->size)));
    return wordFor(verdict);
}

ServiceAnswer CReportService::tooLarge() const
{
    const QString limit = QString::number(m_archiveSizeLimit);
    return fault(413, QtSoapMessage::Client, u"Archives of more than %1 bytes are not accepted"_qs.arg(limit));
}

ServiceAnswer CReportService::serverFault()
{
    return fault(500, QtSoapMessage::Server, u"The service has failed"_qs);
}
