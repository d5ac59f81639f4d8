// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/soap/QtSoapNamespaces.h"

namespace ZYX_zglv6 {

QtSoapNamespaces &QtSoapNamespaces::instance()
{
    static QtSoapNamespaces namespaces;
    return namespaces;
}

QtSoapNamespaces::QtSoapNamespaces() = default;
QtSoapNamespaces::QtSoapNamespaces(const QtSoapNamespaces &other) = default;
QtSoapNamespaces::QtSoapNamespaces(QtSoapNamespaces &&other) noexcept = default;
QtSoapNamespaces::~QtSoapNamespaces() = default;
QtSoapNamespaces &QtSoapNamespaces::operator=(const QtSoapNamespaces &other) = default;
QtSoapNamespaces &QtSoapNamespaces::operator=(QtSoapNamespaces &&other) noexcept = default;

void QtSoapNamespaces::registerNamespace(const QString &prefix, const QString &uri)
{
    m_prefixes.insert(uri, prefix);
}

QString QtSoapNamespaces::prefixFor(const QString &uri) const
{
    return m_prefixes.value(uri);
}

} // namespace ZYX_zglv6
