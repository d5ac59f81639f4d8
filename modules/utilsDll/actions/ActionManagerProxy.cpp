// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/actions/ActionManagerProxy.h"

#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/frame/Assertions.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>

namespace ZYX_zglv6 {

CBoolActionAbstractProxy::CBoolActionAbstractProxy(QObject *action)
    : QObject(action)
{
    ASSERT(action != nullptr);
}

CBoolActionAbstractProxy::~CBoolActionAbstractProxy() = default;

CBoolActionProxy::CBoolActionProxy(QAction *action)
    : CBoolActionAbstractProxy(action)
    , m_action(action)
{
    ASSERT(action != nullptr);
    ASSERT(action == nullptr || action->isCheckable());
    connect(action, &QAction::triggered, this, &CBoolActionProxy::triggered);
}

CBoolActionProxy::~CBoolActionProxy() = default;

void CBoolActionProxy::setChecked(bool checked)
{
    if (m_action != nullptr) {
        const QSignalBlocker blocker(m_action);
        m_action->setChecked(checked);
    }
}

bool CBoolActionProxy::isChecked() const
{
    ASSERT_X_RETURN_VALUE(m_action != nullptr, false, "Action was removed!!!");
    return m_action->isChecked();
}

CSettingsPushButtonActionProxy::CSettingsPushButtonActionProxy(CSettingsPushButton *button)
    : CBoolActionAbstractProxy(button)
    , m_button(button)
{
    ASSERT(button != nullptr);
    ASSERT(button == nullptr || button->isButtonCheckable());
    connect(button, &CSettingsPushButton::clicked, this, &CSettingsPushButtonActionProxy::triggered);
}

CSettingsPushButtonActionProxy::~CSettingsPushButtonActionProxy() = default;

void CSettingsPushButtonActionProxy::setChecked(bool checked)
{
    if (m_button != nullptr) {
        // Of the row alone: its inner button still reacts to the change, and nothing gets out.
        const QSignalBlocker blocker(m_button);
        m_button->checkButton(checked);
    }
}

bool CSettingsPushButtonActionProxy::isChecked() const
{
    ASSERT_X_RETURN_VALUE(m_button != nullptr, false, "Action was removed!!!");
    return m_button->isButtonChecked();
}

CConnectionHelper::CConnectionHelper(CBoolActionAbstractProxy *action, QObject *parent)
    : QObject(parent)
    , m_action(action)
{
    connect(action, &CBoolActionAbstractProxy::triggered, this, &CConnectionHelper::onAction);
}

CConnectionHelper::~CConnectionHelper() = default;

void CConnectionHelper::onAction(bool checked)
{
    Q_EMIT actionTriggered(m_action, checked);
}

} // namespace ZYX_zglv6
