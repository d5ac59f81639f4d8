// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ElfVersionNote.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <elf.h>

using ZyxPlatform::FileVersion;
using ZyxPlatform::readElfVersionNote;

namespace {

constexpr FileVersion someVersion{1, 2, 3, 4'294'967'295};

template <typename Record>
QByteArray bytesOf(const Record &record)
{
    return {reinterpret_cast<const char *>(&record), sizeof(record)};
}

void padTo(QByteArray &bytes, qsizetype alignment)
{
    while (bytes.size() % alignment != 0) {
        bytes.append('\0');
    }
}

/*! One note as linkers lay it out: its description and its end are aligned, counted from its start. */
QByteArray note(quint32 type, const QByteArray &owner, const QByteArray &description, qsizetype alignment = 4)
{
    QByteArray bytes = bytesOf(Elf64_Nhdr{quint32(owner.size()), quint32(description.size()), type}) + owner;
    padTo(bytes, alignment);
    bytes += description;
    padTo(bytes, alignment);
    return bytes;
}

QByteArray versionNote(const FileVersion &version = someVersion, qsizetype alignment = 4)
{
    return note(1, QByteArray("zyx", 4), bytesOf(version), alignment);
}

QByteArray buildIdNote()
{
    return note(3, QByteArray("GNU", 4), QByteArray(20, '\xab'));
}

struct Segment
{
    quint32 type;
    quint64 alignment;
    QByteArray content;
};

constexpr qsizetype headerSize = sizeof(Elf64_Ehdr);
constexpr qsizetype segmentSize = sizeof(Elf64_Phdr);

QByteArray elf(const QList<Segment> &segments)
{
    Elf64_Ehdr header{};
    memcpy(header.e_ident, ELFMAG, SELFMAG);
    header.e_ident[EI_CLASS] = ELFCLASS64;
    header.e_ident[EI_DATA] = ELFDATA2LSB;
    header.e_ident[EI_VERSION] = EV_CURRENT;
    header.e_type = ET_DYN;
    header.e_machine = EM_X86_64;
    header.e_version = EV_CURRENT;
    header.e_phoff = headerSize;
    header.e_ehsize = headerSize;
    header.e_phentsize = segmentSize;
    header.e_phnum = Elf64_Half(segments.size());

    QByteArray table;
    QByteArray contents;
    qsizetype offset = headerSize + segments.size() * segmentSize;
    for (const Segment &segment : segments) {
        Elf64_Phdr entry{};
        entry.p_type = segment.type;
        entry.p_offset = Elf64_Off(offset + contents.size());
        entry.p_filesz = Elf64_Xword(segment.content.size());
        entry.p_memsz = entry.p_filesz;
        entry.p_align = segment.alignment;
        table += bytesOf(entry);
        contents += segment.content;
    }
    return bytesOf(header) + table + contents;
}

QByteArray stampedElf()
{
    return elf({{PT_LOAD, 4096, QByteArray(32, 'x')},
                {PT_NOTE, 8, note(5, QByteArray("GNU", 4), QByteArray(16, '\1'), 8)},
                {PT_NOTE, 4, buildIdNote() + versionNote()}});
}

std::optional<FileVersion> versionIn(QByteArray file)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return readElfVersionNote(buffer);
}

template <typename Value>
QByteArray withValue(QByteArray file, qsizetype position, Value value)
{
    memcpy(file.data() + position, &value, sizeof(value));
    return file;
}

/*! What lies at \a position; zeros where \a file has ended. */
template <typename Value>
Value valueAt(const QByteArray &file, quint64 position)
{
    Value value{};
    const QByteArray bytes = file.mid(qsizetype(position), sizeof(value));
    memcpy(&value, bytes.constData(), std::size_t(bytes.size()));
    return value;
}

/*! Where the header of segment \a number has a field. */
qsizetype inSegment(qsizetype number, std::size_t field)
{
    return headerSize + number * segmentSize + qsizetype(field);
}

} // namespace

class tst_ElfVersionNote : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void version_isFound_data();
    void version_isFound();
    void version_ofOtherNotes_isNone_data();
    void version_ofOtherNotes_isNone();
    void version_ofFilesThatAreNoElf64_isNone_data();
    void version_ofFilesThatAreNoElf64_isNone();
    void version_ofLyingHeaders_isNone_data();
    void version_ofLyingHeaders_isNone();
    void version_ofLyingSegment_isFoundInTheNext_data();
    void version_ofLyingSegment_isFoundInTheNext();

    void version_ofTruncatedFile_isNone();
    void version_ofFileWithFlippedBytes_isReadInBounds();
    void version_ofRandomNotes_isReadInBounds();
    void version_ofStampedProgram_isItsStamp();
    void stamp_liesInItsOwnSection();
    void version_ofThisProgram_isNone();
    void version_ofClosedFile_isNone();
};

void tst_ElfVersionNote::version_isFound_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<FileVersion>("expected");

    QTest::newRow("alone") << elf({{PT_NOTE, 4, versionNote()}}) << someVersion;
    QTest::newRow("among others") << stampedElf() << someVersion;
    QTest::newRow("behind the build identifier") << elf({{PT_NOTE, 4, buildIdNote() + versionNote()}}) << someVersion;
    QTest::newRow("before the build identifier") << elf({{PT_NOTE, 4, versionNote() + buildIdNote()}}) << someVersion;
    QTest::newRow("aligned to 8") << elf({{PT_NOTE, 8, versionNote(someVersion, 8)}}) << someVersion;
    QTest::newRow("aligned to 8, behind another")
        << elf({{PT_NOTE, 8, note(5, QByteArray("GNU", 4), QByteArray(12, '\1'), 8) + versionNote(someVersion, 8)}})
        << someVersion;
    QTest::newRow("aligned to 8, behind a name of odd length")
        << elf({{PT_NOTE, 8, note(5, "owner of five words", QByteArray(5, '\1'), 8) + versionNote(someVersion, 8)}})
        << someVersion;
    QTest::newRow("aligned to 4, behind odd lengths")
        << elf({{PT_NOTE, 4, note(9, "owner", QByteArray(5, '\1')) + versionNote()}}) << someVersion;
    QTest::newRow("alignment 0 reads as 4") << elf({{PT_NOTE, 0, buildIdNote() + versionNote()}}) << someVersion;
    QTest::newRow("alignment 1 reads as 4") << elf({{PT_NOTE, 1, buildIdNote() + versionNote()}}) << someVersion;
    QTest::newRow("behind an empty note") << elf({{PT_NOTE, 4, note(1, {}, {}) + versionNote()}}) << someVersion;
    QTest::newRow("the first of two") << elf({{PT_NOTE, 4, versionNote({5, 6, 7, 8})}, {PT_NOTE, 4, versionNote()}})
                                      << FileVersion{5, 6, 7, 8};
    QTest::newRow("all zeros") << elf({{PT_NOTE, 4, versionNote({0, 0, 0, 0})}}) << FileVersion{0, 0, 0, 0};
    QTest::newRow("behind an empty segment") << elf({{PT_NOTE, 4, {}}, {PT_NOTE, 4, versionNote()}}) << someVersion;
    QList<Segment> many(255, {PT_LOAD, 4096, {}});
    QTest::newRow("in segment 256") << elf(many + QList<Segment>{{PT_NOTE, 4, versionNote()}}) << someVersion;
    QTest::newRow("at the end of a large segment")
        << elf({{PT_NOTE, 4, note(9, "x", QByteArray(65536 - 64, 'x')) + versionNote()}}) << someVersion;
}

void tst_ElfVersionNote::version_isFound()
{
    QFETCH(const QByteArray, file);
    QFETCH(const FileVersion, expected);

    const std::optional<FileVersion> version = versionIn(file);
    QVERIFY(version.has_value());
    QCOMPARE(*version, expected);
}

void tst_ElfVersionNote::version_ofOtherNotes_isNone_data()
{
    QTest::addColumn<QByteArray>("file");

    const QByteArray numbers = bytesOf(someVersion);
    QTest::newRow("no segment") << elf({});
    QTest::newRow("no notes") << elf({{PT_LOAD, 4096, versionNote()}});
    QTest::newRow("build identifier only") << elf({{PT_NOTE, 4, buildIdNote()}});
    QTest::newRow("other type") << elf({{PT_NOTE, 4, note(2, QByteArray("zyx", 4), numbers)}});
    QTest::newRow("other owner") << elf({{PT_NOTE, 4, note(1, QByteArray("zyy", 4), numbers)}});
    QTest::newRow("owner in capitals") << elf({{PT_NOTE, 4, note(1, QByteArray("ZYX", 4), numbers)}});
    QTest::newRow("owner without its zero") << elf({{PT_NOTE, 4, note(1, "zyx", numbers)}});
    QTest::newRow("longer owner") << elf({{PT_NOTE, 4, note(1, QByteArray("zyx\0\0", 5), numbers)}});
    QTest::newRow("three numbers") << elf({{PT_NOTE, 4, note(1, QByteArray("zyx", 4), numbers.first(12))}});
    QTest::newRow("five numbers") << elf({{PT_NOTE, 4, note(1, QByteArray("zyx", 4), numbers + numbers.first(4))}});
}

void tst_ElfVersionNote::version_ofOtherNotes_isNone()
{
    QFETCH(const QByteArray, file);
    QVERIFY(!versionIn(file));
}

void tst_ElfVersionNote::version_ofFilesThatAreNoElf64_isNone_data()
{
    QTest::addColumn<QByteArray>("file");

    const QByteArray good = stampedElf();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("#!/bin/sh\nexit 0\n").repeated(100);
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("Windows program") << QByteArray("MZ").leftJustified(4096, '\0');
    QTest::newRow("damaged mark") << withValue(good, 0, 'x');
    QTest::newRow("32 bits") << withValue(good, EI_CLASS, quint8(ELFCLASS32));
    QTest::newRow("no class") << withValue(good, EI_CLASS, quint8(ELFCLASSNONE));
    QTest::newRow("big-endian") << withValue(good, EI_DATA, quint8(ELFDATA2MSB));
    QTest::newRow("no byte order") << withValue(good, EI_DATA, quint8(ELFDATANONE));
}

void tst_ElfVersionNote::version_ofFilesThatAreNoElf64_isNone()
{
    QFETCH(const QByteArray, file);
    QVERIFY(!versionIn(file));
}

void tst_ElfVersionNote::version_ofLyingHeaders_isNone_data()
{
    QTest::addColumn<QByteArray>("file");

    const QByteArray good = stampedElf();
    const auto field = [](std::size_t offset) { return qsizetype(offset); };
    const qsizetype count = field(offsetof(Elf64_Ehdr, e_phnum));
    const qsizetype size = field(offsetof(Elf64_Ehdr, e_phentsize));
    const qsizetype table = field(offsetof(Elf64_Ehdr, e_phoff));
    QTest::newRow("no segments told") << withValue(good, count, quint16(0));
    QTest::newRow("one segment more than is read") << withValue(good, count, quint16(257));
    QTest::newRow("most segments") << withValue(good, count, quint16(0xffff));
    QTest::newRow("entries of size 0") << withValue(good, size, quint16(0));
    QTest::newRow("larger entries") << withValue(good, size, quint16(57));
    QTest::newRow("largest entries") << withValue(good, size, quint16(0xffff));
    QTest::newRow("table at 0") << withValue(good, table, quint64(0));
    QTest::newRow("table at the end") << withValue(good, table, quint64(good.size()));
    QTest::newRow("table behind the end") << withValue(good, table, quint64(1) << 40);
    QTest::newRow("table at a negative place") << withValue(good, table, quint64(1) << 63);
    QTest::newRow("table at the last place") << withValue(good, table, ~quint64(0));

    const QByteArray noteOnly = elf({{PT_NOTE, 4, versionNote()}});
    const qsizetype start = headerSize + segmentSize;
    const qsizetype position = inSegment(0, offsetof(Elf64_Phdr, p_offset));
    const qsizetype length = inSegment(0, offsetof(Elf64_Phdr, p_filesz));
    QTest::newRow("segment behind the end") << withValue(noteOnly, position, quint64(1) << 40);
    QTest::newRow("segment at a negative place") << withValue(noteOnly, position, ~quint64(0));
    QTest::newRow("segment of size 0") << withValue(noteOnly, length, quint64(0));
    QTest::newRow("segment one short") << withValue(noteOnly, length, quint64(versionNote().size() - 1));
    QTest::newRow("segment over the budget") << withValue(noteOnly, length, quint64(64 * 1024 + 1));
    QTest::newRow("segment of a terabyte") << withValue(noteOnly, length, quint64(1) << 40);
    QTest::newRow("segment of negative size") << withValue(noteOnly, length, ~quint64(0));
    for (const quint32 lie : {0U, 5U, 0x7fff'ffffU, 0xffff'fffcU, 0xffff'fffdU, 0xffff'ffffU}) {
        QTest::addRow("owner of %u bytes", lie) << withValue(noteOnly, start, lie);
        QTest::addRow("description of %u bytes", lie) << withValue(noteOnly, start + 4, lie);
        QTest::addRow("owner and description of %u bytes", lie)
            << withValue(withValue(noteOnly, start, lie), start + 4, lie);
    }
}

void tst_ElfVersionNote::version_ofLyingHeaders_isNone()
{
    QFETCH(const QByteArray, file);
    QVERIFY(!versionIn(file));
}

void tst_ElfVersionNote::version_ofLyingSegment_isFoundInTheNext_data()
{
    QTest::addColumn<QByteArray>("file");

    const QByteArray good = elf({{PT_NOTE, 4, buildIdNote()}, {PT_NOTE, 4, versionNote()}});
    const qsizetype position = inSegment(0, offsetof(Elf64_Phdr, p_offset));
    const qsizetype length = inSegment(0, offsetof(Elf64_Phdr, p_filesz));
    QTest::newRow("behind the end") << withValue(good, position, quint64(1) << 40);
    QTest::newRow("at a negative place") << withValue(good, position, ~quint64(0));
    QTest::newRow("over the budget") << withValue(good, length, quint64(1) << 40);
    QTest::newRow("owner too long") << withValue(good, headerSize + 2 * segmentSize, 0xffff'ffffU);
    QTest::newRow("description too long") << withValue(good, headerSize + 2 * segmentSize + 4, 0xffff'ffffU);
}

void tst_ElfVersionNote::version_ofLyingSegment_isFoundInTheNext()
{
    QFETCH(const QByteArray, file);
    QCOMPARE(versionIn(file), std::optional(someVersion));
}

void tst_ElfVersionNote::version_ofTruncatedFile_isNone()
{
    const QByteArray good = stampedElf();
    QVERIFY(versionIn(good));
    for (qsizetype length = 0; length < good.size(); ++length) {
        QVERIFY2(!versionIn(good.first(length)), qPrintable(QString::number(length)));
    }
    for (const qsizetype more : {1, 100, 100'000}) {
        QCOMPARE(versionIn(good + QByteArray(more, 'x')), std::optional(someVersion));
    }
}

void tst_ElfVersionNote::version_ofFileWithFlippedBytes_isReadInBounds()
{
    const QByteArray good = stampedElf();
    QRandomGenerator random(1); // the same files in each run
    int foundCount = 0;
    for (int round = 0; round < 100'000; ++round) {
        QByteArray file = good;
        for (quint32 flips = 1 + random.bounded(4U); flips > 0; --flips) {
            file[random.bounded(file.size())] = char(random.bounded(256));
        }
        foundCount += versionIn(file) ? 1 : 0;
    }
    QVERIFY(foundCount > 0); // flips in other places change nothing
    QVERIFY(foundCount < 100'000);
}

void tst_ElfVersionNote::version_ofRandomNotes_isReadInBounds()
{
    QRandomGenerator random(2);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray notes;
        for (quint32 count = random.bounded(40U); count > 0; --count) {
            const quint32 word = random.bounded(3U) == 0 ? random.generate() : random.bounded(24U);
            notes += bytesOf(word);
        }
        const QByteArray file = elf({{PT_NOTE, random.bounded(2U) == 0 ? 4U : 8U, notes}});
        QVERIFY(!versionIn(file)); // none of them has the owner's name
    }
}

void tst_ElfVersionNote::version_ofStampedProgram_isItsStamp()
{
    QFile file(QStringLiteral(STAMPED_MODULE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(readElfVersionNote(file), std::optional(FileVersion{7, 0, 256, 65'535}));

    // What the position of the open file is does not matter.
    QVERIFY(file.seek(100));
    QVERIFY(readElfVersionNote(file));
    QCOMPARE(ZyxPlatform::fileVersion(file.fileName()), readElfVersionNote(file));
}

void tst_ElfVersionNote::stamp_liesInItsOwnSection()
{
    QFile file(QStringLiteral(STAMPED_MODULE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const auto header = valueAt<Elf64_Ehdr>(bytes, 0);
    const auto sectionAt = [&bytes, &header](quint64 number) {
        return valueAt<Elf64_Shdr>(bytes, header.e_shoff + number * sizeof(Elf64_Shdr));
    };
    const Elf64_Shdr names = sectionAt(header.e_shstrndx);
    QByteArrayList contents;
    for (quint64 number = 0; number < header.e_shnum; ++number) {
        const Elf64_Shdr section = sectionAt(number);
        if (qstrcmp(bytes.constData() + names.sh_offset + section.sh_name, ".note.zyx.version") == 0) {
            QCOMPARE(section.sh_type, Elf64_Word(SHT_NOTE));
            contents.append(bytes.mid(qsizetype(section.sh_offset), qsizetype(section.sh_size)));
        }
    }
    QCOMPARE(contents, QByteArrayList{versionNote({7, 0, 256, 65'535})});
}

void tst_ElfVersionNote::version_ofThisProgram_isNone()
{
    QVERIFY(!ZyxPlatform::fileVersion(QCoreApplication::applicationFilePath()));
    QVERIFY(!ZyxPlatform::fileVersion(QCoreApplication::applicationDirPath())); // a folder
    QVERIFY(!ZyxPlatform::fileVersion(u"/no/such/file"_qs));
    QVERIFY(!ZyxPlatform::fileVersion(QString()));
    QVERIFY(!ZyxPlatform::fileVersion(u"/dev/zero"_qs));
}

void tst_ElfVersionNote::version_ofClosedFile_isNone()
{
    QByteArray bytes = stampedElf();
    QBuffer closed(&bytes);
    QVERIFY(!readElfVersionNote(closed));
}

QTEST_GUILESS_MAIN(tst_ElfVersionNote)

#include "tst_ElfVersionNote.moc"
