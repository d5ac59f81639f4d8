// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//! [program]
#include "loggerSupport/LoggerWrapper.h"
#include "storageLocation/storageLocation.h"
#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

using namespace ZYX_zglv6;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    CSettings::addPreferencesFileOption(parser);
    parser.process(application);

    CStorageLocation::initializeFromPreferencesFile(
        CSettings::getPreferencesFilePathFromCommandLine(parser, CStorageLocation::getDefaultPreferencesFilePath()));
    if (isLoggerEnabled()) {
        initLogger(u"smallestHost"_qs, LoggerTypeFile);
    }

    QLabel window(isFirstLaunch() ? u"Welcome"_qs : u"Welcome back"_qs);
    window.show();
    setNotFirstLaunch();
    return QApplication::exec();
}
//! [program]
