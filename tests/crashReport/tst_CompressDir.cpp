// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace TestSupport;
using ZYX_zglv6::CompressDir;
using ZYX_zglv6::CompressDirAndClearContent;

namespace {

const QString packing
    = u"DEBUG ZYX_zglv6::`anonymous-namespace'::doCompressDir: Try to compress all files in folder: "_qs;
const QString clearing
    = u"DEBUG ZYX_zglv6::`anonymous-namespace'::doCompressDir: Delete all compressed files in folder: "_qs;
const QString creating = u"INFO ZYX_zglv6::ZipMod::addToZipFile: Creating zip file: "_qs;

QStringList foldersBelow(const QString &folder)
{
    QStringList folders;
    QDirIterator walk(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        folders.append(QDir(folder).relativeFilePath(walk.next()));
    }
    folders.sort();
    return folders;
}

} // namespace

class tst_CompressDir : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void logs_theFolderAndTheArchive();
    void emptyFolder_isAFailedAssertion_data();
    void emptyFolder_isAFailedAssertion();
    void emptyFolder_leavesAnExistingArchive();
    void order_isThatOfTheFolders();
    void filter_ofTheFolderObject_isNotUsed();
    void hiddenFiles_areLeftOut();
    void linkedFolders_areLeftOut();
    void linkedFiles_arePackedByTheirContent();
    void linkedDevices_areLeftOut();
    void namesThatBeginWithAColon_arePackedAndCleared();
    void theArchiveItself_isLeftOut_data();
    void theArchiveItself_isLeftOut();
    void existingArchive_isOverwritten();
    void theContent_stays();
    void relativePaths_areThoseOfTheWorkingFolder();

    void clearing_removesTheFilesAndKeepsTheFolders();
    void clearing_removesLinksAndKeepsWhatTheyLeadTo();
    void clearing_happensAlsoWithoutAnArchive();
    void clearing_ofAnEmptyFolder_isAFailedAssertion();
    void archiveThatCannotBeMade_isAFailure_data();
    void archiveThatCannotBeMade_isAFailure();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    ReadArchive archive() const
    {
        return readArchive(contentOf(path(u"made.zip"_qs)));
    }

    Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_CompressDir::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(u"in"_qs));
}

void tst_CompressDir::logs_theFolderAndTheArchive()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFiles(path(u"in"_qs), {{u"a"_qs, "1"}, {u"sub/b"_qs, "2"}});
    QVERIFY(CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(log.records(), QStringList({packing + path(u"in"_qs), creating + path(u"made.zip"_qs)}));

    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(log.records().mid(2),
             QStringList({packing + path(u"in"_qs), creating + path(u"made.zip"_qs), clearing + path(u"in"_qs)}));
}

void tst_CompressDir::emptyFolder_isAFailedAssertion_data()
{
    QTest::addColumn<QString>("folder");

    QTest::newRow("empty") << u"in"_qs;
    QTest::newRow("folders alone") << u"folders"_qs;
    QTest::newRow("no folder") << u"none"_qs;
    QTest::newRow("a file") << u"file"_qs;
}

void tst_CompressDir::emptyFolder_isAFailedAssertion()
{
    QFETCH(const QString, folder);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    QVERIFY(QDir(m_folder->path()).mkpath(u"folders/a/b"_qs));
    writeFile(path(u"file"_qs), "content");

    QVERIFY(!CompressDir(path(folder), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(!QFileInfo::exists(path(u"made.zip"_qs)));
    static const QRegularExpression form(
        u"^ASSERT_X_RETURN_VALUE in .*compress\\.cpp line \\d+: No files to compress$"_qs);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY2(form.match(reports.texts().first()).hasMatch(), qPrintable(reports.texts().first()));
    QCOMPARE(log.records(),
             QStringList({packing + path(folder),
                          u"ERROR ZYX_zglv6::`anonymous-namespace'::doCompressDir: "_qs + reports.texts().first()}));
}

void tst_CompressDir::emptyFolder_leavesAnExistingArchive()
{
    const AssertionReports reports;
    writeFile(path(u"made.zip"_qs), "older");
    QVERIFY(!CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(contentOf(path(u"made.zip"_qs)), QByteArray("older"));
    QCOMPARE(reports.texts().size(), 1);
}

void tst_CompressDir::order_isThatOfTheFolders()
{
    const QStringList inOrder{u"a1"_qs, u"B/x/deep"_qs, u"B/y"_qs, u"c"_qs, u"D d/e"_qs, u"e"_qs, u"z.txt"_qs};
    for (const QString &name : QStringList(inOrder.rbegin(), inOrder.rend())) {
        writeFile(path(u"in/"_qs + name), name.toUtf8());
    }
    QVERIFY(QDir(path(u"in"_qs)).mkpath(u"empty/folder"_qs));
    QVERIFY(CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));

    QVERIFY(archive().isWhole);
    QStringList names;
    for (const ReadEntry &entry : archive().entries) {
        names.append(QString::fromUtf8(entry.central.name));
        QCOMPARE(entry.content, entry.central.name);
    }
    QCOMPARE(names, inOrder);
}

void tst_CompressDir::filter_ofTheFolderObject_isNotUsed()
{
    writeFiles(path(u"in"_qs), {{u"a.txt"_qs, "1"}, {u"b.dmp"_qs, "2"}, {u"sub/c.dmp"_qs, "3"}});
    QDir folder(path(u"in"_qs), u"*.txt"_qs, QDir::Name | QDir::Reversed, QDir::Files);
    QVERIFY(CompressDir(folder, QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(archive().names(), QList<QByteArray>({"a.txt", "b.dmp", "sub/c.dmp"}));
}

void tst_CompressDir::hiddenFiles_areLeftOut()
{
#ifdef Q_OS_WIN
    QSKIP("Names don't hide files here.");
#endif
    writeFiles(path(u"in"_qs), {{u".hidden"_qs, "1"}, {u".folder/a"_qs, "2"}, {u"sub/.b"_qs, "3"}, {u"c"_qs, "4"}});
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(archive().names(), QList<QByteArray>({"c"}));
    QCOMPARE(filesBelow(path(u"in"_qs)).keys(), QStringList({u".folder/a"_qs, u".hidden"_qs, u"sub/.b"_qs}));
}

void tst_CompressDir::linkedFolders_areLeftOut()
{
#ifdef Q_OS_WIN
    QSKIP("Links need a right here that tests don't have.");
#endif
    writeFiles(m_folder->path(), {{u"in/sub/a"_qs, "1"}, {u"other/b"_qs, "2"}});
    QVERIFY(QFile::link(path(u"in"_qs), path(u"in/sub/loop"_qs)));
    QVERIFY(QFile::link(u"."_qs, path(u"in/self"_qs)));
    QVERIFY(QFile::link(path(u"other"_qs), path(u"in/other"_qs)));
    QVERIFY(QFile::link(u"nowhere"_qs, path(u"in/dangling"_qs)));
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(archive().isWhole);
    QCOMPARE(archive().names(), QList<QByteArray>({"sub/a"}));
    QCOMPARE(contentOf(path(u"other/b"_qs)), QByteArray("2"));
}

void tst_CompressDir::linkedFiles_arePackedByTheirContent()
{
#ifdef Q_OS_WIN
    QSKIP("Links need a right here that tests don't have.");
#endif
    writeFile(path(u"other"_qs), "content");
    QVERIFY(QFile::link(path(u"other"_qs), path(u"in/link"_qs)));
    QVERIFY(CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(archive().names(), QList<QByteArray>({"link"}));
    QCOMPARE(archive().entries.first().content, QByteArray("content"));
}

void tst_CompressDir::linkedDevices_areLeftOut()
{
    if (!QFile::exists(u"/dev/null"_qs)) {
        QSKIP("There are no devices among the files here.");
    }
    writeFile(path(u"in/a"_qs), "1");
    QVERIFY(QFile::link(u"/dev/null"_qs, path(u"in/device"_qs))); // others have bytes without an end
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(archive().names(), QList<QByteArray>({"a"}));
    QCOMPARE(filesBelow(path(u"in"_qs)).keys(), QStringList(u"device"_qs));
}

void tst_CompressDir::namesThatBeginWithAColon_arePackedAndCleared()
{
#ifdef Q_OS_WIN
    QSKIP("No name has a colon here.");
#endif
    const AssertionReports reports;
    writeFiles(path(u"in"_qs), {{u":x.log"_qs, "1"}, {u":/b"_qs, "2"}, {u"sub/:c"_qs, "3"}, {u"sub/:/d"_qs, "4"}});
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(archive().isWhole);
    Files packed;
    for (const ReadEntry &entry : archive().entries) {
        packed.insert(QString::fromUtf8(entry.central.name), entry.content);
    }
    QVERIFY(packed == Files({{u":x.log"_qs, "1"}, {u":/b"_qs, "2"}, {u"sub/:c"_qs, "3"}, {u"sub/:/d"_qs, "4"}}));
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
    QCOMPARE(foldersBelow(path(u"in"_qs)), QStringList({u":"_qs, u"sub"_qs, u"sub/:"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_CompressDir::theArchiveItself_isLeftOut_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("in the folder") << u"in/made.zip"_qs;
    QTest::newRow("in a folder below") << u"in/sub/made.zip"_qs;
    QTest::newRow("by a roundabout path") << u"in/sub/../made.zip"_qs;
}

void tst_CompressDir::theArchiveItself_isLeftOut()
{
    QFETCH(const QString, name);
    writeFiles(path(u"in"_qs), {{u"a"_qs, "1"}, {u"sub/b"_qs, "2"}, {u"z"_qs, "3"}});
    const QFileInfo zip(path(name));
    QVERIFY(!zip.exists());
    QVERIFY(CompressDir(path(u"in"_qs), zip));
    const QByteArray first = contentOf(path(name));
    QCOMPARE(readArchive(first).names(), QList<QByteArray>({"a", "sub/b", "z"}));

    QVERIFY(CompressDir(path(u"in"_qs), zip)); // now it exists, whatever this object has seen before
    QVERIFY(contentOf(path(name)) == first);
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(name))));
    QVERIFY(contentOf(path(name)) == first);
    QCOMPARE(filesBelow(path(u"in"_qs)).size(), 1);

    const AssertionReports reports;
    QVERIFY(!CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(name)))); // nothing but the archive is left
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(contentOf(path(name)) == first);
}

void tst_CompressDir::existingArchive_isOverwritten()
{
    const QFileInfo zip(path(u"made.zip"_qs));
    writeFile(path(u"in/large"_qs), bytesOf(100'000));
    QVERIFY(CompressDir(path(u"in"_qs), zip));
    QVERIFY(QFile::remove(path(u"in/large"_qs)));
    writeFile(path(u"in/small"_qs), "content");
    QVERIFY(CompressDir(path(u"in"_qs), zip));
    QVERIFY(archive().isWhole); // nothing of the larger one is left, neither in front nor behind
    QCOMPARE(archive().names(), QList<QByteArray>({"small"}));

    writeFile(path(u"made.zip"_qs), "no archive");
    QVERIFY(CompressDir(path(u"in"_qs), zip));
    QVERIFY(archive().isWhole);
    QCOMPARE(archive().names(), QList<QByteArray>({"small"}));
}

void tst_CompressDir::theContent_stays()
{
    const Files files{{u"a"_qs, "1"}, {u"sub/b"_qs, bytesOf(20'000)}};
    writeFiles(path(u"in"_qs), files);
    QVERIFY(CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(filesBelow(path(u"in"_qs)) == files);
}

void tst_CompressDir::relativePaths_areThoseOfTheWorkingFolder()
{
    RUN_IN_FRESH_PROCESS();
    writeFile(path(u"in/a"_qs), "1");
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(CompressDirAndClearContent(QDir(u"in"_qs), QFileInfo(u"made.zip"_qs)));
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    QCOMPARE(archive().names(), QList<QByteArray>({"a"}));
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
}

void tst_CompressDir::clearing_removesTheFilesAndKeepsTheFolders()
{
    const AssertionReports reports;
    writeFiles(path(u"in"_qs), {{u"a"_qs, "1"}, {u"sub/name"_qs, "2"}, {u"sub/deeper/c"_qs, "3"}});
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(archive().isWhole);
    QCOMPARE(archive().names(), QList<QByteArray>({"a", "sub/deeper/c", "sub/name"}));
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
    QCOMPARE(foldersBelow(path(u"in"_qs)), QStringList({u"sub"_qs, u"sub/deeper"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_CompressDir::clearing_removesLinksAndKeepsWhatTheyLeadTo()
{
#ifdef Q_OS_WIN
    QSKIP("Links need a right here that tests don't have.");
#endif
    writeFile(path(u"other"_qs), "content");
    QVERIFY(QFile::link(path(u"other"_qs), path(u"in/link"_qs)));
    QVERIFY(CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
    QCOMPARE(contentOf(path(u"other"_qs)), QByteArray("content"));
}

void tst_CompressDir::clearing_happensAlsoWithoutAnArchive()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFiles(path(u"in"_qs), {{u"a"_qs, "1"}, {u"sub/b"_qs, "2"}});
    const QString zip = path(u"none/made.zip"_qs);
    QVERIFY(!CompressDirAndClearContent(path(u"in"_qs), QFileInfo(zip)));
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
    QCOMPARE(foldersBelow(path(u"in"_qs)), QStringList({u"sub"_qs}));
    QCOMPARE(log.records(),
             QStringList(
                 {packing + path(u"in"_qs), u"ERROR ZYX_zglv6::ZipMod::addToZipFile: Error opening zip file: "_qs + zip,
                  u"ERROR ZYX_zglv6::ZipMod::addToZipFile: Error in closing: "_qs + zip, clearing + path(u"in"_qs)}));
}

void tst_CompressDir::clearing_ofAnEmptyFolder_isAFailedAssertion()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    QVERIFY(!CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs))));
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(reports.texts().first().endsWith(u": No files to compress"));
    QCOMPARE(log.records().size(), 2); // nothing of removing
    QVERIFY(!QFileInfo::exists(path(u"made.zip"_qs)));
}

void tst_CompressDir::archiveThatCannotBeMade_isAFailure_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no such folder") << u"none/made.zip"_qs;
    QTest::newRow("a folder") << u"folder"_qs;
    QTest::newRow("below a file") << u"in/a/made.zip"_qs;
}

void tst_CompressDir::archiveThatCannotBeMade_isAFailure()
{
    QFETCH(const QString, name);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFile(path(u"in/a"_qs), "1");
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_qs));
    QVERIFY(!CompressDir(path(u"in"_qs), QFileInfo(path(name))));
    QCOMPARE(log.records().mid(1),
             QStringList({u"ERROR ZYX_zglv6::ZipMod::addToZipFile: Error opening zip file: "_qs + path(name),
                          u"ERROR ZYX_zglv6::ZipMod::addToZipFile: Error in closing: "_qs + path(name)}));
    QVERIFY(filesBelow(path(u"in"_qs)) == Files({{u"a"_qs, "1"}}));
}

QTEST_GUILESS_MAIN(tst_CompressDir)
#include "tst_CompressDir.moc"
