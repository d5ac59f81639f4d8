// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/MachineStore.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>

namespace TestSupport {

MachineStore::MachineStore(const Sandbox &sandbox)
    : m_path(sandbox.filePath(QStringLiteral("systemSettings/Zyx Labs/Zyx Grainlab 6.conf")))
{
}

MachineStore::~MachineStore()
{
    QFile::remove(m_path);
}

void MachineStore::setValue(const QString &key, const QString &value)
{
    QSettings(m_path, QSettings::IniFormat).setValue(key, value);
}

} // namespace TestSupport
