// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"
#include "files/SystemDiskSpace.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

class tst_DiskSpace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folder_hasWhatTheSystemSays_data();
    void folder_hasWhatTheSystemSays();
    void missingPath_hasNone();
};

void tst_DiskSpace::folder_hasWhatTheSystemSays_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("temporary files") << QDir::tempPath();
    QTest::newRow("current") << QDir::currentPath();
    QTest::newRow("root") << QDir::rootPath();
}

void tst_DiskSpace::folder_hasWhatTheSystemSays()
{
    QFETCH(const QString, folder);
    constexpr qint64 writtenByOthersMeanwhile = 512LL * 1024 * 1024;
    const qint64 expected = systemDiskSpace(folder);
    QVERIFY(expected > 0);
    QVERIFY(qAbs(availableDiskSpace(folder) - expected) < writtenByOthersMeanwhile);
}

void tst_DiskSpace::missingPath_hasNone()
{
    const QTemporaryDir folder;
    QCOMPARE(availableDiskSpace(folder.filePath(u"none"_qs)), 0LL);
    QCOMPARE(availableDiskSpace(folder.filePath(u"none/none"_qs)), 0LL);
}

QTEST_GUILESS_MAIN(tst_DiskSpace)
#include "tst_DiskSpace.moc"
