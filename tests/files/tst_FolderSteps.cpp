// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>

using namespace ZYX_zglv6;

namespace {

using Step = QString (*)(const QString &path);

/*! Names of the entries from \a path on, which is not among them. */
QStringList walk(const QString &path, Step step, qsizetype mostSteps = 1000)
{
    QStringList names;
    for (QString at = step(path); !at.isEmpty() && names.size() < mostSteps; at = step(at)) {
        names.append(QFileInfo(at).fileName());
    }
    return names;
}

QStringList reversed(QStringList names)
{
    std::reverse(names.begin(), names.end());
    return names;
}

} // namespace

class tst_FolderSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void emptyPath_givesNothing();
    void neighbour_isPathOfFolderSeparatorAndName();
    void ends_giveNothing();
    void nameThatIsNotThere_givesNothing_data();
    void nameThatIsNotThere_givesNothing();
    void onlyEntry_hasNoNeighbour();
    void wholeFolder_isWalkedByNameWithoutCase();
    void folders_areStepsLikeFiles();
    void relativePath_givesAWholeOne();
    void changesBetweenTheSteps_areSeen();
    void tenThousandFiles();

private:
    QString at(const QString &name) const;
    QString result(const QString &name) const;

    QTemporaryDir m_folder;
};

void tst_FolderSteps::init()
{
    QVERIFY(QDir(m_folder.path()).removeRecursively() && QDir().mkpath(m_folder.path()));
}

QString tst_FolderSteps::at(const QString &name) const
{
    return m_folder.filePath(name);
}

QString tst_FolderSteps::result(const QString &name) const
{
    return QFileInfo(m_folder.path()).canonicalFilePath() + QDir::separator() + name;
}

void tst_FolderSteps::emptyPath_givesNothing()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"a"_qs, u"b"_qs}));
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QCOMPARE(getNextFilePath(QString()), QString());
    QCOMPARE(getPreviouseFilePath(u""_qs), QString());
}

void tst_FolderSteps::neighbour_isPathOfFolderSeparatorAndName()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"a.tif"_qs, u"b.tif"_qs, u"\u00fc \U0001F39E.tif"_qs}));
    QCOMPARE(getNextFilePath(at(u"a.tif"_qs)), result(u"b.tif"_qs));
    QCOMPARE(getNextFilePath(at(u"b.tif"_qs)), result(u"\u00fc \U0001F39E.tif"_qs));
    QCOMPARE(getPreviouseFilePath(at(u"\u00fc \U0001F39E.tif"_qs)), result(u"b.tif"_qs));
    QCOMPARE(getPreviouseFilePath(at(u"b.tif"_qs)), result(u"a.tif"_qs));
    QCOMPARE(getNextFilePath(at(u"../"_qs + QDir(m_folder.path()).dirName() + u"//a.tif")), result(u"b.tif"_qs));
}

void tst_FolderSteps::ends_giveNothing()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"a"_qs, u"b"_qs, u"c"_qs}));
    QCOMPARE(getNextFilePath(at(u"c"_qs)), QString());
    QCOMPARE(getPreviouseFilePath(at(u"a"_qs)), QString());
}

void tst_FolderSteps::nameThatIsNotThere_givesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"b"_qs;
    QTest::newRow("other case") << u"A"_qs;
    QTest::newRow("part of a name") << u"a."_qs;
    QTest::newRow("missing folder") << u"none/a"_qs;
    QTest::newRow("separator at the end") << u"sub/"_qs;
    QTest::newRow("the folder itself") << u"."_qs;
    QTest::newRow("the folder around") << u".."_qs;
}

void tst_FolderSteps::nameThatIsNotThere_givesNothing()
{
    QFETCH(const QString, name);
    QVERIFY(FileTrees::make(m_folder.path(), {u"a"_qs, u"c"_qs, u"d"_qs, u"sub/"_qs}));
    QCOMPARE(getNextFilePath(at(name)), QString());
    QCOMPARE(getPreviouseFilePath(at(name)), QString());
}

void tst_FolderSteps::onlyEntry_hasNoNeighbour()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"a"_qs}));
    QCOMPARE(getNextFilePath(at(u"a"_qs)), QString());
    QCOMPARE(getPreviouseFilePath(at(u"a"_qs)), QString());
}

void tst_FolderSteps::wholeFolder_isWalkedByNameWithoutCase()
{
    const QStringList sorted{u".hidden"_qs, u"1.tif"_qs, u"10.tif"_qs, u"2.tif"_qs, u"A.tif"_qs,
                             u"b.tif"_qs,   u"C.tif"_qs, u"D"_qs,      u"e.tif"_qs, u"Z"_qs};
    QVERIFY(FileTrees::make(m_folder.path(), reversed(sorted)));
    QCOMPARE(walk(at(sorted.first()), getNextFilePath), sorted.mid(1));
    QCOMPARE(walk(at(sorted.last()), getPreviouseFilePath), reversed(sorted).mid(1));
}

void tst_FolderSteps::folders_areStepsLikeFiles()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"a"_qs, u"b/"_qs, u"b/inside"_qs, u"c"_qs, u"D/"_qs, u"e"_qs}));
    QCOMPARE(walk(at(u"a"_qs), getNextFilePath), (QStringList{u"b"_qs, u"c"_qs, u"D"_qs, u"e"_qs}));
    QCOMPARE(getPreviouseFilePath(at(u"c"_qs)), result(u"b"_qs));
    QCOMPARE(getNextFilePath(at(u"b"_qs)), result(u"c"_qs));
}

void tst_FolderSteps::relativePath_givesAWholeOne()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"sub/a"_qs, u"sub/b"_qs, u"y"_qs, u"z"_qs}));
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QCOMPARE(getNextFilePath(u"y"_qs), result(u"z"_qs));
    QCOMPARE(getPreviouseFilePath(u"./z"_qs), result(u"y"_qs));
    QCOMPARE(getNextFilePath(u"sub/a"_qs),
             QString(QFileInfo(at(u"sub"_qs)).canonicalFilePath() + QDir::separator() + u"b"));
}

void tst_FolderSteps::changesBetweenTheSteps_areSeen()
{
    QVERIFY(FileTrees::make(m_folder.path(), {u"a"_qs, u"c"_qs}));
    QCOMPARE(getNextFilePath(at(u"a"_qs)), result(u"c"_qs));
    QVERIFY(FileTrees::make(m_folder.path(), {u"b"_qs}));
    QCOMPARE(getNextFilePath(at(u"a"_qs)), result(u"b"_qs));
    QVERIFY(QFile::remove(at(u"b"_qs)));
    QCOMPARE(getNextFilePath(at(u"a"_qs)), result(u"c"_qs));
}

void tst_FolderSteps::tenThousandFiles()
{
    const QStringList names = FileTrees::numberedNames(10'000);
    for (const QString &name : names) {
        QVERIFY(FileTrees::write(at(name), QByteArray()));
    }
    QCOMPARE(getPreviouseFilePath(at(names.first())), QString());
    QCOMPARE(getNextFilePath(at(names.last())), QString());
    for (const int place : {0, 1, 4999, 9997, 9998}) {
        QCOMPARE(getNextFilePath(at(names.at(place))), result(names.at(place + 1)));
        QCOMPARE(getPreviouseFilePath(at(names.at(place + 1))), result(names.at(place)));
    }
}

QTEST_GUILESS_MAIN(tst_FolderSteps)
#include "tst_FolderSteps.moc"
