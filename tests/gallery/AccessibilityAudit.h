// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

class QWidget;

/*!
    What keeps a person without a mouse or a screen from using what is shown in \a root, a line each: a control
    without a name, role or state that a screen reader could say, or one that the keyboard does not reach. What is not
    visible does not count.
*/
QStringList accessibilityFaults(QWidget &root);
