// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;
using FileTrees::manyFiles;
using FileTrees::treeOf;

class tst_RemoveDirectoryContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void walk_data();
    void walk();
    void secondCall_meetsEmptiedFolders();
    void missingFolder_givesFalse();
    void fileAsFolder_givesFalse();
    void relativeFolder();
    void deepFolders_areEmptiedToTheGround();
    void deepFolders_emptyGroundKeepsAll();
    void manyFiles_areNoObstacle();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_RemoveDirectoryContent::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_RemoveDirectoryContent::walk_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("left");
    const auto add = [](const char *row, const QStringList &names, bool result, const QStringList &left) {
        QTest::newRow(row) << names << result << left;
    };
    add("empty folder", {}, false, {});
    add("one file", {u"a"_qs}, true, {});
    add("files", {u"a.tif"_qs, u"B.TIF"_qs, u"\u00fc \U0001F39E.tif"_qs, u"\u5199.tif"_qs}, true, {});
    add("files that begin with a dot", {u".a"_qs, u".b"_qs, u".c/.d"_qs}, true, {u".c/"_qs});
    add("folders are emptied and stay", {u"sub/a"_qs, u"sub/sub/b"_qs, u"z"_qs}, true, {u"sub/"_qs, u"sub/sub/"_qs});
    add("empty folder alone", {u"sub/"_qs}, false, {u"sub/"_qs});
    add("empty folder comes before the files", {u"a"_qs, u"z/"_qs}, false, {u"a=a"_qs, u"z/"_qs});
    add("what is listed before an empty folder goes, what comes after stays",
        {u"a/1"_qs, u"b/"_qs, u"c/2"_qs, u"0.tif"_qs, u"x.tif"_qs}, false,
        {u"0.tif=0.tif"_qs, u"a/"_qs, u"b/"_qs, u"c/"_qs, u"c/2=c/2"_qs, u"x.tif=x.tif"_qs});
    add("folders by name, capitals first", {u"B/"_qs, u"a/1"_qs}, false, {u"B/"_qs, u"a/"_qs, u"a/1=a/1"_qs});
    add("folders by name, small letters last", {u"A/1"_qs, u"b/"_qs, u"C/2"_qs}, false, {u"A/"_qs, u"C/"_qs, u"b/"_qs});
    add("last folder empty", {u"a/1"_qs, u"b/2"_qs, u"c/"_qs}, false, {u"a/"_qs, u"b/"_qs, u"c/"_qs});
    add("empty folder below stops all above", {u"a/a/"_qs, u"a/b/1"_qs, u"a/2"_qs, u"b/3"_qs, u"4"_qs}, false,
        {u"4=4"_qs, u"a/"_qs, u"a/2=a/2"_qs, u"a/a/"_qs, u"a/b/"_qs, u"a/b/1=a/b/1"_qs, u"b/"_qs, u"b/3=b/3"_qs});
}

void tst_RemoveDirectoryContent::walk()
{
    QFETCH(const QStringList, names);
    QFETCH(const bool, result);
    QFETCH(const QStringList, left);
    QVERIFY(FileTrees::make(m_folder->path(), names));
    QCOMPARE(removeDirectoryContent(QDir(m_folder->path())), result);
    QCOMPARE(treeOf(m_folder->path()), left);
    QVERIFY(QFileInfo(m_folder->path()).isDir());
}

void tst_RemoveDirectoryContent::secondCall_meetsEmptiedFolders()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"sub/a"_qs, u"b"_qs}));
    QVERIFY(removeDirectoryContent(QDir(m_folder->path())));
    QVERIFY(FileTrees::make(m_folder->path(), {u"c"_qs}));
    QVERIFY(!removeDirectoryContent(QDir(m_folder->path())));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"c=c"_qs, u"sub/"_qs}));
}

void tst_RemoveDirectoryContent::missingFolder_givesFalse()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs}));
    QVERIFY(!removeDirectoryContent(QDir(m_folder->filePath(u"none"_qs))));
    QCOMPARE(treeOf(m_folder->path()), QStringList{u"a=a"_qs});
}

void tst_RemoveDirectoryContent::fileAsFolder_givesFalse()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs}));
    QVERIFY(!removeDirectoryContent(QDir(m_folder->filePath(u"a"_qs))));
    QCOMPARE(treeOf(m_folder->path()), QStringList{u"a=a"_qs});
}

void tst_RemoveDirectoryContent::relativeFolder()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"sub/a"_qs, u"sub/b/c"_qs, u"d"_qs}));
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(removeDirectoryContent(QDir(u"sub"_qs)));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"d=d"_qs, u"sub/"_qs, u"sub/b/"_qs}));
}

void tst_RemoveDirectoryContent::deepFolders_areEmptiedToTheGround()
{
    QString path;
    for (int depth = 0; depth < 60; ++depth) {
        path += u"d/"_qs;
        QVERIFY(FileTrees::make(m_folder->path(), {QString(path + u"a"), QString(path + u"b")}));
    }
    QVERIFY(removeDirectoryContent(QDir(m_folder->path())));
    QCOMPARE(treeOf(m_folder->path()).filter(u"="_qs), QStringList());
    QCOMPARE(treeOf(m_folder->path()).size(), 60);
}

void tst_RemoveDirectoryContent::deepFolders_emptyGroundKeepsAll()
{
    QString path;
    for (int depth = 0; depth < 60; ++depth) {
        path += u"d/"_qs;
        QVERIFY(FileTrees::make(m_folder->path(), {QString(path + u"a")}));
    }
    QVERIFY(FileTrees::make(m_folder->path(), {QString(path + u"d/")}));
    QVERIFY(!removeDirectoryContent(QDir(m_folder->path())));
    QCOMPARE(treeOf(m_folder->path()).filter(u"="_qs).size(), 60);
}

void tst_RemoveDirectoryContent::manyFiles_areNoObstacle()
{
    QVERIFY(FileTrees::make(m_folder->path(), FileTrees::numberedNames(manyFiles)));
    QVERIFY(removeDirectoryContent(QDir(m_folder->path())));
    QCOMPARE(treeOf(m_folder->path()), QStringList());
}

QTEST_GUILESS_MAIN(tst_RemoveDirectoryContent)
#include "tst_RemoveDirectoryContent.moc"
