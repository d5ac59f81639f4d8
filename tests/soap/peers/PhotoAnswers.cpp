// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/peers/PhotoAnswers.h"

#include "soap/peers/PeerCall.h"

#include "utilsDll/soap/QtSoapMessage.h"

#include <QtCore/QStringList>

using namespace ZYX_zglv6;

QByteArray photoAnswer(const QByteArray &body)
{
    QtSoapMessage request;
    if (!request.setContent(body)) {
        return request.toXmlString().toUtf8();
    }
    const QtSoapType &method = request.method();
    const QString operation = method.name().name();
    const QString result = u"result"_qs;
    QtSoapMessage answer;
    answer.setMethod(operation + u"Response", peerNamespace());
    if (operation == u"echo") {
        answer.addMethodArgument(result, QString(), method[u"text"_qs].toString());
    } else if (operation == u"add") {
        answer.addMethodArgument(result, QString(), method[u"first"_qs].toInt() + method[u"second"_qs].toInt());
    } else if (operation == u"negate") {
        answer.addMethodArgument(result, QString(), !method[u"value"_qs].toBool(), 0);
    } else if (operation == u"rotate") {
        const QtSoapType &photo = method[u"photo"_qs];
        answer.addMethodArgument(newPhoto(QtSoapQName(result),
                                          {photo[u"name"_qs].toString(), photo[u"height"_qs].toInt(),
                                           photo[u"width"_qs].toInt(), photo[u"isColour"_qs].toBool()}));
    }
    return answer.toXmlString().toUtf8();
}

QList<int> numbersIn(const QtSoapType &list)
{
    QList<int> numbers;
    for (int i = 0; i < list.count(); ++i) {
        numbers += list[i].toInt();
    }
    return numbers;
}

QString described(const QtSoapType &photo)
{
    return u"%1, %2 x %3, %4"_qs.arg(photo[u"name"_qs].toString(), photo[u"width"_qs].toString(),
                                     photo[u"height"_qs].toString(), photo[u"isColour"_qs].toString());
}

QString outline(const QtSoapType &item)
{
    if (item.type() != QtSoapType::Struct) {
        return item.name().name() + u'=' + item.toString();
    }
    QStringList members;
    for (int i = 0; i < item.count(); ++i) {
        members += outline(item[i]);
    }
    return item.name().name() + u'(' + members.join(u' ') + u')';
}
