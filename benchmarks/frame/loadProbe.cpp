// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// loadProbe MODULE [DEPENDENCY ...]
//
// Loads the dependencies, then the module, and tells what the latter cost: nanoseconds, minor page faults and KiB of
// the module in memory in the first line, then the paths of all that is loaded now.

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include <dlfcn.h>
#include <link.h>
#include <sys/resource.h>

namespace {

bool load(const char *path)
{
    if (dlopen(path, RTLD_NOW | RTLD_GLOBAL) == nullptr) {
        std::cerr << dlerror() << '\n';
        return false;
    }
    return true;
}

long minorFaults()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_minflt;
}

/*! KiB of a file's mappings that are in memory: "Rss:" of each of its sections of /proc/self/smaps. */
long residentKibibytes(const std::string &path)
{
    std::ifstream maps("/proc/self/smaps");
    long sum = 0;
    bool isOfFile = false;
    for (std::string line; std::getline(maps, line);) {
        std::istringstream words(line);
        std::string first;
        words >> first;
        if (first.find('-') != std::string::npos) { // "from-to rights offset device inode path"
            isOfFile = line.ends_with(path);
        } else if (first == "Rss:" && isOfFile) {
            long kibibytes = 0;
            words >> kibibytes;
            sum += kibibytes;
        }
    }
    return sum;
}

int printPath(dl_phdr_info *info, std::size_t /*size*/, void * /*data*/)
{
    if (info->dlpi_name[0] == '/') {
        std::cout << info->dlpi_name << '\n';
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 2 || !std::all_of(argv + 2, argv + argc, load)) {
        return 1;
    }
    const long faultsBefore = minorFaults();
    const auto before = std::chrono::steady_clock::now();
    if (!load(argv[1])) {
        return 1;
    }
    const auto after = std::chrono::steady_clock::now();
    const long faultsAfter = minorFaults();
    std::cout << std::chrono::nanoseconds(after - before).count() << ' ' << faultsAfter - faultsBefore << ' '
              << residentKibibytes(argv[1]) << '\n';
    dl_iterate_phdr(printPath, nullptr);
    return 0;
}
