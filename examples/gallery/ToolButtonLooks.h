// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "uiControls/RetinaToolButton.h"

#include <QtCore/QEvent>
#include <QtGui/QAction>

inline CRetinaToolButton *newArrowButton(QWidget *parent)
{
    return new CRetinaToolButton(u":/icons/arrows/left-icon-default.svg"_qs, u":/icons/arrows/left-icon-hover.svg"_qs,
                                 u":/icons/arrows/left-icon-onpressed.svg"_qs, parent);
}

/*! As if the mouse were over it. */
inline void hover(CRetinaToolButton &button)
{
    QEvent enter(QEvent::Enter);
    button.enterEvent(&enter);
}

inline void disableAction(CRetinaToolButton &button)
{
    auto *action = new QAction(&button);
    action->setEnabled(false);
    button.setDefaultAction(action);
    button.forcePress(true); // which then is not seen
}
