// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Report.h"

#include <QtCore/QTextStream>

void printLine(int step, QLatin1StringView subject, const QString &answer)
{
    QTextStream(stdout) << step << ' ' << subject.toString().leftJustified(12) << answer << Qt::endl;
}
