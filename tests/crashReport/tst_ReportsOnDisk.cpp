// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ReportFolders.h"
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/crashReport/zipCrashReport.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>

using namespace ZYX_zglv6;
using ReportFolders::dumps;
using ReportFolders::logs;
using ReportFolders::reports;
using ReportFolders::treeOf;
using ReportFolders::zipFiles;
using TestSupport::AssertionReports;
using TestSupport::entriesOf;

namespace {

constexpr int watchdogMs = 30'000;
constexpr char fullDiskVariable[] = "ZYX_TEST_FULL_DISK";

const CBaseCrashParser plainParser;

std::unique_ptr<CZipCrashReport> makeReport(const QString &comments = u"c"_qs)
{
    return std::make_unique<CZipCrashReport>(u"P"_qs, u"e"_qs, comments, false, plainParser, nullptr);
}

bool writeReports(const QStringList &names)
{
    return std::all_of(names.cbegin(), names.cend(),
                       [](const QString &name) { return ReportFolders::write(reports() + u'/' + name, "zip"); });
}

/*! \a count names as reports have them, the oldest first. */
QStringList namesOfReports(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i) {
        names.append(u"CrashReport_202401%1120000.zip"_qs.arg(i, 2, 10, QChar(u'0')));
    }
    return names;
}

/*! A report whose own zip file has gone. */
std::unique_ptr<CZipCrashReport> makeReportWithoutFile()
{
    auto report = makeReport();
    return QFile::remove(zipFiles().value(0)) ? std::move(report) : nullptr;
}

} // namespace

class tst_ReportsOnDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void destructor_keepsTheTenNewest_data();
    void destructor_keepsTheTenNewest();
    void destructor_ofAnEleventhReport_removesTheOldest();
    void destructor_ofEachReport_cuts();
    void destructor_goesByNameIgnoringCase_data();
    void destructor_goesByNameIgnoringCase();
    void destructor_goesByNameNotByTime();
    void destructor_otherFiles_stay();
    void destructor_folderOfSuchAName_counts();
    void destructor_withoutTheFolder_doesNothing();

    void constructor_leavesNoFilesInTheTemporaryFolder();
    void constructor_twoInOneSecond_shareTheFile();
    void createCrashReport_again_packsIntoTheSameFile();
    void createCrashReport_zipFileIsAFolder_isReported();
    void createCrashReport_withoutTheFolders_makesThem();
    void createCrashReport_fullDisk_isReported();
    void repack_zipFileIsAFolder_isNotReported();
    void constructor_unreadableInput_clearsAllTheSame();
    void constructor_descriptionCannotBeOpened_goesOn();
    void constructor_fullDisk_isReported();
    void constructor_nothingToPack_isReported();
    void constructor_temporaryFolderCannotBeMade_isReported();
    void repack_temporaryFolderCannotBeMade_isReported();
    void constructor_relativeDataDirectory_isReported();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ReportsOnDisk::init()
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    if (qstrcmp(QTest::currentTestFunction(), "constructor_relativeDataDirectory_isReported") == 0) {
        return; // its paths are its own
    }
    QVERIFY(ReportFolders::empty());
}

void tst_ReportsOnDisk::destructor_keepsTheTenNewest_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("removed");

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("9") << 9 << 0;
    QTest::newRow("10") << 10 << 0;
    QTest::newRow("11") << 11 << 1;
    QTest::newRow("12") << 12 << 2;
    QTest::newRow("15") << 15 << 5;
    QTest::newRow("31") << 31 << 21;
}

void tst_ReportsOnDisk::destructor_keepsTheTenNewest()
{
    QFETCH(const int, count);
    QFETCH(const int, removed);

    std::unique_ptr<CZipCrashReport> report = makeReportWithoutFile();
    QVERIFY(report);
    QVERIFY(writeReports(namesOfReports(count)));
    QCOMPARE(zipFiles().size(), count); // not before the destructor
    report.reset();
    QCOMPARE(treeOf(reports()), namesOfReports(count).mid(removed) + QStringList{u"temp/"_qs});
}

void tst_ReportsOnDisk::destructor_ofAnEleventhReport_removesTheOldest()
{
    QVERIFY(writeReports(namesOfReports(10)));
    const QString oldest = zipFiles().constFirst();
    std::unique_ptr<CZipCrashReport> report = makeReport();
    const QStringList all = zipFiles();
    QCOMPARE(all.size(), 11);
    QVERIFY(QFileInfo::exists(oldest));
    report.reset();
    QCOMPARE(zipFiles(), all.mid(1));
    QVERIFY(!QFileInfo::exists(oldest));
}

void tst_ReportsOnDisk::destructor_ofEachReport_cuts()
{
    std::unique_ptr<CZipCrashReport> first = makeReportWithoutFile();
    std::unique_ptr<CZipCrashReport> second = makeReportWithoutFile();
    QVERIFY(first && second);
    QVERIFY(writeReports(namesOfReports(11)));
    first.reset();
    QCOMPARE(zipFiles().size(), 10);
    second.reset();
    QCOMPARE(zipFiles().size(), 10);
}

void tst_ReportsOnDisk::destructor_goesByNameIgnoringCase_data()
{
    QTest::addColumn<QStringList>("names"); // in the order in which they go
    QTest::addColumn<int>("removed");

    const QStringList mixed{u"a.zip"_qs, u"B.zip"_qs, u"c.zip"_qs, u"D.zip"_qs, u"e.zip"_qs, u"F.zip"_qs,
                            u"g.zip"_qs, u"H.zip"_qs, u"i.zip"_qs, u"J.zip"_qs, u"k.zip"_qs, u"L.zip"_qs};
    QTest::newRow("first is of lower case") << mixed.first(11) << 1;
    QTest::newRow("first two") << mixed << 2;
    QTest::newRow("upper case of the extension") << QStringList{u"a.ZIP"_qs} + mixed.sliced(1, 10) << 1;
    QTest::newRow("a foreign name goes before reports") << QStringList{u"backup.zip"_qs} + namesOfReports(10) << 1;
    QTest::newRow("a foreign name stays instead of a report") << namesOfReports(10) + QStringList{u"zz.zip"_qs} << 1;
}

void tst_ReportsOnDisk::destructor_goesByNameIgnoringCase()
{
    QFETCH(const QStringList, names);
    QFETCH(const int, removed);

    std::unique_ptr<CZipCrashReport> report = makeReportWithoutFile();
    QVERIFY(report);
    QVERIFY(writeReports(names));
    report.reset();
    QStringList expected = names.mid(removed) + QStringList{u"temp/"_qs};
    expected.sort();
    QCOMPARE(treeOf(reports()), expected);
}

void tst_ReportsOnDisk::destructor_goesByNameNotByTime()
{
    std::unique_ptr<CZipCrashReport> report = makeReportWithoutFile();
    QVERIFY(report);
    const QStringList names = namesOfReports(11);
    for (qsizetype i = 0; i < names.size(); ++i) {
        QVERIFY(writeReports({names.at(i)}));
        QFile file(reports() + u'/' + names.at(i));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime newestFirst = QDateTime::currentDateTime().addDays(-1 - i);
        QVERIFY(file.setFileTime(newestFirst, QFileDevice::FileModificationTime));
    }
    report.reset();
    QCOMPARE(treeOf(reports()), names.mid(1) + QStringList{u"temp/"_qs});
}

void tst_ReportsOnDisk::destructor_otherFiles_stay()
{
    std::unique_ptr<CZipCrashReport> report = makeReportWithoutFile();
    QVERIFY(report);
    const QStringList others{u"0.txt"_qs, u"0.zip.bak"_qs, u"0zip"_qs, u"temp/0.zip"_qs, u"sub/0.zip"_qs};
    QVERIFY(writeReports(others));
    QVERIFY(writeReports(namesOfReports(12)));
    report.reset();
    QStringList expected = namesOfReports(12).mid(2) + others + QStringList{u"temp/"_qs, u"sub/"_qs};
    expected.sort();
    QCOMPARE(treeOf(reports()), expected);
}

void tst_ReportsOnDisk::destructor_folderOfSuchAName_counts()
{
    std::unique_ptr<CZipCrashReport> report = makeReportWithoutFile();
    QVERIFY(report);
    QVERIFY(QDir().mkpath(reports() + u"/0.zip"));
    QVERIFY(QDir().mkpath(reports() + u"/zz.zip"));
    QVERIFY(writeReports(namesOfReports(10)));
    report.reset();
    // Twelve names: the first folder, which can't be removed like a file, and one report had to go.
    QCOMPARE(treeOf(reports()),
             QStringList{u"0.zip/"_qs} + namesOfReports(10).mid(1) + QStringList({u"temp/"_qs, u"zz.zip/"_qs}));
}

void tst_ReportsOnDisk::destructor_withoutTheFolder_doesNothing()
{
    const AssertionReports assertions;
    std::unique_ptr<CZipCrashReport> report = makeReport();
    QVERIFY(QDir(reports()).removeRecursively());
    report.reset();
    QVERIFY(!QFileInfo::exists(reports()));
    QCOMPARE(assertions.texts(), QStringList());
}

void tst_ReportsOnDisk::constructor_leavesNoFilesInTheTemporaryFolder()
{
    QVERIFY(ReportFolders::write(dumps() + u"/a.dmp", "dump"));
    QVERIFY(ReportFolders::write(dumps() + u"/sub/b.dmp", "dump"));
    QVERIFY(ReportFolders::write(logs() + u"/main.txt", "line"));
    const AssertionReports assertions;
    std::unique_ptr<CZipCrashReport> report = makeReport();
    const QString file = zipFiles().value(0);
    QCOMPARE(treeOf(reports()), (QStringList{QFileInfo(file).fileName(), u"temp/"_qs, u"temp/sub/"_qs}));
    report.reset();
    QCOMPARE(treeOf(reports()), (QStringList{QFileInfo(file).fileName(), u"temp/"_qs, u"temp/sub/"_qs}));
    QCOMPARE(assertions.texts(), QStringList());
}

void tst_ReportsOnDisk::constructor_twoInOneSecond_shareTheFile()
{
    constexpr int mostAttempts = 50; // until no second ends between the two
    const auto second = [] { return QDateTime::currentDateTime().toString(u"yyyyMMddhhmmss"); };
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        QVERIFY(ReportFolders::empty());
        const QString before = second();
        QVERIFY(ReportFolders::write(dumps() + u"/first.dmp", "first"));
        const std::unique_ptr<CZipCrashReport> first = makeReport(u"first"_qs);
        QVERIFY(ReportFolders::write(dumps() + u"/second.dmp", "second"));
        const std::unique_ptr<CZipCrashReport> other = makeReport(u"second"_qs);
        if (second() != before) {
            continue;
        }
        QCOMPARE(zipFiles(), QStringList{reports() + u"/CrashReport_"_qs + before + u".zip"_qs});
        const TestSupport::Files entries = entriesOf(zipFiles().constFirst());
        QCOMPARE(entries.keys(), (QStringList{u"report.xml"_qs, u"second.dmp"_qs})); // not added to the first
        QVERIFY(entries.value(u"report.xml"_qs).contains("<Comments>second</Comments>"));
        return;
    }
    QFAIL("No two reports fell into one second");
}

void tst_ReportsOnDisk::createCrashReport_again_packsIntoTheSameFile()
{
    QVERIFY(ReportFolders::write(dumps() + u"/first.dmp", "first"));
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QStringList files = zipFiles();
    QCOMPARE(entriesOf(files.value(0)).keys(), (QStringList{u"first.dmp"_qs, u"report.xml"_qs}));
    const auto second = [] { return QDateTime::currentDateTime().toString(u"yyyyMMddhhmmss"); };
    const QString made = second();
    QTRY_VERIFY(second() != made);
    QVERIFY(ReportFolders::write(dumps() + u"/second.dmp", "second"));
    QVERIFY(ReportFolders::write(logs() + u"/main.txt", "line"));
    report->createCrashReport();
    QCOMPARE(zipFiles(), files);
    QCOMPARE(entriesOf(files.value(0)).keys(), (QStringList{u"main.txt"_qs, u"report.xml"_qs, u"second.dmp"_qs}));
}

void tst_ReportsOnDisk::createCrashReport_zipFileIsAFolder_isReported()
{
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QString file = zipFiles().value(0);
    QVERIFY(QFile::remove(file) && QDir().mkpath(file));
    QVERIFY(ReportFolders::write(dumps() + u"/a.dmp", "dump"));
    const AssertionReports assertions;
    report->createCrashReport();
    QCOMPARE(assertions.texts().size(), 1);
    QVERIFY(assertions.texts().constFirst().startsWith(u"ASSERT in "));
    // The files that were listed are gone all the same.
    QCOMPARE(treeOf(reports()), (QStringList{QFileInfo(file).fileName() + u'/', u"temp/"_qs}));
}

void tst_ReportsOnDisk::createCrashReport_withoutTheFolders_makesThem()
{
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QStringList files = zipFiles();
    QVERIFY(QDir(reports()).removeRecursively());
    QVERIFY(QDir(logs()).removeRecursively());
    const AssertionReports assertions;
    report->createCrashReport();
    QCOMPARE(zipFiles(), files);
    QCOMPARE(entriesOf(files.value(0)).keys(), QStringList{u"report.xml"_qs});
    QVERIFY(QDir(reports()).removeRecursively());
    report->repack(u"e"_qs, u"c"_qs);
    QCOMPARE(zipFiles(), files);
    QCOMPARE(entriesOf(files.value(0)).keys(), QStringList{u"report.xml"_qs});
    QCOMPARE(assertions.texts(), QStringList());
}

void tst_ReportsOnDisk::createCrashReport_fullDisk_isReported()
{
    const QString fullDevice = u"/dev/full"_qs;
    if (!QFileInfo::exists(fullDevice)) {
        QSKIP("This system has no device that is always full");
    }
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QString file = zipFiles().value(0);
    QVERIFY(QFile::remove(file) && QFile::link(fullDevice, file));
    QVERIFY(ReportFolders::write(dumps() + u"/a.dmp", QByteArray(100'000, 'd')));
    const AssertionReports assertions;
    report->createCrashReport();
    QCOMPARE(assertions.texts().size(), 1);
    QVERIFY(assertions.texts().constFirst().startsWith(u"ASSERT in "));
    QCOMPARE(treeOf(dumps()), QStringList());
}

void tst_ReportsOnDisk::repack_zipFileIsAFolder_isNotReported()
{
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QString file = zipFiles().value(0);
    QVERIFY(QFile::remove(file) && QDir().mkpath(file));
    const AssertionReports assertions;
    report->repack(u"e"_qs, u"c"_qs);
    QCOMPARE(assertions.texts(), QStringList()); // nobody looks at the result of packing
    QCOMPARE(treeOf(reports()), (QStringList{QFileInfo(file).fileName() + u'/', u"temp/"_qs}));
}

void tst_ReportsOnDisk::constructor_unreadableInput_clearsAllTheSame()
{
    const QString unreadable = u"/proc/self/mem"_qs; // can be opened; its first byte can't be read
    const QString link = dumps() + u"/0.dmp";
    if (!QFile::link(unreadable, link) || !QFileInfo(link).isSymbolicLink() || !QFileInfo::exists(unreadable)) {
        QFile::remove(link);
        QSKIP("This system has no file that opens and can't be read");
    }
    QVERIFY(ReportFolders::write(dumps() + u"/1.dmp", "dump"));
    const AssertionReports assertions;
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    QCOMPARE(treeOf(dumps()), QStringList());
    QCOMPARE(zipFiles().size(), 1);
    QVERIFY(!entriesOf(zipFiles().constFirst()).contains(u"1.dmp"_qs)); // the packing ended before it
    QCOMPARE(assertions.texts(), QStringList()); // such an archive counts as a good one
}

void tst_ReportsOnDisk::constructor_descriptionCannotBeOpened_goesOn()
{
    QVERIFY(ReportFolders::write(dumps() + u"/a.dmp", "dump"));
    QVERIFY(ReportFolders::write(logs() + u"/main.txt", "line"));
    QVERIFY(QDir().mkpath(dumps() + u"/report.xml"));
    const AssertionReports assertions;
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    QCOMPARE(assertions.texts().size(), 1);
    QVERIFY(assertions.texts().constFirst().startsWith(u"ASSERT in "));
    QCOMPARE(entriesOf(zipFiles().value(0)).keys(), (QStringList{u"a.dmp"_qs, u"main.txt"_qs}));
    QCOMPARE(treeOf(dumps()), QStringList{u"report.xml/"_qs});
}

void tst_ReportsOnDisk::constructor_fullDisk_isReported()
{
    if (!qEnvironmentVariableIsSet(fullDiskVariable)) {
        const QString shell = QStandardPaths::findExecutable(u"sh"_qs);
        if (shell.isEmpty()) {
            QSKIP("There is no shell that could limit the size of files");
        }
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(fullDiskVariable), u"1"_qs);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        // A write beyond the limit, a few KiB, then fails as on a full disk.
        process.start(shell,
                      {u"-c"_qs, u"trap '' XFSZ; ulimit -f 8; exec \"$0\" \"$1\""_qs,
                       QCoreApplication::applicationFilePath(), QString::fromLatin1(QTest::currentTestFunction())});
        QVERIFY(process.waitForFinished(watchdogMs));
        const QByteArray output = process.readAll();
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, output.constData());
        return;
    }
    QVERIFY(ReportFolders::write(dumps() + u"/a.dmp", "dump"));
    const AssertionReports assertions;
    std::unique_ptr<CZipCrashReport> report = makeReport(QString(100'000, u'c'));
    QCOMPARE(assertions.texts().size(), 2); // the description and the archive
    QVERIFY(assertions.texts().at(0).startsWith(u"ASSERT in "));
    QVERIFY(assertions.texts().at(1).startsWith(u"ASSERT in "));
    QCOMPARE(treeOf(dumps()), QStringList());
    report->repack(u"e"_qs, QString(100'000, u'd'));
    QCOMPARE(treeOf(dumps()), QStringList());
    report.reset();
    QVERIFY(zipFiles().size() <= 1); // a partial one or none
}

void tst_ReportsOnDisk::constructor_nothingToPack_isReported()
{
    QVERIFY(QDir().mkpath(dumps() + u"/report.xml"));
    const AssertionReports assertions;
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QStringList texts = assertions.texts();
    QCOMPARE(texts.size(), 3);
    QVERIFY(texts.at(0).startsWith(u"ASSERT in ")); // the description
    QVERIFY(texts.at(1).startsWith(u"ASSERT_X_RETURN_VALUE in "));
    QVERIFY(texts.at(1).endsWith(u": No files to compress"));
    QVERIFY(texts.at(2).startsWith(u"ASSERT in ")); // the packing
    QCOMPARE(treeOf(reports()), (QStringList{u"temp/"_qs, u"temp/report.xml/"_qs}));
}

void tst_ReportsOnDisk::constructor_temporaryFolderCannotBeMade_isReported()
{
    QVERIFY(QDir().rmdir(dumps()) && ReportFolders::write(dumps(), "in the way"));
    QVERIFY(ReportFolders::write(logs() + u"/main.txt", "line"));
    const AssertionReports assertions;
    QVERIFY(!CZipCrashReport::isCrashDumpCreated(plainParser));
    std::unique_ptr<CZipCrashReport> report = makeReport();
    const QStringList texts = assertions.texts();
    QCOMPARE(texts.size(), 5);
    QVERIFY(texts.at(0).startsWith(u"ASSERT in ")); // the folder, for the description
    QVERIFY(texts.at(1).startsWith(u"ASSERT in ")); // the description
    QVERIFY(texts.at(2).startsWith(u"ASSERT in ")); // the folder, for the logs
    QVERIFY(texts.at(3).startsWith(u"ASSERT_X_RETURN_VALUE in "));
    QVERIFY(texts.at(3).endsWith(u": No files to compress"));
    QVERIFY(texts.at(4).startsWith(u"ASSERT in ")); // the packing
    QCOMPARE(treeOf(reports()), QStringList{u"temp"_qs});
    QCOMPARE(ReportFolders::contentOf(dumps()), "in the way");
    QCOMPARE(treeOf(logs()), QStringList{u"main.txt"_qs});

    QVERIFY(QFile::remove(dumps()));
    report->createCrashReport();
    QCOMPARE(assertions.texts(), texts); // nothing more
    QCOMPARE(entriesOf(zipFiles().value(0)).keys(), (QStringList{u"main.txt"_qs, u"report.xml"_qs}));
}

void tst_ReportsOnDisk::repack_temporaryFolderCannotBeMade_isReported()
{
    const std::unique_ptr<CZipCrashReport> report = makeReport();
    const QString file = zipFiles().value(0);
    const QByteArray archive = ReportFolders::contentOf(file);
    QVERIFY(!archive.isEmpty());
    QVERIFY(QDir().rmdir(dumps()) && ReportFolders::write(dumps(), "in the way"));
    const AssertionReports assertions;
    report->repack(u"e"_qs, u"new"_qs);
    QCOMPARE(assertions.texts().size(), 1);
    QVERIFY2(assertions.texts().constFirst().contains(u"create_directory"),
             qPrintable(assertions.texts().constFirst()));
    QCOMPARE(ReportFolders::contentOf(file), archive);
    QCOMPARE(ReportFolders::contentOf(dumps()), "in the way");
}

void tst_ReportsOnDisk::constructor_relativeDataDirectory_isReported()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(QDir::setCurrent(m_sandbox.filePath(u"."_qs)));
    CStorageLocation::setDataDirectory(u"relative"_qs);
    {
        const AssertionReports assertions;
        const std::unique_ptr<CZipCrashReport> report = makeReport();
        QCOMPARE(assertions.texts().size(), 1);
        QVERIFY(assertions.texts().constFirst().startsWith(u"ASSERT in "));
        const QString folder = m_sandbox.filePath(u"relative/CrashReports"_qs);
        QCOMPARE(QDir::cleanPath(report->getZipFilePath()), QFileInfo(folder).absoluteFilePath());
        QCOMPARE(QDir(folder).entryList({u"CrashReport_*.zip"_qs}, QDir::Files).size(), 1);
    }
    QVERIFY(QDir::setCurrent(QDir::rootPath())); // so that the folder can be removed
}

QTEST_GUILESS_MAIN(tst_ReportsOnDisk)
#include "tst_ReportsOnDisk.moc"
