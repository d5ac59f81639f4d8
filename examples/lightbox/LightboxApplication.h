// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Application.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/*! The host's application object. The library finds the main window through it. */
class CLightboxApplication final : public QApplication, public ZYX_zglv6::IApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    void setMainWindow(QWidget *window);
    QWidget *mainWindow() override;

private:
    QPointer<QWidget> m_mainWindow;
};
