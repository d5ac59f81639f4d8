// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*! What the command line asks for. */
struct Options
{
    QString host; // name or address to listen on
    int port = 0; // 0: one of the system's choice
    QString storageFolder;
    qint64 archiveSizeLimit = 0; // bytes
    bool keepRunning = false; // when the standard input closes
};

/*! Parses the running application's arguments; with wrong ones, or for "--help", the process ends here. */
Options parseOptions();
