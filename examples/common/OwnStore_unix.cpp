// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "common/OwnStore.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>

void useOwnStore(const QString &workFolder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, workFolder + u"/settings");
    qputenv("XDG_DATA_HOME", QFile::encodeName(workFolder + u"/share"));
}
