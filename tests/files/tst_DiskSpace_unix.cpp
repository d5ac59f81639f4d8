// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"
#include "support/FreshProcess.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

class tst_DiskSpace_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyPath_hasNone();
    void smallDisk_isTheVolumeOfAllOnIt();
};

void tst_DiskSpace_unix::emptyPath_hasNone()
{
    QCOMPARE(availableDiskSpace(QString()), 0LL);
    QCOMPARE(availableDiskSpace(u""_qs), 0LL);
}

void tst_DiskSpace_unix::smallDisk_isTheVolumeOfAllOnIt()
{
    RUN_IN_FRESH_PROCESS();
    const QTemporaryDir folder;
    const QString disk = folder.filePath(u"disk \u00fc \u5199"_qs);
    QVERIFY(QDir().mkpath(disk));
    if (!FileTraps::mountSmallDisk(disk, 1'048'576)) {
        QSKIP("This user may not mount a file system");
    }
    QCOMPARE(availableDiskSpace(disk), 1024LL * 1024);
    QVERIFY(FileTrees::write(disk + u"/sub/file", QByteArray(262'144, 'x')));
    for (const QString &path : {disk, QString(disk + u'/'), QString(disk + u"/sub"), QString(disk + u"/sub/file")}) {
        QCOMPARE(availableDiskSpace(path), 768LL * 1024);
    }
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(disk));
    QCOMPARE(availableDiskSpace(u"sub"_qs), 768LL * 1024);
    QCOMPARE(availableDiskSpace(u"."_qs), 768LL * 1024);
    QVERIFY(!FileTrees::write(disk + u"/large", QByteArray(2'097'152, 'x')));
    QCOMPARE(availableDiskSpace(disk), 0LL);
}

QTEST_GUILESS_MAIN(tst_DiskSpace_unix)
#include "tst_DiskSpace_unix.moc"
