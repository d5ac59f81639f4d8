// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT

// Hours of a busy host in one program: random input, busy phases, waits, work on threads, delayed calls, and panels
// that come and go, while a ledger knows what the gate for commands has to do. CTest runs it for some seconds. For
// longer:
//
//     cmake --preset asan && cmake --build --preset asan --target soak
//     QT_QPA_PLATFORM=offscreen build/asan/bin/soak --seconds 3600 --seed 7
//
// Without --seed it takes one by chance and prints it. The exit code is 0 if all was well, 1 if the ledger found a
// problem, 2 with wrong arguments and 3 if the main loop hung for a minute.
#include "soak/Host.h"
#include "soak/Messages.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <random>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption secondsOption(u"seconds"_qs, u"How long to work"_qs, u"N"_qs, u"8"_qs);
    const QCommandLineOption seedOption(u"seed"_qs, u"Of the random numbers"_qs, u"S"_qs,
                                        QString::number(std::random_device{}()));
    parser.addOptions({secondsOption, seedOption});
    parser.process(application);
    bool isSecondsRight = false;
    bool isSeedRight = false;
    const int seconds = parser.value(secondsOption).toInt(&isSecondsRight);
    const quint32 seed = parser.value(seedOption).toUInt(&isSeedRight);
    if (!isSecondsRight || !isSeedRight || seconds < 0) {
        std::fputs("soak: --seconds and --seed take numbers\n", stderr);
        return 2;
    }
    std::printf("soak: %d seconds with seed %u\n", seconds, seed);
    std::fflush(stdout);

    Messages::install();
    Host host(seed);
    host.run(seconds);
    return host.report() ? 0 : 1;
}
