// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/soap/QtSoapHttpTransport.h"
#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <QtCore/QStringList>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;

namespace {

QByteArray envelopeWith(const QByteArray &content)
{
    return "<s:Envelope xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\"><s:Body>" + content
        + "</s:Body></s:Envelope>";
}

const QByteArray answer = envelopeWith("<ExposureForResponse><seconds>12</seconds></ExposureForResponse>");
const QByteArray refusal = envelopeWith("<s:Fault><faultcode>s:Client</faultcode>"
                                        "<faultstring>No such film</faultstring></s:Fault>");

} // namespace

/*! Runs the examples of the page on SOAP and looks at what they promise there. */
class tst_SoapSnippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exposureRequest_holdsMethodAndArguments();
    void newFrame_holdsItsItems();
    void answerOf_readsAnswersAndFaults_data();
    void answerOf_readsAnswersAndFaults();
    void ask_tellsTheAnswer();
    void ask_tellsThatThereIsNoService();
    void usePrefixForDarkroom_isSeenInTheDocument();
};

void tst_SoapSnippets::exposureRequest_holdsMethodAndArguments()
{
    const QString document = Snippets::exposureRequest(u"Sunny <100>"_qs, 100);
    QtSoapMessage read;
    QVERIFY(read.setContent(document.toUtf8()));
    QVERIFY(read.method().name() == QtSoapQName(u"ExposureFor"_qs, u"urn:example:darkroom"_qs));
    QCOMPARE(read.returnValue().toString(), u"Sunny <100>"_qs);
    QCOMPARE(read.method()[u"speed"_qs].toInt(), 100);
    QVERIFY2(document.contains(u"xsi:type=\"xsd:int\""), qPrintable(document));
}

void tst_SoapSnippets::newFrame_holdsItsItems()
{
    const std::unique_ptr<QtSoapStruct> frame(Snippets::newFrame(u"DSC_0042"_qs, {3, 1, 4}));
    QCOMPARE((*frame)[u"name"_qs].toString(), u"DSC_0042"_qs);
    QCOMPARE((*frame)[u"levels"_qs].count(), qint64(3));
    QCOMPARE((*frame)[u"levels"_qs][2].toInt(), 4);
    QVERIFY(!(*frame)[u"no such member"_qs].isValid());
}

void tst_SoapSnippets::answerOf_readsAnswersAndFaults_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("expected");

    QTest::newRow("answer") << answer << u"12"_qs;
    QTest::newRow("fault of the service") << refusal << u"refused: No such film"_qs;
    QTest::newRow("no XML") << QByteArray("Bad gateway") << u"refused: XML parse error"_qs;
    QTest::newRow("another document") << QByteArray("<html/>") << u"refused: SOAP structure invalid"_qs;
}

void tst_SoapSnippets::answerOf_readsAnswersAndFaults()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, expected);
    QCOMPARE(Snippets::answerOf(document), expected);
}

void tst_SoapSnippets::ask_tellsTheAnswer()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    connect(&server, &QTcpServer::newConnection, &server, [&server] {
        QTcpSocket *socket = server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            if (socket->peek(1'000'000).contains("</SOAP-ENV:Envelope>")) {
                socket->readAll();
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nConnection: close\r\n\r\n" + answer);
                socket->disconnectFromHost();
            }
        });
    });
    QtSoapHttpTransport transport;
    QStringList told;
    Snippets::ask(transport, QUrl(u"http://127.0.0.1:%1/darkroom"_qs.arg(server.serverPort())),
                  [&told](const QString &text) { told.append(text); });
    QTRY_COMPARE_WITH_TIMEOUT(told, QStringList(u"12"_qs), 30'000);
}

void tst_SoapSnippets::ask_tellsThatThereIsNoService()
{
    QTcpServer gone;
    QVERIFY(gone.listen(QHostAddress::LocalHost));
    const quint16 port = gone.serverPort();
    gone.close();
    QtSoapHttpTransport transport;
    QStringList told;
    Snippets::ask(transport, QUrl(u"http://127.0.0.1:%1/darkroom"_qs.arg(port)),
                  [&told](const QString &text) { told.append(text); });
    QTRY_COMPARE_WITH_TIMEOUT(told.size(), 1, 30'000);
    QVERIFY2(told.front().startsWith(u"Network transport error (1): "), qPrintable(told.front()));
}

void tst_SoapSnippets::usePrefixForDarkroom_isSeenInTheDocument()
{
    QVERIFY(Snippets::exposureRequest(u"a"_qs, 1).contains(u"<ExposureFor xmlns=\"urn:example:darkroom\">"));
    Snippets::usePrefixForDarkroom();
    QVERIFY(Snippets::exposureRequest(u"a"_qs, 1)
                .contains(u"<darkroom:ExposureFor xmlns:darkroom=\"urn:example:darkroom\">"));
}

QTEST_GUILESS_MAIN(tst_SoapSnippets)

#include "tst_SoapSnippets.moc"
