// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common/StartUp.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

/*! What the command line asks for. */
struct Options : StartUpOptions
{
    QString product;
    QString email;
    QString comment;
    QUrl service; // host and port; empty for the one in the preferences
    QString copy; // where a copy of the archive goes, empty for none
    QString snapshot; // PNG file to write of the window, empty for none
    bool send = false; // at once, without showing the window, and leave
    bool leave = false; // as soon as the window is shown
};

/*! Parses the running application's arguments; with wrong ones, or for "--help", the process ends here. */
Options parseOptions();
