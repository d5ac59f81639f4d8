// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! Whether the library's dialog for folders and files is one of its own, and not the system's. */
bool isFileBrowserPainted();
