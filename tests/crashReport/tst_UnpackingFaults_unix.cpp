// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/FaultRuns_unix.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <filesystem>

using namespace TestSupport;
using ZYX_zglv6::CompressDir;
using ZYX_zglv6::DecompressFiles;

namespace {

QString extracting(const QString &text)
{
    return u"ERROR ZYX_zglv6::`anonymous-namespace'::doExtractCurrentFile: "_qs + text;
}

} // namespace

/*! Unpacking on disks that are full, and other failures of the system in the middle of the work. */
class tst_UnpackingFaults_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void unpacking_anyFailingCall_isToldAndLeavesNothingOpen_data();
    void unpacking_anyFailingCall_isToldAndLeavesNothingOpen();
    void unpacking_onAFullDisk_ends();
    void unpacking_failedWriting_isLogged();
    void unpacking_failedWriting_setsNoTime_data();
    void unpacking_failedWriting_setsNoTime();
    void unpacking_folderMadeByAnother_isAFailure();
    void unpacking_folderThatMayNotBeMade_throws();
    void unpacking_fileThatMayNotBeMade_isSkipped();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    bool compress() const
    {
        return CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs)));
    }

    bool decompress() const
    {
        return DecompressFiles(QFileInfo(path(u"made.zip"_qs)), path(u"out"_qs), QString());
    }

    Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_filesBefore = 0; // that are open
    Files m_files{{u"a"_qs, bytesOf(40'000)}, {u"b"_qs, ""}, {u"c"_qs, "3"}, {u"sub/d"_qs, bytesOf(17'000)}};
};

void tst_UnpackingFaults_unix::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFiles(path(u"in"_qs), m_files);
    QVERIFY(QDir(m_folder->path()).mkdir(u"out"_qs));
    m_filesBefore = openFileCount();
}

void tst_UnpackingFaults_unix::unpacking_anyFailingCall_isToldAndLeavesNothingOpen_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("error");

    QTest::newRow("open") << Call::Open << EACCES;
    QTest::newRow("write") << Call::Write << ENOSPC;
    QTest::newRow("pread") << Call::ReadAt << EIO;
}

void tst_UnpackingFaults_unix::unpacking_anyFailingCall_isToldAndLeavesNothingOpen()
{
    QFETCH(const Call, call);
    QFETCH(const int, error);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(compress());
    runWithEachCallFailing(
        m_folder->path(), call, error, log, [this] { return decompress(); },
        [this](const FaultRun &run) {
            QVERIFY2(!run.errors().isEmpty() || filesBelow(path(u"out"_qs)) == m_files, QByteArray::number(run.nth));
            QVERIFY(QDir(path(u"out"_qs)).removeRecursively());
        });
}

void tst_UnpackingFaults_unix::unpacking_onAFullDisk_ends()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(compress());
    const int filesBefore = openFileCount();
    for (const int size : {0, 1, 8191, 8192, 8193, 39'999}) {
        QVERIFY(QDir(path(u"out"_qs)).removeRecursively());
        {
            const FileSizeLimit limit{rlim_t(size)};
            QVERIFY(!decompress());
        }
        QVERIFY(filesBelow(path(u"out"_qs)) == Files({{u"a"_qs, m_files.value(u"a"_qs).left(size)}}));
        QCOMPARE(openFileCount(), filesBefore);
    }
    const FileSizeLimit limit{40'000};
    QVERIFY(!decompress());
    QVERIFY(filesBelow(path(u"out"_qs)) == m_files);
}

void tst_UnpackingFaults_unix::unpacking_failedWriting_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFile(path(u"made.zip"_qs), makeArchive({{"a", "1"}, {"sub/b", bytesOf(20'000)}, {"c", "3"}}));
    {
        const Fault fault(m_folder->path(), Call::Write, 3, ENOSPC); // the second piece of the second entry
        QVERIFY(!decompress());
        QVERIFY(fault.hasStruck());
    }
    QCOMPARE(log.records(), QStringList(extracting(u"Error in writing extracted file: sub/b"_qs)));
    QVERIFY(filesBelow(path(u"out"_qs)) == Files({{u"a"_qs, "1"}, {u"sub/b"_qs, bytesOf(20'000).left(8192)}}));
}

void tst_UnpackingFaults_unix::unpacking_failedWriting_setsNoTime_data()
{
    QTest::addColumn<int>("nth");
    QTest::addColumn<bool>("isSet");

    QTest::newRow("first piece") << 1 << false;
    QTest::newRow("second piece") << 2 << false;
    QTest::newRow("last piece, which is short") << 3 << false;
    QTest::newRow("no piece") << 4 << true;
}

/*! The time goes to the file of that name in the working folder. */
void tst_UnpackingFaults_unix::unpacking_failedWriting_setsNoTime()
{
    QFETCH(const int, nth);
    QFETCH(const bool, isSet);
    RUN_IN_FRESH_PROCESS();
    const QDateTime older(QDate(2001, 2, 3), QTime(4, 5, 6));
    writeFile(path(u"a"_qs), "kept");
    {
        QFile file(path(u"a"_qs));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(older, QFileDevice::FileModificationTime));
    }
    writeFile(path(u"made.zip"_qs), makeArchive({{"a", bytesOf(20'000)}}));
    QVERIFY(QDir::setCurrent(m_folder->path()));
    {
        const Fault fault(path(u"out"_qs), Call::Write, nth, ENOSPC);
        QVERIFY(!decompress());
        QCOMPARE(fault.hasStruck(), !isSet);
    }
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    const QDateTime inArchive(QDate(2025, 1, 11), QTime(13, 25, 52));
    QCOMPARE(QFileInfo(path(u"a"_qs)).lastModified(), isSet ? inArchive : older);
}

void tst_UnpackingFaults_unix::unpacking_folderMadeByAnother_isAFailure()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const int filesBefore = openFileCount();
    writeFile(path(u"made.zip"_qs), makeArchive({{"a", "1"}, {"sub/b", "2"}, {"c", "3"}}));
    {
        const Fault fault(m_folder->path(), Call::MakeFolder, 1, [this] { QDir(path(u"out"_qs)).mkdir(u"sub"_qs); });
        QVERIFY(!decompress());
        QVERIFY(fault.hasStruck());
    }
    QCOMPARE(log.records(), QStringList(extracting(u"Cannot create directory: "_qs + path(u"out/sub"_qs))));
    QVERIFY(filesBelow(path(u"out"_qs)) == Files({{u"a"_qs, "1"}}));
    QCOMPARE(openFileCount(), filesBefore);
}

void tst_UnpackingFaults_unix::unpacking_folderThatMayNotBeMade_throws()
{
    writeFile(path(u"made.zip"_qs), makeArchive({{"sub/b", "2"}, {"c", "3"}}));
    {
        const Fault fault(m_folder->path(), Call::MakeFolder, 1, EACCES);
        QVERIFY_THROWS_EXCEPTION(std::filesystem::filesystem_error, decompress());
    }
    QVERIFY(filesBelow(path(u"out"_qs)).isEmpty());
    QCOMPARE(openFileCount(), m_filesBefore);
}

void tst_UnpackingFaults_unix::unpacking_fileThatMayNotBeMade_isSkipped()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    writeFile(path(u"made.zip"_qs), makeArchive({{"a", "1"}, {"sub/b", "2"}, {"c", "3"}}));
    {
        const Fault fault(path(u"out"_qs), Call::Open, 2, EACCES);
        QVERIFY(!decompress());
    }
    QCOMPARE(log.records(), QStringList(extracting(u"Error opening file: sub/b"_qs)));
    QVERIFY(filesBelow(path(u"out"_qs)) == Files({{u"a"_qs, "1"}, {u"c"_qs, "3"}}));
}

QTEST_GUILESS_MAIN(tst_UnpackingFaults_unix)
#include "tst_UnpackingFaults_unix.moc"
