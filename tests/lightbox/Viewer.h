// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "MainWindow.h"

#include <QtCore/QTimer>
#include <QtGui/QColor>
#include <QtWidgets/QDialog>

#include <functional>

class QAction;
class QPushButton;

inline constexpr int watchdogMs = 30'000;

/*! The window as main() brings it up, with its first photograph. */
struct Viewer
{
    explicit Viewer(const QString &photos);

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    QAction *unit(int number) const;
    QColor colorInTheMiddle() const;

    CMainWindow window;
    bool isUp = false;
};

/*! Does something with the next modal box that opens; closes it if it is still there then. */
class BoxGuest
{
public:
    explicit BoxGuest(std::function<void(QDialog &)> visit);

    int visits() const;

private:
    void look();

    std::function<void(QDialog &)> m_visit;
    QTimer m_timer;
    int m_visits = 0;
};

/*! The button with that text; null if there is none. */
QPushButton *buttonOf(const QDialog &box, const QString &text);

// What a guest does.

std::function<void(QDialog &)> clicking(const QString &button);
/*! In place of the proposal, and then Return. */
std::function<void(QDialog &)> typing(const QString &name);
