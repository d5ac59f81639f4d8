// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/actions/ActionManagerProxy.h"
#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/Singleton.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

class QAction;
class QSignalMapper;

namespace ZYX_zglv6 {

class CActionManager;
class CSettingsPushButton;

} // namespace ZYX_zglv6

extern template class UTILSDLL_EXPORT_TEMPLATE Singleton<ZYX_zglv6::CActionManager>;

namespace ZYX_zglv6 {

/*!
    The gate through which all commands of the user pass; one for the process, Singleton<CActionManager>::instance().

    A registered command calls a slot of its receiver by name. While the program is busy, between blockActions() and
    unBlockActions(), the latest command is only remembered, and carried out when the gate has been open and unused for
    1000 ms. A checkable control that the user flips meanwhile is flipped back at once, and shows its new state when the
    command is carried out.

    Slot names are plain, "save", and of static lifetime. Nothing that is registered is owned; registrations are not
    taken back one by one. The slot of a receiver that has gone is not called. Wrong arguments are reported as failed
    assertions, and the function goes on. Main thread only.
*/
class UTILSDLL_EXPORT CActionManager : public QObject, public Singleton<CActionManager>
{
    Q_OBJECT

public:
    explicit CActionManager(QObject *parent = nullptr);
    ~CActionManager() override;

    /*!
        Registers a plain command, whose slot has no arguments. An action that is in a menu by now gets its shortcut for
        the whole application.
    */
    void addAction(QAction *action, QObject *receiver, const char *slot);

    // Register checkable commands. Their slots take the new state, one bool.

    /*! Of an action that is in a menu by now the shortcut works in the whole application. */
    void addBooleanAction(QAction *action, QObject *receiver, const char *slot);
    void addSettingsPushButtonAction(CSettingsPushButton *button, QObject *receiver, const char *slot);
    void addBoolActionAbstractProxy(CBoolActionAbstractProxy *proxy, QObject *receiver, const char *slot);

    /*!
        Puts a remembered command off until 1000 ms from now, and notes the states of all checkable controls. It neither
        blocks nor unblocks: through an open gate a command that comes within that time is carried out.
    */
    void blockActionForSomeTime();

    /*! Carries out the remembered command now, even through a block. */
    void callLastAction();

    /*! Notes the states of all checkable controls: to these they are flipped back during a block. */
    void saveBoolActionState();

    /*!
        Forgets all registrations, blocks and the remembered command. Disconnects nothing: what was registered still
        comes, and is reported as unknown the first time. Do not register the same control again: it then comes twice.
    */
    void clear();

    /*! Ends all blocks and forgets the remembered command. */
    void clearLock();

    void hideActivePopupMenu();

public Q_SLOTS:
    /*! Blocks nest; each needs its unBlockActions(). */
    void blockActions();
    void unBlockActions();

private Q_SLOTS:
    void onAction(QObject *action);
    void onBoolAction(CBoolActionAbstractProxy *action, bool toggled);
    void onTimer();

private:
    struct ActionRecord
    {
        QPointer<QObject> receiver;
        const char *slot = nullptr;
        bool savedState = false;
        QPointer<QObject> command; // the action or the proxy itself, null when it has gone
    };

    // By address. A guarded pointer as the key would turn null with its object and break the order of the map.
    using Records = QMap<const QObject *, ActionRecord>;

    static bool isRegistered(const Records &records, const QObject *command);
    /*! Of a command that was not registered an empty record, which stays, so that it is known from then on. */
    static ActionRecord &recordOf(Records &records, QObject *command);

    void addProxy(CBoolActionAbstractProxy *proxy, QObject *receiver, const char *slot);
    void callLastPlainAction();
    void callLastBoolAction();
    void rememberAction(QAction *action);
    void forgetLastAction();

    QSignalMapper *m_signalMapper;
    Records m_actions;
    Records m_boolActions; // by their proxies
    QList<QPointer<QAction>> m_booleanActions; // only to find what is registered twice
    QList<QPointer<CSettingsPushButton>> m_settingsButtons; // only to find what is registered twice
    int m_blockCount = 0;
    std::unique_ptr<ActionRecord> m_lastAction; // a copy: the command outlives its action
    QPointer<CBoolActionAbstractProxy> m_lastBoolAction;
    bool m_lastBoolState = false;
};

} // namespace ZYX_zglv6
