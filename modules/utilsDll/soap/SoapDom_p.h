// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtXml/QDomDocument>

namespace ZYX_zglv6 {

class QtSoapQName;

// The namespaces of SOAP 1.1 and of XML Schema, whose names of 1999 are kept.
QString envelopeUri();
QString encodingUri();
QString schemaInstanceUri();
QString schemaUri();

/*! What follows the first ":"; all of it if there is none, or nothing in front of it. */
QString withoutPrefix(const QString &qualifiedName);

/*! An element with the prefix that is registered for the namespace; without a namespace a plain one. */
QDomElement createElement(QDomDocument &document, const QtSoapQName &name);

/*! Sets an attribute with the prefix that is registered for the namespace. */
void setAttribute(QDomElement &element, const QString &uri, const QString &localName, const QString &value);

/*! The attribute that is written with just this name; "xsi:type" is not "type". Null if there is none. */
QDomAttr plainAttribute(const QDomElement &element, const QString &name);

/*!
    Cuts texts with much to escape into pieces, which changes nothing in what is written. Qt escapes a text in place,
    and moves all that follows for each sign.
*/
void splitLongTexts(const QDomElement &root);

/*! The node behind \a node, its children first; null behind the last one in \a root. */
QDomNode followingNode(QDomNode node, const QDomElement &root);

/*! Local name and namespace of an element. */
QtSoapQName qualifiedName(const QDomElement &element);

} // namespace ZYX_zglv6
