// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace TestSupport {

/*!
    What the ini file \a path holds on disk under \a key. A second QSettings on the same file would not tell: within a
    process it also sees what is still waiting to be written.
*/
QVariant valueOnDisk(const QString &path, const QString &key);

/*! Makes the file \a path anew, with its folder. */
void writeFile(const QString &path, const QByteArray &content);

} // namespace TestSupport
