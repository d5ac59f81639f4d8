// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

/*!
    The product's small persistent facts. Each function makes CSettings accesses of its own, and so follows temporary
    settings; only the user's identity lies in a store of its own that nothing redirects. A missing key is a valid
    state, and none of them reports an error.
*/
namespace ZYX_zglv6 {

/*! True until setNotFirstLaunch() has been called once for the user's settings. */
UTILSDLL_EXPORT bool isFirstLaunch();
UTILSDLL_EXPORT void setNotFirstLaunch();

UTILSDLL_EXPORT bool arePresetsMigrated();
UTILSDLL_EXPORT void setPresetsMigrated();

/*! The mode that was recorded last, one of the launchMode constants; empty before the first. */
UTILSDLL_EXPORT QString getLastLaunchMode();
UTILSDLL_EXPORT void setLastLaunchMode(const QString &mode);

/*!
    The user's anonymous identity, a UUID of 36 characters; made by the first call. Never redirected. Two processes that
    make it at the same moment may each get one of their own; the one written last stays.
*/
UTILSDLL_EXPORT QString getUserID();

/*! "zyx" unless the installer or setResellerID() said otherwise. */
UTILSDLL_EXPORT QString getResellerID();
UTILSDLL_EXPORT void setResellerID(const QString &id);

/*! The log's threshold: its first character counts, see initLogger(). "D" if none is set. */
UTILSDLL_EXPORT QString getLogLevel();

/*! Each of the three is true unless exactly "0" is stored. */
UTILSDLL_EXPORT bool isLoggerEnabled();
UTILSDLL_EXPORT bool isStatisticSent();
UTILSDLL_EXPORT bool crashReportSendingAllowed();
UTILSDLL_EXPORT void allowCrashReportSending(bool allowed);

/*! One access to a key that has no function of its own. A write tells the listeners of CSettings::getNotificator(). */
UTILSDLL_EXPORT QVariant getSettingsValue(const QString &key, const QVariant &defaultValue);
UTILSDLL_EXPORT void setSettingsValue(const QString &key, const QVariant &value);

/*!
    The file "recall.bin" in the product's folder of the user's documents. The folder is made; the file is the host's.
*/
UTILSDLL_EXPORT QString recallFilePath();

} // namespace ZYX_zglv6
