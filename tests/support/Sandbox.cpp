// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include <QtCore/QFile>

namespace TestSupport {

Sandbox::Sandbox()
    : m_settings(m_home.path())
{
    // Where the system keeps to these variables, all of QStandardPaths moves into the temporary home.
    qputenv("HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.filePath(QStringLiteral(".config"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath(QStringLiteral(".local/share"))));
}

QString Sandbox::filePath(const QString &relativePath) const
{
    return m_home.filePath(relativePath);
}

} // namespace TestSupport
