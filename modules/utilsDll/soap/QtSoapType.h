// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/soap/QtSmartPtr.h"
#include "utilsDll/soap/QtSoapQName.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtXml/QDomDocument>

namespace ZYX_zglv6 {

/*!
    A value of a SOAP document, and by itself the null value: what a look-up gives when it finds nothing. It is never
    a null reference; isValid() tells what came back.

    Values have no lock, and a value belongs to one thread with all that share its members. Reading and writing use
    tables of the process without a lock, so one thread at a time does that.
*/
class UTILSDLL_EXPORT QtSoapType
{
public:
    /*! Types of XML Schema, two of SOAP, and Other. The numbers are fixed. */
    enum Type : int {
        Duration,
        DateTime,
        Time,
        Date,
        GYearMonth,
        GYear,
        GMonthDay,
        GDay,
        GMonth,
        Boolean,
        Base64Binary,
        HexBinary,
        Float,
        Double,
        AnyURI,
        QName,
        NOTATION,
        String,
        NormalizedString,
        Token,
        Language,
        Name,
        NMToken,
        NCName,
        ID,
        IDREF,
        ENTITY,
        Decimal,
        Integer,
        NonPositiveInteger,
        NegativeInteger,
        Long,
        Int,
        Short,
        Byte,
        NonNegativeInteger,
        UnsignedLong,
        PositiveInteger,
        UnsignedInt,
        UnsignedShort,
        UnsignedByte,
        Array,
        Struct,
        Other
    };

    QtSoapType();
    QtSoapType(const QtSoapQName &name, Type type);
    QtSoapType(const QtSoapType &other);
    QtSoapType &operator=(const QtSoapType &other);

    virtual ~QtSoapType();

    /*! Drops the value, the members or the items. */
    virtual void clear();

    /*! Reads the value from an element. False if it is none of this type; errorString() may say why. */
    virtual bool parse(QDomNode node);

    /*! False for the null value alone. Says nothing of whether a value is well formed. */
    virtual bool isValid() const;

    /*! Number of members or items. */
    virtual qint64 count() const;

    /*! The plain value of a simple type, otherwise an invalid variant. */
    virtual QVariant value() const;

    /*! A member by name or place, or the null value. */
    virtual const QtSoapType &operator[](const QString &name) const;
    virtual const QtSoapType &operator[](const QtSoapQName &name) const;
    virtual const QtSoapType &operator[](int index) const;
    virtual QtSoapType &operator[](const QString &name);
    virtual QtSoapType &operator[](const QtSoapQName &name);
    virtual QtSoapType &operator[](int index);

    /*! The value as an element that belongs to \a document, which must not be null. The element is not inserted yet. */
    virtual QDomElement toDomElement(QDomDocument document) const;

    virtual Type type() const;
    virtual QString id() const;
    virtual QString href() const;

    /*! typeToName() of type(). */
    virtual QString typeName() const;
    virtual QtSoapQName name() const;

    virtual QString toString() const;
    virtual int toInt() const;
    virtual bool toBool() const;

    void setName(const QtSoapQName &name);
    void setId(const QString &id);
    void setHref(const QString &href);

    /*! Why parse() failed, by the last failure that gave a reason; "Unknown error" until then. */
    QString errorString() const;

    /*! The name of a type, such as "unsignedInt"; "other" for any other value. */
    static QString typeToName(Type type);

    /*!
        The type with this name, ignoring case and white space at both ends; Other if there is none. Not the inverse of
        typeToName(): "hexBinary", "nonPositiveInteger", "array" and "struct" are not recognised.
    */
    static Type nameToType(const QString &name);

protected:
    Type m_type = Other;
    QString m_errorString;

private:
    QString m_id;
    QtSoapQName m_name;
    QString m_href;
};

extern template class UTILSDLL_EXPORT_TEMPLATE QtSmartPtr<QtSoapType>;

} // namespace ZYX_zglv6
