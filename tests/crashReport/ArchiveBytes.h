// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "crashReport/ArchiveFiles.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <optional>

namespace TestSupport {

/*! The fields that an entry has both in front of its content and in the directory at the archive's end. */
struct HeaderFields
{
    quint16 neededVersion = 0;
    quint16 flags = 0;
    quint16 method = 0;
    quint32 dosTime = 0;
    quint32 crc = 0;
    quint32 packedSize = 0;
    quint32 size = 0;
    QByteArray name;
    QByteArray extra;

    bool operator==(const HeaderFields &) const = default;
};

struct ReadEntry
{
    HeaderFields central;
    HeaderFields local;
    quint16 madeBy = 0;
    quint16 disk = 0;
    quint16 internalAttributes = 0;
    quint32 externalAttributes = 0;
    quint32 offset = 0;
    QByteArray comment;
    QByteArray content; // as it is stored
};

struct ReadArchive
{
    bool isWhole = false; // each byte belongs to one entry, the directory or its end
    QByteArray comment;
    QList<ReadEntry> entries;

    QList<QByteArray> names() const;
};

/*! Reads an archive of plain sizes, as the format is published; no archive in front of or behind it. */
ReadArchive readArchive(const QByteArray &bytes);

/*! Of the archive \a path; empty if it is not whole, if an entry is compressed, and if two have one name. */
Files entriesOf(const QString &path);

/*! An entry to be written, honest but for what is given. */
struct MadeEntry
{
    QByteArray name;
    QByteArray content = QByteArray("content"); // as it is stored
    quint16 method = 0;
    quint16 flags = 0;
    quint16 madeBy = 20;
    quint32 externalAttributes = 0;
    quint32 dosTime = 0x5a2b6b3a; // 2025-01-11 13:25:52
    std::optional<quint32> crc = std::nullopt;
    std::optional<quint64> packedSize = std::nullopt;
    std::optional<quint64> size = std::nullopt;
};

/*! An archive of \a entries; its end claims \a count entries where that is given. */
QByteArray makeArchive(const QList<MadeEntry> &entries, std::optional<quint64> count = {});

/*! \a content packed with method 8. */
MadeEntry deflatedEntry(const QByteArray &name, const QByteArray &content);

quint32 checksumOf(const QByteArray &content);

} // namespace TestSupport
