// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/Arguments.h"

namespace ZYX_zglv6 {

QList<QString> argsToStringList(int argc, char *const argv[])
{
    QList<QString> texts;
    for (int i = 0; i < argc; ++i) {
        texts.append(QString::fromUtf8(argv[i]));
    }
    return texts;
}

} // namespace ZYX_zglv6
