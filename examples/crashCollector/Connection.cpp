// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Connection.h"

#include <QtCore/QDeadlineTimer>

#include <algorithm>
#include <cstring>

namespace {

// Milliseconds.
constexpr qint64 headTime = 10'000;
constexpr qint64 bodyTime = 120'000;
constexpr qint64 answerTime = 120'000;
constexpr qint64 answerTimeAtEnd = 5'000;
constexpr qint64 silenceTime = 5'000;
constexpr qint64 lookTime = 100; // between looks whether the server stops

constexpr std::size_t largestPiece = 65536;

qint64 now()
{
    return QDeadlineTimer::current().deadline();
}

} // namespace

CConnection::CConnection(socket_t socket, const std::atomic<qint64> &end)
    : m_socket(socket)
    , m_end(end)
    , m_deadline(now() + headTime)
{
}

CConnection::~CConnection()
{
    closeSocket(qintptr(m_socket));
}

void CConnection::startBody()
{
    m_deadline = now() + bodyTime;
}

qint64 CConnection::lastMoment() const
{
    const qint64 end = m_answerBegin == 0 ? m_end.load() : std::max(m_end.load(), m_answerBegin + answerTimeAtEnd);
    return std::min(m_deadline, end);
}

bool CConnection::waitUntil(Readiness readiness)
{
    const qint64 silenceEnd = now() + silenceTime;
    for (;;) {
        const qint64 left = std::min(lastMoment(), silenceEnd) - now(); // the end may come in between
        if (left <= 0) {
            return false;
        }
        if (isSocketReady(qintptr(m_socket), readiness, int(std::min(left, lookTime)))) {
            return true;
        }
    }
}

bool CConnection::fillBuffer()
{
    if (!waitUntil(Readiness::ToRead)) {
        return false;
    }
    const auto count = recv(m_socket, m_buffer.data(), m_buffer.size(), 0);
    m_bufferBegin = 0;
    m_bufferEnd = std::size_t(std::max<qint64>(count, 0));
    return m_bufferEnd > 0;
}

ssize_t CConnection::read(char *bytes, std::size_t size)
{
    if (m_bufferBegin == m_bufferEnd && !fillBuffer()) {
        return -1;
    }
    const std::size_t count = std::min(size, m_bufferEnd - m_bufferBegin);
    std::memcpy(bytes, m_buffer.data() + m_bufferBegin, count);
    m_bufferBegin += count;
    return ssize_t(count);
}

/*! All or nothing: the server does not always look how much was written. */
ssize_t CConnection::write(const char *bytes, std::size_t size)
{
    if (m_answerBegin == 0) {
        m_answerBegin = now();
        m_deadline = m_answerBegin + answerTime;
    }
    for (std::size_t written = 0; written < size;) {
        if (!waitUntil(Readiness::ToWrite)) {
            return -1;
        }
        const auto count = send(m_socket, bytes + written, std::min(size - written, largestPiece), 0);
        if (count <= 0) {
            return -1;
        }
        written += std::size_t(count);
    }
    return ssize_t(size);
}

bool CConnection::is_readable() const
{
    return m_bufferBegin < m_bufferEnd || isSocketReady(qintptr(m_socket), Readiness::ToRead, 0);
}

bool CConnection::is_writable() const
{
    return isSocketReady(qintptr(m_socket), Readiness::ToWrite, 0);
}

// No one asks where a request comes from.

void CConnection::get_remote_ip_and_port(std::string & /*address*/, int & /*port*/) const
{
}

void CConnection::get_local_ip_and_port(std::string & /*address*/, int & /*port*/) const
{
}

socket_t CConnection::socket() const
{
    return m_socket;
}
