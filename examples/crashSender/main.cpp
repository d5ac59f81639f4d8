// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CrashReport.h"
#include "Options.h"
#include "ReportContents.h"
#include "ReportDelivery.h"
#include "SenderWindow.h"

#include "common/Look.h"
#include "common/OwnStore.h"
#include "common/Report.h"
#include "common/StartUp.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

/*! In the preferences, else the product's own. */
QString namedHost()
{
    return CSettings::getStringFromPreferencesFile(crashServiceHostKey, QStringLiteral(ZYX_CRASH_SERVICE_HOST));
}

/*! From the command line, else the named one. Without a host if that is no name of one. */
QUrl chooseService(const Options &options)
{
    if (!options.service.isEmpty()) {
        return options.service;
    }
    QUrl service;
    service.setScheme(u"http"_qs);
    service.setHost(namedHost());
    return service;
}

void printReport(const CCrashReport &report)
{
    constexpr QLatin1StringView subject("report");
    if (report.origin() == CCrashReport::Origin::None) {
        printLine(6, subject, u"nothing waits: there is no dump and no report"_qs);
        return;
    }
    if (report.origin() == CCrashReport::Origin::NotPacked) {
        printLine(6, subject, u"a dump waited, but the report could not be packed"_qs);
        return;
    }
    const QFileInfo archive(report.archive());
    const QString inside
        = u"%1, %2 bytes: %3"_qs.arg(QDir::toNativeSeparators(archive.filePath()), QString::number(archive.size()),
                                     CReportContents(report.archive()).names());
    const bool isNew = report.origin() == CCrashReport::Origin::New;
    printLine(6, subject, (isNew ? u"packed "_qs : u"of an earlier run: "_qs) + inside);
}

void warnOfUnusedTexts(const CCrashReport &report, const Options &options)
{
    const bool hasTexts = !options.email.isEmpty() || !options.comment.isEmpty();
    if (hasTexts && report.origin() != CCrashReport::Origin::New) {
        QTextStream(stderr) << "crashSender: --email and --comment are not used: no new report was packed" << Qt::endl;
    }
}

void printService(const QUrl &service)
{
    printLine(7, QLatin1StringView("service"),
              service.host().isEmpty() ? u"unusable: the preferences name \"%1\", which is no host"_qs.arg(namedHost())
                                       : service.authority());
}

void printCopy(const QString &path, const QString &failure)
{
    printLine(8, QLatin1StringView("copy"),
              failure.isEmpty() ? QString(QDir::toNativeSeparators(path) + u" saved") : failure);
}

void printResult(const DeliveryResult &result)
{
    constexpr QLatin1StringView verdicts[]{QLatin1StringView("sent: "), QLatin1StringView("refused: "),
                                           QLatin1StringView("failed: "), QLatin1StringView("cancelled: ")};
    printLine(9, QLatin1StringView("delivery"), verdicts[result.verdict] + result.text);
}

bool saveSnapshot(CSenderWindow &window, const QString &path)
{
    if (path.isEmpty()) {
        return true;
    }
    if (!window.isVisible()) { // its layout has its sizes only when it is shown
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.show();
    }
    QCoreApplication::sendPostedEvents();
    if (window.grab().save(path)) {
        return true;
    }
    QTextStream(stderr) << "crashSender: " << path << " could not be written" << Qt::endl;
    return false;
}

/*! Sends without showing the window, which does the work. The exit code of the process. */
int sendUnattended(CSenderWindow &window, const Options &options)
{
    QObject::connect(
        &window, &CSenderWindow::delivered, &window,
        [&](const DeliveryResult &result) {
            const bool isPictured = saveSnapshot(window, options.snapshot);
            QCoreApplication::exit(result.verdict == DeliveryResult::Accepted && isPictured ? 0 : 1);
        },
        Qt::QueuedConnection); // exit() counts only in the loop
    window.send();
    return QCoreApplication::exec();
}

int showWindow(CSenderWindow &window, const Options &options)
{
    window.show();
    int result = 0;
    QTimer::singleShot(0, &window, [&] { // painted by then
        result = saveSnapshot(window, options.snapshot) ? 0 : 1;
        if (options.leave) {
            window.close();
        }
    });
    const int exitCode = QCoreApplication::exec();
    return exitCode != 0 ? exitCode : result;
}

int runWindow(CSenderWindow &window, const CCrashReport &report, const Options &options)
{
    const bool isThere = !report.archive().isEmpty();
    if (!isThere && !options.copy.isEmpty()) {
        printCopy(options.copy, u"nothing was copied"_qs);
    }
    if (isThere && !options.copy.isEmpty() && !window.saveCopy(options.copy)) {
        return 1;
    }
    if (isThere && options.send) {
        return sendUnattended(window, options);
    }
    const bool isShown = options.send ? saveSnapshot(window, options.snapshot) : showWindow(window, options) == 0;
    return isShown && report.origin() != CCrashReport::Origin::NotPacked ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const Options options = parseOptions();
    useOwnStore(options.workFolder);
    CStartUp startUp(options, u"crashSender"_qs);
    startUp.goTheWholeWay();
    putOnLook(options.language);

    CCrashReport report(options.product, options.email, options.comment);
    printReport(report);
    warnOfUnusedTexts(report, options);
    const QUrl service = chooseService(options);
    printService(service);
    CReportDelivery delivery(service);
    CSenderWindow window(report, delivery, options.product, service.authority());
    QObject::connect(&window, &CSenderWindow::copied, printCopy);
    QObject::connect(&window, &CSenderWindow::delivered, printResult);
    const int result = runWindow(window, report, options);
    printLine(10, QLatin1StringView("left"), u"with %1"_qs.arg(result));
    return result;
}
