// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace ZyxPlatform {

/*!
    Shows \a text in the system's own message box with an error icon and one OK button, and blocks until the user
    closes it. Needs no event loop and takes no memory from the heap, so it also works when there is none left. \a
    parent is the native handle of the window it belongs to, 0 for none.

    Where the system has no box to show, the text goes to standard error.
*/
void showErrorBox(quintptr parent, const QString &text, const QString &title);

} // namespace ZyxPlatform
