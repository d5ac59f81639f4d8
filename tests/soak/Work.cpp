// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/Work.h"

#include <QtCore/QThread>

WorkItem::WorkItem(int milliseconds, QAtomicInt &executed)
    : m_milliseconds(milliseconds)
    , m_executed(executed)
{
}

WorkItem::~WorkItem()
{
    waitFinishBlocking(); // the work uses members
}

void WorkItem::execute()
{
    for (int elapsed = 0; elapsed < m_milliseconds && !stopRequired().value(); ++elapsed) {
        QThread::msleep(1);
    }
    m_executed.fetchAndAddRelaxed(1);
    Q_EMIT result(!stopRequired().value());
}

Work::Work(CommandLedger &ledger, std::mt19937 &random)
    : m_ledger(ledger)
    , m_random(random)
{
    m_pool.setMaxThreadCount(4);
}

Work::~Work()
{
    m_pool.waitForDone();
}

int Work::anyDuration()
{
    return int(m_random() % 5);
}

void Work::watch(WorkItem &item)
{
    connect(&item, &CQRunnableItem::finished, this, [this] {
        ++m_finished;
        m_ledger.count(u"items finished"_qs);
    });
}

void Work::raiseLater(QAtomicInt &flag)
{
    m_pool.start([&flag, duration = anyDuration()] {
        QThread::msleep(static_cast<unsigned long>(duration));
        flag.storeRelease(1);
    });
}

void Work::start()
{
    auto *item = new WorkItem(anyDuration(), m_executed); // the pool deletes it
    watch(*item);
    m_pool.start(item);
}

void Work::startAndStop()
{
    WorkItem item(1000, m_executed);
    item.setAutoDelete(false);
    watch(item);
    m_pool.start(&item);
    QThread::msleep(static_cast<unsigned long>(anyDuration()));
    item.stop(); // before its run or in it
    m_pool.waitForDone();
    if (item.isStarted()) {
        m_ledger.addProblem(u"an item has not ended with the pool"_qs);
    }
}

void Work::run(const std::function<void(WorkItem &)> &prepare, const std::function<void(WorkItem &)> &wait)
{
    WorkItem item(anyDuration(), m_executed);
    item.setAutoDelete(false);
    watch(item);
    prepare(item);
    m_pool.start(&item);
    wait(item);
    m_pool.waitForDone();
}

void Work::waitForAll()
{
    m_pool.waitForDone();
}

bool Work::isBalanced() const
{
    return m_finished == m_executed.loadRelaxed();
}
