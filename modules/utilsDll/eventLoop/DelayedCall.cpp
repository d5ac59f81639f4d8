// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/eventLoop/DelayedCall.h"

#include "utilsDll/eventLoop/DelayedInvoker_p.h"

template class UTILSDLL_EXPORT_TEMPLATE_DEFINITION Singleton<ZYX_zglv6::CDelayedCall>;

namespace ZYX_zglv6 {

CDelayedCall::CDelayedCall()
    : m_invokers(std::make_unique<QThreadStorage<CDelayedInvoker *>>())
{
}

CDelayedCall::~CDelayedCall()
{
    if (m_invokers->hasLocalData()) {
        m_invokers->setLocalData(nullptr); // deletes this thread's; all other threads are to have ended by now
    }
}

void CDelayedCall::invoke(int msec, QObject *receiver, const char *method, bool singleShot)
{
    schedule(msec, receiver, method, singleShot, {});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1)
{
    schedule(msec, receiver, method, false, {arg1});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2)
{
    schedule(msec, receiver, method, false, {arg1, arg2});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3, arg4});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3, arg4, arg5});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3, arg4, arg5, arg6});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6, const QVariant &arg7)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3, arg4, arg5, arg6, arg7});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6, const QVariant &arg7,
                                  const QVariant &arg8)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3, arg4, arg5, arg6, arg7, arg8});
}

void CDelayedCall::invokeWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                  const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                  const QVariant &arg5, const QVariant &arg6, const QVariant &arg7,
                                  const QVariant &arg8, const QVariant &arg9)
{
    schedule(msec, receiver, method, false, {arg1, arg2, arg3, arg4, arg5, arg6, arg7, arg8, arg9});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1)
{
    schedule(msec, receiver, method, true, {arg1});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2)
{
    schedule(msec, receiver, method, true, {arg1, arg2});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3, const QVariant &arg4)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3, arg4});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                            const QVariant &arg5)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3, arg4, arg5});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                            const QVariant &arg5, const QVariant &arg6)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3, arg4, arg5, arg6});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                            const QVariant &arg5, const QVariant &arg6, const QVariant &arg7)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3, arg4, arg5, arg6, arg7});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                            const QVariant &arg5, const QVariant &arg6, const QVariant &arg7,
                                            const QVariant &arg8)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3, arg4, arg5, arg6, arg7, arg8});
}

void CDelayedCall::invokeSingleShotWithArgs(int msec, QObject *receiver, const char *method, const QVariant &arg1,
                                            const QVariant &arg2, const QVariant &arg3, const QVariant &arg4,
                                            const QVariant &arg5, const QVariant &arg6, const QVariant &arg7,
                                            const QVariant &arg8, const QVariant &arg9)
{
    schedule(msec, receiver, method, true, {arg1, arg2, arg3, arg4, arg5, arg6, arg7, arg8, arg9});
}

void CDelayedCall::discard(QObject *receiver, const char *method)
{
    if (receiver != nullptr && m_invokers->hasLocalData()) {
        m_invokers->localData()->discard(receiver, method);
    }
}

bool CDelayedCall::isActive(QObject *receiver, const char *method) const
{
    return receiver != nullptr && method != nullptr && m_invokers->hasLocalData()
        && m_invokers->localData()->isActive(receiver, method);
}

void CDelayedCall::schedule(int msec, QObject *receiver, const char *method, bool singleShot,
                            const QVariantList &arguments)
{
    if (receiver == nullptr || method == nullptr) {
        return;
    }
    if (!m_invokers->hasLocalData()) {
        m_invokers->setLocalData(new CDelayedInvoker);
    }
    m_invokers->localData()->schedule(msec, {receiver, method, singleShot, arguments});
}

} // namespace ZYX_zglv6
