// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Options.h"

#include <QtCore/QThread>

#include <atomic>
#include <limits>
#include <memory>

class CCollector;

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

/*!
    Listens, and hands requests to the collector on the collector's thread, whose event loop has to run until this
    thread has finished. The network itself is waited for by a fixed number of other threads: a few slow peers keep
    no one waiting, and many do so for as long as each has time, ten seconds for the head of a request and two
    minutes for its body.

    bind(), then start(); finished() comes after stop(), or by itself if the system takes the socket away.
*/
class CHttpServer final : public QThread
{
    Q_OBJECT

public:
    /*! \a collector has to live as long as the object. */
    CHttpServer(const Options &options, CCollector &collector);
    ~CHttpServer() override;

    /*! False: the address can't be had. */
    [[nodiscard]] bool bind();

    /*! "http://127.0.0.1:8080/"; after bind(). */
    QString address() const;

    /*!
        Takes no more connections. A request that is as a whole here within the next five seconds is answered;
        finished() comes when the last answer is sent, or has found no reader for as long again.
    */
    void stop();
    bool isStopping() const;

    /*! Other machines can connect, and the header "Host" is not looked at. */
    bool isOpenToNetwork() const;

protected:
    void run() override;

private:
    void setLimits();
    void setRoutes();
    void setPageRoutes();
    void setHandlersOfErrors();
    bool isRefused(const httplib::Request &request, httplib::Response &response) const;
    bool isForThisHost(const httplib::Request &request) const;

    template <typename Function>
    void onCollectorsThread(const Function &function) const;

    const Options m_options;
    CCollector &m_collector;
    const std::unique_ptr<httplib::Server> m_server;
    const bool m_isLoopback;
    int m_port = 0;
    static constexpr qint64 noEnd = std::numeric_limits<qint64>::max();
    std::atomic<qint64> m_end = noEnd; // of receiving
};
