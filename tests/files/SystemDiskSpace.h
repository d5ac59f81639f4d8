// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/*! Bytes that the system itself says the user may still write on the volume of \a folder; -1 if it does not say. */
qint64 systemDiskSpace(const QString &folder);
