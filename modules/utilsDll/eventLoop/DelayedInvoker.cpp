// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/DelayedInvoker_p.h"

#include "utilsDll/frame/Assertions.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QTimerEvent>

#include <algorithm>
#include <array>

namespace ZYX_zglv6 {

namespace {

constexpr qsizetype mostArguments = 9;

/*! Of a value outside, a slot would get the bytes of the pointer to it. Only this internal mark tells. */
bool isInsideItsVariant(const QVariant &value)
{
    return !value.data_ptr().is_shared;
}

} // namespace

bool CDelayedInvoker::methodData::invokeMethod(QObject *receiver, const char *method, const QList<QVariant> &arguments)
{
    if (receiver == nullptr || method == nullptr) {
        return false;
    }
    const bool areFewEnough = arguments.size() <= mostArguments;
    ASSERT(areFewEnough);
    const bool areSmallEnough = std::all_of(arguments.begin(), arguments.end(), isInsideItsVariant);
    ASSERT(areSmallEnough);
    if (!areFewEnough || !areSmallEnough) {
        return false;
    }
    std::array<QGenericArgument, mostArguments + 1> passed; // those that are left stay empty
    std::transform(arguments.begin(), arguments.end(), passed.begin(), [](const QVariant &argument) {
        return QGenericArgument(argument.typeName(), &argument); // a variant holds its value at its own head
    });
    QMetaObject::invokeMethod(receiver, method, passed[0], passed[1], passed[2], passed[3], passed[4], passed[5],
                              passed[6], passed[7], passed[8], passed[9]);
    return true; // also for a slot that does not exist: the caller has no use for the difference
}

void CDelayedInvoker::schedule(int msec, const methodData &call)
{
    discard(call.receiver, call.method);
    const int timerId = msec < 0 ? 0 : startTimer(msec, Qt::CoarseTimer); // newer Qt starts one for a negative time
    if (timerId < 1) {
        return;
    }
    m_timers.emplace(timerId, call);
    m_receivers.emplace(call.receiver, timerId);
}

void CDelayedInvoker::discard(const QObject *receiver, const char *method)
{
    const auto [first, last] = m_receivers.equal_range(receiver);
    for (auto entry = first; entry != last;) {
        const int timerId = entry->second;
        if (!isPending(timerId, receiver, method)) {
            ++entry;
            continue;
        }
        killTimer(timerId);
        entry = m_receivers.erase(entry);
        m_timers.erase(timerId);
        if (method != nullptr) {
            return;
        }
    }
}

bool CDelayedInvoker::isActive(const QObject *receiver, const char *method) const
{
    const auto [first, last] = m_receivers.equal_range(receiver);
    return std::any_of(first, last, [&](const auto &entry) { return isPending(entry.second, receiver, method); });
}

void CDelayedInvoker::timerEvent(QTimerEvent *event)
{
    const int timerId = event->timerId();
    const auto found = m_timers.find(timerId);
    if (found == m_timers.end()) {
        QObject::timerEvent(event);
        return;
    }
    {
        const methodData call = found->second;
        QObject *receiver = call.receiver;
        if (call.isSingleShot) { // before the call: its slot can schedule the same call anew
            m_timers.erase(found);
            removeFromIndex(receiver, timerId);
        }
        const auto endTimer = qScopeGuard([&] {
            if (call.isSingleShot) {
                event->accept();
                killTimer(timerId);
            }
        });
        if (receiver != nullptr) {
            ASSERT(call.method != nullptr);
            methodData::invokeMethod(receiver, call.method, call.arguments);
        }
    }
    QObject::timerEvent(event);
}

bool CDelayedInvoker::isPending(int timerId, const QObject *receiver, const char *method) const
{
    const auto found = m_timers.find(timerId);
    return found != m_timers.end() && found->second.receiver != nullptr && found->second.receiver == receiver
        && (method == nullptr || qstrcmp(found->second.method, method) == 0);
}

void CDelayedInvoker::removeFromIndex(const QObject *receiver, int timerId)
{
    const auto [first, last] = m_receivers.equal_range(receiver);
    const auto entry = std::find_if(first, last, [timerId](const auto &each) { return each.second == timerId; });
    if (entry != last) {
        m_receivers.erase(entry);
    }
}

} // namespace ZYX_zglv6
