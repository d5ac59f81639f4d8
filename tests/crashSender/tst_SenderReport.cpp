// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Archives.h"
#include "CrashReport.h"
#include "Programs.h"

#include "support/Sandbox.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QDir>
#include <QtTest/QTest>

#include <memory>

using namespace CrashTest;

namespace {

std::unique_ptr<CCrashReport> makeReport()
{
    return std::make_unique<CCrashReport>(u"Zyx Grainlab 6"_qs, QString(), QString());
}

} // namespace

/*! The report of the crash sender, and whether its texts are in the archive. */
class tst_SenderReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void setTexts_fileInTheWay_isFalse_data();
    void setTexts_fileInTheWay_isFalse();
    void setTexts_cannotUnpack_keepsTheArchive();
    void setTexts_areInTheArchive_data();
    void setTexts_areInTheArchive();
    void setTexts_fileThatWaits_goesInToo();

private:
    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<WorkFolder> m_folder;
};

void tst_SenderReport::init()
{
    m_folder = std::make_unique<WorkFolder>(m_sandbox.filePath(u"work"_qs));
    ZYX_zglv6::CStorageLocation::setDataDirectory(m_folder->path() + u"/data");
    QDir(m_folder->crashFiles()).removeRecursively();
    QVERIFY(QDir().mkpath(m_folder->logs()));
    QVERIFY(writeFile(m_folder->logs() + u"lightbox.txt", "all was well\n"));
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
}

void tst_SenderReport::setTexts_fileInTheWay_isFalse_data()
{
    QTest::addColumn<QString>("name"); // of a folder where a file would be unpacked

    QTest::newRow("description") << u"report.xml"_qs;
    QTest::newRow("dump") << u"any.dmp"_qs;
    QTest::newRow("log") << u"lightbox.txt"_qs;
}

void tst_SenderReport::setTexts_fileInTheWay_isFalse()
{
    QFETCH(const QString, name);
    const std::unique_ptr<CCrashReport> report = makeReport();
    QVERIFY(QDir().mkpath(m_folder->crashTempFiles() + name));
    QVERIFY(!report->setTexts(u"a@b.example"_qs, QString()));
    QVERIFY(QFile::exists(report->archive()));
    QVERIFY(!entriesOf(report->archive()).contains(name));
    QCOMPARE(report->email(), QString());

    QVERIFY(QDir().rmdir(m_folder->crashTempFiles() + name));
    const bool comesBack = name == u"report.xml"; // it is written anew
    QCOMPARE(report->setTexts(QString(), QString()), comesBack);
    QCOMPARE(report->setTexts(u"a@b.example"_qs, QString()), comesBack);
    QVERIFY(entriesOf(report->archive()).value(u"report.xml"_qs).contains("<Email>a@b.example</Email>"));
}

void tst_SenderReport::setTexts_cannotUnpack_keepsTheArchive()
{
    QVERIFY(m_folder->writeDump(u"threads/one/second.txt"_qs, "a thread"));
    const std::unique_ptr<CCrashReport> report = makeReport();
    const QByteArray bytes = contentOf(report->archive());
    QVERIFY(QDir(m_folder->crashTempFiles()).removeRecursively()); // then one folder is too deep for the library
    QVERIFY(QDir().mkpath(m_folder->crashTempFiles()));
    QVERIFY(!report->setTexts(u"a@b.example"_qs, QString()));
    QVERIFY(contentOf(report->archive()) == bytes);
    QCOMPARE(report->email(), QString());
    QVERIFY(report->setTexts(QString(), QString())); // as it was packed
    QVERIFY(contentOf(report->archive()) == bytes);
}

void tst_SenderReport::setTexts_areInTheArchive_data()
{
    QTest::addColumn<QString>("email");
    QTest::addColumn<QString>("comment");

    QTest::newRow("plain") << u"a@b.example"_qs << u"It stopped."_qs;
    QTest::newRow("marks of XML, raw") << u"a&b"_qs << u"x < y</Comments>"_qs;
    QTest::newRow("lines") << u"a"_qs << u"one\r\ntwo\n"_qs;
    QTest::newRow("no ASCII") << u"\u00fc@b.example"_qs << u"\u65e5\U0001f4f7"_qs;
    QTest::newRow("half of a character") << QString(QChar(0xd83d)) << QString(QChar(0xdcf7));
    QTest::newRow("empty comment") << u"a"_qs << QString();
}

void tst_SenderReport::setTexts_areInTheArchive()
{
    QFETCH(const QString, email);
    QFETCH(const QString, comment);
    QVERIFY(m_folder->writeDump(u"threads/one/second.txt"_qs, "a thread"));
    const std::unique_ptr<CCrashReport> report = makeReport();
    QVERIFY(report->setTexts(email, comment));
    QCOMPARE(report->email(), email);
    QCOMPARE(report->comment(), comment);
    const QByteArray bytes = contentOf(report->archive());
    QVERIFY(report->setTexts(QString(), QString()));
    QVERIFY(contentOf(report->archive()) != bytes);
    QVERIFY(report->setTexts(email, comment));
    QVERIFY(contentOf(report->archive()).contains("a thread"));
}

void tst_SenderReport::setTexts_fileThatWaits_goesInToo()
{
    const std::unique_ptr<CCrashReport> report = makeReport();
    QVERIFY(m_folder->writeDump(u"second.dmp"_qs, "another dump"));
    QVERIFY(report->setTexts(u"a@b.example"_qs, QString()));
    QVERIFY(entriesOf(report->archive()).contains(u"second.dmp"_qs));
}

QTEST_GUILESS_MAIN(tst_SenderReport)

#include "tst_SenderReport.moc"
