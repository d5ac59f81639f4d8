// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Folders.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

using namespace ZyxPlatform;

class tst_Folders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void localApplicationDataFolder_isTheUsersOwn();
    void sharedPicturesFolder_existsAfterTheCall();
    void createFolder_makesAllAbove_data();
    void createFolder_makesAllAbove();
    void createFolder_ofExistingFolder_keepsItsFiles();
    void createFolder_thatFails_isSilent_data();
    void createFolder_thatFails_isSilent();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_Folders::localApplicationDataFolder_isTheUsersOwn()
{
    const QString folder = localApplicationDataFolder();
    QVERIFY(QDir::isAbsolutePath(folder));
    QVERIFY(!folder.endsWith(QDir::separator()) && !folder.endsWith(u'/'));
    QCOMPARE(QDir::fromNativeSeparators(folder), QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

void tst_Folders::sharedPicturesFolder_existsAfterTheCall()
{
    const QString folder = sharedPicturesFolder();
    QVERIFY(QDir::isAbsolutePath(folder));
    QVERIFY(QFileInfo(folder).isDir());
    QVERIFY(!folder.endsWith(QDir::separator()) && !folder.endsWith(u'/'));
    QCOMPARE(sharedPicturesFolder(), folder);
}

void tst_Folders::createFolder_makesAllAbove_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("one") << u"one"_qs;
    QTest::newRow("three") << u"a/b/c"_qs;
    QTest::newRow("closing separator") << u"d/e/"_qs;
    QTest::newRow("blank and other than Latin") << u"with blank/\u043f\u0443\u0442\u044c"_qs;
}

void tst_Folders::createFolder_makesAllAbove()
{
    QFETCH(const QString, name);

    const QString path = m_sandbox.filePath(u"made/"_qs + name);
    QVERIFY(!QFileInfo::exists(path));
    createFolder(QDir::toNativeSeparators(path));
    QVERIFY(QFileInfo(path).isDir());
}

void tst_Folders::createFolder_ofExistingFolder_keepsItsFiles()
{
    const QString path = m_sandbox.filePath(u"kept"_qs);
    createFolder(QDir::toNativeSeparators(path));
    QFile file(path + u"/file");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    createFolder(QDir::toNativeSeparators(path));
    QVERIFY(file.exists());
}

void tst_Folders::createFolder_thatFails_isSilent_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a file of that name") << u"file"_qs;
    QTest::newRow("below a file") << u"file/folder"_qs;
}

void tst_Folders::createFolder_thatFails_isSilent()
{
    QFETCH(const QString, name);

    QFile file(m_sandbox.filePath(u"file"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    createFolder(QDir::toNativeSeparators(m_sandbox.filePath(name)));
    QVERIFY(!QFileInfo(m_sandbox.filePath(name)).isDir());
    QVERIFY(QFileInfo(file.fileName()).isFile());
}

QTEST_GUILESS_MAIN(tst_Folders)

#include "tst_Folders.moc"
