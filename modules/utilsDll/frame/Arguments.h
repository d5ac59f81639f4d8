// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace ZYX_zglv6 {

/*!
    The arguments of main() as texts, one for each, read as UTF-8. With \a argc below 1, none: \a argv is not read then.
*/
UTILSDLL_EXPORT QList<QString> argsToStringList(int argc, char *const argv[]);

} // namespace ZYX_zglv6
