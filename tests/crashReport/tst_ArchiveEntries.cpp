// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/ArchiveLibzip.h"
#include "crashReport/ArchivePrograms.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace TestSupport;

namespace {

constexpr quint16 utf8Flag = 0x800;
constexpr int vfat = 14; // where unzip does not take names for those of a code page

/*! The marks of an entry's name; both are 0 of ASCII, and where the narrow encoding is another than UTF-8. */
struct NameMarks
{
    quint16 flags;
    quint16 madeBy;
};

NameMarks marksOf(const QString &name)
{
    const bool isAscii = name.toUtf8().size() == name.size();
    if (isAscii || QFile::encodeName(name) != name.toUtf8()) {
        return {0, 0};
    }
    return {utf8Flag, vfat << 8 | 20};
}

/*! Names of entries that the narrow encoding holds, and their contents. */
Files sampleFiles()
{
    Files files;
    for (const int size : {0, 1, 16383, 16384, 16385}) {
        files.insert(u"size "_qs + QString::number(size), bytesOf(size));
    }
    files.insert(u"sub/deeper/with blanks.txt"_qs, "blanks");
    // Where the narrow encoding is that of a code page, it may not have these letters.
    for (const QString &name : {u"Gr\u00f6\u00dfe \u00fc.txt"_qs, u"\u30d5\u30a3\u30eb\u30e0/\u5199\u771f.txt"_qs}) {
        if (QFile::decodeName(QFile::encodeName(name)) == name && QString::fromLocal8Bit(name.toLocal8Bit()) == name) {
            files.insert(name, name.toUtf8());
        }
    }
    return files;
}

quint32 dosTimeOf(const QDateTime &time)
{
    const QDate date = time.date();
    const QTime clock = time.time();
    return quint32((date.year() - 1980) << 25 | date.month() << 21 | date.day() << 16 | clock.hour() << 11
                   | clock.minute() << 5 | clock.second() / 2);
}

bool setTime(const QString &path, const QDateTime &time)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime);
}

} // namespace

/*! What stands in an archive, read byte by byte and by other programs. */
class tst_ArchiveEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields_areAsPromised_data();
    void fields_areAsPromised();
    void time_isTheLocalTimeOfTheLastWriting_data();
    void time_isTheLocalTimeOfTheLastWriting();
    void names_otherThanAscii_areMarked();
    void python_readsTheSame();
    void unzip_extractsTheSame();
    void unzip_listsStoredEntries();
    void zipinfo_tellsTheSame();
    void libzip_readsTheSame();
};

void tst_ArchiveEntries::fields_areAsPromised_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("nothing") << 0;
    QTest::newRow("one byte") << 1;
    QTest::newRow("a byte less than the buffer") << 16383;
    QTest::newRow("the buffer") << 16384;
    QTest::newRow("a byte more than the buffer") << 16385;
    QTest::newRow("many buffers") << 1'000'000;
}

void tst_ArchiveEntries::fields_areAsPromised()
{
    QFETCH(const int, size);
    const QTemporaryDir folder;
    const QByteArray content = bytesOf(size);
    const QString path = folder.filePath(u"in/sub/name"_qs);
    writeFile(path, content);
    QVERIFY(setTime(path, QDateTime(QDate(2021, 7, 14), QTime(12, 34, 56))));
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(folder.filePath(u"made.zip"_qs))));

    const ReadArchive archive = readArchive(contentOf(folder.filePath(u"made.zip"_qs)));
    QVERIFY(archive.isWhole);
    QCOMPARE(archive.comment, QByteArray());
    QCOMPARE(archive.entries.size(), 1);
    const ReadEntry &entry = archive.entries.first();
    const HeaderFields expected{20,
                                0,
                                0,
                                dosTimeOf(QDateTime(QDate(2021, 7, 14), QTime(12, 34, 56))),
                                checksumOf(content),
                                quint32(size),
                                quint32(size),
                                "sub/name",
                                {}};
    QVERIFY(entry.central == expected);
    QVERIFY(entry.local == expected);
    QCOMPARE(entry.madeBy, quint16(0));
    QCOMPARE(entry.disk, quint16(0));
    QCOMPARE(entry.internalAttributes, quint16(0));
    QCOMPARE(entry.externalAttributes, quint32(0));
    QCOMPARE(entry.comment, QByteArray());
    QVERIFY(entry.content == content);
}

void tst_ArchiveEntries::time_isTheLocalTimeOfTheLastWriting_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<quint32>("dosTime");

    QTest::newRow("summer") << QDateTime(QDate(2024, 8, 1), QTime(23, 59, 58)) << 0x5901bf7du;
    QTest::newRow("winter") << QDateTime(QDate(2024, 2, 29), QTime(0, 0, 0)) << 0x585d0000u;
    QTest::newRow("the first") << QDateTime(QDate(1980, 1, 1), QTime(0, 0, 0)) << 0x00210000u;
    QTest::newRow("too early") << QDateTime(QDate(1979, 12, 31), QTime(23, 59, 58)) << 0u;
}

void tst_ArchiveEntries::time_isTheLocalTimeOfTheLastWriting()
{
    QFETCH(const QDateTime, time);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"in/name"_qs);
    writeFile(path, "content");
    QVERIFY(setTime(path, time));
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(folder.filePath(u"made.zip"_qs))));
    const ReadArchive archive = readArchive(contentOf(folder.filePath(u"made.zip"_qs)));
    QVERIFY(archive.isWhole);
    QTEST(archive.entries.first().central.dosTime, "dosTime");
}

void tst_ArchiveEntries::names_otherThanAscii_areMarked()
{
    const QTemporaryDir folder;
    const QString umlaut = u"\u00fc"_qs;
    writeFiles(folder.filePath(u"in"_qs), {{u"plain"_qs, "1"}, {umlaut, "2"}});
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(folder.filePath(u"made.zip"_qs))));
    const ReadArchive archive = readArchive(contentOf(folder.filePath(u"made.zip"_qs)));
    QVERIFY(archive.isWhole);
    QCOMPARE(archive.names(), QList<QByteArray>({"plain", QFile::encodeName(umlaut)}));
    const NameMarks marks = marksOf(umlaut);
    for (const ReadEntry &entry : archive.entries) {
        const bool isPlain = entry.central.name == "plain";
        QCOMPARE(entry.central.flags, isPlain ? quint16(0) : marks.flags);
        QCOMPARE(entry.local.flags, isPlain ? quint16(0) : marks.flags);
        QCOMPARE(entry.madeBy, isPlain ? quint16(0) : marks.madeBy);
    }
}

void tst_ArchiveEntries::python_readsTheSame()
{
    if (!hasProgram(u"python3"_qs)) {
        QSKIP("There is no python3.");
    }
    const QTemporaryDir folder;
    const Files files = sampleFiles();
    writeFiles(folder.filePath(u"in"_qs), files);
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(folder.filePath(u"made.zip"_qs))));

    const QJsonObject archive = readByPython(folder.filePath(u"made.zip"_qs));
    QCOMPARE(archive.value(u"comment").toString(), QString());
    const QJsonArray entries = archive.value(u"entries").toArray();
    QCOMPARE(entries.size(), files.size());
    for (const auto &value : entries) {
        const QJsonObject entry = value.toObject();
        const QString name = entry.value(u"name").toString();
        QVERIFY2(files.contains(name), qPrintable(name));
        const QByteArray content = files.value(name);
        QCOMPARE(entry.value(u"sha256").toString(), sha256Of(content));
        QCOMPARE(entry.value(u"size").toInteger(), qint64(content.size()));
        QCOMPARE(entry.value(u"packedSize").toInteger(), qint64(content.size()));
        QCOMPARE(entry.value(u"crc").toInteger(), qint64(checksumOf(content)));
        QCOMPARE(entry.value(u"extra").toString(), QString());
        QCOMPARE(entry.value(u"comment").toString(), QString());
        QCOMPARE(entry.value(u"flags").toInteger(-1), qint64(marksOf(name).flags));
        QCOMPARE(entry.value(u"system").toInteger(-1), qint64(marksOf(name).madeBy >> 8));
        for (const QString &zero : {u"method"_qs, u"internal"_qs, u"external"_qs}) {
            QCOMPARE(entry.value(zero).toInteger(-1), 0);
        }
    }
}

void tst_ArchiveEntries::unzip_extractsTheSame()
{
    if (!hasProgram(u"unzip"_qs)) {
        QSKIP("There is no unzip.");
    }
    const QTemporaryDir folder;
    const Files files = sampleFiles();
    writeFiles(folder.filePath(u"in"_qs), files);
    const QString archive = folder.filePath(u"made.zip"_qs);
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(archive)));

    const ProgramRun test = runProgram(u"unzip"_qs, {u"-tq"_qs, archive});
    QVERIFY2(test.exitCode == 0, test.output.constData());
    const ProgramRun run = runProgram(u"unzip"_qs, {u"-q"_qs, archive, u"-d"_qs, folder.filePath(u"out"_qs)});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY(filesBelow(folder.filePath(u"out"_qs)) == files);
}

void tst_ArchiveEntries::unzip_listsStoredEntries()
{
    if (!hasProgram(u"unzip"_qs)) {
        QSKIP("There is no unzip.");
    }
    const QTemporaryDir folder;
    const Files files = sampleFiles();
    writeFiles(folder.filePath(u"in"_qs), files);
    const QString archive = folder.filePath(u"made.zip"_qs);
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(archive)));

    const ProgramRun run = runProgram(u"unzip"_qs, {u"-v"_qs, archive});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const QString listing = QString::fromUtf8(run.output);
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QRegularExpression line(u"^ *%1 +Stored +%1 +0% \\S+ \\S+ %2 +%3$"_qs.arg(file->size())
                                          .arg(checksumOf(file.value()), 8, 16, QLatin1Char('0'))
                                          .arg(QRegularExpression::escape(file.key())),
                                      QRegularExpression::MultilineOption);
        QVERIFY2(line.match(listing).hasMatch(), qPrintable(file.key() + u'\n' + listing));
    }
}

void tst_ArchiveEntries::zipinfo_tellsTheSame()
{
    if (!hasProgram(u"zipinfo"_qs)) {
        QSKIP("There is no zipinfo.");
    }
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"in/name"_qs), "content");
    QVERIFY(setTime(folder.filePath(u"in/name"_qs), QDateTime(QDate(2021, 7, 14), QTime(12, 34, 56))));
    const QString archive = folder.filePath(u"made.zip"_qs);
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(archive)));

    const ProgramRun run = runProgram(u"zipinfo"_qs, {u"-v"_qs, archive});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    const QString listing = QString::fromUtf8(run.output).simplified();
    for (const QString &line :
         {u"There is no zipfile comment."_qs, u"compression method: none (stored)"_qs,
          u"file last modified on (DOS date/time): 2021 Jul 14 12:34:56"_qs, u"file security status: not encrypted"_qs,
          u"extended local header: no"_qs, u"compressed size: 7 bytes"_qs, u"uncompressed size: 7 bytes"_qs,
          u"length of extra field: 0 bytes"_qs, u"length of file comment: 0 characters"_qs,
          u"file system or operating system of origin: MS-DOS, OS/2 or NT FAT"_qs, u"apparent file type: binary"_qs,
          u"MS-DOS file attributes (00 hex): none"_qs, u"non-MSDOS external file attributes: 000000 hex"_qs}) {
        QVERIFY2(listing.contains(line), qPrintable(line + u'\n' + listing));
    }
}

void tst_ArchiveEntries::libzip_readsTheSame()
{
    if (!hasLibzip()) {
        QSKIP("The tests were built without libzip.");
    }
    const QTemporaryDir folder;
    const Files files = sampleFiles();
    writeFiles(folder.filePath(u"in"_qs), files);
    QVERIFY(ZYX_zglv6::CompressDir(folder.filePath(u"in"_qs), QFileInfo(folder.filePath(u"made.zip"_qs))));

    Files read;
    for (const LibzipEntry &entry : readByLibzip(folder.filePath(u"made.zip"_qs))) {
        read.insert(entry.name, entry.content);
        QCOMPARE(entry.method, quint16(0));
        QCOMPARE(entry.encryption, quint16(0));
        QCOMPARE(entry.crc, checksumOf(entry.content));
        QCOMPARE(entry.size, quint64(files.value(entry.name).size()));
    }
    QVERIFY(read == files);
}

QTEST_GUILESS_MAIN(tst_ArchiveEntries)
#include "tst_ArchiveEntries.moc"
