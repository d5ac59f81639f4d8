// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/RenameFile.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

using ZyxPlatform::renameFile;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

bool makeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

class tst_RenameFileService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void renameFile_file_hasItsNewName_data();
    void renameFile_file_hasItsNewName();
    void renameFile_folder_keepsItsContent();
    void renameFile_existingTarget_isKept_data();
    void renameFile_existingTarget_isKept();
    void renameFile_thatCannotBe_isFalse_data();
    void renameFile_thatCannotBe_isFalse();

private:
    QString at(const QString &name) const;

    TestSupport::Sandbox m_sandbox;
    QString m_folder; // with "file", and "folder" with "within"
};

void tst_RenameFileService::init()
{
    m_folder = m_sandbox.filePath(u"work"_qs);
    QVERIFY(QDir(m_folder).removeRecursively());
    QVERIFY(QDir().mkpath(m_folder + u"/folder"));
    QVERIFY(makeFile(m_folder + u"/file", "content"));
    QVERIFY(makeFile(m_folder + u"/folder/within", "more"));
}

QString tst_RenameFileService::at(const QString &name) const
{
    return name.isEmpty() ? name : QDir::toNativeSeparators(m_folder + u'/' + name);
}

void tst_RenameFileService::renameFile_file_hasItsNewName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"other"_qs;
    QTest::newRow("blanks") << u"two  words"_qs;
    QTest::newRow("other than Latin") << u"gr\u00fc\u00df \u043f\u0443\u0442\u044c \u65e5"_qs;
    QTest::newRow("minus in front") << u"-file"_qs;
    QTest::newRow("another folder") << u"folder/file"_qs;
}

void tst_RenameFileService::renameFile_file_hasItsNewName()
{
    QFETCH(const QString, name);

    QVERIFY(renameFile(at(u"file"_qs), at(name)));
    QVERIFY(!QFileInfo::exists(at(u"file"_qs)));
    QCOMPARE(contentOf(at(name)), QByteArray("content"));
    QVERIFY(renameFile(at(name), at(u"file"_qs)));
    QVERIFY(!QFileInfo::exists(at(name)));
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
}

void tst_RenameFileService::renameFile_folder_keepsItsContent()
{
    QVERIFY(renameFile(at(u"folder"_qs), at(u"other folder"_qs)));
    QVERIFY(!QFileInfo::exists(at(u"folder"_qs)));
    QCOMPARE(contentOf(at(u"other folder/within"_qs)), QByteArray("more"));
}

void tst_RenameFileService::renameFile_existingTarget_isKept_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("file onto file") << u"file"_qs << u"folder/within"_qs;
    QTest::newRow("file onto empty file") << u"file"_qs << u"emptyFile"_qs;
    QTest::newRow("file onto folder") << u"file"_qs << u"folder"_qs;
    QTest::newRow("file onto empty folder") << u"file"_qs << u"empty"_qs;
    QTest::newRow("folder onto file") << u"folder"_qs << u"file"_qs;
    QTest::newRow("folder onto folder") << u"empty"_qs << u"folder"_qs;
    QTest::newRow("folder onto empty folder") << u"folder"_qs << u"empty"_qs;
}

void tst_RenameFileService::renameFile_existingTarget_isKept()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);

    QVERIFY(QDir().mkdir(at(u"empty"_qs)));
    QVERIFY(makeFile(at(u"emptyFile"_qs), QByteArray()));
    QVERIFY(!renameFile(at(from), at(to)));
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    QCOMPARE(contentOf(at(u"folder/within"_qs)), QByteArray("more"));
    QVERIFY(QFileInfo(at(u"empty"_qs)).isDir());
    QCOMPARE(contentOf(at(u"emptyFile"_qs)), QByteArray());
}

void tst_RenameFileService::renameFile_thatCannotBe_isFalse_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("missing source") << u"none"_qs << u"other"_qs;
    QTest::newRow("missing source, existing target") << u"none"_qs << u"file"_qs;
    QTest::newRow("missing folder of the target") << u"file"_qs << u"none/file"_qs;
    QTest::newRow("below a file") << u"folder"_qs << u"file/folder"_qs;
    QTest::newRow("folder into itself") << u"folder"_qs << u"folder/folder"_qs;
    QTest::newRow("empty source") << QString() << u"other"_qs;
    QTest::newRow("empty target") << u"file"_qs << QString();
}

void tst_RenameFileService::renameFile_thatCannotBe_isFalse()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);

    QVERIFY(!renameFile(at(from), at(to)));
    QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
             (QStringList{u"file"_qs, u"folder"_qs}));
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    QCOMPARE(QDir(at(u"folder"_qs)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"within"_qs});
}

QTEST_GUILESS_MAIN(tst_RenameFileService)

#include "tst_RenameFileService.moc"
