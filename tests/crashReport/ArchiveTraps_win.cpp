// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveTraps.h"

namespace TestSupport {

bool makeFifo(const QString & /*path*/)
{
    return false; // pipes have no place among the files
}

bool makeLink(const QString & /*target*/, const QString & /*path*/)
{
    return false; // takes a right that tests don't have
}

qint64 peakMemory()
{
    return 0;
}

} // namespace TestSupport
