// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"
#include "utilsDll/frame/Singleton.h"

#include <QtCore/QThreadStorage>
#include <QtCore/QVariant>

#include <memory>

class QObject;

namespace ZYX_zglv6 {

class CDelayedCall;
class CDelayedInvoker;

} // namespace ZYX_zglv6

extern template class UTILSDLL_EXPORT_TEMPLATE Singleton<ZYX_zglv6::CDelayedCall>;

namespace ZYX_zglv6 {

/*!
    Calls slots by name after a delay: Singleton<CDelayedCall>::instance().invoke(300, view, "update", true).

    For one receiver and one method at most one call is pending on a thread: a newer request replaces the older one,
    with its delay, its arguments and its way of repeating. That makes it a debouncer.

    Delays are milliseconds; with 0 the call comes with the next pass of the event loop. \a method is the slot's
    plain name, text of static lifetime, as only the pointer is kept. Without receiver or method nothing happens,
    and with a negative delay a pending call is ended and no other takes its place. Of a slot that does not exist
    only Qt warns.

    Up to nine arguments of exactly the slot's types, and of types that a QVariant keeps inside itself: bool, numbers,
    QString, pointers to objects. Any other is reported as a failed assertion when the call is due, and the slot is not
    called. With an invalid QVariant the arguments end.

    From any thread with an event loop. Each thread sees and discards only the calls that it asked for, and they
    come from its own loop; a receiver that lives on another thread is reached by a queued call. One that lives here
    may die: its calls are skipped. A repeating one costs its timer from then on, so discard it while the receiver
    lives.
*/
class UTILSDLL_EXPORT CDelayedCall final : public Singleton<CDelayedCall>
{
public:
    /*! One call after \a msec if \a singleShot, else one every \a msec until it is discarded. */
    void invoke(int msec, QObject *receiver, const char *method, bool singleShot);

    // One call every msec until it is discarded.
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3, const QVariant &arg4);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3, const QVariant &arg4, const QVariant &arg5);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3, const QVariant &arg4, const QVariant &arg5, const QVariant &arg6);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3, const QVariant &arg4, const QVariant &arg5, const QVariant &arg6,
                        const QVariant &arg7);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3, const QVariant &arg4, const QVariant &arg5, const QVariant &arg6,
                        const QVariant &arg7, const QVariant &arg8);
    void invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1, const QVariant &arg2,
                        const QVariant &arg3, const QVariant &arg4, const QVariant &arg5, const QVariant &arg6,
                        const QVariant &arg7, const QVariant &arg8, const QVariant &arg9);

    // One call after msec.
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6, const QVariant &arg7);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6, const QVariant &arg7,
                                  const QVariant &arg8);
    void invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6, const QVariant &arg7,
                                  const QVariant &arg8, const QVariant &arg9);

    /*! Ends the pending call of \a method, or with null all pending calls of \a receiver. */
    void discard(QObject *receiver, const char *method);

    /*! True while such a call is pending: in a repeating call's slot, and not in a single one's. Null is no method. */
    bool isActive(QObject *receiver, const char *method) const;

private:
    friend class Singleton<CDelayedCall>;

    CDelayedCall();
    ~CDelayedCall();

    void schedule(int msec, QObject *receiver, const char *method, bool singleShot, const QVariantList &arguments);

    const std::unique_ptr<QThreadStorage<CDelayedInvoker *>>
        m_invokers; // one for each thread that has called, deleted at its end
};

} // namespace ZYX_zglv6
