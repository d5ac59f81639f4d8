// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

class tst_QuietFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failures_areNotLogged();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_QuietFailures::failures_areNotLogged()
{
    RUN_IN_FRESH_PROCESS();
    const QTemporaryDir folder;
    QVERIFY(FileTrees::make(folder.path(), {u"a"_qs, u"b"_qs, u"empty/"_qs}));
    const QString a = folder.filePath(u"a"_qs);
    const QString none = folder.filePath(u"none"_qs);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const TestSupport::AssertionReports reports;

    QVERIFY(!validateFileName(u"NUL"_qs, false));
    QVERIFY(!copyRecursively(a, folder.filePath(u"b"_qs)));
    QVERIFY(!copyRecursively(none, folder.filePath(u"c"_qs)));
    QVERIFY(!removeDirectoryContent(QDir(folder.filePath(u"empty"_qs))));
    QVERIFY(!renameFile(none, a));
    QCOMPARE(getNextFilePath(none), QString());
    QCOMPARE(getPreviouseFilePath(none), QString());
    QCOMPARE(moveFileToTrash(none), FileManagement::FileOperationFailed);
    QCOMPARE(availableDiskSpace(none), 0LL);
    QCOMPARE(isEqualFileOrDirNames(a, none, FileManagement::CompareCondition(3)), true);

    QCOMPARE(log.records(), QStringList());
    QCOMPARE(reports.texts(), QStringList());
}

QTEST_GUILESS_MAIN(tst_QuietFailures)
#include "tst_QuietFailures.moc"
