// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "common/OwnStore.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QSettings>

void useOwnStore(const QString &workFolder)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, workFolder + u"/settings");
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, workFolder + u"/machine");
    qputenv("XDG_DATA_HOME", QFile::encodeName(workFolder + u"/share"));
}

void noteInstallation()
{
    QSettings machine(QSettings::NativeFormat, QSettings::SystemScope, ZYX_zglv6::organizationName,
                      ZYX_zglv6::productDisplayName);
    machine.setValue(ZYX_zglv6::pluginFolderKey, QCoreApplication::applicationDirPath());
}
