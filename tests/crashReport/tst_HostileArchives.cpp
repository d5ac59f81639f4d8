// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/ArchiveTraps.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/UnZipMod_p.h"
#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>

using namespace TestSupport;
using ZYX_zglv6::DecompressFiles;

namespace {

constexpr quint16 madeByUnix = 3 << 8 | 20;
constexpr quint64 absurd = 1ULL << 63;
constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/*! Packed as by Unix, with \a mode as its file's mode. */
MadeEntry unixEntry(const QByteArray &name, const QByteArray &content, quint32 mode)
{
    return {name, content, 0, 0, madeByUnix, mode << 16};
}

MadeEntry claimingSize(MadeEntry entry, quint64 packedSize, quint64 size)
{
    entry.packedSize = packedSize;
    entry.size = size;
    return entry;
}

/*! Some of each: stored, deflated, in a folder. */
QByteArray smallArchive()
{
    return makeArchive({{"a", "1"}, deflatedEntry("d/e", "content"), unixEntry("f", "2", 0100644)});
}

} // namespace

/*! Archives that somebody made to do harm, or that came to it. */
class tst_HostileArchives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nameThatLeavesTheTarget_endsTheExtraction_data();
    void nameThatLeavesTheTarget_endsTheExtraction();
    void nameThatLeavesTheTarget_isNotExtractedByItself();
    void oddNames_stayInTheTarget_data();
    void oddNames_stayInTheTarget();
    void longestName_isExtracted();

    void links_areRefused_data();
    void links_areRefused();
    void ordinaryUnixEntries_areExtracted_data();
    void ordinaryUnixEntries_areExtracted();
    void linksInTheTarget_areNotFollowed_data();
    void linksInTheTarget_areNotFollowed();
    void targetThatIsALink_isFollowed();
    void pipeInTheTarget_isRefused();
    void pipeAsArchive_isNotOpened();

    void claims_areNotBelieved_data();
    void claims_areNotBelieved();
    void truncatedArchive_isHarmless();
    void changedByte_isHarmless_data();
    void changedByte_isHarmless();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    bool decompress(const QByteArray &archive) const
    {
        writeFile(path(u"made.zip"_qs), archive);
        return DecompressFiles(QFileInfo(path(u"made.zip"_qs)), path(u"box/out"_qs), QString());
    }

    /*! Whatever comes of it, folders that can't be made included. */
    void tryToDecompress(const QByteArray &archive) const
    {
        try {
            decompress(archive);
        } catch (const std::filesystem::filesystem_error &error) {
            QVERIFY2(QByteArray(error.what()).contains("create_directory"), error.what());
        }
    }

    Files extracted() const
    {
        return filesBelow(path(u"box/out"_qs));
    }

    Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_workingFolder;
};

void tst_HostileArchives::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFiles(m_folder->path(),
               {{u"victim"_qs, "kept"}, {u"box/victim"_qs, "kept"}, {u"box/other/victim"_qs, "kept"}});
    QVERIFY(QDir(m_folder->path()).mkpath(u"box/out"_qs));
    m_workingFolder = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path(u"box"_qs)));
}

/*! In none of the tests has anything changed outside of the target. */
void tst_HostileArchives::cleanup()
{
    QVERIFY(QDir::setCurrent(m_workingFolder));
    Files outside = filesBelow(m_folder->path());
    outside.removeIf([](const auto &file) { return file.key().startsWith(u"box/out/") || file.key() == u"made.zip"; });
    QCOMPARE(outside.keys(), QStringList({u"box/other/victim"_qs, u"box/victim"_qs, u"victim"_qs}));
    QCOMPARE(outside.values(), QList<QByteArray>(3, "kept"));
    m_folder.reset();
}

void tst_HostileArchives::nameThatLeavesTheTarget_endsTheExtraction_data()
{
    QTest::addColumn<QByteArray>("name");

    for (const char *name : {"../victim", "../new", "../../victim", "sub/../../victim", "..", "sub/..", "/tmp/zyx-new",
                             "//tmp/zyx-new", "C:\\victim", "c:victim", "Z:/tmp/zyx-new", "..\\victim",
                             R"(sub\..\..\new)", R"(\\host\share\new)", "\\new", "a\\b"}) {
        QTest::newRow(name) << QByteArray(name);
    }
    QTest::newRow("zero in the name") << QByteArray("a\0/../../victim", 15);
    QTest::newRow("zero at the end") << QByteArray("a\0", 2);
    QTest::newRow("256 bytes") << QByteArray(256, 'x');
    QTest::newRow("300 bytes") << QByteArray(300, 'x');
    QTest::newRow("300 bytes in folders") << QByteArray("d/").repeated(149).append("ab");
    QTest::newRow("leaves behind 255 bytes") << QByteArray("d/").repeated(127).append("x/../../victim");
    QTest::newRow("65535 bytes") << QByteArray(65535, 'x');
}

void tst_HostileArchives::nameThatLeavesTheTarget_endsTheExtraction()
{
    QFETCH(const QByteArray, name);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(!decompress(makeArchive({{"before", "1"}, {name, "2"}, {"behind", "3"}})));
    QVERIFY(extracted() == Files({{u"before"_qs, "1"}}));
    QCOMPARE(log.records().size(), 1);
    const QString shown = QFile::decodeName(name.left(qMin(255, int(qstrlen(name)))));
    QVERIFY2(log.records().first().startsWith(u"ERROR ")
                 && log.records().first().endsWith(QString(u": Refused to extract: "_qs + shown)),
             qPrintable(log.records().first()));
}

void tst_HostileArchives::nameThatLeavesTheTarget_isNotExtractedByItself()
{
    writeFile(path(u"made.zip"_qs), makeArchive({{"../new", "1"}, {"a", "2"}}));
    const QString target = path(u"box/out"_qs);
    QVERIFY(!ZYX_zglv6::UnZipMod::extractZipArchive(target, path(u"made.zip"_qs), u"../new"_qs, QByteArray()));
    QVERIFY(extracted().isEmpty());
    QVERIFY(ZYX_zglv6::UnZipMod::extractZipArchive(target, path(u"made.zip"_qs), u"a"_qs, QByteArray()));
}

void tst_HostileArchives::oddNames_stayInTheTarget_data()
{
    QTest::addColumn<QByteArray>("name");

    for (const char *name : {"",
                             ".",
                             "./",
                             "./a",
                             "a//b",
                             "...",
                             ".../new",
                             ".. /new",
                             ". ./new",
                             "..../victim",
                             "~/a",
                             "$HOME/a",
                             "%2e%2e/a",
                             "a\nb",
                             "NUL",
                             "CON",
                             "a:stream",
                             "a*?\"<>|",
                             "\xff\xfe",
                             "\xc0\xae\xc0\xae/new",
                             "\xe2\x80\xa6/a",
                             " ",
                             "a/",
                             "victim/"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void tst_HostileArchives::oddNames_stayInTheTarget()
{
    QFETCH(const QByteArray, name);
    tryToDecompress(makeArchive({{name, "1"}})); // cleanup() looks around
}

void tst_HostileArchives::longestName_isExtracted()
{
    const QByteArray name = "d/" + QByteArray(100, 'x') + "/" + QByteArray(152, 'y');
    QCOMPARE(name.size(), 255);
    QVERIFY(QDir(path(u"box/out"_qs)).mkdir(u"d"_qs));
    QVERIFY(!decompress(makeArchive({{name, "1"}})));
    QVERIFY(extracted() == Files({{QString::fromLatin1(name), "1"}}));
}

void tst_HostileArchives::links_areRefused_data()
{
    QTest::addColumn<QByteArray>("target");

    QTest::newRow("a file outside") << QByteArray("../victim");
    QTest::newRow("a folder outside") << QByteArray("..");
    QTest::newRow("within") << QByteArray("before");
}

void tst_HostileArchives::links_areRefused()
{
    QFETCH(const QByteArray, target);
    QVERIFY(!decompress(makeArchive({{"before", "1"}, unixEntry("link", target, 0120777), {"link/victim", "3"}})));
    QVERIFY(extracted() == Files({{u"before"_qs, "1"}}));
}

void tst_HostileArchives::ordinaryUnixEntries_areExtracted_data()
{
    QTest::addColumn<quint16>("madeBy");
    QTest::addColumn<quint32>("mode");

    QTest::newRow("file") << madeByUnix << 0100644u;
    QTest::newRow("no type") << madeByUnix << 0u;
    QTest::newRow("socket, whose type holds the link's bits") << madeByUnix << 0140777u;
    QTest::newRow("link's bits of another system") << quint16(20) << 0120777u;
}

void tst_HostileArchives::ordinaryUnixEntries_areExtracted()
{
    QFETCH(const quint16, madeBy);
    QFETCH(const quint32, mode);
    MadeEntry entry = unixEntry("a", "1", mode);
    entry.madeBy = madeBy;
    QVERIFY(!decompress(makeArchive({entry})));
    QVERIFY(extracted() == Files({{u"a"_qs, "1"}}));
}

void tst_HostileArchives::linksInTheTarget_areNotFollowed_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("file") << u"../victim"_qs << QByteArray("link");
    QTest::newRow("file that would be made") << u"../new"_qs << QByteArray("link");
    QTest::newRow("folder") << u"../other"_qs << QByteArray("link/victim");
    QTest::newRow("folder, with a new file") << u"../other"_qs << QByteArray("link/new");
    QTest::newRow("folder, with a new folder") << u"../other"_qs << QByteArray("link/sub/new");
    QTest::newRow("folder, by a roundabout name") << u".."_qs << QByteArray("./link//other/new");
    QTest::newRow("the folder itself") << u"../other"_qs << QByteArray("link/");
}

void tst_HostileArchives::linksInTheTarget_areNotFollowed()
{
    QFETCH(const QString, target);
    QFETCH(const QByteArray, name);
    if (!makeLink(target, path(u"box/out/link"_qs))) {
        QSKIP("There are no links for tests here.");
    }
    QVERIFY(!decompress(makeArchive({{"before", "1"}, {name, "2"}, {"behind", "3"}})));
    QVERIFY(extracted() == Files({{u"before"_qs, "1"}, {u"link"_qs, "link"}}));
}

void tst_HostileArchives::targetThatIsALink_isFollowed()
{
    if (!makeLink(path(u"box/out"_qs), path(u"box/out/self"_qs))) {
        QSKIP("There are no links for tests here.");
    }
    writeFile(path(u"made.zip"_qs), makeArchive({{"a", "1"}}));
    QVERIFY(!DecompressFiles(QFileInfo(path(u"made.zip"_qs)), path(u"box/out/self"_qs), QString()));
    QCOMPARE(contentOf(path(u"box/out/a"_qs)), QByteArray("1"));
}

void tst_HostileArchives::pipeInTheTarget_isRefused()
{
    if (!makeFifo(path(u"box/out/pipe"_qs))) {
        QSKIP("There are no pipes among the files here.");
    }
    QVERIFY(!decompress(makeArchive({{"before", "1"}, {"pipe", "2"}, {"behind", "3"}})));
    QVERIFY(extracted() == Files({{u"before"_qs, "1"}, {u"pipe"_qs, "special"}}));
}

void tst_HostileArchives::pipeAsArchive_isNotOpened()
{
    RUN_IN_FRESH_PROCESS();
    const QString pipe = path(u"box/out/pipe.zip"_qs);
    if (!makeFifo(pipe)) {
        QSKIP("There are no pipes among the files here.");
    }
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(!DecompressFiles(QFileInfo(pipe), path(u"box/out"_qs), QString()));
    QCOMPARE(log.records(),
             QStringList(QString(u"ERROR ZYX_zglv6::UnZipMod::extractZipArchive: Cannot open file: "_qs + pipe)));
}

void tst_HostileArchives::claims_areNotBelieved_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("written");

    const MadeEntry plain{"a", "content"};
    const MadeEntry packed = deflatedEntry("a", "content");
    const auto packedBytes = quint64(packed.content.size());
    QTest::newRow("entries, 2^63") << makeArchive({plain}, absurd) << true << QStringList(u"a"_qs);
    QTest::newRow("entries, 2^64 - 1") << makeArchive({plain}, ~0ULL) << true << QStringList(u"a"_qs);
    QTest::newRow("entries, 65534") << makeArchive({plain}, 65534) << true << QStringList(u"a"_qs);
    QTest::newRow("no entries") << makeArchive({plain}, 0) << false << QStringList();
    QTest::newRow("stored, 2^63") << makeArchive({claimingSize(plain, absurd, absurd), {"b"}}) << false
                                  << QStringList(u"a"_qs);
    QTest::newRow("stored, 2^64 - 1") << makeArchive({claimingSize(plain, ~0ULL, ~0ULL), {"b"}}) << false
                                      << QStringList(u"a"_qs);
    QTest::newRow("stored, 4 GiB") << makeArchive({claimingSize(plain, 1ULL << 32, 1ULL << 32), {"b"}}) << false
                                   << QStringList(u"a"_qs);
    QTest::newRow("stored, two sizes") << makeArchive({claimingSize(plain, 7, absurd), {"b"}}) << false
                                       << QStringList(u"a"_qs);
    QTest::newRow("deflated, 2^63 packed")
        << makeArchive({claimingSize(packed, absurd, 7), {"b"}}) << false << QStringList(u"a"_qs);
    QTest::newRow("deflated, to 2^63") << makeArchive({claimingSize(packed, packedBytes, absurd), {"b"}}) << false
                                       << QStringList(u"a"_qs);
}

void tst_HostileArchives::claims_areNotBelieved()
{
    QFETCH(const QByteArray, archive);
    const qint64 before = peakMemory();
    const bool result = decompress(archive);
    QVERIFY(peakMemory() - before < 16'777'216);
    for (const QByteArray &content : extracted()) {
        QVERIFY(content.size() <= 7); // not more than there was
    }
    QTEST(result, "result");
    QStringList written = extracted().keys();
    written.removeAll(u"b"_qs); // a minizip that reads 64-bit sizes takes content that ends early for the end
    QTEST(written, "written");
}

void tst_HostileArchives::truncatedArchive_isHarmless()
{
    const QByteArray whole = smallArchive();
    for (qsizetype size = 0; size < whole.size(); ++size) {
        QVERIFY(!decompress(whole.left(size)));
        // The zeros at the very end may be missing: nothing of what counts is.
        QVERIFY2(extracted().isEmpty() || whole.mid(size).count('\0') == whole.size() - size, QByteArray::number(size));
    }
    QVERIFY(!decompress(whole));
    QVERIFY(extracted() == Files({{u"a"_qs, "1"}, {u"d/e"_qs, "content"}, {u"f"_qs, "2"}}));
}

void tst_HostileArchives::changedByte_isHarmless_data()
{
    QTest::addColumn<int>("mask");

    for (int bit = 0; bit < 8; ++bit) {
        QTest::addRow("bit %d", bit) << (1 << bit);
    }
    QTest::newRow("all bits") << 0xff;
    QTest::newRow("'.' for a letter") << ('a' ^ '.');
    QTest::newRow("'/' for a letter") << ('a' ^ '/');
}

void tst_HostileArchives::changedByte_isHarmless()
{
    QFETCH(const int, mask);
    const QByteArray whole = smallArchive();
    for (qsizetype i = 0; i < whole.size(); ++i) {
        QByteArray changed = whole;
        changed[i] = char(changed.at(i) ^ mask);
        for (const QFileInfo &item : QDir(path(u"box/out"_qs)).entryInfoList(everything)) {
            QVERIFY(item.isDir() ? QDir(item.filePath()).removeRecursively() : QFile::remove(item.filePath()));
        }
        tryToDecompress(changed);
        qint64 size = 0;
        for (const QByteArray &content : extracted()) {
            size += content.size();
        }
        QVERIFY2(size < whole.size() * 2, QByteArray::number(i));
    }
}

QTEST_GUILESS_MAIN(tst_HostileArchives)
#include "tst_HostileArchives.moc"
