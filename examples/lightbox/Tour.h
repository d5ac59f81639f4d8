// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QUrl>

class CMainWindow;

/*!
    Plays a user who gives commands at good and at bad moments, and prints a line for each thing that the gate for
    commands does with them. Also shows a loading that takes too long, and what a service answers.
*/
class CTour final : public QObject
{
    Q_OBJECT

public:
    /*! \a service may be empty: then there is nothing to ask. */
    CTour(CMainWindow &window, QUrl service);

    /*! Goes the whole way. Call it while nothing is loading. */
    void start();

Q_SIGNALS:
    void finished();

private:
    void commandAtOnce();
    void commandWhileBusy();
    void commandCarriedOut();
    void loadingWithoutPatience();
    void questions();

    CMainWindow &m_window;
    QUrl m_service;
    QElapsedTimer m_sinceLoading;
};
