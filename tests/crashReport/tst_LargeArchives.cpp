// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/ArchivePrograms.h"
#include "crashReport/ArchiveTraps.h"
#include "support/FreshProcess.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QStorageInfo>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <minizip/unzip.h>
#include <zlib.h>

using namespace TestSupport;
using ZYX_zglv6::CompressDir;
using ZYX_zglv6::DecompressFiles;

namespace {

constexpr qint64 mebibyte = 1LL << 20;
constexpr qint64 largest32 = 0xffffffff;
constexpr qint64 neededDisk = 10'240 * mebibyte;
const QByteArray mark("the last bytes");

/*! A file of zeros that takes no room on the disk where that is possible, with \a mark at its end. */
bool makeLargeFile(const QString &path, qint64 size)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(size) && file.seek(size - mark.size())
        && file.write(mark) == mark.size();
}

quint32 checksumOfLargeFile(qint64 size)
{
    const QByteArray piece(mebibyte, '\0');
    const uLong pieceSum = checksumOf(piece);
    const qint64 zeros = size - mark.size();
    uLong sum = checksumOf(piece.left(zeros % mebibyte));
    for (qint64 i = 0; i < zeros / mebibyte; ++i) {
        sum = crc32_combine(sum, pieceSum, z_off_t(mebibyte));
    }
    return quint32(crc32_combine(sum, checksumOf(mark), z_off_t(mark.size())));
}

QByteArray bytesAt(const QString &path, qint64 position, qint64 size)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(position) ? file.read(size) : QByteArray();
}

/*! Some builds of minizip compare with a number that has too many bits where long has 64. */
bool canMinizipReadZip64()
{
    const QTemporaryDir folder;
    MadeEntry entry{"a"};
    entry.packedSize = 1ULL << 40;
    entry.size = 1ULL << 40;
    writeFile(folder.filePath(u"probe.zip"_qs), makeArchive({entry}));
    unzFile archive = unzOpen64(QFile::encodeName(folder.filePath(u"probe.zip"_qs)).constData());
    unz_file_info64 info{};
    unzGetCurrentFileInfo64(archive, &info, nullptr, 0, nullptr, 0, nullptr, 0);
    unzClose(archive);
    return info.uncompressed_size == entry.size;
}

bool hasRoom(const QString &folder)
{
    return QStorageInfo(folder).bytesAvailable() >= neededDisk;
}

/*! By a sanitizer or an emulator. */
bool isSlowedDown()
{
#ifdef ZYX_SLOW_FILES
    return true;
#else
    return false;
#endif
}

} // namespace

/*! Files beyond 4 GiB, and folders that don't fit into the memory that packing may take. */
class tst_LargeArchives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void beyond4GiB_isPackedAndComesBack();
    void memory_staysFlat();
};

void tst_LargeArchives::initTestCase()
{
    if (isSlowedDown()) {
        QSKIP("Large files take too long in this build.");
    }
}

void tst_LargeArchives::beyond4GiB_isPackedAndComesBack()
{
    const QTemporaryDir folder;
    if (!hasRoom(folder.path())) {
        QSKIP("Less than 10 GiB are free.");
    }
    constexpr qint64 size = largest32 + 100 * mebibyte;
    QVERIFY(QDir(folder.path()).mkdir(u"in"_qs));
    QVERIFY(makeLargeFile(folder.filePath(u"in/large"_qs), size));
    writeFile(folder.filePath(u"in/later"_qs), "behind 4 GiB");
    const QString zip = folder.filePath(u"made.zip"_qs);
    QVERIFY(CompressDir(folder.filePath(u"in"_qs), QFileInfo(zip)));
    QVERIFY(QFile::remove(folder.filePath(u"in/large"_qs)));

    constexpr qint64 localSize = 30 + 5 + 20; // fields, name and the field of 64-bit sizes
    const QByteArray header = bytesAt(zip, 0, localSize);
    QCOMPARE(qFromLittleEndian<quint32>(header.constData() + 22), quint32(largest32));
    QCOMPARE(qFromLittleEndian<quint64>(header.constData() + localSize - 16), quint64(size));
    QCOMPARE(bytesAt(zip, localSize + size - mark.size(), mark.size()), mark);
    if (hasProgram(u"python3"_qs)) {
        const QJsonArray entries = lookByPython(zip, u"later"_qs).value(u"entries").toArray();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0)[u"size"].toInteger(), size);
        QCOMPARE(entries.at(0)[u"packedSize"].toInteger(), size);
        QCOMPARE(entries.at(0)[u"crc"].toInteger(), qint64(checksumOfLargeFile(size)));
        QCOMPARE(entries.at(1)[u"sha256"].toString(), sha256Of("behind 4 GiB"));
    }

    if (!canMinizipReadZip64()) {
        QSKIP("The installed minizip does not read 64-bit sizes.");
    }
    QVERIFY(!DecompressFiles(QFileInfo(zip), folder.filePath(u"out"_qs), QString()));
    QCOMPARE(QFileInfo(folder.filePath(u"out/large"_qs)).size(), size);
    QCOMPARE(bytesAt(folder.filePath(u"out/large"_qs), size - mark.size(), mark.size()), mark);
    QCOMPARE(contentOf(folder.filePath(u"out/later"_qs)), QByteArray("behind 4 GiB"));
}

void tst_LargeArchives::memory_staysFlat()
{
    RUN_IN_FRESH_PROCESS();
    if (peakMemory() == 0) {
        QSKIP("The system does not tell the memory of this process.");
    }
    const QTemporaryDir folder;
    for (int i = 0; i < 3; ++i) {
        const QString name = u"in/"_qs + QString::number(i);
        writeFile(folder.filePath(name), QByteArray());
        QVERIFY(makeLargeFile(folder.filePath(name), 100 * mebibyte));
    }
    const qint64 before = peakMemory();
    QVERIFY(CompressDir(folder.filePath(u"in"_qs), QFileInfo(folder.filePath(u"made.zip"_qs))));
    QVERIFY(!DecompressFiles(QFileInfo(folder.filePath(u"made.zip"_qs)), folder.filePath(u"out"_qs), QString()));
    const qint64 growth = peakMemory() - before;
    QVERIFY2(growth < 32 * mebibyte, QByteArray::number(growth));
    for (int i = 0; i < 3; ++i) {
        const QString name = folder.filePath(u"out/"_qs + QString::number(i));
        QCOMPARE(QFileInfo(name).size(), 100 * mebibyte);
        QCOMPARE(bytesAt(name, 100 * mebibyte - mark.size(), mark.size()), mark);
    }
}

QTEST_GUILESS_MAIN(tst_LargeArchives)
#include "tst_LargeArchives.moc"
