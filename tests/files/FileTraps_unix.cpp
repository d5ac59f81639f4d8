// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"

#include <QtCore/QFile>

#include <sched.h>
#include <sys/fsuid.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FileTraps {

namespace {

constexpr uid_t ordinaryUser = 65534; // "nobody"

} // namespace

bool makePipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0;
}

bool makeLink(const QString &target, const QString &path)
{
    return symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()) == 0;
}

OrdinaryUser::OrdinaryUser()
    : m_user(geteuid() == 0 ? setfsuid(ordinaryUser) : -1)
{
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_user >= 0) {
        setfsuid(uid_t(m_user));
    }
}

bool mountSmallDisk(const QString &path, qint64 size)
{
    const QByteArray options = "size=" + QByteArray::number(size);
    return unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount("none", QFile::encodeName(path).constData(), "tmpfs", 0, options.constData()) == 0;
}

} // namespace FileTraps
