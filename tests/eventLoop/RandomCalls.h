// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "eventLoop/CallRecorder.h"

#include <QtCore/QSet>
#include <QtCore/QString>

#include <array>
#include <list>
#include <optional>
#include <random>

/*! What is tested with random calls: something that keeps delayed calls on timers of one object. */
class DelayedCallSubject
{
public:
    DelayedCallSubject() = default;
    virtual ~DelayedCallSubject() = default;
    Q_DISABLE_COPY_MOVE(DelayedCallSubject)

    virtual void schedule(int msec, QObject *receiver, const char *method, bool isSingleShot,
                          const QVariantList &arguments)
        = 0;
    virtual void discard(QObject *receiver, const char *method) = 0;
    virtual bool isActive(QObject *receiver, const char *method) const = 0;
    virtual QObject *timerOwner() const = 0;
};

/*! The timers of \a owner, which must live on this thread. */
QSet<int> timersOf(QObject *owner);

/*!
    Delayed calls as one list that is searched from its front. Calls nothing by itself.

    The entries under one address are those of the index of receivers, in its order.
*/
class DelayedCallModel
{
public:
    struct Entry
    {
        int timerId;
        QObject *address;
        QByteArray method;
        bool isSingleShot;
        QVariantList arguments;
        qint64 due;
        int msec;
        bool isReceiverAlive = true;
        bool isPending = true; // false: only the index still has it
    };

    void schedule(const Entry &entry);
    void discard(const QObject *receiver, const char *method);
    bool isActive(const QObject *receiver, const char *method) const;
    void receiverDied(const QObject *receiver);
    /*! The call that the timer makes. */
    std::optional<Entry> fire(int timerId);
    /*! The timer of the living receivers that is due first; 0 if there is none. */
    int firstDue() const;
    QSet<int> timers() const;

    const std::list<Entry> &entries() const;

private:
    void end(std::list<Entry>::iterator entry);
    static bool matches(const Entry &entry, const QObject *receiver, const char *method);

    std::list<Entry> m_entries;
};

/*! Does the same to a subject and to the model, and compares them after each step. Timer events are sent by hand. */
class RandomCalls
{
public:
    RandomCalls(DelayedCallSubject &subject, quint32 seed);
    ~RandomCalls();
    Q_DISABLE_COPY_MOVE(RandomCalls)

    /*! What went wrong in the next random step; empty if all is well. */
    QString step();

    const DelayedCallModel &model() const;

    /*! How many slots were called up to now. */
    qsizetype firings() const;

private:
    struct Firing
    {
        QObject *receiver;
        RecordedCall call;

        bool operator==(const Firing &other) const = default;
    };

    int below(int limit);
    const char *anyMethod();
    QObject *anyReceiver();
    QVariantList arguments(int count);
    void act();
    void operate();
    void schedule();
    void destroy();
    void fire(int timerId);
    int anyTimer();
    QString difference();

    DelayedCallSubject &m_subject;
    DelayedCallModel m_model;
    std::mt19937 m_random;
    std::array<std::optional<CallRecorder>, 12> m_receivers; // a new one gets the address of the one that died
    QObject m_argument;
    QList<Firing> m_expected; // in this step
    QList<Firing> m_seen;
    qsizetype m_firings = 0;
    QSet<int> m_beingCalled; // timers of single shots, which end after the slot
    qint64 m_now = 0;
    int m_depth = 0;
};
