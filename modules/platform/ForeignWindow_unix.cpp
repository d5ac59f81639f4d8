// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ForeignWindow.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace ZyxPlatform {

void makeChildWindow(quint64 window, quint64 parent)
{
    QWindow *const foreign = QWindow::fromWinId(parent);
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *candidate : windows) {
        if (foreign && candidate->handle() && candidate->winId() == window) {
            candidate->setParent(foreign);
        }
    }
}

} // namespace ZyxPlatform
