// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QtEndian>

/*! A reader of archives that keep their entries as they are: what the tests need of one, on every system. */
namespace StoredArchive {

using Entries = QMap<QString, QByteArray>; // content by name

inline constexpr char noEntries[]
    = "PK\5\6\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"; // a whole archive, with its closing zero

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype at)
{
    return at + qsizetype(sizeof(Number)) <= bytes.size() ? qFromLittleEndian<Number>(bytes.constData() + at) : 0;
}

inline QByteArray contentOfEntry(const QByteArray &archive, qsizetype localHeader, qsizetype size)
{
    const qsizetype start = localHeader + 30 + numberAt<quint16>(archive, localHeader + 26)
        + numberAt<quint16>(archive, localHeader + 28);
    return archive.mid(start, size);
}

/*! Empty also if it is no archive, if an entry is compressed, and if two have one name. */
inline Entries entriesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray archive = file.readAll();
    const qsizetype end = archive.lastIndexOf("PK\5\6");
    const int count = end < 0 ? 0 : numberAt<quint16>(archive, end + 10);
    qsizetype at = numberAt<quint32>(archive, end + 16);
    Entries entries;
    for (int i = 0; i < count; ++i) {
        if (archive.mid(at, 4) != "PK\1\2" || numberAt<quint16>(archive, at + 10) != 0) {
            return {};
        }
        const int nameSize = numberAt<quint16>(archive, at + 28);
        const QString name = QString::fromUtf8(archive.mid(at + 46, nameSize));
        entries.insert(
            name, contentOfEntry(archive, numberAt<quint32>(archive, at + 42), numberAt<quint32>(archive, at + 24)));
        at += 46 + nameSize + numberAt<quint16>(archive, at + 30) + numberAt<quint16>(archive, at + 32);
    }
    return entries.size() == count ? entries : Entries();
}

} // namespace StoredArchive
