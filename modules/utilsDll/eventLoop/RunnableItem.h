// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/eventLoop/ThreadSafeVariable.h"
#include "utilsDll/frame/Export.h"

#include <QtCore/QAtomicInt>
#include <QtCore/QObject>
#include <QtCore/QRunnable>

/*!
    A QRunnable that other threads can watch: a subclass's run() brackets its work with enterExcecutableSecion() and
    leaveExcecutableSecion(), and from any thread one can ask for it and wait for it. The library has it for QRunnable.
    It runs on one thread at a time.

    No wait waits for a start that is yet to come. The blocking ones keep a core busy; those that handle events are for
    the main thread, one at a time in the process, see waitNonBlocking().

    The destructor waits until the section has been left. A class whose work uses members of its own must wait in its
    own destructor: they are gone by the time that this one runs.
*/
template <typename T>
class CRunnableItem : public T
{
    Q_DISABLE_COPY_MOVE(CRunnableItem)

public:
    CRunnableItem();
    void run() override = 0;
    ~CRunnableItem() override;

    /*! Until the item is idle, which it also is before its first run. */
    void waitStartBlocking() const;
    void waitStartNonBlocking(bool excludeUserInput) const;

    /*! Until the section does not run, which it also does not before its first run. */
    void waitFinishBlocking() const;
    void waitFinishNonBlocking(bool excludeUserInput) const;

    /*! Both, one after the other. */
    void waitExecuteBlocking() const;
    void waitExecuteNonBlocking(bool excludeUserInput) const;

    /*! True while the section runs; false before and after. */
    bool isStarted() const;

    void enterExcecutableSecion();
    void leaveExcecutableSecion();

private:
    QAtomicInt m_running{0};
    QAtomicInt m_idle{1}; // the opposite, but for the moment between the two steps of a change
};

extern template class UTILSDLL_EXPORT_TEMPLATE CRunnableItem<QRunnable>;

/*!
    Work for a thread pool that can be asked to stop and tells when it has finished. A subclass writes execute().

    An exception out of execute() ends the section and goes on to the caller; finished() then does not come. As
    finished() is emitted behind the section, the item has to outlive its run and not only its section: with
    QRunnable's auto-delete the pool sees to that; without it wait for the pool before you destroy the item.
*/
class UTILSDLL_EXPORT CQRunnableItem : public QObject, public CRunnableItem<QRunnable>
{
    Q_OBJECT

public:
    CQRunnableItem();
    ~CQRunnableItem() override;

    /*! Does the work on the calling thread. After stop() it does nothing, now and in every later run. */
    void run() override;

    /*! Whether stop() was called; for execute() to look at now and then. From any thread. */
    const ThreadSafeVariable<bool> &stopRequired() const;

public Q_SLOTS:
    /*! Asks the work to end; nothing is interrupted. From any thread. */
    void stop();

Q_SIGNALS:
    /*! The work is done and the item idle again. Emitted on the thread that ran it. */
    void finished();

protected:
    virtual void execute() = 0;

private:
    ThreadSafeVariable<bool> m_stopRequired;
};
