// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "TrashCan.h"

std::optional<QStringList> TrashCan::names()
{
    return {};
}

void TrashCan::empty()
{
}
