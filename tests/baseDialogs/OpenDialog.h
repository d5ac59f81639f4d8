// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPushButton>

#include <functional>

namespace TestSupport {

/*!
    Calls \a react with the next file dialog that opens, out of its event loop. A dialog that is open after that is
    rejected. One at a time; made before the call that opens the dialog.
*/
class OpenDialog
{
public:
    explicit OpenDialog(std::function<void(QFileDialog &)> react);

    /*! Whether there was a dialog, and it closed by what \a react did. */
    bool wasEnded() const;

private:
    void watch();

    std::function<void(QFileDialog &)> m_react;
    QTimer m_timer;
    bool m_wasEnded = false;
};

/*! The button of a folder dialog that accepts; null if there is none. */
QPushButton *buttonOf(const QFileDialog &dialog);

} // namespace TestSupport
