// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>

class CMainWindow;

/*!
    Plays a user who gives commands at good and at bad moments, and prints a line for each thing that the gate for
    commands does with them. Also shows a loading that takes too long.
*/
class CTour final : public QObject
{
    Q_OBJECT

public:
    explicit CTour(CMainWindow &window);

    /*! Goes the whole way. Call it while nothing is loading. */
    void start();

Q_SIGNALS:
    void finished();

private:
    void commandAtOnce();
    void commandWhileBusy();
    void commandCarriedOut();
    void loadingWithoutPatience();

    CMainWindow &m_window;
    QElapsedTimer m_sinceLoading;
};
