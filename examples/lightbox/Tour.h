// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Options.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>

class CMainWindow;

/*!
    Plays a user who gives commands at good and at bad moments, and prints a line for each thing that the gate for
    commands does with them. Also shows a loading that takes too long, what a service answers, what can be done
    with files, what a choice of language does, the dialogs, the data within the program, and what a crash leaves.
*/
class CTour final : public QObject
{
    Q_OBJECT

public:
    /*! Without a service there is nothing to ask. */
    CTour(CMainWindow &window, Options options);

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
    void files();
    void languages();
    void references();
    void crash();

    CMainWindow &m_window;
    Options m_options;
    QElapsedTimer m_sinceLoading;
};
