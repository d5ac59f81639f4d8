// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CollectorProcess.h"
#include "HttpExchange.h"
#include "ReportSender.h"
#include "TestArchives.h"

#include "support/Sandbox.h"

#include "utilsDll/soap/QtSoapHttpTransport.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>
#include <vector>

using namespace CrashCollectorTest;
using namespace ZYX_zglv6;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/*! Sends a report with the library's transport. */
class Sender
{
public:
    Sender(const CollectorProcess &collector, const QByteArray &archive)
    {
        m_transport.setHost(u"127.0.0.1"_qs, collector.port());
        m_transport.setAction(QString::fromLatin1(reportAction()));
        QtSoapMessage message;
        message.setContent(reportRequest(QString::fromLatin1(archive.toBase64())));
        m_transport.submitRequest(message, reportPath());
    }

    bool wait()
    {
        return !m_ready.isEmpty() || m_ready.wait(watchdogMs);
    }

    bool isAnswered() const
    {
        return !m_ready.isEmpty();
    }

    QString word() const
    {
        return m_transport.getResponse().method()[u"ReportCrashResult"_qs].toString();
    }

    QString identifier() const
    {
        return m_transport.getResponse().method()[u"identifier"_qs].toString();
    }

    const QtSoapMessage &response() const
    {
        return m_transport.getResponse();
    }

private:
    QtSoapHttpTransport m_transport;
    QSignalSpy m_ready = QSignalSpy(&m_transport, SIGNAL(responseReady()));
};

/*! Eight senders at once, each with an archive of its own size. */
std::vector<std::unique_ptr<Sender>> eightSenders(const CollectorProcess &collector)
{
    std::vector<std::unique_ptr<Sender>> senders;
    senders.reserve(8);
    for (int i = 0; i < 8; ++i) {
        senders.push_back(std::make_unique<Sender>(collector, reportArchiveOfSize(100'000 + i)));
    }
    return senders;
}

} // namespace

class tst_CrashCollector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void report_isStoredAndAnswered();
    void report_isReadByThisAccountAlone();
    void report_isPrintedOnOneLine();
    void concurrentReports_areAllStored();
    void largestLimit_canBeServed();
    void restart_keepsWhatIsStored();
    void closedInput_endsTheService();
    void keepRunning_ignoresTheClosedInput();
    void terminationSignal_endsTheService();
    void endBetweenReports_losesNoneThatWasAccepted();
    void endWhileAPeerIsSilent_doesNotWaitForIt();
    void secondServiceOnThePort_isTold();
    void hostOfTheNetwork_isWarnedOf();
    void wrongOptions_endWithoutStarting_data();
    void wrongOptions_endWithoutStarting();
    void storageThatIsAFile_isTold();
    void indexThatIsNone_isToldAndKept_data();
    void indexThatIsNone_isToldAndKept();
    void indexOfAStartThatWasCutOff_isMadeAnew_data();
    void indexOfAStartThatWasCutOff_isMadeAnew();
    void indexWithADamagedPage_isToldAndKept();
    void indexThatCannotBeWritten_refusesAndKeepsNoFile();
    void missingStorageFolder_refuses();

private:
    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    QString m_storage;
};

void tst_CrashCollector::init()
{
    m_storage = m_sandbox.filePath(u"reports %1"_qs.arg(++m_count));
}

void tst_CrashCollector::report_isStoredAndAnswered()
{
    const QDateTime start = QDateTime::currentDateTimeUtc();
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(collector.url(u"/"_qs).host(), u"127.0.0.1"_qs);

    const QByteArray archive = reportArchive();
    Sender sender(collector, archive);
    QVERIFY(sender.wait());
    QVERIFY(!sender.response().isFault());
    const QtSoapType &answer = sender.response().method();
    QCOMPARE(answer.name().name(), u"ReportCrashResponse"_qs);
    QCOMPARE(answer.name().uri(), serviceUri());
    QCOMPARE(answer.count(), 2);
    QCOMPARE(answer[0].name().name(), u"ReportCrashResult"_qs);
    QCOMPARE(answer[0].toString(), u"NoError"_qs);
    QCOMPARE(answer[1].name().name(), u"identifier"_qs);
    const QString identifier = answer[1].toString();
    QCOMPARE(QUuid(identifier).toString(QUuid::WithoutBraces), identifier);
    QVERIFY(!QUuid(identifier).isNull());

    QCOMPARE(collector.storedFiles(), QStringList{identifier + u".zip"});
    QCOMPARE(contentOf(collector.storedPath(identifier + u".zip")), archive);
    const QByteArray hash = QCryptographicHash::hash(archive, QCryptographicHash::Sha256).toHex();
    QCOMPARE(selectInIndex(m_storage, u"SELECT identifier, platform, product, version, size, sha256 FROM reports"_qs),
             QStringList(u"%1|Win|Zyx Grainlab 6|6.4.0.314|%2|%3"_qs.arg(identifier, QString::number(archive.size()),
                                                                         QString::fromLatin1(hash))));
    const QString received = selectInIndex(m_storage, u"SELECT received FROM reports"_qs).value(0);
    static const QRegularExpression form(u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z$"_qs);
    QVERIFY2(form.match(received).hasMatch(), qPrintable(received));
    const QDateTime time = QDateTime::fromString(received, Qt::ISODateWithMs);
    QVERIFY(time >= start && time <= QDateTime::currentDateTimeUtc());
}

void tst_CrashCollector::report_isReadByThisAccountAlone()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no such permissions.");
#endif
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    const Verdict verdict = sendReport(collector, reportArchive());
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    const QFile::Permissions permissions = QFile::permissions(collector.storedPath(verdict.identifier + u".zip"));
    QVERIFY(permissions & QFile::ReadOwner);
    QCOMPARE(permissions & others, QFile::Permissions());
}

void tst_CrashCollector::report_isPrintedOnOneLine()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    const QByteArray archive = reportArchive();
    const Verdict verdict = sendReport(collector, archive, {u"Film %1\nListening on http://elsewhere/ \u30d5"_qs});
    QCOMPARE(verdict.word, u"NoError"_qs);
    QCOMPARE(collector.lines(verdict.identifier, 1),
             QStringList(u"Received %1: Film %1 Listening on http://elsewhere/ \u30d5, %2 bytes"_qs
                             .replace(u"%1:"_qs, verdict.identifier + u':')
                             .replace(u"%2"_qs, QString::number(archive.size()))));
}

void tst_CrashCollector::concurrentReports_areAllStored()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    const auto senders = eightSenders(collector);
    QStringList files;
    for (const auto &sender : senders) {
        QVERIFY(sender->wait());
        QCOMPARE(sender->word(), u"NoError"_qs);
        files.append(sender->identifier() + u".zip");
    }
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(QFileInfo(collector.storedPath(files[i])).size(), 100'000 + i);
    }
    std::sort(files.begin(), files.end());
    QCOMPARE(files.removeDuplicates(), 0);
    QCOMPARE(collector.storedFiles(), files);
    QCOMPARE(selectInIndex(m_storage, u"SELECT count(*) FROM reports"_qs), QStringList{u"8"_qs});
    QCOMPARE(collector.lines(u"Received "_qs, 8).size(), 8);
}

void tst_CrashCollector::largestLimit_canBeServed()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start({u"--size-limit"_qs, u"47"_qs}), qPrintable(collector.errors()));
    const QByteArray archive = reportArchiveOfSize(qsizetype(47) * 1024 * 1024);
    Sender sender(collector, archive);
    QVERIFY(sender.wait());
    QCOMPARE(sender.word(), u"NoError"_qs);
    QCOMPARE(QFileInfo(collector.storedPath(sender.identifier() + u".zip")).size(), archive.size());
}

void tst_CrashCollector::restart_keepsWhatIsStored()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(collector.lines(u"Reports are kept in"_qs, 1).value(0).section(u", "_qs, -1), u"0 so far"_qs);
    const Verdict first = sendReport(collector, reportArchive());
    QCOMPARE(collector.end(), 0);

    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(collector.lines(u"Reports are kept in"_qs, 1).value(0).section(u", "_qs, -1), u"1 so far"_qs);
    const Verdict second = sendReport(collector, reportArchive());
    QCOMPARE(second.word, u"NoError"_qs);
    QCOMPARE(selectInIndex(m_storage, u"SELECT identifier FROM reports ORDER BY rowid"_qs),
             (QStringList{first.identifier, second.identifier}));
    const QByteArray page = get(collector.url(u"/"_qs)).body;
    QVERIFY(page.contains(first.identifier.toUtf8()));
    QVERIFY(page.contains(second.identifier.toUtf8()));
    QCOMPARE(get(collector.url(u"/reports/%1.zip"_qs.arg(first.identifier))).body, reportArchive());
}

void tst_CrashCollector::closedInput_endsTheService()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    collector.process().write("what is written there has no meaning\n");
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
    QCOMPARE(collector.end(), 0);
    QCOMPARE(collector.errors(), QString());
}

void tst_CrashCollector::keepRunning_ignoresTheClosedInput()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start({u"--keep-running"_qs}), qPrintable(collector.errors()));
    collector.process().closeWriteChannel();
    for (int i = 0; i < 20; ++i) { // an end would come in between
        QCOMPARE(get(collector.url(u"/"_qs)).status, 200);
    }
#ifndef Q_OS_WIN
    collector.process().terminate();
    QCOMPARE(collector.waitForEnd(), 0);
#endif
}

void tst_CrashCollector::terminationSignal_endsTheService()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no signals.");
#endif
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
    collector.process().terminate();
    QCOMPARE(collector.waitForEnd(), 0);
    QCOMPARE(collector.errors(), QString());
    QCOMPARE(collector.storedFiles().size(), 1); // and no journal of the index
}

void tst_CrashCollector::endBetweenReports_losesNoneThatWasAccepted()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    const auto senders = eightSenders(collector);
    const auto isAnswered = [](const auto &sender) { return sender->isAnswered(); };
    QVERIFY(QTest::qWaitFor([&] { return std::any_of(senders.cbegin(), senders.cend(), isAnswered); }, watchdogMs));
    collector.process().closeWriteChannel();

    QStringList accepted;
    for (const auto &sender : senders) {
        QVERIFY(sender->wait());
        if (sender->word() == u"NoError") {
            accepted.append(sender->identifier());
        }
    }
    QCOMPARE(collector.waitForEnd(), 0);
    QVERIFY(!accepted.isEmpty());
    const QStringList listed = selectInIndex(m_storage, u"SELECT identifier FROM reports ORDER BY identifier"_qs);
    for (const QString &identifier : accepted) {
        QVERIFY(listed.contains(identifier));
    }
    QCOMPARE(collector.storedFiles(), QStringList(listed).replaceInStrings(QRegularExpression(u"$"_qs), u".zip"_qs));
}

void tst_CrashCollector::endWhileAPeerIsSilent_doesNotWaitForIt()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QTcpSocket silent;
    silent.connectToHost(QHostAddress::LocalHost, collector.port());
    QVERIFY(silent.waitForConnected(watchdogMs));
    silent.write("POST " + reportPath().toUtf8() + " HTTP/1.1\r\nHost: localhost\r\nContent-Le");
    QVERIFY(silent.waitForBytesWritten(watchdogMs));
    QCOMPARE(get(collector.url(u"/"_qs)).status, 200); // the other connection has been taken by then
    QCOMPARE(collector.end(), 0);
}

void tst_CrashCollector::secondServiceOnThePort_isTold()
{
    CollectorProcess first(m_storage);
    QVERIFY2(first.start(), qPrintable(first.errors()));
    CollectorProcess second(m_storage + u" second");
    QCOMPARE(second.run({u"--port"_qs, QString::number(first.port())}), 3);
    QVERIFY2(second.errors().startsWith(u"crashCollector: 127.0.0.1 port %1 can't be listened on"_qs.arg(first.port())),
             qPrintable(second.errors()));
    QCOMPARE(sendReport(first, reportArchive()).word, u"NoError"_qs);
}

void tst_CrashCollector::hostOfTheNetwork_isWarnedOf()
{
    CollectorProcess collector(m_storage);
    QCOMPARE(collector.run({u"--host"_qs, u"192.0.2.1"_qs}), 3); // no machine has this address
    QCOMPARE(collector.errors().section(u'\n', 0, 0).trimmed(),
             u"crashCollector: with --host 192.0.2.1 the page and the reports are open to the network, and the header "
             "Host of requests is not checked"_qs);

    QVERIFY2(collector.start({u"--host"_qs, u"LocalHost"_qs}), qPrintable(collector.errors()));
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
    QCOMPARE(collector.errors().count(u"--host"_qs), 1);
}

void tst_CrashCollector::wrongOptions_endWithoutStarting_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("message");

    const QString sizes = u"crashCollector: --size-limit takes a number from 1 to 47"_qs;
    const QString ports = u"crashCollector: --port takes a number from 0 to 65535"_qs;
    QTest::newRow("limit that can't be served") << QStringList{u"--size-limit"_qs, u"48"_qs} << sizes;
    QTest::newRow("limit of 0") << QStringList{u"--size-limit"_qs, u"0"_qs} << sizes;
    QTest::newRow("limit that is no number") << QStringList{u"--size-limit"_qs, u"4 MiB"_qs} << sizes;
    QTest::newRow("port too large") << QStringList{u"--port"_qs, u"65536"_qs} << ports;
    QTest::newRow("port below 0") << QStringList{u"--port"_qs, u"-1"_qs} << ports;
    QTest::newRow("no host") << QStringList{u"--host="_qs} << u"crashCollector: --host and --storage can't be empty"_qs;
    QTest::newRow("argument") << QStringList{u"8080"_qs} << u"crashCollector: unexpected argument \"8080\""_qs;
    QTest::newRow("unknown option") << QStringList{u"--sizelimit"_qs}
                                    << u"crashCollector: Unknown option 'sizelimit'."_qs;
}

void tst_CrashCollector::wrongOptions_endWithoutStarting()
{
    QFETCH(const QStringList, options);
    QFETCH(const QString, message);

    CollectorProcess collector(m_storage);
    QCOMPARE(collector.run(options), 1);
    QCOMPARE(collector.errors(), message);
    QVERIFY(!QFile::exists(m_storage));
}

void tst_CrashCollector::storageThatIsAFile_isTold()
{
    QVERIFY(write(m_storage, "a file"));
    CollectorProcess collector(m_storage);
    QCOMPARE(collector.run(), 2);
    QCOMPARE(collector.errors(),
             u"crashCollector: the folder %1 can't be made"_qs.arg(QDir::toNativeSeparators(m_storage)));
    QCOMPARE(contentOf(m_storage), QByteArray("a file"));
}

void tst_CrashCollector::indexThatIsNone_isToldAndKept_data()
{
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("reason");

    const QString none = u"file is not a database"_qs;
    QTest::newRow("text") << QByteArray("reports, please\n").repeated(100) << QStringList() << none;
    QTest::newRow("head of a database") << QByteArray("SQLite format 3\0", 16) << QStringList() << none;
    QTest::newRow("another version") << QByteArray() << QStringList{u"PRAGMA user_version = 2"_qs}
                                     << u"it has the version 2 instead of 1"_qs;
    QTest::newRow("no version, but a table")
        << QByteArray() << QStringList{u"PRAGMA user_version = 0"_qs} << u"it has the version 0 instead of 1"_qs;
    QTest::newRow("another table") << QByteArray() << QStringList{u"ALTER TABLE reports RENAME TO others"_qs}
                                   << u"no such table: reports"_qs;
    QTest::newRow("missing column") << QByteArray() << QStringList{u"ALTER TABLE reports DROP COLUMN sha256"_qs}
                                    << u"no such column: sha256"_qs;
}

void tst_CrashCollector::indexThatIsNone_isToldAndKept()
{
    QFETCH(const QByteArray, damage);
    QFETCH(const QStringList, statements);
    QFETCH(const QString, reason);

    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
    QCOMPARE(collector.end(), 0);
    const QString path = collector.storedPath(u"index.sqlite"_qs);
    if (!damage.isNull()) {
        QVERIFY(write(path, damage));
    }
    QVERIFY(damage.isNull() ? changeIndex(m_storage, statements) : true);
    const QByteArray before = contentOf(path);

    QCOMPARE(collector.run(), 2);
    const QString message = collector.errors();
    QVERIFY2(message.startsWith(u"crashCollector: %1 can't be used as the index of reports: %2"_qs.arg(
                 QDir::toNativeSeparators(path), reason)),
             qPrintable(message));
    QCOMPARE(contentOf(path), before);
    QCOMPARE(collector.storedFiles().size(), 1);
}

void tst_CrashCollector::indexOfAStartThatWasCutOff_isMadeAnew_data()
{
    QTest::addColumn<QStringList>("statements");

    QTest::newRow("no bytes") << QStringList();
    QTest::newRow("no tables") << QStringList{u"CREATE TABLE a (b)"_qs, u"DROP TABLE a"_qs};
}

void tst_CrashCollector::indexOfAStartThatWasCutOff_isMadeAnew()
{
    QFETCH(const QStringList, statements);

    QVERIFY(QDir().mkpath(m_storage));
    CollectorProcess collector(m_storage);
    QVERIFY(write(collector.storedPath(u"index.sqlite"_qs), ""));
    QVERIFY(changeIndex(m_storage, statements));

    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
    QCOMPARE(selectInIndex(m_storage, u"SELECT count(*) FROM reports"_qs), QStringList{u"1"_qs});
    QCOMPARE(selectInIndex(m_storage, u"PRAGMA user_version"_qs), QStringList{u"1"_qs});
}

void tst_CrashCollector::indexWithADamagedPage_isToldAndKept()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
    QCOMPARE(collector.end(), 0);
    const QString path = collector.storedPath(u"index.sqlite"_qs);
    const QByteArray damaged = contentOf(path).chopped(4096) + QByteArray(4096, '\xff');
    QVERIFY(write(path, damaged));

    QCOMPARE(collector.run(), 2);
    QVERIFY(collector.errors().contains(u"can't be used as the index of reports"));
    QCOMPARE(contentOf(path), damaged);
}

void tst_CrashCollector::indexThatCannotBeWritten_refusesAndKeepsNoFile()
{
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QVERIFY(changeIndex(m_storage,
                        {u"CREATE TRIGGER no BEFORE INSERT ON reports BEGIN SELECT RAISE(ABORT, 'no'); END"_qs}));
    const Verdict refused = sendReport(collector, reportArchive());
    QCOMPARE(refused.status, 200);
    QCOMPARE(refused.word, u"StorageFailed"_qs);
    QCOMPARE(refused.identifier, QString());
    QCOMPARE(collector.storedFiles(), QStringList());
    QTRY_VERIFY(collector.errors().startsWith(u"crashCollector: the index can't be written: no"));

    QVERIFY(changeIndex(m_storage, {u"DROP TRIGGER no"_qs}));
    QCOMPARE(sendReport(collector, reportArchive()).word, u"NoError"_qs);
}

void tst_CrashCollector::missingStorageFolder_refuses()
{
#ifdef Q_OS_WIN
    QSKIP("Windows keeps the folder of an open file.");
#endif
    CollectorProcess collector(m_storage);
    QVERIFY2(collector.start(), qPrintable(collector.errors()));
    QVERIFY(QDir(m_storage).removeRecursively());
    const Verdict refused = sendReport(collector, reportArchive());
    QCOMPARE(refused.word, u"StorageFailed"_qs);
    QCOMPARE(refused.identifier, QString());
    QCOMPARE(get(collector.url(u"/"_qs)).status, 200);
}

QTEST_GUILESS_MAIN(tst_CrashCollector)

#include "tst_CrashCollector.moc"
