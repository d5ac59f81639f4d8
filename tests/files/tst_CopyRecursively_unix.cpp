// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"
#include "support/FreshProcess.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;
using FileTraps::makeLink;
using FileTrees::treeOf;

/*! What folders hold beside plain files, and what does not let itself be copied. */
class tst_CopyRecursively_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void hiddenEntries_areLeftOut();
    void hiddenSource_isCopied();
    void pipeAsSource_isRefused();
    void pipesAndBrokenLinks_areLeftOut();
    void links_areCopiedAsWhatTheyLeadTo();
    void linkAsSource_isFollowed();
    void linkBack_endsTheCopy_data();
    void linkBack_endsTheCopy();
    void linkToTheTarget_endsTheCopy();
    void intoItselfThroughALink_isRefusedAndWritesNothing();
    void sameFolderTwiceByLinks_isCopiedTwice();

    void permissions_areThoseOfTheSource_data();
    void permissions_areThoseOfTheSource();
    void unreadableFile_endsTheCopy();
    void unreadableFolder_isCopiedAsEmpty();
    void targetThatMayNotBeWritten_isRefused();
    void fullDisk_leavesWholeFilesOnly();

private:
    QString at(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_CopyRecursively_unix::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString tst_CopyRecursively_unix::at(const QString &name) const
{
    return m_folder->filePath(name);
}

void tst_CopyRecursively_unix::hiddenEntries_areLeftOut()
{
    QVERIFY(
        FileTrees::make(at(u"source"_qs), {u"a"_qs, u".hidden"_qs, u".folder/b"_qs, u"sub/.hidden"_qs, u"sub/c"_qs}));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), (QStringList{u"a=a"_qs, u"sub/"_qs, u"sub/c=sub/c"_qs}));
}

void tst_CopyRecursively_unix::hiddenSource_isCopied()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u".file"_qs, u".folder/a"_qs}));
    QVERIFY(copyRecursively(at(u".file"_qs), at(u".file2"_qs)));
    QVERIFY(copyRecursively(at(u".folder"_qs), at(u".folder2"_qs)));
    QCOMPARE(treeOf(m_folder->path()),
             (QStringList{u".file2=.file"_qs, u".file=.file"_qs, u".folder/"_qs, u".folder/a=.folder/a"_qs,
                          u".folder2/"_qs, u".folder2/a=.folder/a"_qs}));
}

void tst_CopyRecursively_unix::pipeAsSource_isRefused()
{
    QVERIFY(FileTraps::makePipe(at(u"pipe"_qs)));
    QVERIFY(!copyRecursively(at(u"pipe"_qs), at(u"target"_qs)));
    QVERIFY(!QFileInfo::exists(at(u"target"_qs)));
}

void tst_CopyRecursively_unix::pipesAndBrokenLinks_areLeftOut()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs, u"sub/b"_qs}));
    QVERIFY(FileTraps::makePipe(at(u"source/pipe"_qs)) && FileTraps::makePipe(at(u"source/sub/pipe"_qs)));
    QVERIFY(makeLink(u"none"_qs, at(u"source/broken"_qs)) && makeLink(u"loop"_qs, at(u"source/loop"_qs)));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), (QStringList{u"a=a"_qs, u"sub/"_qs, u"sub/b=sub/b"_qs}));
}

void tst_CopyRecursively_unix::links_areCopiedAsWhatTheyLeadTo()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"out/file"_qs, u"out/folder/b"_qs, u"source/a"_qs}));
    QVERIFY(makeLink(u"../out/file"_qs, at(u"source/toFile"_qs)));
    QVERIFY(makeLink(at(u"out/folder"_qs), at(u"source/toFolder"_qs)));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)),
             (QStringList{u"a=source/a"_qs, u"toFile=out/file"_qs, u"toFolder/"_qs, u"toFolder/b=out/folder/b"_qs}));
}

void tst_CopyRecursively_unix::linkAsSource_isFollowed()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"file"_qs, u"folder/a"_qs}));
    QVERIFY(makeLink(u"file"_qs, at(u"toFile"_qs)) && makeLink(u"folder"_qs, at(u"toFolder"_qs)));
    QVERIFY(copyRecursively(at(u"toFile"_qs), at(u"x"_qs)));
    QVERIFY(copyRecursively(at(u"toFolder"_qs), at(u"y"_qs)));
    QVERIFY(!copyRecursively(at(u"toFile"_qs), at(u"file"_qs)));
    QCOMPARE(treeOf(m_folder->path()),
             (QStringList{u"file=file"_qs, u"folder/"_qs, u"folder/a=folder/a"_qs, u"toFile@"_qs, u"toFolder@"_qs,
                          u"x=file"_qs, u"y/"_qs, u"y/a=folder/a"_qs}));
}

void tst_CopyRecursively_unix::linkBack_endsTheCopy_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("otherLink");
    QTest::addColumn<QString>("otherTo");

    QTest::newRow("to its own folder") << u"source/link"_qs << u"."_qs << QString() << QString();
    QTest::newRow("to the source") << u"source/sub/link"_qs << u".."_qs << QString() << QString();
    QTest::newRow("to the folder around the source") << u"source/link"_qs << u"../../in"_qs << QString() << QString();
    QTest::newRow("two folders, each to the other")
        << u"source/link"_qs << u"../other"_qs << u"other/link"_qs << u"../source"_qs;
    QTest::newRow("two links in one folder") << u"source/link"_qs << u"."_qs << u"source/link2"_qs << u"link"_qs;
}

void tst_CopyRecursively_unix::linkBack_endsTheCopy()
{
    QFETCH(const QString, link);
    QFETCH(const QString, to);
    QFETCH(const QString, otherLink);
    QFETCH(const QString, otherTo);
    QVERIFY(FileTrees::make(at(u"in"_qs), {u"source/a"_qs, u"source/sub/b"_qs, u"other/c"_qs}));
    QVERIFY(makeLink(to, at(u"in/"_qs + link)));
    QVERIFY(otherLink.isEmpty() || makeLink(otherTo, at(u"in/"_qs + otherLink)));
    QVERIFY(!copyRecursively(at(u"in/source"_qs), at(u"target"_qs)));
    QVERIFY2(treeOf(at(u"target"_qs)).size() <= 8, qPrintable(treeOf(at(u"target"_qs)).join(u'\n')));
}

void tst_CopyRecursively_unix::linkToTheTarget_endsTheCopy()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/"_qs, u"out/large"_qs}));
    QVERIFY(makeLink(u"../out"_qs, at(u"source/link"_qs)));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"out/target"_qs)));
    const QStringList tree = treeOf(at(u"out/target"_qs));
    QVERIFY2(tree.size() <= 5, qPrintable(u"%1 entries"_qs.arg(tree.size())));
}

void tst_CopyRecursively_unix::intoItselfThroughALink_isRefusedAndWritesNothing()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/a"_qs}));
    QVERIFY(makeLink(u"source"_qs, at(u"link"_qs)));
    const QStringList tree = treeOf(m_folder->path());
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"link/new"_qs)));
    QVERIFY(!copyRecursively(at(u"link"_qs), at(u"source/new"_qs)));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"link"_qs)));
    QCOMPARE(treeOf(m_folder->path()), tree);
}

void tst_CopyRecursively_unix::sameFolderTwiceByLinks_isCopiedTwice()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"out/a"_qs, u"source/"_qs}));
    QVERIFY(makeLink(u"../out"_qs, at(u"source/x"_qs)) && makeLink(u"../out"_qs, at(u"source/y"_qs)));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), (QStringList{u"x/"_qs, u"x/a=out/a"_qs, u"y/"_qs, u"y/a=out/a"_qs}));
}

void tst_CopyRecursively_unix::permissions_areThoseOfTheSource_data()
{
    QTest::addColumn<int>("permissions");
    for (const int permissions : {0x6000, 0x6644, 0x7755, 0x4444, 0x6666, 0x7777}) {
        QTest::addRow("%x", permissions) << permissions;
    }
}

void tst_CopyRecursively_unix::permissions_areThoseOfTheSource()
{
    QFETCH(const int, permissions);
    if (permissions == 0x4444 && QFileInfo(u"/"_qs).isWritable()) {
        QSKIP("This user may write any file, and Qt takes that for a permission of the file");
    }
    const QFile::Permissions owned(permissions | (permissions & 0xf000) >> 4); // the owner is the user here
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs}));
    QVERIFY(QFile::setPermissions(at(u"source/a"_qs), owned));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    constexpr QFile::Permissions compared(0x7077);
    QCOMPARE(QFile::permissions(at(u"target/a"_qs)) & compared, owned & compared);
}

void tst_CopyRecursively_unix::unreadableFile_endsTheCopy()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/a"_qs, u"out/"_qs}));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(at(u"out"_qs), QFile::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(at(u"source/a"_qs), QFile::Permissions()));
    {
        const FileTraps::OrdinaryUser user;
        QVERIFY(!copyRecursively(at(u"source/a"_qs), at(u"out/b"_qs)));
        QVERIFY(!copyRecursively(at(u"source"_qs), at(u"out/target"_qs)));
    }
    QCOMPARE(treeOf(at(u"out"_qs)), QStringList{u"target/"_qs});
}

void tst_CopyRecursively_unix::unreadableFolder_isCopiedAsEmpty()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/sub/a"_qs, u"source/b"_qs, u"out/"_qs}));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(at(u"out"_qs), QFile::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(at(u"source/sub"_qs), QFile::Permissions()));
    {
        const FileTraps::OrdinaryUser user;
        QVERIFY(copyRecursively(at(u"source"_qs), at(u"out/target"_qs)));
    }
    QVERIFY(QFile::setPermissions(at(u"source/sub"_qs), QFile::Permissions(0x7700)));
    QCOMPARE(treeOf(at(u"out"_qs)), (QStringList{u"target/"_qs, u"target/b=source/b"_qs, u"target/sub/"_qs}));
}

void tst_CopyRecursively_unix::targetThatMayNotBeWritten_isRefused()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/a"_qs, u"out/"_qs}));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(at(u"out"_qs), QFile::Permissions(0x5555)));
    {
        const FileTraps::OrdinaryUser user;
        QVERIFY(!copyRecursively(at(u"source/a"_qs), at(u"out/a"_qs)));
        QVERIFY(!copyRecursively(at(u"source"_qs), at(u"out"_qs)));
        QVERIFY(!copyRecursively(at(u"source"_qs), at(u"out/new"_qs)));
    }
    QCOMPARE(treeOf(at(u"out"_qs)), QStringList());
}

void tst_CopyRecursively_unix::fullDisk_leavesWholeFilesOnly()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/"_qs, u"small/"_qs}));
    if (!FileTraps::mountSmallDisk(at(u"small"_qs), 65'536)) {
        QSKIP("This user may not mount a file system");
    }
    const QByteArray bytes(20'000, 'x');
    for (const QString &name : FileTrees::numberedNames(10)) {
        QVERIFY(FileTrees::write(at(u"source/"_qs + name), bytes));
    }
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"small/target"_qs)));
    const QStringList copied = treeOf(at(u"small/target"_qs));
    QCOMPARE(copied.size(), 3);
    for (const QString &entry : copied) {
        QVERIFY(treeOf(at(u"source"_qs)).contains(entry));
    }
}

QTEST_GUILESS_MAIN(tst_CopyRecursively_unix)
#include "tst_CopyRecursively_unix.moc"
