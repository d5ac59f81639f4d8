// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/look/SharedUtils.h"

#include "platform/ModulePath.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/look/LanguageManager.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

namespace ZYX_zglv6 {

namespace {

constexpr QLatin1StringView sheetPath(":/qss/%1.qss");
constexpr QLatin1StringView iconPath(":/icons/app_icon/logo_%1.png");
constexpr QLatin1StringView connectorModule("PhotoshopPlugin-connectorzglv6");

// Later rules of the same weight win: the order is part of the look.
constexpr const char *applicationSheets[]
    = {"win", "menu", "toolBar", "previewArea", "sideBar", "combobox", "slider", "tools", "dialogs", "timeMachine"};
constexpr const char *fontFiles[] = {
    "Roboto-Light.ttf",      "Roboto-Medium.ttf",    "Roboto-Regular.ttf", "Roboto-Bold.ttf",
    "MavenProLight-200.otf", "MavenPro-Regular.ttf", "OpenSans-Light.ttf",
    "MavenPro-Regular.ttf", // registered a second time, as the embedded tree lists it twice
};
constexpr int iconEdges[] = {16, 32, 48, 64, 128, 256, 512, 1024};

bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application != nullptr && application->thread() == QThread::currentThread();
}

QString contentOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isReadable() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll());
}

QString sheet(const QString &name)
{
    return contentOf(QString(sheetPath).arg(name));
}

QString sheetsOf(const QFlags<QssLoadOption> &options)
{
    QString text = sheet(u"custom"_qs);
    if (options.testFlag(QssLoadBaseSheets)) {
        for (const char *name : applicationSheets) {
            text += sheet(QString::fromLatin1(name));
        }
        text += sheet(u"extra-"_qs + CLanguageManager::getInstance().currentLanguageAbbrv());
        if (!options.testFlag(QssSkipAdditionalSheet)) {
            text += sheet(u"essintial"_qs);
        }
    }
    if (options.testFlag(QssLoadCrashSender)) {
        text += sheet(u"crash_sender"_qs);
    }
    if (options.testFlag(QssLoadPrinting)) {
        text += sheet(u"printing"_qs);
    }
    return text;
}

QString parentOfConnectorsFolder()
{
    const QString path = ZyxPlatform::pathOfModuleOrProgram(connectorModule);
    if (path.isEmpty()) {
        return {};
    }
    const QString parent = QFileInfo(path).canonicalPath() + QDir::separator() + u"..";
    return QDir::toNativeSeparators(QDir::cleanPath(parent)) + QDir::separator();
}

} // namespace

void setCustomStyleSheet(QWidget *widget, const QFlags<QssLoadOption> &options, const QString &extraQssFile)
{
    ASSERT(isMainThread());
    if (widget == nullptr) {
        return;
    }
    QString text = sheetsOf(options);
    if (!extraQssFile.isEmpty()) {
        text += contentOf(extraQssFile);
    }
    // The kept sheet does not count: a widget is not given its own sheet anew.
    ASSERT_X_RETURN(!text.isEmpty(), "setup of QSS: wrong input parameters");
    if (options.testFlag(QssKeepWidgetSheet)) {
        text += widget->styleSheet();
    }
    widget->setStyleSheet(text);
}

void addApplicationFonts()
{
    for (const char *fileName : fontFiles) {
        QFontDatabase::addApplicationFont(u":/fonts/"_qs + QString::fromLatin1(fileName)); // a missing one is not used
    }
}

QIcon zyxAppIcon()
{
    QIcon icon;
    for (const int edge : iconEdges) {
        icon.addFile(QString(iconPath).arg(edge), QSize(-1, -1), QIcon::Normal, QIcon::Off); // the file tells its size
    }
    return icon;
}

bool setupApplicationIcon()
{
    ASSERT_X_RETURN_VALUE(QCoreApplication::instance() != nullptr, false, "no application to set the icon on");
    const QIcon icon = zyxAppIcon();
    if (icon.isNull()) {
        return false;
    }
    QGuiApplication::setWindowIcon(icon);
    return true;
}

QString getQtPluginsDir(bool inHostPlugin)
{
    static QString folder;
    if (!folder.isEmpty()) {
        return folder; // of the first call: a process is either a program or a host, and does not change
    }
    // Only the host's form ends in a separator and has the system's ones.
    folder = inHostPlugin ? parentOfConnectorsFolder() : QCoreApplication::applicationDirPath();
    return folder;
}

} // namespace ZYX_zglv6
