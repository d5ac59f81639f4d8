// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>

namespace ZYX_zglv6 {

/*! A qualified name: a local name and the URI of its namespace, either of which may be empty. */
class UTILSDLL_EXPORT QtSoapQName
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a plain text stands for a name without a namespace
    QtSoapQName(const QString &name = QString(), const QString &uri = QString());
    QtSoapQName(const QtSoapQName &other);
    QtSoapQName(QtSoapQName &&other) noexcept;
    ~QtSoapQName();

    QtSoapQName &operator=(const QtSoapQName &other);
    QtSoapQName &operator=(QtSoapQName &&other) noexcept;

    /*! Takes \a name as the local name and drops the URI. */
    QtSoapQName &operator=(const QString &name);

    QString name() const;
    QString uri() const;

private:
    QString m_name;
    QString m_uri;
};

/*!
    True if both parts are equal in lower case, or if \a right has no URI and the local names are. A missing URI stands
    for any on the right side alone, so the order of the operands matters: what is there on the left, what is wanted on
    the right.
*/
UTILSDLL_EXPORT bool operator==(const QtSoapQName &left, const QtSoapQName &right);
UTILSDLL_EXPORT bool operator!=(const QtSoapQName &left, const QtSoapQName &right);

} // namespace ZYX_zglv6
