// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapSimpleType.h"

#include "utilsDll/soap/SoapDom_p.h"

namespace ZYX_zglv6 {

namespace {

/*! What QDomElement::text() gives, in one walk: that one copies the text for each level of elements. */
QString textOf(const QDomElement &element)
{
    const QDomNode first = element.firstChild();
    if (first.isText() && first.nextSibling().isNull()) {
        return first.nodeValue(); // shared
    }
    QString text = u""_qs;
    for (QDomNode node = first; !node.isNull(); node = followingNode(node, element)) {
        if (node.isText()) { // also of a CDATA section
            text += node.nodeValue();
        }
    }
    return text;
}

bool isReadAsInt(QtSoapType::Type type)
{
    return type >= QtSoapType::Decimal && type <= QtSoapType::UnsignedByte;
}

bool startsLikeANumber(const QString &text)
{
    return text.isEmpty() || text.front().isNumber() || text.front() == u'-';
}

} // namespace

QtSoapSimpleType::QtSoapSimpleType() = default;

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName &name)
    : QtSoapType(name, Other)
{
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName &name, int value)
    : QtSoapType(name, Int)
    , m_value(value)
{
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName &name, bool value, int)
    : QtSoapType(name, Boolean)
    , m_value(value)
{
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapQName &name, const QString &value)
    : QtSoapType(name, String)
    , m_value(value)
{
}

QtSoapSimpleType::QtSoapSimpleType(const QtSoapSimpleType &other) = default;
QtSoapSimpleType &QtSoapSimpleType::operator=(const QtSoapSimpleType &other) = default;
QtSoapSimpleType::~QtSoapSimpleType() = default;

void QtSoapSimpleType::clear()
{
    m_value.clear();
}

bool QtSoapSimpleType::parse(QDomNode node)
{
    const QDomElement element = node.toElement();
    if (element.isNull()) {
        return false;
    }
    const QDomAttr typeAttribute = plainAttribute(element, u"type"_qs);
    m_type = typeAttribute.isNull() ? String : nameToType(withoutPrefix(typeAttribute.value()).toLower());
    if (!readText(textOf(element), element.tagName())) {
        return false;
    }
    setName(qualifiedName(element));
    return true;
}

bool QtSoapSimpleType::readText(const QString &text, const QString &tagName)
{
    if (m_type == Boolean) {
        const QString word = text.trimmed().toLower();
        if (word == u"true" || word == u"false") { // "1" and "0" are not understood, and are no error
            m_value = (word == u"true");
        }
    } else if (m_type == Float) {
        m_value = text.toFloat();
    } else if (m_type == Double) {
        m_value = text.toDouble();
    } else if (isReadAsInt(m_type)) {
        if (!startsLikeANumber(text)) {
            m_errorString = u"Type error at element \"%1\""_qs.arg(tagName);
            return false;
        }
        m_value = text.toInt(); // of every type, whatever its range
    } else {
        m_value = text;
    }
    return true;
}

bool QtSoapSimpleType::isValid() const
{
    return true;
}

QVariant QtSoapSimpleType::value() const
{
    return m_value;
}

QDomElement QtSoapSimpleType::toDomElement(QDomDocument document) const
{
    QDomElement element = createElement(document, name());
    setAttribute(element, schemaInstanceUri(), u"type"_qs, u"xsd:" + typeName());
    element.appendChild(document.createTextNode(toString()));
    return element;
}

QString QtSoapSimpleType::toString() const
{
    return m_value.toString();
}

int QtSoapSimpleType::toInt() const
{
    return m_value.toInt();
}

bool QtSoapSimpleType::toBool() const
{
    return m_value.toBool();
}

} // namespace ZYX_zglv6
