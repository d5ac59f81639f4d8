// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QtGlobal>

/*! What the logger's tests ask of the operating system. False or 0: it can't be had here. */
namespace LogTestSystem {

/*! Permissions of files count from now on, also if the process was started by the superuser. */
[[nodiscard]] bool dropPrivileges();
void restorePrivileges();

/*! No file of this process can be written beyond \a bytes from now on, as on a full disk; 0 takes the limit away. */
[[nodiscard]] bool limitFileSize(quint64 bytes);

int threadCount();

bool canRenameOpenFiles();

/*! Points to memory that nobody may read; lives to the end of the process. */
const char *unreadableText();

} // namespace LogTestSystem
