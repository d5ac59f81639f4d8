// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZYX_zglv6 {

/*!
    \a name with the first extension of \a filter, "Name (*.a *.b)", in the place of a raw one or of none. A name with
    any other extension comes back as it is.
*/
QString proposedFileName(const QString &name, const QString &filter);

} // namespace ZYX_zglv6
