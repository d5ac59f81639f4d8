// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "embeddedData/XmlElement.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

#include <algorithm>

namespace {

XmlElement readElement(QXmlStreamReader &reader)
{
    XmlElement element;
    element.name = reader.name().toString();
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        element.attributes.insert(attribute.name().toString(), attribute.value().toString());
    }
    while (reader.readNext() != QXmlStreamReader::EndElement && !reader.hasError()) {
        if (reader.isStartElement()) {
            element.children.append(readElement(reader));
        } else if (reader.isCharacters()) {
            element.text += reader.text();
        }
    }
    return element;
}

} // namespace

XmlElement XmlElement::child(const QString &childName) const
{
    return childrenOf(childName).value(0);
}

QList<XmlElement> XmlElement::childrenOf(const QString &childName) const
{
    QList<XmlElement> found;
    std::copy_if(children.cbegin(), children.cend(), std::back_inserter(found),
                 [&childName](const XmlElement &element) { return element.name == childName; });
    return found;
}

QStringList XmlElement::childNames() const
{
    QStringList names;
    for (const XmlElement &element : children) {
        names.append(element.name);
    }
    return names;
}

QStringList XmlElement::values(const QString &attribute) const
{
    QStringList found;
    for (const XmlElement &element : children) {
        found.append(element.attributes.value(attribute));
    }
    return found;
}

XmlElement readXml(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QXmlStreamReader reader(&file);
    reader.readNextStartElement();
    const XmlElement root = readElement(reader);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError() ? XmlElement() : root;
}
