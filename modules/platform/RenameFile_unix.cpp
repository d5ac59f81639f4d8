// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/RenameFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

namespace ZyxPlatform {

namespace {

/*!
    For file systems that can't rename without replacing. Without second names, and for folders, what appears between
    the look and the renaming would be replaced.
*/
bool renameByLink(const char *from, const char *to)
{
    if (linkat(AT_FDCWD, from, AT_FDCWD, to, 0) == 0) {
        if (unlink(from) == 0) {
            return true;
        }
        unlink(to);
        return false;
    }
    const bool hasNoLinks = errno == EPERM || errno == ENOSYS || errno == EOPNOTSUPP;
    return hasNoLinks && faccessat(AT_FDCWD, to, F_OK, AT_SYMLINK_NOFOLLOW) != 0 && std::rename(from, to) == 0;
}

/*! Where the other volume keeps no times, the copy is of now. */
void copyTimes(const char *from, const char *to)
{
    struct stat status
    {
    };
    if (stat(from, &status) == 0) {
        const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
        utimensat(AT_FDCWD, to, times.data(), 0);
    }
}

/*! A link would become a file: it stays, as a folder does. */
bool moveToOtherVolume(const QString &from, const QString &to)
{
    const QFileInfo file(from);
    if (!file.isFile() || file.isSymLink() || !QFile::copy(from, to)) {
        return false;
    }
    copyTimes(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
    if (!QFile::remove(from)) {
        QFile::remove(to);
        return false;
    }
    return true;
}

} // namespace

bool renameFile(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (source == target) { // as on Windows, its own name is no name that is taken
        return faccessat(AT_FDCWD, source.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    }
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (errno == EXDEV) {
        return moveToOtherVolume(from, to);
    }
    const bool isUnknown = errno == EINVAL || errno == ENOSYS;
    return isUnknown && renameByLink(source.constData(), target.constData());
}

} // namespace ZyxPlatform
