// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soak/Messages.h"

#include <QtCore/QMutex>
#include <QtCore/QMutexLocker>

namespace {

struct Collected
{
    QMutex mutex;
    int deletedActions = 0;
    QStringList unexpected;
};

Collected &collected()
{
    static Collected instance;
    return instance;
}

void collect(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &text)
{
    constexpr qsizetype mostKept = 50; // one mistake tends to be reported a thousand times
    Collected &all = collected();
    const QMutexLocker locker(&all.mutex);
    if (text.startsWith(u"ASSERT_X_RETURN in ") && text.endsWith(u": Action was deleted!!!")) {
        ++all.deletedActions;
    } else if (!text.startsWith(u"This plugin does not support") && all.unexpected.size() < mostKept) {
        all.unexpected.append(text);
    }
}

} // namespace

void Messages::install()
{
    qInstallMessageHandler(collect);
}

int Messages::deletedActionReports()
{
    const QMutexLocker locker(&collected().mutex);
    return collected().deletedActions;
}

QStringList Messages::unexpected()
{
    const QMutexLocker locker(&collected().mutex);
    return collected().unexpected;
}
