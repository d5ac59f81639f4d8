// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Collector.h"
#include "EndRequests.h"
#include "HttpServer.h"
#include "Options.h"
#include "ReportStore.h"
#include "ServiceOutput.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

namespace {

// Exit codes; wrong options end with 1.
constexpr int storageFailed = 2;
constexpr int listeningFailed = 3;

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const Options options = parseOptions();

    CReportStore store(options.storageFolder);
    if (!store.open()) {
        printServiceError(store.errorString());
        return storageFailed;
    }
    CCollector collector(store, options.archiveSizeLimit);
    CHttpServer server(options, collector);
    if (server.isOpenToNetwork()) {
        printServiceError(u"with --host %1 the page and the reports are open to the network, and the header Host of "
                          "requests is not checked"_qs.arg(options.host));
    }
    if (!server.bind()) {
        printServiceError(u"%1 port %2 can't be listened on; is another program doing so?"_qs.arg(
            options.host, QString::number(options.port)));
        return listeningFailed;
    }

    CEndRequests endRequests(!options.keepRunning);
    QObject::connect(&endRequests, &CEndRequests::requested, &server, &CHttpServer::stop);
    // The loop turns until then: requests that have been received wait for it.
    QObject::connect(&server, &QThread::finished, &application,
                     [&] { QCoreApplication::exit(server.isStopping() ? 0 : listeningFailed); });
    server.start();
    printServiceLine(u"Reports are kept in %1, %2 so far"_qs.arg(QDir::toNativeSeparators(options.storageFolder),
                                                                 QString::number(store.count())));
    printServiceLine(u"Listening on "_qs + server.address());
    const int result = QCoreApplication::exec();
    server.wait();
    return result;
}
