// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

namespace TestSupport {

/*! A document for elements that belong to none yet; they need it as long as they live. */
inline QDomDocument newDocument()
{
    return QDomImplementation().createDocument(QString(), u"test"_qs, QDomDocumentType());
}

/*! The document element of \a text, read with namespaces or without; null if \a text is no document. */
inline QDomElement elementFrom(QDomDocument &document, const QString &text, bool hasNamespaces = true)
{
    return document.setContent(text, hasNamespaces) ? document.documentElement() : QDomElement();
}

/*!
    \a node and what it holds in one line, as {uri}name[attributes](children): attributes sorted, names as they are
    written. Attributes of a namespace have its URI in front as well.
*/
inline QString outline(const QDomNode &node)
{
    if (!node.isElement()) {
        return u'\'' + node.nodeValue() + u'\'';
    }
    const auto nameOf = [](const QDomNode &named) {
        return named.namespaceURI().isEmpty() ? named.nodeName()
                                              : u'{' + named.namespaceURI() + u'}' + named.nodeName();
    };
    QStringList attributes;
    for (int i = 0; i < node.attributes().count(); ++i) {
        const QDomNode attribute = node.attributes().item(i);
        attributes.append(nameOf(attribute) + u'=' + attribute.nodeValue());
    }
    attributes.sort();
    QStringList children;
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        children.append(outline(child));
    }
    return nameOf(node) + u'[' + attributes.join(u' ') + u"](" + children.join(u' ') + u')';
}

} // namespace TestSupport
