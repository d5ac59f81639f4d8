// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/FolderDialog.h"

namespace ZyxPlatform {

std::optional<QString> chooseInSystemDialog(const FolderQuestion & /*question*/)
{
    return std::nullopt; // the folder dialogs of desktops take no files
}

} // namespace ZyxPlatform
