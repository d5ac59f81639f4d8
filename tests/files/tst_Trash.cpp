// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

class tst_Trash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_areFixed();
    void whatIsNotThere_fails_data();
    void whatIsNotThere_fails();
};

void tst_Trash::values_areFixed()
{
    QCOMPARE(int(FileManagement::FileOperationSucceeded), 0);
    QCOMPARE(int(FileManagement::FileOperationFailed), 2);
}

void tst_Trash::whatIsNotThere_fails_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"none"_qs;
    QTest::newRow("missing folder") << u"none/a"_qs;
    QTest::newRow("below a file") << u"a/b"_qs;
    QTest::newRow("pattern") << u"*"_qs;
    QTest::newRow("empty path") << QString();
}

void tst_Trash::whatIsNotThere_fails()
{
    QFETCH(const QString, name);
    const QTemporaryDir folder;
    QVERIFY(FileTrees::make(folder.path(), {u"a"_qs}));
    QCOMPARE(moveFileToTrash(name.isEmpty() ? name : folder.filePath(name)), FileManagement::FileOperationFailed);
    QCOMPARE(FileTrees::treeOf(folder.path()), QStringList{u"a=a"_qs});
}

QTEST_GUILESS_MAIN(tst_Trash)
#include "tst_Trash.moc"
