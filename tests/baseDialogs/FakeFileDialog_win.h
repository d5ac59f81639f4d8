// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

#include <shobjidl.h>

#include <functional>
#include <optional>

namespace TestSupport {

/*!
    Stands in for the system's file dialog in this process while it lives: COM looks among the registered class objects
    first. Writes down each call, and answers "fails" to the one that is named so.
*/
class FakeFileDialog
{
public:
    FakeFileDialog();
    ~FakeFileDialog();

    Q_DISABLE_COPY_MOVE(FakeFileDialog)

    QStringList calls;
    QString failing; // a call such as "SetTitle"; "CoCreateInstance" too
    std::function<void(IFileDialog *dialog, IFileDialogEvents *events)> whileShown;
    std::optional<QString> folder; // path of the current folder; it has none without
    std::optional<QString> selection;
    bool hasSelection = true; // whether asking for the selection works
    const HWND window; // of the dialog
    const HWND button; // its default push button
    QList<LPARAM> buttonReleases; // that reach the button's own procedure
    bool isClosed = false; // the window was told to close
    int objects = 0; // of COM, that are not released yet
    IFileDialogEvents *events = nullptr; // advised, with a reference

private:
    IUnknown *m_factory = nullptr;
    DWORD m_registration = 0;
};

} // namespace TestSupport
