// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*! Prints one line to the standard output, at once. Control characters become blanks. */
void printLine(const QString &text);

/*! The same with a \a subject before it, for lines that stand below each other. */
void printLine(QLatin1StringView subject, const QString &text);

/*! Prints one line to the standard error, with the program's name before it. */
void printError(const QString &text);
