// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "Sockets.h"

#include <QtCore/QtGlobal>

#include <httplib.h>

#include <array>
#include <atomic>

/*!
    One connection of the server, which has to make do with the time it is given: some seconds for the head of a
    request, two minutes for the rest of it, two more for the answer, and never more than some seconds for the next
    byte.
*/
class CConnection final : public httplib::Stream
{
public:
    /*!
        Takes the socket over. Nothing is received after \a end, in milliseconds as QDeadlineTimer::deadline() has them,
        and an answer is then given up some seconds after it was begun.
    */
    CConnection(socket_t socket, const std::atomic<qint64> &end);
    ~CConnection() override;

    CConnection(const CConnection &) = delete;
    CConnection &operator=(const CConnection &) = delete;

    /*! The head is complete. */
    void startBody();

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *bytes, std::size_t size) override;
    ssize_t write(const char *bytes, std::size_t size) override;
    void get_remote_ip_and_port(std::string &address, int &port) const override;
    void get_local_ip_and_port(std::string &address, int &port) const override;
    socket_t socket() const override;

private:
    qint64 lastMoment() const;
    bool waitUntil(Readiness readiness);
    bool fillBuffer();

    const socket_t m_socket;
    const std::atomic<qint64> &m_end;
    qint64 m_deadline;
    qint64 m_answerBegin = 0; // 0: not yet
    std::array<char, 16384> m_buffer{};
    std::size_t m_bufferBegin = 0; // of what was not read yet
    std::size_t m_bufferEnd = 0;
};
