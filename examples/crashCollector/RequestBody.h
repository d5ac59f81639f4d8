// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>

#include <cstddef>

/*!
    Collects the body of a request piece by piece, within a limit.

    Of one that is larger some more is read and thrown away: most senders only look for an answer when they have sent
    everything.
*/
class CRequestBody
{
public:
    explicit CRequestBody(qint64 limit);

    /*! False: no more, please. */
    bool take(const char *piece, std::size_t size);

    bool isTooLarge() const;
    QByteArray bytes() const;

private:
    const qint64 m_limit;
    qint64 m_size = 0;
    QByteArray m_bytes;
};
