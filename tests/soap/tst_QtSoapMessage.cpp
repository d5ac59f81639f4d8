// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/SoapDocuments.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapSimpleType.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>

using namespace ZYX_zglv6;
using namespace SoapDocuments;

using MessageFunction = std::function<void(QtSoapMessage &)>;
Q_DECLARE_METATYPE(MessageFunction)

namespace {

const QString envelopeUri = u"http://schemas.xmlsoap.org/soap/envelope/"_qs;

QtSoapSimpleType *text(const QString &name, const QString &value)
{
    return new QtSoapSimpleType(QtSoapQName(name), value);
}

void composeRequest(QtSoapMessage &message)
{
    message.setMethod(u"orderPrints"_qs, u"urn:example:prints"_qs);
    message.addMethodArgument(u"paper"_qs, QString(), u"\u043c\u0430\u0442 & <b> \"10x15\" ]]>"_qs);
    message.addMethodArgument(u"border"_qs, u"urn:example:prints"_qs, true, 0);
    message.addMethodArgument(u"copies"_qs, QString(), -12);
}

void composeValues(QtSoapMessage &message)
{
    message.addHeaderItem(text(u"session"_qs, u"4711"_qs));
    message.setMethod(QtSoapQName(u"upload"_qs));
    auto *const photo = new QtSoapStruct(QtSoapQName(u"photo"_qs));
    photo->insert(text(u"name"_qs, u" a  b "_qs));
    photo->insert(new QtSoapStruct(QtSoapQName(u"place"_qs, u"urn:example:place"_qs)));
    message.addMethodArgument(photo);
    auto *const rating = new QtSoapArray(QtSoapQName(u"ratings"_qs), QtSoapType::Int, 2, 3);
    rating->insert(1, 2, new QtSoapSimpleType(QtSoapQName(u"rating"_qs), 5));
    message.addMethodArgument(rating);
}

void composeFault(QtSoapMessage &message)
{
    message.setFaultCode(QtSoapMessage::Client);
    message.setFaultString(u"No such album"_qs);
    message.addFaultDetail(text(u"album"_qs, u"Summer"_qs));
}

void composeMethodAndFault(QtSoapMessage &message)
{
    message.setMethod(u"a"_qs, QString());
    message.setFaultCode(QtSoapMessage::Server);
    message.setMethod(u"b"_qs, QString());
    message.addMethodArgument(u"c"_qs, QString(), u"to the first"_qs);
}

QtSoapMessage requestWith(const QString &argument)
{
    QtSoapMessage message;
    message.setMethod(u"a"_qs, QString());
    message.addMethodArgument(u"b"_qs, QString(), argument);
    return message;
}

/*! What is written between the tags of the argument. */
QString writtenArgument(const QtSoapMessage &request, int indent)
{
    const QString document = request.toXmlString(indent);
    const qsizetype start = document.indexOf(u'>', document.indexOf(u"<b ")) + 1;
    return document.mid(start, document.indexOf(u"</b>", start) - start);
}

/*! What Qt writes for one text. */
QString writtenByQt(const QString &text)
{
    QDomDocument document;
    QDomElement element = document.createElement(u"b"_qs);
    document.appendChild(element);
    element.appendChild(document.createTextNode(text));
    const QString result = document.toString(-1);
    return result.mid(3, result.lastIndexOf(u"</b>") - 3);
}

/*! How the text is written otherwise than by Qt, or read otherwise than it is; empty: not at all. */
QString differenceOf(const QString &text)
{
    const QtSoapMessage request = requestWith(text);
    const QString expected = writtenByQt(text);
    for (const int indent : {-1, 0, 1}) {
        const QString result = writtenArgument(request, indent);
        if (result != expected) {
            const auto different = std::mismatch(expected.begin(), expected.end(), result.begin(), result.end());
            const qsizetype at = different.first - expected.begin();
            return u"indent %1, at %2: "_qs.arg(indent).arg(at) + result.mid(at, 20) + u" instead of "
                + expected.mid(at, 20);
        }
    }
    QtSoapMessage reader;
    const bool isReadAgain = reader.setContent(request.toXmlString(-1).toUtf8());
    return isReadAgain && reader.returnValue().toString() == text ? QString() : u"not read again"_qs;
}

/*! Signs to escape, with \a text in it around each place where a piece of 4096 characters may end. */
QString withTextAtPieces(const QString &text, int offset, qsizetype length)
{
    QString result(length, u'&');
    for (qsizetype place = 4096; place + offset + text.size() <= length; place += 4096) {
        result.replace(place + offset, text.size(), text);
    }
    return result;
}

QByteArray golden(const QString &fileName)
{
    QFile file(QStringLiteral(SOAP_DATA "/") + fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

} // namespace

class tst_QtSoapMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toXmlString_composedMessage_isTheStoredDocument_data();
    void toXmlString_composedMessage_isTheStoredDocument();
    void storedDocuments_areWellFormed();
    void toXmlString_freshMessage_hasNoBody();
    void toXmlString_withoutIndent_isWithIndentOfZero();
    void toXmlString_longText_isWrittenAsByQt_data();
    void toXmlString_longText_isWrittenAsByQt();
    void toXmlString_textAtEndOfPieces_isWrittenAsByQt_data();
    void toXmlString_textAtEndOfPieces_isWrittenAsByQt();
    void toXmlString_randomText_isWrittenAsByQt();
    void toXmlString_megabyteToEscape_isFast();
    void toXmlString_longText_leavesTheValue();
    void accessor_freshMessage_insertsBody_data();
    void accessor_freshMessage_insertsBody();
    void header_freshMessage_isInsertedBehindWhatIsThere();
    void addHeaderItem_twice_fillsOneHeader();
    void addHeaderItem_behindMethod_standsBehindBody();
    void setMethod_twice_firstCounts();
    void setMethod_freshMessage_keepsWhatIsThere();
    void method_bodyItem_isItself();
    void method_emptyBody_isNullValue();
    void returnValue_isFirstMemberOfStruct_data();
    void returnValue_isFirstMemberOfStruct();
    void addMethodArgument_withoutMethod_warns_data();
    void addMethodArgument_withoutMethod_warns();
    void addMethodArgument_convenienceWithoutMethod_warns_data();
    void addMethodArgument_convenienceWithoutMethod_warns();
    void addMethodArgument_noStructFirst_staysTheCallers_data();
    void addMethodArgument_noStructFirst_staysTheCallers();
    void addMethodArgument_null_warns();
    void addBodyItem_null_isNoMethod();
    void addMethodArgument_faultStandsFirst_goesIntoIt();
    void addMethodArgument_conveniences_tagTheirValues();
    void setContent_answer_isRead_data();
    void setContent_answer_isRead();
    void setContent_again_replacesMembersAlone();
    void setContent_document_clearsFirst();
    void setContent_refusedDocument_doesNotClear();
    void setContent_bodyOfOtherNamespace_isNotFound();
    void setContent_ownDocument_isReadAgain();
    void clear_composedMessage_isEmpty();
    void clear_renamedEnvelope_hasItsNameAgain_data();
    void clear_renamedEnvelope_hasItsNameAgain();
    void copy_sharesValues();
    void copy_ofFreshMessage_hasBodyOfItsOwn();
    void copy_clearedCopy_leavesTheOriginal();
    void assignment_takesEverything();
    void constructor_registersPrefixes_data();
    void constructor_registersPrefixes();
    void toXmlString_otherPrefixes_areUsed();
};

void tst_QtSoapMessage::toXmlString_composedMessage_isTheStoredDocument_data()
{
    QTest::addColumn<MessageFunction>("compose");
    QTest::addColumn<int>("indent");
    QTest::addColumn<QString>("fileName");

    const MessageFunction nothing = [](QtSoapMessage &) {};
    const MessageFunction look = [](QtSoapMessage &message) { QVERIFY(!message.isFault()); };
    QTest::newRow("fresh, not indented") << nothing << -1 << u"fresh.xml"_qs;
    QTest::newRow("looked at, not indented") << look << -1 << u"lookedAt.xml"_qs;
    QTest::newRow("request, not indented") << MessageFunction(composeRequest) << -1 << u"request.xml"_qs;
    QTest::newRow("request, lines") << MessageFunction(composeRequest) << 0 << u"requestLines.xml"_qs;
    QTest::newRow("request, indented") << MessageFunction(composeRequest) << 1 << u"requestIndented.xml"_qs;
    QTest::newRow("values, not indented") << MessageFunction(composeValues) << -1 << u"values.xml"_qs;
    QTest::newRow("values, indented") << MessageFunction(composeValues) << 1 << u"valuesIndented.xml"_qs;
    QTest::newRow("fault, lines") << MessageFunction(composeFault) << 0 << u"faultLines.xml"_qs;
    QTest::newRow("fault, not indented") << MessageFunction(composeFault) << -1 << u"fault.xml"_qs;
    QTest::newRow("method and fault") << MessageFunction(composeMethodAndFault) << 1 << u"methodAndFault.xml"_qs;
}

void tst_QtSoapMessage::toXmlString_composedMessage_isTheStoredDocument()
{
    QFETCH(const MessageFunction, compose);
    QFETCH(const int, indent);
    QFETCH(const QString, fileName);

    QtSoapMessage message;
    compose(message);
    const QByteArray document = written(message, indent).toUtf8();
    QVERIFY2(document == golden(fileName), document.constData());
}

void tst_QtSoapMessage::storedDocuments_areWellFormed()
{
    const QString checker = QStandardPaths::findExecutable(u"xmllint"_qs);
    if (checker.isEmpty()) {
        QSKIP("xmllint is not installed");
    }
    const QDir folder(QStringLiteral(SOAP_DATA));
    QStringList arguments{u"--noout"_qs};
    for (const QString &name : folder.entryList({u"*.xml"_qs}, QDir::Files)) {
        arguments.append(folder.filePath(name));
    }
    QCOMPARE(arguments.size(), 11);
    QProcess process;
    process.start(checker, arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 0);
}

void tst_QtSoapMessage::toXmlString_freshMessage_hasNoBody()
{
    const QtSoapMessage message;
    QCOMPARE(message.errorString(), QString());
    QVERIFY(!message.toXmlString().contains(u"Body"));
    QVERIFY(message.toXmlString().startsWith(u"<SOAP-ENV:Envelope ")); // without a declaration
}

void tst_QtSoapMessage::toXmlString_withoutIndent_isWithIndentOfZero()
{
    QtSoapMessage message;
    composeRequest(message);
    QCOMPARE(withSortedAttributes(message.toXmlString()), written(message, 0));
}

void tst_QtSoapMessage::toXmlString_longText_isWrittenAsByQt_data()
{
    QTest::addColumn<QString>("text");

    const auto addRepeated = [](const char *name, const QString &part, qsizetype length = 20'000) {
        QTest::newRow(name) << QString(u'x' + part.repeated(length / part.size()));
    };
    addRepeated("ampersands", u"&"_qs);
    addRepeated("30,000 ampersands", u"&"_qs, 30'000);
    addRepeated("less-than signs", u"<"_qs);
    addRepeated("greater-than signs", u">"_qs);
    addRepeated("brackets", u"]"_qs);
    addRepeated("carriage returns", u"\r"_qs);
    addRepeated("lines of Windows", u"\r\n"_qs);
    addRepeated("quotes", u"\"&'"_qs);
    addRepeated("letters", u"x"_qs);
    addRepeated("ends of character data", u"]]>"_qs);
    addRepeated("bracket and sign", u"]>"_qs);
    addRepeated("three brackets and sign", u"]]]>"_qs);
    addRepeated("two brackets and two signs", u"]]>>"_qs);
    addRepeated("ends and something else", u"]]>]>&"_qs);
    addRepeated("beyond the first plane", u"\U0001F600&\U0001F600"_qs);
    QTest::newRow("brackets behind signs") << QString(QString(4000, u'&') + QString(9000, u']') + u'>');
    QTest::newRow("signs behind brackets") << QString(QString(4097, u']') + QString(9000, u'>'));
    for (const int pieces : {1, 2, 3}) {
        for (int more = -4; more <= 4; ++more) {
            const qsizetype length = pieces * 4096 + more;
            QTest::addRow("%d characters", int(length)) << QString(length, u'&');
            QTest::addRow("%d characters with an end", int(length)) << QString(QString(length - 3, u'&') + u"]]>");
        }
    }
}

void tst_QtSoapMessage::toXmlString_longText_isWrittenAsByQt()
{
    QFETCH(const QString, text);

    QCOMPARE(differenceOf(text), QString());
}

void tst_QtSoapMessage::toXmlString_textAtEndOfPieces_isWrittenAsByQt_data()
{
    QTest::addColumn<int>("offset");

    for (int offset = -8; offset <= 4; ++offset) {
        QTest::addRow("%d", offset) << offset;
    }
}

void tst_QtSoapMessage::toXmlString_textAtEndOfPieces_isWrittenAsByQt()
{
    QFETCH(const int, offset);

    const QStringList texts{u"]]>"_qs,     u"]>"_qs, u">"_qs,   u"]]>]]>"_qs, u"]]>]>"_qs,      u"]>]]>"_qs,
                            u"]]]]>>>"_qs, u"]]"_qs, u"]]&"_qs, u"\r\n"_qs,   u"\U0001F600"_qs, u"]\U0001F600]>"_qs};
    for (const QString &text : texts) {
        const QString difference = differenceOf(withTextAtPieces(text, offset, 8210));
        QVERIFY2(difference.isEmpty(), qPrintable(text + u": "_qs + difference));
    }
}

void tst_QtSoapMessage::toXmlString_randomText_isWrittenAsByQt()
{
    const std::array<QString, 10> parts{u"&"_qs, u"<"_qs,  u">"_qs,  u">"_qs, u"]"_qs,
                                        u"]"_qs, u"\r"_qs, u"\""_qs, u"x"_qs, u"\U0001F600"_qs};
    const quint32 seed = QRandomGenerator::global()->generate();
    for (quint32 i = 0; i < 40; ++i) {
        QRandomGenerator random(seed + i);
        const int length = i == 0 ? 30'000 : random.bounded(1, 15'000);
        const int kinds = random.bounded(5, int(parts.size()) + 1);
        QString text(u'x');
        while (text.size() < length) {
            text += parts.at(std::size_t(random.bounded(kinds)));
        }
        const QString difference = differenceOf(text);
        QVERIFY2(difference.isEmpty(), qPrintable(u"seed %1: "_qs.arg(seed + i) + difference));
    }
}

void tst_QtSoapMessage::toXmlString_megabyteToEscape_isFast()
{
    const QtSoapMessage request = requestWith(QString(1'000'000, u'&'));
    QElapsedTimer timer;
    timer.start();
    const QString result = writtenArgument(request, -1);
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed < 20'000, qPrintable(QString::number(elapsed))); // under sanitizers too
    QVERIFY(result == u"&amp;"_qs.repeated(1'000'000));
}

void tst_QtSoapMessage::toXmlString_longText_leavesTheValue()
{
    const QString text(10'000, u'&');
    const QtSoapMessage request = requestWith(text);
    const QString document = written(request, -1);
    QVERIFY(request.returnValue().toString() == text);
    QVERIFY(written(request, -1) == document);
}

void tst_QtSoapMessage::accessor_freshMessage_insertsBody_data()
{
    QTest::addColumn<MessageFunction>("access");

    const auto addRow = [](const char *name, const MessageFunction &access) { QTest::newRow(name) << access; };
    addRow("isFault", [](const QtSoapMessage &message) { QVERIFY(!message.isFault()); });
    addRow("faultCode", [](const QtSoapMessage &message) { QCOMPARE(message.faultCode(), QtSoapMessage::Other); });
    addRow("faultString", [](const QtSoapMessage &message) { QVERIFY(!message.faultString().isValid()); });
    addRow("faultDetail", [](const QtSoapMessage &message) { QVERIFY(!message.faultDetail().isValid()); });
    addRow("method", [](const QtSoapMessage &message) { QVERIFY(!message.method().isValid()); });
    addRow("returnValue", [](const QtSoapMessage &message) { QVERIFY(!message.returnValue().isValid()); });
    addRow("body", [](const QtSoapMessage &message) { // these are open ones
        QCOMPARE(static_cast<const OpenMessage &>(message).body().count(), 0);
    });
}

void tst_QtSoapMessage::accessor_freshMessage_insertsBody()
{
    QFETCH(const MessageFunction, access);

    OpenMessage message;
    access(message);
    QCOMPARE(written(message).toUtf8(), golden(u"lookedAt.xml"_qs));
    access(message); // a second time finds it
    QCOMPARE(message.toXmlString().count(u"Body"), 1);
}

void tst_QtSoapMessage::header_freshMessage_isInsertedBehindWhatIsThere()
{
    const OpenMessage message;
    QtSoapStruct &body = message.body();
    QtSoapStruct &header = message.header();
    QCOMPARE(body.name(), QtSoapQName(u"Body"_qs, envelopeUri));
    QCOMPARE(header.name(), QtSoapQName(u"Header"_qs, envelopeUri));
    QCOMPARE(&message.body(), &body);
    QCOMPARE(&message.header(), &header);
    const QString document = message.toXmlString(-1);
    QVERIFY(document.indexOf(u"SOAP-ENV:Body") < document.indexOf(u"SOAP-ENV:Header"));
}

void tst_QtSoapMessage::addHeaderItem_twice_fillsOneHeader()
{
    OpenMessage message;
    message.addHeaderItem(text(u"a"_qs, u"1"_qs));
    message.addHeaderItem(text(u"b"_qs, u"2"_qs));
    QCOMPARE(message.header().count(), 2);
    QCOMPARE(message.header()[1].toString(), u"2"_qs);
    QVERIFY(!message.toXmlString().contains(u"Body"));
}

void tst_QtSoapMessage::addHeaderItem_behindMethod_standsBehindBody()
{
    QtSoapMessage message;
    message.setMethod(u"a"_qs, QString());
    message.addHeaderItem(text(u"b"_qs, QString()));
    QtSoapMessage reader;
    QVERIFY(reader.setContent(message.toXmlString().toUtf8()));
    const QString document = message.toXmlString();
    QVERIFY(document.indexOf(u"SOAP-ENV:Body") < document.indexOf(u"SOAP-ENV:Header"));
}

void tst_QtSoapMessage::setMethod_twice_firstCounts()
{
    OpenMessage message;
    message.setMethod(QtSoapQName(u"a"_qs, u"urn:1"_qs));
    message.setMethod(u"b"_qs, u"urn:2"_qs);
    QCOMPARE(message.body().count(), 2);
    QCOMPARE(message.method().name().name(), u"a"_qs);
    QCOMPARE(message.method().name().uri(), u"urn:1"_qs);
    QCOMPARE(message.body()[1].name().name(), u"b"_qs);
    QCOMPARE(message.body()[1].name().uri(), u"urn:2"_qs);
    QCOMPARE(message.body()[1].type(), QtSoapType::Struct);
}

void tst_QtSoapMessage::setMethod_freshMessage_keepsWhatIsThere()
{
    OpenMessage message;
    message.addHeaderItem(text(u"a"_qs, QString()));
    message.addBodyItem(text(u"b"_qs, QString()));
    message.setMethod(u"c"_qs, QString());
    QCOMPARE(message.header().count(), 1);
    QCOMPARE(message.body().count(), 2);
    QCOMPARE(message.method().name().name(), u"b"_qs);
    QCOMPARE(message.errorString(), QString()); // so nothing was cleared
}

void tst_QtSoapMessage::method_bodyItem_isItself()
{
    QtSoapMessage message;
    auto *const item = text(u"a"_qs, u"b"_qs);
    message.addBodyItem(item);
    QCOMPARE(&message.method(), item);
}

void tst_QtSoapMessage::method_emptyBody_isNullValue()
{
    const QtSoapMessage message;
    const QtSoapMessage other;
    QVERIFY(!message.method().isValid());
    QCOMPARE(&message.method(), &other.method()); // one for all
    QCOMPARE(&message.returnValue(), &other.returnValue());
    QVERIFY(&message.returnValue() != &message.method());
}

void tst_QtSoapMessage::returnValue_isFirstMemberOfStruct_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<QString>("value");

    QTest::newRow("no method") << QByteArray() << false << QString();
    QTest::newRow("method without members") << QByteArray("<a type='struct'/>") << false << QString();
    QTest::newRow("one member") << QByteArray("<a><b>1</b></a>") << true << u"1"_qs;
    QTest::newRow("two members") << QByteArray("<a><b>1</b><c>2</c></a>") << true << u"1"_qs;
    QTest::newRow("two methods") << QByteArray("<a><b>1</b></a><c><d>2</d></c>") << true << u"1"_qs;
    QTest::newRow("comment in front") << QByteArray("<a type='struct'><!-- --><b>1</b></a>") << true << u"1"_qs;
    QTest::newRow("text") << QByteArray("<a>1</a>") << false << QString();
    QTest::newRow("array") << QByteArray("<array><b>1</b></array>") << false << QString();
}

void tst_QtSoapMessage::returnValue_isFirstMemberOfStruct()
{
    QFETCH(const QByteArray, body);
    QFETCH(const bool, isValid);
    QFETCH(const QString, value);

    QtSoapMessage message;
    QVERIFY(message.setContent(inBody(body)));
    QCOMPARE(message.returnValue().isValid(), isValid);
    QCOMPARE(message.returnValue().toString(), value);
}

void tst_QtSoapMessage::addMethodArgument_withoutMethod_warns_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("uri");
    QTest::addColumn<QString>("warning");

    QTest::newRow("with URI") << u"a"_qs << u"urn:b"_qs
                              << u"Attempted to add argument (urn:b:a) without first setting method"_qs;
    QTest::newRow("without URI") << u"a"_qs << QString()
                                 << u"Attempted to add argument (:a) without first setting method"_qs;
}

void tst_QtSoapMessage::addMethodArgument_withoutMethod_warns()
{
    QFETCH(const QString, name);
    QFETCH(const QString, uri);
    QFETCH(const QString, warning);

    OpenMessage message;
    const auto item = std::make_unique<QtSoapSimpleType>(QtSoapQName(name, uri), 1); // stays ours
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    message.addMethodArgument(item.get());
    QCOMPARE(message.body().count(), 0);
}

void tst_QtSoapMessage::addMethodArgument_convenienceWithoutMethod_warns_data()
{
    QTest::addColumn<MessageFunction>("add");
    QTest::addColumn<QString>("warning");

    const auto addRow = [](const char *name, const MessageFunction &add, const QString &argument) {
        QTest::newRow(name) << add
                            << QString(u"Attempted to add argument ("_qs + argument
                                       + u") without first setting method");
    };
    addRow(
        "text", [](QtSoapMessage &message) { message.addMethodArgument(u"a"_qs, u"urn:a"_qs, u"1"_qs); },
        u"urn:a:a"_qs);
    addRow(
        "boolean", [](QtSoapMessage &message) { message.addMethodArgument(u"b"_qs, u"urn:b"_qs, true, 0); },
        u"urn:b:b"_qs);
    addRow(
        "integer", [](QtSoapMessage &message) { message.addMethodArgument(u"c"_qs, u"urn:c"_qs, 1); }, u"urn:c:c"_qs);
    addRow(
        "without URI", [](QtSoapMessage &message) { message.addMethodArgument(u"d"_qs, QString(), 1); }, u":d"_qs);
}

void tst_QtSoapMessage::addMethodArgument_convenienceWithoutMethod_warns()
{
    QFETCH(const MessageFunction, add);
    QFETCH(const QString, warning);

    OpenMessage message;
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    add(message);
    QCOMPARE(message.body().count(), 0);
}

void tst_QtSoapMessage::addMethodArgument_noStructFirst_staysTheCallers_data()
{
    QTest::addColumn<MessageFunction>("addFirst");

    QTest::newRow("text") << MessageFunction(
        [](QtSoapMessage &message) { message.addBodyItem(text(u"a"_qs, u"b"_qs)); });
    QTest::newRow("array") << MessageFunction(
        [](QtSoapMessage &message) { message.addBodyItem(new QtSoapArray(QtSoapQName(u"a"_qs), QtSoapType::Int, 1)); });
    QTest::newRow("nothing") << MessageFunction([](QtSoapMessage &message) { message.addBodyItem(nullptr); });
}

void tst_QtSoapMessage::addMethodArgument_noStructFirst_staysTheCallers()
{
    QFETCH(const MessageFunction, addFirst);

    OpenMessage message;
    addFirst(message);
    message.setMethod(u"b"_qs, QString()); // is the second
    const auto item = std::make_unique<QtSoapSimpleType>(QtSoapQName(u"c"_qs, u"urn:c"_qs), 1);
    QTest::ignoreMessage(QtWarningMsg, "Attempted to add argument (urn:c:c) without first setting method");
    message.addMethodArgument(item.get());
    QCOMPARE(message.body().count(), 2);
    QCOMPARE(message.body()[0].count(), 0);
    QCOMPARE(message.body()[1].count(), 0);
    QCOMPARE(item->toInt(), 1);
}

void tst_QtSoapMessage::addMethodArgument_null_warns()
{
    OpenMessage message;
    QTest::ignoreMessage(QtWarningMsg, "Attempted to add argument (:) without first setting method");
    message.addMethodArgument(nullptr);
    QCOMPARE(message.body().count(), 0);
}

void tst_QtSoapMessage::addBodyItem_null_isNoMethod()
{
    OpenMessage message;
    message.addBodyItem(nullptr);
    QCOMPARE(message.body().count(), 1);
    QVERIFY(!message.method().isValid());
    QVERIFY(!message.returnValue().isValid());
    QTest::ignoreMessage(QtWarningMsg, "Attempted to add argument (:a) without first setting method");
    message.addMethodArgument(u"a"_qs, QString(), 1);
    QCOMPARE(message.body().count(), 1);
}

void tst_QtSoapMessage::addMethodArgument_faultStandsFirst_goesIntoIt()
{
    OpenMessage message;
    message.setFaultString(u"a"_qs);
    message.setMethod(u"b"_qs, QString());
    message.addMethodArgument(u"c"_qs, QString(), 1);
    QCOMPARE(message.body()[u"Fault"_qs][u"c"_qs].toInt(), 1);
    QCOMPARE(message.body()[u"b"_qs].count(), 0);
}

void tst_QtSoapMessage::addMethodArgument_conveniences_tagTheirValues()
{
    QtSoapMessage message;
    message.setMethod(u"a"_qs, QString());
    message.addMethodArgument(u"b"_qs, u"urn:b"_qs, u"1"_qs);
    message.addMethodArgument(u"c"_qs, u"urn:c"_qs, true, 0);
    message.addMethodArgument(u"d"_qs, u"urn:d"_qs, 1);
    const QtSoapType &method = message.method();
    QCOMPARE(method.count(), 3);
    QCOMPARE(method[0].type(), QtSoapType::String);
    QCOMPARE(method[0].value(), QVariant(u"1"_qs));
    QCOMPARE(method[1].type(), QtSoapType::Boolean);
    QCOMPARE(method[1].value(), QVariant(true));
    QCOMPARE(method[2].type(), QtSoapType::Int);
    QCOMPARE(method[2].value(), QVariant(1));
    QCOMPARE(method[2].name().name(), u"d"_qs);
    QCOMPARE(method[2].name().uri(), u"urn:d"_qs);
}

void tst_QtSoapMessage::setContent_answer_isRead_data()
{
    QTest::addColumn<QByteArray>("document");

    const QByteArray uri = "http://schemas.xmlsoap.org/soap/envelope/";
    const QByteArray answer = "<m:r xmlns:m='urn:m'><v type='xsd:int'>42</v></m:r>";
    QTest::newRow("usual prefix") << QByteArray("<SOAP-ENV:Envelope xmlns:SOAP-ENV='" + uri + "'><SOAP-ENV:Body>"
                                                + answer + "</SOAP-ENV:Body></SOAP-ENV:Envelope>");
    QTest::newRow("no prefix") << QByteArray("<Envelope xmlns='" + uri + "'><Body>" + answer + "</Body></Envelope>");
    QTest::newRow("upper case") << QByteArray("<soap:ENVELOPE xmlns:soap='" + uri + "'><soap:BODY>" + answer
                                              + "</soap:BODY></soap:ENVELOPE>");
    QTest::newRow("lower case") << QByteArray("<s:envelope xmlns:s='" + uri + "'><s:body>" + answer
                                              + "</s:body></s:envelope>");
    QTest::newRow("declaration") << QByteArray("<?xml version='1.0'?>" + inBody(answer));
    QTest::newRow("white space") << QByteArray("<?xml version='1.0'?>\r\n"
                                               + envelope("\n <e:Body>\n " + answer + "\n</e:Body>\n"));
    QTest::newRow("header") << envelope("<e:Header><a/></e:Header><e:Body>" + answer + "</e:Body>");
    QTest::newRow("header of another namespace")
        << envelope("<x:Header xmlns:x='urn:x'/><e:Body>" + answer + "</e:Body>");
    QTest::newRow("more behind the body") << envelope("<e:Body>" + answer + "</e:Body><e:Header/><a><b/></a>");
    QTest::newRow("comment in the body") << inBody("<!-- a -->" + answer).replace("<e:Body>", "<e:Body type='struct'>");
    QTest::newRow("comment behind the envelope") << QByteArray(inBody(answer) + "<!-- a -->");
}

void tst_QtSoapMessage::setContent_answer_isRead()
{
    QFETCH(const QByteArray, document);

    QtSoapMessage message;
    QVERIFY2(message.setContent(document), qPrintable(writtenDetails(message).join(u'\n')));
    QVERIFY(!message.isFault());
    QCOMPARE(message.method().name().name(), u"r"_qs);
    QCOMPARE(message.method().name().uri(), u"urn:m"_qs);
    QCOMPARE(message.returnValue().value(), QVariant(42));
    QCOMPARE(message.errorString(), QString());

    QDomDocument parsed;
    QVERIFY(parsed.setContent(document, true));
    QtSoapMessage byDocument;
    QVERIFY(byDocument.setContent(parsed));
    QCOMPARE(byDocument.returnValue().value(), QVariant(42));
}

void tst_QtSoapMessage::setContent_again_replacesMembersAlone()
{
    OpenMessage message;
    message.setMethod(u"old"_qs, QString());
    message.addHeaderItem(text(u"old"_qs, QString()));
    QVERIFY(message.setContent(inBody("<a><b>1</b></a>")));
    QCOMPARE(message.body().count(), 1);
    QCOMPARE(message.returnValue().toString(), u"1"_qs);
    QCOMPARE(message.errorString(), QString()); // not cleared
    QVERIFY(!message.toXmlString().contains(u"old"));
}

void tst_QtSoapMessage::setContent_document_clearsFirst()
{
    QDomDocument document;
    QVERIFY(document.setContent(inBody("<a><b>1</b></a>"), true));
    QtSoapMessage message;
    QVERIFY(message.setContent(document));
    QCOMPARE(message.errorString(), u"Unknown error"_qs);
    QCOMPARE(message.returnValue().toString(), u"1"_qs);
}

void tst_QtSoapMessage::setContent_refusedDocument_doesNotClear()
{
    QDomDocument document;
    QVERIFY(document.setContent(u"<a/>"_qs, true));
    OpenMessage message;
    message.setMethod(u"old"_qs, QString());
    QVERIFY(!message.setContent(document));
    QVERIFY(!message.setContent(QByteArray("no document")));
    QCOMPARE(message.errorString(), QString());
    QCOMPARE(message.method().name().name(), u"old"_qs);
    QCOMPARE(message.body().count(), 2); // and one fault for both
}

void tst_QtSoapMessage::setContent_bodyOfOtherNamespace_isNotFound()
{
    OpenMessage message;
    QVERIFY(message.setContent(envelope("<Body xmlns='urn:other'><a><b>1</b></a></Body>")));
    QVERIFY(!message.method().isValid());
    QCOMPARE(message.toXmlString().count(u"Body "), 2); // its own one is added
}

void tst_QtSoapMessage::setContent_ownDocument_isReadAgain()
{
    QtSoapMessage request;
    composeValues(request);
    OpenMessage reader;
    QVERIFY(reader.setContent(request.toXmlString().toUtf8()));
    QCOMPARE(reader.header()[u"session"_qs].toString(), u"4711"_qs);
    QCOMPARE(reader.method().name().name(), u"upload"_qs);
    QCOMPARE(reader.returnValue()[u"name"_qs].toString(), u" a  b "_qs);
    QCOMPARE(reader.returnValue()[u"place"_qs].name().uri(), u"urn:example:place"_qs);
    const QtSoapType &rating = reader.method()[1][0];
    QCOMPARE(rating.name().name(), u"item"_qs);
    QCOMPARE(rating.value(), QVariant(u"5"_qs)); // "xsi:type" is not "type"
    QCOMPARE(rating.type(), QtSoapType::String);
    QCOMPARE(reader.method()[1].type(), QtSoapType::Struct);
}

void tst_QtSoapMessage::clear_composedMessage_isEmpty()
{
    QtSoapMessage message;
    composeRequest(message);
    composeFault(message);
    message.clear();
    QCOMPARE(message.errorString(), u"Unknown error"_qs);
    QCOMPARE(written(message).toUtf8(), golden(u"fresh.xml"_qs));
    message.clear();
    QCOMPARE(message.errorString(), u"Unknown error"_qs);
}

void tst_QtSoapMessage::clear_renamedEnvelope_hasItsNameAgain_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("upper case") << u"ENVELOPE"_qs;
    QTest::newRow("lower case") << u"envelope"_qs;
}

void tst_QtSoapMessage::clear_renamedEnvelope_hasItsNameAgain()
{
    QFETCH(const QString, name);

    QtSoapMessage message;
    QVERIFY(message.setContent(inBody("<a><b>1</b></a>").replace("Envelope", name.toLatin1())));
    QVERIFY(message.toXmlString().startsWith(u"<SOAP-ENV:"_qs + name + u' '));
    message.clear();
    composeRequest(message);
    QCOMPARE(written(message).toUtf8(), golden(u"request.xml"_qs));
}

void tst_QtSoapMessage::copy_sharesValues()
{
    QtSoapMessage original;
    original.setMethod(u"a"_qs, QString());
    QtSoapMessage copy(original);
    QCOMPARE(&copy.method(), &original.method());
    copy.addMethodArgument(u"b"_qs, QString(), 1);
    QCOMPARE(original.method()[0].toInt(), 1);
    QCOMPARE(written(original), written(copy));
}

void tst_QtSoapMessage::copy_ofFreshMessage_hasBodyOfItsOwn()
{
    const QtSoapMessage original;
    QtSoapMessage copy(original);
    copy.setMethod(u"a"_qs, QString());
    QVERIFY(!original.toXmlString().contains(u"Body"));
    QVERIFY(!original.method().isValid());
}

void tst_QtSoapMessage::copy_clearedCopy_leavesTheOriginal()
{
    QtSoapMessage original;
    composeRequest(original);
    {
        QtSoapMessage copy(original);
        copy.clear();
        QCOMPARE(written(copy).toUtf8(), golden(u"fresh.xml"_qs));
        QCOMPARE(original.errorString(), QString());
    }
    QCOMPARE(written(original).toUtf8(), golden(u"request.xml"_qs));
}

void tst_QtSoapMessage::assignment_takesEverything()
{
    QtSoapMessage target;
    composeFault(target);
    {
        QtSoapMessage source;
        source.clear();
        composeRequest(source);
        target = source;
    }
    QCOMPARE(target.errorString(), u"Unknown error"_qs);
    QCOMPARE(written(target).toUtf8(), golden(u"request.xml"_qs));
    const QtSoapMessage &self = target;
    target = self;
    QCOMPARE(written(target).toUtf8(), golden(u"request.xml"_qs));
}

void tst_QtSoapMessage::constructor_registersPrefixes_data()
{
    QTest::addColumn<MessageFunction>("construct");
    QTest::addColumn<bool>("registers");

    QTest::newRow("default") << MessageFunction([](QtSoapMessage &) { const QtSoapMessage made; }) << true;
    QTest::newRow("copy") << MessageFunction([](QtSoapMessage &message) {
        const QtSoapMessage made(message); // NOLINT(performance-unnecessary-copy-initialization): it is what is tested
    }) << true;
    QTest::newRow("init") << MessageFunction([](QtSoapMessage &message) { static_cast<OpenMessage &>(message).init(); })
                          << true;
    QTest::newRow("assignment is no constructor") << MessageFunction([](QtSoapMessage &message) {
        const QtSoapMessage &self = message;
        message = self;
    }) << false;
}

void tst_QtSoapMessage::constructor_registersPrefixes()
{
    QFETCH(const MessageFunction, construct);
    QFETCH(const bool, registers);

    const QList<std::pair<QString, QString>> wanted{
        {envelopeUri, u"SOAP-ENV"_qs},
        {u"http://schemas.xmlsoap.org/soap/encoding/"_qs, u"SOAP-ENC"_qs},
        {u"http://www.w3.org/1999/XMLSchema-instance"_qs, u"xsi"_qs},
        {u"http://www.w3.org/1999/XMLSchema"_qs, u"xsd"_qs},
    };
    OpenMessage message;
    for (const auto &[uri, prefix] : wanted) {
        QtSoapNamespaces::instance().registerNamespace(u"other"_qs, uri);
    }
    construct(message);
    for (const auto &[uri, prefix] : wanted) {
        QCOMPARE(QtSoapNamespaces::instance().prefixFor(uri), registers ? prefix : u"other"_qs);
    }
    message.init();
}

void tst_QtSoapMessage::toXmlString_otherPrefixes_areUsed()
{
    OpenMessage message;
    QtSoapNamespaces::instance().registerNamespace(u"s"_qs, envelopeUri);
    QtSoapNamespaces::instance().registerNamespace(u"x"_qs, u"http://www.w3.org/1999/XMLSchema"_qs);
    const QString document = written(message);
    message.init();
    QCOMPARE(
        document,
        u"<s:Envelope s:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\""
        " xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\" xmlns:x=\"http://www.w3.org/1999/XMLSchema\"/>"_qs);
}

QTEST_GUILESS_MAIN(tst_QtSoapMessage)

#include "tst_QtSoapMessage.moc"
