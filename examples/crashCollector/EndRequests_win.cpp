// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "EndRequests.h"

#include <QtCore/QCoreApplication>

#include <array>
#include <atomic>
#include <cstdio>
#include <thread>
#include <utility>

#include <windows.h>

namespace {

std::atomic<QObject *> receiver = nullptr;
std::atomic<void (*)()> notify = nullptr;

void notifyReceiver()
{
    if (auto *const function = notify.load()) {
        function();
    }
}

/*! Leaves the second event to the system, which ends the process. */
BOOL WINAPI noteConsoleEvent(DWORD /*event*/)
{
    static std::atomic_bool isNoted = false;
    if (isNoted.exchange(true)) {
        return FALSE;
    }
    notifyReceiver();
    return TRUE;
}

/*! Reading can't be interrupted: the thread ends with the process. */
void waitForEndOfInput()
{
    std::array<char, 4096> bytes{};
    while (std::fread(bytes.data(), 1, bytes.size(), stdin) > 0) { }
    notifyReceiver();
}

} // namespace

class CEndRequests::Watch
{
public:
    ~Watch()
    {
        notify = nullptr;
        receiver = nullptr;
    }
};

CEndRequests::CEndRequests(bool watchesInput)
    : m_watch(std::make_unique<Watch>())
{
    receiver = this;
    notify = [] {
        if (auto *const object = static_cast<CEndRequests *>(receiver.load())) {
            QMetaObject::invokeMethod(object, &CEndRequests::request, Qt::QueuedConnection);
        }
    };
    SetConsoleCtrlHandler(noteConsoleEvent, TRUE);
    if (watchesInput) {
        std::thread(waitForEndOfInput).detach();
    }
}

CEndRequests::~CEndRequests() = default;

void CEndRequests::request()
{
    if (!std::exchange(m_isRequested, true)) {
        Q_EMIT requested();
    }
}
