// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>

enum class ArchiveVerdict {
    Good,
    NotAnArchive,
    DamagedArchive, // an entry can't be read to its end, or has another checksum
    TooManyEntries, // more than 1,000
    UnsafeName, // of 256 bytes and more, or one that unpacking might place outside of its folder
    TooMuchContent, // more than 256 MiB unpacked
    NoReport, // no entry "report.xml"
};

/*!
    Whether \a archive is a zip archive that can be unpacked without a risk, entry by entry to the end, and that has a
    report in it. From any thread.
*/
ArchiveVerdict checkArchive(const QByteArray &archive);
