// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QString>

#include <memory>

class QCommandLineParser;

/*! What the command line says of the road on which a host comes up. */
struct StartUpOptions
{
    QString workFolder; // for preferences, settings, logs and data
    QString preferencesFile;
    QString language; // abbreviation of the one to speak from this start on; empty for the stored one
    bool temporarySettings = false;
    bool consoleLog = false;
};

/*! Adds the options "--data", for the work folder, and "--language", and the library's one for the preferences file. */
void addStartUpOptions(QCommandLineParser &parser);

/*! Reads the three from a \a parser that has parsed. Ends the process if the preferences file has no name. */
StartUpOptions readStartUpOptions(QCommandLineParser &parser);

/*! Ends the process if a \a parser that has parsed has more than \a most arguments that belong to no option. */
void refuseSurplusArguments(QCommandLineParser &parser, qsizetype most);

/*!
    The road on which a host comes up, a function for each step, in the order that binds. Each prints one line with what
    the library answered.
*/
class CStartUp
{
public:
    /*! \a logName is the log file's name without its ending. */
    CStartUp(const StartUpOptions &options, QString logName);

    void reportModule() const;
    void choosePreferencesFile() const;
    void initializeStorage() const;
    void chooseSettings();
    void startLog() const;

    /*! All of them. */
    void goTheWholeWay();

private:
    StartUpOptions m_options;
    QString m_logName;
    std::unique_ptr<ZYX_zglv6::CTemporarySettings> m_temporarySettings; // settings go back to the system store with it
};
