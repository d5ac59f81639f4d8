// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "RecordBytes.h"

#include <QtCore/QtEndian>

namespace ExchangeTest {

QByteArray number32(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray number64(quint64 number)
{
    QByteArray bytes(8, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray sizeField(quint64 size)
{
    return number32(4) + number64(size);
}

QByteArray entry(const QByteArray &key, quint32 tag, const QByteArray &payload)
{
    return number32(7) + sized(key) + number32(tag) + payload;
}

QByteArray intEntry(const QByteArray &key, int value)
{
    return entry(key, 1, number32(quint32(value)));
}

QByteArray sized(const QByteArray &bytes)
{
    return sizeField(quint64(bytes.size())) + bytes;
}

QByteArray recordOf(const QList<QByteArray> &entries)
{
    return sizeField(quint64(entries.size())) + entries.join();
}

QByteArray requestOf(int width, int height, int depth)
{
    return recordOf({intEntry("width", width), intEntry("height", height), intEntry("depth", depth)});
}

QByteArray deepPixels(const QList<quint16> &channels)
{
    return QByteArray(reinterpret_cast<const char *>(channels.constData()),
                      channels.size() * qsizetype(sizeof(quint16)));
}

} // namespace ExchangeTest
