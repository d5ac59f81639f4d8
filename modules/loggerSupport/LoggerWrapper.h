// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QString>

namespace ZYX_zglv6 {

enum LoggerType : int {
    LoggerTypeFile = 0,
    LoggerTypeConsole = 1 // as is every other value
};

/*!
    Makes the process's logger, writes the banner and the storage locations.

    The file type logs to "\a name.txt" in CStorageLocation::loggerFilesPath(), a fresh file for each run; the
    threshold is the first letter of getLogLevel(), and a second call goes on with the first file. The console type
    logs to the standard output and replaces any logger before it.

    Call it once, early: before there are threads, and after CStorageLocation knows the data directory. Without that
    it throws std::runtime_error, for either type, and no logger comes into being. It does not look at
    isLoggerEnabled(): a host that honours that setting asks first. A log file that can't be written fails nobody.
*/
UTILSDLL_EXPORT void initLogger(const QString &name, LoggerType type);

} // namespace ZYX_zglv6
