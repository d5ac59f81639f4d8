// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*!
    Prints one line of what this host does: the step's number, its subject, and what came of it. It stays one line:
    control characters of an answer from outside become spaces.
*/
void printLine(int step, QLatin1StringView subject, const QString &answer);
