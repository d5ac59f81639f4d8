// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "DialogPicture.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QFileSystemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

namespace {

constexpr int watchdogMs = 10'000;

QDialog *shownDialog()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *dialog = qobject_cast<QDialog *>(window);
        if (dialog && dialog->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

/*! A file dialog reads its folder in another thread. */
bool isFilled(const QDialog &dialog)
{
    const auto *files = dialog.findChild<QFileSystemModel *>();
    return !files || files->rowCount(files->index(files->rootPath())) > 0;
}

} // namespace

bool visitDialog(const std::function<void()> &open, const std::function<void(QDialog &)> &visit)
{
    const QDeadlineTimer deadline(watchdogMs);
    bool isVisited = false;
    const QDialog *seen = nullptr;
    QEventLoop wait;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QDialog *dialog = shownDialog();
        if (!dialog && deadline.hasExpired()) {
            wait.quit();
        }
        const bool isReady = dialog && dialog == seen && (isFilled(*dialog) || deadline.hasExpired());
        seen = dialog; // its layout has been settled by the next time
        if (isReady) {
            timer.stop();
            isVisited = true;
            visit(*dialog);
            dialog->done(QDialog::Rejected);
            wait.quit();
        }
    });
    timer.start(0);
    open();
    if (!isVisited) {
        wait.exec();
    }
    return isVisited;
}

QPixmap pictureOfDialog(const std::function<void()> &open)
{
    QPixmap picture;
    visitDialog(open, [&picture](QDialog &dialog) { picture = dialog.grab(); });
    return picture;
}
