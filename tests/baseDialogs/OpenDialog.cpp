// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/OpenDialog.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>

namespace TestSupport {

OpenDialog::OpenDialog(std::function<void(QFileDialog &)> react)
    : m_react(std::move(react))
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { watch(); });
    m_timer.start(10);
}

bool OpenDialog::wasEnded() const
{
    return m_wasEnded;
}

void OpenDialog::watch()
{
    const QPointer<QFileDialog> dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) {
        return;
    }
    m_timer.stop();
    m_react(*dialog);
    m_wasEnded = !dialog || !dialog->isVisible();
    if (!m_wasEnded) {
        dialog->reject();
    }
}

QPushButton *buttonOf(const QFileDialog &dialog)
{
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->text() == u"Select Folder") {
            return button;
        }
    }
    return nullptr;
}

} // namespace TestSupport
