// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <array>
#include <optional>

namespace ZyxPlatform {

/*! The four numbers of a file version, the most significant first. */
using FileVersion = std::array<quint32, 4>;

/*! Base name of the running program's file, with its extension; empty if the system does not tell. */
QString currentProcessName();

/*!
    Path of the file that the first running process with the base name \a name was started from, compared without regard
    to case. Processes that can't be inspected are passed over; a match whose path can't be had ends the search.
    Empty: no such process, or no path.
*/
QString pathOfFirstProcessNamed(const QString &name);

/*! The version that the build put into the program or module at \a path; none if it has none or can't be read. */
std::optional<FileVersion> fileVersion(const QString &path);

} // namespace ZyxPlatform
