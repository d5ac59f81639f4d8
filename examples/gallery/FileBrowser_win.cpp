// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "FileBrowser.h"

bool isFileBrowserPainted()
{
    return false;
}
