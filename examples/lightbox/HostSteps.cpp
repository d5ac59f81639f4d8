// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "HostSteps.h"

#include "CrashDump.h"
#include "Options.h"

#include "common/Look.h"
#include "common/Report.h"

#include "utilsDll/crashReport/zipCrashReport.h"
#include "utilsDll/frame/Application.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>

using namespace ZYX_zglv6;

namespace {

bool startCrashSender(const Options &options)
{
    QStringList arguments{u"--"_qs + CSettings::preferencesFilePathCommandLineOption(), options.preferencesFile,
                          u"--data"_qs, options.workFolder};
    if (!options.crashService.isEmpty()) {
        arguments += {u"--service"_qs, options.crashService};
    }
    return QProcess::startDetached(options.crashSender, arguments, options.workFolder);
}

/*! What follows from a dump that waits. */
QString passOnDump(const Options &options)
{
    if (options.leave || options.crashSender.isEmpty()) {
        return QString();
    }
    return startCrashSender(options) ? u"; started %1"_qs.arg(QDir::toNativeSeparators(options.crashSender))
                                     : u"; %1 can't be started"_qs.arg(QDir::toNativeSeparators(options.crashSender));
}

} // namespace

void watchForCrashes(const Options &options)
{
    installCrashDump();
    printLine(6, QLatin1StringView("crashes"),
              CZipCrashReport::isCrashDumpCreated(CBaseCrashParser())
                  ? QString(u"a dump of an earlier run waits"_qs + passOnDump(options))
                  : u"no dump of an earlier run"_qs);
}

void reportMainWindow()
{
    printLine(7, QLatin1StringView("window"),
              u"in %1; main window 0x%2"_qs.arg(loadedLanguageName(), QString::number(mainWindowHandle(), 16)));
}

void noteLaunch()
{
    const QString lastMode = getLastLaunchMode();
    printLine(8, QLatin1StringView("launch"),
              u"%1, last mode \"%2\", user %3, reseller %4"_qs.arg(
                  isFirstLaunch() ? u"the first"_qs : u"not the first"_qs, lastMode, getUserID(), getResellerID()));
    setNotFirstLaunch();
    setLastLaunchMode(launchModeStandalone);
}
