// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoBar.h"

#include "uiControls/RetinaToolButton.h"

#include <QtCore/QEvent>
#include <QtGui/QAction>
#include <QtWidgets/QHBoxLayout>

namespace {

constexpr QSize buttonSize(32, 32);
constexpr QSize imageSize(24, 24);
constexpr int gap = 24;

} // namespace

CPhotoBar::CPhotoBar(QWidget *parent)
    : QWidget(parent)
    , m_buttons(new QHBoxLayout)
{
    setObjectName(u"buttonStrip"_qs); // the sheets know it by this name
    setAttribute(Qt::WA_StyledBackground);
    auto *layout = new QHBoxLayout(this);
    layout->addStretch();
    layout->addLayout(m_buttons);
    layout->addStretch();
}

void CPhotoBar::addCommand(QAction *action, const QString &image)
{
    auto *button
        = new CRetinaToolButton(image.arg(u"default"_qs), image.arg(u"hover"_qs), image.arg(u"onpressed"_qs), this);
    button->setDefaultAction(action);
    button->setIconSize(imageSize);
    button->setFixedSize(buttonSize);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the arrow keys to the photograph
    button->installEventFilter(this);
    m_buttons->addWidget(button);
}

void CPhotoBar::addGap()
{
    m_buttons->addSpacing(gap);
}

bool CPhotoBar::eventFilter(QObject *object, QEvent *event)
{
    auto *button = qobject_cast<CRetinaToolButton *>(object);
    if (button && event->type() == QEvent::Enter) {
        button->enterEvent(event);
    }
    return QWidget::eventFilter(object, event);
}
