// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PeakMemory.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QProcess>

#include <cstdio>

double peakOfThisProcess()
{
    QFile status(u"/proc/self/status"_qs);
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6, 20).trimmed().split(' ').front().toDouble() / 1024;
}

double peakInOwnProcess(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), QStringList{u"--peak"_qs} + arguments);
    process.waitForFinished(-1);
    return process.readAllStandardOutput().toDouble();
}

int printPeak(const std::function<bool()> &work)
{
    const double before = peakOfThisProcess();
    if (!work()) {
        return 1;
    }
    std::printf("%.1f\n", peakOfThisProcess() - before);
    return 0;
}
