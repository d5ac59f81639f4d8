// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QAtomicInt>
#include <QtCore/QSemaphore>

#include <memory>

class QThread;

/*! Ends the process with a message when nothing calls feed() for a minute. */
class Watchdog
{
public:
    Watchdog();
    ~Watchdog();

    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    void feed();

private:
    void watch();

    QAtomicInt m_feedings;
    QSemaphore m_end;
    std::unique_ptr<QThread> m_thread;
};
