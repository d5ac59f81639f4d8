// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "EndRequests.h"

#include <QtCore/QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array<int, 3> endingSignals{SIGTERM, SIGINT, SIGHUP};

std::array<int, 2> signalPipe{-1, -1}; // from the handler, which may do little else, to the event loop

extern "C" void noteSignal(int /*number*/)
{
    const int error = errno;
    const char byte = 0;
    static_cast<void>(!write(signalPipe[1], &byte, 1)); // a full pipe has told already
    errno = error;
}

void prepareSignalPipe()
{
    if (pipe(signalPipe.data()) != 0) {
        qFatal("no pipe for signals");
    }
    for (const int end : signalPipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
}

void catchSignals()
{
    struct sigaction action
    {
    };
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : endingSignals) {
        sigaction(number, &action, nullptr);
    }
}

/*! The next signal ends the process. */
void releaseSignals()
{
    for (const int number : endingSignals) {
        std::signal(number, SIG_DFL);
    }
}

/*! Reads what is there and throws it away. */
bool isAtEnd(int descriptor)
{
    std::array<char, 4096> bytes{};
    const ssize_t count = read(descriptor, bytes.data(), bytes.size());
    return count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR);
}

} // namespace

class CEndRequests::Watch
{
public:
    std::unique_ptr<QSocketNotifier> signalNotifier;
    std::unique_ptr<QSocketNotifier> inputNotifier;
};

CEndRequests::CEndRequests(bool watchesInput)
    : m_watch(std::make_unique<Watch>())
{
    prepareSignalPipe();
    m_watch->signalNotifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    connect(m_watch->signalNotifier.get(), &QSocketNotifier::activated, this, [this] {
        m_watch->signalNotifier->setEnabled(false); // its byte stays in the pipe
        releaseSignals();
        request();
    });
    catchSignals();
    if (!watchesInput) {
        return;
    }
    if (fcntl(STDIN_FILENO, F_GETFD) < 0) { // closed before the start
        QMetaObject::invokeMethod(this, &CEndRequests::request, Qt::QueuedConnection);
        return;
    }
    m_watch->inputNotifier = std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read);
    connect(m_watch->inputNotifier.get(), &QSocketNotifier::activated, this, [this] {
        if (isAtEnd(STDIN_FILENO)) {
            request();
        }
    });
}

CEndRequests::~CEndRequests() = default;

void CEndRequests::request()
{
    if (m_watch->inputNotifier) {
        m_watch->inputNotifier->setEnabled(false);
    }
    if (!std::exchange(m_isRequested, true)) {
        Q_EMIT requested();
    }
}
