// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Output.h"

#include "PrintableText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

void printLine(const QString &text)
{
    QTextStream(stdout) << onOneLine(text) << Qt::endl;
}

void printLine(QLatin1StringView subject, const QString &text)
{
    printLine(QString(subject.toString().leftJustified(10) + text));
}

void printError(const QString &text)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << onOneLine(text) << Qt::endl;
}
