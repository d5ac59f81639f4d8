// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapQName.h"

#include <QtCore/QStringView>

namespace ZYX_zglv6 {

namespace {

bool isAscii(QChar character)
{
    return character.unicode() < 0x80;
}

char16_t inLowerCase(QChar ascii)
{
    return ascii >= u'A' && ascii <= u'Z' ? char16_t(ascii.unicode() + (u'a' - u'A')) : ascii.unicode();
}

/*! left.toLower() == right.toLower(), without a copy where two ASCII texts are equal or differ. */
bool areEqualInLowerCase(QStringView left, QStringView right)
{
    while (!left.isEmpty() && !right.isEmpty() && isAscii(left.front()) && isAscii(right.front())) {
        if (inLowerCase(left.front()) != inLowerCase(right.front())) {
            return false;
        }
        left = left.mid(1);
        right = right.mid(1);
    }
    return left.toString().toLower() == right.toString().toLower();
}

} // namespace

// NOLINTNEXTLINE(modernize-pass-by-value): the exported signature
QtSoapQName::QtSoapQName(const QString &name, const QString &uri)
    : m_name(name)
    , m_uri(uri)
{
}

QtSoapQName::QtSoapQName(const QtSoapQName &other) = default;
QtSoapQName::QtSoapQName(QtSoapQName &&other) noexcept = default;
QtSoapQName::~QtSoapQName() = default;
QtSoapQName &QtSoapQName::operator=(const QtSoapQName &other) = default;
QtSoapQName &QtSoapQName::operator=(QtSoapQName &&other) noexcept = default;

QtSoapQName &QtSoapQName::operator=(const QString &name)
{
    m_name = name;
    m_uri.clear();
    return *this;
}

QString QtSoapQName::name() const
{
    return m_name;
}

QString QtSoapQName::uri() const
{
    return m_uri;
}

bool operator==(const QtSoapQName &left, const QtSoapQName &right)
{
    const bool hasEqualName = areEqualInLowerCase(left.name(), right.name());
    return hasEqualName && (right.uri().isEmpty() || areEqualInLowerCase(left.uri(), right.uri()));
}

bool operator!=(const QtSoapQName &left, const QtSoapQName &right)
{
    return !(left == right);
}

} // namespace ZYX_zglv6
