// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

namespace CrashTest {

using Entries = QMap<QString, QByteArray>; // name and content

/*! The entries of an archive, unpacked by the library. */
Entries entriesOf(const QString &archive);
Entries entriesOfBytes(const QByteArray &archive);

/*! The same, read by Python; \a isAvailable says whether there is one. */
Entries entriesByPython(const QString &archive, bool &isAvailable);

/*! The report's description as it is told. */
QByteArray expectedReport(const QByteArray &product, const QByteArray &config, const QByteArray &userId,
                          const QByteArray &email, const QByteArray &comments);

} // namespace CrashTest
