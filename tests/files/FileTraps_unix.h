// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <sys/types.h>

/*! What files can be on such systems, and what can go wrong with them. */
namespace FileTraps {

/*! A pipe: who opens it waits for another process. */
[[nodiscard]] bool makePipe(const QString &path);

/*! A link that says \a target, which need not be there. */
[[nodiscard]] bool makeLink(const QString &target, const QString &path);

/*!
    While it lives, the thread opens files as a user without privileges, to whom nothing belongs; in a process without
    privileges it does nothing.
*/
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();

    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    int m_user;
};

/*!
    A file system of \a size bytes on the folder \a path, that only this process sees: use it in a process of its own.
    False: this user may not, or not here.
*/
[[nodiscard]] bool mountSmallDisk(const QString &path, qint64 size);

} // namespace FileTraps
