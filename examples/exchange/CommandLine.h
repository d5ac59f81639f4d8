// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QCommandLineParser;

/*! The exit code of a program whose arguments are wrong. */
constexpr int wrongUsage = 2;

/*! Gives the running application its name and version. */
void nameProgram(const QString &name);

/*!
    Parses the running application's arguments; \a file is the only one that belongs to no option, as the help names it.
    Returns it. With wrong arguments, and for "--help" and "--version", the process ends here.
*/
QString parseCommandLine(QCommandLineParser &parser, const QString &file, const QString &description);

/*! Says what is wrong with the arguments and ends the process. */
[[noreturn]] void refuseUsage(const QString &what);
