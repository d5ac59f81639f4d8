// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*!
    Prints one line of what this service does to the standard output, at once. Line ends and other control characters
    become blanks.
*/
void printServiceLine(const QString &text);

/*! The same to the standard error. */
void printServiceError(const QString &text);
