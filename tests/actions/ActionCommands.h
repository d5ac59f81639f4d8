// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/DelayedCall.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtGui/QAction>

#include <functional>

/*! Appends each call of its slots to a list that outlives it, as "run" or "setOn true". */
class ActionReceiver : public QObject
{
    Q_OBJECT

public:
    explicit ActionReceiver(QStringList &calls)
        : m_calls(calls)
    {
    }

    std::function<void()> duringCall; // may be empty

public Q_SLOTS:
    void run()
    {
        note(u"run"_qs);
    }

    void runOther()
    {
        note(u"runOther"_qs);
    }

    void setOn(bool on)
    {
        note(on ? u"setOn true"_qs : u"setOn false"_qs);
    }

    void setOtherOn(bool on)
    {
        note(on ? u"setOtherOn true"_qs : u"setOtherOn false"_qs);
    }

private:
    void note(const QString &call)
    {
        m_calls.append(call);
        if (duringCall) {
            duringCall();
        }
    }

    QStringList &m_calls;
};

/*! A checkable command without a control. */
class PlainBoolProxy : public ZYX_zglv6::CBoolActionAbstractProxy
{
public:
    using CBoolActionAbstractProxy::CBoolActionAbstractProxy;

    void setChecked(bool checked) override
    {
        m_isChecked = checked;
    }

    bool isChecked() const override
    {
        return m_isChecked;
    }

    /*! What the user does. */
    void flip()
    {
        m_isChecked = !m_isChecked;
        Q_EMIT triggered(m_isChecked);
    }

private:
    bool m_isChecked = false;
};

enum class Kind { Plain, Boolean, Row, Proxy };
Q_DECLARE_METATYPE(Kind)

/*! The slot of ActionReceiver that takes such a command. */
inline const char *slotFor(Kind kind)
{
    return kind == Kind::Plain ? "run" : "setOn";
}

/*! A command of each kind, made for one registration. */
struct Commands
{
    QAction action;
    ZYX_zglv6::CSettingsPushButton row;
    PlainBoolProxy *proxy = new PlainBoolProxy(&action); // owned by the action

    Commands()
    {
        row.setButtonCheckable(true);
    }

    void registerIn(ZYX_zglv6::CActionManager &manager, Kind kind, QObject *receiver, const char *slot,
                    bool exists = true)
    {
        switch (kind) {
        case Kind::Plain:
            manager.addAction(exists ? &action : nullptr, receiver, slot);
            break;
        case Kind::Boolean:
            manager.addBooleanAction(exists ? &action : nullptr, receiver, slot);
            break;
        case Kind::Row:
            manager.addSettingsPushButtonAction(exists ? &row : nullptr, receiver, slot);
            break;
        case Kind::Proxy:
            manager.addBoolActionAbstractProxy(exists ? proxy : nullptr, receiver, slot);
            break;
        }
    }

    bool isChecked(Kind kind) const
    {
        return kind == Kind::Row  ? row.isButtonChecked()
            : kind == Kind::Proxy ? proxy->isChecked()
                                  : action.isChecked();
    }

    /*! What the program does. */
    void setChecked(Kind kind, bool checked)
    {
        if (kind == Kind::Row) {
            row.checkButton(checked);
        } else if (kind == Kind::Proxy) {
            proxy->setChecked(checked);
        } else {
            action.setChecked(checked);
        }
    }

    /*! What the user does. */
    void trigger(Kind kind)
    {
        if (kind == Kind::Row) {
            row.clickButton();
        } else if (kind == Kind::Proxy) {
            proxy->flip();
        } else {
            action.trigger();
        }
    }
};

/*! Lets the replay timer of \a manager run out now. An armed one stays armed. */
inline void fireReplayTimer(ZYX_zglv6::CActionManager &manager)
{
    QMetaObject::invokeMethod(&manager, "onTimer");
}

inline bool isReplayArmed(ZYX_zglv6::CActionManager &manager)
{
    return Singleton<ZYX_zglv6::CDelayedCall>::instance().isActive(&manager, "onTimer");
}
