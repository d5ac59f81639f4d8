// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*!
    Runs the current test function, with its current data row, in a process of its own: for what a process can only do
    once, such as making the logger or computing a cached path. Put it first in the function; the macro returns in the
    process that started the other. A function skipped there is skipped here, for the same reason.
*/
#define RUN_IN_FRESH_PROCESS()                                                                                         \
    do {                                                                                                               \
        if (!TestSupport::isFreshProcess()) {                                                                          \
            const TestSupport::FreshResult result = TestSupport::runInFreshProcess();                                  \
            QVERIFY2(result.failure.isEmpty(), qPrintable(result.failure));                                            \
            if (!result.skipReason.isEmpty()) {                                                                        \
                QSKIP(qPrintable(result.skipReason));                                                                  \
            }                                                                                                          \
            return;                                                                                                    \
        }                                                                                                              \
    } while (false)

namespace TestSupport {

/*! True in a process that RUN_IN_FRESH_PROCESS() started. */
bool isFreshProcess();

struct FreshResult
{
    QString failure; // what the process printed; empty if the function passed or was skipped
    QString skipReason; // empty if it was not skipped
};

/*! Runs the current test function alone in another process. */
FreshResult runInFreshProcess();

} // namespace TestSupport
