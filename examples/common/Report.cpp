// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "common/Report.h"

#include <QtCore/QTextStream>

#include <algorithm>

namespace {

bool breaksLine(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

} // namespace

void printLine(int step, QLatin1StringView subject, const QString &answer)
{
    QString line = answer;
    std::replace_if(line.begin(), line.end(), breaksLine, QChar(u' '));
    QTextStream(stdout) << step << ' ' << subject.toString().leftJustified(12) << line << Qt::endl;
}
