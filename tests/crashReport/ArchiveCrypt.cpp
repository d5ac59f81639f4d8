// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveCrypt.h"

#include "crashReport/ArchiveFiles.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <minizip/unzip.h>
#include <minizip/zip.h>
#include <zlib.h>

namespace TestSupport {

namespace {

constexpr qsizetype headerSize = 12;

class Keys
{
public:
    explicit Keys(const QByteArray &password)
    {
        for (const char c : password) {
            update(quint8(c));
        }
    }

    quint8 nextMask() const
    {
        const quint32 word = (m_third & 0xffff) | 2;
        return quint8((word * (word ^ 1)) >> 8);
    }

    void update(quint8 plain)
    {
        m_first = step(m_first, plain);
        m_second = (m_second + (m_first & 0xff)) * 134775813 + 1;
        m_third = step(m_third, quint8(m_second >> 24));
    }

private:
    static quint32 step(quint32 sum, quint8 byte)
    {
        return quint32(get_crc_table()[(sum ^ byte) & 0xff]) ^ (sum >> 8);
    }

    quint32 m_first = 0x12345678;
    quint32 m_second = 0x23456789;
    quint32 m_third = 0x34567890;
};

const QByteArray probe("probe");
constexpr char probePassword[] = "secret";

} // namespace

QByteArray encrypted(const QByteArray &content, const QByteArray &password)
{
    Keys keys(password);
    QByteArray bytes = QByteArray(headerSize - 1, 'r') + char(checksumOf(content) >> 24) + content;
    for (char &byte : bytes) {
        const auto plain = quint8(byte);
        byte = char(plain ^ keys.nextMask());
        keys.update(plain);
    }
    return bytes;
}

QByteArray decrypted(const QByteArray &bytes, const QByteArray &password, quint32 crc)
{
    Keys keys(password);
    QByteArray plain = bytes;
    for (char &byte : plain) {
        byte = char(quint8(byte) ^ keys.nextMask());
        keys.update(quint8(byte));
    }
    const bool isRight = plain.size() >= headerSize && quint8(plain.at(headerSize - 1)) == (crc >> 24);
    return isRight ? plain.mid(headerSize) : QByteArray();
}

MadeEntry encryptedEntry(const QByteArray &name, const QByteArray &content, const QByteArray &password)
{
    MadeEntry entry{name, encrypted(content, password), 0, 1};
    entry.crc = checksumOf(content);
    entry.size = quint64(content.size());
    return entry;
}

bool canMinizipDecrypt()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("probe.zip"));
    writeFile(path, makeArchive({encryptedEntry("a", probe, probePassword)}));
    unzFile archive = unzOpen64(QFile::encodeName(path).constData());
    const bool canDecrypt = unzOpenCurrentFilePassword(archive, probePassword) == UNZ_OK;
    unzClose(archive);
    return canDecrypt;
}

bool canMinizipEncrypt()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("probe.zip"));
    zipFile archive = zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    const zip_fileinfo info{};
    const bool isBegun
        = zipOpenNewFileInZip3_64(archive, "a", &info, nullptr, 0, nullptr, 0, nullptr, 0, 0, 0, -MAX_WBITS,
                                  DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY, probePassword, checksumOf(probe), 0)
        == ZIP_OK;
    if (isBegun) {
        zipWriteInFileInZip(archive, probe.constData(), unsigned(probe.size()));
        zipCloseFileInZip(archive);
    }
    zipClose(archive, nullptr);
    const ReadArchive made = readArchive(contentOf(path));
    return made.isWhole && made.entries.size() == 1
        && decrypted(made.entries.first().content, probePassword, checksumOf(probe)) == probe;
}

} // namespace TestSupport
