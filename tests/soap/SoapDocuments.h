// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapMessage.h"

#include <QtCore/QByteArray>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

namespace SoapDocuments {

/*! What a message keeps for classes that derive from it. */
class OpenMessage : public ZYX_zglv6::QtSoapMessage
{
public:
    using QtSoapMessage::body;
    using QtSoapMessage::header;
    using QtSoapMessage::init;
    using QtSoapMessage::isValidSoapMessage;
};

/*! The document with the attributes of each start tag in order: Qt writes them in the order of a seeded hash. */
inline QString withSortedAttributes(const QString &document)
{
    static const QRegularExpression startTag(QStringLiteral(R"re(<([^\s/>!?"]+)((?:\s+[^\s=>]+="[^"]*")+)(\s*/?>))re"));
    static const QRegularExpression attribute(QStringLiteral(R"re([^\s=]+="[^"]*")re"));
    QString result;
    qsizetype at = 0;
    for (auto tags = startTag.globalMatch(document); tags.hasNext();) {
        const QRegularExpressionMatch tag = tags.next();
        QStringList attributes;
        for (auto all = attribute.globalMatch(tag.captured(2)); all.hasNext();) {
            attributes.append(all.next().captured());
        }
        attributes.sort();
        result += document.mid(at, tag.capturedStart() - at) + u'<' + tag.captured(1) + u' ' + attributes.join(u' ')
            + tag.captured(3);
        at = tag.capturedEnd();
    }
    return result + document.mid(at);
}

/*! The document as it is compared, attributes in order. */
inline QString written(const ZYX_zglv6::QtSoapMessage &message, int indent = -1)
{
    return withSortedAttributes(message.toXmlString(indent));
}

/*! An envelope around \a content, with its namespace as "e" and no white space of its own. */
inline QByteArray envelope(const QByteArray &content)
{
    return R"(<e:Envelope xmlns:e="http://schemas.xmlsoap.org/soap/envelope/">)" + content + "</e:Envelope>";
}

/*! A document with a body around \a content. */
inline QByteArray inBody(const QByteArray &content)
{
    return envelope("<e:Body>" + content + "</e:Body>");
}

/*! "name: text" of each detail that the message writes; no accessor finds them. */
inline QStringList writtenDetails(const ZYX_zglv6::QtSoapMessage &message)
{
    QDomDocument document;
    if (!document.setContent(message.toXmlString(-1), true)) {
        return {QStringLiteral("not well-formed")};
    }
    QStringList details;
    const QDomNodeList all
        = document.elementsByTagNameNS(QStringLiteral("http://schemas.xmlsoap.org/soap/envelope/"), u"Faultdetail"_qs);
    for (int i = 0; i < all.count(); ++i) {
        for (QDomElement detail = all.at(i).firstChildElement(); !detail.isNull();
             detail = detail.nextSiblingElement()) {
            details.append(detail.tagName() + u": "_qs + detail.text());
        }
    }
    return details;
}

} // namespace SoapDocuments
