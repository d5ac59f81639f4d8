// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "loggerSupport/LoggerWrapper.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"

using namespace ZYX_zglv6;

namespace Snippets {

//! [level]
void keepOnlyErrors()
{
    setSettingsValue(loggerLevelKey, u"E"_qs); // counts for the next initLogger()
}
//! [level]

//! [start]
void startLog(const QString &name)
{
    if (!isLoggerEnabled()) {
        return; // initLogger() itself does not ask
    }
    initLogger(name, LoggerTypeFile);
    ZYX_LOG('I', "The lamp is on");
}
//! [start]

} // namespace Snippets
