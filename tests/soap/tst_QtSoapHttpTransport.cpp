// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"

#include <QtCore/QMetaMethod>
#include <QtNetwork/QHostAddress>
#include <QtTest/QTest>

#include <functional>

using namespace SoapTest;
using namespace ZYX_zglv6;

namespace {

using Setup = std::function<void(QtSoapHttpTransport &transport)>;

} // namespace

class tst_QtSoapHttpTransport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObject_hasTheSignalsAndThePrivateSlot();
    void setHost_givesSchemeAndPort_data();
    void setHost_givesSchemeAndPort();
    void setHost_again_replacesTheFirst();
    void submitRequest_postsTheDocument();
    void submitRequest_action_data();
    void submitRequest_action();
    void submitRequest_withoutAction_hasAnEmptyOne();
    void submitRequest_body_data();
    void submitRequest_body();
    void submitRequest_zeroCharacter_cutsTheBody();
    void submitRequest_path_data();
    void submitRequest_path();
    void submitRequest_addressOfIPv6();
    void submitRequest_cookie_isSentBack();
    void submitRequest_severalInTurn_eachReplacesTheAnswer();
    void submitRequest_ofTheResponse_sendsItCleared();
};

void tst_QtSoapHttpTransport::initTestCase()
{
    useNoProxies();
}

void tst_QtSoapHttpTransport::metaObject_hasTheSignalsAndThePrivateSlot()
{
    const QMetaObject &meta = QtSoapHttpTransport::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::QtSoapHttpTransport");
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    const QStringList expected{u"responseReady()"_qs, u"responseReady(ZYX_zglv6::QtSoapMessage)"_qs,
                               u"readResponse(QNetworkReply*)"_qs};
    QCOMPARE(methods, expected);
    QCOMPARE(meta.method(meta.methodOffset() + 2).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(meta.methodOffset() + 2).access(), QMetaMethod::Private);

    QtSoapHttpTransport transport;
    QCOMPARE(transport.parent(), nullptr);
    QCOMPARE(transport.networkAccessManager()->parent(), &transport);
    QCOMPARE(transport.networkReply(), nullptr);
    QVERIFY(!transport.getResponse().isFault());
}

void tst_QtSoapHttpTransport::setHost_givesSchemeAndPort_data()
{
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("url");

    const auto add
        = [](const char *name, const Setup &setup, const QString &url) { QTest::newRow(name) << setup << url; };
    const QString host = u"127.0.0.1"_qs;
    add(
        "port 0", [host](QtSoapHttpTransport &t) { t.setHost(host, 0); }, u"http://127.0.0.1:80/prices"_qs);
    add(
        "without port", [host](QtSoapHttpTransport &t) { t.setHost(host); }, u"http://127.0.0.1:80/prices"_qs);
    add(
        "port 8080", [host](QtSoapHttpTransport &t) { t.setHost(host, 8080); }, u"http://127.0.0.1:8080/prices"_qs);
    add(
        "port 1", [host](QtSoapHttpTransport &t) { t.setHost(host, 1); }, u"http://127.0.0.1:1/prices"_qs);
    add(
        "port 443", [host](QtSoapHttpTransport &t) { t.setHost(host, 443); }, u"http://127.0.0.1:443/prices"_qs);
    add(
        "secure without port", [host](QtSoapHttpTransport &t) { t.setHost(host, true); },
        u"https://127.0.0.1:443/prices"_qs);
    add(
        "secure, port 0", [host](QtSoapHttpTransport &t) { t.setHost(host, true, 0); },
        u"https://127.0.0.1:443/prices"_qs);
    add(
        "secure, port 8443", [host](QtSoapHttpTransport &t) { t.setHost(host, true, 8443); },
        u"https://127.0.0.1:8443/prices"_qs);
    add(
        "secure, port 80", [host](QtSoapHttpTransport &t) { t.setHost(host, true, 80); },
        u"https://127.0.0.1:80/prices"_qs);
    add(
        "not secure without port", [host](QtSoapHttpTransport &t) { t.setHost(host, false); },
        u"http://127.0.0.1:80/prices"_qs);
    add(
        "not secure, port 0", [host](QtSoapHttpTransport &t) { t.setHost(host, false, 0); },
        u"http://127.0.0.1:80/prices"_qs);
    add(
        "not secure, port 8443", [host](QtSoapHttpTransport &t) { t.setHost(host, false, 8443); },
        u"http://127.0.0.1:8443/prices"_qs);
}

void tst_QtSoapHttpTransport::setHost_givesSchemeAndPort()
{
    QFETCH(const Setup, setup);
    QFETCH(const QString, url);

    QtSoapHttpTransport transport;
    setup(transport);
    transport.submitRequest(priceRequest(), u"/prices"_qs);
    QVERIFY(transport.networkReply() != nullptr);
    QCOMPARE(transport.networkReply()->request().url().toString(), url);
    QCOMPARE(transport.networkReply()->operation(), QNetworkAccessManager::PostOperation);
}

void tst_QtSoapHttpTransport::setHost_again_replacesTheFirst()
{
    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"other.invalid"_qs, true, 8443);
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(transport).hasCome);
    QCOMPARE(transport.getResponse().returnValue().toString(), u"12.50"_qs);
    QCOMPARE(server.requests().size(), 1);
}

void tst_QtSoapHttpTransport::submitRequest_postsTheDocument()
{
    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    transport.setAction(u"\"urn:shop#getPrice\""_qs);
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QVERIFY(!outcome.response.isFault());
    QCOMPARE(outcome.response.method().name().name(), u"getPriceResponse"_qs);
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);

    QCOMPARE(server.requests().size(), 1);
    const ReceivedRequest &request = server.requests().constFirst();
    QCOMPARE(request.line, "POST /prices HTTP/1.1");
    QCOMPARE(request.values("Host"), QByteArrayList{"127.0.0.1:" + QByteArray::number(server.port())});
    QCOMPARE(request.values("Content-Type"), QByteArrayList{"text/xml;charset=utf-8"});
    QCOMPARE(request.values("SOAPAction"), QByteArrayList{"\"urn:shop#getPrice\""});
    QCOMPARE(request.values("Content-Length"), QByteArrayList{QByteArray::number(request.body.size())});
    const QByteArray document
        = "<SOAP-ENV:Envelope SOAP-ENV:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\""
          " xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\""
          " xmlns:xsd=\"http://www.w3.org/1999/XMLSchema\">\n<SOAP-ENV:Body";
    QCOMPARE(withSortedAttributes(request.body).left(document.size()), document);
}

void tst_QtSoapHttpTransport::submitRequest_action_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QByteArrayList>("values");

    QTest::newRow("quoted") << u"\"urn:shop#getPrice\""_qs << QByteArrayList{"\"urn:shop#getPrice\""};
    QTest::newRow("not quoted") << u"urn:shop"_qs << QByteArrayList{"urn:shop"};
    QTest::newRow("empty in quotes") << u"\"\""_qs << QByteArrayList{"\"\""};
    QTest::newRow("empty") << u""_qs << QByteArrayList{""};
    QTest::newRow("null") << QString() << QByteArrayList{""};
    QTest::newRow("Latin-1") << u"\"Gr\u00f6\u00dfe\""_qs
                             << QByteArrayList{"\"Gr\xf6\xdf"
                                               "e\""};
    QTest::newRow("beyond Latin-1") << u"\u0446"_qs << QByteArrayList{"?"};
}

void tst_QtSoapHttpTransport::submitRequest_action()
{
    QFETCH(const QString, action);
    QFETCH(const QByteArrayList, values);

    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    transport.setAction(u"replaced"_qs);
    transport.setAction(action);
    QVERIFY(submitAndWait(transport).hasCome);
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(server.requests().constFirst().values("SOAPAction"), values);
}

void tst_QtSoapHttpTransport::submitRequest_withoutAction_hasAnEmptyOne()
{
    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(transport).hasCome);
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(server.requests().constFirst().values("SOAPAction"), QByteArrayList{""});
}

void tst_QtSoapHttpTransport::submitRequest_body_data()
{
    QTest::addColumn<QString>("article");
    QTest::addColumn<QByteArray>("inBody");

    QTest::newRow("ASCII") << u"poster"_qs << QByteArray(">poster</");
    QTest::newRow("markup") << u"a<b&c"_qs << QByteArray(">a&lt;b&amp;c</");
    QTest::newRow("Cyrillic") << u"\u0444\u043e\u0442\u043e"_qs << QByteArray(">\xd1\x84\xd0\xbe\xd1\x82\xd0\xbe</");
    QTest::newRow("beyond the first plane") << u"\U0001f4f7"_qs << QByteArray(">\xf0\x9f\x93\xb7</");
    QTest::newRow("two million characters") << QString(2'000'000, u'x') << QByteArray(2'000'000, 'x');
}

void tst_QtSoapHttpTransport::submitRequest_body()
{
    QFETCH(const QString, article);
    QFETCH(const QByteArray, inBody);

    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const QtSoapMessage request = priceRequest(article);
    QVERIFY(submitAndWait(transport, u"/prices"_qs, request).hasCome);
    QCOMPARE(server.requests().size(), 1);
    const QByteArray body = server.requests().constFirst().body;
    QVERIFY(body.contains(inBody));
    QCOMPARE(withSortedAttributes(body), withSortedAttributes(request.toXmlString(0).toUtf8()));
}

void tst_QtSoapHttpTransport::submitRequest_zeroCharacter_cutsTheBody()
{
    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    const QtSoapMessage request = priceRequest(u"post\u0000er"_qs);
    QVERIFY(request.toXmlString(0).contains(u"post\u0000er<"_qs));
    QVERIFY(submitAndWait(transport, u"/prices"_qs, request).hasCome);
    QCOMPARE(server.requests().size(), 1);
    const QByteArray body = server.requests().constFirst().body;
    QVERIFY(body.startsWith("<SOAP-ENV:Envelope "));
    QVERIFY(body.endsWith(">post"));
}

void tst_QtSoapHttpTransport::submitRequest_path_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("target");

    QTest::newRow("plain") << u"/services/prices"_qs << QByteArray("/services/prices");
    QTest::newRow("root") << u"/"_qs << QByteArray("/");
    QTest::newRow("empty") << QString() << QByteArray("/");
    QTest::newRow("space") << u"/all prices"_qs << QByteArray("/all%20prices");
    QTest::newRow("question mark is no query") << u"/prices?wsdl"_qs << QByteArray("/prices%3Fwsdl");
    QTest::newRow("number sign is no fragment") << u"/prices#1"_qs << QByteArray("/prices%231");
    QTest::newRow("percent sign is no code") << u"/a%20b"_qs << QByteArray("/a%2520b");
    QTest::newRow("umlaut") << u"/gr\u00f6\u00dfe"_qs << QByteArray("/gr%C3%B6%C3%9Fe");
}

void tst_QtSoapHttpTransport::submitRequest_path()
{
    QFETCH(const QString, path);
    QFETCH(const QByteArray, target);

    SoapServer server(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(transport, path).hasCome);
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(server.requests().constFirst().target(), target);
}

void tst_QtSoapHttpTransport::submitRequest_addressOfIPv6()
{
    SoapServer server(answerWith("200 OK", priceAnswer()), QHostAddress::LocalHostIPv6);
    if (!server.isListening()) {
        QSKIP("This machine has no IPv6 address of its own");
    }
    QtSoapHttpTransport transport;
    transport.setHost(u"::1"_qs, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);
    QCOMPARE(server.requests().constFirst().values("Host"),
             QByteArrayList{"[::1]:" + QByteArray::number(server.port())});
}

void tst_QtSoapHttpTransport::submitRequest_cookie_isSentBack()
{
    SoapServer server(answerWith("200 OK", priceAnswer(), {"Set-Cookie: session=17; Path=/"}));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(transport).hasCome);
    QVERIFY(submitAndWait(transport).hasCome);
    QCOMPARE(server.requests().size(), 2);
    QCOMPARE(server.requests().at(0).values("Cookie"), QByteArrayList{});
    QCOMPARE(server.requests().at(1).values("Cookie"), QByteArrayList{"session=17"});
}

void tst_QtSoapHttpTransport::submitRequest_severalInTurn_eachReplacesTheAnswer()
{
    SoapServer server([](QTcpSocket &connection, const ReceivedRequest &request) {
        connection.write(request.target() == "/broken"
                             ? httpAnswer("500 Internal Server Error", faultAnswer("soap:Server", "broken"))
                             : httpAnswer("200 OK", priceAnswer(request.target().mid(1))));
    });
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QCOMPARE(submitAndWait(transport, u"/1"_qs).response.returnValue().toString(), u"1"_qs);
    QCOMPARE(submitAndWait(transport, u"/broken"_qs).response.faultString().toString(), u"broken"_qs);
    QCOMPARE(submitAndWait(transport, u"/2"_qs).response.returnValue().toString(), u"2"_qs);
    QVERIFY(!transport.getResponse().isFault());
    QVERIFY(!transport.getResponse().faultString().isValid());
    QCOMPARE(server.requests().size(), 3);
}

void tst_QtSoapHttpTransport::submitRequest_ofTheResponse_sendsItCleared()
{
    SoapServer server(answerWith("200 OK", priceAnswer("31.99")));
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, server.port());
    QVERIFY(submitAndWait(transport).hasCome);
    QVERIFY(submitAndWait(transport, u"/echo"_qs, transport.getResponse()).hasCome);
    QCOMPARE(server.requests().size(), 2);
    QVERIFY(server.requests().at(1).body.startsWith("<SOAP-ENV:Envelope"));
    QVERIFY(!server.requests().at(1).body.contains("31.99"));
}

QTEST_GUILESS_MAIN(tst_QtSoapHttpTransport)
#include "tst_QtSoapHttpTransport.moc"
