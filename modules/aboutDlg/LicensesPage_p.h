// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class QFile;

namespace ZYX_zglv6 {

/*!
    The folder of the licence files, whether it exists or not; empty if the installation does not tell. It is asked
    until it has told once. Main thread only.
*/
QString get3rdPartyLicensesDir();

/*! The rest of an open text file, "<br>" after each line. Empty for null. Fills in the blanks of log4cplus's licence.
 */
QString readLicenseFile(QFile *file);

/*! The texts of all licence files in \a folder, without empty ones, and without those that are too large for the page.
 */
QStringList readLicenseFiles(const QString &folder);

/*! The page in HTML. Both %1 of \a acknowledgement become the line that also stands between the texts. */
QString createLicensesPage(const QString &acknowledgement, const QStringList &texts);

} // namespace ZYX_zglv6
