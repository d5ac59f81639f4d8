// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*!
    From now on a crash of this process leaves "<program>-<process>-<yyyyMMddhhmmss>.dmp", with the time of this call,
    in the folder where crash reports are gathered. Then the crash takes its course. An uncaught exception counts as
    one. CStorageLocation has to know the data directory; call it once, on the main thread.

    Of an overflow of its stack only the main thread leaves one.
*/
void installCrashDump();

/*! What a host dies of. */
enum class Crash { None, Signal, Exception, Threads };

/*! The value for "--crash" in plain words; None for any other. */
Crash crashFromName(const QString &name);

/*! Dies of a write to memory that is not there, on this thread or on several at once, or of an uncaught exception. */
[[noreturn]] void crashNow(Crash crash);
