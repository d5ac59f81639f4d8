// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "platform/Processes.h"

namespace Snippets {

//! [service]
QString versionText(const QString &path)
{
    const auto version = ZyxPlatform::fileVersion(path);
    if (!version) {
        return u"unknown"_qs;
    }
    QStringList numbers;
    for (const quint32 number : *version) {
        numbers.append(QString::number(number));
    }
    return numbers.join(u'.');
}
//! [service]

} // namespace Snippets
