// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/UserInput.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QCursor>
#include <QtTest/QTest>

namespace TestSupport {

bool EventRecorder::event(QEvent *event)
{
    types.append(event->type());
    if (reaction) {
        reaction();
    }
    return QObject::event(event);
}

bool isSeen(EventRecorder &receiver, QEvent::Type type)
{
    const qsizetype countBefore = receiver.types.count(type);
    QEvent event(type);
    QCoreApplication::sendEvent(&receiver, &event);
    return receiver.types.count(type) > countBefore;
}

bool MouseWindow::event(QEvent *event)
{
    moves += event->type() == QEvent::MouseMove ? 1 : 0;
    return QWindow::event(event);
}

bool MouseWindow::showUnderCursor()
{
    setGeometry(100, 100, 200, 200);
    show();
    const bool isExposed = QTest::qWaitForWindowExposed(this);
    QCursor::setPos(geometry().topLeft() + QPoint(10, 10));
    const bool isReached = QTest::qWaitFor([this] { return moves > 0; });
    moves = 0;
    return isExposed && isReached;
}

void MouseWindow::queueMove() const
{
    QCursor::setPos(geometry().center());
}

} // namespace TestSupport
