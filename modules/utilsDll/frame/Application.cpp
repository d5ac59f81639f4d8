// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/Application.h"

#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QWidget>

namespace {

quint64 getMainWindowHWnd()
{
    auto *application = dynamic_cast<ZYX_zglv6::IApplication *>(QCoreApplication::instance());
    if (application == nullptr) {
        ZYX_LOG('E', "Current qApp is not a pointer to IApplication, return HWND_DESKTOP");
        return 0;
    }
    const QWidget *window = application->mainWindow();
    if (window == nullptr) {
        ZYX_LOG('E', "MainWindow in application is nullptr, return HWND_DESKTOP");
        return 0;
    }
    return window->winId();
}

} // namespace

namespace ZYX_zglv6 {

IApplication::~IApplication() = default;

void IApplication::hostOperation2()
{
}

void IApplication::hostOperation3()
{
}

void IApplication::hostOperation4()
{
}

quint64 mainWindowHandle()
{
    return getMainWindowHWnd();
}

} // namespace ZYX_zglv6
