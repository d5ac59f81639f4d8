// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "eventLoop/RandomCalls.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QTimerEvent>

#include <algorithm>

namespace {

constexpr char callElsewhere[] = "call"; // another address than the literal's

constexpr int deepestReaction = 2;

} // namespace

QSet<int> timersOf(QObject *owner)
{
    QSet<int> ids;
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(owner);
    for (const QAbstractEventDispatcher::TimerInfo &timer : timers) {
        ids.insert(timer.timerId);
    }
    return ids;
}

void DelayedCallModel::schedule(const Entry &entry)
{
    m_entries.push_back(entry);
}

void DelayedCallModel::discard(const QObject *receiver, const char *method)
{
    for (auto next = m_entries.begin(); next != m_entries.end();) {
        const auto entry = next++;
        if (!matches(*entry, receiver, method)) {
            continue;
        }
        end(entry);
        if (method != nullptr) {
            return;
        }
    }
}

bool DelayedCallModel::isActive(const QObject *receiver, const char *method) const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [&](const Entry &entry) { return matches(entry, receiver, method); });
}

void DelayedCallModel::receiverDied(const QObject *receiver)
{
    for (Entry &entry : m_entries) {
        if (entry.address == receiver) {
            entry.isReceiverAlive = false;
        }
    }
}

std::optional<DelayedCallModel::Entry> DelayedCallModel::fire(int timerId)
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [timerId](const Entry &entry) {
        return entry.timerId == timerId && entry.isPending;
    });
    if (found == m_entries.end()) {
        return std::nullopt;
    }
    const Entry fired = *found;
    found->due += found->msec;
    if (fired.isSingleShot && fired.isReceiverAlive) {
        end(found);
    } else if (fired.isSingleShot) {
        found->isPending = false;
    }
    return fired.isReceiverAlive ? std::optional(fired) : std::nullopt;
}

int DelayedCallModel::firstDue() const
{
    const Entry *first = nullptr;
    for (const Entry &entry : m_entries) {
        if (entry.isPending && entry.isReceiverAlive && (first == nullptr || entry.due < first->due)) {
            first = &entry;
        }
    }
    return first == nullptr ? 0 : first->timerId;
}

QSet<int> DelayedCallModel::timers() const
{
    QSet<int> ids;
    for (const Entry &entry : m_entries) {
        if (entry.isPending) {
            ids.insert(entry.timerId);
        }
    }
    return ids;
}

const std::list<DelayedCallModel::Entry> &DelayedCallModel::entries() const
{
    return m_entries;
}

void DelayedCallModel::end(std::list<Entry>::iterator entry)
{
    entry->isPending = false;
    // Timers get the numbers of those that have ended: what has been left of such a one under this address goes first.
    m_entries.erase(std::find_if(m_entries.begin(), m_entries.end(), [entry](const Entry &each) {
        return each.address == entry->address && each.timerId == entry->timerId;
    }));
}

bool DelayedCallModel::matches(const Entry &entry, const QObject *receiver, const char *method)
{
    return entry.address == receiver && entry.isReceiverAlive && entry.isPending
        && (method == nullptr || entry.method == method);
}

RandomCalls::RandomCalls(DelayedCallSubject &subject, quint32 seed)
    : m_subject(subject)
    , m_random(seed)
{
}

RandomCalls::~RandomCalls()
{
    for (std::optional<CallRecorder> &receiver : m_receivers) {
        if (receiver) {
            m_subject.discard(&*receiver, nullptr);
        }
    }
}

QString RandomCalls::step()
{
    m_seen.clear();
    m_expected.clear();
    act();
    m_firings += m_seen.size();
    return difference();
}

const DelayedCallModel &RandomCalls::model() const
{
    return m_model;
}

qsizetype RandomCalls::firings() const
{
    return m_firings;
}

int RandomCalls::below(int limit)
{
    return int(m_random() % unsigned(limit)); // the library's own distributions differ from one system to another
}

const char *RandomCalls::anyMethod()
{
    static constexpr std::array methods{"tick", "tock", "call", &callElsewhere[0]};
    return methods[std::size_t(below(int(methods.size())))];
}

QObject *RandomCalls::anyReceiver()
{
    std::optional<CallRecorder> &receiver = m_receivers[std::size_t(below(int(m_receivers.size())))];
    if (!receiver) {
        receiver.emplace();
        receiver->reaction = [this, self = &*receiver](const RecordedCall &call) {
            m_seen.append({self, call});
            if (m_depth < deepestReaction && below(2) == 0) {
                ++m_depth;
                act();
                --m_depth;
            }
        };
    }
    return &*receiver;
}

QVariantList RandomCalls::arguments(int count)
{
    const QVariantList all{below(2) == 0,
                           below(1000),
                           below(1000) / 8.0,
                           QString::number(below(1000)),
                           QVariant::fromValue(below(2) == 0 ? &m_argument : nullptr),
                           below(2) == 0,
                           below(1000),
                           below(1000) / 8.0,
                           QString::number(below(1000))};
    return all.first(count);
}

void RandomCalls::act()
{
    if (below(100) < 55) {
        operate();
    } else {
        fire(below(5) == 0 ? anyTimer() : m_model.firstDue());
    }
}

void RandomCalls::operate()
{
    const int what = below(100);
    if (what < 70) {
        schedule();
    } else if (what < 90) {
        QObject *const receiver = anyReceiver();
        const char *const method = anyMethod();
        m_model.discard(receiver, method);
        m_subject.discard(receiver, method);
    } else if (what < 95) {
        QObject *const receiver = anyReceiver();
        m_model.discard(receiver, nullptr);
        m_subject.discard(receiver, nullptr);
    } else {
        destroy();
    }
}

void RandomCalls::schedule()
{
    QObject *const receiver = anyReceiver();
    const char *const method = anyMethod();
    const bool isSingleShot = below(3) != 0;
    const int msec = below(20) == 0 ? -1 : 100 + 100 * below(50);
    const QVariantList values = method[0] == 'c' ? arguments(below(10)) : QVariantList();
    m_model.discard(receiver, method);
    m_subject.schedule(msec, receiver, method, isSingleShot, values);
    if (msec >= 0) {
        const QSet<int> added = timersOf(m_subject.timerOwner()) - m_model.timers() - m_beingCalled;
        const int timerId = added.isEmpty() ? 0 : *added.begin();
        m_model.schedule({timerId, receiver, method, isSingleShot, values, m_now + msec, msec});
    }
}

void RandomCalls::destroy()
{
    std::optional<CallRecorder> &receiver = m_receivers[std::size_t(below(int(m_receivers.size())))];
    if (receiver) {
        m_model.receiverDied(&*receiver);
        receiver.reset();
    }
}

void RandomCalls::fire(int timerId)
{
    if (timerId == 0) {
        return;
    }
    const std::optional<DelayedCallModel::Entry> call = m_model.fire(timerId);
    if (call) {
        m_now = std::max(m_now, call->due);
        m_expected.append({call->address, {call->method, call->arguments}});
    }
    if (call && call->isSingleShot) {
        m_beingCalled.insert(timerId);
    }
    QTimerEvent event(timerId);
    QCoreApplication::sendEvent(m_subject.timerOwner(), &event);
    if (call && call->isSingleShot) {
        m_beingCalled.remove(timerId);
    }
}

int RandomCalls::anyTimer()
{
    const std::list<DelayedCallModel::Entry> &entries = m_model.entries();
    if (entries.empty()) {
        return 0;
    }
    return std::next(entries.begin(), below(int(entries.size())))->timerId;
}

QString RandomCalls::difference()
{
    if (m_seen != m_expected) {
        return QStringLiteral("%1 slots were called, not the expected %2").arg(m_seen.size()).arg(m_expected.size());
    }
    if (timersOf(m_subject.timerOwner()) != m_model.timers()) {
        return QStringLiteral("other timers are running");
    }
    for (std::optional<CallRecorder> &receiver : m_receivers) {
        for (const char *method : {"tick", "tock", "call"}) {
            QObject *const object = receiver ? &*receiver : nullptr;
            if (m_subject.isActive(object, method) != m_model.isActive(object, method)) {
                return QStringLiteral("isActive() is wrong for %1").arg(QLatin1String(method));
            }
        }
    }
    return {};
}
