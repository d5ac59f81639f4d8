// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveBytes.h"
#include "crashReport/ArchiveFaults_unix.h"
#include "crashReport/ReportFolders.h"
#include "support/AssertionReports.h"
#include "support/Sandbox.h"

#include "utilsDll/crashReport/zipCrashReport.h"

#include <QtTest/QTest>

#include <cerrno>

using namespace ZYX_zglv6;
using TestSupport::AssertionReports;
using TestSupport::Call;
using TestSupport::entriesOf;
using TestSupport::Fault;

namespace {

const CBaseCrashParser plainParser;

} // namespace

/*! Files that the system does not let a report remove when it has packed them. */
class tst_ReportFaults_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void constructor_packedFileCannotBeRemoved_isReported();
    void repack_packedFileCannotBeRemoved_isReported();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ReportFaults_unix::init()
{
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    QVERIFY(ReportFolders::empty());
    QVERIFY(ReportFolders::write(ReportFolders::dumps() + u"/a.dmp", "dump"));
}

void tst_ReportFaults_unix::constructor_packedFileCannotBeRemoved_isReported()
{
    const AssertionReports assertions;
    const Fault fault(ReportFolders::dumps(), Call::Remove, 1, EPERM);
    const CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr); // throws nothing
    QVERIFY(fault.hasStruck());
    QCOMPARE(assertions.texts().size(), 2);
    QVERIFY2(assertions.texts().at(0).startsWith(u"ASSERT_X_RETURN_VALUE in ")
                 && assertions.texts().at(0).contains(ReportFolders::dumps() + u"/a.dmp"),
             qPrintable(assertions.texts().at(0)));
    QVERIFY2(assertions.texts().at(1).startsWith(u"ASSERT in "), qPrintable(assertions.texts().at(1)));
    QCOMPARE(entriesOf(ReportFolders::zipFiles().value(0)).keys(), (QStringList{u"a.dmp"_qs, u"report.xml"_qs}));
    QCOMPARE(ReportFolders::treeOf(ReportFolders::dumps()), (QStringList{u"a.dmp"_qs, u"report.xml"_qs}));
}

void tst_ReportFaults_unix::repack_packedFileCannotBeRemoved_isReported()
{
    CZipCrashReport report(u"P"_qs, u"e"_qs, u"c"_qs, false, plainParser, nullptr);
    const QString file = ReportFolders::zipFiles().value(0);
    const AssertionReports assertions;
    const Fault fault(ReportFolders::dumps(), Call::Remove, 2, EPERM); // Qt removes the zip file by another call
    report.repack(u"new"_qs, u"text"_qs);
    QVERIFY(fault.hasStruck());
    QCOMPARE(assertions.texts().size(), 1); // nobody looks at the result of packing
    QVERIFY2(assertions.texts().constFirst().startsWith(u"ASSERT_X_RETURN_VALUE in ")
                 && assertions.texts().constFirst().contains(ReportFolders::dumps() + u"/report.xml"),
             qPrintable(assertions.texts().constFirst()));
    QCOMPARE(entriesOf(file).keys(), (QStringList{u"a.dmp"_qs, u"report.xml"_qs}));
    QVERIFY(entriesOf(file).value(u"report.xml"_qs).contains("<Comments>text</Comments>"));
    QCOMPARE(ReportFolders::treeOf(ReportFolders::dumps()), QStringList{u"report.xml"_qs}); // it went no further
}

QTEST_GUILESS_MAIN(tst_ReportFaults_unix)
#include "tst_ReportFaults_unix.moc"
