// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/soap/QtSmartPtr.h"
#include "utilsDll/soap/QtSoapType.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtXml/QDomNode>

#include <initializer_list>
#include <list>
#include <memory>

namespace ZYX_zglv6 {

class QtSoapArray;
class QtSoapSimpleType;
class QtSoapStruct;

/*! Makes values of one class from nodes of a document. */
class UTILSDLL_EXPORT QtSoapTypeConstructorBase
{
public:
    QtSoapTypeConstructorBase();
    QtSoapTypeConstructorBase(const QtSoapTypeConstructorBase &other);
    QtSoapTypeConstructorBase &operator=(const QtSoapTypeConstructorBase &other);

    virtual ~QtSoapTypeConstructorBase();

    /*! A value that the caller owns; null if \a node can't be read, and then errorString() may say why. */
    virtual QtSoapType *createObject(QDomNode node) = 0;

    /*! Why the last createObject() that failed did so. */
    virtual QString errorString() const = 0;
};

/*! The constructor of QtSoapStruct, QtSoapArray and QtSoapSimpleType, and of these alone. */
template <typename T>
class QtSoapTypeConstructor : public QtSoapTypeConstructorBase
{
public:
    QtSoapType *createObject(QDomNode node) override;
    QString errorString() const override;

private:
    QString m_errorString;
};

extern template class UTILSDLL_EXPORT_TEMPLATE QtSoapTypeConstructor<QtSoapStruct>;
extern template class UTILSDLL_EXPORT_TEMPLATE QtSoapTypeConstructor<QtSoapArray>;
extern template class UTILSDLL_EXPORT_TEMPLATE QtSoapTypeConstructor<QtSoapSimpleType>;

/*!
    Turns the elements of a document into values: by the type that an element names, otherwise by its shape. There is
    one for the process. Not locked: one thread at a time may read documents.
*/
class UTILSDLL_EXPORT QtSoapTypeFactory
{
public:
    static QtSoapTypeFactory &instance();

    /*! A copy shares the constructors. */
    QtSoapTypeFactory(const QtSoapTypeFactory &other);
    QtSoapTypeFactory &operator=(const QtSoapTypeFactory &other);
    ~QtSoapTypeFactory();

    /*!
        Lets \a handler make the values of the type \a name, which is to be in lower case: one with capitals is never
        found. The handler stays the caller's and must outlive the factory's use. False: the name has a handler, which
        it keeps.
    */
    bool registerHandler(const QString &name, QtSoapTypeConstructorBase *handler);

    /*!
        The value of the element \a node. Holds null if it is no element, can't be read, or nests more than 256 deep.
        Then errorString() tells what the outermost handler said; without a handler it stays as it was.
    */
    QtSmartPtr<QtSoapType> soapType(QDomNode node) const;

    /*! The last error of soapType() or registerHandler(). */
    QString errorString() const;

private:
    QtSoapTypeFactory();

    void addConstructor(const std::shared_ptr<QtSoapTypeConstructorBase> &constructor,
                        std::initializer_list<QStringView> names);
    QtSoapTypeConstructorBase *handlerFor(const QDomElement &element) const;

    mutable QString m_errorString;
    QHash<QString, QtSoapTypeConstructorBase *> m_handlers;
    std::list<std::shared_ptr<QtSoapTypeConstructorBase>> m_constructors;
};

} // namespace ZYX_zglv6
