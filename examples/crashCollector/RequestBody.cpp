// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "RequestBody.h"

namespace {

constexpr int readAtMost = 4; // times the limit

} // namespace

CRequestBody::CRequestBody(qint64 limit)
    : m_limit(limit)
{
}

bool CRequestBody::take(const char *piece, std::size_t size)
{
    m_size += qint64(size);
    if (isTooLarge()) {
        m_bytes.clear();
    } else {
        m_bytes.append(piece, qsizetype(size));
    }
    return m_size <= readAtMost * m_limit;
}

bool CRequestBody::isTooLarge() const
{
    return m_size > m_limit;
}

QByteArray CRequestBody::bytes() const
{
    return m_bytes;
}
