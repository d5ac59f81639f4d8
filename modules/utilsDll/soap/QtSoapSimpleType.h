// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapType.h"

namespace ZYX_zglv6 {

/*! One scalar value. */
class UTILSDLL_EXPORT QtSoapSimpleType : public QtSoapType
{
public:
    QtSoapSimpleType();
    explicit QtSoapSimpleType(const QtSoapQName &name);
    QtSoapSimpleType(const QtSoapQName &name, int value);

    /*! A boolean; the last argument only tells this constructor from the one of an integer. */
    QtSoapSimpleType(const QtSoapQName &name, bool value, int);
    QtSoapSimpleType(const QtSoapQName &name, const QString &value);
    QtSoapSimpleType(const QtSoapSimpleType &other);
    QtSoapSimpleType &operator=(const QtSoapSimpleType &other);
    ~QtSoapSimpleType() override;

    /*! Drops the value; name and type stay. */
    void clear() override;

    /*!
        Reads text as the type that the attribute "type" names, a string without one. Whole and decimal numbers of
        every type are read as int; an empty text, or one that starts like a number but is no int, counts as 0. A
        boolean other than "true" or "false" leaves the value as it was. Of an unknown type name the type is Other and
        the value the text. False: no element, or a number that does not start like one.
    */
    bool parse(QDomNode node) override;
    bool isValid() const override;
    QVariant value() const override;
    QDomElement toDomElement(QDomDocument document) const override;
    QString toString() const override;
    int toInt() const override;
    bool toBool() const override;

private:
    bool readText(const QString &text, const QString &tagName);

    QVariant m_value;
};

} // namespace ZYX_zglv6
