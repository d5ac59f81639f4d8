// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QStandardPaths>
#include <QtCore/QTextStream>

namespace {

/*! The program beside this one; empty if it is not there. */
QString ownCrashSender()
{
    return QStandardPaths::findExecutable(u"crashSender"_qs, {QCoreApplication::applicationDirPath()});
}

Crash readCrash(QCommandLineParser &parser, const QCommandLineOption &option)
{
    const Crash crash = crashFromName(parser.value(option));
    if (parser.isSet(option) && crash == Crash::None) {
        QTextStream(stderr) << R"(lightbox: a crash is a "signal", an "exception" or of "threads")" << Qt::endl;
        parser.showHelp(1);
    }
    return crash;
}

} // namespace

Options parseOptions()
{
    const QCommandLineOption temporarySettings(u"temporarySettings"_qs, u"Throw the settings of this run away."_qs);
    const QCommandLineOption consoleLog(u"console-log"_qs, u"Log to the standard output, not to a file."_qs);
    const QCommandLineOption snapshot(u"snapshot"_qs, u"Write a picture of the window."_qs, u"file.png"_qs);
    const QCommandLineOption service(u"service"_qs, u"Address of a service that describes photographs."_qs, u"url"_qs);
    const QCommandLineOption crash(
        u"crash"_qs, u"Die as soon as the first photograph is shown: signal, exception or threads."_qs, u"way"_qs);
    const QCommandLineOption crashSender(
        u"crash-sender"_qs, u"What to start when a dump waits; by default crashSender beside this program."_qs,
        u"program"_qs, ownCrashSender());
    const QCommandLineOption crashService(u"crash-service"_qs, u"Where that program sends crash reports."_qs,
                                          u"host:port"_qs);
    const QCommandLineOption tour(u"tour"_qs, u"Play a user, and print what comes of each command."_qs);
    const QCommandLineOption leave(u"leave"_qs, u"Leave as soon as the first photograph, or the tour, is shown."_qs);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows photographs, and how a host comes up on UtilsDllzglv6."_qs);
    parser.addHelpOption();
    addStartUpOptions(parser);
    parser.addOptions(
        {temporarySettings, consoleLog, service, snapshot, crash, crashSender, crashService, tour, leave});
    parser.addPositionalArgument(u"photos"_qs, u"A folder of photographs, or one of them."_qs, u"[photos]"_qs);
    parser.process(*QCoreApplication::instance());
    refuseSurplusArguments(parser, 1);

    Options options;
    static_cast<StartUpOptions &>(options) = readStartUpOptions(parser);
    options.photos = parser.positionalArguments().value(0, QStringLiteral(LIGHTBOX_SAMPLES));
    options.service = QUrl::fromUserInput(parser.value(service));
    options.snapshot = parser.value(snapshot);
    options.crash = readCrash(parser, crash);
    options.crashSender = parser.value(crashSender);
    options.crashService = parser.value(crashService);
    options.temporarySettings = parser.isSet(temporarySettings);
    options.consoleLog = parser.isSet(consoleLog);
    options.tour = parser.isSet(tour);
    options.leave = parser.isSet(leave);
    return options;
}
