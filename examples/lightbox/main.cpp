// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CrashDump.h"
#include "HostSteps.h"
#include "LightboxApplication.h"
#include "MainWindow.h"
#include "Options.h"
#include "Texts.h"
#include "Tour.h"

#include "common/Look.h"
#include "common/OwnStore.h"
#include "common/Report.h"
#include "common/StartUp.h"

#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QTextStream>
#include <QtCore/QTimer>

namespace {

/*! What the command line asked for beyond looking at photographs. */
void finishStart(CMainWindow &window, const Options &options)
{
    if (options.crash != Crash::None) {
        ZYX_LOG('F', "Crashes because it was asked to");
        crashNow(options.crash);
    }
    if (!options.snapshot.isEmpty() && !window.grab().save(options.snapshot)) {
        QTextStream(stderr) << "lightbox: " << options.snapshot << " could not be written" << Qt::endl;
    }
    if (options.leave) {
        window.close();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    const Options options = parseOptions();
    useOwnStore(options.workFolder);
    noteInstallation();

    CStartUp startUp(options, u"lightbox"_qs);
    startUp.goTheWholeWay();
    watchForCrashes(options);
    putOnLook(options.language);
    speakLoadedLanguage();

    CMainWindow window(options.photos);
    application.setMainWindow(&window);
    window.show();
    reportMainWindow();
    noteLaunch();
    window.restorePanel();

    window.setService(options.service);
    CTour tour(window, options);
    QObject::connect(&tour, &CTour::finished, &window, [&] { finishStart(window, options); });
    // Queued: the window has been painted by then. Once: only the start is meant.
    QObject::connect(
        &window, &CMainWindow::currentShown, &window,
        [&] { options.tour ? tour.start() : finishStart(window, options); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    QTimer::singleShot(0, &window, &CMainWindow::showCurrent);
    const int result = CLightboxApplication::exec();
    printLine(26, QLatin1StringView("left"), u"with %1"_qs.arg(result));
    return result;
}
