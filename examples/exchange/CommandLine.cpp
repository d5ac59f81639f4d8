// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "Output.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <cstdlib>

void nameProgram(const QString &name)
{
    QCoreApplication::setApplicationName(name);
    QCoreApplication::setApplicationVersion(QStringLiteral(EXCHANGE_VERSION));
}

QString parseCommandLine(QCommandLineParser &parser, const QString &file, const QString &description)
{
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(file, description);
    if (!parser.parse(QCoreApplication::arguments())) {
        refuseUsage(parser.errorText());
    }
    if (parser.isSet(help)) {
        parser.showHelp();
    }
    if (parser.isSet(version)) {
        parser.showVersion();
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1 || files.front().isEmpty()) {
        refuseUsage(u"takes one %1; --help says more"_qs.arg(file));
    }
    return files.front();
}

void refuseUsage(const QString &what)
{
    printError(what);
    std::exit(wrongUsage); // NOLINT(concurrency-mt-unsafe): there is no other thread yet
}
