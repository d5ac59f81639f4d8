// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/ArchiveLibzip.h"
#include "crashReport/ArchivePrograms.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>

using namespace TestSupport;
using ZYX_zglv6::CompressDir;
using ZYX_zglv6::DecompressFiles;

namespace {

QString extracting(const QString &text)
{
    return u"ERROR ZYX_zglv6::`anonymous-namespace'::doExtractCurrentFile: "_qs + text;
}

/*! An entry whose sum is another one's. */
MadeEntry entryWithWrongSum(const QByteArray &name)
{
    MadeEntry entry{name};
    entry.crc = 1;
    return entry;
}

} // namespace

class tst_DecompressFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void goodArchive_isExtractedAndFalse();
    void goodArchive_logsNothing();
    void archiveThatCannotBeOpened_isLoggedAndFalse_data();
    void archiveThatCannotBeOpened_isLoggedAndFalse();
    void emptyArchive_isFalse();
    void existingFiles_areOverwritten();
    void otherFiles_stay();
    void relativePaths_areThoseOfTheWorkingFolder();

    void missingTarget_isMade();
    void oneFolderLevel_isMade();
    void twoFolderLevels_throw_data();
    void twoFolderLevels_throw();
    void folderEntries_areMadeAndLogged();
    void fileThatCannotBeMade_isSkipped();

    void damagedEntry_endsTheExtraction_data();
    void damagedEntry_endsTheExtraction();
    void entryThatIsNotDescribed_endsTheExtraction();
    void lostWayToTheNextEntry_isTrue_data();
    void lostWayToTheNextEntry_isTrue();

    void foreignArchives_areExtracted_data();
    void foreignArchives_areExtracted();
    void deflatedEntries_areExtracted_data();
    void deflatedEntries_areExtracted();

    void time_isThatOfTheExtraction();
    void time_goesToTheFileOfThatNameInTheWorkingFolder_data();
    void time_goesToTheFileOfThatNameInTheWorkingFolder();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    void makeZip(const QByteArray &bytes) const
    {
        writeFile(path(u"made.zip"_qs), bytes);
    }

    bool decompress() const
    {
        return DecompressFiles(QFileInfo(path(u"made.zip"_qs)), path(u"out"_qs), QString());
    }

    Files extracted() const
    {
        return filesBelow(path(u"out"_qs));
    }

    Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_DecompressFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"out"_qs));
}

void tst_DecompressFiles::goodArchive_isExtractedAndFalse()
{
    Files files{{u"sub/with blanks.txt"_qs, "1"}, {u"z"_qs, "2"}};
    for (const int size : {0, 1, 8191, 8192, 8193, 16384, 200'000}) {
        files.insert(QString::number(size), bytesOf(size));
    }
    writeFiles(path(u"in"_qs), files);
    QVERIFY(CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(!decompress());
    QVERIFY(extracted() == files);
}

void tst_DecompressFiles::goodArchive_logsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    makeZip(makeArchive({{"a"}, {"sub/b"}, {"c", ""}}));
    QVERIFY(!decompress());
    QCOMPARE(log.records(), QStringList());
    QCOMPARE(extracted().keys(), QStringList({u"a"_qs, u"c"_qs, u"sub/b"_qs}));
}

void tst_DecompressFiles::archiveThatCannotBeOpened_isLoggedAndFalse_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing") << u"none.zip"_qs;
    QTest::newRow("in a missing folder") << u"none/a.zip"_qs;
    QTest::newRow("folder") << u"folder"_qs;
    QTest::newRow("empty file") << u"empty"_qs;
    QTest::newRow("no archive") << u"text"_qs;
}

void tst_DecompressFiles::archiveThatCannotBeOpened_isLoggedAndFalse()
{
    QFETCH(const QString, name);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_qs));
    writeFiles(m_folder->path(), {{u"empty"_qs, ""}, {u"text"_qs, QByteArray(100'000, 'P')}});
    QVERIFY(!DecompressFiles(QFileInfo(path(name)), path(u"out"_qs), QString()));
    QCOMPARE(log.records(),
             QStringList(QString(u"ERROR ZYX_zglv6::UnZipMod::extractZipArchive: Cannot open file: "_qs + path(name))));
    QVERIFY(extracted().isEmpty());
}

void tst_DecompressFiles::emptyArchive_isFalse()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    makeZip("#!" + makeArchive({})); // behind something else: minizip finds no end at position 0
    QVERIFY(!decompress());
    QCOMPARE(log.records(), QStringList());
    QVERIFY(extracted().isEmpty());
}

void tst_DecompressFiles::existingFiles_areOverwritten()
{
    writeFiles(path(u"out"_qs), {{u"a"_qs, bytesOf(50'000)}, {u"sub/b"_qs, ""}});
    makeZip(makeArchive({{"a", "short"}, {"sub/b", "longer"}, {"a", "last"}}));
    QVERIFY(!decompress());
    QVERIFY(extracted() == Files({{u"a"_qs, "last"}, {u"sub/b"_qs, "longer"}}));
}

void tst_DecompressFiles::otherFiles_stay()
{
    writeFiles(path(u"out"_qs), {{u"other"_qs, "1"}, {u"sub/other"_qs, "2"}});
    makeZip(makeArchive({{"a", "3"}, {"sub/b", "4"}}));
    QVERIFY(!decompress());
    QVERIFY(extracted() == Files({{u"a"_qs, "3"}, {u"other"_qs, "1"}, {u"sub/b"_qs, "4"}, {u"sub/other"_qs, "2"}}));
}

void tst_DecompressFiles::relativePaths_areThoseOfTheWorkingFolder()
{
    RUN_IN_FRESH_PROCESS();
    makeZip(makeArchive({{"a", "1"}}));
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(!DecompressFiles(QFileInfo(u"made.zip"_qs), QDir(u"out"_qs), QString()));
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    QVERIFY(extracted() == Files({{u"a"_qs, "1"}}));
}

void tst_DecompressFiles::missingTarget_isMade()
{
    QVERIFY(QDir(m_folder->path()).rmdir(u"out"_qs));
    makeZip(makeArchive({{"a", "1"}, {"sub/b", "2"}}));
    QVERIFY(!decompress());
    QVERIFY(extracted() == Files({{u"a"_qs, "1"}, {u"sub/b"_qs, "2"}}));
}

void tst_DecompressFiles::oneFolderLevel_isMade()
{
    makeZip(makeArchive({{"one/a", "1"}, {"one/two/b", "2"}, {"one/two/three/c", "3"}}));
    QVERIFY(!decompress()); // each below one that is there by then
    QVERIFY(extracted() == Files({{u"one/a"_qs, "1"}, {u"one/two/b"_qs, "2"}, {u"one/two/three/c"_qs, "3"}}));
}

void tst_DecompressFiles::twoFolderLevels_throw_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("folder");

    QTest::newRow("two missing") << QByteArray("one/two/a") << u"out/one/two"_qs;
    QTest::newRow("three missing") << QByteArray("one/two/three/a") << u"out/one/two/three"_qs;
    QTest::newRow("a file in the way") << QByteArray("file/a") << u"out/file"_qs;
    QTest::newRow("below a file") << QByteArray("file/sub/a") << u"out/file/sub"_qs;
    QTest::newRow("folder entry") << QByteArray("one/two/") << u"out/one/two"_qs;
}

void tst_DecompressFiles::twoFolderLevels_throw()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, folder);
    writeFile(path(u"out/file"_qs), "content");
    makeZip(makeArchive({{"before", "1"}, {name, "2"}, {"behind", "3"}}));
    try {
        decompress();
        QFAIL("nothing was thrown");
    } catch (const std::filesystem::filesystem_error &error) {
        QVERIFY2(QByteArray(error.what()).contains("create_directory"), error.what());
        QCOMPARE(QString::fromStdWString(error.path1().generic_wstring()), path(folder));
        QVERIFY(error.code().value() != 0);
    }
    QVERIFY(extracted() == Files({{u"before"_qs, "1"}, {u"file"_qs, "content"}}));
    QVERIFY(QFile::remove(path(u"made.zip"_qs))); // it was closed
}

void tst_DecompressFiles::folderEntries_areMadeAndLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    makeZip(makeArchive({{"sub/", ""}, {"sub/deeper/", ""}, {"sub/deeper/a", "1"}}));
    QVERIFY(!decompress());
    QVERIFY(extracted() == Files({{u"sub/deeper/a"_qs, "1"}}));
    QCOMPARE(
        log.records(), // a folder is no file that could be written
        QStringList({extracting(u"Error opening file: sub/"_qs), extracting(u"Error opening file: sub/deeper/"_qs)}));
}

void tst_DecompressFiles::fileThatCannotBeMade_isSkipped()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(QDir(path(u"out"_qs)).mkpath(u"taken/by/folder"_qs));
    makeZip(makeArchive({{"a", "1"}, {"taken", "2"}, {"b", "3"}}));
    QVERIFY(!decompress());
    QVERIFY(extracted() == Files({{u"a"_qs, "1"}, {u"b"_qs, "3"}}));
    QCOMPARE(log.records(), QStringList(extracting(u"Error opening file: taken"_qs)));
}

void tst_DecompressFiles::damagedEntry_endsTheExtraction_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QStringList>("calls");

    const auto around = [](const MadeEntry &damaged) {
        return makeArchive({{"before", "1"}, damaged, {"behind", "3"}});
    };
    QTest::newRow("sum") << around(entryWithWrongSum("damaged")) << QStringList(u"unzCloseCurrentFile"_qs);

    MadeEntry noStream = deflatedEntry("damaged", "content");
    noStream.content.fill('\xff');
    QTest::newRow("deflated stream") << around(noStream) << QStringList(u"unzReadCurrentFile"_qs);

    MadeEntry unknown{"damaged"};
    unknown.method = 99;
    QTest::newRow("method") << around(unknown)
                            << QStringList({u"unzOpenCurrentFilePassword"_qs, u"unzCloseCurrentFile"_qs});

    QByteArray bytes = around({"damaged"});
    bytes[int(bytes.indexOf("damaged")) - 30] = 'X';
    QTest::newRow("local header") << bytes
                                  << QStringList({u"unzOpenCurrentFilePassword"_qs, u"unzCloseCurrentFile"_qs});
}

void tst_DecompressFiles::damagedEntry_endsTheExtraction()
{
    QFETCH(const QByteArray, archive);
    QFETCH(const QStringList, calls);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    makeZip(archive);
    QVERIFY(!decompress());
    QStringList expected;
    for (const QString &call : calls) {
        expected.append(extracting(u"Error with zipfile in "_qs + call + u": "));
    }
    QCOMPARE(log.records(), expected);
    QCOMPARE(contentOf(path(u"out/before"_qs)), QByteArray("1"));
    QVERIFY(!QFileInfo::exists(path(u"out/behind"_qs)));
}

void tst_DecompressFiles::entryThatIsNotDescribed_endsTheExtraction()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QByteArray noMark = makeArchive({{"a", "1"}, {"b", "2"}});
    noMark[int(noMark.indexOf("PK\1\2"))] = 'X';
    makeZip(noMark);
    QVERIFY(!decompress());
    QCOMPARE(log.records(), QStringList(extracting(u"Error with zipfile in unzGetCurrentFileInfo: "_qs)));
    QVERIFY(extracted().isEmpty());
}

void tst_DecompressFiles::lostWayToTheNextEntry_isTrue_data()
{
    QTest::addColumn<QByteArray>("archive");

    QByteArray noMark = makeArchive({{"a", "1"}, {"b", "2"}, {"c", "3"}});
    noMark[int(noMark.indexOf("PK\1\2", noMark.indexOf("PK\1\2") + 1))] = 'X';
    QTest::newRow("no second entry in the directory") << noMark;
    QTest::newRow("more entries claimed than there are") << makeArchive({{"a", "1"}}, 2);
}

void tst_DecompressFiles::lostWayToTheNextEntry_isTrue()
{
    QFETCH(const QByteArray, archive);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    makeZip(archive);
    QVERIFY(decompress());
    QCOMPARE(log.records(),
             QStringList(QString(u"ERROR ZYX_zglv6::`anonymous-namespace'::doExtractAllFilesInZip: "
                                 u"Error with zipfile in unzGoToNextFile: "_qs)));
    QVERIFY(extracted() == Files({{u"a"_qs, "1"}}));
}

void tst_DecompressFiles::foreignArchives_areExtracted_data()
{
    QTest::addColumn<QString>("maker");
    QTest::addColumn<bool>("isStored");

    for (const QString &maker : {u"zip"_qs, u"python3"_qs, u"libzip"_qs}) {
        QTest::addRow("%s, stored", qPrintable(maker)) << maker << true;
        QTest::addRow("%s, deflated", qPrintable(maker)) << maker << false;
    }
}

void tst_DecompressFiles::foreignArchives_areExtracted()
{
    QFETCH(const QString, maker);
    QFETCH(const bool, isStored);
    const bool isLibzip = maker == u"libzip";
    if (isLibzip ? !hasLibzip() : !hasProgram(maker)) {
        QSKIP(qPrintable(QString(u"There is no "_qs + maker)));
    }
    const Files files{{u"a.txt"_qs, QByteArray(100'000, 'a')},
                      {u"empty"_qs, ""},
                      {u"sub/bytes"_qs, bytesOf(70'000)},
                      {u"\u00fc \u5199\u771f"_qs, "letters"}};
    writeFiles(path(u"in"_qs), files);
    const QString zip = path(u"made.zip"_qs);
    if (isLibzip) {
        QVERIFY(packByLibzip(zip, files, isStored));
    } else if (maker == u"python3") {
        QVERIFY(packByPython(zip, isStored ? 0 : 8, path(u"in"_qs)));
    } else {
        QCOMPARE(runProgram(maker, {u"-qrD"_qs, isStored ? u"-0"_qs : u"-9"_qs, zip, u"."_qs}, path(u"in"_qs)).exitCode,
                 0);
    }
    QVERIFY(!decompress());
    QVERIFY(extracted() == files);
}

void tst_DecompressFiles::deflatedEntries_areExtracted_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("short") << QByteArray("content");
    QTest::newRow("zeros of many buffers") << QByteArray(1'000'000, '\0');
    QTest::newRow("random") << bytesOf(100'000);
}

void tst_DecompressFiles::deflatedEntries_areExtracted()
{
    QFETCH(const QByteArray, content);
    makeZip(makeArchive({deflatedEntry("a", content), {"b", "2"}}));
    QVERIFY(!decompress());
    QVERIFY(extracted() == Files({{u"a"_qs, content}, {u"b"_qs, "2"}}));
}

void tst_DecompressFiles::time_isThatOfTheExtraction()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    makeZip(makeArchive({{"a"}}));
    const QDateTime before = QDateTime::currentDateTime().addSecs(-3);
    QVERIFY(!decompress());
    const QDateTime written = QFileInfo(path(u"out/a"_qs)).lastModified();
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    QVERIFY2(written >= before && written <= QDateTime::currentDateTime().addSecs(3), qPrintable(written.toString()));
    QVERIFY(!QFileInfo::exists(path(u"a"_qs)));
}

void tst_DecompressFiles::time_goesToTheFileOfThatNameInTheWorkingFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<bool>("isSet");

    QTest::newRow("name") << u"a"_qs << makeArchive({{"a"}}) << true;
    QTest::newRow("name in a folder") << u"sub/b"_qs << makeArchive({{"sub/b"}}) << true;
    QTest::newRow("another name") << u"a"_qs << makeArchive({{"b"}}) << false;
    QTest::newRow("wrong sum") << u"a"_qs << makeArchive({entryWithWrongSum("a")}) << true; // the reading did end
    MadeEntry noStream = deflatedEntry("a", "content");
    noStream.content.fill('\xff');
    QTest::newRow("content that can't be read") << u"a"_qs << makeArchive({noStream}) << false;
    MadeEntry noDate{"a"};
    noDate.dosTime = 0;
    QTest::newRow("no time") << u"a"_qs << makeArchive({noDate}) << false;
}

void tst_DecompressFiles::time_goesToTheFileOfThatNameInTheWorkingFolder()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, archive);
    QFETCH(const bool, isSet);
    RUN_IN_FRESH_PROCESS();
    const QString file = path(name);
    writeFile(file, "kept");
    const QDateTime older(QDate(2001, 2, 3), QTime(4, 5, 6));
    {
        QFile opened(file);
        QVERIFY(opened.open(QIODevice::ReadWrite));
        QVERIFY(opened.setFileTime(older, QFileDevice::FileAccessTime));
        QVERIFY(opened.setFileTime(older, QFileDevice::FileModificationTime));
    }
    makeZip(archive);
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(!decompress());
    QVERIFY(QDir::setCurrent(QDir::rootPath()));

    const QDateTime inArchive(QDate(2025, 1, 11), QTime(13, 25, 52));
    QCOMPARE(QFileInfo(file).lastModified(), isSet ? inArchive : older);
    QCOMPARE(QFileInfo(file).lastRead(), older);
    QCOMPARE(contentOf(file), QByteArray("kept"));
    const QFileInfo out(path(u"out/"_qs + name));
    QVERIFY(!out.exists() || out.lastModified() > inArchive);
}

QTEST_GUILESS_MAIN(tst_DecompressFiles)
#include "tst_DecompressFiles.moc"
