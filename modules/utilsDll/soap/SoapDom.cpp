// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/SoapDom_p.h"

#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapQName.h"

#include <algorithm>

namespace ZYX_zglv6 {

namespace {

QString withRegisteredPrefix(const QString &uri, const QString &localName)
{
    return QtSoapNamespaces::instance().prefixFor(uri) + u':' + localName;
}

constexpr int pieceLength = 4096;

/*! Whether escaping in place moves much: the length for each sign. For a few signs a copy costs more. */
bool hasMuchToEscape(const QString &text)
{
    const auto isMarkup = [](QChar character) {
        return character == u'&' || character == u'<' || character == u'>' || character == u'\r';
    };
    const auto signs = std::count_if(text.begin(), text.end(), isMarkup);
    return signs > 16 && signs * text.size() > qint64(pieceLength) * pieceLength;
}

/*! Not by QDomText::splitText(), which leaks. A ">" is escaped only behind "]]": the three stay in one piece. */
void splitText(QDomText text)
{
    const QString content = text.nodeValue();
    qsizetype end = content.size();
    for (qsizetype i = (end - 3) / pieceLength * pieceLength; i > 0; i -= pieceLength) {
        const bool isBeforeLast = content.at(i) == u']' && content.at(i + 1) == u'>';
        const qsizetype cut = i + (content.at(i) == u'>' ? 1 : (isBeforeLast ? 2 : 0));
        text.parentNode().insertAfter(text.ownerDocument().createTextNode(content.mid(cut, end - cut)), text);
        end = cut;
    }
    text.setNodeValue(content.left(end));
}

} // namespace

QString envelopeUri()
{
    return u"http://schemas.xmlsoap.org/soap/envelope/"_qs;
}

QString encodingUri()
{
    return u"http://schemas.xmlsoap.org/soap/encoding/"_qs;
}

QString schemaInstanceUri()
{
    return u"http://www.w3.org/1999/XMLSchema-instance"_qs;
}

QString schemaUri()
{
    return u"http://www.w3.org/1999/XMLSchema"_qs;
}

QString withoutPrefix(const QString &qualifiedName)
{
    const qsizetype colon = qualifiedName.indexOf(u':');
    return colon > 0 ? qualifiedName.mid(colon + 1) : qualifiedName;
}

QDomElement createElement(QDomDocument &document, const QtSoapQName &name)
{
    if (name.uri().isEmpty()) {
        return document.createElement(name.name());
    }
    return document.createElementNS(name.uri(), withRegisteredPrefix(name.uri(), name.name()));
}

void setAttribute(QDomElement &element, const QString &uri, const QString &localName, const QString &value)
{
    element.setAttributeNS(uri, withRegisteredPrefix(uri, localName), value);
}

QDomAttr plainAttribute(const QDomElement &element, const QString &name)
{
    // Qt looks attributes up by their local names: of "type" and "xsi:type" in one element it may find either.
    const QDomNamedNodeMap attributes = element.attributes();
    const QDomNode found = attributes.namedItem(name);
    if (found.isNull() || found.nodeName() == name) {
        return found.toAttr();
    }
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.nodeName() == name) {
            return attribute;
        }
    }
    return {};
}

QDomNode followingNode(QDomNode node, const QDomElement &root)
{
    if (node.hasChildNodes()) {
        return node.firstChild();
    }
    while (node != root && node.nextSibling().isNull()) {
        node = node.parentNode();
    }
    return node != root ? node.nextSibling() : QDomNode();
}

void splitLongTexts(const QDomElement &root)
{
    for (QDomNode node = root.firstChild(); !node.isNull(); node = followingNode(node, root)) {
        if (node.isText() && !node.isCDATASection() && hasMuchToEscape(node.nodeValue())) {
            splitText(node.toText());
        }
    }
}

QtSoapQName qualifiedName(const QDomElement &element)
{
    return {withoutPrefix(element.tagName()), element.namespaceURI()};
}

} // namespace ZYX_zglv6
