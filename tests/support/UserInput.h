// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QEvent>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QWindow>

#include <functional>

namespace TestSupport {

/*! Writes down the types of the events that it gets, and calls back at each. */
class EventRecorder : public QObject
{
public:
    QList<int> types;
    std::function<void()> reaction;

    bool event(QEvent *event) override;
};

/*! Whether an event of \a type that is sent to \a receiver gets through to it. */
bool isSeen(EventRecorder &receiver, QEvent::Type type = QEvent::KeyPress);

/*! Counts the moves of the mouse that it gets: input of the platform that no filter swallows. */
class MouseWindow : public QWindow
{
public:
    int moves = 0;

    bool event(QEvent *event) override;

    /*! Call it first. False if the platform does not bring its input. */
    bool showUnderCursor();

    /*! The offscreen platform then queues a move, as others do with the user's. */
    void queueMove() const;
};

} // namespace TestSupport
