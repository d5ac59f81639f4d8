// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "soak/CommandLedger.h"

#include "utilsDll/eventLoop/RunnableItem.h"

#include <QtCore/QAtomicInt>
#include <QtCore/QObject>
#include <QtCore/QThreadPool>

#include <functional>
#include <random>

/*! Sleeps for a few milliseconds, unless it is asked to stop. */
class WorkItem : public CQRunnableItem
{
    Q_OBJECT

public:
    WorkItem(int milliseconds, QAtomicInt &executed);
    ~WorkItem() override;

Q_SIGNALS:
    /*! Just before the work ends. */
    void result(bool success);

protected:
    void execute() override;

private:
    const int m_milliseconds;
    QAtomicInt &m_executed; // by all items together
};

/*! Work on threads: a flag that is raised after a while, and runnable items. */
class Work : public QObject
{
    Q_OBJECT

public:
    Work(CommandLedger &ledger, std::mt19937 &random);
    ~Work() override;

    /*! Sets \a flag to 1 on another thread; it must live until then. */
    void raiseLater(QAtomicInt &flag);

    /*! Starts an item that the pool deletes. */
    void start();
    void startAndStop();

    /*! Makes an item, hands it to \a prepare, starts it, hands it to \a wait and deletes it when it has ended. */
    void run(const std::function<void(WorkItem &)> &prepare, const std::function<void(WorkItem &)> &wait);

    void waitForAll();
    /*! Each item that did its work has told so. Only after waitForAll() and a pass of the event loop. */
    bool isBalanced() const;

private:
    int anyDuration();
    void watch(WorkItem &item);

    CommandLedger &m_ledger;
    std::mt19937 &m_random;
    QAtomicInt m_executed;
    int m_finished = 0;
    QThreadPool m_pool; // last: its threads end before the rest goes
};
