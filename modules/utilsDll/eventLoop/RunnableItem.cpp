// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/RunnableItem.h"

#include "utilsDll/eventLoop/Waits.h"

#include <QtCore/QScopeGuard>

template <typename T>
CRunnableItem<T>::CRunnableItem() = default;

template <typename T>
CRunnableItem<T>::~CRunnableItem()
{
    waitFinishBlocking();
    waitStartBlocking(); // the section's last step touches m_idle
}

template <typename T>
void CRunnableItem<T>::waitStartBlocking() const
{
    waitBlockingAtomicIntValue(m_idle, 1);
}

template <typename T>
void CRunnableItem<T>::waitStartNonBlocking(bool excludeUserInput) const
{
    waitNonBlockingAtomicIntValue(m_idle, 1, excludeUserInput);
}

template <typename T>
void CRunnableItem<T>::waitFinishBlocking() const
{
    waitBlockingAtomicIntValue(m_running, 0);
}

template <typename T>
void CRunnableItem<T>::waitFinishNonBlocking(bool excludeUserInput) const
{
    waitNonBlockingAtomicIntValue(m_running, 0, excludeUserInput);
}

template <typename T>
void CRunnableItem<T>::waitExecuteBlocking() const
{
    waitStartBlocking();
    waitFinishBlocking();
}

template <typename T>
void CRunnableItem<T>::waitExecuteNonBlocking(bool excludeUserInput) const
{
    waitStartNonBlocking(excludeUserInput);
    waitFinishNonBlocking(excludeUserInput);
}

template <typename T>
bool CRunnableItem<T>::isStarted() const
{
    return m_idle.loadAcquire() == 0;
}

template <typename T>
void CRunnableItem<T>::enterExcecutableSecion()
{
    m_idle.testAndSetOrdered(1, 0);
    m_running.testAndSetOrdered(0, 1);
}

template <typename T>
void CRunnableItem<T>::leaveExcecutableSecion()
{
    m_running.testAndSetOrdered(1, 0);
    m_idle.testAndSetOrdered(0, 1);
}

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION CRunnableItem<QRunnable>;

CQRunnableItem::CQRunnableItem() = default;

CQRunnableItem::~CQRunnableItem()
{
    waitFinishBlocking(); // the section may look at stopRequired() to its end
}

void CQRunnableItem::run()
{
    if (m_stopRequired.value()) {
        return;
    }
    {
        enterExcecutableSecion();
        const auto leave = qScopeGuard([this] { leaveExcecutableSecion(); });
        execute();
    }
    Q_EMIT finished(); // keep last: whoever hears of it may take the item for idle
}

const ThreadSafeVariable<bool> &CQRunnableItem::stopRequired() const
{
    return m_stopRequired;
}

void CQRunnableItem::stop()
{
    m_stopRequired.setValue(true);
}
