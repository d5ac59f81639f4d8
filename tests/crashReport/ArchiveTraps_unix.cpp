// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveTraps.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <sys/stat.h>

namespace TestSupport {

bool makeFifo(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

bool makeLink(const QString &target, const QString &path)
{
    return QFile::link(target, path);
}

qint64 peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    static const QRegularExpression form(QStringLiteral("VmHWM:\\s*(\\d+) kB"));
    return form.match(QString::fromLatin1(status.readAll())).captured(1).toLongLong() * 1024;
}

} // namespace TestSupport
