// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/Waits.h"

#include "utilsDll/eventLoop/ExcludeUserInputEventLoop.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QThread>

#include <memory>

namespace {

// Of the whole process and not synchronised: the non-blocking wait is the main thread's.
constinit bool isWaitInProgress = false;

} // namespace

ICustomWaitPredicate::ICustomWaitPredicate() = default;
ICustomWaitPredicate::ICustomWaitPredicate(const ICustomWaitPredicate &other) = default;
ICustomWaitPredicate &ICustomWaitPredicate::operator=(const ICustomWaitPredicate & /*other*/) = default;
ICustomWaitPredicate::~ICustomWaitPredicate() = default;

CAtomicIntWaitPredicate::CAtomicIntWaitPredicate(const QAtomicInt &value, int expected)
    : m_value(value)
    , m_expected(expected)
{
}

CAtomicIntWaitPredicate::CAtomicIntWaitPredicate(const CAtomicIntWaitPredicate &other) = default;
CAtomicIntWaitPredicate::~CAtomicIntWaitPredicate() = default;

bool CAtomicIntWaitPredicate::done() const
{
    return m_value.loadAcquire() == m_expected;
}

void waitBlocking(const ICustomWaitPredicate &predicate)
{
    while (!predicate.done()) {
        QThread::yieldCurrentThread();
    }
}

void waitNonBlocking(const ICustomWaitPredicate &predicate, bool excludeUserInput)
{
    if (isWaitInProgress) {
        return;
    }
    const QScopedValueRollback<bool> mark(isWaitInProgress, true);

    std::unique_ptr<CExcludeUserInpuEventsFilter> filter;
    if (excludeUserInput) {
        filter = std::make_unique<CExcludeUserInpuEventsFilter>(QCoreApplication::instance());
    }
    const auto flags = excludeUserInput ? QEventLoop::ExcludeUserInputEvents : QEventLoop::AllEvents;
    while (!predicate.done()) {
        QCoreApplication::processEvents(flags);
    }
}

void waitBlockingAtomicIntValue(const QAtomicInt &value, int expected)
{
    waitBlocking(CAtomicIntWaitPredicate(value, expected));
}

void waitNonBlockingAtomicIntValue(const QAtomicInt &value, int expected, bool excludeUserInput)
{
    waitNonBlocking(CAtomicIntWaitPredicate(value, expected), excludeUserInput);
}
