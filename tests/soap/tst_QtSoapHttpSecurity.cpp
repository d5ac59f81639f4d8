// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/server/SoapExchange.h"
#include "soap/server/SoapServer.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslConfiguration>
#include <QtNetwork/QSslKey>
#include <QtNetwork/QSslServer>
#include <QtNetwork/QSslSocket>
#include <QtTest/QTest>

#include <memory>

using namespace SoapTest;
using namespace ZYX_zglv6;

namespace {

/*! A certificate that is its own authority, made for one run of the tests. */
struct Identity
{
    QSslCertificate certificate;
    QSslKey key;
    QString reasonOfAbsence; // empty if it was made
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! \a alternativeName such as "IP:127.0.0.1" or "DNS:shop.example". */
Identity makeIdentity(const QString &alternativeName)
{
    Identity identity;
    const QString program = QStandardPaths::findExecutable(u"openssl"_qs);
    if (program.isEmpty()) {
        identity.reasonOfAbsence = u"The program openssl, which makes the certificates, is missing"_qs;
        return identity;
    }
    const QTemporaryDir folder;
    const QString key = folder.filePath(u"key.pem"_qs);
    const QString certificate = folder.filePath(u"certificate.pem"_qs);
    QProcess process;
    process.start(program,
                  {u"req"_qs, u"-x509"_qs, u"-newkey"_qs, u"rsa:2048"_qs, u"-nodes"_qs, u"-days"_qs, u"2"_qs,
                   u"-subj"_qs, u"/CN=test"_qs, u"-addext"_qs, u"subjectAltName="_qs + alternativeName, u"-keyout"_qs,
                   key, u"-out"_qs, certificate});
    process.waitForFinished(watchdogMs);
    identity.certificate = QSslCertificate(contentOf(certificate));
    identity.key = QSslKey(contentOf(key), QSsl::Rsa);
    if (identity.certificate.isNull() || identity.key.isNull()) {
        identity.reasonOfAbsence
            = u"openssl has made no certificate: "_qs + QString::fromLocal8Bit(process.readAllStandardError());
    }
    return identity;
}

std::unique_ptr<QTcpServer> secureServer(const Identity &identity)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(identity.certificate);
    configuration.setPrivateKey(identity.key);
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(configuration);
    return server;
}

/*! While it lives, connections of this process trust \a authority alone. */
class TrustedAuthority
{
public:
    explicit TrustedAuthority(const QSslCertificate &authority)
    {
        QSslConfiguration configuration = m_before;
        configuration.setCaCertificates({authority});
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

    ~TrustedAuthority()
    {
        QSslConfiguration::setDefaultConfiguration(m_before);
    }

    Q_DISABLE_COPY_MOVE(TrustedAuthority)

private:
    const QSslConfiguration m_before = QSslConfiguration::defaultConfiguration();
};

} // namespace

class tst_QtSoapHttpSecurity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void certificate_notTrusted_isATransportError();
    void certificate_trusted_givesTheAnswer();
    void certificate_ofAnotherHost_isATransportError();
    void certificate_errorsIgnoredByTheHost_givesTheAnswer();
    void plainRequest_toSecurePort_isATransportError();
    void secureRequest_toPlainPort_isATransportError();
    void proxy_getsTheRequest();
    void proxy_wantsPassword_data();
    void proxy_wantsPassword();
    void proxy_refusesTheTunnel_isATransportError();

private:
    Identity m_identity;
    QString m_reasonWithoutServer; // empty if servers of this Qt can encrypt
};

#define SKIP_WITHOUT_SECURE_SERVER()                                                                                   \
    do {                                                                                                               \
        if (!m_reasonWithoutServer.isEmpty()) {                                                                        \
            QSKIP(qPrintable(m_reasonWithoutServer));                                                                  \
        }                                                                                                              \
    } while (false)

void tst_QtSoapHttpSecurity::initTestCase()
{
    useNoProxies();
    if (!QSslSocket::supportsSsl()) {
        m_reasonWithoutServer = u"This Qt has no encrypted connections"_qs;
        return;
    }
    if (QSslSocket::activeBackend() != u"openssl") {
        m_reasonWithoutServer
            = u"The server of the test needs Qt's backend of OpenSSL; this one is "_qs + QSslSocket::activeBackend();
        return;
    }
    m_identity = makeIdentity(u"IP:127.0.0.1"_qs);
    m_reasonWithoutServer = m_identity.reasonOfAbsence;
}

void tst_QtSoapHttpSecurity::certificate_notTrusted_isATransportError()
{
    SKIP_WITHOUT_SECURE_SERVER();
    SoapServer server(answerWith("200 OK", priceAnswer()), secureServer(m_identity), QHostAddress::LocalHost);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, true, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, int(QNetworkReply::SslHandshakeFailedError));
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QVERIFY(!outcome.errorString.isEmpty());
    QCOMPARE(outcome.response.faultString().value().toString(),
             u"Network transport error (6): "_qs + outcome.errorString);
    QCOMPARE(server.requests().size(), 0); // nothing has left
}

void tst_QtSoapHttpSecurity::certificate_trusted_givesTheAnswer()
{
    SKIP_WITHOUT_SECURE_SERVER();
    SoapServer server(answerWith("200 OK", priceAnswer()), secureServer(m_identity), QHostAddress::LocalHost);
    const TrustedAuthority authority(m_identity.certificate);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, true, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, 0);
    QVERIFY(!outcome.response.isFault());
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(server.requests().constFirst().line, "POST /prices HTTP/1.1");
}

void tst_QtSoapHttpSecurity::certificate_ofAnotherHost_isATransportError()
{
    SKIP_WITHOUT_SECURE_SERVER();
    const Identity other = makeIdentity(u"DNS:shop.example"_qs);
    QVERIFY2(other.reasonOfAbsence.isEmpty(), qPrintable(other.reasonOfAbsence));
    SoapServer server(answerWith("200 OK", priceAnswer()), secureServer(other), QHostAddress::LocalHost);
    const TrustedAuthority authority(other.certificate);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, true, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(),
             u"Network transport error (6): "_qs + outcome.errorString);
    QCOMPARE(server.requests().size(), 0);
}

void tst_QtSoapHttpSecurity::certificate_errorsIgnoredByTheHost_givesTheAnswer()
{
    SKIP_WITHOUT_SECURE_SERVER();
    SoapServer server(answerWith("200 OK", priceAnswer()), secureServer(m_identity), QHostAddress::LocalHost);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, true, server.port());
    QList<QSslError> errors;
    connect(transport.networkAccessManager(), &QNetworkAccessManager::sslErrors, this,
            [&errors](QNetworkReply *reply, const QList<QSslError> &found) {
                errors = found;
                reply->ignoreSslErrors();
            });
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.constFirst().error(), QSslError::SelfSignedCertificate);
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);
}

void tst_QtSoapHttpSecurity::plainRequest_toSecurePort_isATransportError()
{
    SKIP_WITHOUT_SECURE_SERVER();
    SoapServer server(answerWith("200 OK", priceAnswer()), secureServer(m_identity), QHostAddress::LocalHost);
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, false, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, int(QNetworkReply::RemoteHostClosedError));
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(), outcome.transportErrorText());
    QCOMPARE(server.requests().size(), 0);
}

void tst_QtSoapHttpSecurity::secureRequest_toPlainPort_isATransportError()
{
    if (!QSslSocket::supportsSsl()) {
        QSKIP("This Qt has no encrypted connections");
    }
    SoapServer server(keepSilent());
    server.setConnectionScript([](QTcpSocket &connection) {
        connect(&connection, &QTcpSocket::readyRead, &connection, [&connection] {
            connection.write(httpAnswer("400 Bad Request", ""));
            connection.disconnectFromHost();
        });
    });
    QtSoapHttpTransport transport;
    transport.setHost(u"127.0.0.1"_qs, true, server.port());
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    // Which of the two depends on Qt's backend.
    QVERIFY2(outcome.error == QNetworkReply::SslHandshakeFailedError
                 || outcome.error == QNetworkReply::RemoteHostClosedError,
             qPrintable(QString::number(outcome.error)));
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(), outcome.transportErrorText());
}

void tst_QtSoapHttpSecurity::proxy_getsTheRequest()
{
    SoapServer proxy(answerWith("200 OK", priceAnswer()));
    QtSoapHttpTransport transport;
    transport.setHost(u"shop.invalid"_qs, 8080); // which only the proxy could find
    transport.networkAccessManager()->setProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, quint16(proxy.port())));
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.response.returnValue().toString(), u"12.50"_qs);
    QCOMPARE(proxy.requests().size(), 1);
    QCOMPARE(proxy.requests().constFirst().line, "POST http://shop.invalid:8080/prices HTTP/1.1");
    QCOMPARE(proxy.requests().constFirst().values("Host"), QByteArrayList{"shop.invalid:8080"});
}

void tst_QtSoapHttpSecurity::proxy_wantsPassword_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("error");

    QTest::newRow("known") << u"secret"_qs << 0;
    QTest::newRow("not known") << QString() << int(QNetworkReply::ProxyAuthenticationRequiredError);
}

void tst_QtSoapHttpSecurity::proxy_wantsPassword()
{
    QFETCH(const QString, password);
    QFETCH(const int, error);

    SoapServer proxy([](QTcpSocket &connection, const ReceivedRequest &request) {
        const bool isKnown
            = request.values("Proxy-Authorization") == QByteArrayList{"Basic " + QByteArray("user:secret").toBase64()};
        connection.write(isKnown ? httpAnswer("200 OK", priceAnswer())
                                 : httpAnswer("407 Proxy Authentication Required", "",
                                              {"Proxy-Authenticate: Basic realm=\"proxy\""}));
    });
    QtSoapHttpTransport transport;
    transport.setHost(u"shop.invalid"_qs, 8080);
    QNetworkProxy settings(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, quint16(proxy.port()));
    if (!password.isEmpty()) {
        settings.setUser(u"user"_qs);
        settings.setPassword(password);
    }
    transport.networkAccessManager()->setProxy(settings);
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QCOMPARE(outcome.error, error);
    QCOMPARE(outcome.response.isFault(), error != 0);
    QCOMPARE(outcome.response.faultString().value().toString(), error != 0 ? outcome.transportErrorText() : QString());
}

void tst_QtSoapHttpSecurity::proxy_refusesTheTunnel_isATransportError()
{
    if (!QSslSocket::supportsSsl()) {
        QSKIP("This Qt has no encrypted connections");
    }
    SoapServer proxy(answerWith("403 Forbidden", "", {"Connection: close"}));
    QtSoapHttpTransport transport;
    transport.setHost(u"shop.invalid"_qs, true);
    transport.networkAccessManager()->setProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_qs, quint16(proxy.port())));
    const Outcome outcome = submitAndWait(transport);
    QVERIFY(outcome.hasCome);
    QVERIFY(!proxy.requests().isEmpty());
    QCOMPARE(proxy.requests().constFirst().line, "CONNECT shop.invalid:443 HTTP/1.1");
    QVERIFY(outcome.error != 0);
    QCOMPARE(outcome.response.faultCode(), QtSoapMessage::Client);
    QCOMPARE(outcome.response.faultString().value().toString(), outcome.transportErrorText());
}

QTEST_GUILESS_MAIN(tst_QtSoapHttpSecurity)
#include "tst_QtSoapHttpSecurity.moc"
