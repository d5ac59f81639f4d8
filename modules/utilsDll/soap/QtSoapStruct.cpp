// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapStruct.h"

#include "utilsDll/soap/QtSoapTypeFactory.h"
#include "utilsDll/soap/SoapDom_p.h"

#include <algorithm>

namespace ZYX_zglv6 {

QtSoapStruct::QtSoapStruct()
    : QtSoapStruct(QtSoapQName())
{
}

QtSoapStruct::QtSoapStruct(const QtSoapQName &name)
    : QtSoapType(name, Struct)
{
}

QtSoapStruct::QtSoapStruct(const QtSoapStruct &other) = default;
QtSoapStruct &QtSoapStruct::operator=(const QtSoapStruct &other) = default;
QtSoapStruct::~QtSoapStruct() = default;

void QtSoapStruct::insert(QtSoapType *item)
{
    m_members.append(QtSmartPtr<QtSoapType>(item));
}

QtSoapType *QtSoapStruct::find(const QtSoapQName &key) const
{
    const auto found = std::find_if(m_members.cbegin(), m_members.cend(), [&key](const QtSmartPtr<QtSoapType> &member) {
        return member && member->name() == key;
    });
    return found == m_members.cend() ? nullptr : found->get();
}

QtSoapType &QtSoapStruct::at(const QtSoapQName &key)
{
    static QtSoapType null;
    QtSoapType *const found = find(key);
    return found != nullptr ? *found : null;
}

const QtSoapType &QtSoapStruct::at(const QtSoapQName &key) const
{
    static const QtSoapType null;
    const QtSoapType *const found = find(key);
    return found != nullptr ? *found : null;
}

void QtSoapStruct::clear()
{
    m_members.clear();
}

bool QtSoapStruct::parse(QDomNode node)
{
    const QDomElement element = node.toElement();
    if (element.isNull()) {
        return false;
    }
    m_members.clear();
    int index = 0;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling(), ++index) {
        if (!child.isComment() && !readMember(child, index, element.tagName())) {
            return false;
        }
    }
    setName(qualifiedName(element));
    return true;
}

bool QtSoapStruct::readMember(const QDomNode &node, int index, const QString &tagName)
{
    if (!node.isElement()) {
        m_errorString
            = u"In the struct element %1, the %2th child is not an element."_qs.arg(tagName, QString::number(index));
        return false;
    }
    const QtSmartPtr<QtSoapType> member = QtSoapTypeFactory::instance().soapType(node);
    if (!member) {
        m_errorString = u"In the struct element %1, child #%2, %3, was not recognized as a SOAP type."_qs.arg(
            tagName, QString::number(index), node.toElement().tagName());
        return false;
    }
    m_members.append(member);
    return true;
}

bool QtSoapStruct::isValid() const
{
    return true;
}

qint64 QtSoapStruct::count() const
{
    return m_members.size();
}

const QtSoapType &QtSoapStruct::operator[](const QString &name) const
{
    return at(QtSoapQName(name));
}

const QtSoapType &QtSoapStruct::operator[](const QtSoapQName &name) const
{
    return at(name);
}

QtSoapType *QtSoapStruct::member(int index) const
{
    return index >= 0 && index < m_members.size() ? m_members.at(index).get() : nullptr;
}

const QtSoapType &QtSoapStruct::operator[](int index) const
{
    const QtSoapType *const found = member(index);
    return found != nullptr ? *found : QtSoapType::operator[](index);
}

QtSoapType &QtSoapStruct::operator[](const QString &name)
{
    return at(QtSoapQName(name));
}

QtSoapType &QtSoapStruct::operator[](const QtSoapQName &name)
{
    return at(name);
}

QtSoapType &QtSoapStruct::operator[](int index)
{
    QtSoapType *const found = member(index);
    return found != nullptr ? *found : QtSoapType::operator[](index);
}

QDomElement QtSoapStruct::toDomElement(QDomDocument document) const
{
    QDomElement element = createElement(document, name());
    for (const QtSmartPtr<QtSoapType> &member : m_members) {
        if (!member) {
            break;
        }
        element.appendChild(member->toDomElement(document));
    }
    return element;
}

QtSoapStructIterator::QtSoapStructIterator(QtSoapStruct &soapStruct)
    : m_current(soapStruct.m_members.begin())
    , m_end(soapStruct.m_members.end())
{
}

QtSoapQName QtSoapStructIterator::key() const
{
    return current() != nullptr ? current()->name() : QtSoapQName();
}

QtSoapType *QtSoapStructIterator::data()
{
    return m_current != m_end ? m_current->get() : nullptr;
}

const QtSoapType *QtSoapStructIterator::current() const
{
    return m_current != m_end ? m_current->get() : nullptr;
}

QtSoapStructIterator &QtSoapStructIterator::operator++()
{
    if (m_current != m_end) {
        ++m_current;
    }
    return *this;
}

bool QtSoapStructIterator::operator==(const QtSoapStructIterator &other) const
{
    return m_current == other.m_current;
}

bool QtSoapStructIterator::operator!=(const QtSoapStructIterator &other) const
{
    return m_current != other.m_current;
}

} // namespace ZYX_zglv6
