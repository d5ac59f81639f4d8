// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LogTestSystem.h"

#include <QtCore/QDir>

#include <csignal>

#include <grp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace LogTestSystem {

namespace {

bool wasSuperuser = false;

} // namespace

bool dropPrivileges()
{
    constexpr uid_t nobody = 65534;
    wasSuperuser = geteuid() == 0;
    // the saved identity stays, for the way back
    return !wasSuperuser || (setgroups(0, nullptr) == 0 && setresuid(nobody, nobody, 0) == 0);
}

void restorePrivileges()
{
    if (wasSuperuser && setresuid(0, 0, 0) == 0) {
        prctl(PR_SET_DUMPABLE, 1); // taken away by the change of identity; leak checks need it
    }
}

bool limitFileSize(quint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // a write beyond the limit then fails
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0) {
        return false;
    }
    limit.rlim_cur = bytes == 0 ? limit.rlim_max : bytes;
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

int threadCount()
{
    return static_cast<int>(
        QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}

bool canRenameOpenFiles()
{
    return true;
}

const char *unreadableText()
{
    void *memory = mmap(nullptr, 1, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : static_cast<const char *>(memory);
}

} // namespace LogTestSystem
