// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QRandomGenerator>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;
using FileTrees::manyFiles;
using FileTrees::treeOf;

class tst_CopyRecursively : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void file_hasTheSameBytes();
    void file_ontoSomething_isRefused_data();
    void file_ontoSomething_isRefused();
    void file_intoMissingFolder_isRefused();
    void missingSource_isRefused();

    void emptyTarget_isRefused();
    void folder_intoMissingFolders_makesThem();
    void folder_isCopiedWithAllBelow();
    void folder_intoExistingOne_keepsWhatElseIsThere();
    void folder_ontoAFile_isRefused();
    void folderWhereAFileIs_isRefused();
    void fileWhereAFolderIs_isRefused();
    void emptyFolder_isMade();
    void uncleanPaths_areTheSame();
    void relativePaths();
    void intoItself_isRefusedAndWritesNothing_data();
    void intoItself_isRefusedAndWritesNothing();
    void besideOrAroundItself_isNoCopyIntoItself();
    void firstFailure_endsTheCopy();
    void failureInAFolder_endsTheCopy();
    void manyFiles_areNoObstacle();

private:
    QString at(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_CopyRecursively::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString tst_CopyRecursively::at(const QString &name) const
{
    return m_folder->filePath(name);
}

void tst_CopyRecursively::file_hasTheSameBytes()
{
    QByteArray bytes(3'000'001, Qt::Uninitialized);
    for (char &byte : bytes) {
        byte = char(QRandomGenerator::global()->bounded(256));
    }
    QVERIFY(FileTrees::write(at(u"a \u00fc.tif"_qs), bytes));
    QVERIFY(copyRecursively(at(u"a \u00fc.tif"_qs), at(u"b \U0001F39E.tif"_qs)));
    QVERIFY(FileTrees::contentOf(at(u"b \U0001F39E.tif"_qs)) == bytes);
    QVERIFY(FileTrees::contentOf(at(u"a \u00fc.tif"_qs)) == bytes);
    QVERIFY(FileTrees::write(at(u"none"_qs), QByteArray()));
    QVERIFY(copyRecursively(at(u"none"_qs), at(u"none2"_qs)));
    QCOMPARE(QFileInfo(at(u"none2"_qs)).size(), 0);
}

void tst_CopyRecursively::file_ontoSomething_isRefused_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("file") << u"b"_qs;
    QTest::newRow("folder") << u"folder"_qs;
    QTest::newRow("itself") << u"a"_qs;
}

void tst_CopyRecursively::file_ontoSomething_isRefused()
{
    QFETCH(const QString, target);
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs, u"b"_qs, u"folder/"_qs}));
    QVERIFY(!copyRecursively(at(u"a"_qs), at(target)));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"a=a"_qs, u"b=b"_qs, u"folder/"_qs}));
}

void tst_CopyRecursively::file_intoMissingFolder_isRefused()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs}));
    QVERIFY(!copyRecursively(at(u"a"_qs), at(u"none/a"_qs)));
    QCOMPARE(treeOf(m_folder->path()), QStringList{u"a=a"_qs});
}

void tst_CopyRecursively::missingSource_isRefused()
{
    QVERIFY(!copyRecursively(at(u"none"_qs), at(u"target"_qs)));
    QTest::ignoreMessage(QtWarningMsg, "QFile::copy: Empty or null file name"); // Qt's own
    QVERIFY(!copyRecursively(QString(), at(u"target"_qs)));
    QCOMPARE(treeOf(m_folder->path()), QStringList());
}

void tst_CopyRecursively::emptyTarget_isRefused()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs}));
    QVERIFY(!copyRecursively(at(u"source"_qs), QString()));
    QVERIFY(!copyRecursively(at(u"source/a"_qs), QString()));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"source/"_qs, u"source/a=a"_qs}));
}

void tst_CopyRecursively::folder_intoMissingFolders_makesThem()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs}));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"x/y/z"_qs)));
    QCOMPARE(treeOf(at(u"x"_qs)), (QStringList{u"y/"_qs, u"y/z/"_qs, u"y/z/a=a"_qs}));
}

void tst_CopyRecursively::folder_isCopiedWithAllBelow()
{
    QVERIFY(FileTrees::make(at(u"source"_qs),
                            {u"a.tif"_qs, u"b/c/d/e.tif"_qs, u"b/c.tif"_qs, u"empty/"_qs, u"b/empty too/"_qs,
                             u"\u00dc \u00df/\U0001F39E.tif"_qs, u"\u5199\u771f/ blank.tif"_qs, u"no extension"_qs}));
    const QStringList tree = treeOf(at(u"source"_qs));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), tree);
    QCOMPARE(treeOf(at(u"source"_qs)), tree);
}

void tst_CopyRecursively::folder_intoExistingOne_keepsWhatElseIsThere()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs, u"sub/b"_qs}));
    QVERIFY(FileTrees::make(at(u"target"_qs), {u"old"_qs, u"sub/older"_qs}));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)),
             (QStringList{u"a=a"_qs, u"old=old"_qs, u"sub/"_qs, u"sub/b=sub/b"_qs, u"sub/older=sub/older"_qs}));
}

void tst_CopyRecursively::folder_ontoAFile_isRefused()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/a"_qs, u"target"_qs}));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"target/below"_qs)));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"source/"_qs, u"source/a=source/a"_qs, u"target=target"_qs}));
}

void tst_CopyRecursively::folderWhereAFileIs_isRefused()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"sub/a"_qs}));
    QVERIFY(FileTrees::make(at(u"target"_qs), {u"sub"_qs}));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), QStringList{u"sub=sub"_qs});
}

void tst_CopyRecursively::fileWhereAFolderIs_isRefused()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs}));
    QVERIFY(FileTrees::make(at(u"target"_qs), {u"a/"_qs}));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), QStringList{u"a/"_qs});
}

void tst_CopyRecursively::emptyFolder_isMade()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/"_qs}));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs))); // nothing in it can fail
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"source/"_qs, u"target/"_qs}));
}

void tst_CopyRecursively::uncleanPaths_areTheSame()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs, u"sub/b"_qs}));
    QVERIFY(copyRecursively(at(u"source/../source//"_qs), at(u"./target/"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), treeOf(at(u"source"_qs)));
}

void tst_CopyRecursively::relativePaths()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs, u"sub/b"_qs}));
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(copyRecursively(u"source"_qs, u"target"_qs));
    QCOMPARE(treeOf(at(u"target"_qs)), treeOf(at(u"source"_qs)));
}

void tst_CopyRecursively::intoItself_isRefusedAndWritesNothing_data()
{
    QTest::addColumn<QString>("target");
    for (const char *target : {"source", "source/", "source/.", "source/sub", "source/new", "source/new/newer/newest",
                               "other/../source/new", "source/sub/../../source/new"}) {
        QTest::newRow(target) << QString::fromUtf8(target);
    }
}

void tst_CopyRecursively::intoItself_isRefusedAndWritesNothing()
{
    QFETCH(const QString, target);
    QVERIFY(FileTrees::make(m_folder->path(), {u"source/a"_qs, u"source/sub/b"_qs, u"other/"_qs}));
    const QStringList tree = treeOf(m_folder->path());
    QVERIFY(!copyRecursively(at(u"source"_qs), at(target)));
    QCOMPARE(treeOf(m_folder->path()), tree);
}

void tst_CopyRecursively::besideOrAroundItself_isNoCopyIntoItself()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"out/source/a"_qs}));
    QVERIFY(copyRecursively(at(u"out/source"_qs), at(u"out/source2"_qs)));
    QVERIFY(copyRecursively(at(u"out/source"_qs), at(u"out"_qs)));
    QCOMPARE(treeOf(at(u"out"_qs)),
             (QStringList{u"a=out/source/a"_qs, u"source/"_qs, u"source/a=out/source/a"_qs, u"source2/"_qs,
                          u"source2/a=out/source/a"_qs}));
}

void tst_CopyRecursively::firstFailure_endsTheCopy()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), FileTrees::numberedNames(20)));
    const QStringList names = QDir(at(u"source"_qs)).entryList(QDir::Files, QDir::Unsorted); // as the copy meets them
    QCOMPARE(names.size(), 20);
    QVERIFY(FileTrees::write(at(u"target/"_qs + names.at(10)), "old"));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QStringList expected;
    for (int place = 0; place < 10; ++place) {
        expected.append(names.at(place) + u'=' + names.at(place));
    }
    expected.append(names.at(10) + u"=old");
    expected.sort();
    QCOMPARE(treeOf(at(u"target"_qs)), expected);
}

void tst_CopyRecursively::failureInAFolder_endsTheCopy()
{
    for (const QString &name : FileTrees::numberedNames(9)) {
        QVERIFY(FileTrees::make(at(u"source"_qs), {QString(name + u"/a")}));
    }
    const QStringList names = QDir(at(u"source"_qs)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    QCOMPARE(names.size(), 9);
    QVERIFY(FileTrees::write(at(u"target/"_qs + names.at(4) + u"/a"), "old"));
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    for (int place = 0; place < 9; ++place) {
        QCOMPARE(QFileInfo::exists(at(u"target/"_qs + names.at(place))), place <= 4);
    }
    QCOMPARE(FileTrees::contentOf(at(u"target/"_qs + names.at(4) + u"/a")), QByteArray("old"));
}

void tst_CopyRecursively::manyFiles_areNoObstacle()
{
    QVERIFY(FileTrees::make(at(u"source"_qs), FileTrees::numberedNames(manyFiles)));
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    const QStringList tree = treeOf(at(u"target"_qs));
    QCOMPARE(tree.size(), manyFiles);
    QCOMPARE(tree, treeOf(at(u"source"_qs)));
}

QTEST_GUILESS_MAIN(tst_CopyRecursively)
#include "tst_CopyRecursively.moc"
