// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Options.h"

#include "utilsDll/settings/Settings.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QTextStream>

using namespace ZYX_zglv6;

Options parseOptions()
{
    const QCommandLineOption temporarySettings(u"temporarySettings"_qs, u"Throw the settings of this run away."_qs);
    const QCommandLineOption consoleLog(u"console-log"_qs, u"Log to the standard output, not to a file."_qs);
    const QCommandLineOption data(u"data"_qs, u"Folder for everything that this host keeps."_qs, u"folder"_qs,
                                  QStringLiteral(LIGHTBOX_WORK_FOLDER));
    const QCommandLineOption snapshot(u"snapshot"_qs, u"Write a picture of the window."_qs, u"file.png"_qs);
    const QCommandLineOption service(u"service"_qs, u"Address of a service that describes photographs."_qs, u"url"_qs);
    const QCommandLineOption tour(u"tour"_qs, u"Play a user, and print what comes of each command."_qs);
    const QCommandLineOption leave(u"leave"_qs, u"Leave as soon as the first photograph, or the tour, is shown."_qs);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows photographs, and how a host comes up on UtilsDllzglv6."_qs);
    parser.addHelpOption();
    CSettings::addPreferencesFileOption(parser);
    parser.addOptions({temporarySettings, consoleLog, data, service, snapshot, tour, leave});
    parser.addPositionalArgument(u"photos"_qs, u"A folder of photographs, or one of them."_qs, u"[photos]"_qs);
    parser.process(*QCoreApplication::instance());

    Options options;
    options.workFolder = QDir(parser.value(data)).absolutePath();
    // A shipping host takes CStorageLocation::getDefaultPreferencesFilePath(); an example stays out of the user's
    // folders.
    options.preferencesFile = CSettings::getPreferencesFilePathFromCommandLine(
        parser, QDir(options.workFolder).absoluteFilePath(u"Preferences.ini"_qs));
    if (options.preferencesFile.isEmpty()) {
        QTextStream(stderr) << "lightbox: the preferences file has no name" << Qt::endl;
        parser.showHelp(1);
    }
    options.photos = parser.positionalArguments().value(0, QStringLiteral(LIGHTBOX_SAMPLES));
    options.service = QUrl::fromUserInput(parser.value(service));
    options.snapshot = parser.value(snapshot);
    options.temporarySettings = parser.isSet(temporarySettings);
    options.consoleLog = parser.isSet(consoleLog);
    options.tour = parser.isSet(tour);
    options.leave = parser.isSet(leave);
    return options;
}
