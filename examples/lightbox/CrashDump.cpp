// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CrashDump.h"

#include "CrashDump_p.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QThread>
#include <QtCore/QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeinfo>

#if __has_include(<cxxabi.h>)
#include <cxxabi.h>
#endif

using namespace ZYX_zglv6;

namespace {

void writeToNowhere()
{
    // Volatile, and not null: neither compilers nor sanitizers look through it.
    volatile quintptr nowhere = 16;
    *reinterpret_cast<volatile int *>(quintptr(nowhere)) = 1; // NOLINT(performance-no-int-to-ptr)
}

void startCrashingThreads()
{
    constexpr int threadCount = 4;
    for (int i = 0; i < threadCount; ++i) {
        QThread::create(writeToNowhere)->start(); // nobody is left to delete it
    }
}

void throwSomething()
{
    throw std::runtime_error("The film has torn");
}

/*! Not through the event loop: what an exception does there is the system's own matter. */
void throwUncaught() noexcept
{
    void (*volatile thrower)() = throwSomething;
    thrower();
}

std::string readableName(const std::type_info &type)
{
#if __has_include(<cxxabi.h>)
    int status = 0;
    const std::unique_ptr<char, void (*)(void *)> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status),
                                                       std::free);
    return name ? name.get() : type.name();
#else
    return type.name();
#endif
}

} // namespace

QString crashDumpPath()
{
    return CStorageLocation::crashTempFilesPath()
        + u"%1-%2-%3.dmp"_qs.arg(QCoreApplication::applicationName(),
                                 QString::number(QCoreApplication::applicationPid()),
                                 QDateTime::currentDateTime().toString(u"yyyyMMddhhmmss"_qs));
}

void describeCurrentException(char *text, std::size_t size) noexcept
{
    const std::exception_ptr current = std::current_exception();
    if (!current) {
        return;
    }
    try {
        std::rethrow_exception(current);
    } catch (const std::exception &exception) {
        std::snprintf(text, size, "%s: %s", readableName(typeid(exception)).c_str(), exception.what());
    } catch (...) {
        std::snprintf(text, size, "of a type that is not derived from std::exception");
    }
}

Crash crashFromName(const QString &name)
{
    if (name == u"signal") {
        return Crash::Signal;
    }
    if (name == u"threads") {
        return Crash::Threads;
    }
    return name == u"exception" ? Crash::Exception : Crash::None;
}

void crashNow(Crash crash)
{
    if (crash == Crash::Threads) {
        startCrashingThreads();
    }
    if (crash != Crash::Exception) {
        writeToNowhere();
    }
    throwUncaught();
    std::abort(); // not reached
}
