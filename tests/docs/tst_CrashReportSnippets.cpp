// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "support/Sandbox.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/crashReport/zipCrashReport.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

#include <optional>

using namespace ZYX_zglv6;

namespace {

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

/*! Runs the examples of the page on crash reports and looks at what they promise there. */
class tst_CrashReportSnippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void gatherCrashReport_withoutADump_givesNone();
    void gatherCrashReport_withADump_packsIt();
    void sendReport_tellsFalseAtOnce();
    void isTextDumpWaiting_seesItsOwnEnding();
    void copyThroughArchive_bringsTheFilesOver();
    void copyThroughArchive_withoutFiles_fails();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_CrashReportSnippets::initTestCase()
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
}

void tst_CrashReportSnippets::gatherCrashReport_withoutADump_givesNone()
{
    QVERIFY(!Snippets::gatherCrashReport(QString(), QString()));
}

void tst_CrashReportSnippets::gatherCrashReport_withADump_packsIt()
{
    QVERIFY(write(CStorageLocation::crashTempFilesPath() + u"host.dmp", "dump"));
    const auto report = Snippets::gatherCrashReport(u"ann@darkroom.example"_qs, u"It fell over"_qs);
    QVERIFY(report);
    QCOMPARE(QDir(CStorageLocation::crashTempFilesPath()).entryList(QDir::Files), QStringList());
    const QString newest = Snippets::newestReport(*report);
    QVERIFY2(newest.startsWith(report->getZipFilePath() + u"/CrashReport_"), qPrintable(newest));
    QVERIFY(QFileInfo(newest).size() > 0);
}

void tst_CrashReportSnippets::sendReport_tellsFalseAtOnce()
{
    QVERIFY(write(CStorageLocation::crashTempFilesPath() + u"host.dmp", "dump"));
    const auto report = Snippets::gatherCrashReport(QString(), QString());
    QVERIFY(report);
    std::optional<bool> verdict;
    Snippets::sendReport(*report, [&verdict](bool isSent) { verdict = isSent; });
    QVERIFY(verdict);
    QVERIFY(!*verdict);
}

void tst_CrashReportSnippets::isTextDumpWaiting_seesItsOwnEnding()
{
    QVERIFY(!Snippets::isTextDumpWaiting());
    const QString path = CStorageLocation::crashTempFilesPath() + u"host.crash";
    QVERIFY(write(path, "dump"));
    QVERIFY(Snippets::isTextDumpWaiting());
    QVERIFY(QFile::remove(path));
}

void tst_CrashReportSnippets::copyThroughArchive_bringsTheFilesOver()
{
    const QDir from(m_sandbox.filePath(u"from"_qs));
    const QDir to(m_sandbox.filePath(u"to"_qs));
    QVERIFY(from.mkpath(u"."_qs) && to.mkpath(u"."_qs));
    QVERIFY(write(from.filePath(u"roll 1.txt"_qs), "24 frames"));
    QVERIFY(Snippets::copyThroughArchive(from, to, QFileInfo(m_sandbox.filePath(u"rolls.zip"_qs))));
    QFile copy(to.filePath(u"roll 1.txt"_qs));
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), QByteArray("24 frames"));
}

void tst_CrashReportSnippets::copyThroughArchive_withoutFiles_fails()
{
    const QDir empty(m_sandbox.filePath(u"empty"_qs));
    QVERIFY(empty.mkpath(u"."_qs));
    QVERIFY(!Snippets::copyThroughArchive(empty, empty, QFileInfo(m_sandbox.filePath(u"none.zip"_qs))));
}

QTEST_MAIN(tst_CrashReportSnippets)

#include "tst_CrashReportSnippets.moc"
