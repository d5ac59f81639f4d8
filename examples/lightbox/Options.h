// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "CrashDump.h"

#include "common/StartUp.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

/*! What the command line asks for. */
struct Options : StartUpOptions
{
    QString photos; // a folder, or one photograph in it
    QUrl service; // that describes photographs; empty for none
    QString snapshot; // PNG file to write of the window, empty for none
    QString crashSender; // the program that takes over when a dump waits; empty for none
    QString crashService; // host and port that it gets; empty for none
    Crash crash = Crash::None; // to die of as soon as the first photograph is shown
    bool tour = false; // through the gate for commands
    bool leave = false; // as soon as the first photograph is shown, or the tour is over
};

/*! Parses the running application's arguments; with wrong ones, or for "--help", the process ends here. */
Options parseOptions();
