// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportSender.h"

#include "HttpExchange.h"

#include "utilsDll/soap/QtSoapMessage.h"

using namespace ZYX_zglv6;

namespace CrashCollectorTest {

QString serviceUri()
{
    return u"http://www.zyx.example/CollectDump"_qs;
}

QByteArray reportAction()
{
    return "http://www.zyx.example/CollectDump/ReportCrash";
}

QString reportPath()
{
    return u"/CollectDumpInfo/WSCollectDump.asmx"_qs;
}

QByteArray reportRequest(const QString &data, const ReportTexts &texts)
{
    QtSoapMessage message;
    message.setMethod(u"ReportCrash"_qs, serviceUri());
    message.addMethodArgument(u"platform"_qs, QString(), texts.platform);
    message.addMethodArgument(u"product"_qs, QString(), texts.product);
    message.addMethodArgument(u"version"_qs, QString(), texts.version);
    message.addMethodArgument(u"data"_qs, QString(), data);
    return message.toXmlString().toUtf8();
}

QByteArray requestWithArguments(const QString &arguments)
{
    return u"<e:Envelope xmlns:e=\"http://schemas.xmlsoap.org/soap/envelope/\"><e:Body><s:ReportCrash xmlns:s=\"%1\">"
           "%2</s:ReportCrash></e:Body></e:Envelope>"_qs.arg(serviceUri(), arguments)
               .toUtf8();
}

Verdict postDocument(const CollectorProcess &collector, const QByteArray &document)
{
    return postDocument(collector, document, reportAction());
}

Verdict postDocument(const CollectorProcess &collector, const QByteArray &document, const QByteArray &action)
{
    Headers headers{{"Content-Type", "text/xml;charset=utf-8"}};
    if (!action.isNull()) {
        headers.insert("SOAPAction", action);
    }
    const HttpReply reply = exchange("POST", collector.url(reportPath()), headers, document);
    return verdictIn(reply.status, reply.body);
}

Verdict sendReport(const CollectorProcess &collector, const QByteArray &archive, const ReportTexts &texts)
{
    return postDocument(collector, reportRequest(QString::fromLatin1(archive.toBase64()), texts));
}

Verdict verdictIn(int status, const QByteArray &document)
{
    QtSoapMessage message;
    message.setContent(document); // a document that can't be read is a fault
    Verdict verdict;
    verdict.status = status;
    verdict.word = message.method()[u"ReportCrashResult"_qs].toString();
    verdict.identifier = message.method()[u"identifier"_qs].toString();
    if (message.isFault()) {
        static const QStringList names{u"VersionMismatch"_qs, u"MustUnderstand"_qs, u"Client"_qs, u"Server"_qs};
        verdict.fault = names.value(message.faultCode()) + u": " + message.faultString().toString();
    }
    return verdict;
}

} // namespace CrashCollectorTest
