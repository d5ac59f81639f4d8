// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapTypeFactory.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"
#include "utilsDll/soap/SoapDocument_p.h"
#include "utilsDll/soap/SoapDom_p.h"

#include <QtCore/QScopeGuard>

namespace ZYX_zglv6 {

QtSoapTypeConstructorBase::QtSoapTypeConstructorBase() = default;
QtSoapTypeConstructorBase::QtSoapTypeConstructorBase(const QtSoapTypeConstructorBase &other) = default;
QtSoapTypeConstructorBase &QtSoapTypeConstructorBase::operator=(const QtSoapTypeConstructorBase & /*other*/) = default;
QtSoapTypeConstructorBase::~QtSoapTypeConstructorBase() = default;

template <typename T>
QtSoapType *QtSoapTypeConstructor<T>::createObject(QDomNode node)
{
    auto object = std::make_unique<T>();
    if (!object->parse(node)) {
        m_errorString = object->errorString();
        return nullptr;
    }
    return object.release();
}

template <typename T>
QString QtSoapTypeConstructor<T>::errorString() const
{
    return m_errorString;
}

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION QtSoapTypeConstructor<QtSoapStruct>;
template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION QtSoapTypeConstructor<QtSoapArray>;
template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION QtSoapTypeConstructor<QtSoapSimpleType>;

QtSoapTypeFactory &QtSoapTypeFactory::instance()
{
    static QtSoapTypeFactory factory;
    return factory;
}

QtSoapTypeFactory::QtSoapTypeFactory()
{
    // Dates, times, binary data, "anyuri", "qname" and "notation" have no handler: the shape of the element decides.
    const auto structs = std::make_shared<QtSoapTypeConstructor<QtSoapStruct>>();
    addConstructor(structs, {u"struct"});
    addConstructor(std::make_shared<QtSoapTypeConstructor<QtSoapArray>>(), {u"array"});
    addConstructor(std::make_shared<QtSoapTypeConstructor<QtSoapSimpleType>>(),
                   {u"string",
                    u"normalizedstring",
                    u"token",
                    u"language",
                    u"name",
                    u"ncname",
                    u"id",
                    u"idref",
                    u"entity",
                    u"nmtoken",
                    u"nmtokens",
                    u"boolean",
                    u"decimal",
                    u"integer",
                    u"nonpositiveinteger",
                    u"negativeinteger",
                    u"int",
                    u"long",
                    u"short",
                    u"byte",
                    u"nonnegativeinteger",
                    u"unsignedlong",
                    u"unsignedint",
                    u"unsignedshort",
                    u"unsignedbyte",
                    u"positiveinteger",
                    u"float",
                    u"double"});
    registerHandler(u"other"_qs, structs.get());
}

QtSoapTypeFactory::QtSoapTypeFactory(const QtSoapTypeFactory &other) = default;
QtSoapTypeFactory &QtSoapTypeFactory::operator=(const QtSoapTypeFactory &other) = default;
QtSoapTypeFactory::~QtSoapTypeFactory() = default;

void QtSoapTypeFactory::addConstructor(const std::shared_ptr<QtSoapTypeConstructorBase> &constructor,
                                       std::initializer_list<QStringView> names)
{
    m_constructors.push_back(constructor);
    for (const QStringView name : names) {
        registerHandler(name.toString(), constructor.get());
    }
}

bool QtSoapTypeFactory::registerHandler(const QString &name, QtSoapTypeConstructorBase *handler)
{
    if (m_handlers.contains(name)) {
        m_errorString = u"A handler for %1 is already registered."_qs.arg(name);
        return false;
    }
    m_handlers.insert(name, handler);
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a handle
QtSmartPtr<QtSoapType> QtSoapTypeFactory::soapType(QDomNode node) const
{
    static thread_local int depth = 0; // a struct or an array comes back here for each child
    const QScopeGuard oneUp([] { --depth; });
    if (++depth > maximumDepth) {
        m_errorString = u"Elements are nested more than %1 deep."_qs.arg(maximumDepth);
        return QtSmartPtr<QtSoapType>();
    }
    const QDomElement element = node.toElement();
    QtSoapTypeConstructorBase *const handler = element.isNull() ? nullptr : handlerFor(element);
    if (handler == nullptr) {
        return QtSmartPtr<QtSoapType>();
    }
    QtSoapType *const value = handler->createObject(node);
    if (value == nullptr) {
        m_errorString = handler->errorString();
    }
    return QtSmartPtr<QtSoapType>(value);
}

QtSoapTypeConstructorBase *QtSoapTypeFactory::handlerFor(const QDomElement &element) const
{
    const QDomAttr typeAttribute = plainAttribute(element, u"type"_qs);
    if (!typeAttribute.isNull()) {
        if (auto *const named = m_handlers.value(withoutPrefix(typeAttribute.value().toLower()))) {
            return named;
        }
    }
    if (!element.firstChild().isElement()) {
        return m_handlers.value(u"string"_qs);
    }
    const bool isArray = withoutPrefix(element.nodeName().toLower()) == u"array";
    return m_handlers.value(isArray ? u"array"_qs : u"struct"_qs);
}

QString QtSoapTypeFactory::errorString() const
{
    return m_errorString;
}

} // namespace ZYX_zglv6
