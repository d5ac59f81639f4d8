// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReportDelivery.h"
#include "Requests.h"

#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"

#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtTest/QTest>

#include <functional>
#include <optional>

using namespace CrashTest;
using namespace SoapTest;

namespace {

constexpr int timeLimitMs = 3000; // far more than there is between two signs of life
constexpr int pieces = 20;
constexpr int pieceMs = timeLimitMs / 12; // all of them take longer than the limit

QByteArray accepted()
{
    return httpAnswer("200 OK", verdictAnswer("NoError", "R-17"));
}

/*! Sends to the service and waits for what becomes of it. */
std::optional<DeliveryResult> resultFrom(const SoapServer &server, const QByteArray &archive = "zip",
                                         int limitMs = timeLimitMs)
{
    std::optional<DeliveryResult> result;
    CReportDelivery delivery(QUrl(u"http://127.0.0.1:%1"_qs.arg(server.port())));
    delivery.setTimeLimit(limitMs);
    QObject::connect(&delivery, &CReportDelivery::finished, &delivery,
                     [&result](const DeliveryResult &came) { result = came; });
    delivery.send(archive);
    const bool hasCome = QTest::qWaitFor([&result] { return result.has_value(); }, watchdogMs);
    return hasCome ? result : std::nullopt;
}

/*! Calls \a work for each piece. */
void repeatSlowly(QTcpSocket &connection, const std::function<void(int piece)> &work)
{
    auto *timer = new QTimer(&connection);
    QObject::connect(timer, &QTimer::timeout, &connection, [timer, work, piece = 0]() mutable {
        if (piece + 1 == pieces) {
            timer->stop();
        }
        work(piece++);
    });
    timer->start(pieceMs);
}

void answerSlowly(QTcpSocket &connection, const ReceivedRequest & /*request*/)
{
    const qsizetype size = accepted().size() / pieces + 1;
    repeatSlowly(connection, [&connection, size](int piece) { connection.write(accepted().mid(piece * size, size)); });
}

/*! Takes pieces of a request until the time limit is over, then the rest at once, and accepts it. */
void takeSlowly(QTcpSocket &connection)
{
    constexpr qint64 size = 512 << 10;
    connection.setReadBufferSize(size);
    repeatSlowly(connection, [&connection](int piece) {
        connection.read(size);
        if (piece + 1 < pieces) {
            return;
        }
        connection.setReadBufferSize(0);
        QObject::connect(&connection, &QTcpSocket::readyRead, &connection, [&connection] {
            if (connection.readAll().trimmed().endsWith("Envelope>")) {
                connection.write(accepted());
            }
        });
    });
}

} // namespace

/*! What the crash sender makes of a service that takes its time, and of one that does not end. */
class tst_ReportDelivery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void silence_endsAtTheTimeLimit();
    void slowAnswer_isNoSilence();
    void slowTaking_isNoSilence();
    void endlessAnswer_isNoSilence();
    void answerAfterASilentOne_counts();
};

void tst_ReportDelivery::initTestCase()
{
    useNoProxies();
}

void tst_ReportDelivery::silence_endsAtTheTimeLimit()
{
    const std::optional<DeliveryResult> result = resultFrom(SoapServer(keepSilent()), "zip", 300);
    QVERIFY(result);
    QCOMPARE(result->verdict, DeliveryResult::Failed);
    QCOMPARE(result->text, u"The service does not answer"_qs);
}

void tst_ReportDelivery::slowAnswer_isNoSilence()
{
    const std::optional<DeliveryResult> result = resultFrom(SoapServer(answerSlowly));
    QVERIFY(result);
    QCOMPARE(result->text, u"R-17"_qs);
    QCOMPARE(result->verdict, DeliveryResult::Accepted);
}

void tst_ReportDelivery::slowTaking_isNoSilence()
{
    SoapServer server(keepSilent());
    server.setConnectionScript(takeSlowly);
    const std::optional<DeliveryResult> result = resultFrom(server, QByteArray(20'000'000, 'x'));
    QVERIFY(result);
    QCOMPARE(result->text, u"R-17"_qs);
    QCOMPARE(result->verdict, DeliveryResult::Accepted);
}

void tst_ReportDelivery::endlessAnswer_isNoSilence()
{
    const std::optional<DeliveryResult> result
        = resultFrom(SoapServer(flood("HTTP/1.1 200 OK\r\n\r\n", QByteArray(1 << 20, ' '))), "zip", watchdogMs);
    QVERIFY(result);
    QCOMPARE(result->verdict, DeliveryResult::Failed);
    QCOMPARE(result->text, u"The answer of the service is too long"_qs);
}

void tst_ReportDelivery::answerAfterASilentOne_counts()
{
    int count = 0;
    SoapServer server([&count](QTcpSocket &connection, const ReceivedRequest & /*request*/) {
        if (++count > 1) {
            connection.write(accepted());
        }
    });
    CReportDelivery delivery(QUrl(u"http://127.0.0.1:%1"_qs.arg(server.port())));
    delivery.setTimeLimit(300);
    QList<DeliveryResult> results;
    connect(&delivery, &CReportDelivery::finished, this, [&](const DeliveryResult &result) {
        results.append(result);
        if (results.size() == 1) {
            delivery.setTimeLimit(watchdogMs);
            delivery.send("zip");
        }
    });
    delivery.send("zip");
    QTRY_COMPARE_WITH_TIMEOUT(results.size(), 2, watchdogMs);
    QCOMPARE(results.at(0).verdict, DeliveryResult::Failed);
    QCOMPARE(results.at(1).verdict, DeliveryResult::Accepted);
}

QTEST_GUILESS_MAIN(tst_ReportDelivery)

#include "tst_ReportDelivery.moc"
