// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QMap>
#include <QtCore/QString>

namespace ZYX_zglv6 {

/*!
    The prefixes under which namespaces are written, one table for the process. It starts empty; QtSoapMessage enters
    the four namespaces of SOAP and XML Schema. Not locked: use it from one thread at a time.
*/
class UTILSDLL_EXPORT QtSoapNamespaces
{
public:
    static QtSoapNamespaces &instance();

    QtSoapNamespaces(const QtSoapNamespaces &other);
    QtSoapNamespaces(QtSoapNamespaces &&other) noexcept;
    ~QtSoapNamespaces();

    QtSoapNamespaces &operator=(const QtSoapNamespaces &other);
    QtSoapNamespaces &operator=(QtSoapNamespaces &&other) noexcept;

    /*! Makes \a prefix the one of \a uri, in place of an earlier one. URIs are told apart by case. */
    void registerNamespace(const QString &prefix, const QString &uri);

    /*! Empty if \a uri is not registered. */
    QString prefixFor(const QString &uri) const;

private:
    QtSoapNamespaces();

    QMap<QString, QString> m_prefixes; // by URI
};

} // namespace ZYX_zglv6
