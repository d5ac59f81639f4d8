// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "actions/ActionCommands.h"

#include "utilsDll/actions/ActionManager.h"

#include <QtCore/QStringList>
#include <QtGui/QAction>

enum class Situation { Open, Closed, ClosedTwice, ClosedWithCommand, ClosedTwiceWithCommand, OpenWithCommand };
enum class Event { TriggerPlain, TriggerChecked, Block, UnBlock, Timer };

/*! A gate with one command of each kind, and one more plain one. */
struct Gate
{
    QStringList calls;
    ActionReceiver receiver{calls};
    ZYX_zglv6::CActionManager manager;
    Commands commands;
    QAction plain;
    QAction otherPlain;

    Gate()
    {
        commands.action.setCheckable(true);
        manager.addAction(&plain, &receiver, "run");
        manager.addAction(&otherPlain, &receiver, "runOther");
        for (const Kind kind : {Kind::Boolean, Kind::Row, Kind::Proxy}) {
            commands.registerIn(manager, kind, &receiver, "setOn");
        }
    }

    bool isArmed()
    {
        return isReplayArmed(manager);
    }

    void fireTimer()
    {
        fireReplayTimer(manager);
    }

    /*! Whether a plain command is carried out at once. Disturbs all else. */
    bool isOpen()
    {
        calls.clear();
        otherPlain.trigger();
        return calls == QStringList({u"runOther"_qs});
    }

    /*! What is remembered; carries it out. */
    QStringList takeRemembered()
    {
        calls.clear();
        manager.callLastAction();
        return calls;
    }

    void enter(Situation situation)
    {
        if (situation == Situation::Open) {
            return;
        }
        manager.blockActions();
        if (situation == Situation::Closed) {
            return;
        }
        const bool isTwice = situation == Situation::ClosedTwice || situation == Situation::ClosedTwiceWithCommand;
        if (isTwice) { // and one of three taken back: closed, with an armed timer
            manager.blockActions();
            manager.blockActions();
        }
        if (situation != Situation::ClosedTwice) {
            plain.trigger();
        }
        if (situation != Situation::ClosedWithCommand) {
            manager.unBlockActions();
        }
    }

    void take(Event event)
    {
        switch (event) {
        case Event::TriggerPlain:
            otherPlain.trigger();
            break;
        case Event::TriggerChecked:
            commands.action.trigger();
            break;
        case Event::Block:
            manager.blockActions();
            break;
        case Event::UnBlock:
            manager.unBlockActions();
            break;
        case Event::Timer:
            fireTimer();
            break;
        }
    }
};

Q_DECLARE_METATYPE(Situation)
Q_DECLARE_METATYPE(Event)
