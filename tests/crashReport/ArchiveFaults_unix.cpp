// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveFaults_unix.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

namespace {

constexpr int never = 0;

struct Plan
{
    QByteArray start;
    Call call;
    int nth;
    int error;
    std::function<void()> action;
    QList<std::size_t> sizes; // of all calls so far
    bool isActing = false;
};

Plan *currentPlan = nullptr;
std::array<bool, 1024> isWatched{}; // by descriptor

bool isStarted(const char *path)
{
    return currentPlan != nullptr && QByteArray(path).startsWith(currentPlan->start);
}

bool isWatchedDescriptor(int descriptor)
{
    return descriptor >= 0 && std::size_t(descriptor) < isWatched.size() && isWatched[std::size_t(descriptor)];
}

void watch(int descriptor, const char *path)
{
    if (descriptor >= 0 && std::size_t(descriptor) < isWatched.size()) {
        isWatched[std::size_t(descriptor)] = isStarted(path);
    }
}

/*! Counts the call; true, with errno set, if it has to fail. */
bool strikes(Call call, std::size_t size = 0)
{
    Plan *plan = currentPlan;
    if (plan == nullptr || plan->isActing || plan->call != call) {
        return false;
    }
    plan->sizes.append(size);
    if (plan->sizes.size() != plan->nth) {
        return false;
    }
    if (plan->action) {
        plan->isActing = true;
        plan->action();
        plan->isActing = false;
        return false;
    }
    errno = plan->error;
    return true;
}

bool strikesPath(Call call, const char *path)
{
    return isStarted(path) && strikes(call);
}

template <typename Function>
Function *realFunction(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

Fault::Fault(const QString &start, Call call, int nth, int error)
{
    currentPlan = new Plan{QFile::encodeName(start), call, nth, error, {}, {}};
}

Fault::Fault(const QString &start, Call call, int nth, std::function<void()> action)
{
    currentPlan = new Plan{QFile::encodeName(start), call, nth, 0, std::move(action), {}};
}

Fault::Fault(const QString &start, Call call)
    : Fault(start, call, never, 0)
{
}

Fault::~Fault()
{
    delete std::exchange(currentPlan, nullptr);
}

bool Fault::hasStruck() const
{
    return currentPlan->nth != never && currentPlan->sizes.size() >= currentPlan->nth;
}

QList<std::size_t> Fault::sizes() const
{
    return currentPlan->sizes;
}

int openFileCount()
{
    return int(
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

} // namespace TestSupport

using namespace TestSupport;

#define EXPORTED extern "C" __attribute__((visibility("default")))

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name,cert-dcl50-cpp)

EXPORTED int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto real = realFunction<int(const char *, int, ...)>("open");
    if (strikesPath(Call::Open, path)) {
        return -1;
    }
    const int descriptor = real(path, flags, mode);
    watch(descriptor, path);
    return descriptor;
}

EXPORTED int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto real = realFunction<int(const char *, int, ...)>("open64");
    if (strikesPath(Call::Open, path)) {
        return -1;
    }
    const int descriptor = real(path, flags, mode);
    watch(descriptor, path);
    return descriptor;
}

EXPORTED ssize_t read(int descriptor, void *bytes, size_t size)
{
    static const auto real = realFunction<ssize_t(int, void *, size_t)>("read");
    return isWatchedDescriptor(descriptor) && strikes(Call::Read, size) ? -1 : real(descriptor, bytes, size);
}

EXPORTED ssize_t write(int descriptor, const void *bytes, size_t size)
{
    static const auto real = realFunction<ssize_t(int, const void *, size_t)>("write");
    return isWatchedDescriptor(descriptor) && strikes(Call::Write, size) ? -1 : real(descriptor, bytes, size);
}

EXPORTED ssize_t pread(int descriptor, void *bytes, size_t size, off_t offset)
{
    static const auto real = realFunction<ssize_t(int, void *, size_t, off_t)>("pread");
    return isWatchedDescriptor(descriptor) && strikes(Call::ReadAt, size) ? -1 : real(descriptor, bytes, size, offset);
}

EXPORTED ssize_t pwrite(int descriptor, const void *bytes, size_t size, off_t offset)
{
    static const auto real = realFunction<ssize_t(int, const void *, size_t, off_t)>("pwrite");
    return isWatchedDescriptor(descriptor) && strikes(Call::WriteAt, size) ? -1 : real(descriptor, bytes, size, offset);
}

EXPORTED int close(int descriptor)
{
    static const auto real = realFunction<int(int)>("close");
    const bool fails = isWatchedDescriptor(descriptor) && strikes(Call::Close);
    const int error = errno;
    if (isWatchedDescriptor(descriptor)) {
        isWatched[std::size_t(descriptor)] = false;
    }
    const int result = real(descriptor); // also when it fails: the descriptor is gone
    errno = fails ? error : errno;
    return fails ? -1 : result;
}

EXPORTED int mkdir(const char *path, mode_t mode)
{
    static const auto real = realFunction<int(const char *, mode_t)>("mkdir");
    return strikesPath(Call::MakeFolder, path) ? -1 : real(path, mode);
}

EXPORTED int remove(const char *path)
{
    static const auto real = realFunction<int(const char *)>("remove");
    return strikesPath(Call::Remove, path) ? -1 : real(path);
}

EXPORTED int unlinkat(int folder, const char *path, int flags)
{
    static const auto real = realFunction<int(int, const char *, int)>("unlinkat");
    return strikes(Call::Remove) ? -1 : real(folder, path, flags);
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name,cert-dcl50-cpp)
