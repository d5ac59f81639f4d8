// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/SoapDocuments.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapSimpleType.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <functional>

using namespace ZYX_zglv6;
using namespace SoapDocuments;

using MessageFunction = std::function<void(OpenMessage &)>;
Q_DECLARE_METATYPE(MessageFunction)
Q_DECLARE_METATYPE(ZYX_zglv6::QtSoapMessage::FaultCode)

namespace {

const QString envelopeUri = u"http://schemas.xmlsoap.org/soap/envelope/"_qs;
const QString invalidStructure = u"SOAP structure invalid"_qs;
const QString noBody = u"extra: mandatory body element missing"_qs;

QStringList messages; // of the debug level

void keepMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtDebugMsg) {
        messages.append(text);
    }
}

/*! A fault as a service sends it. */
QByteArray fault(const QByteArray &members)
{
    return inBody("<e:Fault>" + members + "</e:Fault>");
}

/*! A text that SOAP knows, tagged as any type. */
class TypedCode : public QtSoapType
{
public:
    explicit TypedCode(Type type)
        : QtSoapType(QtSoapQName(u"faultcode"_qs), type)
    {
    }

    bool isValid() const override
    {
        return true;
    }

    QVariant value() const override
    {
        return u"Client"_qs;
    }
};

void addDocumentColumns()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("detail");
}

} // namespace

class tst_QtSoapFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setContent_invalidStructure_isFault_data();
    void setContent_invalidStructure_isFault();
    void setContent_documentReadWithoutNamespaces_isFault();
    void setContent_withoutElement_leavesNoFault_data();
    void setContent_withoutElement_leavesNoFault();
    void setContent_instructionAlone_leavesNoFault();
    void setContent_notXml_isFaultWithPlace_data();
    void setContent_notXml_isFaultWithPlace();
    void setContent_unreadableEnvelope_isFault_data();
    void setContent_unreadableEnvelope_isFault();
    void setContent_unreadableEnvelopeWithFault_isVersionMismatch();
    void setContent_failsTwice_firstReasonIsFound();
    void setContent_failsBehindOtherFault_isFault_data();
    void setContent_failsBehindOtherFault_isFault();
    void setContent_failsBehindMethod_keepsIt();
    void faultCode_sentCode_isRecognised_data();
    void faultCode_sentCode_isRecognised();
    void faultCode_otherTypeThanText_isOther_data();
    void faultCode_otherTypeThanText_isOther();
    void faultCode_severalCodes_firstCounts();
    void faultCode_setCode_isReadBack_data();
    void faultCode_setCode_isReadBack();
    void setFaultCode_outOfRange_insertsEmptyText();
    void setFaultString_alone_isNoFault();
    void setFaultString_twice_firstIsFound();
    void standardFault_isRead();
    void faultString_faultWithoutNamespace_isNotFound();
    void faultDetail_findsOnlyWhatWasSent_data();
    void faultDetail_findsOnlyWhatWasSent();
    void faultDetail_localDetail_isNotFound();
    void addFaultDetail_twice_fillsOneStruct();
    void setFaultCode_behindMethod_standsBesideIt();
    void setMethod_behindFault_standsBesideIt();
    void clear_fault_isForgotten();
};

void tst_QtSoapFaults::setContent_invalidStructure_isFault_data()
{
    addDocumentColumns();
    const QString notEnvelope = u"extra: root element \"%1\"/\"%2\" is not envelope"_qs;
    const QString otherNamespace = u"extra: Unsupported namespace for envelope element"_qs;

    QTest::newRow("other root") << QByteArray("<a/>") << notEnvelope.arg(u"a"_qs, u"a"_qs);
    QTest::newRow("other root with prefix")
        << QByteArray("<b:a xmlns:b='urn:b'/>") << notEnvelope.arg(u"a"_qs, u"a"_qs);
    QTest::newRow("other root behind the declaration")
        << QByteArray("<?xml version='1.0'?><a/>") << notEnvelope.arg(u"a"_qs, u"a"_qs);
    QTest::newRow("placeholders in the name") << QByteArray("<_.1/>") << notEnvelope.arg(u"_.1"_qs, u"_.1"_qs);
    QTest::newRow("longer name") << envelope({}).replace("Envelope", "Envelopes")
                                 << notEnvelope.arg(u"Envelopes"_qs, u"Envelopes"_qs);
    QTest::newRow("empty envelope") << envelope({}) << noBody;
    QTest::newRow("text in the envelope") << envelope("a") << noBody;
    QTest::newRow("text in front of the body") << envelope("a<e:Body/>") << noBody;
    QTest::newRow("comment in front of the body") << envelope("<!-- a --><e:Body/>") << noBody;
    QTest::newRow("instruction in front of the body") << envelope("<?a?><e:Body/>") << noBody;
    QTest::newRow("header only") << envelope("<e:Header/>") << noBody;
    QTest::newRow("text behind the header") << envelope("<e:Header/>a<e:Body/>") << noBody;
    QTest::newRow("comment behind the header") << envelope("<e:Header/><!-- a --><e:Body/>") << noBody;
    QTest::newRow("two headers") << envelope("<e:Header/><e:Header/><e:Body/>") << noBody;
    QTest::newRow("other element") << envelope("<a/><e:Body/>") << noBody;
    QTest::newRow("other element behind the header") << envelope("<e:Header/><a/><e:Body/>") << noBody;
    QTest::newRow("other namespace") << QByteArray("<Envelope xmlns='urn:a'><Body/></Envelope>") << otherNamespace;
    QTest::newRow("no namespace") << QByteArray("<Envelope><Body/></Envelope>") << otherNamespace;
    QTest::newRow("namespace of SOAP 1.2")
        << QByteArray("<Envelope xmlns='http://www.w3.org/2003/05/soap-envelope'><Body/></Envelope>") << otherNamespace;
    QTest::newRow("namespace in other case")
        << inBody({}).replace("schemas.xmlsoap.org", "Schemas.xmlsoap.org") << otherNamespace;
    QTest::newRow("other namespace and no body") << QByteArray("<Envelope xmlns='urn:a'><a/></Envelope>") << noBody;
}

void tst_QtSoapFaults::setContent_invalidStructure_isFault()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, detail);

    QtSoapMessage message;
    QVERIFY(!message.setContent(document));
    QVERIFY(message.isFault());
    QCOMPARE(message.faultCode(), QtSoapMessage::VersionMismatch);
    QCOMPARE(message.faultString().toString(), invalidStructure);
    QCOMPARE(writtenDetails(message), QStringList(detail));
    QCOMPARE(message.errorString(), QString());

    QDomDocument parsed;
    QVERIFY(parsed.setContent(document, true));
    QtSoapMessage byDocument;
    QVERIFY(!byDocument.setContent(parsed));
    QCOMPARE(written(byDocument), written(message));

    OpenMessage validator;
    QVERIFY(!validator.isValidSoapMessage(parsed));
    QCOMPARE(written(validator), written(message));
}

void tst_QtSoapFaults::setContent_documentReadWithoutNamespaces_isFault()
{
    QDomDocument parsed;
    QVERIFY(parsed.setContent(QByteArray("<b:a/>"), false));
    QtSoapMessage message;
    QVERIFY(!message.setContent(parsed));
    QCOMPARE(writtenDetails(message), QStringList(u"extra: root element \"\"/\"b:a\" is not envelope"_qs));

    QVERIFY(parsed.setContent(inBody({}), false)); // the tags pass, without their prefix
    QtSoapMessage envelopeMessage;
    QVERIFY(!envelopeMessage.setContent(parsed));
    QCOMPARE(writtenDetails(envelopeMessage), QStringList(u"extra: Unsupported namespace for envelope element"_qs));
}

void tst_QtSoapFaults::setContent_withoutElement_leavesNoFault_data()
{
    QTest::addColumn<QByteArray>("document"); // empty: a null document

    QTest::newRow("no document") << QByteArray();
    QTest::newRow("comment in front") << QByteArray("<!-- a -->" + inBody({}));
    QTest::newRow("comment behind the declaration") << QByteArray("<?xml version='1.0'?><!-- a -->" + inBody({}));
    QTest::newRow("two instructions") << QByteArray("<?a?><?b?>" + inBody({}));
    QTest::newRow("instruction behind the declaration") << QByteArray("<?xml version='1.0'?><?b?>" + inBody({}));
}

void tst_QtSoapFaults::setContent_withoutElement_leavesNoFault()
{
    QFETCH(const QByteArray, document);

    QDomDocument parsed;
    QVERIFY(document.isEmpty() || parsed.setContent(document, true));
    QtSoapMessage byDocument;
    QVERIFY(!byDocument.setContent(parsed));
    QVERIFY(!byDocument.isFault());
    QVERIFY(!byDocument.faultString().isValid());
    QCOMPARE(writtenDetails(byDocument), QStringList());
    if (!document.isEmpty()) { // no bytes are no XML
        QtSoapMessage message;
        QVERIFY(!message.setContent(document));
        QVERIFY(!message.isFault());
        QCOMPARE(message.errorString(), QString());
    }
}

void tst_QtSoapFaults::setContent_instructionAlone_leavesNoFault()
{
    QDomDocument document;
    document.appendChild(document.createProcessingInstruction(u"a"_qs, u"b"_qs));
    OpenMessage message;
    QVERIFY(!message.setContent(document));
    QVERIFY(!message.isValidSoapMessage(document));
    QVERIFY(!message.isFault());
    QCOMPARE(writtenDetails(message), QStringList());
}

void tst_QtSoapFaults::setContent_notXml_isFaultWithPlace_data()
{
    QTest::addColumn<QByteArray>("document");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("Service unavailable");
    QTest::newRow("open") << QByteArray("<a>\n <b>\n");
    QTest::newRow("crossed") << QByteArray("<a><b></a></b>");
    QTest::newRow("web page") << QByteArray("<html><body><br></body></html>");
    QTest::newRow("unknown prefix") << QByteArray("<a:b/>");
    QTest::newRow("two roots") << QByteArray("<a/><b/>");
    QTest::newRow("instruction alone") << QByteArray("<?a b?>");
}

void tst_QtSoapFaults::setContent_notXml_isFaultWithPlace()
{
    QFETCH(const QByteArray, document);

    QDomDocument parsed;
    QString reason;
    int line = 0;
    int column = 0;
    QVERIFY(!parsed.setContent(document, true, &reason, &line, &column));

    QtSoapMessage message;
    QVERIFY(!message.setContent(document));
    QVERIFY(message.isFault());
    QCOMPARE(message.faultCode(), QtSoapMessage::VersionMismatch);
    QCOMPARE(message.faultString().toString(), u"XML parse error"_qs);
    QCOMPARE(writtenDetails(message),
             QStringList(u"ParseError: "_qs + reason + u" at line " + QString::number(line) + u", column "
                         + QString::number(column)));
    QVERIFY(!reason.isEmpty());
}

void tst_QtSoapFaults::setContent_unreadableEnvelope_isFault_data()
{
    addDocumentColumns();
    const QString text = u"In the struct element Envelope, the %1th child is not an element."_qs;
    const QString member = u"In the struct element Envelope, child #%1, %2, was not recognized as a SOAP type."_qs;

    QTest::newRow("text behind the body") << envelope("<e:Body/>a") << text.arg(1);
    QTest::newRow("comments count") << envelope("<e:Body/><!-- a --><!-- b --><?c?>") << text.arg(3);
    QTest::newRow("text in the body") << inBody("<a/>b") << member.arg(QString::number(0), u"Body"_qs);
    QTest::newRow("no number") << inBody("<a><b type='int'>x</b></a>") << member.arg(QString::number(0), u"Body"_qs);
    QTest::newRow("text in the header") << envelope("<e:Header><a/>b</e:Header><e:Body/>")
                                        << member.arg(QString::number(0), u"Header"_qs);
    QTest::newRow("body behind a header")
        << envelope("<e:Header/><e:Body><a/>b</e:Body>") << member.arg(QString::number(1), u"Body"_qs);
    QTest::newRow("body of text as a struct")
        << envelope("<e:Body type='struct'>a</e:Body>") << member.arg(QString::number(0), u"Body"_qs);
}

void tst_QtSoapFaults::setContent_unreadableEnvelope_isFault()
{
    QFETCH(const QByteArray, document);
    QFETCH(const QString, detail);

    QtSoapMessage message;
    messages.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepMessage);
    const bool isRead = message.setContent(document);
    qInstallMessageHandler(before);
    QVERIFY(!isRead);
    QCOMPARE(messages, QStringList(u"QtSoapMessage::setContent(), parsing failed: "_qs + detail));
    QCOMPARE(message.faultCode(), QtSoapMessage::VersionMismatch);
    QCOMPARE(message.faultString().toString(), invalidStructure);
    QCOMPARE(writtenDetails(message), QStringList(u"extra: "_qs + detail));

    QDomDocument parsed;
    QVERIFY(parsed.setContent(document, true));
    QtSoapMessage byDocument;
    messages.clear();
    qInstallMessageHandler(keepMessage);
    const bool isReadByDocument = byDocument.setContent(parsed);
    qInstallMessageHandler(before);
    QVERIFY(!isReadByDocument);
    QCOMPARE(messages, QStringList()); // this one is silent
    QVERIFY(byDocument.isFault());
    QCOMPARE(byDocument.faultString().toString(), invalidStructure);
    QCOMPARE(writtenDetails(byDocument), QStringList(u"extra: "_qs + detail));
}

void tst_QtSoapFaults::setContent_unreadableEnvelopeWithFault_isVersionMismatch()
{
    const QByteArray sent = envelope("<e:Body><e:Fault><faultcode>Mine</faultcode></e:Fault></e:Body>a");
    const QRegularExpression debugLine(u"^QtSoapMessage::setContent\\(\\), parsing failed: "_qs);
    QTest::ignoreMessage(QtDebugMsg, debugLine);
    QtSoapMessage message;
    QVERIFY(!message.setContent(sent));
    QVERIFY(message.isFault());
    QCOMPARE(message.faultCode(), QtSoapMessage::VersionMismatch);
    QCOMPARE(message.faultString().toString(), invalidStructure);

    QTest::ignoreMessage(QtDebugMsg, debugLine);
    QtSoapMessage plainName;
    QVERIFY(!plainName.setContent(envelope("<e:Body><Fault>a</Fault></e:Body>a")));
    QVERIFY(plainName.isFault());
}

void tst_QtSoapFaults::setContent_failsTwice_firstReasonIsFound()
{
    QtSoapMessage message;
    QVERIFY(!message.setContent(QByteArray("<a/>")));
    QVERIFY(!message.setContent(QByteArray("text")));
    QCOMPARE(message.faultString().toString(), invalidStructure);
    QCOMPARE(writtenDetails(message).size(), 2);
    QVERIFY(message.setContent(inBody("<a><b>1</b></a>")));
    QVERIFY(!message.isFault());
}

void tst_QtSoapFaults::setContent_failsBehindOtherFault_isFault_data()
{
    QTest::addColumn<MessageFunction>("prepare");

    const auto add = [](const char *name, const MessageFunction &prepare) { QTest::newRow(name) << prepare; };
    const auto addRead = [&add](const char *name, const QByteArray &document) {
        add(name, [document](OpenMessage &message) { QVERIFY(message.setContent(document)); });
    };
    addRead("unknown code", fault("<faultcode>Mine</faultcode><faultstring>a</faultstring>"));
    addRead("unknown code behind a method", inBody("<a/><e:Fault><faultcode>Mine</faultcode></e:Fault>"));
    addRead("code of no text", fault("<faultcode><a>Server</a></faultcode>"));
    addRead("no code", fault("<faultstring>a</faultstring>"));
    addRead("text", inBody("<e:Fault>text</e:Fault>"));
    addRead("text in no namespace", inBody("<fault>text</fault>"));
    addRead("array", inBody("<e:Fault type='array'><faultcode>Server</faultcode></e:Fault>"));
    addRead("without namespace", inBody("<Fault><faultcode>Mine</faultcode></Fault>"));
    add("method of this name", [](OpenMessage &message) { message.setMethod(u"Fault"_qs, QString()); });
    add("text of this name",
        [](OpenMessage &message) { message.addBodyItem(new QtSoapSimpleType(QtSoapQName(u"Fault"_qs), u"a"_qs)); });
    add("code Other", [](OpenMessage &message) { message.setFaultCode(QtSoapMessage::Other); });
    add("fault string alone", [](OpenMessage &message) { message.setFaultString(u"a"_qs); });
}

void tst_QtSoapFaults::setContent_failsBehindOtherFault_isFault()
{
    QFETCH(const MessageFunction, prepare);

    OpenMessage message;
    prepare(message);
    QVERIFY(!message.isFault());
    QVERIFY(!message.setContent(QByteArray("garbage")));
    QVERIFY(message.isFault());
    QCOMPARE(message.faultCode(), QtSoapMessage::VersionMismatch);
    QCOMPARE(message.faultString().toString(), u"XML parse error"_qs);
    QCOMPARE(writtenDetails(message).size(), 1);

    const QtMessageHandler before = qInstallMessageHandler(keepMessage);
    for (const QByteArray &document : {QByteArray("<a/>"), envelope({}), envelope("<e:Body/>a")}) {
        OpenMessage other;
        prepare(other);
        QVERIFY(!other.setContent(document));
        QCOMPARE(other.faultCode(), QtSoapMessage::VersionMismatch);
        QCOMPARE(other.faultString().toString(), invalidStructure);

        QDomDocument parsed;
        QVERIFY(parsed.setContent(document, true));
        OpenMessage byDocument;
        prepare(byDocument);
        QVERIFY(!byDocument.setContent(parsed));
        QCOMPARE(byDocument.faultCode(), QtSoapMessage::VersionMismatch);
        QCOMPARE(byDocument.faultString().toString(), invalidStructure);
    }
    qInstallMessageHandler(before);
}

void tst_QtSoapFaults::setContent_failsBehindMethod_keepsIt()
{
    for (const QByteArray &document : {QByteArray("garbage"), QByteArray("<a/>")}) {
        OpenMessage message;
        message.addHeaderItem(new QtSoapSimpleType(QtSoapQName(u"a"_qs), 1));
        message.setMethod(u"b"_qs, u"urn:b"_qs);
        message.addMethodArgument(u"c"_qs, QString(), 2);
        QVERIFY(!message.setContent(document));
        QVERIFY(message.isFault());
        QCOMPARE(message.header().count(), 1);
        QCOMPARE(message.body().count(), 2);
        QCOMPARE(message.method().name().name(), u"b"_qs);
        QCOMPARE(message.method().name().uri(), u"urn:b"_qs);
        QCOMPARE(message.returnValue().toInt(), 2);
    }
}

void tst_QtSoapFaults::faultCode_sentCode_isRecognised_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QtSoapMessage::FaultCode>("expected");

    const auto addRow = [](const char *name, const char *text, QtSoapMessage::FaultCode expected) {
        QTest::newRow(name) << "<faultcode>" + QByteArray(text) + "</faultcode>" << expected;
    };
    addRow("version mismatch", "SOAP-ENV:VersionMismatch", QtSoapMessage::VersionMismatch);
    addRow("must understand", "SOAP-ENV:MustUnderstand", QtSoapMessage::MustUnderstand);
    addRow("client", "SOAP-ENV:Client", QtSoapMessage::Client);
    addRow("server", "SOAP-ENV:Server", QtSoapMessage::Server);
    addRow("more detailed", "SOAP-ENV:Server.Busy", QtSoapMessage::Server);
    addRow("more detailed twice", "SOAP-ENV:Client.Timeout.Read", QtSoapMessage::Client);
    addRow("no prefix", "Client", QtSoapMessage::Client);
    addRow("other prefix", "a:client", QtSoapMessage::Client);
    addRow("other case", "soap-env:SERVER", QtSoapMessage::Server);
    addRow("two prefixes", "a:b:Server", QtSoapMessage::Other);
    addRow("colon in front", ":Server", QtSoapMessage::Other);
    addRow("point in the prefix", "a.b:Server", QtSoapMessage::Other);
    addRow("point in front", ".Server", QtSoapMessage::Other);
    addRow("space in front", " SOAP-ENV:Server", QtSoapMessage::Server); // goes with the prefix
    addRow("space behind", "SOAP-ENV:Server ", QtSoapMessage::Other);
    addRow("longer", "SOAP-ENV:Servers", QtSoapMessage::Other);
    addRow("other", "Other", QtSoapMessage::Other);
    addRow("empty", "", QtSoapMessage::Other);

    const auto addTyped = [](const char *name, const QByteArray &element, QtSoapMessage::FaultCode expected) {
        QTest::newRow(name) << element << expected;
    };
    addTyped("no code", "<faultstring>a</faultstring>", QtSoapMessage::Other);
    addTyped("token", "<faultcode type='xsd:token'>Server</faultcode>", QtSoapMessage::Other);
    addTyped("qualified name", "<faultcode type='xsd:QName'>a:Server</faultcode>", QtSoapMessage::Server);
    addTyped("name", "<faultcode type='xsd:Name'>Server</faultcode>", QtSoapMessage::Other);
    addTyped("unknown type", "<faultcode type='a'>Server</faultcode>", QtSoapMessage::Other);
    addTyped("prefixed type is not looked at",
             "<faultcode xmlns:xsi='http://www.w3.org/1999/XMLSchema-instance' xsi:type='xsd:int'>Server</faultcode>",
             QtSoapMessage::Server);
    addTyped("struct", "<faultcode><a>Server</a></faultcode>", QtSoapMessage::Other);
    addTyped("any case", "<FAULTCODE>Server</FAULTCODE>", QtSoapMessage::Server);
    addTyped("any namespace", "<e:faultcode>Server</e:faultcode>", QtSoapMessage::Server);
    addTyped("longer name", "<faultcodes>Server</faultcodes>", QtSoapMessage::Other);
}

void tst_QtSoapFaults::faultCode_sentCode_isRecognised()
{
    QFETCH(const QByteArray, code);
    QFETCH(const QtSoapMessage::FaultCode, expected);

    QtSoapMessage message;
    QVERIFY(message.setContent(fault(code)));
    QCOMPARE(message.faultCode(), expected);
    QCOMPARE(message.isFault(), expected != QtSoapMessage::Other);
}

void tst_QtSoapFaults::faultCode_otherTypeThanText_isOther_data()
{
    QTest::addColumn<int>("type");

    for (int type = 0; type <= QtSoapType::Other; ++type) {
        QTest::newRow(qPrintable(QtSoapType::typeToName(QtSoapType::Type(type)))) << type;
    }
}

void tst_QtSoapFaults::faultCode_otherTypeThanText_isOther()
{
    QFETCH(const int, type);

    QtSoapMessage message;
    auto *const fault = new QtSoapStruct(QtSoapQName(u"Fault"_qs));
    message.addBodyItem(fault);
    fault->insert(new TypedCode(QtSoapType::Type(type)));
    const bool isText = type == QtSoapType::String || type == QtSoapType::QName;
    QCOMPARE(message.faultCode(), isText ? QtSoapMessage::Client : QtSoapMessage::Other);
    QCOMPARE(message.isFault(), isText);
}

void tst_QtSoapFaults::faultCode_severalCodes_firstCounts()
{
    QtSoapMessage message;
    message.setFaultCode(QtSoapMessage::Server);
    message.setFaultCode(QtSoapMessage::Client);
    QCOMPARE(message.faultCode(), QtSoapMessage::Server);
    QCOMPARE(message.toXmlString().count(u"</Faultcode>"), 2);

    QtSoapMessage other;
    other.setFaultCode(QtSoapMessage::Other);
    other.setFaultCode(QtSoapMessage::Client);
    QVERIFY(!other.isFault());
}

void tst_QtSoapFaults::faultCode_setCode_isReadBack_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");

    QTest::newRow("version mismatch") << 0 << u"SOAP-ENV:VersionMismatch"_qs;
    QTest::newRow("must understand") << 1 << u"SOAP-ENV:MustUnderstand"_qs;
    QTest::newRow("client") << 2 << u"SOAP-ENV:Client"_qs;
    QTest::newRow("server") << 3 << u"SOAP-ENV:Server"_qs;
    QTest::newRow("other") << 4 << u"Other"_qs;
}

void tst_QtSoapFaults::faultCode_setCode_isReadBack()
{
    QFETCH(const int, code);
    QFETCH(const QString, text);

    OpenMessage message;
    message.setFaultCode(QtSoapMessage::FaultCode(code));
    QCOMPARE(int(message.faultCode()), code);
    QCOMPARE(message.isFault(), code != 4);
    const QtSoapStruct &body = message.body();
    QCOMPARE(body.count(), 1);
    QCOMPARE(body[0].name().name(), u"Fault"_qs);
    QCOMPARE(body[0].name().uri(), envelopeUri);
    QCOMPARE(body[0].count(), 1);
    QCOMPARE(body[0][0].name().name(), u"Faultcode"_qs);
    QCOMPARE(body[0][0].name().uri(), QString());
    QCOMPARE(body[0][0].type(), QtSoapType::String);
    QCOMPARE(body[0][0].toString(), text);
}

void tst_QtSoapFaults::setFaultCode_outOfRange_insertsEmptyText()
{
    for (const int code : {-1, 5, 7}) { // 7 is the last that the enumeration can hold
        OpenMessage message;
        // NOLINTNEXTLINE(clang-analyzer-optin.core.EnumCastOutOfRange): hosts get here
        message.setFaultCode(static_cast<QtSoapMessage::FaultCode>(code));
        QVERIFY(!message.isFault());
        const QtSoapType &added = message.body()[u"Fault"_qs][u"Faultcode"_qs];
        QVERIFY(added.isValid());
        QCOMPARE(added.value(), QVariant(QString()));
        message.setFaultCode(QtSoapMessage::Client);
        QVERIFY(!message.isFault()); // the empty one is the first
    }
}

void tst_QtSoapFaults::setFaultString_alone_isNoFault()
{
    QtSoapMessage message;
    message.setFaultString(u"a"_qs);
    message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(u"b"_qs), 1));
    QVERIFY(!message.isFault());
    QCOMPARE(message.faultString().toString(), u"a"_qs);
    QCOMPARE(message.faultString().name().uri(), QString());
}

void tst_QtSoapFaults::setFaultString_twice_firstIsFound()
{
    QtSoapMessage message;
    message.setFaultString(u"a"_qs);
    message.setFaultString(u"b"_qs);
    QCOMPARE(message.faultString().toString(), u"a"_qs);
    QCOMPARE(message.toXmlString().count(u"</Faultstring>"), 2);
}

void tst_QtSoapFaults::standardFault_isRead()
{
    QtSoapMessage message;
    QVERIFY(message.setContent(fault("<faultcode>SOAP-ENV:Server</faultcode><faultstring>Out of paper</faultstring>"
                                     "<faultactor>urn:b</faultactor><detail><tray>2</tray></detail>")));
    QVERIFY(message.isFault());
    QCOMPARE(message.faultString().toString(), u"Out of paper"_qs);
    QCOMPARE(message.faultDetail()[u"tray"_qs].toString(), u"2"_qs);
    QCOMPARE(message.method().name().name(), u"Fault"_qs);
    QCOMPARE(message.returnValue().toString(), u"SOAP-ENV:Server"_qs);
}

void tst_QtSoapFaults::faultString_faultWithoutNamespace_isNotFound()
{
    QtSoapMessage message;
    QVERIFY(message.setContent(inBody("<Fault><faultcode>Server</faultcode><faultstring>a</faultstring>"
                                      "<detail>b</detail></Fault>")));
    QVERIFY(message.isFault()); // the code is looked up without the namespace
    QVERIFY(!message.faultString().isValid());
    QVERIFY(!message.faultDetail().isValid());
}

void tst_QtSoapFaults::faultDetail_findsOnlyWhatWasSent_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("lower case") << QByteArray("<detail>a</detail>") << true;
    QTest::newRow("upper case") << QByteArray("<DETAIL>a</DETAIL>") << true;
    QTest::newRow("with namespace") << QByteArray("<e:Detail>a</e:Detail>") << true;
    QTest::newRow("other spelling") << QByteArray("<e:Faultdetail>a</e:Faultdetail>") << false;
    QTest::newRow("none") << QByteArray("<faultcode>Server</faultcode>") << false;
}

void tst_QtSoapFaults::faultDetail_findsOnlyWhatWasSent()
{
    QFETCH(const QByteArray, members);
    QFETCH(const bool, isFound);

    QtSoapMessage message;
    QVERIFY(message.setContent(fault(members)));
    QCOMPARE(message.faultDetail().isValid(), isFound);
    QCOMPARE(message.faultDetail().toString(), isFound ? u"a"_qs : QString());
}

void tst_QtSoapFaults::faultDetail_localDetail_isNotFound()
{
    QtSoapMessage message;
    message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(u"a"_qs), u"b"_qs));
    QVERIFY(!message.faultDetail().isValid());
    QCOMPARE(writtenDetails(message), QStringList(u"a: b"_qs));

    QtSoapMessage reader;
    QVERIFY(reader.setContent(message.toXmlString().toUtf8()));
    QVERIFY(!reader.faultDetail().isValid());
}

void tst_QtSoapFaults::addFaultDetail_twice_fillsOneStruct()
{
    OpenMessage message;
    message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(u"a"_qs), 1));
    message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(u"b"_qs), 2));
    const QtSoapType &fault = message.body()[u"Fault"_qs];
    QCOMPARE(fault.count(), 1);
    QCOMPARE(fault[0].name().name(), u"Faultdetail"_qs);
    QCOMPARE(fault[0].name().uri(), envelopeUri);
    QCOMPARE(writtenDetails(message), QStringList({u"a: 1"_qs, u"b: 2"_qs}));
}

void tst_QtSoapFaults::setFaultCode_behindMethod_standsBesideIt()
{
    OpenMessage message;
    message.setMethod(u"a"_qs, QString());
    message.addHeaderItem(new QtSoapSimpleType(QtSoapQName(u"b"_qs), 1));
    message.setFaultCode(QtSoapMessage::Server); // clears nothing: the message has not become a request
    message.setFaultString(u"c"_qs);
    message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(u"d"_qs), 1));
    QCOMPARE(message.body().count(), 2);
    QCOMPARE(message.header().count(), 1);
    QCOMPARE(message.method().name().name(), u"a"_qs);
    QCOMPARE(message.faultCode(), QtSoapMessage::Server);
    QCOMPARE(message.errorString(), QString());
}

void tst_QtSoapFaults::setMethod_behindFault_standsBesideIt()
{
    OpenMessage message;
    message.setFaultCode(QtSoapMessage::Client);
    message.setMethod(u"a"_qs, QString());
    message.setFaultCode(QtSoapMessage::Server);
    QCOMPARE(message.body().count(), 2);
    QCOMPARE(message.method().name().name(), u"Fault"_qs);
    QCOMPARE(message.method().count(), 2);
    QCOMPARE(message.faultCode(), QtSoapMessage::Client);
    QCOMPARE(message.errorString(), QString());

    QtSoapMessage cleared;
    cleared.clear();
    cleared.setFaultCode(QtSoapMessage::Client);
    cleared.setMethod(u"a"_qs, QString());
    QVERIFY(cleared.isFault()); // as in a fresh one
}

void tst_QtSoapFaults::clear_fault_isForgotten()
{
    QtSoapMessage message;
    QVERIFY(!message.setContent(QByteArray("text")));
    message.clear();
    QVERIFY(!message.isFault());
    QVERIFY(!message.faultString().isValid());
    QCOMPARE(message.errorString(), u"Unknown error"_qs);
}

QTEST_GUILESS_MAIN(tst_QtSoapFaults)

#include "tst_QtSoapFaults.moc"
