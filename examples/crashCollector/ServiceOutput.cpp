// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ServiceOutput.h"

#include <QtCore/QTextStream>

#include <algorithm>

namespace {

/*! What a sender wrote must not look like a line of its own. */
QString onOneLine(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar character) { return !character.isPrint() && !character.isSurrogate(); },
        u' ');
    return text;
}

} // namespace

void printServiceLine(const QString &text)
{
    QTextStream(stdout) << onOneLine(text) << Qt::endl;
}

void printServiceError(const QString &text)
{
    QTextStream(stderr) << "crashCollector: " << onOneLine(text) << Qt::endl;
}
