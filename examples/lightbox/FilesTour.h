// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>

/*!
    Shows what the library does with names and files, on copies of \a photo of \a size pixels in a folder of their own
    below \a workFolder that is gone afterwards. The answer says in words what came of it.
*/
QString tourFiles(const QString &photo, QSize size, const QString &workFolder);
