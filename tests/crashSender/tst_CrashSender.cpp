// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Archives.h"
#include "Programs.h"

#include "support/Sandbox.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QSettings>
#include <QtGui/QImage>
#include <QtTest/QTest>

#include <memory>

using namespace CrashTest;

namespace {

QByteArray userIn(const Run &lightbox)
{
    static const QRegularExpression form(u" user ([0-9a-f-]{36}), "_qs);
    return form.match(lightbox.step(8)).captured(1).toUtf8();
}

bool writeOldFile(const QString &path, const QDateTime &time)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("no archive") > 0 && file.flush()
        && file.setFileTime(time, QFileDevice::FileModificationTime);
}

qsizetype colorCount(const QImage &picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colors.insert(picture.pixel(x, y));
        }
    }
    return colors.size();
}

} // namespace

/*! The program crashSender and what it packs. Delivery: tst_CrashDelivery; the window: tst_CrashSenderWindow. */
class tst_CrashSender : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void start_printsOneLineForEachStep();
    void afterACrash_packsDumpLogsAndReport();
    void archive_isReadByPython();
    void options_goIntoTheReport_data();
    void options_goIntoTheReport();
    void secondStart_showsTheSameReport();
    void manyReports_leaveTheTenNewest();
    void newReport_isFoundBesideOnesOfLaterNames();
    void reportThatCannotBePacked_isTold_data();
    void reportThatCannotBePacked_isTold();
    void filesInFolders_areListed();
    void withoutADump_showsTheNewestEarlierReport();
    void withoutAnything_saysSo();
    void copy_hasTheSameBytes();
    void copyThatCannotBeWritten_isToldAndFails();
    void snapshot_showsTheWindow();
    void service_isChosen_data();
    void service_isChosen();
    void wrongService_endsWithoutStarting_data();
    void wrongService_endsWithoutStarting();
    void surplusArgument_endsWithoutStarting();

private:
    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<WorkFolder> m_folder;
};

void tst_CrashSender::init()
{
    m_folder = std::make_unique<WorkFolder>(m_sandbox.filePath(u"work %1"_qs.arg(++m_count)));
}

void tst_CrashSender::start_printsOneLineForEachStep()
{
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    const Run sender = m_folder->crashSender({u"--leave"_qs});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QVERIFY2(sender.step(1).contains(u" crashSender"), qPrintable(sender.step(1)));
    QVERIFY(sender.step(2).endsWith(QDir::toNativeSeparators(m_folder->path() + u"/Preferences.ini")));
    QVERIFY(sender.step(3).contains(u"data in "_qs + m_folder->path() + u"/data/"));
    QVERIFY(sender.step(4).endsWith(u"in the system store"));
    QVERIFY(sender.step(5).endsWith(u"crashSender.txt, logs of earlier runs: 0"));
    const QStringList archives = m_folder->archives();
    QCOMPARE(archives.size(), 1);
    static const QRegularExpression name(u"^CrashReport_\\d{14}\\.zip$"_qs);
    QVERIFY(name.match(QFileInfo(archives.front()).fileName()).hasMatch());
    QVERIFY2(sender.step(6).endsWith(u" packed %1, %2 bytes: any.dmp, crashSender.txt, report.xml"_qs.arg(
                 QDir::toNativeSeparators(archives.front()), QString::number(QFileInfo(archives.front()).size()))),
             qPrintable(sender.step(6)));
    QCOMPARE(sender.step(8), u"0 lines for step 8"_qs);
    QCOMPARE(sender.step(9), u"0 lines for step 9"_qs); // shown, not sent
    QVERIFY(sender.step(10).endsWith(u" with 0"));
}

void tst_CrashSender::afterACrash_packsDumpLogsAndReport()
{
    const Run host = m_folder->lightbox({u"--crash"_qs, u"signal"_qs});
    const QString dumpName = QFileInfo(m_folder->dumps().value(0)).fileName();
    const QByteArray dump = contentOf(m_folder->dumps().value(0));
    const QByteArray log = contentOf(m_folder->logs() + u"lightbox.txt");
    QVERIFY(!dump.isEmpty() && !log.isEmpty() && userIn(host).size() == 36);

    const Run sender = m_folder->crashSender({u"--leave"_qs});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QCOMPARE(m_folder->archives().size(), 1);
    const Entries entries = entriesOf(m_folder->archives().front());
    QCOMPARE(entries.keys(), (QStringList{u"crashSender.txt"_qs, dumpName, u"lightbox.txt"_qs, u"report.xml"_qs}));
    QCOMPARE(entries.value(dumpName), dump);
    QCOMPARE(entries.value(u"lightbox.txt"_qs), log);
    QCOMPARE(entries.value(u"report.xml"_qs), expectedReport("Zyx Grainlab 6", "Standalone", userIn(host), "", ""));
    QCOMPARE(QDir(m_folder->crashTempFiles()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList());
    QVERIFY(m_folder->lightbox({}).step(6).endsWith(u" no dump of an earlier run"));
}

void tst_CrashSender::archive_isReadByPython()
{
    m_folder->lightbox({u"--crash"_qs, u"exception"_qs});
    QVERIFY(m_folder->crashSender({u"--leave"_qs}).isClean());
    bool isAvailable = false;
    const Entries entries = entriesByPython(m_folder->archives().value(0), isAvailable);
    if (!isAvailable) {
        QSKIP("Needs python3.");
    }
    QCOMPARE(entries.size(), 4);
    QCOMPARE(entries, entriesOf(m_folder->archives().front()));
}

void tst_CrashSender::options_goIntoTheReport_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<QByteArray>("email");
    QTest::addColumn<QByteArray>("comment");

    QTest::newRow("none") << QStringList() << QByteArray("Zyx Grainlab 6") << QByteArray() << QByteArray();
    QTest::newRow("all") << QStringList{u"--product"_qs,   u"Lightbox"_qs,  u"--email"_qs,
                                        u"a@b.example"_qs, u"--comment"_qs, u"It was \u043f\u0443\u043b\u044c\u0441"_qs}
                         << QByteArray("Lightbox") << QByteArray("a@b.example")
                         << QByteArray("It was \xd0\xbf\xd1\x83\xd0\xbb\xd1\x8c\xd1\x81");
    QTest::newRow("marks of XML, raw") << QStringList{u"--email"_qs, u"a&b"_qs, u"--comment"_qs, u"x < y"_qs}
                                       << QByteArray("Zyx Grainlab 6") << QByteArray("a&b") << QByteArray("x < y");
}

void tst_CrashSender::options_goIntoTheReport()
{
    QFETCH(const QStringList, options);
    QFETCH(const QByteArray, product);
    QFETCH(const QByteArray, email);
    QFETCH(const QByteArray, comment);

    const QByteArray user = userIn(m_folder->lightbox({}));
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    const Run sender = m_folder->crashSender(QStringList{u"--leave"_qs} + options);
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QCOMPARE(entriesOf(m_folder->archives().value(0)).value(u"report.xml"_qs),
             expectedReport(product, "Standalone", user, email, comment));
}

void tst_CrashSender::secondStart_showsTheSameReport()
{
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    QVERIFY(m_folder->crashSender({u"--leave"_qs}).isClean());
    const QByteArray archive = contentOf(m_folder->archives().value(0));
    const Run second = m_folder->crashSender({u"--leave"_qs, u"--email"_qs, u"late@b.example"_qs});
    QVERIFY2(second.isClean(), qPrintable(second.errors));
    QVERIFY2(
        second.step(6).contains(u" of an earlier run: "_qs + QDir::toNativeSeparators(m_folder->archives().front())),
        qPrintable(second.step(6)));
    QVERIFY2(second.errors.contains(u"--email and --comment are not used"), qPrintable(second.errors));
    QCOMPARE(m_folder->archives().size(), 1);
    QCOMPARE(contentOf(m_folder->archives().front()), archive);
}

void tst_CrashSender::manyReports_leaveTheTenNewest()
{
    QVERIFY(QDir().mkpath(m_folder->crashFiles()));
    for (int i = 10; i < 22; ++i) {
        QVERIFY(writeFile(m_folder->crashFiles() + u"CrashReport_200101010000%1.zip"_qs.arg(i), "old"));
    }
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    QVERIFY(m_folder->crashSender({u"--leave"_qs}).isClean());
    const QStringList archives = m_folder->archives();
    QCOMPARE(archives.size(), 10); // of thirteen
    QVERIFY(archives.front().endsWith(u"CrashReport_20010101000013.zip"));
    QVERIFY(archives.at(8).endsWith(u"CrashReport_20010101000021.zip"));
    QVERIFY(entriesOf(archives.last()).contains(u"any.dmp"_qs));
}

void tst_CrashSender::newReport_isFoundBesideOnesOfLaterNames()
{
    const QString later = m_folder->crashFiles() + u"CrashReport_29990101000000.zip"; // the clock was wrong then
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    QVERIFY(writeFile(later, "no archive"));
    const QString copy = m_sandbox.filePath(u"beside later ones.zip"_qs);
    const Run sender = m_folder->crashSender({u"--leave"_qs, u"--copy"_qs, copy});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QCOMPARE(m_folder->archives().size(), 2);
    QVERIFY2(sender.step(6).contains(u" packed "_qs + QDir::toNativeSeparators(m_folder->archives().front())),
             qPrintable(sender.step(6)));
    QVERIFY(entriesOf(copy).contains(u"any.dmp"_qs));
}

void tst_CrashSender::reportThatCannotBePacked_isTold_data()
{
    QTest::addColumn<QString>("option");

    QTest::newRow("in the window") << u"--leave"_qs;
    QTest::newRow("at once") << u"--send"_qs;
}

void tst_CrashSender::reportThatCannotBePacked_isTold()
{
    QFETCH(const QString, option);

    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    QVERIFY(writeFile(m_folder->crashFiles() + u"CrashReport_20010101000010.zip", "an earlier one"));
    const QDateTime now = QDateTime::currentDateTime();
    for (int second = 0; second <= programWatchdogMs / 1000; ++second) { // a folder where the archive would be
        QVERIFY(QDir().mkpath(m_folder->crashFiles() + u"CrashReport_"
                              + now.addSecs(second).toString(u"yyyyMMddhhmmss"_qs) + u".zip"));
    }
    const QString copy = m_sandbox.filePath(u"not packed.zip"_qs);
    const Run sender = m_folder->crashSender(
        {option, u"--copy"_qs, copy, u"--service"_qs, u"127.0.0.1:1"_qs, u"--email"_qs, u"x"_qs});
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, 1);
    QCOMPARE(sender.step(6), u"6 report      a dump waited, but the report could not be packed"_qs);
    QCOMPARE(sender.step(8), u"8 copy        nothing was copied"_qs);
    QCOMPARE(sender.step(9), u"0 lines for step 9"_qs);
    QVERIFY2(sender.errors.contains(u"--email and --comment are not used"), qPrintable(sender.errors));
    QVERIFY(!QFile::exists(copy));
}

void tst_CrashSender::filesInFolders_areListed()
{
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    QVERIFY(m_folder->writeDump(u"threads/second.txt"_qs, "a thread"));
    const Run sender = m_folder->crashSender({u"--leave"_qs});
    QVERIFY2(sender.step(6).endsWith(u" bytes: any.dmp, crashSender.txt, report.xml, threads/second.txt"),
             qPrintable(sender.step(6)));
}

void tst_CrashSender::withoutADump_showsTheNewestEarlierReport()
{
    QVERIFY(QDir().mkpath(m_folder->crashFiles()));
    const QDateTime now = QDateTime::currentDateTime();
    const QMap<QString, qint64> ages{{u"CrashReport_20010101000010.zip"_qs, 20}, // in seconds
                                     {u"CrashReport_20020101000010.zip"_qs, 10},
                                     {u"CrashReport_20021027023000.zip"_qs, 30}, // by a clock that was set back later
                                     {u"other_2003.zip"_qs, 0}};
    for (auto age = ages.begin(); age != ages.end(); ++age) {
        QVERIFY(writeOldFile(m_folder->crashFiles() + age.key(), now.addSecs(-age.value())));
    }
    const Run sender = m_folder->crashSender({u"--leave"_qs});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QVERIFY2(sender.step(6).endsWith(u"CrashReport_20020101000010.zip, 10 bytes: contents that can't be shown"),
             qPrintable(sender.step(6)));
    QCOMPARE(m_folder->archives().size(), 4);
}

void tst_CrashSender::withoutAnything_saysSo()
{
    const QString copy = m_sandbox.filePath(u"no copy.zip"_qs);
    for (const QString &option : {u"--leave"_qs, u"--send"_qs}) {
        const Run sender = m_folder->crashSender({option, u"--copy"_qs, copy, u"--service"_qs, u"127.0.0.1:1"_qs});
        QVERIFY2(sender.isClean(), qPrintable(sender.errors));
        QVERIFY2(sender.step(6).endsWith(u" nothing waits: there is no dump and no report"),
                 qPrintable(sender.step(6)));
        QCOMPARE(sender.step(8), u"8 copy        nothing was copied"_qs);
        QCOMPARE(sender.step(9), u"0 lines for step 9"_qs);
    }
    QVERIFY(!QFile::exists(copy));
    QCOMPARE(m_folder->archives(), QStringList());
}

void tst_CrashSender::copy_hasTheSameBytes()
{
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, QByteArray(100'000, '\x7f')));
    const QString copy = m_sandbox.filePath(u"copy.zip"_qs);
    QVERIFY(writeFile(copy, QByteArray(1'000'000, 'x'))); // longer, and replaced
    const Run sender = m_folder->crashSender({u"--leave"_qs, u"--copy"_qs, copy});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QVERIFY2(sender.step(8).endsWith(QDir::toNativeSeparators(copy) + u" saved"), qPrintable(sender.step(8)));
    const QByteArray archive = contentOf(m_folder->archives().value(0));
    QVERIFY(archive.size() > 100'000);
    QVERIFY(contentOf(copy) == archive);
}

void tst_CrashSender::copyThatCannotBeWritten_isToldAndFails()
{
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    const QString copy = m_sandbox.filePath(u"no such folder/copy.zip"_qs);
    const Run sender = m_folder->crashSender({u"--leave"_qs, u"--copy"_qs, copy});
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, 1);
    QVERIFY2(sender.step(8).endsWith(u" could not be written"), qPrintable(sender.step(8)));
    QCOMPARE(m_folder->archives().size(), 1);
}

void tst_CrashSender::snapshot_showsTheWindow()
{
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, "a dump"));
    const QString path = m_sandbox.filePath(u"window.png"_qs);
    const Run sender = m_folder->crashSender({u"--leave"_qs, u"--snapshot"_qs, path});
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    const QImage picture(path);
    QVERIFY(picture.width() >= 800 && picture.height() >= 600);
    QVERIFY(colorCount(picture) > 50); // with smoothed texts
    QCOMPARE(picture.pixelColor(3, 3), QColor(0x23, 0x23, 0x23));
    QCOMPARE(picture.pixelColor(3, picture.height() - 4), QColor(0x1b, 0x1b, 0x1b)); // below the buttons
}

void tst_CrashSender::service_isChosen_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("service");

    const QString none;
    QTest::newRow("the product's") << none << none << QStringLiteral(ZYX_CRASH_SERVICE_HOST);
    QTest::newRow("empty preference") << u""_qs << none << QStringLiteral(ZYX_CRASH_SERVICE_HOST);
    QTest::newRow("preference") << u"reports.example"_qs << none << u"reports.example"_qs;
    QTest::newRow("preference with a port")
        << u"127.0.0.1:99"_qs << none << u"unusable: the preferences name \"127.0.0.1:99\", which is no host"_qs;
    QTest::newRow("preference with a space")
        << u"a b"_qs << none << u"unusable: the preferences name \"a b\", which is no host"_qs;
    QTest::newRow("option first") << u"reports.example"_qs << u"127.0.0.1:8123"_qs << u"127.0.0.1:8123"_qs;
    QTest::newRow("option without a port") << none << u"localhost"_qs << u"localhost"_qs;
    QTest::newRow("IPv6") << none << u"[::1]:81"_qs << u"[::1]:81"_qs;
}

void tst_CrashSender::service_isChosen()
{
    QFETCH(const QString, preference);
    QFETCH(const QString, option);
    QFETCH(const QString, service);

    const QString preferencesFile = m_sandbox.filePath(u"own %1.ini"_qs.arg(m_count));
    {
        QSettings preferences(preferencesFile, QSettings::IniFormat);
        preferences.setValue(ZYX_zglv6::dataDirectoryKey, QString(m_folder->path() + u"/data"));
        if (!preference.isNull()) {
            preferences.setValue(ZYX_zglv6::crashServiceHostKey, preference);
        }
    }
    QStringList arguments{u"--leave"_qs, u"--preferencesFile"_qs, preferencesFile};
    if (!option.isNull()) {
        arguments += {u"--service"_qs, option};
    }
    const Run sender = m_folder->crashSender(arguments);
    QVERIFY2(sender.isClean(), qPrintable(sender.errors));
    QCOMPARE(sender.step(7), u"7 service     "_qs + service);
}

void tst_CrashSender::wrongService_endsWithoutStarting_data()
{
    QTest::addColumn<QString>("option");

    QTest::newRow("empty") << u""_qs;
    QTest::newRow("a path") << u"127.0.0.1:80/reports"_qs;
    QTest::newRow("a fragment") << u"127.0.0.1:80#reports"_qs;
    QTest::newRow("a query") << u"127.0.0.1:80?reports"_qs;
    QTest::newRow("a user") << u"user@127.0.0.1:80"_qs;
    QTest::newRow("an empty user") << u"@127.0.0.1:80"_qs;
    QTest::newRow("no number") << u"127.0.0.1:http"_qs;
    QTest::newRow("port too large") << u"127.0.0.1:65536"_qs;
    QTest::newRow("port 0") << u"127.0.0.1:0"_qs;
}

void tst_CrashSender::wrongService_endsWithoutStarting()
{
    QFETCH(const QString, option);

    const Run sender = m_folder->crashSender({u"--leave"_qs, u"--service"_qs, option});
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, 1);
    QVERIFY2(sender.errors.contains(u"a service is a host, or a host and a port"), qPrintable(sender.errors));
    QVERIFY(!QFile::exists(m_folder->path() + u"/data"));
}

void tst_CrashSender::surplusArgument_endsWithoutStarting()
{
    const Run sender = m_folder->crashSender({u"--leave"_qs, u"any.zip"_qs});
    QCOMPARE(sender.exitStatus, QProcess::NormalExit);
    QCOMPARE(sender.exitCode, 1);
    QVERIFY2(sender.errors.contains(u"one argument too many: any.zip"), qPrintable(sender.errors));
    QVERIFY(!QFile::exists(m_folder->path() + u"/data"));
}

QTEST_MAIN(tst_CrashSender)

#include "tst_CrashSender.moc"
