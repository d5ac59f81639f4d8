// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <utility>

using namespace SoapTest;
using namespace ZYX_zglv6;

namespace {

constexpr auto firstSignal = qOverload<>(&QtSoapHttpTransport::responseReady);
constexpr auto secondSignal = qOverload<const QtSoapMessage &>(&QtSoapHttpTransport::responseReady);

/*! Answers with the path as the price. */
void answerWithPath(QTcpSocket &connection, const ReceivedRequest &request)
{
    connection.write(httpAnswer("200 OK", priceAnswer(request.target().mid(1))));
}

QString priceIn(const QtSoapMessage &message)
{
    return message.returnValue().value().toString();
}

/*! "signal: price" of each signal, in their order. */
class SignalLog : public QObject
{
public:
    explicit SignalLog(QtSoapHttpTransport &transport)
    {
        connect(&transport, firstSignal, this,
                [this, &transport] { m_lines.append(u"first: "_qs + priceIn(transport.getResponse())); });
        connect(&transport, secondSignal, this,
                [this](const QtSoapMessage &response) { m_lines.append(u"second: "_qs + priceIn(response)); });
    }

    const QStringList &lines() const
    {
        return m_lines;
    }

private:
    QStringList m_lines;
};

} // namespace

class tst_QtSoapHttpSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void signals_comeInOrderWithTheSameAnswer();
    void signals_ofAnError_comeLater();
    void networkReply_livesUntilBothSignalsAreOver();
    void getResponse_beforeTheAnswer_isEmpty();
    void getResponse_copy_outlivesTheTransport();
    void twoRequests_secondAnsweredFirst();
    void twoRequests_faultFirst_leavesNothingOfItself();
    void submitRequest_inSlotOfFirstSignal();
    void submitRequest_inSlotOfSecondSignal();
    void deleteLater_inSlot_data();
    void deleteLater_inSlot();
    void destructor_requestOnItsWay_closesTheConnection();
    void destructor_hostHeldTheReply_findsItGone();
    void abort_isATransportError();
    void replyDeletedByTheHost_isNoSignal();
    void transport_inAnotherThread();
};

void tst_QtSoapHttpSignals::initTestCase()
{
    useNoProxies();
}

void tst_QtSoapHttpSignals::signals_comeInOrderWithTheSameAnswer()
{
    SoapServer server(answerWithPath);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(transport);
    QString documentOfFirst;
    QString documentOfSecond;
    connect(&transport, firstSignal, this, [&] { documentOfFirst = transport.getResponse().toXmlString(); });
    connect(&transport, secondSignal, this,
            [&](const QtSoapMessage &response) { documentOfSecond = response.toXmlString(); });
    QVERIFY(submitAndWait(transport, u"/7"_qs).hasCome);
    QCOMPARE(log.lines(), QStringList({u"first: 7"_qs, u"second: 7"_qs}));
    QVERIFY(documentOfFirst.contains(u">7</"_qs));
    QCOMPARE(withSortedAttributes(documentOfSecond.toUtf8()), withSortedAttributes(documentOfFirst.toUtf8()));

    QVERIFY(submitAndWait(transport, u"/8"_qs).hasCome);
    QCOMPARE(log.lines(), QStringList({u"first: 7"_qs, u"second: 7"_qs, u"first: 8"_qs, u"second: 8"_qs}));
}

void tst_QtSoapHttpSignals::signals_ofAnError_comeLater()
{
    QtSoapHttpTransport transport; // without a host
    QSignalSpy first(&transport, firstSignal);
    QSignalSpy second(&transport, secondSignal);
    transport.submitRequest(priceRequest(), u"/prices"_qs);
    QCOMPARE(first.count(), 0);
    QCOMPARE(second.count(), 0);
    QVERIFY(second.wait(watchdogMs));
    QCOMPARE(first.count(), 1);
    QCOMPARE(second.count(), 1);
    QVERIFY(second.at(0).at(0).value<QtSoapMessage>().isFault());
    QVERIFY(transport.getResponse().isFault());
}

void tst_QtSoapHttpSignals::networkReply_livesUntilBothSignalsAreOver()
{
    SoapServer server(answerWithPath);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QPointer<QNetworkReply> reply;
    QStringList states;
    const auto addState = [&](const QString &slot) {
        const bool isHeld = !reply.isNull() && transport.networkReply() == reply && reply->isFinished();
        states.append(slot + (isHeld ? u": held"_qs : u": gone"_qs));
        // Would delete it if that had been asked for already: both at this level of the loop.
        QCoreApplication::sendPostedEvents(reply, QEvent::DeferredDelete);
    };
    connect(&transport, firstSignal, this, [&] { addState(u"first"_qs); });
    connect(&transport, secondSignal, this, [&] { addState(u"second"_qs); });
    transport.submitRequest(priceRequest(), u"/7"_qs);
    reply = transport.networkReply();
    QVERIFY(!reply.isNull());
    QTRY_COMPARE_WITH_TIMEOUT(states, QStringList({u"first: held"_qs, u"second: held"_qs}), watchdogMs);
    QTRY_VERIFY_WITH_TIMEOUT(reply.isNull(), watchdogMs);
    QCOMPARE(transport.networkReply(), nullptr);
    QCOMPARE(priceIn(transport.getResponse()), u"7"_qs);
}

void tst_QtSoapHttpSignals::getResponse_beforeTheAnswer_isEmpty()
{
    SoapServer server([](QTcpSocket &connection, const ReceivedRequest &request) {
        if (request.target() == "/fault") {
            connection.write(httpAnswer("500 Internal Server Error", faultAnswer("soap:Server", "broken")));
        }
    });
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(transport, u"/fault"_qs).response.isFault());
    QVERIFY(transport.getResponse().isFault());

    transport.submitRequest(priceRequest(), u"/silent"_qs);
    QVERIFY(!transport.getResponse().isFault());
    QVERIFY(!transport.getResponse().method().isValid());
    QVERIFY(!transport.getResponse().faultString().isValid());
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 2, watchdogMs);
    QVERIFY(!transport.getResponse().isFault());
    QVERIFY(!transport.getResponse().method().isValid());
    QVERIFY(transport.networkReply() != nullptr);
    QVERIFY(transport.networkReply()->isRunning());
}

void tst_QtSoapHttpSignals::getResponse_copy_outlivesTheTransport()
{
    SoapServer server(answerWithPath);
    auto transport = std::make_unique<QtSoapHttpTransport>();
    transport->setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(*transport, u"/7"_qs).hasCome);
    const QtSoapMessage copy = transport->getResponse();
    transport.reset();
    QCOMPARE(priceIn(copy), u"7"_qs);
}

void tst_QtSoapHttpSignals::twoRequests_secondAnsweredFirst()
{
    QPointer<QTcpSocket> slow;
    SoapServer server([&slow](QTcpSocket &connection, const ReceivedRequest &request) {
        if (request.target() == "/1") {
            slow = &connection;
        } else {
            answerWithPath(connection, request);
        }
    });
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(transport);
    QList<QNetworkReply *> answered;
    connect(&transport, firstSignal, this, [&] { answered.append(transport.networkReply()); });
    transport.submitRequest(priceRequest(), u"/1"_qs);
    QNetworkReply *const reply1 = transport.networkReply();
    transport.submitRequest(priceRequest(), u"/2"_qs);
    QNetworkReply *const reply2 = transport.networkReply();
    QVERIFY(reply1 != reply2);

    QTRY_COMPARE_WITH_TIMEOUT(log.lines(), QStringList({u"first: 2"_qs, u"second: 2"_qs}), watchdogMs);
    QCOMPARE(answered, QList<QNetworkReply *>{reply2});
    QTRY_VERIFY_WITH_TIMEOUT(!slow.isNull(), watchdogMs);
    slow->write(httpAnswer("200 OK", priceAnswer("1")));
    QTRY_COMPARE_WITH_TIMEOUT(
        log.lines(), QStringList({u"first: 2"_qs, u"second: 2"_qs, u"first: 1"_qs, u"second: 1"_qs}), watchdogMs);
    QCOMPARE(answered, (QList<QNetworkReply *>{reply2, reply1}));
    QCOMPARE(priceIn(transport.getResponse()), u"1"_qs);
}

void tst_QtSoapHttpSignals::twoRequests_faultFirst_leavesNothingOfItself()
{
    QPointer<QTcpSocket> slow;
    SoapServer server([&slow](QTcpSocket &connection, const ReceivedRequest &request) {
        if (request.target() == "/1") {
            slow = &connection;
        } else {
            connection.write(httpAnswer("500 Internal Server Error", faultAnswer("soap:Server", "Not for sale")));
        }
    });
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    transport.submitRequest(priceRequest(), u"/1"_qs);
    const QPointer<QNetworkReply> reply1 = transport.networkReply();
    QCOMPARE(submitAndWait(transport, u"/2"_qs).response.faultCode(), QtSoapMessage::Server);
    QCOMPARE(reply1->request().url().path(), u"/1"_qs); // the later request has not moved it

    QTRY_VERIFY_WITH_TIMEOUT(!slow.isNull(), watchdogMs);
    QSignalSpy second(&transport, secondSignal);
    slow->write(httpAnswer("503 Service Unavailable", ""));
    QVERIFY(second.wait(watchdogMs));
    QCOMPARE(transport.getResponse().faultCode(), QtSoapMessage::Client);
    const QString text = transport.getResponse().faultString().value().toString();
    QVERIFY2(text.startsWith(u"Network transport error (403): "), qPrintable(text));
}

void tst_QtSoapHttpSignals::submitRequest_inSlotOfFirstSignal()
{
    SoapServer server(answerWithPath);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(transport);
    bool isNext = true;
    connect(&transport, firstSignal, this, [&] {
        if (std::exchange(isNext, false)) {
            transport.submitRequest(priceRequest(), u"/2"_qs);
        }
    });
    transport.submitRequest(priceRequest(), u"/1"_qs);
    const QPointer<QNetworkReply> reply1 = transport.networkReply();
    QTRY_COMPARE_WITH_TIMEOUT(
        log.lines(), QStringList({u"first: 1"_qs, u"second: 1"_qs, u"first: 2"_qs, u"second: 2"_qs}), watchdogMs);
    QTRY_VERIFY_WITH_TIMEOUT(reply1.isNull(), watchdogMs);
    QTRY_COMPARE_WITH_TIMEOUT(transport.networkReply(), nullptr, watchdogMs);
}

void tst_QtSoapHttpSignals::submitRequest_inSlotOfSecondSignal()
{
    SoapServer server(answerWithPath);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(transport);
    int next = 2;
    connect(&transport, secondSignal, this, [&] {
        if (next <= 3) {
            transport.submitRequest(priceRequest(), u"/%1"_qs.arg(next++));
        }
    });
    transport.submitRequest(priceRequest(), u"/1"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(log.lines(),
                              QStringList({u"first: 1"_qs, u"second: 1"_qs, u"first: 2"_qs, u"second: 2"_qs,
                                           u"first: 3"_qs, u"second: 3"_qs}),
                              watchdogMs);
}

void tst_QtSoapHttpSignals::deleteLater_inSlot_data()
{
    QTest::addColumn<bool>("isInFirst");

    QTest::newRow("of the first signal") << true;
    QTest::newRow("of the second signal") << false;
}

void tst_QtSoapHttpSignals::deleteLater_inSlot()
{
    QFETCH(const bool, isInFirst);

    SoapServer server(answerWithPath);
    const QPointer<QtSoapHttpTransport> transport = new QtSoapHttpTransport(this);
    transport->setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(*transport);
    const auto remove = [&transport] { transport->deleteLater(); };
    if (isInFirst) {
        connect(transport, firstSignal, this, remove);
    } else {
        connect(transport, secondSignal, this, remove);
    }
    transport->submitRequest(priceRequest(), u"/1"_qs);
    const QPointer<QNetworkReply> reply = transport->networkReply();
    QTRY_VERIFY_WITH_TIMEOUT(transport.isNull(), watchdogMs);
    QVERIFY(reply.isNull());
    QCOMPARE(log.lines(), QStringList({u"first: 1"_qs, u"second: 1"_qs}));
}

void tst_QtSoapHttpSignals::destructor_requestOnItsWay_closesTheConnection()
{
    SoapServer server(keepSilent());
    auto transport = std::make_unique<QtSoapHttpTransport>();
    transport->setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(*transport);
    transport->submitRequest(priceRequest(), u"/1"_qs);
    transport->submitRequest(priceRequest(), u"/2"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 2, watchdogMs);
    QCOMPARE(server.connectionCount(), 2);
    transport.reset();
    QTRY_COMPARE_WITH_TIMEOUT(server.connectionCount(), 0, watchdogMs);
    QCOMPARE(log.lines(), QStringList());
}

void tst_QtSoapHttpSignals::destructor_hostHeldTheReply_findsItGone()
{
    SoapServer server(keepSilent());
    auto transport = std::make_unique<QtSoapHttpTransport>();
    transport->setHost(u"127.0.0.1"_qs, server.port());
    transport->submitRequest(priceRequest(), u"/1"_qs);
    const QPointer<QNetworkReply> reply = transport->networkReply();
    QCOMPARE(reply->manager(), transport->networkAccessManager());
    transport.reset(); // before the request has left
    QVERIFY(reply.isNull());
}

void tst_QtSoapHttpSignals::abort_isATransportError()
{
    SoapServer server(keepSilent());
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QSignalSpy first(&transport, firstSignal);
    QSignalSpy second(&transport, secondSignal);
    transport.submitRequest(priceRequest(), u"/1"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, watchdogMs);
    transport.networkReply()->abort();
    QCOMPARE(first.count(), 1); // at once
    QCOMPARE(second.count(), 1);
    QCOMPARE(transport.getResponse().faultCode(), QtSoapMessage::Client);
    QCOMPARE(transport.getResponse().faultString().value().toString(),
             u"Network transport error (5): Operation canceled"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(transport.networkReply(), nullptr, watchdogMs);
}

void tst_QtSoapHttpSignals::replyDeletedByTheHost_isNoSignal()
{
    SoapServer server(keepSilent());
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const SignalLog log(transport);
    transport.submitRequest(priceRequest(), u"/1"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, watchdogMs);
    transport.networkReply()->deleteLater();
    QTRY_COMPARE_WITH_TIMEOUT(transport.networkReply(), nullptr, watchdogMs);
    QTRY_COMPARE_WITH_TIMEOUT(server.connectionCount(), 0, watchdogMs);
    QCOMPARE(log.lines(), QStringList());
}

void tst_QtSoapHttpSignals::transport_inAnotherThread()
{
    SoapServer server(answerWithPath);
    QString price;
    bool isSameThread = false;
    const std::unique_ptr<QThread> thread(QThread::create([&price, &isSameThread, port = server.port()] {
        QtSoapHttpTransport transport;
        transport.setHost(u"127.0.0.1"_qs, port);
        QEventLoop loop;
        connect(&transport, secondSignal, &loop, [&](const QtSoapMessage &response) {
            price = priceIn(response);
            isSameThread = QThread::currentThread() == transport.thread();
            loop.quit();
        });
        QTimer::singleShot(watchdogMs, &loop, &QEventLoop::quit);
        transport.submitRequest(priceRequest(), u"/17"_qs);
        loop.exec();
    }));
    thread->start();
    QVERIFY(QTest::qWaitFor([&thread] { return thread->isFinished(); }, 2 * watchdogMs));
    QVERIFY(thread->wait(watchdogMs));
    QCOMPARE(price, u"17"_qs);
    QVERIFY(isSameThread);
}

QTEST_GUILESS_MAIN(tst_QtSoapHttpSignals)
#include "tst_QtSoapHttpSignals.moc"
