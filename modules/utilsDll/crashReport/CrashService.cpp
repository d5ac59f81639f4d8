// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/CrashService_p.h"

#include "utilsDll/frame/ProductData_p.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"
#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapMessage.h"

namespace ZYX_zglv6 {

namespace {

constexpr int servicePort = 80;
constexpr QLatin1StringView operation("ReportCrash");

QString serviceNamespace()
{
    return u"http://"_qs + serviceOwnerHost() + crashServiceNamespacePath;
}

} // namespace

QtSoapMessage crashReportMessage()
{
    QtSoapMessage message;
    message.setMethod(operation, serviceNamespace());
    message.addMethodArgument(u"platform"_qs, QString(), u"Win"_qs);
    message.addMethodArgument(u"product"_qs, QString(), productDisplayName); // the service knows this one alone
    message.addMethodArgument(u"version"_qs, QString(), libraryVersion());
    return message;
}

void postCrashReport(QtSoapHttpTransport &transport, QtSoapMessage &message, const QByteArray &archive)
{
    message.addMethodArgument(u"data"_qs, QString(), QString::fromLatin1(archive.toBase64()));
    transport.setHost(CSettings::getStringFromPreferencesFile(crashServiceHostKey, crashServiceHost()), servicePort);
    transport.setAction(serviceNamespace() + u'/' + operation);
    transport.submitRequest(message, crashServicePath);
}

ServiceVerdict verdictOf(const QtSoapMessage &response)
{
    ServiceVerdict verdict;
    if (response.faultCode() != QtSoapMessage::Other) {
        verdict.fault = response.faultString().value();
        return verdict;
    }
    const QtSoapType &answer = response.method();
    verdict.isAccepted = answer[u"ReportCrashResult"_qs].toString() == u"NoError";
    if (verdict.isAccepted) {
        verdict.identifier = answer[u"identifier"_qs].toString();
    }
    return verdict;
}

} // namespace ZYX_zglv6
