// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapType.h"

#include <QtCore/QStringView>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace ZYX_zglv6 {

namespace {

constexpr std::array<QStringView, QtSoapType::Other> typeNames{u"duration",
                                                               u"dateTime",
                                                               u"time",
                                                               u"date",
                                                               u"gYearMonth",
                                                               u"gYear",
                                                               u"gMonthDay",
                                                               u"gDay",
                                                               u"gMonth",
                                                               u"boolean",
                                                               u"base64Binary",
                                                               u"hexBinary",
                                                               u"float",
                                                               u"double",
                                                               u"anyURI",
                                                               u"QName",
                                                               u"NOTATION",
                                                               u"string",
                                                               u"normalizedString",
                                                               u"token",
                                                               u"language",
                                                               u"name",
                                                               u"NMToken",
                                                               u"NCName",
                                                               u"ID",
                                                               u"IDREF",
                                                               u"ENTITY",
                                                               u"decimal",
                                                               u"integer",
                                                               u"nonPositiveInteger",
                                                               u"negativeInteger",
                                                               u"long",
                                                               u"int",
                                                               u"short",
                                                               u"byte",
                                                               u"nonNegativeInteger",
                                                               u"unsignedLong",
                                                               u"positiveInteger",
                                                               u"unsignedInt",
                                                               u"unsignedShort",
                                                               u"unsignedByte",
                                                               u"array",
                                                               u"struct"};

struct TypeKey
{
    QStringView name;
    QtSoapType::Type type;
};

// Compared with a name in lower case, so the two keys with a capital letter never match. They are kept: hosts rely on
// Other.
constexpr TypeKey typeKeys[] = {
    {u"string", QtSoapType::String},
    {u"normalizedstring", QtSoapType::NormalizedString},
    {u"token", QtSoapType::Token},
    {u"language", QtSoapType::Language},
    {u"name", QtSoapType::Name},
    {u"ncname", QtSoapType::NCName},
    {u"nmtoken", QtSoapType::NMToken},
    {u"id", QtSoapType::ID},
    {u"idref", QtSoapType::IDREF},
    {u"entity", QtSoapType::ENTITY},
    {u"base64binary", QtSoapType::Base64Binary},
    {u"hexBinary", QtSoapType::HexBinary},
    {u"anyuri", QtSoapType::AnyURI},
    {u"qname", QtSoapType::QName},
    {u"notation", QtSoapType::NOTATION},
    {u"duration", QtSoapType::Duration},
    {u"datetime", QtSoapType::DateTime},
    {u"time", QtSoapType::Time},
    {u"date", QtSoapType::Date},
    {u"gyearmonth", QtSoapType::GYearMonth},
    {u"gyear", QtSoapType::GYear},
    {u"gmonthday", QtSoapType::GMonthDay},
    {u"gday", QtSoapType::GDay},
    {u"gmonth", QtSoapType::GMonth},
    {u"decimal", QtSoapType::Decimal},
    {u"integer", QtSoapType::Integer},
    {u"nonPositiveinteger", QtSoapType::NonPositiveInteger},
    {u"negativeinteger", QtSoapType::NegativeInteger},
    {u"long", QtSoapType::Long},
    {u"int", QtSoapType::Int},
    {u"short", QtSoapType::Short},
    {u"byte", QtSoapType::Byte},
    {u"nonnegativeinteger", QtSoapType::NonNegativeInteger},
    {u"unsignedlong", QtSoapType::UnsignedLong},
    {u"unsignedint", QtSoapType::UnsignedInt},
    {u"unsignedshort", QtSoapType::UnsignedShort},
    {u"unsignedbyte", QtSoapType::UnsignedByte},
    {u"positiveinteger", QtSoapType::PositiveInteger},
    {u"float", QtSoapType::Float},
    {u"double", QtSoapType::Double},
    {u"boolean", QtSoapType::Boolean},
};

} // namespace

QtSoapType::QtSoapType()
    : m_errorString(u"Unknown error"_qs)
{
}

// NOLINTNEXTLINE(modernize-pass-by-value): the exported signature
QtSoapType::QtSoapType(const QtSoapQName &name, Type type)
    : m_type(type)
    , m_errorString(u"Unknown error"_qs)
    , m_name(name)
{
}

QtSoapType::QtSoapType(const QtSoapType &other) = default;
QtSoapType &QtSoapType::operator=(const QtSoapType &other) = default;
QtSoapType::~QtSoapType() = default;

void QtSoapType::clear()
{
    // The null value has nothing to clear.
}

// Nodes and documents are handles: they are passed by value.

bool QtSoapType::parse(QDomNode /*node*/) // NOLINT(performance-unnecessary-value-param)
{
    return false;
}

bool QtSoapType::isValid() const
{
    return false;
}

qint64 QtSoapType::count() const
{
    return 0;
}

QVariant QtSoapType::value() const
{
    return {};
}

const QtSoapType &QtSoapType::operator[](const QString & /*name*/) const
{
    static const QtSoapType null;
    return null;
}

const QtSoapType &QtSoapType::operator[](const QtSoapQName & /*name*/) const
{
    static const QtSoapType null;
    return null;
}

const QtSoapType &QtSoapType::operator[](int /*index*/) const
{
    static const QtSoapType null;
    return null;
}

QtSoapType &QtSoapType::operator[](const QString & /*name*/)
{
    static QtSoapType null;
    return null;
}

QtSoapType &QtSoapType::operator[](const QtSoapQName & /*name*/)
{
    static QtSoapType null;
    return null;
}

QtSoapType &QtSoapType::operator[](int /*index*/)
{
    static QtSoapType null;
    return null;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
QDomElement QtSoapType::toDomElement(QDomDocument /*document*/) const
{
    return {};
}

QtSoapType::Type QtSoapType::type() const
{
    return m_type;
}

QString QtSoapType::id() const
{
    return m_id;
}

QString QtSoapType::href() const
{
    return m_href;
}

QString QtSoapType::typeName() const
{
    return typeToName(type());
}

QtSoapQName QtSoapType::name() const
{
    return m_name;
}

QString QtSoapType::toString() const
{
    return {};
}

int QtSoapType::toInt() const
{
    return 0;
}

bool QtSoapType::toBool() const
{
    return false;
}

void QtSoapType::setName(const QtSoapQName &name)
{
    m_name = name;
}

void QtSoapType::setId(const QString &id)
{
    m_id = id;
}

void QtSoapType::setHref(const QString &href)
{
    m_href = href;
}

QString QtSoapType::errorString() const
{
    return m_errorString;
}

QString QtSoapType::typeToName(Type type)
{
    const bool hasName = type >= 0 && type < Other;
    return hasName ? typeNames[std::size_t(type)].toString() : u"other"_qs;
}

QtSoapType::Type QtSoapType::nameToType(const QString &name)
{
    const QString wanted = name.trimmed().toLower();
    const auto *found = std::find_if(std::begin(typeKeys), std::end(typeKeys),
                                     [&wanted](const TypeKey &key) { return key.name == wanted; });
    return found == std::end(typeKeys) ? Other : found->type;
}

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION QtSmartPtr<QtSoapType>;

} // namespace ZYX_zglv6
