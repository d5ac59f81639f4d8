// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QtEndian>

/*! Stored states, put together byte by byte as they are on disk, without any help of QDataStream. */
namespace TestSupport {

/*! A 32-bit number, the highest byte first. */
inline QByteArray numberBytes(quint32 number)
{
    const quint32 bigEndian = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&bigEndian), sizeof(bigEndian));
}

/*! A QString: its size in bytes, then UTF-16, each unit's high byte first. */
inline QByteArray textBytes(const QString &text)
{
    if (text.isNull()) {
        return numberBytes(0xffffffff);
    }
    QByteArray bytes = numberBytes(quint32(text.size()) * 2);
    for (const QChar unit : text) {
        bytes.append(char(unit.unicode() >> 8)).append(char(unit.unicode() & 0xff));
    }
    return bytes;
}

/*! What a QVariant has in front of its value. */
inline QByteArray typeBytes(quint32 typeId)
{
    return numberBytes(typeId) + QByteArray(1, '\0');
}

inline QByteArray boolValueBytes(bool value)
{
    return typeBytes(1) + QByteArray(1, value ? '\1' : '\0');
}

inline QByteArray arrayValueBytes(const QByteArray &value)
{
    return typeBytes(12) + (value.isNull() ? numberBytes(0xffffffff) : numberBytes(quint32(value.size())) + value);
}

/*! A type that is not known by its number has its name in the bytes. */
inline QByteArray namedTypeBytes(const char *name)
{
    const QByteArray terminated(name, qsizetype(qstrlen(name)) + 1);
    return typeBytes(65536) + numberBytes(quint32(terminated.size())) + terminated;
}

struct StateEntry
{
    QString key;
    QByteArray valueBytes;
};

inline QByteArray mapBytes(const QList<StateEntry> &entries)
{
    QByteArray bytes = numberBytes(quint32(entries.size()));
    for (const StateEntry &entry : entries) {
        bytes += textBytes(entry.key) + entry.valueBytes;
    }
    return bytes;
}

} // namespace TestSupport
