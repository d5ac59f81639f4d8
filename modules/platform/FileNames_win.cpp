// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/FileNames.h"

#include <QtCore/QRegularExpression>

namespace ZyxPlatform {

bool namesDevice(const QString &name)
{
    // Also with an ending, or blanks in front of it. The last three digits are superscript.
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9\u00b9\u00b2\u00b3]) *(\\..*)?$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return name.contains(QLatin1Char(':')) || device.match(name).hasMatch();
}

} // namespace ZyxPlatform
