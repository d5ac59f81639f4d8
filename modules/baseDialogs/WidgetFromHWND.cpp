// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/WidgetFromHWND.h"

#include "platform/ForeignWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

CWidgetFromHWND::CWidgetFromHWND(HWND parent)
{
    ZyxPlatform::makeChildWindow(winId(), reinterpret_cast<quint64>(parent));
    QEvent embedded(QEvent::EmbeddingControl);
    QCoreApplication::sendEvent(this, &embedded);
}

CWidgetFromHWND::~CWidgetFromHWND() = default;
