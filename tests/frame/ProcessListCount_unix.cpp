// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ProcessListCount.h"

#include <QtCore/qglobal.h>

#include <atomic>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>

// The program's own opendir comes before that of the C library, for all libraries of the process.

namespace {

constinit std::atomic<int> count{0};

bool isProcessFolder(const char *path)
{
    return std::strcmp(path, "/proc") == 0 || std::strcmp(path, "/proc/") == 0;
}

} // namespace

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the header has a reserved one
extern "C" Q_DECL_EXPORT DIR *opendir(const char *path)
{
    count += isProcessFolder(path) ? 1 : 0;
    return reinterpret_cast<DIR *(*)(const char *)>(dlsym(RTLD_NEXT, "opendir"))(path);
}

namespace TestSupport {

int processListCount()
{
    return count;
}

} // namespace TestSupport
