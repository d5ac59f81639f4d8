// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ForeignWindow.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <memory>

namespace ZyxPlatform {

namespace {

QWindow *ownWindow(quint64 id)
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *candidate : windows) {
        if (candidate->handle() && candidate->winId() == id) {
            return candidate;
        }
    }
    return nullptr;
}

/*! The object that stands for the foreign window lives as long as the child; the foreign window itself is not touched.
 */
void endWithChild(QWindow *foreign, QWindow *child)
{
    QObject::connect(child, &QObject::destroyed, [foreign](QObject *ended) {
        ended->setParent(nullptr); // else its parent would delete it once more
        const std::unique_ptr<QWindow> owner(foreign);
    });
}

} // namespace

void makeChildWindow(quint64 window, quint64 parent)
{
    QWindow *const child = ownWindow(window);
    QWindow *const foreign = child && parent != 0 ? QWindow::fromWinId(parent) : nullptr;
    if (!foreign) {
        return;
    }
    child->setParent(foreign);
    endWithChild(foreign, child);
}

} // namespace ZyxPlatform
