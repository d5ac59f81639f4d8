// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/RenameFile.h"

#include "support/Sandbox.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <memory>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

using ZyxPlatform::renameFile;

namespace {

// Error numbers that the two calls below end with, as on file systems that lack them; 0: the real call.
int renameError = 0;
int linkError = 0;

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

bool makeLink(const char *target, const QString &path)
{
    return symlink(target, QFile::encodeName(path).constData()) == 0;
}

/*! What a link says; empty if it is none. */
QByteArray targetOf(const QString &path)
{
    char target[1024];
    const ssize_t size = readlink(QFile::encodeName(path).constData(), target, sizeof(target));
    return {target, qMax<ssize_t>(0, size)};
}

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name,cert-dcl50-cpp)

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    static const auto real
        = reinterpret_cast<int (*)(int, const char *, int, const char *, unsigned)>(dlsym(RTLD_NEXT, "renameat2"));
    if (renameError != 0) {
        errno = renameError;
        return -1;
    }
    return real(fromFolder, from, toFolder, to, flags);
}

EXPORTED int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    static const auto real
        = reinterpret_cast<int (*)(int, const char *, int, const char *, int)>(dlsym(RTLD_NEXT, "linkat"));
    if (linkError != 0) {
        errno = linkError;
        return -1;
    }
    return real(fromFolder, from, toFolder, to, flags);
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name,cert-dcl50-cpp)

/*! Links, file systems that can't rename without replacing, and other volumes. */
class tst_RenameFileService_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void renameFile_file_hasItsNewName_data();
    void renameFile_file_hasItsNewName();
    void renameFile_folder_keepsItsContent_data();
    void renameFile_folder_keepsItsContent();
    void renameFile_link_isNotFollowed_data();
    void renameFile_link_isNotFollowed();
    void renameFile_existingTarget_isKept_data();
    void renameFile_existingTarget_isKept();
    void renameFile_itsOwnName_isTrue();
    void renameFile_otherError_isFalse_data();
    void renameFile_otherError_isFalse();
    void renameFile_file_goesToOtherVolume();
    void renameFile_otherVolume_existingTargetIsKept();
    void renameFile_otherVolume_cannotBe_data();
    void renameFile_otherVolume_cannotBe();

private:
    QString at(const QString &name) const;
    bool findOtherVolume();
    QString there(const QString &name) const;

    TestSupport::Sandbox m_sandbox;
    QString m_folder; // with "file", "folder" with "within", and the links "link" to "file" and "dangling" to "none"
    std::unique_ptr<QTemporaryDir> m_otherVolume;
};

void tst_RenameFileService_unix::init()
{
    m_folder = m_sandbox.filePath(u"work"_qs);
    QVERIFY(QDir(m_folder).removeRecursively());
    QVERIFY(QDir().mkpath(m_folder + u"/folder"));
    QVERIFY(makeFile(m_folder + u"/file", "content"));
    QVERIFY(makeFile(m_folder + u"/folder/within", "more"));
    QVERIFY(makeLink("file", m_folder + u"/link"));
    QVERIFY(makeLink("none", m_folder + u"/dangling"));
}

void tst_RenameFileService_unix::cleanup()
{
    renameError = 0;
    linkError = 0;
    m_otherVolume.reset();
}

QString tst_RenameFileService_unix::at(const QString &name) const
{
    return m_folder + u'/' + name;
}

/*! Makes a folder of the test's own on one, if there is one. */
bool tst_RenameFileService_unix::findOtherVolume()
{
    struct stat here
    {
    };
    struct stat other
    {
    };
    m_otherVolume = std::make_unique<QTemporaryDir>(u"/dev/shm/tst_RenameFileService_unix-XXXXXX"_qs);
    return m_otherVolume->isValid() && stat(QFile::encodeName(m_folder).constData(), &here) == 0
        && stat(QFile::encodeName(m_otherVolume->path()).constData(), &other) == 0 && here.st_dev != other.st_dev;
}

QString tst_RenameFileService_unix::there(const QString &name) const
{
    return m_otherVolume->filePath(name);
}

namespace {

void addFileSystems()
{
    QTest::addColumn<int>("rename");
    QTest::addColumn<int>("link");

    QTest::newRow("all is there") << 0 << 0;
    QTest::newRow("flag unknown") << EINVAL << 0;
    QTest::newRow("call unknown") << ENOSYS << 0;
    QTest::newRow("flag and hard links unknown") << EINVAL << EPERM;
    QTest::newRow("call and hard links unknown") << ENOSYS << EPERM;
}

} // namespace

void tst_RenameFileService_unix::renameFile_file_hasItsNewName_data()
{
    addFileSystems();
}

void tst_RenameFileService_unix::renameFile_file_hasItsNewName()
{
    QFETCH(const int, rename);
    QFETCH(const int, link);

    renameError = rename;
    linkError = link;
    QVERIFY(renameFile(at(u"file"_qs), at(u"folder/gr\u00fcn \u0434"_qs)));
    QVERIFY(!QFileInfo::exists(at(u"file"_qs)));
    QCOMPARE(contentOf(at(u"folder/gr\u00fcn \u0434"_qs)), QByteArray("content"));
}

void tst_RenameFileService_unix::renameFile_folder_keepsItsContent_data()
{
    addFileSystems();
}

void tst_RenameFileService_unix::renameFile_folder_keepsItsContent()
{
    QFETCH(const int, rename);
    QFETCH(const int, link);

    renameError = rename;
    linkError = link;
    QVERIFY(renameFile(at(u"folder"_qs), at(u"other"_qs)));
    QVERIFY(!QFileInfo::exists(at(u"folder"_qs)));
    QCOMPARE(contentOf(at(u"other/within"_qs)), QByteArray("more"));
}

void tst_RenameFileService_unix::renameFile_link_isNotFollowed_data()
{
    addFileSystems();
}

void tst_RenameFileService_unix::renameFile_link_isNotFollowed()
{
    QFETCH(const int, rename);
    QFETCH(const int, link);

    renameError = rename;
    linkError = link;
    QVERIFY(renameFile(at(u"link"_qs), at(u"new link"_qs)));
    QCOMPARE(targetOf(at(u"new link"_qs)), QByteArray("file"));
    QCOMPARE(targetOf(at(u"link"_qs)), QByteArray());
    QVERIFY(renameFile(at(u"dangling"_qs), at(u"new dangling"_qs)));
    QCOMPARE(targetOf(at(u"new dangling"_qs)), QByteArray("none"));
    QCOMPARE(targetOf(at(u"dangling"_qs)), QByteArray());
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
}

void tst_RenameFileService_unix::renameFile_existingTarget_isKept_data()
{
    addFileSystems();
}

void tst_RenameFileService_unix::renameFile_existingTarget_isKept()
{
    QFETCH(const int, rename);
    QFETCH(const int, link);

    QVERIFY(QDir().mkdir(at(u"empty"_qs)));
    QVERIFY(makeFile(at(u"emptyFile"_qs), QByteArray()));
    renameError = rename;
    linkError = link;
    for (const QString &target :
         {u"folder/within"_qs, u"emptyFile"_qs, u"folder"_qs, u"empty"_qs, u"link"_qs, u"dangling"_qs}) {
        QVERIFY2(!renameFile(at(u"file"_qs), at(target)), qPrintable(target));
        QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    }
    for (const QString &target : {u"empty"_qs, u"file"_qs, u"emptyFile"_qs, u"link"_qs, u"dangling"_qs}) {
        QVERIFY2(!renameFile(at(u"folder"_qs), at(target)), qPrintable(target));
    }
    QCOMPARE(contentOf(at(u"folder/within"_qs)), QByteArray("more"));
    QVERIFY(QFileInfo(at(u"emptyFile"_qs)).isFile());
    QCOMPARE(QFileInfo(at(u"emptyFile"_qs)).size(), 0);
    QVERIFY(QDir(at(u"empty"_qs)).exists() && QDir(at(u"empty"_qs)).isEmpty());
    QCOMPARE(targetOf(at(u"link"_qs)), QByteArray("file"));
    QCOMPARE(targetOf(at(u"dangling"_qs)), QByteArray("none"));
}

void tst_RenameFileService_unix::renameFile_itsOwnName_isTrue()
{
    for (const QString &name : {u"file"_qs, u"folder"_qs, u"link"_qs, u"dangling"_qs}) {
        QVERIFY2(renameFile(at(name), at(name)), qPrintable(name));
    }
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    QCOMPARE(contentOf(at(u"folder/within"_qs)), QByteArray("more"));
    QVERIFY(!renameFile(at(u"none"_qs), at(u"none"_qs)));
}

void tst_RenameFileService_unix::renameFile_otherError_isFalse_data()
{
    QTest::addColumn<int>("rename");
    QTest::addColumn<int>("link");

    QTest::newRow("no right") << EACCES << 0;
    QTest::newRow("not permitted") << EPERM << 0;
    QTest::newRow("full") << ENOSPC << 0;
    QTest::newRow("read-only") << EROFS << 0;
    QTest::newRow("flag unknown, no right to link") << EINVAL << EACCES;
    QTest::newRow("flag unknown, full") << EINVAL << ENOSPC;
}

void tst_RenameFileService_unix::renameFile_otherError_isFalse()
{
    QFETCH(const int, rename);
    QFETCH(const int, link);

    renameError = rename;
    linkError = link;
    QVERIFY(!renameFile(at(u"file"_qs), at(u"other"_qs))); // nothing else is tried
    QVERIFY(!renameFile(at(u"folder"_qs), at(u"other"_qs)));
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    QCOMPARE(contentOf(at(u"folder/within"_qs)), QByteArray("more"));
    QVERIFY(!QFileInfo::exists(at(u"other"_qs)));
}

void tst_RenameFileService_unix::renameFile_file_goesToOtherVolume()
{
    if (!findOtherVolume()) {
        QSKIP("There is one volume only.");
    }
    const QByteArray large(3'000'000, 'x');
    QVERIFY(makeFile(at(u"large"_qs), large));
    QVERIFY(QFile::setPermissions(at(u"large"_qs), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const QDateTime taken({2001, 2, 3}, {4, 5, 6});
    {
        QFile file(at(u"large"_qs));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(taken, QFileDevice::FileModificationTime));
    }
    QVERIFY(renameFile(at(u"large"_qs), there(u"gr\u00fcn"_qs)));
    QCOMPARE(QFileInfo(there(u"gr\u00fcn"_qs)).lastModified(), taken);
    QVERIFY(!QFileInfo::exists(at(u"large"_qs)));
    QVERIFY(contentOf(there(u"gr\u00fcn"_qs)) == large);
    struct stat status
    {
    };
    QCOMPARE(stat(QFile::encodeName(there(u"gr\u00fcn"_qs)).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777u, 0640u);
    QCOMPARE(QDir(m_otherVolume->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"gr\u00fcn"_qs});
}

void tst_RenameFileService_unix::renameFile_otherVolume_existingTargetIsKept()
{
    if (!findOtherVolume()) {
        QSKIP("There is one volume only.");
    }
    QVERIFY(makeFile(there(u"file"_qs), "theirs"));
    QVERIFY(makeFile(there(u"empty"_qs), QByteArray()));
    QVERIFY(makeLink("none", there(u"dangling"_qs)));
    QVERIFY(QDir().mkdir(there(u"folder"_qs)));
    const QStringList names{u"dangling"_qs, u"empty"_qs, u"file"_qs, u"folder"_qs};
    for (const QString &name : names) {
        QVERIFY2(!renameFile(at(u"file"_qs), there(name)), qPrintable(name));
        QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    }
    QCOMPARE(contentOf(there(u"file"_qs)), QByteArray("theirs"));
    QCOMPARE(QFileInfo(there(u"empty"_qs)).size(), 0);
    QCOMPARE(targetOf(there(u"dangling"_qs)), QByteArray("none"));
    QCOMPARE(QDir(m_otherVolume->path())
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name),
             names);
}

void tst_RenameFileService_unix::renameFile_otherVolume_cannotBe_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

    QTest::newRow("folder") << u"folder"_qs << u"folder"_qs;
    QTest::newRow("dangling link") << u"dangling"_qs << u"dangling"_qs;
    QTest::newRow("missing file") << u"none"_qs << u"none"_qs;
    QTest::newRow("missing folder of the target") << u"file"_qs << u"none/file"_qs;
}

void tst_RenameFileService_unix::renameFile_otherVolume_cannotBe()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);

    if (!findOtherVolume()) {
        QSKIP("There is one volume only.");
    }
    QVERIFY(!renameFile(at(from), there(to)));
    QVERIFY(QDir(m_otherVolume->path()).isEmpty());
    QCOMPARE(contentOf(at(u"file"_qs)), QByteArray("content"));
    QCOMPARE(contentOf(at(u"folder/within"_qs)), QByteArray("more"));
    QCOMPARE(targetOf(at(u"dangling"_qs)), QByteArray("none"));
}

QTEST_GUILESS_MAIN(tst_RenameFileService_unix)

#include "tst_RenameFileService_unix.moc"
