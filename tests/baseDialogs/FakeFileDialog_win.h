// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "baseDialogs/TaskMemory_win.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

#include <shobjidl.h>

#include <functional>
#include <optional>

namespace TestSupport {

/*! A message as a window's procedure gets it. */
struct WindowMessage
{
    HWND window;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const WindowMessage &) const = default;
};

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

    /*!
        Changes the folder or the selection and lets \a handler know. \a change: "folder PATH", "selection PATH", either
        word alone for an item without a path, or "failing selection".
    */
    void tell(const QString &change, IFileDialog *dialog, IFileDialogEvents *handler);

    QStringList calls;
    QString failing; // a call such as "SetTitle"; "CoCreateInstance" too
    std::function<void(IFileDialogEvents *events)> whenAdvised; // before it answers
    std::function<void(IFileDialog *dialog, IFileDialogEvents *events)> whileShown;
    std::optional<QString> folder; // path of the current folder; it has none without
    std::optional<QString> selection;
    bool hasSelection = true; // whether asking for the selection works
    const HWND window; // of the dialog
    const HWND button; // its default push button
    QList<WindowMessage> buttonMessages; // that reach the button's own procedure
    QHash<UINT, LRESULT> buttonResults{{WM_LBUTTONUP, 7}}; // of that procedure; the default ones for other messages
    bool isClosed = false; // the window was told to close
    int objects = 0; // of COM, that are not released yet
    TaskMemory paths; // of items, handed out
    IFileDialogEvents *events = nullptr; // advised, with a reference

private:
    IUnknown *m_factory = nullptr;
    DWORD m_registration = 0;
};

} // namespace TestSupport
