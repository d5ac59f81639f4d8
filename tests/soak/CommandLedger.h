// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

/*! One triggering of a command: which one, and for a checkable one the state that the user asked for. */
struct Command
{
    int id = 0;
    bool state = false;

    bool operator==(const Command &other) const = default;
};

/*!
    What the gate has to do, kept beside it: told of each block, each trigger and each call, it collects what does not
    fit. Counts all that the soak does, too.
*/
class CommandLedger
{
public:
    void count(const QString &operation);
    const QMap<QString, int> &counts() const;

    void addProblem(const QString &text);
    /*! The first one with what came before it. */
    const QStringList &problems() const;

    // In step with the gate.
    void block();
    void unBlock();
    void clearLock();
    int depth() const;

    /*! The user has triggered a command, and the gate does not know yet. */
    void triggered(const Command &command);
    /*! The gate has dealt with it. \a shown: the state of its control, nothing for a plain command. */
    void triggerDone(const Command &command, std::optional<bool> shown);
    /*! A command without a receiver was triggered: in a block it takes the place of what was remembered. */
    void triggeredInVain();
    /*! The control of the remembered command has gone. */
    void forgetRemembered();
    /*! The command's slot was called. */
    void carriedOut(const Command &command);

    /*! How often a command was triggered, in vain or not. */
    int triggerCount() const;

    std::optional<Command> remembered() const;

    /*! Runs \a call, in which the remembered command has to be carried out, block or no block. */
    void force(const std::function<void()> &call);

private:
    struct Trigger
    {
        Command command;
        bool isOpen;
        bool isCarriedOut;
    };

    QString describe(const Command &command) const;
    void note(const QString &text);

    QMap<QString, int> m_counts;
    QStringList m_problems;
    QStringList m_recent; // the newest events, the last one last
    int m_triggerCount = 0;
    int m_depth = 0;
    bool m_isForced = false;
    std::optional<Command> m_remembered;
    QList<Trigger> m_triggers; // those that the gate deals with just now, one inside the other
};
