// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// A module of its own that uses the delayed calls, as the product's plug-ins do.

#include "utilsDll/eventLoop/DelayedCall.h"

using ZYX_zglv6::CDelayedCall;

extern "C" Q_DECL_EXPORT const void *delayedCallOfModule()
{
    return &Singleton<CDelayedCall>::instance();
}

extern "C" Q_DECL_EXPORT void invokeFromModule(int msec, QObject *receiver, const char *method)
{
    Singleton<CDelayedCall>::instance().invoke(msec, receiver, method, true);
}
