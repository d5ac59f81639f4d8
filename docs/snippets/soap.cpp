// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapSimpleType.h"

using namespace ZYX_zglv6;

namespace Snippets {

//! [compose]
QString exposureRequest(const QString &film, int speed)
{
    QtSoapMessage request;
    request.setMethod(u"ExposureFor"_qs, u"urn:example:darkroom"_qs);
    request.addMethodArgument(u"film"_qs, u"urn:example:darkroom"_qs, film);
    request.addMethodArgument(u"speed"_qs, u"urn:example:darkroom"_qs, speed);
    return request.toXmlString(1);
}
//! [compose]

//! [values]
QtSoapStruct *newFrame(const QString &name, const QList<int> &histogram)
{
    auto *levels = new QtSoapArray(QtSoapQName(u"levels"_qs), QtSoapType::Int, int(histogram.size()));
    for (int i = 0; i < histogram.size(); ++i) {
        levels->insert(i, new QtSoapSimpleType(QtSoapQName(u"level"_qs), histogram.at(i)));
    }
    auto *frame = new QtSoapStruct(QtSoapQName(u"frame"_qs));
    frame->insert(new QtSoapSimpleType(QtSoapQName(u"name"_qs), name));
    frame->insert(levels);
    return frame; // for a message, which takes it over with all that is in it
}
//! [values]

//! [read]
QString answerOf(const QByteArray &document)
{
    QtSoapMessage answer;
    if (!answer.setContent(document) || answer.isFault()) {
        return u"refused: "_qs + answer.faultString().toString();
    }
    return answer.method()[u"seconds"_qs].toString();
}
//! [read]

//! [ask]
void ask(QtSoapHttpTransport &transport, const QUrl &service, const std::function<void(const QString &)> &tell)
{
    QtSoapMessage request;
    request.setMethod(u"ExposureFor"_qs, u"urn:example:darkroom"_qs);

    const auto answered = [tell](const QtSoapMessage &answer) {
        tell(answer.isFault() ? answer.faultString().toString() : answer.returnValue().toString());
    };
    QObject::connect(&transport, qOverload<const QtSoapMessage &>(&QtSoapHttpTransport::responseReady), &transport,
                     answered, Qt::SingleShotConnection);
    transport.setHost(service.host(), service.scheme() == u"https", service.port(0));
    transport.setAction(u"\"ExposureFor\""_qs); // the quotes are the caller's
    transport.networkAccessManager()->setTransferTimeout(30'000);
    transport.submitRequest(request, service.path(QUrl::FullyDecoded));
}
//! [ask]

//! [prefix]
void usePrefixForDarkroom()
{
    QtSoapNamespaces::instance().registerNamespace(u"darkroom"_qs, u"urn:example:darkroom"_qs);
}
//! [prefix]

} // namespace Snippets
