// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LightboxApplication.h"

void CLightboxApplication::setMainWindow(QWidget *window)
{
    m_mainWindow = window;
}

QWidget *CLightboxApplication::mainWindow()
{
    return m_mainWindow;
}
