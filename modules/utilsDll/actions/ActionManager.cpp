// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/actions/ActionManager.h"

#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/frame/Assertions.h"

#include <QtCore/QSignalMapper>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <algorithm>

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION Singleton<ZYX_zglv6::CActionManager>;

namespace ZYX_zglv6 {

namespace {

constexpr int replayDelayMs = 1000;
constexpr const char *replayMethod = "onTimer";

/*! Lets the shortcut of an action in a menu work wherever the focus is. */
void widenShortcut(QAction *action)
{
    if (action == nullptr) {
        return;
    }
    const QList<QObject *> objects = action->associatedObjects();
    if (std::any_of(objects.begin(), objects.end(), [](QObject *object) { return qobject_cast<QMenu *>(object); })) {
        action->setShortcutContext(Qt::ApplicationShortcut);
    }
}

} // namespace

CActionManager::CActionManager(QObject *parent)
    : QObject(parent)
    , m_signalMapper(new QSignalMapper(this))
{
    connect(m_signalMapper, &QSignalMapper::mappedObject, this, &CActionManager::onAction);
}

CActionManager::~CActionManager() = default;

void CActionManager::addAction(QAction *action, QObject *receiver, const char *slot)
{
    ASSERT(action != nullptr);
    ASSERT(receiver != nullptr);
    ASSERT(slot != nullptr);
    ASSERT(action == nullptr || !isRegistered(m_actions, action));
    connect(action, &QAction::triggered, m_signalMapper, qOverload<>(&QSignalMapper::map));
    widenShortcut(action);
    m_signalMapper->setMapping(action, action);
    m_actions[action] = {receiver, slot, false, action};
}

void CActionManager::addBooleanAction(QAction *action, QObject *receiver, const char *slot)
{
    ASSERT(action != nullptr);
    ASSERT(receiver != nullptr);
    ASSERT(slot != nullptr);
    ASSERT(action == nullptr || !m_booleanActions.contains(action));
    m_booleanActions.append(action);
    widenShortcut(action);
    addProxy(new CBoolActionProxy(action), receiver, slot);
}

void CActionManager::addSettingsPushButtonAction(CSettingsPushButton *button, QObject *receiver, const char *slot)
{
    ASSERT(button != nullptr);
    ASSERT(receiver != nullptr);
    ASSERT(slot != nullptr);
    ASSERT(button == nullptr || !m_settingsButtons.contains(button));
    m_settingsButtons.append(button);
    addProxy(new CSettingsPushButtonActionProxy(button), receiver, slot);
}

void CActionManager::addProxy(CBoolActionAbstractProxy *proxy, QObject *receiver, const char *slot)
{
    if (proxy->parent() == nullptr) {
        proxy->setParent(this); // its control is null, and so nobody else owns it
    }
    addBoolActionAbstractProxy(proxy, receiver, slot);
}

void CActionManager::addBoolActionAbstractProxy(CBoolActionAbstractProxy *proxy, QObject *receiver, const char *slot)
{
    ASSERT(proxy != nullptr);
    ASSERT(receiver != nullptr);
    ASSERT(slot != nullptr);
    ASSERT(proxy == nullptr || !isRegistered(m_boolActions, proxy));
    auto *helper = new CConnectionHelper(proxy, this);
    connect(helper, &CConnectionHelper::actionTriggered, this, &CActionManager::onBoolAction);
    // Before the first snapshot only a block needs a state to flip back to: that of now.
    const bool state = m_blockCount > 0 && proxy != nullptr && proxy->isChecked();
    m_boolActions[proxy] = {receiver, slot, state, proxy};
}

void CActionManager::blockActions()
{
    ++m_blockCount;
    saveBoolActionState();
    Singleton<CDelayedCall>::instance().discard(this, replayMethod);
}

void CActionManager::unBlockActions()
{
    m_blockCount = std::max(m_blockCount - 1, 0);
    // Also while other blocks remain: the newest call decides when the command comes.
    Singleton<CDelayedCall>::instance().invoke(replayDelayMs, this, replayMethod, true);
}

void CActionManager::blockActionForSomeTime()
{
    blockActions();
    unBlockActions();
}

void CActionManager::saveBoolActionState()
{
    for (ActionRecord &record : m_boolActions) {
        const auto *proxy = qobject_cast<CBoolActionAbstractProxy *>(record.command);
        ASSERT_X_RETURN_BUT_GO_ON(proxy != nullptr, "Action was deleted!!!");
        if (proxy != nullptr) {
            record.savedState = proxy->isChecked();
        }
    }
}

void CActionManager::onAction(QObject *action)
{
    auto *command = qobject_cast<QAction *>(action);
    ASSERT(action != nullptr);
    ASSERT(action == nullptr || command != nullptr);
    ASSERT(command == nullptr || isRegistered(m_actions, command));
    if (m_blockCount != 0) {
        rememberAction(command);
        return;
    }
    const ActionRecord record = recordOf(m_actions, command); // now: the action may go with its menu
    blockActionForSomeTime();
    hideActivePopupMenu();
    QMetaObject::invokeMethod(record.receiver, record.slot); // keep last: the slot may do anything
}

void CActionManager::onBoolAction(CBoolActionAbstractProxy *action, bool toggled)
{
    ASSERT(action != nullptr);
    ASSERT(action == nullptr || isRegistered(m_boolActions, action));
    if (m_blockCount != 0) {
        m_lastBoolAction = action;
        m_lastBoolState = toggled;
        m_lastAction.reset();
        if (action != nullptr) {
            action->setChecked(recordOf(m_boolActions, action).savedState);
        }
        return;
    }
    const ActionRecord record = recordOf(m_boolActions, action); // now: the control may go with its menu
    blockActionForSomeTime();
    hideActivePopupMenu();
    QMetaObject::invokeMethod(record.receiver, record.slot, Q_ARG(bool, toggled)); // keep last
}

void CActionManager::onTimer()
{
    if (m_blockCount == 0) {
        callLastAction();
    }
}

void CActionManager::callLastAction()
{
    if (m_lastAction != nullptr) {
        callLastPlainAction();
    } else if (m_lastBoolAction != nullptr) {
        callLastBoolAction();
    }
}

void CActionManager::callLastPlainAction()
{
    ActionRecord record = *m_lastAction;
    if (QObject *action = record.command) {
        ASSERT(isRegistered(m_actions, action));
        record = recordOf(m_actions, action);
    }
    blockActionForSomeTime();
    forgetLastAction();
    hideActivePopupMenu();
    QMetaObject::invokeMethod(record.receiver, record.slot); // keep last
}

void CActionManager::callLastBoolAction()
{
    const QPointer<CBoolActionAbstractProxy> proxy = m_lastBoolAction;
    ASSERT(isRegistered(m_boolActions, proxy));
    const ActionRecord record = recordOf(m_boolActions, proxy);
    blockActionForSomeTime();
    const bool state = m_lastBoolState;
    forgetLastAction();
    if (proxy != nullptr) {
        proxy->setChecked(state); // back to where the user put it
    }
    hideActivePopupMenu();
    QMetaObject::invokeMethod(record.receiver, record.slot, Q_ARG(bool, state)); // keep last
}

void CActionManager::rememberAction(QAction *action)
{
    forgetLastAction();
    if (action != nullptr) {
        const bool isKnown = isRegistered(m_actions, action);
        m_lastAction = std::make_unique<ActionRecord>(isKnown ? m_actions.value(action)
                                                              : ActionRecord{nullptr, nullptr, false, action});
    }
}

void CActionManager::forgetLastAction()
{
    m_lastAction.reset();
    m_lastBoolAction = nullptr;
}

void CActionManager::clear()
{
    clearLock();
    m_actions.clear();
    m_boolActions.clear();
    m_booleanActions.clear();
    m_settingsButtons.clear();
}

void CActionManager::clearLock()
{
    m_blockCount = 0;
    forgetLastAction();
}

void CActionManager::hideActivePopupMenu()
{
    if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
        menu->hide();
    }
}

bool CActionManager::isRegistered(const Records &records, const QObject *command)
{
    const auto found = records.constFind(command);
    return found != records.constEnd() && found->command == command;
}

CActionManager::ActionRecord &CActionManager::recordOf(Records &records, QObject *command)
{
    ActionRecord &record = records[command];
    if (record.command != command) { // there was none, or that of a command which has died at this address
        record = {nullptr, nullptr, false, command};
    }
    return record;
}

} // namespace ZYX_zglv6
