// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TestSupport {

/*! An X server of its own without a screen, and a user at its keyboard. Uses the PATH that it was made with. */
class ErrorBoxDesktop
{
public:
    ErrorBoxDesktop();
    ~ErrorBoxDesktop();

    /*! What lacks for a desktop; empty if it runs. */
    QString lack() const;

    /*! Value of the variable DISPLAY. */
    QByteArray display() const;

    /*! Number of the shown window with exactly this title; empty if none appears in time. */
    QString waitForWindow(const QString &title) const;

    /*! Number of shown windows with exactly this title. */
    qsizetype windowCount(const QString &title) const;

    /*! Presses \a key, such as "Return", in the window of that number, until the window has gone. False: it stays. */
    bool pressUntilClosed(const QString &key, const QString &window) const;

private:
    QString user(const QStringList &arguments) const;

    QString m_userProgram;
    QProcess m_server;
    QByteArray m_display;
};

} // namespace TestSupport
