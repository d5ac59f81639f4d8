// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/peers/PeerCall.h"
#include "soap/peers/PeerProcess.h"
#include "soap/peers/PhotoAnswers.h"
#include "soap/peers/RecordingServer.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapSimpleType.h"

#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

using namespace ZYX_zglv6;

namespace {

constexpr int smallest = -2147483647 - 1;
constexpr int largest = 2147483647;

/*! How the arguments of a method stand in the document. */
enum class Arguments { Plain, Qualified, InDefaultNamespace };

struct ServiceRow
{
    const char *name;
    const char *peer;
    Arguments arguments;
};

// Each service with arguments as it describes them, and with those of an unprefixed method, which all take.
constexpr std::array serviceRows{
    ServiceRow{"spyne", "spyne", Arguments::Qualified},
    ServiceRow{"spyne, default namespace", "spyne", Arguments::InDefaultNamespace},
    ServiceRow{"gSOAP", "gSOAP", Arguments::Plain},
    ServiceRow{"gSOAP, default namespace", "gSOAP", Arguments::InDefaultNamespace},
    ServiceRow{"SOAP::Lite", "SOAP::Lite", Arguments::Plain},
    ServiceRow{"SOAP::Lite, default namespace", "SOAP::Lite", Arguments::InDefaultNamespace},
};

void addPeerColumns()
{
    QTest::addColumn<QString>("peer");
    QTest::addColumn<Arguments>("arguments");
}

void addServiceRows()
{
    addPeerColumns();
    for (const ServiceRow &row : serviceRows) {
        QTest::newRow(row.name) << QString::fromLatin1(row.peer) << row.arguments;
    }
}

/*! Without SOAP::Lite, which takes no array whose extent is not stated, and a struct for a hash. */
void addRowsOfServicesWithArrays()
{
    addPeerColumns();
    for (const ServiceRow &row : serviceRows) {
        if (qstrcmp(row.peer, "SOAP::Lite") != 0) {
            QTest::newRow(row.name) << QString::fromLatin1(row.peer) << row.arguments;
        }
    }
}

void addClientRows()
{
    addPeerColumns();
    for (const char *client : {"gSOAP client", "PHP client", "SOAP::Lite client", "suds client", "zeep client"}) {
        QTest::newRow(client) << QString::fromLatin1(client) << Arguments::Plain;
    }
}

} // namespace

/*! Other implementations of SOAP 1.1, as services for our client and as clients whose requests we read. */
class tst_SoapPeers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void echo_text_comesBackAsItIs_data();
    void echo_text_comesBackAsItIs();
    void add_integers_giveTheirSum_data();
    void add_integers_giveTheirSum();
    void negate_boolean_givesTheOther_data();
    void negate_boolean_givesTheOther();
    void rotate_struct_givesStruct_data();
    void rotate_struct_givesStruct();
    void reverse_structOfItems_keepsTheirOrder_data();
    void reverse_structOfItems_keepsTheirOrder();
    void reverse_array_givesEachItem_data();
    void reverse_array_givesEachItem();
    void reverse_arrayTypeWithoutExtent_isRefused_data();
    void reverse_arrayTypeWithoutExtent_isRefused();
    void panorama_arrayOfStructs_isUnderstood_data();
    void panorama_arrayOfStructs_isUnderstood();
    void album_count_givesArrayOfStructs_data();
    void album_count_givesArrayOfStructs();
    void whoCalls_headerItem_isRead_data();
    void whoCalls_headerItem_isRead();
    void fail_codeAndDetail_areInTheFault_data();
    void fail_codeAndDetail_areInTheFault();
    void unknownOperation_givesFaultOfTheClient_data();
    void unknownOperation_givesFaultOfTheClient();
    void add_textForInteger_givesFaultOfTheClient_data();
    void add_textForInteger_givesFaultOfTheClient();
    void service_inputEnds_ends_data();
    void service_inputEnds_ends();
    void setContent_requestOfForeignClient_givesMethodAndArguments_data();
    void setContent_requestOfForeignClient_givesMethodAndArguments();
    void toXmlString_answer_isUnderstoodByForeignClient_data();
    void toXmlString_answer_isUnderstoodByForeignClient();

private:
    QtSoapMessage request(const QString &operation) const;
    QtSoapMessage request(const QString &operation, QtSoapType *argument) const;
    QtSoapQName argumentName(const QString &name) const;
    QtSoapMessage answerTo(const QtSoapMessage &request) const;

    QHash<QString, PeerProgram> m_peers;
    std::map<QString, PeerProcess> m_services;
    QString m_peer;
    QString m_argumentUri;
    int m_port = 0;
};

void tst_SoapPeers::initTestCase()
{
    m_peers = knownPeers();
}

void tst_SoapPeers::init()
{
    QFETCH(const QString, peer);
    QFETCH(const Arguments, arguments);
    QVERIFY(m_peers.contains(peer));
    const PeerProgram program = m_peers.value(peer);
    if (!program.skipReason.isEmpty()) {
        QSKIP(program.skipReason.constData());
    }
    m_peer = peer;
    m_argumentUri = arguments == Arguments::Qualified ? peerNamespace() : QString();
    const QString prefix = arguments == Arguments::InDefaultNamespace ? QString() : u"photo"_qs;
    QtSoapNamespaces::instance().registerNamespace(prefix, peerNamespace());
    if (peer.contains(u"client")) {
        return;
    }
    PeerProcess &service = m_services[peer];
    QVERIFY(service.port() != 0 || service.start(program));
    m_port = service.port();
}

QtSoapQName tst_SoapPeers::argumentName(const QString &name) const
{
    return {name, m_argumentUri};
}

QtSoapMessage tst_SoapPeers::request(const QString &operation) const
{
    QtSoapMessage message;
    message.setMethod(operation, peerNamespace());
    return message;
}

QtSoapMessage tst_SoapPeers::request(const QString &operation, QtSoapType *argument) const
{
    QtSoapMessage message = request(operation);
    message.addMethodArgument(argument);
    return message;
}

QtSoapMessage tst_SoapPeers::answerTo(const QtSoapMessage &request) const
{
    return call(request, m_port);
}

void tst_SoapPeers::echo_text_comesBackAsItIs_data()
{
    addPeerColumns();
    QTest::addColumn<QString>("text");
    const std::array texts{
        std::pair("umlauts", u"\u00c4pfel, M\u00f6wen, Gr\u00f6\u00dfe"_qs),
        std::pair("Japanese and a camera", u"\u65e5\u672c\u8a9e \U0001F4F7"_qs),
        std::pair("markup", u"<photo name=\"a\" & 'b'/> &amp; ]]>"_qs),
        std::pair("spaces and lines", u" two  spaces\n\tand lines\r\n."_qs),
        std::pair("empty", u""_qs),
    };
    for (const ServiceRow &row : serviceRows) {
        for (const auto &[name, text] : texts) {
            QTest::addRow("%s: %s", row.name, name) << QString::fromLatin1(row.peer) << row.arguments << text;
        }
    }
}

void tst_SoapPeers::echo_text_comesBackAsItIs()
{
    QFETCH(const QString, text);
    QtSoapMessage message = request(u"echo"_qs);
    message.addMethodArgument(u"text"_qs, m_argumentUri, text);
    const QtSoapMessage answer = answerTo(message);
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(answer.method().name().name(), u"echoResponse"_qs);
    QCOMPARE(answer.method().name().uri(), peerNamespace());
    QCOMPARE(answer.method().count(), 1);
    QVERIFY(answer.returnValue().isValid());
    QCOMPARE(answer.returnValue().toString(), text);
}

void tst_SoapPeers::add_integers_giveTheirSum_data()
{
    addPeerColumns();
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("sum");
    for (const ServiceRow &row : serviceRows) {
        const QString peer = QString::fromLatin1(row.peer);
        QTest::addRow("%s: below the largest", row.name) << peer << row.arguments << largest << -40 << 2147483607;
        QTest::addRow("%s: largest", row.name) << peer << row.arguments << 0 << largest << largest;
        QTest::addRow("%s: smallest", row.name) << peer << row.arguments << smallest << 0 << smallest;
        QTest::addRow("%s: nothing", row.name) << peer << row.arguments << -7 << 7 << 0;
    }
}

void tst_SoapPeers::add_integers_giveTheirSum()
{
    QFETCH(const int, first);
    QFETCH(const int, second);
    QFETCH(const int, sum);
    QtSoapMessage message = request(u"add"_qs);
    message.addMethodArgument(u"first"_qs, m_argumentUri, first);
    message.addMethodArgument(u"second"_qs, m_argumentUri, second);
    const QtSoapMessage answer = answerTo(message);
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(answer.returnValue().type(), QtSoapType::String); // "xsi:type" may say int, and is not read
    QCOMPARE(answer.returnValue().toString(), QString::number(sum));
    QCOMPARE(answer.returnValue().toInt(), sum);
}

void tst_SoapPeers::negate_boolean_givesTheOther_data()
{
    addServiceRows();
}

void tst_SoapPeers::negate_boolean_givesTheOther()
{
    for (const bool value : {true, false}) {
        QtSoapMessage message = request(u"negate"_qs);
        message.addMethodArgument(u"value"_qs, m_argumentUri, value, 0);
        const QtSoapMessage answer = answerTo(message);
        QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
        QCOMPARE(answer.returnValue().toString(), value ? u"false"_qs : u"true"_qs);
        QCOMPARE(answer.returnValue().toBool(), !value);
    }
}

void tst_SoapPeers::rotate_struct_givesStruct_data()
{
    addServiceRows();
}

void tst_SoapPeers::rotate_struct_givesStruct()
{
    for (const bool isColour : {true, false}) {
        const QtSoapMessage answer = answerTo(request(
            u"rotate"_qs, newPhoto(argumentName(u"photo"_qs), {u"M\u00f6we & Meer.jpg"_qs, 6000, 4000, isColour})));
        QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
        QCOMPARE(answer.returnValue().type(), QtSoapType::Struct);
        QCOMPARE(answer.returnValue().count(), 4);
        QCOMPARE(described(answer.returnValue()),
                 u"M\u00f6we & Meer.jpg, 4000 x 6000, "_qs + (isColour ? u"true"_qs : u"false"_qs));
    }
}

void tst_SoapPeers::reverse_structOfItems_keepsTheirOrder_data()
{
    addRowsOfServicesWithArrays();
}

void tst_SoapPeers::reverse_structOfItems_keepsTheirOrder()
{
    for (const QList<int> &numbers : {QList<int>{smallest, 0, largest, 5}, QList<int>{7}}) {
        auto *const list = new QtSoapStruct(argumentName(u"numbers"_qs));
        for (const int number : numbers) {
            list->insert(new QtSoapSimpleType(argumentName(u"item"_qs), number));
        }
        const QtSoapMessage answer = answerTo(request(u"reverse"_qs, list));
        QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
        QCOMPARE(numbersIn(answer.returnValue()), QList<int>(numbers.crbegin(), numbers.crend()));
    }
}

void tst_SoapPeers::reverse_array_givesEachItem_data()
{
    addRowsOfServicesWithArrays();
}

void tst_SoapPeers::reverse_array_givesEachItem()
{
    auto *const list = new QtSoapArray(argumentName(u"numbers"_qs), QtSoapType::Int, 4);
    QList<int> numbers{-3, 8, 8, largest};
    for (int i = 0; i < numbers.size(); ++i) {
        list->insert(i, new QtSoapSimpleType(argumentName(u"item"_qs), numbers[i]));
    }
    const QtSoapMessage answer = answerTo(request(u"reverse"_qs, list));
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QList<int> answered = numbersIn(answer.returnValue());
    std::sort(answered.begin(), answered.end()); // items are written in no order, and positions are not read
    QCOMPARE(answered, numbers);
}

void tst_SoapPeers::reverse_arrayTypeWithoutExtent_isRefused_data()
{
    addPeerColumns();
    QTest::newRow("SOAP::Lite") << u"SOAP::Lite"_qs << Arguments::Plain;
}

void tst_SoapPeers::reverse_arrayTypeWithoutExtent_isRefused()
{
    auto *const list = new QtSoapArray(argumentName(u"numbers"_qs), QtSoapType::Int, 1);
    list->insert(0, new QtSoapSimpleType(argumentName(u"item"_qs), 7));
    const QtSoapMessage answer = answerTo(request(u"reverse"_qs, list));
    QCOMPARE(answer.faultCode(), QtSoapMessage::Client);
    const QString reason = answer.faultString().toString();
    QVERIFY2(reason.contains(u"format of arrayType attribute '{http://www.w3.org/1999/XMLSchema}int'"),
             qPrintable(reason));
}

void tst_SoapPeers::panorama_arrayOfStructs_isUnderstood_data()
{
    addRowsOfServicesWithArrays();
}

void tst_SoapPeers::panorama_arrayOfStructs_isUnderstood()
{
    auto *const photos = new QtSoapArray(argumentName(u"photos"_qs), QtSoapType::Struct, 3);
    const QtSoapQName item = argumentName(u"item"_qs);
    photos->insert(0, newPhoto(item, {u"left"_qs, 100, 90, true}));
    photos->insert(1, newPhoto(item, {u"middle"_qs, 200, 80, false}));
    photos->insert(2, newPhoto(item, {u"right"_qs, 300, 85, true}));
    const QtSoapMessage answer = answerTo(request(u"panorama"_qs, photos));
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(described(answer.returnValue()), u"panorama, 600 x 80, false"_qs);
}

void tst_SoapPeers::album_count_givesArrayOfStructs_data()
{
    addServiceRows();
}

void tst_SoapPeers::album_count_givesArrayOfStructs()
{
    QtSoapMessage message = request(u"album"_qs);
    message.addMethodArgument(u"count"_qs, m_argumentUri, 3);
    const QtSoapMessage answer = answerTo(message);
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    const QtSoapType &photos = answer.returnValue();
    QCOMPARE(photos.type(), QtSoapType::Struct); // told by its shape
    QCOMPARE(photos.count(), 3);
    QCOMPARE(described(photos[0]), u"photo 0, 100 x 0, false"_qs);
    QCOMPARE(described(photos[1]), u"photo 1, 101 x 10, true"_qs);
    QCOMPARE(described(photos[2]), u"photo 2, 102 x 20, false"_qs);
}

void tst_SoapPeers::whoCalls_headerItem_isRead_data()
{
    addServiceRows();
}

void tst_SoapPeers::whoCalls_headerItem_isRead()
{
    QCOMPARE(answerTo(request(u"whoCalls"_qs)).returnValue().toString(), u"nobody"_qs);

    auto *const caller = new QtSoapStruct(QtSoapQName(u"caller"_qs, peerNamespace()));
    caller->insert(new QtSoapSimpleType(argumentName(u"user"_qs), u"J\u00fcrgen"_qs));
    caller->insert(new QtSoapSimpleType(argumentName(u"machine"_qs), 7));
    QtSoapMessage message;
    message.addHeaderItem(caller);
    message.setMethod(u"whoCalls"_qs, peerNamespace());
    const QtSoapMessage answer = answerTo(message);
    QVERIFY2(!answer.isFault(), qPrintable(answer.faultString().toString()));
    QCOMPARE(answer.method().name().name(), u"whoCallsResponse"_qs); // also behind a header
    QCOMPARE(answer.returnValue().toString(), u"J\u00fcrgen at 7"_qs);
}

void tst_SoapPeers::fail_codeAndDetail_areInTheFault_data()
{
    addServiceRows();
}

void tst_SoapPeers::fail_codeAndDetail_areInTheFault()
{
    for (const auto &[name, code] :
         {std::pair(u"Client"_qs, QtSoapMessage::Client), std::pair(u"Server"_qs, QtSoapMessage::Server)}) {
        QtSoapMessage message = request(u"fail"_qs);
        message.addMethodArgument(u"code"_qs, m_argumentUri, name);
        const QtSoapMessage answer = answerTo(message);
        QVERIFY(answer.isFault());
        QCOMPARE(answer.faultCode(), code);
        QCOMPARE(answer.faultString().toString(), u"Gr\u00f6\u00dfe < 1"_qs);
        QCOMPARE(outline(answer.faultDetail()), u"detail(limit=1)"_qs);
    }
}

void tst_SoapPeers::unknownOperation_givesFaultOfTheClient_data()
{
    addServiceRows();
}

void tst_SoapPeers::unknownOperation_givesFaultOfTheClient()
{
    const QtSoapMessage answer = answerTo(request(u"develop"_qs));
    QVERIFY(answer.isFault());
    QCOMPARE(answer.faultCode(), QtSoapMessage::Client); // spyne's is "Client.ResourceNotFound"
    const QString reason = answer.faultString().toString();
    QVERIFY2(reason.contains(u"develop"), qPrintable(reason));
}

void tst_SoapPeers::add_textForInteger_givesFaultOfTheClient_data()
{
    addServiceRows();
}

void tst_SoapPeers::add_textForInteger_givesFaultOfTheClient()
{
    QtSoapMessage message = request(u"add"_qs);
    message.addMethodArgument(u"first"_qs, m_argumentUri, u"many"_qs);
    message.addMethodArgument(u"second"_qs, m_argumentUri, 1);
    const QtSoapMessage answer = answerTo(message);
    QVERIFY(answer.isFault());
    QCOMPARE(answer.faultCode(), QtSoapMessage::Client); // spyne's is "Client.ValidationError"
    const QHash<QString, QString> reasons{
        {u"spyne"_qs, u"Could not cast 'many' to integer"_qs},
        {u"gSOAP"_qs, u"type mismatch xsd:string in element 'first'"_qs},
        {u"SOAP::Lite"_qs, u"No integer: many"_qs},
    };
    const QString reason = answer.faultString().toString();
    QVERIFY2(reason.contains(reasons.value(m_peer, u"?"_qs)), qPrintable(reason));
}

void tst_SoapPeers::service_inputEnds_ends_data()
{
    addPeerColumns();
    for (const char *service : {"spyne", "gSOAP", "SOAP::Lite"}) {
        QTest::newRow(service) << QString::fromLatin1(service) << Arguments::Plain;
    }
}

void tst_SoapPeers::service_inputEnds_ends()
{
    PeerProcess service; // what keeps a service from outliving this program, however it ends
    QVERIFY(service.start(m_peers.value(m_peer)));
    QVERIFY(service.endByInput());
}

void tst_SoapPeers::setContent_requestOfForeignClient_givesMethodAndArguments_data()
{
    addClientRows();
}

void tst_SoapPeers::setContent_requestOfForeignClient_givesMethodAndArguments()
{
    RecordingServer server(&photoAnswer);
    runClient(m_peers.value(m_peer), server.url());
    const QStringList expected{
        u"echo(text=\u00c4pfel <&> \u65e5\u672c\u8a9e)"_qs,
        u"add(first=2147483647 second=-40)"_qs,
        u"negate(value=false)"_qs,
        u"rotate(photo(name=M\u00f6we.jpg width=6000 height=4000 isColour=true))"_qs,
    };
    QStringList read;
    const QList<QByteArray> bodies = server.bodies();
    for (const QByteArray &body : bodies) {
        QtSoapMessage message;
        QVERIFY2(message.setContent(body), body.constData());
        QVERIFY(!message.isFault());
        QCOMPARE(message.method().name().uri(), peerNamespace());
        read += outline(message.method());
    }
    QCOMPARE(read, expected);
}

void tst_SoapPeers::toXmlString_answer_isUnderstoodByForeignClient_data()
{
    addClientRows();
}

void tst_SoapPeers::toXmlString_answer_isUnderstoodByForeignClient()
{
    RecordingServer server(&photoAnswer);
    const QString output = runClient(m_peers.value(m_peer), server.url());
    QCOMPARE(output,
             u"echo \u00c4pfel <&> \u65e5\u672c\u8a9e\n"
             "add 2147483607\n"
             "negate true\n"
             "rotate M\u00f6we.jpg 4000 6000 true\n"_qs);
}

QTEST_GUILESS_MAIN(tst_SoapPeers)
#include "tst_SoapPeers.moc"
