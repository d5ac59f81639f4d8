// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "crashReport/ArchiveFaults_unix.h"
#include "support/TestLog.h"

#include <QtCore/QStringList>

#include <functional>

#include <sys/resource.h>

namespace TestSupport {

struct FaultRun
{
    int nth = 0; // the call that failed
    bool hasStruck = false; // false of the last run: there are no more such calls
    bool result = false; // of the work
    QStringList lines; // logged meanwhile

    QStringList errors() const;
};

/*!
    Does \a work with the first \a call failing, then with the second, and so on down to a run without a failure, which
    may not log an error. Nothing may stay open. \a check looks at each run; the first failed comparison ends the test.
*/
void runWithEachCallFailing(const QString &start, Call call, int error, const TestLog &log,
                            const std::function<bool()> &work, const std::function<void(const FaultRun &)> &check);

/*! While it lives, no file of this process gets larger, as on a disk that is full. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size);
    ~FileSizeLimit();

    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before{};
};

} // namespace TestSupport
