// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/CloseButton.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace ZyxPlatform {

void enableCloseButton(quint64 window, bool enable)
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *candidate : windows) {
        if (candidate->handle() && candidate->winId() == window) {
            candidate->setFlag(Qt::WindowCloseButtonHint, enable);
        }
    }
}

} // namespace ZyxPlatform
