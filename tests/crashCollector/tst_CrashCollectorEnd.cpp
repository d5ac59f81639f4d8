// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CollectorProcess.h"
#include "HttpExchange.h"
#include "ReportSender.h"
#include "SlowPeer.h"
#include "TestArchives.h"

#include "support/Sandbox.h"

#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>
#include <vector>

using namespace CrashCollectorTest;

namespace {

constexpr int endMs = 30'000; // twice what receiving and answering may take

bool waitForExit(CollectorProcess &collector)
{
    return QTest::qWaitFor([&] { return collector.process().state() == QProcess::NotRunning; }, endMs);
}

} // namespace

/*! Ending the service while peers are at work, and what keeps slow ones from occupying it. */
class tst_CrashCollectorEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void endWhileAPeerIsSlow_doesNotWaitForIt_data();
    void endWhileAPeerIsSlow_doesNotWaitForIt();
    void endWhileManyPeersQueue_waitsOnce();
    void endWhileAPeerDoesNotRead_doesNotWaitForIt();
    void lastBytesAfterTheEndWasAskedFor_areStillTaken();
    void secondSignal_endsAtOnce();
    void signalAfterTheInputClosed_isNoSecondOne();
    void drippedHeads_areLeftAfterSeconds();

private:
    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<CollectorProcess> m_collector;
};

void tst_CrashCollectorEnd::init()
{
    m_collector = std::make_unique<CollectorProcess>(m_sandbox.filePath(u"reports %1"_qs.arg(++m_count)));
    QVERIFY2(m_collector->start(), qPrintable(m_collector->errors()));
}

void tst_CrashCollectorEnd::endWhileAPeerIsSlow_doesNotWaitForIt_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<char>("byte");

    QTest::newRow("request line") << QByteArray("GET /") << 'a';
    QTest::newRow("header") << QByteArray("GET / HTTP/1.1\r\nHost: local") << 'h';
    QTest::newRow("body") << postHead("Content-Length: 1000000") << ' ';
    QTest::newRow("size of a chunk") << postHead("Transfer-Encoding: chunked") << '0';
    QTest::newRow("chunk") << QByteArray(postHead("Transfer-Encoding: chunked") + "f0000\r\n") << ' ';
}

void tst_CrashCollectorEnd::endWhileAPeerIsSlow_doesNotWaitForIt()
{
    QFETCH(const QByteArray, start);
    QFETCH(const char, byte);

    const SlowPeer peer(*m_collector, start, byte);
    QVERIFY(peer.isConnected());
    QCOMPARE(get(m_collector->url(u"/"_qs)).status, 200); // the peer has been taken by then
    QVERIFY(peer.isConnected());
    m_collector->process().closeWriteChannel();
    QVERIFY(waitForExit(*m_collector));
    QCOMPARE(m_collector->waitForEnd(), 0);
    QCOMPARE(m_collector->errors(), QString());
    QCOMPARE(m_collector->storedFiles(), QStringList());
}

void tst_CrashCollectorEnd::endWhileManyPeersQueue_waitsOnce()
{
    std::vector<std::unique_ptr<SlowPeer>> peers;
    for (int i = 0; i < 200; ++i) { // one after the other they would take a minute
        peers.push_back(std::make_unique<SlowPeer>(*m_collector, "GET /", 'a'));
        QVERIFY(peers.back()->isConnected());
    }
    m_collector->process().closeWriteChannel();
    QVERIFY(waitForExit(*m_collector));
    QCOMPARE(m_collector->waitForEnd(), 0);
}

void tst_CrashCollectorEnd::endWhileAPeerDoesNotRead_doesNotWaitForIt()
{
    const QByteArray archive = reportArchiveOfSize(qsizetype(30) * 1024 * 1024); // more than the system buffers
    const Verdict verdict = sendReport(*m_collector, archive);
    QCOMPARE(verdict.word, u"NoError"_qs);
    QTcpSocket peer;
    peer.setReadBufferSize(1);
    peer.connectToHost(QHostAddress::LocalHost, m_collector->port());
    QVERIFY(peer.waitForConnected(watchdogMs));
    peer.write("GET /reports/" + verdict.identifier.toUtf8() + ".zip HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QVERIFY(peer.waitForReadyRead(watchdogMs));
    m_collector->process().closeWriteChannel();
    QVERIFY(waitForExit(*m_collector));
    QCOMPARE(m_collector->waitForEnd(), 0);
}

void tst_CrashCollectorEnd::lastBytesAfterTheEndWasAskedFor_areStillTaken()
{
    const QByteArray document = reportRequest(QString::fromLatin1(reportArchive().toBase64()));
    QTcpSocket sender;
    sender.connectToHost(QHostAddress::LocalHost, m_collector->port());
    QVERIFY(sender.waitForConnected(watchdogMs));
    sender.write(postHead("Content-Length: " + QByteArray::number(document.size())) + document.chopped(1));
    QVERIFY(sender.waitForBytesWritten(watchdogMs));
    QCOMPARE(get(m_collector->url(u"/"_qs)).status, 200); // the sender has been taken by then

    m_collector->process().closeWriteChannel();
    QVERIFY(waitForStop(*m_collector));
    sender.write(document.right(1));
    QVERIFY(QTest::qWaitFor([&] { return sender.state() == QAbstractSocket::UnconnectedState; }, watchdogMs));
    QVERIFY(sender.readAll().contains(">NoError<"));
    QCOMPARE(m_collector->waitForEnd(), 0);
    QCOMPARE(m_collector->storedFiles().size(), 1);
}

void tst_CrashCollectorEnd::secondSignal_endsAtOnce()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no signals.");
#endif
    const SlowPeer peer(*m_collector, "GET /", 'a');
    QVERIFY(peer.isConnected());
    QCOMPARE(get(m_collector->url(u"/"_qs)).status, 200); // the peer has been taken by then
    m_collector->process().terminate();
    QVERIFY(waitForStop(*m_collector));
    QCOMPARE(m_collector->process().state(), QProcess::Running);
    m_collector->process().terminate();
    QVERIFY(waitForExit(*m_collector));
    QCOMPARE(m_collector->process().exitStatus(), QProcess::CrashExit); // by the signal
}

void tst_CrashCollectorEnd::signalAfterTheInputClosed_isNoSecondOne()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has no signals.");
#endif
    const SlowPeer peer(*m_collector, "GET /", 'a');
    QVERIFY(peer.isConnected());
    QCOMPARE(get(m_collector->url(u"/"_qs)).status, 200); // the peer has been taken by then
    m_collector->process().closeWriteChannel();
    QVERIFY(waitForStop(*m_collector));
    m_collector->process().terminate();
    QVERIFY(waitForExit(*m_collector));
    QCOMPARE(m_collector->waitForEnd(), 0);
}

void tst_CrashCollectorEnd::drippedHeads_areLeftAfterSeconds()
{
    std::vector<std::unique_ptr<SlowPeer>> peers;
    for (int i = 0; i < 16; ++i) { // as many as there are workers
        peers.push_back(std::make_unique<SlowPeer>(*m_collector, "GET / HTTP/1.1\r\nX: ", 'a'));
        QVERIFY(peers.back()->isConnected());
    }
    QCOMPARE(get(m_collector->url(u"/"_qs)).status, 200);
    const auto isEnded = [](const auto &peer) { return peer->isEnded(); };
    QVERIFY(QTest::qWaitFor([&] { return std::all_of(peers.cbegin(), peers.cend(), isEnded); }, watchdogMs));
}

QTEST_GUILESS_MAIN(tst_CrashCollectorEnd)

#include "tst_CrashCollectorEnd.moc"
