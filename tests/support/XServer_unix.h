// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QProcess>
#include <QtCore/QStringList>

namespace TestSupport {

/*! What a test program that can't do its work returns, for CTest to count it as skipped. */
inline constexpr int skipped = 77;

/*! An X server of this process's own while it lives; DISPLAY names it. Make it before the application object. */
class XServer
{
public:
    /*! Does not start, and says so, if one of the \a programs that the test needs besides is missing. */
    explicit XServer(QStringList programs);
    ~XServer();

    bool isRunning() const;

private:
    void start();

    QProcess m_server;
};

} // namespace TestSupport
