// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <atomic>
#include <functional>
#include <thread>
#include <windows.h>

namespace TestSupport {

/*!
    Calls \a react, in a thread of its own, with the next visible dialog of the system in this process. A dialog that is
    open after that is closed. Make it before the call that opens the dialog.
*/
class OpenFolderDialog
{
public:
    explicit OpenFolderDialog(std::function<void(HWND)> react);
    ~OpenFolderDialog();

    Q_DISABLE_COPY_MOVE(OpenFolderDialog)

    /*! Whether there was a dialog, and it closed by what \a react did. Waits for the end. */
    bool wasEnded();

private:
    void watch();

    std::function<void(HWND)> m_react;
    std::atomic_bool m_isEnding = false;
    std::atomic_bool m_wasEnded = false;
    std::thread m_thread; // last: it uses the others
};

QString textOf(HWND window);

/*! The control that stands in \a dialog under the number of the default push button, 1. */
HWND buttonOf(HWND dialog);

/*! False if \a condition does not come true in time. */
bool waitFor(const std::function<bool()> &condition);

} // namespace TestSupport
