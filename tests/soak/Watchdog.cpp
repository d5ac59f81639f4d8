// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/Watchdog.h"

#include <QtCore/QThread>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int patienceMs = 60'000;
constexpr int exitCodeOfAHang = 3;

} // namespace

Watchdog::Watchdog()
    : m_thread(QThread::create([this] { watch(); }))
{
    m_thread->start();
}

Watchdog::~Watchdog()
{
    m_end.release();
    m_thread->wait();
}

void Watchdog::feed()
{
    m_feedings.fetchAndAddRelaxed(1);
}

void Watchdog::watch()
{
    int seen = m_feedings.loadRelaxed();
    while (!m_end.tryAcquire(1, patienceMs)) {
        const int now = m_feedings.loadRelaxed();
        if (now == seen) {
            std::fputs("soak: the main loop has made no progress for 60 seconds\n", stderr);
            std::_Exit(exitCodeOfAHang); // the main thread hangs, so nothing can be tidied up
        }
        seen = now;
    }
}
