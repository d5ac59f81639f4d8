// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! Of those whose names were asked for. */
struct PictureCounts
{
    int wanted = 0;
    int failed = 0; // could not be taken or written

    void add(bool isWritten)
    {
        ++wanted;
        failed += isWritten ? 0 : 1;
    }

    PictureCounts &operator+=(const PictureCounts &other)
    {
        wanted += other.wanted;
        failed += other.failed;
        return *this;
    }
};
