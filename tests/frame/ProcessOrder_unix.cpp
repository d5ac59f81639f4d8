// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ProcessOrder.h"

#include <QtCore/QDir>

#include <algorithm>

namespace TestSupport {

QList<qint64> processesInSystemOrder()
{
    QList<qint64> identifiers;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        bool isProcess = false;
        const qint64 identifier = entry.toLongLong(&isProcess);
        if (isProcess) {
            identifiers.append(identifier);
        }
    }
    std::sort(identifiers.begin(), identifiers.end()); // as the kernel walks through them
    return identifiers;
}

} // namespace TestSupport
