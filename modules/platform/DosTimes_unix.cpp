// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/DosTimes.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <ctime>

namespace ZyxPlatform {

namespace {

using FileStatus = struct stat;

constexpr int firstYear = 1980 - 1900; // as std::tm counts
constexpr int lastYear = 2107 - 1900;

std::uint32_t bits(int value, int shift)
{
    return static_cast<std::uint32_t>(value) << shift;
}

int part(std::uint32_t dosTime, int shift, std::uint32_t mask)
{
    return static_cast<int>((dosTime >> shift) & mask);
}

/*! The broken-down time of \a dosTime, whose parts may be none of a calendar. */
std::tm timeOf(std::uint32_t dosTime)
{
    std::tm time{};
    time.tm_year = part(dosTime, 25, 0x7f) + firstYear;
    time.tm_mon = part(dosTime, 21, 0x0f) - 1;
    time.tm_mday = part(dosTime, 16, 0x1f);
    time.tm_hour = part(dosTime, 11, 0x1f);
    time.tm_min = part(dosTime, 5, 0x3f);
    time.tm_sec = part(dosTime, 0, 0x1f) * 2;
    time.tm_isdst = -1; // what is in force then
    return time;
}

bool isInCalendar(const std::tm &time)
{
    return time.tm_mon >= 0 && time.tm_mon < 12 && time.tm_mday >= 1 && time.tm_hour < 24 && time.tm_min < 60
        && time.tm_sec < 60;
}

} // namespace

std::uint32_t lastWriteDosTime(const char *path)
{
    FileStatus status{};
    std::tm time{};
    if (stat(path, &status) != 0 || localtime_r(&status.st_mtime, &time) == nullptr || time.tm_year < firstYear
        || time.tm_year > lastYear) {
        return 0;
    }
    return bits(time.tm_year - firstYear, 25) | bits(time.tm_mon + 1, 21) | bits(time.tm_mday, 16)
        | bits(time.tm_hour, 11) | bits(time.tm_min, 5) | bits(time.tm_sec / 2, 0);
}

void setDosTime(const char *path, std::uint32_t dosTime)
{
    std::tm time = timeOf(dosTime);
    if (!isInCalendar(time)) {
        return;
    }
    std::array<timespec, 2> times{}; // of reading and of writing
    times[0].tv_nsec = UTIME_OMIT;
    const int day = time.tm_mday;
    times[1].tv_sec = std::mktime(&time);
    if (time.tm_mday != day) {
        return; // that month has no such day
    }
    utimensat(AT_FDCWD, path, times.data(), 0);
}

} // namespace ZyxPlatform
