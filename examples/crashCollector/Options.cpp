// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QTextStream>

#include <cstdlib>

namespace {

constexpr int largestPort = 65535;
constexpr qint64 mebibyte = qint64(1024) * 1024;

// QtSoapMessage reads 64 MiB at most, and an archive is a third larger in Base64: 48 MiB would fill that alone.
constexpr int largestSizeLimit = 47;
constexpr int defaultSizeLimit = 32;

[[noreturn]] void refuse(const QString &what)
{
    QTextStream(stderr) << "crashCollector: " << what << Qt::endl;
    std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe): there is no other thread yet
}

int number(const QCommandLineParser &parser, const QCommandLineOption &option, int smallest, int largest)
{
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if (!isNumber || value < smallest || value > largest) {
        refuse(u"--%1 takes a number from %2 to %3"_qs.arg(option.names().constFirst()).arg(smallest).arg(largest));
    }
    return value;
}

} // namespace

Options parseOptions()
{
    const QCommandLineOption host(
        u"host"_qs,
        u"Name or address to listen on. One that other machines reach opens the page and the reports to them."_qs,
        u"host"_qs, u"127.0.0.1"_qs);
    const QCommandLineOption port(u"port"_qs, u"Port to listen on; 0 takes any free one."_qs, u"number"_qs, u"0"_qs);
    const QCommandLineOption storage(u"storage"_qs, u"Folder for the reports and their index."_qs, u"folder"_qs,
                                     QStringLiteral(CRASH_COLLECTOR_STORAGE));
    const QCommandLineOption sizeLimit(
        u"size-limit"_qs, u"Size in MiB up to which archives are taken, %1 at most."_qs.arg(largestSizeLimit),
        u"MiB"_qs, QString::number(defaultSizeLimit));
    const QCommandLineOption keepRunning(u"keep-running"_qs, u"Go on when the standard input closes."_qs);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Collects crash reports over SOAP and lists them on a web page."_qs);
    parser.addHelpOption();
    parser.addOptions({host, port, storage, sizeLimit, keepRunning});
    parser.process(*QCoreApplication::instance());
    if (!parser.positionalArguments().isEmpty()) {
        refuse(u"unexpected argument \"%1\""_qs.arg(parser.positionalArguments().constFirst()));
    }
    if (parser.value(host).isEmpty() || parser.value(storage).isEmpty()) {
        refuse(u"--host and --storage can't be empty"_qs);
    }

    Options options;
    options.host = parser.value(host);
    options.port = number(parser, port, 0, largestPort);
    options.storageFolder = QDir(parser.value(storage)).absolutePath();
    options.archiveSizeLimit = number(parser, sizeLimit, 1, largestSizeLimit) * mebibyte;
    options.keepRunning = parser.isSet(keepRunning);
    return options;
}
