// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFaults_unix.h"
#include "crashReport/ArchiveFiles.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <csignal>
#include <filesystem>

#include <sys/resource.h>
#include <unistd.h>

using namespace TestSupport;
using ZYX_zglv6::CompressDir;
using ZYX_zglv6::CompressDirAndClearContent;
using ZYX_zglv6::DecompressFiles;

Q_DECLARE_METATYPE(TestSupport::Call)

namespace {

QString adding(const QString &text)
{
    return u"ERROR ZYX_zglv6::ZipMod::addToZipFile: "_qs + text;
}

/*! With \a archive for each "%1". */
QStringList addingAll(const QStringList &texts, const QString &archive)
{
    QStringList lines;
    for (const QString &text : texts) {
        lines.append(adding(text).replace(u"%1"_qs, archive));
    }
    return lines;
}

QString extracting(const QString &text)
{
    return u"ERROR ZYX_zglv6::`anonymous-namespace'::doExtractCurrentFile: "_qs + text;
}

/*! No file of this process gets larger, as on a disk that is full. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }

    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
    }

    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before{};
};

} // namespace

/*! Disks that are full, files that vanish and other failures of the system in the middle of the work. */
class tst_ArchiveFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void packing_anyFailingCall_isToldAndLeavesNothingOpen_data();
    void packing_anyFailingCall_isToldAndLeavesNothingOpen();
    void packing_failingCall_isLogged_data();
    void packing_failingCall_isLogged();
    void packing_failureAroundAnEntry_isLogged_data();
    void packing_failureAroundAnEntry_isLogged();
    void packing_onAFullDisk_isAFailure();
    void packing_ontoAFullDevice_isAFailure_data();
    void packing_ontoAFullDevice_isAFailure();
    void packing_ofALargeFile_usesZip64_data();
    void packing_ofALargeFile_usesZip64();
    void packing_ofAFileThatVanished_endsEarlyAndIsTrue_data();
    void packing_ofAFileThatVanished_endsEarlyAndIsTrue();
    void packing_ofAFileThatCannotBeRead_endsEarlyAndIsTrue();

    void clearing_reportsEachItemFromTheFirstThatIsGone();
    void clearing_removesAFolderWithItsContent();
    void clearing_throwsWhereAnItemCannotBeRemoved();
    void clearing_happensAfterAFailedArchive();

    void unpacking_anyFailingCall_isToldAndLeavesNothingOpen_data();
    void unpacking_anyFailingCall_isToldAndLeavesNothingOpen();
    void unpacking_onAFullDisk_ends();
    void unpacking_failedWriting_isLogged();
    void unpacking_folderMadeByAnother_isAFailure();
    void unpacking_folderThatMayNotBeMade_throws();
    void unpacking_fileThatMayNotBeMade_isSkipped();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    ReadArchive archive() const
    {
        return readArchive(contentOf(path(u"made.zip"_qs)));
    }

    bool compress() const
    {
        return CompressDir(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs)));
    }

    bool compressAndClear() const
    {
        return CompressDirAndClearContent(path(u"in"_qs), QFileInfo(path(u"made.zip"_qs)));
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

void tst_ArchiveFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFiles(path(u"in"_qs), m_files);
    QVERIFY(QDir(m_folder->path()).mkdir(u"out"_qs));
    m_filesBefore = openFileCount();
}

void tst_ArchiveFaults::packing_anyFailingCall_isToldAndLeavesNothingOpen_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("error");

    QTest::newRow("open") << Call::Open << EACCES;
    QTest::newRow("read") << Call::Read << EIO;
    QTest::newRow("pwrite") << Call::WriteAt << ENOSPC;
}

void tst_ArchiveFaults::packing_anyFailingCall_isToldAndLeavesNothingOpen()
{
    QFETCH(const Call, call);
    QFETCH(const int, error);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(compress());
    const int filesBefore = openFileCount();
    bool hasStruck = true;
    for (int nth = 1; hasStruck; ++nth) {
        const qsizetype before = log.records().size();
        bool isPacked = false;
        {
            const Fault fault(m_folder->path(), call, nth, error);
            isPacked = compress();
            hasStruck = fault.hasStruck();
        }
        QCOMPARE(openFileCount(), filesBefore);
        const QStringList errors = log.records().mid(before).filter(QRegularExpression(u"^ERROR "_qs));
        // Whoever finds nothing in the log has a whole archive.
        const bool isWhole = isPacked && archive().isWhole && archive().entries.size() == m_files.size();
        QVERIFY2(!errors.isEmpty() || isWhole, QByteArray::number(nth));
        QVERIFY2(isPacked || !errors.isEmpty(), QByteArray::number(nth));
        QVERIFY2(hasStruck || errors.isEmpty(), QByteArray::number(nth));
        QVERIFY(nth > 1 || hasStruck);
    }
}

void tst_ArchiveFaults::packing_failingCall_isLogged_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("nth");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("errors");

    QTest::newRow("writing") << Call::WriteAt << 1 << false
                             << QStringList(u"Error in closing: %1"_qs); // all at its end
    QTest::newRow("reading") << Call::Read << 1 << true << QStringList(u"Error reading: a"_qs);
    QTest::newRow("reading on") << Call::Read << 2 << true << QStringList(u"Error reading: a"_qs);
    QTest::newRow("opening the archive") << Call::Open << 1 << false
                                         << QStringList({u"Error opening zip file: %1"_qs, u"Error in closing: %1"_qs});
    QTest::newRow("opening the file") << Call::Open << 2 << true << QStringList(u"Error opening for reading: a"_qs);
}

void tst_ArchiveFaults::packing_failingCall_isLogged()
{
    QFETCH(const Call, call);
    QFETCH(const int, nth);
    QFETCH(const QStringList, errors);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    bool isPacked = false;
    {
        const Fault fault(m_folder->path(), call, nth, EIO);
        isPacked = compress();
    }
    QCOMPARE(log.records().filter(QRegularExpression(u"^ERROR "_qs)), addingAll(errors, path(u"made.zip"_qs)));
    QTEST(isPacked, "result");
}

void tst_ArchiveFaults::packing_failureAroundAnEntry_isLogged_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("error");

    constexpr int buffered = 65'536; // bytes of the archive that are held back
    constexpr int header = 31; // in front of the content of "a"
    QTest::newRow("no room for the header of the next") << buffered - header - 5 << u"Error opening zipfile: b"_qs;
    QTest::newRow("no room for the rest of the content") << buffered - header + 1 << u"Error closing zipfile: a"_qs;
}

void tst_ArchiveFaults::packing_failureAroundAnEntry_isLogged()
{
    QFETCH(const int, size);
    QFETCH(const QString, error);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const int filesBefore = openFileCount();
    writeFile(path(u"in/a"_qs), bytesOf(size));
    {
        const Fault fault(path(u"made.zip"_qs), Call::WriteAt, 1, ENOSPC);
        QVERIFY(!compress());
        QVERIFY(fault.hasStruck());
    }
    QCOMPARE(log.records().mid(2), addingAll({error, u"Error in closing: %1"_qs}, path(u"made.zip"_qs)));
    QCOMPARE(openFileCount(), filesBefore);
}

void tst_ArchiveFaults::packing_onAFullDisk_isAFailure()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(compress());
    const QByteArray whole = contentOf(path(u"made.zip"_qs));
    const int filesBefore = openFileCount();
    // Each size around the headers, some within the contents.
    for (qsizetype size = 0; size<whole.size(); size += size> 100 && size < whole.size() - 600 ? 397 : 1) {
        QVERIFY(QFile::remove(path(u"made.zip"_qs)));
        bool isPacked = true;
        {
            const FileSizeLimit limit{rlim_t(size)};
            isPacked = compress();
        }
        QVERIFY2(!isPacked, QByteArray::number(size));
        QVERIFY(QFileInfo(path(u"made.zip"_qs)).size() <= size);
        QCOMPARE(openFileCount(), filesBefore);
    }
    QVERIFY(QFile::remove(path(u"made.zip"_qs)));
    const FileSizeLimit limit{rlim_t(whole.size())};
    QVERIFY(compress());
    QVERIFY(contentOf(path(u"made.zip"_qs)) == whole);
}

void tst_ArchiveFaults::packing_ontoAFullDevice_isAFailure_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QStringList>("errors");

    QTest::newRow("large") << 200'000 << QStringList({u"Error writing zipfile: a"_qs, u"Error in closing: %1"_qs});
    QTest::newRow("small") << 0 << QStringList(u"Error in closing: %1"_qs); // nothing is written before the end
}

void tst_ArchiveFaults::packing_ontoAFullDevice_isAFailure()
{
    QFETCH(const int, size);
    QFETCH(const QStringList, errors);
    if (!QFileInfo::exists(u"/dev/full"_qs)) {
        QSKIP("There is no /dev/full.");
    }
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const int filesBefore = openFileCount();
    writeFile(path(u"in/a"_qs), bytesOf(size));
    QVERIFY(QFile::link(u"/dev/full"_qs, path(u"made.zip"_qs)));
    QVERIFY(!compress());
    QCOMPARE(log.records().mid(2), addingAll(errors, path(u"made.zip"_qs)));
    QCOMPARE(openFileCount(), filesBefore);
}

void tst_ArchiveFaults::packing_ofALargeFile_usesZip64_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isZip64");

    QTest::newRow("the largest that plain fields hold") << qint64(0xfffffffe) << false;
    QTest::newRow("the smallest that they don't hold") << qint64(0xffffffff) << true;
    QTest::newRow("more than 32 bits") << qint64(0x1'0000'0001) << true;
}

void tst_ArchiveFaults::packing_ofALargeFile_usesZip64()
{
    QFETCH(const qint64, size);
    QFETCH(const bool, isZip64);
    QVERIFY(QFile::resize(path(u"in/a"_qs), size)); // a hole takes no room
    {
        const Fault fault(m_folder->path(), Call::Read, 1, EIO); // the header says it all
        QVERIFY(compress());
        QVERIFY(fault.hasStruck());
    }
    QCOMPARE(archive().entries.size(), 1);
    QCOMPARE(archive().entries.first().local.neededVersion, quint16(isZip64 ? 45 : 20));
    QCOMPARE(archive().entries.first().local.extra.size(), isZip64 ? 20 : 0);
}

void tst_ArchiveFaults::packing_ofAFileThatVanished_endsEarlyAndIsTrue_data()
{
    QTest::addColumn<QString>("vanishing");
    QTest::addColumn<QList<QByteArray>>("entries");

    QTest::newRow("first") << u"a"_qs << QList<QByteArray>{"a"};
    QTest::newRow("second") << u"b"_qs << QList<QByteArray>{"a", "b"};
    QTest::newRow("with its folder") << u"sub/d"_qs << QList<QByteArray>{"a", "b", "c", "sub/d"};
}

void tst_ArchiveFaults::packing_ofAFileThatVanished_endsEarlyAndIsTrue()
{
    QFETCH(const QString, vanishing);
    QFETCH(const QList<QByteArray>, entries);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString file = path(u"in/"_qs + vanishing);
    {
        const Fault fault(path(u"made.zip"_qs), Call::Open, 1, [&] { // the archive is made when the list is there
            QFile::remove(file);
            QDir().rmdir(QFileInfo(file).path());
        });
        QVERIFY(compress());
        QVERIFY(fault.hasStruck());
    }
    QCOMPARE(log.records().mid(2), QStringList(adding(u"Error opening for reading: "_qs + vanishing)));
    QVERIFY(archive().isWhole);
    QCOMPARE(archive().names(), entries);
    QCOMPARE(archive().entries.last().content, QByteArray());
}

void tst_ArchiveFaults::packing_ofAFileThatCannotBeRead_endsEarlyAndIsTrue()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(QFile::remove(path(u"in/b"_qs)));
    QVERIFY(QFile::link(u"/proc/self/mem"_qs, path(u"in/b"_qs))); // nothing is there at its beginning
    QVERIFY(compress());
    QCOMPARE(log.records().mid(2), QStringList(adding(u"Error reading: b"_qs)));
    QVERIFY(archive().isWhole);
    QCOMPARE(archive().names(), QList<QByteArray>({"a", "b"}));
    QVERIFY(archive().entries.first().content == m_files.value(u"a"_qs));
}

void tst_ArchiveFaults::clearing_reportsEachItemFromTheFirstThatIsGone()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const AssertionReports reports;
    {
        const Fault fault(path(u"made.zip"_qs), Call::Close, 1, [this] { QFile::remove(path(u"in/b"_qs)); });
        QVERIFY(compressAndClear());
        QVERIFY(fault.hasStruck());
    }
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty()); // those behind it were removed all the same
    QCOMPARE(archive().entries.size(), m_files.size());
    QCOMPARE(reports.texts().size(), 3);
    const QStringList names{u"b"_qs, u"c"_qs, u"sub/d"_qs};
    for (int i = 0; i < names.size(); ++i) {
        const QString report = reports.texts().at(i);
        QVERIFY2(report.startsWith(u"ASSERT_X_RETURN in ")
                     && report.endsWith(QString(u": Cannot remove item: "_qs + path(u"in/"_qs + names.at(i)))),
                 qPrintable(report));
        QCOMPARE(log.records().at(3 + i),
                 QString(u"ERROR ZYX_zglv6::`anonymous-namespace'::removePathItems: "_qs + report));
    }
    QCOMPARE(log.records().size(), 6);
}

void tst_ArchiveFaults::clearing_removesAFolderWithItsContent()
{
    const AssertionReports reports;
    const Fault fault(path(u"made.zip"_qs), Call::Close, 1, [this] {
        QFile::remove(path(u"in/b"_qs));
        writeFiles(path(u"in/b"_qs), {{u"x"_qs, "1"}, {u"y/z"_qs, "2"}});
    });
    QVERIFY(compressAndClear());
    QVERIFY(fault.hasStruck());
    QVERIFY(!QFileInfo::exists(path(u"in/b"_qs)));
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_ArchiveFaults::clearing_throwsWhereAnItemCannotBeRemoved()
{
    {
        const Fault fault(m_folder->path(), Call::Remove, 2, EPERM);
        QVERIFY_THROWS_EXCEPTION(std::filesystem::filesystem_error, compressAndClear());
    }
    QCOMPARE(filesBelow(path(u"in"_qs)).keys(), QStringList({u"b"_qs, u"c"_qs, u"sub/d"_qs})); // it went no further
    QVERIFY(archive().isWhole);
    QCOMPARE(openFileCount(), m_filesBefore);
}

void tst_ArchiveFaults::clearing_happensAfterAFailedArchive()
{
    const Fault fault(path(u"made.zip"_qs), Call::Close, 1, ENOSPC);
    QVERIFY(!compressAndClear());
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
}

void tst_ArchiveFaults::unpacking_anyFailingCall_isToldAndLeavesNothingOpen_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("error");

    QTest::newRow("open") << Call::Open << EACCES;
    QTest::newRow("write") << Call::Write << ENOSPC;
    QTest::newRow("pread") << Call::ReadAt << EIO;
}

void tst_ArchiveFaults::unpacking_anyFailingCall_isToldAndLeavesNothingOpen()
{
    QFETCH(const Call, call);
    QFETCH(const int, error);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(compress());
    const int filesBefore = openFileCount();
    bool hasStruck = true;
    for (int nth = 1; hasStruck; ++nth) {
        QVERIFY(QDir(path(u"out"_qs)).removeRecursively());
        const qsizetype before = log.records().size();
        {
            const Fault fault(m_folder->path(), call, nth, error);
            decompress();
            hasStruck = fault.hasStruck();
        }
        QCOMPARE(openFileCount(), filesBefore);
        const QStringList lines = log.records().mid(before);
        QVERIFY2(!lines.isEmpty() || filesBelow(path(u"out"_qs)) == m_files, QByteArray::number(nth));
        QVERIFY2(hasStruck || lines.isEmpty(), qPrintable(QString::number(nth) + lines.join(u'\n')));
        QVERIFY(nth > 1 || hasStruck);
    }
}

void tst_ArchiveFaults::unpacking_onAFullDisk_ends()
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

void tst_ArchiveFaults::unpacking_failedWriting_isLogged()
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

void tst_ArchiveFaults::unpacking_folderMadeByAnother_isAFailure()
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

void tst_ArchiveFaults::unpacking_folderThatMayNotBeMade_throws()
{
    writeFile(path(u"made.zip"_qs), makeArchive({{"sub/b", "2"}, {"c", "3"}}));
    {
        const Fault fault(m_folder->path(), Call::MakeFolder, 1, EACCES);
        QVERIFY_THROWS_EXCEPTION(std::filesystem::filesystem_error, decompress());
    }
    QVERIFY(filesBelow(path(u"out"_qs)).isEmpty());
    QCOMPARE(openFileCount(), m_filesBefore);
}

void tst_ArchiveFaults::unpacking_fileThatMayNotBeMade_isSkipped()
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

QTEST_GUILESS_MAIN(tst_ArchiveFaults)
#include "tst_ArchiveFaults.moc"
