// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoService.h"

#include "utilsDll/eventLoop/OperationCompletionWaiter.h"
#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapMessage.h"

#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr int patienceMs = 10'000;

QString serviceUri()
{
    return u"urn:lightbox:photos"_qs;
}

QtSoapMessage requestFor(const QString &photo, QSize size)
{
    QtSoapMessage request;
    request.setMethod(u"DescribePhoto"_qs, serviceUri());
    request.addMethodArgument(u"name"_qs, serviceUri(), photo);
    request.addMethodArgument(u"width"_qs, serviceUri(), size.width());
    request.addMethodArgument(u"height"_qs, serviceUri(), size.height());
    return request;
}

QString inWords(const QtSoapMessage &answer)
{
    if (answer.isFault()) { // also if there was no service, or no answer that could be read
        return CPhotoService::tr("No description: %1").arg(answer.faultString().toString());
    }
    return CPhotoService::tr("The service says: %1").arg(answer.returnValue().toString());
}

} // namespace

CPhotoService::CPhotoService(QUrl address)
    : m_address(std::move(address))
{
}

QString CPhotoService::describe(const QString &photo, QSize size) const
{
    QtSoapHttpTransport transport;
    transport.setHost(m_address.host(), m_address.scheme() == u"https", m_address.port(0));
    transport.setAction(u"\"DescribePhoto\""_qs);
    COperationCompletionWaiter waiter(&transport, SIGNAL(responseReady()), false, false, nullptr);
    const QString path = m_address.path(QUrl::FullyDecoded);
    transport.submitRequest(requestFor(photo, size), path.isEmpty() ? u"/"_qs : path);
    waiter.startWaiting(patienceMs);
    return waiter.isOperationCompleted() && waiter.isOperationSuccess() ? inWords(transport.getResponse())
                                                                        : tr("The service takes too long");
}
