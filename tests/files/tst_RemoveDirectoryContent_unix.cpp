// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;
using FileTraps::makeLink;
using FileTrees::treeOf;

class tst_RemoveDirectoryContent_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void entriesOfAnyKind_areRemoved();
    void links_areRemovedAndTheirTargetsStay();
    void linkBack_isRemoved();
    void linkAsFolder_isEmptied();
    void readOnlyFiles_areRemoved();
    void fileThatMayNotBeRemoved_stopsTheWalk();
    void lastFileThatMayNotBeRemoved_givesFalse();
    void unreadableFolder_isAsEmpty();

private:
    QString at(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_RemoveDirectoryContent_unix::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString tst_RemoveDirectoryContent_unix::at(const QString &name) const
{
    return m_folder->filePath(name);
}

void tst_RemoveDirectoryContent_unix::entriesOfAnyKind_areRemoved()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs, u".hidden"_qs, u".folder/.b"_qs}));
    QVERIFY(FileTraps::makePipe(at(u"pipe"_qs)) && FileTraps::makePipe(at(u".folder/.pipe"_qs)));
    QVERIFY(makeLink(u"none"_qs, at(u"broken"_qs)) && makeLink(u"loop"_qs, at(u"loop"_qs)));
    QVERIFY(removeDirectoryContent(QDir(m_folder->path())));
    QCOMPARE(treeOf(m_folder->path()), QStringList{u".folder/"_qs});
}

void tst_RemoveDirectoryContent_unix::links_areRemovedAndTheirTargetsStay()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"out/a"_qs, u"out/b/c"_qs, u"out/empty/"_qs, u"in/d"_qs}));
    QVERIFY(makeLink(u"../out"_qs, at(u"in/toFolder"_qs)));
    QVERIFY(makeLink(at(u"out/b"_qs), at(u"in/toFolder2"_qs)));
    QVERIFY(makeLink(u"../out/empty"_qs, at(u"in/toEmptyFolder"_qs)));
    QVERIFY(makeLink(u"../out/a"_qs, at(u"in/toFile"_qs)));
    const QStringList outside = treeOf(at(u"out"_qs));
    QVERIFY(removeDirectoryContent(QDir(at(u"in"_qs))));
    QCOMPARE(treeOf(at(u"in"_qs)), QStringList());
    QCOMPARE(treeOf(at(u"out"_qs)), outside);
}

void tst_RemoveDirectoryContent_unix::linkBack_isRemoved()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"in/a"_qs, u"in/sub/b"_qs, u"c"_qs}));
    QVERIFY(makeLink(u"."_qs, at(u"in/self"_qs)) && makeLink(u"../.."_qs, at(u"in/sub/up"_qs)));
    QVERIFY(removeDirectoryContent(QDir(at(u"in"_qs))));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"c=c"_qs, u"in/"_qs, u"in/sub/"_qs}));
}

void tst_RemoveDirectoryContent_unix::linkAsFolder_isEmptied()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"real/a"_qs}));
    QVERIFY(makeLink(u"real"_qs, at(u"link"_qs)));
    QVERIFY(removeDirectoryContent(QDir(at(u"link"_qs)))); // named by the caller, so it is meant
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"link@"_qs, u"real/"_qs}));
}

void tst_RemoveDirectoryContent_unix::readOnlyFiles_areRemoved()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs, u"sub/b"_qs}));
    QVERIFY(QFile::setPermissions(at(u"a"_qs), QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(at(u"sub/b"_qs), QFile::Permissions()));
    QVERIFY(removeDirectoryContent(QDir(m_folder->path())));
    QCOMPARE(treeOf(m_folder->path()), QStringList{u"sub/"_qs});
}

void tst_RemoveDirectoryContent_unix::fileThatMayNotBeRemoved_stopsTheWalk()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a/1"_qs, u"b/2"_qs, u"c/3"_qs, u"4"_qs}));
    for (const QString &name : {u""_qs, u"a"_qs, u"c"_qs}) {
        QVERIFY(QFile::setPermissions(at(name), QFile::Permissions(0x7777)));
    }
    QVERIFY(QFile::setPermissions(at(u"b"_qs), QFile::Permissions(0x5555)));
    {
        const FileTraps::OrdinaryUser user;
        QVERIFY(!removeDirectoryContent(QDir(m_folder->path())));
    }
    QVERIFY(QFile::setPermissions(at(u"b"_qs), QFile::Permissions(0x7777)));
    QCOMPARE(treeOf(m_folder->path()),
             (QStringList{u"4=4"_qs, u"a/"_qs, u"b/"_qs, u"b/2=b/2"_qs, u"c/"_qs, u"c/3=c/3"_qs}));
}

void tst_RemoveDirectoryContent_unix::lastFileThatMayNotBeRemoved_givesFalse()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a/1"_qs, u"b"_qs}));
    QVERIFY(QFile::setPermissions(at(u"a"_qs), QFile::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555)));
    {
        const FileTraps::OrdinaryUser user;
        QVERIFY(!removeDirectoryContent(QDir(m_folder->path())));
    }
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"a/"_qs, u"b=b"_qs}));
}

void tst_RemoveDirectoryContent_unix::unreadableFolder_isAsEmpty()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a/1"_qs, u"b"_qs}));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
    QVERIFY(QFile::setPermissions(at(u"a"_qs), QFile::Permissions()));
    {
        const FileTraps::OrdinaryUser user;
        QVERIFY(!removeDirectoryContent(QDir(m_folder->path())));
    }
    QVERIFY(QFile::setPermissions(at(u"a"_qs), QFile::Permissions(0x7777)));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"a/"_qs, u"a/1=a/1"_qs, u"b=b"_qs}));
}

QTEST_GUILESS_MAIN(tst_RemoveDirectoryContent_unix)
#include "tst_RemoveDirectoryContent_unix.moc"
