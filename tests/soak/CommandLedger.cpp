// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/CommandLedger.h"

#include <algorithm>

void CommandLedger::count(const QString &operation)
{
    ++m_counts[operation];
}

const QMap<QString, int> &CommandLedger::counts() const
{
    return m_counts;
}

void CommandLedger::addProblem(const QString &text)
{
    constexpr qsizetype mostKept = 50; // one mistake shows up over and over
    if (m_problems.isEmpty()) {
        m_problems.append(text + u"\n    after: "_qs + m_recent.join(u"\n    after: "_qs));
    } else if (m_problems.size() < mostKept) {
        m_problems.append(text);
    }
}

void CommandLedger::note(const QString &text)
{
    constexpr qsizetype mostNoted = 30;
    m_recent.append(text);
    if (m_recent.size() > mostNoted) {
        m_recent.removeFirst();
    }
}

const QStringList &CommandLedger::problems() const
{
    return m_problems;
}

void CommandLedger::block()
{
    note(u"block"_qs);
    ++m_depth;
}

void CommandLedger::unBlock()
{
    note(u"unblock"_qs);
    m_depth = std::max(m_depth - 1, 0);
}

void CommandLedger::clearLock()
{
    note(u"cleared lock"_qs);
    m_depth = 0;
    m_remembered.reset();
}

int CommandLedger::depth() const
{
    return m_depth;
}

std::optional<Command> CommandLedger::remembered() const
{
    return m_remembered;
}

int CommandLedger::triggerCount() const
{
    return m_triggerCount;
}

void CommandLedger::triggeredInVain()
{
    ++m_triggerCount;
    note(u"trigger in vain"_qs);
    if (m_depth > 0) {
        forgetRemembered();
    }
}

void CommandLedger::forgetRemembered()
{
    note(u"remembered command forgotten"_qs);
    m_remembered.reset();
}

void CommandLedger::triggered(const Command &command)
{
    ++m_triggerCount;
    note(u"trigger of "_qs + describe(command));
    m_triggers.append({command, m_depth == 0, false});
    if (m_depth > 0) {
        m_remembered = command;
    }
}

void CommandLedger::triggerDone(const Command &command, std::optional<bool> shown)
{
    if (m_triggers.isEmpty() || m_triggers.last().command != command) {
        addProblem(u"end of a trigger that has not begun: "_qs + describe(command));
        return;
    }
    const Trigger trigger = m_triggers.takeLast();
    count(trigger.isOpen ? u"commands at once"_qs : u"commands remembered"_qs);
    if (trigger.isOpen && !trigger.isCarriedOut) {
        addProblem(u"not carried out through the open gate: "_qs + describe(command));
    }
    if (!trigger.isOpen && shown.has_value() && shown == command.state) {
        addProblem(u"not flipped back during a block: "_qs + describe(command));
    }
}

void CommandLedger::carriedOut(const Command &command)
{
    note(u"call of "_qs + describe(command));
    const auto trigger = std::find_if(m_triggers.rbegin(), m_triggers.rend(), [&command](const Trigger &each) {
        return each.command == command && each.isOpen && !each.isCarriedOut;
    });
    if (trigger != m_triggers.rend()) {
        trigger->isCarriedOut = true;
        return;
    }
    if (m_remembered != command) {
        addProblem(u"carried out, and nobody asked for it: "_qs + describe(command));
        return;
    }
    if (m_depth > 0 && !m_isForced) {
        addProblem(u"carried out during a block: "_qs + describe(command));
    }
    count(m_isForced ? u"commands forced"_qs : u"commands replayed"_qs);
    m_isForced = false; // not for what comes while the slot runs
    m_remembered.reset();
}

void CommandLedger::force(const std::function<void()> &call)
{
    const std::optional<Command> expected = m_remembered;
    m_isForced = expected.has_value();
    note(u"forced call"_qs);
    call();
    if (m_isForced) {
        addProblem(u"not carried out when it was forced: "_qs + describe(*expected));
    }
    m_isForced = false;
}

QString CommandLedger::describe(const Command &command) const
{
    return u"command %1, state %2, depth %3"_qs.arg(command.id).arg(command.state).arg(m_depth);
}
