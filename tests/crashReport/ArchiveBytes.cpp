// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"

#include <QtCore/QFile>
#include <QtCore/QtEndian>

#include <zlib.h>

namespace TestSupport {

namespace {

constexpr quint32 localMark = 0x04034b50;
constexpr quint32 centralMark = 0x02014b50;
constexpr quint32 endMark = 0x06054b50;
constexpr quint32 end64Mark = 0x06064b50;
constexpr quint32 end64LocatorMark = 0x07064b50;
constexpr quint64 largest32 = 0xffffffff;

/*! Reads little-endian fields; past the end it is not ok. */
class Cursor
{
public:
    Cursor(const QByteArray &bytes, qsizetype position)
        : m_bytes(bytes)
        , m_position(position)
    {
    }

    template <typename Number>
    Number next()
    {
        const QByteArray field = take(sizeof(Number));
        return m_isOk ? qFromLittleEndian<Number>(field.constData()) : Number(0);
    }

    QByteArray take(qsizetype size)
    {
        m_isOk = m_isOk && m_position >= 0 && size <= m_bytes.size() - m_position;
        const QByteArray taken = m_isOk ? m_bytes.mid(m_position, size) : QByteArray();
        m_position += size;
        return taken;
    }

    qsizetype position() const
    {
        return m_position;
    }

    bool isOk() const
    {
        return m_isOk;
    }

private:
    const QByteArray &m_bytes;
    qsizetype m_position;
    bool m_isOk = true;
};

struct NameSizes
{
    qsizetype name;
    qsizetype extra;
};

NameSizes takeCommonFields(Cursor &cursor, HeaderFields &fields)
{
    fields.neededVersion = cursor.next<quint16>();
    fields.flags = cursor.next<quint16>();
    fields.method = cursor.next<quint16>();
    fields.dosTime = cursor.next<quint32>();
    fields.crc = cursor.next<quint32>();
    fields.packedSize = cursor.next<quint32>();
    fields.size = cursor.next<quint32>();
    const auto name = cursor.next<quint16>();
    return {name, cursor.next<quint16>()};
}

/*! Where the entry's content ends; -1 if it is not there. */
qsizetype readLocal(const QByteArray &bytes, ReadEntry &entry)
{
    Cursor cursor(bytes, entry.offset);
    const bool isMarked = cursor.next<quint32>() == localMark;
    const NameSizes sizes = takeCommonFields(cursor, entry.local);
    entry.local.name = cursor.take(sizes.name);
    entry.local.extra = cursor.take(sizes.extra);
    entry.content = cursor.take(entry.central.packedSize);
    return isMarked && cursor.isOk() ? cursor.position() : -1;
}

bool readCentral(Cursor &cursor, ReadEntry &entry)
{
    const bool isMarked = cursor.next<quint32>() == centralMark;
    entry.madeBy = cursor.next<quint16>();
    const NameSizes sizes = takeCommonFields(cursor, entry.central);
    const auto commentSize = cursor.next<quint16>();
    entry.disk = cursor.next<quint16>();
    entry.internalAttributes = cursor.next<quint16>();
    entry.externalAttributes = cursor.next<quint32>();
    entry.offset = cursor.next<quint32>();
    entry.central.name = cursor.take(sizes.name);
    entry.central.extra = cursor.take(sizes.extra);
    entry.comment = cursor.take(commentSize);
    return isMarked && cursor.isOk();
}

void put16(QByteArray &bytes, quint64 value)
{
    const quint16 field = qToLittleEndian(quint16(value));
    bytes.append(reinterpret_cast<const char *>(&field), sizeof field);
}

void put32(QByteArray &bytes, quint64 value)
{
    const quint32 field = qToLittleEndian(quint32(value));
    bytes.append(reinterpret_cast<const char *>(&field), sizeof field);
}

void put64(QByteArray &bytes, quint64 value)
{
    const quint64 field = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char *>(&field), sizeof field);
}

/*! The field of 64-bit sizes; empty where the plain fields hold them. */
QByteArray zip64Extra(quint64 packedSize, quint64 size)
{
    QByteArray extra;
    if (packedSize >= largest32 || size >= largest32) {
        put16(extra, 1);
        put16(extra, 16);
        put64(extra, size);
        put64(extra, packedSize);
    }
    return extra;
}

QByteArray commonFields(const MadeEntry &entry, const QByteArray &extra)
{
    QByteArray bytes;
    put16(bytes, extra.isEmpty() ? 20 : 45);
    put16(bytes, entry.flags);
    put16(bytes, entry.method);
    put32(bytes, entry.dosTime);
    put32(bytes, entry.crc.value_or(checksumOf(entry.content)));
    const bool isPlain = extra.isEmpty();
    put32(bytes, isPlain ? entry.packedSize.value_or(quint64(entry.content.size())) : largest32);
    put32(bytes, isPlain ? entry.size.value_or(quint64(entry.content.size())) : largest32);
    put16(bytes, quint64(entry.name.size()));
    put16(bytes, quint64(extra.size()));
    return bytes;
}

QByteArray extraOf(const MadeEntry &entry)
{
    return zip64Extra(entry.packedSize.value_or(quint64(entry.content.size())),
                      entry.size.value_or(quint64(entry.content.size())));
}

QByteArray localBytes(const MadeEntry &entry)
{
    QByteArray bytes;
    const QByteArray extra = extraOf(entry);
    put32(bytes, localMark);
    bytes += commonFields(entry, extra);
    return bytes + entry.name + extra + entry.content;
}

QByteArray centralBytes(const MadeEntry &entry, qsizetype offset)
{
    QByteArray bytes;
    const QByteArray extra = extraOf(entry);
    put32(bytes, centralMark);
    put16(bytes, entry.madeBy);
    bytes += commonFields(entry, extra);
    put16(bytes, 0); // comment
    put16(bytes, 0); // disk
    put16(bytes, 0); // internal attributes
    put32(bytes, entry.externalAttributes);
    put32(bytes, quint64(offset));
    return bytes + entry.name + extra;
}

QByteArray end64Bytes(quint64 count, qsizetype directory, qsizetype end)
{
    QByteArray bytes;
    put32(bytes, end64Mark);
    put64(bytes, 44);
    put16(bytes, 45);
    put16(bytes, 45);
    put32(bytes, 0);
    put32(bytes, 0);
    put64(bytes, count);
    put64(bytes, count);
    put64(bytes, quint64(end - directory));
    put64(bytes, quint64(directory));
    put32(bytes, end64LocatorMark);
    put32(bytes, 0);
    put64(bytes, quint64(end));
    put32(bytes, 1);
    return bytes;
}

} // namespace

QList<QByteArray> ReadArchive::names() const
{
    QList<QByteArray> all;
    for (const ReadEntry &entry : entries) {
        all.append(entry.central.name);
    }
    return all;
}

ReadArchive readArchive(const QByteArray &bytes)
{
    ReadArchive archive;
    Cursor end(bytes, bytes.lastIndexOf(QByteArray("PK\5\6")));
    const qsizetype endStart = end.position();
    end.take(10);
    const auto count = end.next<quint16>();
    const auto directorySize = end.next<quint32>();
    const auto directory = end.next<quint32>();
    archive.comment = end.take(end.next<quint16>());
    bool isWhole = end.isOk() && end.position() == bytes.size() && directory + directorySize == endStart;

    Cursor cursor(bytes, directory);
    qsizetype position = 0;
    for (int i = 0; i < count && isWhole; ++i) {
        ReadEntry entry;
        isWhole = readCentral(cursor, entry) && entry.offset == position;
        position = isWhole ? readLocal(bytes, entry) : -1;
        archive.entries.append(entry);
    }
    archive.isWhole = isWhole && position == directory && cursor.position() == endStart;
    return archive;
}

Files entriesOf(const QString &path)
{
    const ReadArchive archive = readArchive(contentOf(path));
    Files entries;
    for (const ReadEntry &entry : archive.entries) {
        if (entry.central.method != 0) {
            return {};
        }
        entries.insert(QFile::decodeName(entry.central.name), entry.content);
    }
    return archive.isWhole && entries.size() == archive.entries.size() ? entries : Files();
}

QByteArray makeArchive(const QList<MadeEntry> &entries, std::optional<quint64> count)
{
    QByteArray bytes;
    QByteArray directory;
    for (const MadeEntry &entry : entries) {
        directory += centralBytes(entry, bytes.size());
        bytes += localBytes(entry);
    }
    const qsizetype start = bytes.size();
    const quint64 claimed = count.value_or(quint64(entries.size()));
    bytes += directory;
    if (claimed >= 0xffff) {
        bytes += end64Bytes(claimed, start, bytes.size());
    }
    put32(bytes, endMark);
    put16(bytes, 0);
    put16(bytes, 0);
    put16(bytes, qMin<quint64>(claimed, 0xffff));
    put16(bytes, qMin<quint64>(claimed, 0xffff));
    put32(bytes, claimed >= 0xffff ? largest32 : quint64(directory.size()));
    put32(bytes, claimed >= 0xffff ? largest32 : quint64(start));
    put16(bytes, 0);
    return bytes;
}

MadeEntry deflatedEntry(const QByteArray &name, const QByteArray &content)
{
    MadeEntry entry{name};
    const QByteArray packed = qCompress(content, 9);
    entry.content = packed.mid(6, packed.size() - 10); // less the lengths and sums around the raw stream
    entry.method = 8;
    entry.crc = checksumOf(content);
    entry.size = quint64(content.size());
    return entry;
}

quint32 checksumOf(const QByteArray &content)
{
    return quint32(crc32(0, reinterpret_cast<const Bytef *>(content.constData()), uInt(content.size())));
}

} // namespace TestSupport
