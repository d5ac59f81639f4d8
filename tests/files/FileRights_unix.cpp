// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileRights.h"

#include <QtCore/QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

bool isReadOnly(const QString &path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 && (status.st_mode & 0222u) == 0;
}

bool keepsReadOnlyFolders(const QString & /*folder*/)
{
    return true;
}

OrdinaryUser::OrdinaryUser()
    : m_before(geteuid())
{
    constexpr uid_t nobody = 65534;
    if (m_before == 0 && seteuid(nobody) != 0) {
        qFatal("The process can't give up its rights.");
    }
}

OrdinaryUser::~OrdinaryUser()
{
    if (seteuid(m_before) != 0) {
        qFatal("The process has lost its rights.");
    }
}

} // namespace TestSupport
