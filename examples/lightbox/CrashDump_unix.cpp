// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//
// After a crash the heap and the libraries may be in any state: all that the handler needs is made in advance, and it
// calls what POSIX allows in a signal handler. backtrace() and backtrace_symbols_fd() are the exception: there is no
// back trace without them, and an alarm ends the process if they hang.
#include "CrashDump.h"
#include "CrashDump_p.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <array>
#include <atomic>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <exception>

#include <execinfo.h>
#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

namespace {

constexpr std::size_t stackSize = 262'144; // instrumented builds need more of it than others
constexpr int mostFrames = 64;
constexpr unsigned patienceSeconds = 20; // a dump takes far less than one
constexpr mode_t ownerOnly = 0600; // memory of the process may hold what is nobody else's business

struct FatalSignal
{
    int number;
    const char *name;
};

constexpr std::array<FatalSignal, 5> fatalSignals{
    {{SIGSEGV, "SIGSEGV"}, {SIGABRT, "SIGABRT"}, {SIGFPE, "SIGFPE"}, {SIGILL, "SIGILL"}, {SIGBUS, "SIGBUS"}}};

// Filled in advance.
std::array<char, 4096> dumpPath;
std::array<char, 256> programName;
std::array<char, 1024> exceptionText;
alignas(16) std::array<char, stackSize> handlerStack;

std::atomic<pthread_t> dumpingThread{};

void writeText(int file, const char *text)
{
    static_cast<void>(!write(file, text, std::strlen(text))); // there is nobody to tell
}

void writeNumber(int file, std::size_t number, unsigned base)
{
    std::array<char, 24> digits{};
    std::size_t at = digits.size() - 1;
    do {
        digits.at(--at) = "0123456789abcdef"[number % base];
        number /= base;
    } while (number != 0);
    writeText(file, digits.data() + at);
}

void writeLine(int file, const char *name, const char *value)
{
    writeText(file, name);
    writeText(file, value);
    writeText(file, "\n");
}

const char *nameOf(int signal)
{
    for (const FatalSignal &fatal : fatalSignals) {
        if (fatal.number == signal) {
            return fatal.name;
        }
    }
    return "";
}

void writeHead(int file, int signal, const siginfo_t &info)
{
    writeLine(file, "Program: ", programName.data());
    writeText(file, "Process: ");
    writeNumber(file, std::size_t(getpid()), 10);
    writeText(file, "\nSignal: ");
    writeNumber(file, std::size_t(signal), 10);
    writeLine(file, " ", nameOf(signal));
    if (info.si_code > 0) { // by the processor; otherwise there is a sender in its place
        writeText(file, "Fault address: 0x");
        writeNumber(file, reinterpret_cast<std::size_t>(info.si_addr), 16);
        writeText(file, "\n");
    }
    if (exceptionText.front() != '\0') {
        writeLine(file, "Exception: ", exceptionText.data());
    }
}

void writeBackTrace(int file)
{
    std::array<void *, mostFrames> frames{};
    writeText(file, "\nBack trace:\n");
    backtrace_symbols_fd(frames.data(), backtrace(frames.data(), mostFrames), file);
}

void writeMemoryMap(int file)
{
    writeText(file, "\nMemory map:\n");
    const int map = open("/proc/self/maps", O_RDONLY | O_CLOEXEC);
    if (map < 0) {
        return;
    }
    std::array<char, 4096> block{};
    for (ssize_t size = 0; (size = read(map, block.data(), block.size())) > 0;) {
        static_cast<void>(!write(file, block.data(), std::size_t(size)));
    }
    close(map);
}

/*! The first thread goes on; another waits until that one ends the process. False: the handler itself has crashed. */
bool isFirstCrash()
{
    pthread_t first{};
    if (dumpingThread.compare_exchange_strong(first, pthread_self())) {
        return true;
    }
    while (pthread_equal(first, pthread_self()) == 0) {
        pause();
    }
    return false;
}

void writeDump(int signal, const siginfo_t &info)
{
    const int file = open(dumpPath.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ownerOnly);
    if (file >= 0) {
        writeHead(file, signal, info);
        writeBackTrace(file);
        writeMemoryMap(file);
        close(file);
    }
}

void onFatalSignal(int signal, siginfo_t *info, void * /*context*/)
{
    if (isFirstCrash()) {
        std::signal(SIGALRM, SIG_DFL); // which ends the process
        alarm(patienceSeconds);
        writeDump(signal, *info);
    }
    std::signal(signal, SIG_DFL); // not sooner: it counts for all threads
    raise(signal); // comes when this returns
}

[[noreturn]] void onTerminate()
{
    describeCurrentException(exceptionText.data(), exceptionText.size());
    std::abort();
}

void fill(char *buffer, std::size_t size, const QByteArray &text)
{
    qstrncpy(buffer, text.constData(), size);
}

} // namespace

void installCrashDump()
{
    fill(dumpPath.data(), dumpPath.size(), QFile::encodeName(crashDumpPath()));
    fill(programName.data(), programName.size(), QCoreApplication::applicationName().toUtf8());
    void *frame = nullptr;
    backtrace(&frame, 1); // loads its library, for which it needs the heap

    stack_t stack{};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    sigaltstack(&stack, nullptr); // of the main thread; a stack that has overflown is no place for a handler

    struct sigaction action
    {
    };
    action.sa_sigaction = onFatalSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const FatalSignal &fatal : fatalSignals) {
        sigaddset(&action.sa_mask, fatal.number); // a crash of the handler ends the process
    }
    for (const FatalSignal &fatal : fatalSignals) {
        sigaction(fatal.number, &action, nullptr);
    }
    std::set_terminate(onTerminate);
}
