// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace TestSupport {

// What somebody may put in an archive's way. False where the system has none, or none for tests.

bool makeFifo(const QString &path);
bool makeLink(const QString &target, const QString &path);

/*! The most memory that the process has had so far, in bytes; 0 where the system does not tell. */
qint64 peakMemory();

} // namespace TestSupport
