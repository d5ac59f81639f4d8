// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CollectorProcess.h"
#include "ReportSender.h"
#include "TestArchives.h"

#include "support/Sandbox.h"

#include "utilsDll/crashReport/compress.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

using namespace CrashCollectorTest;

namespace {

const ZipEntry report{"report.xml", "<ZyxCrashReport/>"};

QByteArray zipWithReportAnd(const QByteArray &name)
{
    return zipWith({report, {name, "content"}});
}

QByteArray zipWithEntries(int count)
{
    QList<ZipEntry> entries{report};
    for (int i = 1; i < count; ++i) {
        entries.append(ZipEntry{QByteArray::number(i), ""});
    }
    return zipWith(entries);
}

/*! An archive with entries that unpack to \a mebibytes together. */
QByteArray zipThatGrowsTo(int mebibytes)
{
    const QByteArray zeros(qsizetype(16) * 1024 * 1024, '\0');
    QList<ZipEntry> entries{{"report.xml", "", true}};
    for (int i = 0; i < mebibytes / 16; ++i) {
        entries.append(ZipEntry{QByteArray::number(i), zeros, true});
    }
    return zipWith(entries);
}

/*! \a part in both places, in front of the content and in the directory. */
QByteArray replacedTwice(const QByteArray &bytes, const QByteArray &part, const QByteArray &other)
{
    return replaced(replaced(bytes, part, other), part, other);
}

} // namespace

class tst_CrashCollectorArchives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void archive_isAccepted_data();
    void archive_isAccepted();
    void archiveOfTheLibrary_isAccepted();
    void data_isRefused_data();
    void data_isRefused();
    void sizeLimit_isExact();
    void changedArchives_neverHarm();

private:
    TestSupport::Sandbox m_sandbox;
    CollectorProcess m_collector = CollectorProcess(m_sandbox.filePath(u"reports"_qs));
};

void tst_CrashCollectorArchives::initTestCase()
{
    QVERIFY2(m_collector.start({u"--size-limit"_qs, u"1"_qs}), qPrintable(m_collector.errors()));
}

void tst_CrashCollectorArchives::archive_isAccepted_data()
{
    QTest::addColumn<QByteArray>("archive");

    QTest::newRow("stored") << reportArchive();
    QTest::newRow("deflated") << zipWith({{"report.xml", QByteArray(100'000, 'x'), true}});
    QTest::newRow("report that is not well-formed") << zipWith({{"report.xml", "<Comments>a < b</Comments>"}});
    QTest::newRow("folders") << zipWith({{"logs/", ""}, {"logs/old/1.log", "x"}, report});
    QTest::newRow("dots in names") << zipWithReportAnd("a/..b/c../...");
    QTest::newRow("colon in a name") << zipWithReportAnd("log 12:30");
    QTest::newRow("name in another encoding") << zipWithReportAnd("\xcf\xeb\xb8\xed\xea\xe0");
    QTest::newRow("longest name") << zipWithReportAnd(QByteArray(255, 'n'));
    QTest::newRow("1,000 entries") << zipWithEntries(1000);
    QTest::newRow("256 MiB of content") << zipThatGrowsTo(256);
}

void tst_CrashCollectorArchives::archive_isAccepted()
{
    QFETCH(const QByteArray, archive);

    const Verdict verdict = sendReport(m_collector, archive);
    QCOMPARE(verdict.fault, QString());
    QCOMPARE(verdict.word, u"NoError"_qs);
    QFile stored(m_collector.storedPath(verdict.identifier + u".zip"));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QCOMPARE(stored.readAll(), archive);
}

void tst_CrashCollectorArchives::archiveOfTheLibrary_isAccepted()
{
    const QDir folder(m_sandbox.filePath(u"packed"_qs));
    QVERIFY(folder.mkpath(u"logs"_qs));
    for (const QString &name : {u"report.xml"_qs, u"crash.dmp"_qs, u"logs/F\u00e4rbung.log"_qs}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(10'000, 'x'));
    }
    const QString path = m_sandbox.filePath(u"packed.zip"_qs);
    QVERIFY(ZYX_zglv6::CompressDir(folder, QFileInfo(path)));
    QFile archive(path);
    QVERIFY(archive.open(QIODevice::ReadOnly));
    const QByteArray bytes = archive.readAll();
    const Verdict verdict = sendReport(m_collector, bytes);
    QCOMPARE(verdict.word, u"NoError"_qs);
    QFile stored(m_collector.storedPath(verdict.identifier + u".zip"));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    QCOMPARE(stored.readAll(), bytes);
}

void tst_CrashCollectorArchives::data_isRefused_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("word");

    const QByteArray good = reportArchive();
    const QByteArray base64 = good.toBase64();
    QTest::newRow("no Base64") << QByteArray("@@@@") << u"NotBase64"_qs;
    QTest::newRow("line break in it") << QByteArray(base64).insert(76, '\n') << u"NotBase64"_qs;
    QTest::newRow("blank behind it") << QByteArray(base64 + ' ') << u"NotBase64"_qs;
    QTest::newRow("other alphabet") << QByteArray("-_-_") << u"NotBase64"_qs;
    QTest::newRow("no padding") << QByteArray("UEs") << u"NotBase64"_qs;
    QTest::newRow("letter outside of Latin-1") << QByteArray("UE\xe3\x83\x95") << u"NotBase64"_qs;

    const auto addRow = [](const char *name, const QByteArray &archive, const QString &word) {
        QTest::newRow(name) << archive.toBase64() << word;
    };
    addRow("nothing", "", u"NotAnArchive"_qs);
    addRow("text", "no archive", u"NotAnArchive"_qs);
    addRow("end cut off", good.chopped(200), u"NotAnArchive"_qs);
    addRow("start alone", "PK\x03\x04", u"NotAnArchive"_qs);

    addRow("another byte in an entry", replaced(good, "FATAL end", "FATAL ebd"), u"DamagedArchive"_qs);
    addRow("another byte behind deflation", replaced(good, "MDMP\x91", "MDMP\x90"), u"DamagedArchive"_qs);
    addRow("no entry at its place", replaced(good, "PK\x03\x04", "PK\x03\x05"), u"DamagedArchive"_qs);
    addRow("no directory entry at its place", replaced(good, "PK\x01\x02", "PK\x01\x03"), u"DamagedArchive"_qs);
    addRow("unknown method",
           zipWith({{"report.xml", QByteArray(1000, 'x'), true}})
               .replace(QByteArray("\x08\0\0\0", 4), QByteArray("\x63\0\0\0", 4)),
           u"DamagedArchive"_qs);

    addRow("no entries", zipWith({}), u"NotAnArchive"_qs); // as minizip has it
    addRow("no report", zipWith({{"crash.dmp", "MDMP"}}), u"NoReport"_qs);
    addRow("report in a folder", zipWith({{"a/report.xml", "x"}}), u"NoReport"_qs);
    addRow("report in other letters", zipWith({{"Report.xml", "x"}}), u"NoReport"_qs);

    addRow("folder above", zipWithReportAnd("../x"), u"UnsafeName"_qs);
    addRow("folder above, later", zipWithReportAnd("a/b/../../../x"), u"UnsafeName"_qs);
    addRow("folder above, at the end", zipWithReportAnd("a/.."), u"UnsafeName"_qs);
    addRow("absolute name", zipWithReportAnd("/tmp/x"), u"UnsafeName"_qs);
    addRow("drive", zipWithReportAnd("C:x"), u"UnsafeName"_qs);
    addRow("backslash", zipWithReportAnd("..\\x"), u"UnsafeName"_qs);
    addRow("line break in a name", zipWithReportAnd("a\nb"), u"UnsafeName"_qs);
    addRow("zero in a name", replacedTwice(zipWithReportAnd("a#b"), "a#b", QByteArray("a\0b", 3)), u"UnsafeName"_qs);
    addRow("no name", zipWithReportAnd(""), u"UnsafeName"_qs);
    addRow("name of 256 bytes", zipWithReportAnd(QByteArray(256, 'n')), u"UnsafeName"_qs);

    addRow("1,001 entries", zipWithEntries(1001), u"TooManyEntries"_qs);
    addRow("272 MiB of content", zipThatGrowsTo(272), u"TooMuchContent"_qs);
}

void tst_CrashCollectorArchives::data_isRefused()
{
    QFETCH(const QByteArray, data);
    QFETCH(const QString, word);

    const QStringList before = m_collector.storedFiles();
    const Verdict verdict = postDocument(m_collector, reportRequest(QString::fromUtf8(data)));
    QCOMPARE(verdict.status, 200);
    QCOMPARE(verdict.fault, QString());
    QCOMPARE(verdict.word, word);
    QCOMPARE(verdict.identifier, QString());
    QCOMPARE(m_collector.storedFiles(), before);
}

void tst_CrashCollectorArchives::sizeLimit_isExact()
{
    constexpr qsizetype limit = 1'048'576;
    QCOMPARE(sendReport(m_collector, reportArchiveOfSize(limit)).word, u"NoError"_qs);
    const Verdict verdict = sendReport(m_collector, reportArchiveOfSize(limit + 1));
    QCOMPARE(verdict.status, 413);
    QCOMPARE(verdict.fault, u"Client: Archives of more than 1048576 bytes are not accepted"_qs);
}

/*! Each byte of a small archive in turn. */
void tst_CrashCollectorArchives::changedArchives_neverHarm()
{
    const QByteArray archive = zipWith({{"report.xml", "<a/>", true}});
    for (qsizetype i = 0; i < archive.size(); ++i) {
        QByteArray changed = archive;
        changed[i] = char(~changed[i]);
        const Verdict verdict = sendReport(m_collector, changed);
        QCOMPARE(verdict.status, 200);
        QVERIFY(!verdict.word.isEmpty());
    }
    QCOMPARE(sendReport(m_collector, archive).word, u"NoError"_qs);
}

QTEST_GUILESS_MAIN(tst_CrashCollectorArchives)

#include "tst_CrashCollectorArchives.moc"
