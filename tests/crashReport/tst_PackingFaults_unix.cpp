// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFiles.h"
#include "crashReport/FaultRuns_unix.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/crashReport/ZipMod_p.h"
#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <filesystem>

using namespace TestSupport;
using ZYX_zglv6::CompressDir;
using ZYX_zglv6::CompressDirAndClearContent;

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

} // namespace

/*! Packing on disks that are full, with files that vanish and other failures of the system in the middle of the work.
 */
class tst_PackingFaults_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void packing_readsInPiecesOfTheBuffer_data();
    void packing_readsInPiecesOfTheBuffer();
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

    Sandbox m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_filesBefore = 0; // that are open
    Files m_files{{u"a"_qs, bytesOf(40'000)}, {u"b"_qs, ""}, {u"c"_qs, "3"}, {u"sub/d"_qs, bytesOf(17'000)}};
};

void tst_PackingFaults_unix::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFiles(path(u"in"_qs), m_files);
    m_filesBefore = openFileCount();
}

void tst_PackingFaults_unix::packing_readsInPiecesOfTheBuffer_data()
{
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<int>("reads"); // of three pieces and of the end

    QTest::newRow("without a password") << QByteArray() << 4;
    QTest::newRow("with a password, for the sum too") << QByteArray("secret") << 8;
}

void tst_PackingFaults_unix::packing_readsInPiecesOfTheBuffer()
{
    QFETCH(const QByteArray, password);
    QFETCH(const int, reads);
    constexpr std::size_t buffer = 16'384;
    writeFile(path(u"in/a"_qs), bytesOf(3 * buffer));
    const Fault reading(path(u"in/a"_qs), Call::Read);
    QVERIFY(ZYX_zglv6::ZipMod::addToZipFile(path(u"made.zip"_qs), false, path(u"in"_qs), {u"a"_qs}, -1, password));
    if (!password.isEmpty() && archive().entries.isEmpty()) {
        QSKIP("The installed minizip takes no passwords.");
    }
    QCOMPARE(reading.sizes(), QList<std::size_t>(reads, buffer));
}

void tst_PackingFaults_unix::packing_anyFailingCall_isToldAndLeavesNothingOpen_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<int>("error");

    QTest::newRow("open") << Call::Open << EACCES;
    QTest::newRow("read") << Call::Read << EIO;
    QTest::newRow("pwrite") << Call::WriteAt << ENOSPC;
}

void tst_PackingFaults_unix::packing_anyFailingCall_isToldAndLeavesNothingOpen()
{
    QFETCH(const Call, call);
    QFETCH(const int, error);
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(compress());
    runWithEachCallFailing(
        m_folder->path(), call, error, log, [this] { return compress(); },
        [this](const FaultRun &run) {
            // Whoever finds nothing in the log has a whole archive.
            const bool isWhole = run.result && archive().isWhole && archive().entries.size() == m_files.size();
            QVERIFY2(!run.errors().isEmpty() || isWhole, QByteArray::number(run.nth));
            QVERIFY2(run.result || !run.errors().isEmpty(), QByteArray::number(run.nth));
        });
}

void tst_PackingFaults_unix::packing_failingCall_isLogged_data()
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

void tst_PackingFaults_unix::packing_failingCall_isLogged()
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

void tst_PackingFaults_unix::packing_failureAroundAnEntry_isLogged_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("error");

    constexpr int buffered = 65'536; // bytes of the archive that are held back
    constexpr int header = 31; // in front of the content of "a"
    QTest::newRow("no room for the header of the next") << buffered - header - 5 << u"Error opening zipfile: b"_qs;
    QTest::newRow("no room for the rest of the content") << buffered - header + 1 << u"Error closing zipfile: a"_qs;
}

void tst_PackingFaults_unix::packing_failureAroundAnEntry_isLogged()
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

void tst_PackingFaults_unix::packing_onAFullDisk_isAFailure()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(compress());
    const QByteArray whole = contentOf(path(u"made.zip"_qs));
    const int filesBefore = openFileCount();
    const auto next = [&whole](qsizetype size) {
        const bool isWithinContents = size > 100 && size < whole.size() - 600;
        return size + (isWithinContents ? 397 : 1); // each one around the headers
    };
    for (qsizetype size = 0; size < whole.size(); size = next(size)) {
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

void tst_PackingFaults_unix::packing_ontoAFullDevice_isAFailure_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QStringList>("errors");

    QTest::newRow("large") << 200'000 << QStringList({u"Error writing zipfile: a"_qs, u"Error in closing: %1"_qs});
    QTest::newRow("small") << 0 << QStringList(u"Error in closing: %1"_qs); // nothing is written before the end
}

void tst_PackingFaults_unix::packing_ontoAFullDevice_isAFailure()
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

void tst_PackingFaults_unix::packing_ofALargeFile_usesZip64_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("isZip64");

    QTest::newRow("the largest that plain fields hold") << qint64(0xfffffffe) << false;
    QTest::newRow("the smallest that they don't hold") << qint64(0xffffffff) << true;
    QTest::newRow("more than 32 bits") << qint64(0x1'0000'0001) << true;
}

void tst_PackingFaults_unix::packing_ofALargeFile_usesZip64()
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

void tst_PackingFaults_unix::packing_ofAFileThatVanished_endsEarlyAndIsTrue_data()
{
    QTest::addColumn<QString>("vanishing");
    QTest::addColumn<QList<QByteArray>>("entries");

    QTest::newRow("first") << u"a"_qs << QList<QByteArray>{"a"};
    QTest::newRow("second") << u"b"_qs << QList<QByteArray>{"a", "b"};
    QTest::newRow("with its folder") << u"sub/d"_qs << QList<QByteArray>{"a", "b", "c", "sub/d"};
}

void tst_PackingFaults_unix::packing_ofAFileThatVanished_endsEarlyAndIsTrue()
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

void tst_PackingFaults_unix::packing_ofAFileThatCannotBeRead_endsEarlyAndIsTrue()
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

void tst_PackingFaults_unix::clearing_reportsEachItemFromTheFirstThatIsGone()
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

void tst_PackingFaults_unix::clearing_removesAFolderWithItsContent()
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

void tst_PackingFaults_unix::clearing_throwsWhereAnItemCannotBeRemoved()
{
    {
        const Fault fault(m_folder->path(), Call::Remove, 2, EPERM);
        QVERIFY_THROWS_EXCEPTION(std::filesystem::filesystem_error, compressAndClear());
    }
    QCOMPARE(filesBelow(path(u"in"_qs)).keys(), QStringList({u"b"_qs, u"c"_qs, u"sub/d"_qs})); // it went no further
    QVERIFY(archive().isWhole);
    QCOMPARE(openFileCount(), m_filesBefore);
}

void tst_PackingFaults_unix::clearing_happensAfterAFailedArchive()
{
    const Fault fault(path(u"made.zip"_qs), Call::Close, 1, ENOSPC);
    QVERIFY(!compressAndClear());
    QVERIFY(filesBelow(path(u"in"_qs)).isEmpty());
}

QTEST_GUILESS_MAIN(tst_PackingFaults_unix)
#include "tst_PackingFaults_unix.moc"
