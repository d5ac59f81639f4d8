// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/FaultRuns_unix.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <csignal>

namespace TestSupport {

QStringList FaultRun::errors() const
{
    return lines.filter(QRegularExpression(u"^ERROR "_qs));
}

void runWithEachCallFailing(const QString &start, Call call, int error, const TestLog &log,
                            const std::function<bool()> &work, const std::function<void(const FaultRun &)> &check)
{
    const int filesBefore = openFileCount();
    FaultRun run;
    do {
        ++run.nth;
        const qsizetype before = log.records().size();
        {
            const Fault fault(start, call, run.nth, error);
            run.result = work();
            run.hasStruck = fault.hasStruck();
        }
        run.lines = log.records().mid(before);
        QCOMPARE(openFileCount(), filesBefore);
        QVERIFY2(run.hasStruck || run.errors().isEmpty(), qPrintable(run.lines.join(u'\n')));
        check(run);
    } while (run.hasStruck && !QTest::currentTestFailed());
    QVERIFY(run.nth > 1);
}

FileSizeLimit::FileSizeLimit(rlim_t size)
{
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{size, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
}

} // namespace TestSupport
