// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/peers/PeerCall.h"

#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapSimpleType.h"

#include <QtTest/QSignalSpy>

using namespace ZYX_zglv6;

namespace {

constexpr int watchdogMs = 60'000;

} // namespace

QString peerNamespace()
{
    return u"urn:photoPeer"_qs;
}

QtSoapStruct *newPhoto(const QtSoapQName &element, const Photo &photo)
{
    const QString uri = element.uri();
    auto *const item = new QtSoapStruct(element);
    item->insert(new QtSoapSimpleType(QtSoapQName(u"name"_qs, uri), photo.name));
    item->insert(new QtSoapSimpleType(QtSoapQName(u"width"_qs, uri), photo.width));
    item->insert(new QtSoapSimpleType(QtSoapQName(u"height"_qs, uri), photo.height));
    item->insert(new QtSoapSimpleType(QtSoapQName(u"isColour"_qs, uri), photo.isColour, 0));
    return item;
}

QtSoapMessage call(const QtSoapMessage &request, int port)
{
    QtSoapHttpTransport transport;
    transport.networkAccessManager()->setTransferTimeout(watchdogMs);
    transport.setHost(u"127.0.0.1"_qs, port);
    transport.setAction(u"\"urn:photoPeer#%1\""_qs.arg(request.method().name().name()));
    QSignalSpy ready(&transport, qOverload<>(&QtSoapHttpTransport::responseReady));
    transport.submitRequest(request, u"/"_qs);
    if (ready.isEmpty()) {
        ready.wait(2 * watchdogMs); // beyond the time limit of the transfer, which gives a fault
    }
    return transport.getResponse();
}
