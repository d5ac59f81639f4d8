// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QAtomicInt>

/*! What a wait waits for. */
struct UTILSDLL_EXPORT ICustomWaitPredicate
{
    ICustomWaitPredicate();
    ICustomWaitPredicate(const ICustomWaitPredicate &other);
    ICustomWaitPredicate &operator=(const ICustomWaitPredicate &other);

    /*! True once the wait is over. Asked over and over, on the waiting thread only. */
    virtual bool done() const = 0;
    virtual ~ICustomWaitPredicate();
};

/*! Waits until an atomic has a value. The atomic is not owned; any thread may write it. */
class UTILSDLL_EXPORT CAtomicIntWaitPredicate : public ICustomWaitPredicate
{
public:
    CAtomicIntWaitPredicate(const QAtomicInt &value, int expected);
    CAtomicIntWaitPredicate(const CAtomicIntWaitPredicate &other);

    bool done() const override;
    ~CAtomicIntWaitPredicate() override;

private:
    const QAtomicInt &m_value;
    const int m_expected;
};

// The waits below are for short stretches: they never sleep, have no time limit and keep a whole core busy.

/*! Spins until \a predicate is done. Handles no events. From any thread. */
UTILSDLL_EXPORT void waitBlocking(const ICustomWaitPredicate &predicate);

/*!
    Handles events until \a predicate is done; with \a excludeUserInput the user's input is held out meanwhile. For the
    main thread.

    One such wait at a time in the whole process: a call during another one, from an event handler or from another
    thread, returns at once, whether its predicate is done or not. What tells of a running wait is not synchronised.
*/
UTILSDLL_EXPORT void waitNonBlocking(const ICustomWaitPredicate &predicate, bool excludeUserInput);

/*! waitBlocking() until \a value is \a expected. */
UTILSDLL_EXPORT void waitBlockingAtomicIntValue(const QAtomicInt &value, int expected);

/*! waitNonBlocking() until \a value is \a expected. */
UTILSDLL_EXPORT void waitNonBlockingAtomicIntValue(const QAtomicInt &value, int expected, bool excludeUserInput);
