// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "loggerSupport/LoggerWrapper.h"
#include "storageLocation/storageLocation.h"
#include "support/Sandbox.h"
#include "utilsDll/frame/Application.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/ProcessInfo.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <iostream>

namespace {

using namespace ZYX_zglv6;

class HostApplication : public QApplication, public IApplication
{
public:
    using QApplication::QApplication;

    QWidget *mainWindow() override
    {
        return window;
    }

    QWidget *window = nullptr;
};

/*! True if the library finds the interface in an application that somebody else compiled. */
bool isMainWindowFound(HostApplication &application)
{
    QWidget window;
    application.window = &window;
    const quint64 handle = mainWindowHandle();
    application.window = nullptr;
    return handle != 0 && handle == quint64(window.internalWinId());
}

void printOwnVersion()
{
    const UtilsDll::BinaryVersion version = UtilsDll::binaryFileVersionByProcessName(UtilsDll::currentProcessName());
    std::cout << "version " << version.major << '.' << version.minor << '.' << version.build << '.' << version.revision
              << std::endl;
}

void writeSetting()
{
    const auto *notificator = qobject_cast<SettingsChangeNotificator *>(CSettings::getNotificator());
    QObject::connect(notificator, &SettingsChangeNotificator::settingsValueChanged, notificator,
                     [](const QString &key) { std::cout << "told of " << qPrintable(key) << std::endl; });
    CSettings().setValue(QStringLiteral("someKey"), 1);
}

void initializeStorage(const TestSupport::Sandbox &sandbox)
{
    const QString preferences = sandbox.filePath(QStringLiteral("Preferences.ini"));
    QSettings(preferences, QSettings::IniFormat).setValue(dataDirectoryKey, sandbox.filePath(QStringLiteral("data")));
    CStorageLocation::initializeFromPreferencesFile(preferences);
}

bool isLogFileWritten()
{
    initLogger(QStringLiteral("foreignHost"), LoggerTypeFile);
    ZYX_LOG('I', "A line of the host's own");
    QFile file(CStorageLocation::loggerFilesPath() + QStringLiteral("foreignHost.txt"));
    return file.open(QIODevice::ReadOnly) && file.readAll().contains("isLogFileWritten: A line of the host's own");
}

} // namespace

int main(int argc, char *argv[])
{
    const TestSupport::Sandbox sandbox;
    qputenv("QT_QPA_PLATFORM", "offscreen"); // no window is shown
    HostApplication application(argc, argv);
    if (!isMainWindowFound(application)) {
        std::cout << "main window not found" << std::endl;
        return 1;
    }
    printOwnVersion();
    writeSetting();
    initializeStorage(sandbox);
    if (!isLogFileWritten()) {
        std::cout << "log file not written" << std::endl;
        return 1;
    }
    std::cout << "log file written" << std::endl;
    return 0;
}
