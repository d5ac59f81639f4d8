// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace UtilsDll {

/*! Version of a program's file. All four numbers 0: the version is unknown. */
struct UTILSDLL_EXPORT BinaryVersion
{
    BinaryVersion(quint32 major, quint32 minor, quint32 build, quint32 revision);
    BinaryVersion(const BinaryVersion &other);
    BinaryVersion(BinaryVersion &&other) noexcept;
    BinaryVersion &operator=(const BinaryVersion &other);
    BinaryVersion &operator=(BinaryVersion &&other) noexcept;
    ~BinaryVersion();

    QString name; // for the user of the record: the library leaves it empty
    quint32 major;
    quint32 minor;
    quint32 build;
    quint32 revision;
};

/*! Base name of the current process's executable, with its extension. */
UTILSDLL_EXPORT QString currentProcessName();

/*!
    File version of the first running process whose executable has the base name \a processName, compared without
    regard to case. The zero record for an empty name, and where there is no such process or its file carries no
    version.

    On Windows the file's version resource; the file stays loaded for the rest of the process. Elsewhere the note that
    the CMake function zyx_stamp_version() puts into a program.
*/
UTILSDLL_EXPORT BinaryVersion binaryFileVersionByProcessName(const QString &processName);

} // namespace UtilsDll
