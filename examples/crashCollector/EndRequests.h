// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QObject>

#include <memory>

/*! Tells when the service is to end: by a signal of the system, or as the standard input has closed. One a process. */
class CEndRequests final : public QObject
{
    Q_OBJECT

public:
    explicit CEndRequests(bool watchesInput);
    ~CEndRequests() override;

Q_SIGNALS:
    /*! From the event loop of the thread that made the object; once. A second signal ends the process at once. */
    void requested();

private:
    void request();

    class Watch;
    std::unique_ptr<Watch> m_watch;
    bool m_isRequested = false;
};
