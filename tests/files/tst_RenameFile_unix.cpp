// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStorageInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <memory>

#include <sys/syscall.h>
#include <unistd.h>

using FileTraps::makeLink;
using FileTrees::treeOf;
using ZYX_zglv6::renameFile;

namespace {

int renameRefusal = 0; // the error of a file system that can't do a rename without replacing
int linkRefusal = 0; // of one without second names

} // namespace

// Take the place of the C library's, whose headers have reserved names for the arguments.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" Q_DECL_EXPORT int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                                       unsigned int flags) noexcept
{
    if (renameRefusal != 0) {
        errno = renameRefusal;
        return -1;
    }
    return int(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

extern "C" Q_DECL_EXPORT int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    if (linkRefusal != 0) {
        errno = linkRefusal;
        return -1;
    }
    return int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

class tst_RenameFile_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void link_isRenamedItself();
    void brokenLinkAsTarget_isKept_data();
    void brokenLinkAsTarget_isKept();
    void simpleFileSystem_data();
    void simpleFileSystem();
    void otherRefusal_isFinal();

    void fileToAnotherFileSystem_isMoved();
    void fileToAnotherFileSystem_keepsWhatIsThere();
    void folderToAnotherFileSystem_isRefused();

private:
    QString at(const QString &name) const;
    QString farAt(const QString &name) const;
    bool hasAnotherFileSystem();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_far;
};

void tst_RenameFile_unix::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_far = std::make_unique<QTemporaryDir>(u"/dev/shm/tst_RenameFile-XXXXXX"_qs);
}

void tst_RenameFile_unix::cleanup()
{
    renameRefusal = 0;
    linkRefusal = 0;
}

QString tst_RenameFile_unix::at(const QString &name) const
{
    return m_folder->filePath(name);
}

QString tst_RenameFile_unix::farAt(const QString &name) const
{
    return m_far->filePath(name);
}

bool tst_RenameFile_unix::hasAnotherFileSystem()
{
    return m_far->isValid() && QStorageInfo(m_far->path()) != QStorageInfo(m_folder->path());
}

void tst_RenameFile_unix::link_isRenamedItself()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs, u"folder/b"_qs}));
    QVERIFY(makeLink(u"a"_qs, at(u"toFile"_qs)) && makeLink(u"folder"_qs, at(u"toFolder"_qs)));
    QVERIFY(makeLink(u"none"_qs, at(u"broken"_qs)));
    for (const QString &name : {u"toFile"_qs, u"toFolder"_qs, u"broken"_qs}) {
        QVERIFY(renameFile(at(name), at(name + u'2')));
    }
    QCOMPARE(treeOf(m_folder->path()),
             (QStringList{u"a=a"_qs, u"broken2@"_qs, u"folder/"_qs, u"folder/b=folder/b"_qs, u"toFile2@"_qs,
                          u"toFolder2@"_qs}));
}

void tst_RenameFile_unix::brokenLinkAsTarget_isKept_data()
{
    QTest::addColumn<int>("refusal");
    QTest::addColumn<int>("refusalOfLinks");
    QTest::newRow("usual file system") << 0 << 0;
    QTest::newRow("simple file system") << EINVAL << 0;
    QTest::newRow("simple file system without second names") << EINVAL << EPERM;
}

void tst_RenameFile_unix::brokenLinkAsTarget_isKept()
{
    QFETCH(const int, refusal);
    QFETCH(const int, refusalOfLinks);
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs}));
    QVERIFY(makeLink(u"none"_qs, at(u"broken"_qs)));
    renameRefusal = refusal;
    linkRefusal = refusalOfLinks;
    QVERIFY(!renameFile(at(u"a"_qs), at(u"broken"_qs)));
    QCOMPARE(treeOf(m_folder->path()), (QStringList{u"a=a"_qs, u"broken@"_qs}));
}

void tst_RenameFile_unix::simpleFileSystem_data()
{
    QTest::addColumn<int>("refusal");
    QTest::addColumn<int>("refusalOfLinks");
    QTest::newRow("flag unknown") << EINVAL << 0;
    QTest::newRow("call unknown") << ENOSYS << 0;
    QTest::newRow("flag unknown, no second names") << EINVAL << EPERM;
}

void tst_RenameFile_unix::simpleFileSystem()
{
    QFETCH(const int, refusal);
    QFETCH(const int, refusalOfLinks);
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs, u"b"_qs, u"full/c"_qs, u"empty/"_qs}));
    renameRefusal = refusal;
    linkRefusal = refusalOfLinks;
    const QStringList before = treeOf(m_folder->path());
    for (const QString &from : {u"a"_qs, u"full"_qs, u"none"_qs}) {
        QVERIFY(!renameFile(at(from), at(u"b"_qs)));
        QVERIFY(!renameFile(at(from), at(u"empty"_qs)));
        QVERIFY(!renameFile(at(from), at(u"none/x"_qs)));
    }
    QCOMPARE(treeOf(m_folder->path()), before);
    QVERIFY(renameFile(at(u"a"_qs), at(u"a2"_qs)));
    QVERIFY(renameFile(at(u"full"_qs), at(u"full2"_qs)));
    QCOMPARE(treeOf(m_folder->path()),
             (QStringList{u"a2=a"_qs, u"b=b"_qs, u"empty/"_qs, u"full2/"_qs, u"full2/c=full/c"_qs}));
}

void tst_RenameFile_unix::otherRefusal_isFinal()
{
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs}));
    for (const int refusal : {EACCES, EROFS, EEXIST, ENOSPC}) {
        renameRefusal = refusal;
        QVERIFY(!renameFile(at(u"a"_qs), at(u"b"_qs)));
    }
    QCOMPARE(treeOf(m_folder->path()), QStringList{u"a=a"_qs});
}

void tst_RenameFile_unix::fileToAnotherFileSystem_isMoved()
{
    if (!hasAnotherFileSystem()) {
        QSKIP("/dev/shm is no other file system than that of temporary files");
    }
    const QByteArray bytes(3'000'000, 'q');
    QVERIFY(FileTrees::write(at(u"\u00fc \U0001F39E"_qs), bytes));
    QVERIFY(QFile::setPermissions(at(u"\u00fc \U0001F39E"_qs), QFile::Permissions(0x7740)));
    QVERIFY(renameFile(at(u"\u00fc \U0001F39E"_qs), farAt(u"\u00e4"_qs)));
    QVERIFY(FileTrees::contentOf(farAt(u"\u00e4"_qs)) == bytes);
    QCOMPARE(QFile::permissions(farAt(u"\u00e4"_qs)) & QFile::Permissions(0x7077), QFile::Permissions(0x7040));
    QCOMPARE(treeOf(m_folder->path()), QStringList());
}

void tst_RenameFile_unix::fileToAnotherFileSystem_keepsWhatIsThere()
{
    if (!hasAnotherFileSystem()) {
        QSKIP("/dev/shm is no other file system than that of temporary files");
    }
    QVERIFY(FileTrees::make(m_folder->path(), {u"a"_qs}));
    QVERIFY(FileTrees::make(m_far->path(), {u"b"_qs, u"empty/"_qs}));
    QVERIFY(makeLink(u"none"_qs, farAt(u"broken"_qs)));
    for (const QString &name : {u"b"_qs, u"empty"_qs, u"none/a"_qs, u"broken"_qs}) {
        QVERIFY2(!renameFile(at(u"a"_qs), farAt(name)), qPrintable(name));
    }
    QCOMPARE(treeOf(m_folder->path()), QStringList{u"a=a"_qs});
    QCOMPARE(treeOf(m_far->path()), (QStringList{u"b=b"_qs, u"broken@"_qs, u"empty/"_qs}));
}

void tst_RenameFile_unix::folderToAnotherFileSystem_isRefused()
{
    if (!hasAnotherFileSystem()) {
        QSKIP("/dev/shm is no other file system than that of temporary files");
    }
    QVERIFY(FileTrees::make(m_folder->path(), {u"full/a"_qs, u"empty/"_qs}));
    const QStringList before = treeOf(m_folder->path());
    QVERIFY(!renameFile(at(u"full"_qs), farAt(u"full"_qs)));
    QVERIFY(!renameFile(at(u"empty"_qs), farAt(u"empty"_qs)));
    QCOMPARE(treeOf(m_folder->path()), before);
    QCOMPARE(treeOf(m_far->path()), QStringList());
}

QTEST_GUILESS_MAIN(tst_RenameFile_unix)
#include "tst_RenameFile_unix.moc"
