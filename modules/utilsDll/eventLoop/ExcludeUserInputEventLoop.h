// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QObject>
#include <QtCore/QPointer>

/*!
    Swallows 24 types of events, by which the user acts, on their way to the object that it is installed on: mouse
    presses, keys, focus, entering, closing, drags, and their like in graphics scenes and window frames. Such an event
    ends up not accepted. Every other type passes, on purpose also MouseButtonRelease, MouseMove, Leave, Wheel,
    ContextMenu, the hover events and NonClientAreaMouseMove.

    Lives on the thread of the object that it watches.
*/
class UTILSDLL_EXPORT CExcludeUserInpuEventsFilter : public QObject
{
public:
    /*! Installs itself on \a parent, which owns it; without one it can be installed by hand. */
    explicit CExcludeUserInpuEventsFilter(QObject *parent = nullptr);
    ~CExcludeUserInpuEventsFilter() override;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

/*!
    A nested event loop that holds the user's input out while it runs: the platform's input stays queued, and what
    reaches the watched object by another road is swallowed.

    Can be run again after it has ended. An exit request while it is idle is not remembered. The watched object is not
    owned and may go while the loop runs; the loop itself must not. Lives on the watched object's thread.
*/
class UTILSDLL_EXPORT CExcludeUserInpuEventLoop : public QObject
{
    Q_OBJECT

public:
    explicit CExcludeUserInpuEventLoop(QObject *watched = QCoreApplication::instance(), QObject *parent = nullptr);
    ~CExcludeUserInpuEventLoop() override;

    bool isRunning() const;

public Q_SLOTS:
    /*!
        Runs until an exit request, or until the program leaves, and returns its code; a code other than 0 leaves an
        error in the log. -1, with an error in the log, if the loop is running already or the program has left its main
        loop before.
    */
    int exec();
    void quit();
    /*! Ends the loop with the code 1. */
    void failedQuit();
    /*! Ends the loop; the input is let in again at once, not only when exec() returns. */
    void exit(int returnCode = 0);

private:
    void holdInputOut();
    void letInputIn();

    QPointer<QObject> m_watched;
    QEventLoop m_loop;
    CExcludeUserInpuEventsFilter m_filter;
};
