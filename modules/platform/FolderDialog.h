// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <optional>

namespace ZyxPlatform {

struct FolderQuestion
{
    quint64 owner = 0; // native id of the window that waits for the answer
    QString title; // empty: the system's own
    QString directory; // where to begin, with native separators; the system's own choice if there is no such folder
    QString filterName;
    QString filterSpecification; // patterns, ";" between them
    QString buttonLabel; // empty: the system's own
};

/*!
    Lets the user choose a file or a folder in the system's dialog and waits. The answer is what is selected when the
    mouse is released on the button, else the folder that is shown; empty if the dialog was closed otherwise or could
    not be made. Nothing where the system has no such dialog. Main thread only, one at a time.
*/
std::optional<QString> chooseInSystemDialog(const FolderQuestion &question);

} // namespace ZyxPlatform
