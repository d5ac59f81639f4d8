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
using FileTrees::treeOf;

namespace {

/*! Whether the system gives a file another name that differs in upper and lower case alone; Wine does not. */
bool changesLetters()
{
    const QTemporaryDir folder;
    const QString lower = folder.filePath(u"letters"_qs);
    return FileTrees::write(lower, "x") && QFile::rename(lower, folder.filePath(u"LETTERS"_qs))
        && QDir(folder.path()).entryList(QDir::Files) == QStringList{u"LETTERS"_qs};
}

} // namespace

class tst_RenameFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void renameFile_data();
    void renameFile();
    void relativePaths();
    void largeFile_keepsItsBytes();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_RenameFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_RenameFile::renameFile_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("tree");

    // Before: a, b, full/c, full2/d, empty/
    const auto add = [](const char *row, const QString &from, const QString &to, const QStringList &tree) {
        QTest::newRow(row) << from << to << true << tree;
    };
    const QString a = u"a=a"_qs;
    const QString b = u"b=b"_qs;
    const QString empty = u"empty/"_qs;
    const QStringList full{u"full/"_qs, u"full/c=full/c"_qs};
    const QStringList full2{u"full2/"_qs, u"full2/d=full2/d"_qs};
    const QStringList folders = full + full2;
    add("file", u"a"_qs, u"x.tif"_qs, QStringList{b, empty} + folders + QStringList{u"x.tif=a"_qs});
    add("file into a folder", u"a"_qs, u"empty/a"_qs, QStringList{b, empty, u"empty/a=a"_qs} + folders);
    add("folder", u"full"_qs, u"x"_qs, QStringList{a, b, empty} + full2 + QStringList{u"x/"_qs, u"x/c=full/c"_qs});
    add("empty folder", u"empty"_qs, u"x"_qs, QStringList{a, b} + folders + QStringList{u"x/"_qs});
    add("folder into a folder", u"full"_qs, u"empty/x"_qs,
        QStringList{a, b, empty, u"empty/x/"_qs, u"empty/x/c=full/c"_qs} + full2);
    add("letters of other case", u"a"_qs, u"A"_qs, QStringList{u"A=a"_qs, b, empty} + folders);
    add("folder with letters of other case", u"empty"_qs, u"EMPTY"_qs, QStringList{u"EMPTY/"_qs, a, b} + folders);
    add("umlaut, blank, emoji", u"a"_qs, u"\u00fc \U0001F39E.tif"_qs,
        QStringList{b, empty} + folders + QStringList{u"\u00fc \U0001F39E.tif=a"_qs});
    add("Japanese", u"a"_qs, u"\u5199\u771f"_qs, QStringList{b, empty} + folders + QStringList{u"\u5199\u771f=a"_qs});
    add("old path not clean", u"full/./..//a"_qs, u"x"_qs, QStringList{b, empty} + folders + QStringList{u"x=a"_qs});
    add("new path not clean", u"a"_qs, u"none/../x"_qs, QStringList{b, empty} + folders + QStringList{u"x=a"_qs});
    add("separators at the ends", u"empty/"_qs, u"x/"_qs, QStringList{a, b} + folders + QStringList{u"x/"_qs});

    const QStringList unchanged = QStringList{a, b, empty} + folders;
    const auto addRefused = [&unchanged](const char *row, const QString &from, const QString &to) {
        QTest::newRow(row) << from << to << false << unchanged;
    };
    addRefused("onto a file", u"a"_qs, u"b"_qs);
    addRefused("file onto an empty folder", u"a"_qs, u"empty"_qs);
    addRefused("file onto a folder", u"a"_qs, u"full"_qs);
    addRefused("folder onto an empty folder", u"full"_qs, u"empty"_qs);
    addRefused("folder onto a folder", u"full"_qs, u"full2"_qs);
    addRefused("folder onto a file", u"full"_qs, u"a"_qs);
    addRefused("missing", u"none"_qs, u"x"_qs);
    addRefused("missing onto a file", u"none"_qs, u"a"_qs);
    addRefused("into a missing folder", u"a"_qs, u"none/a"_qs);
    addRefused("below a file", u"a"_qs, u"b/a"_qs);
    addRefused("folder into itself", u"full"_qs, u"full/x"_qs);
}

void tst_RenameFile::renameFile()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QFETCH(const bool, result);
    QFETCH(const QStringList, tree);
    if (from.compare(to, Qt::CaseInsensitive) == 0 && from != to && !changesLetters()) {
        QSKIP("this system leaves the letters of a name as they are");
    }
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs, u"b"_qs, u"full/c"_qs, u"full2/d"_qs, u"empty/"_qs}));
    QCOMPARE(ZYX_zglv6::renameFile(m_folder->filePath(from), m_folder->filePath(to)), result);
    QStringList sorted = tree;
    sorted.sort();
    QCOMPARE(treeOf(m_folder->path()), sorted);
}

void tst_RenameFile::relativePaths()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"sub/a"_qs}));
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QVERIFY(ZYX_zglv6::renameFile(u"sub/a"_qs, u"./b"_qs));
    QVERIFY(!ZYX_zglv6::renameFile(QString(), u"c"_qs));
    QVERIFY(!ZYX_zglv6::renameFile(u"b"_qs, QString()));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"b=sub/a"_qs, u"sub/"_qs}));
}

void tst_RenameFile::largeFile_keepsItsBytes()
{
    const QByteArray bytes(5'000'000, 'z');
    QVERIFY(FileTrees::write(m_folder->filePath(u"a"_qs), bytes));
    QVERIFY(ZYX_zglv6::renameFile(m_folder->filePath(u"a"_qs), m_folder->filePath(u"b"_qs)));
    QVERIFY(FileTrees::contentOf(m_folder->filePath(u"b"_qs)) == bytes);
    QVERIFY(!QFileInfo::exists(m_folder->filePath(u"a"_qs)));
}

QTEST_GUILESS_MAIN(tst_RenameFile)
#include "tst_RenameFile.moc"
