// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>

using namespace ZYX_zglv6;

class tst_FolderSteps_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesOfAnyKind_areSteps();
    void namesThatDifferInCaseOnly_areStepsOfTheirOwn();
    void linkedFolder_isToldByItsRealPath();
    void rootFolder_keepsItsSeparator();
};

void tst_FolderSteps_unix::entriesOfAnyKind_areSteps()
{
    const QTemporaryDir folder;
    QVERIFY(FileTrees::make(folder.path(), {u"a"_qs, u"b.folder/"_qs, u".c.hidden"_qs}));
    QVERIFY(FileTraps::makePipe(folder.filePath(u"d.pipe"_qs)));
    QVERIFY(FileTraps::makeLink(u"a"_qs, folder.filePath(u"e.link"_qs)));
    QVERIFY(FileTraps::makeLink(u"none"_qs, folder.filePath(u"f.broken"_qs)));
    QVERIFY(FileTraps::makeLink(u"g.loop"_qs, folder.filePath(u"g.loop"_qs)));
    const QStringList names{u".c.hidden"_qs, u"a"_qs,        u"b.folder"_qs, u"d.pipe"_qs,
                            u"e.link"_qs,    u"f.broken"_qs, u"g.loop"_qs};
    for (qsizetype place = 0; place + 1 < names.size(); ++place) {
        const QString one = folder.filePath(names.at(place));
        const QString other = folder.filePath(names.at(place + 1));
        QCOMPARE(getNextFilePath(one), other);
        QCOMPARE(getPreviouseFilePath(other), one);
    }
    QCOMPARE(getNextFilePath(folder.filePath(names.last())), QString());
    QCOMPARE(getPreviouseFilePath(folder.filePath(names.first())), QString());
}

void tst_FolderSteps_unix::namesThatDifferInCaseOnly_areStepsOfTheirOwn()
{
    const QTemporaryDir folder;
    QVERIFY(FileTrees::make(folder.path(), {u"0"_qs, u"a"_qs, u"A"_qs, u"b"_qs}));
    const QString one = getNextFilePath(folder.filePath(u"0"_qs));
    const QString other = getNextFilePath(one);
    QStringList both{one, other};
    both.sort();
    QCOMPARE(both, (QStringList{folder.filePath(u"A"_qs), folder.filePath(u"a"_qs)}));
    QCOMPARE(getNextFilePath(other), folder.filePath(u"b"_qs));
    QCOMPARE(getPreviouseFilePath(other), one);
}

void tst_FolderSteps_unix::linkedFolder_isToldByItsRealPath()
{
    const QTemporaryDir folder;
    QVERIFY(FileTrees::make(folder.path(), {u"real/a"_qs, u"real/b"_qs}));
    QVERIFY(FileTraps::makeLink(u"real"_qs, folder.filePath(u"link"_qs)));
    QCOMPARE(getNextFilePath(folder.filePath(u"link/a"_qs)), folder.filePath(u"real/b"_qs));
    QCOMPARE(getPreviouseFilePath(folder.filePath(u"link/b"_qs)), folder.filePath(u"real/a"_qs));
}

void tst_FolderSteps_unix::rootFolder_keepsItsSeparator()
{
    const QStringList names = QDir::root().entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    QVERIFY(names.size() > 1);
    QCOMPARE(getNextFilePath(u"/"_qs + names.at(0)), QString(u"//"_qs + names.at(1)));
}

QTEST_GUILESS_MAIN(tst_FolderSteps_unix)
#include "tst_FolderSteps_unix.moc"
