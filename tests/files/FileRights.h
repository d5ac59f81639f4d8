// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace TestSupport {

/*! True if nobody may write what is at \a path, or where a link there leads. */
bool isReadOnly(const QString &path);

/*! False where the system takes the mark for a folder but forgets it, as Wine does. Tries it on \a folder. */
bool keepsReadOnlyFolders(const QString &folder);

/*! While it lives, an administrator's process has no more rights than anybody. Does nothing where there are none. */
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();

    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    unsigned m_before;
};

} // namespace TestSupport
