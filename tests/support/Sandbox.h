// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/SandboxSettings.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace TestSupport {

/*!
    A place of its own for a test program's settings and files: a temporary home folder and a system store of settings
    that starts empty. Make it before the first QSettings or QStandardPaths of the process, as the first member of a
    test class.
*/
class Sandbox
{
public:
    Sandbox();

    /*! Path of \a relativePath in the temporary home folder. */
    QString filePath(const QString &relativePath) const;

private:
    QTemporaryDir m_home;
    SandboxSettings m_settings;
};

} // namespace TestSupport
