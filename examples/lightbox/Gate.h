// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/actions/ActionManager.h"

/*! Through which all commands of the window go. */
inline ZYX_zglv6::CActionManager &gate()
{
    return Singleton<ZYX_zglv6::CActionManager>::instance();
}
