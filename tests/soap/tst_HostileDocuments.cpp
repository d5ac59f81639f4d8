// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/SoapDocuments.h"

#include "utilsDll/soap/QtSoapMessage.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStringConverter>
#include <QtTest/QTest>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

using namespace ZYX_zglv6;
using namespace SoapDocuments;

using DocumentFunction = std::function<QByteArray()>;
Q_DECLARE_METATYPE(DocumentFunction)

namespace {

constexpr qint64 longestReadingMs = 40'000; // under sanitizers too; without the limits some take minutes

const QString notXml = u"XML parse error"_qs;
const QString invalidStructure = u"SOAP structure invalid"_qs;

/*! Documents are made when read: some are large. An empty fault string: it is read. A detail that ends in "*"
    starts so, as the parser's own words and places are not ours. */
void addColumns()
{
    QTest::addColumn<DocumentFunction>("make");
    QTest::addColumn<QString>("faultString");
    QTest::addColumn<QString>("detail");
}

void addRow(const char *name, const DocumentFunction &make, const QString &faultString = {}, const QString &detail = {})
{
    QTest::newRow(name) << make << faultString << detail;
}

void addRow(const char *name, const QByteArray &document, const QString &faultString = {}, const QString &detail = {})
{
    addRow(name, DocumentFunction([document] { return document; }), faultString, detail);
}

QString parseError(const QString &text)
{
    return u"ParseError: "_qs + text;
}

/*! Elements in a body, which make the innermost the one at this depth. */
QByteArray nested(int depth)
{
    const int own = depth - 2;
    return inBody(QByteArray("<a>").repeated(own) + QByteArray("</a>").repeated(own));
}

/*! "a0='' a1='' ..." */
QByteArray attributes(int count, const QByteArray &prefix = "a")
{
    QByteArray result;
    for (int i = 0; i < count; ++i) {
        result += ' ' + prefix + QByteArray::number(i) + "='u'";
    }
    return result;
}

/*! An element with a namespace of this length. */
QByteArray inNamespace(qsizetype length, const QByteArray &content, const QByteArray &beginning = "xmlns='",
                       const QByteArray &end = "'")
{
    return "<a " + beginning + QByteArray(length, 'u') + end + '>' + content + "</a>";
}

/*! Content of an element, of all kinds of nodes. */
QByteArray mixedContent(QRandomGenerator &random, int depth)
{
    QByteArray result;
    for (int i = random.bounded(6); i > 0; --i) {
        const QByteArray number = QByteArray::number(random.bounded(100));
        switch (random.bounded(depth > 0 ? 7 : 5)) {
        case 0:
            result += ' ' + number + " &amp; ";
            break;
        case 1:
            result += "<![CDATA[<" + number + ">]]>";
            break;
        case 2:
            result += "<!--" + number + "-->";
            break;
        case 3:
            result += "<?c " + number + "?>";
            break;
        case 4:
            result += " \n";
            break;
        default:
            result += "<b d='" + number + "'>" + mixedContent(random, depth - 1) + "</b>";
        }
    }
    return result;
}

QByteArray encoded(const QString &document, QStringConverter::Encoding encoding, bool hasByteOrderMark)
{
    QStringEncoder encoder(encoding,
                           hasByteOrderMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(document);
}

/*! A document with a text beyond ASCII, which declares an encoding if one is given. */
QString declaring(const QString &encoding)
{
    const QString declaration
        = encoding.isEmpty() ? QString() : u"<?xml version='1.0' encoding='"_qs + encoding + u"'?>";
    return declaration + QString::fromLatin1(inBody("<a><b>\xe4</b></a>"));
}

QByteArray goldenDocument()
{
    QFile file(QStringLiteral(SOAP_DATA "/fault.xml"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
}

/*! What a damaged document may be: read, or a fault. */
bool hasAnswer(const QByteArray &document)
{
    QtSoapMessage message;
    if (message.setContent(document)) {
        return true;
    }
    QDomDocument parsed;
    const bool isWithoutElement = parsed.setContent(document, true) && !parsed.firstChild().isElement();
    return message.isFault() || isWithoutElement;
}

/*! Random values in which all is kept: no text of white space alone, no struct without members. */
class RandomValues
{
public:
    explicit RandomValues(quint32 seed)
        : m_random(seed)
    {
    }

    std::unique_ptr<QtSoapType> next(int depth)
    {
        switch (m_random.bounded(depth > 0 ? 5 : 3)) {
        case 0:
            return std::make_unique<QtSoapSimpleType>(name(), int(m_random.generate()));
        case 1:
            return std::make_unique<QtSoapSimpleType>(name(), m_random.bounded(2) == 0, 0);
        case 2:
            return std::make_unique<QtSoapSimpleType>(name(), text());
        default:
            return members(depth);
        }
    }

    std::unique_ptr<QtSoapStruct> members(int depth)
    {
        auto result = std::make_unique<QtSoapStruct>(name());
        for (int i = m_random.bounded(1, 5); i > 0; --i) {
            result->insert(next(depth - 1).release());
        }
        return result;
    }

private:
    QtSoapQName name()
    {
        static const QStringList uris{QString(), u"urn:example:a"_qs, u"urn:example:b"_qs};
        return {QString(QChar(u'a' + m_random.bounded(26))) + QString::number(m_random.bounded(9)),
                uris[m_random.bounded(uris.size())]};
    }

    QString text()
    {
        static const QString characters = u"aZ09<>&\"'];: \u00e4\u043f\u4e2d\n\t"_qs;
        QString result(u"x"_qs);
        for (int i = m_random.bounded(20); i > 0; --i) {
            result += characters[m_random.bounded(characters.size())];
        }
        return result;
    }

    QRandomGenerator m_random;
};

QString rewritten(const QString &document)
{
    QtSoapMessage message;
    return message.setContent(document.toUtf8()) ? written(message)
                                                 : u"not read: "_qs + writtenDetails(message).join(u' ');
}

} // namespace

class tst_HostileDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setContent_declaredType_isRefused_data();
    void setContent_declaredType_isRefused();
    void setContent_size_isLimited_data();
    void setContent_size_isLimited();
    void setContent_namespaceNames_areLimited_data();
    void setContent_namespaceNames_areLimited();
    void setContent_textInsideManyElements_isRead();
    void textOfElement_isCopiedOnce();
    void textOfElement_isTheTextOfQt_data();
    void textOfElement_isTheTextOfQt();
    void textOfElement_randomContent_isTheTextOfQt();
    void setContent_encoding_isKnownOrRefused_data();
    void setContent_encoding_isKnownOrRefused();
    void setContent_damagedDocument_isRefused_data();
    void setContent_damagedDocument_isRefused();
    void setContent_unusualShape_isReadOrFault_data();
    void setContent_unusualShape_isReadOrFault();
    void setContent_truncatedAnywhere_isFault();
    void setContent_anyByteChanged_hasAnswer_data();
    void setContent_anyByteChanged_hasAnswer();
    void writing_randomValues_isStableFromTheSecondOn();
    void writing_changesOfQt_arePinned_data();
    void writing_changesOfQt_arePinned();
    void writing_plainChildOfMethod_comesBackInItsNamespace_data();
    void writing_plainChildOfMethod_comesBackInItsNamespace();

private:
    static void checkDocument();
};

void tst_HostileDocuments::checkDocument()
{
    QFETCH(const DocumentFunction, make);
    QFETCH(const QString, faultString);
    QFETCH(const QString, detail);

    const QByteArray document = make();
    QElapsedTimer timer;
    timer.start();
    const QtMessageHandler before = qInstallMessageHandler(ignoreMessage); // the debug line of an unreadable envelope
    QtSoapMessage message;
    const bool isRead = message.setContent(document);
    qInstallMessageHandler(before);
    const qint64 elapsed = timer.elapsed();

    const QString details = writtenDetails(message).join(u" | ");
    QVERIFY2(isRead == faultString.isEmpty(), qPrintable(details));
    QCOMPARE(message.isFault(), !faultString.isEmpty());
    QCOMPARE(message.faultString().toString(), faultString);
    if (detail.endsWith(u'*')) {
        QVERIFY2(details.startsWith(detail.chopped(1)), qPrintable(details));
    } else {
        QCOMPARE(details, detail);
    }
    QVERIFY2(elapsed < longestReadingMs, qPrintable(QString::number(elapsed)));
}

void tst_HostileDocuments::setContent_declaredType_isRefused_data()
{
    addColumns();
    const QString refused = parseError(u"A document type declaration is not accepted at line 1, column 0"_qs);
    const QByteArray body = inBody("<a><b>&c;</b></a>");

    addRow("plain", "<!DOCTYPE a>" + inBody({}), notXml, refused);
    addRow("lower case is no XML", "<!doctype html><html/>", notXml, refused);
    addRow("behind the declaration", "<?xml version='1.0'?>\n<!-- -->\n  <!DOCTYPE a>" + inBody({}), notXml,
           parseError(u"A document type declaration is not accepted at line 3, column 2"_qs));
    addRow("entity", "<!DOCTYPE a [<!ENTITY c 'd'>]>" + body, notXml, refused);
    addRow("external entity", "<!DOCTYPE a [<!ENTITY c SYSTEM 'file:///etc/hostname'>]>" + body, notXml, refused);
    addRow("external type", "<!DOCTYPE a SYSTEM 'http://127.0.0.1:9/a.dtd'>" + body, notXml, refused);
    addRow(
        "entities of entities",
        [body] {
            QByteArray entities = "<!ENTITY c0 'cccccccccc'>";
            for (int i = 1; i < 20; ++i) {
                entities += "<!ENTITY c" + QByteArray::number(i) + " '"
                    + QByteArray("&c" + QByteArray::number(i - 1) + ';').repeated(10) + "'>";
            }
            return QByteArray("<!DOCTYPE a [" + entities + "<!ENTITY c '&c19;'>]>" + body);
        },
        notXml, refused);
    addRow(
        "flood of default attributes",
        [] {
            return QByteArray("<!DOCTYPE a [<!ATTLIST a " + attributes(5000).replace("=", " CDATA ") + ">]><a>"
                              + QByteArray("<a/>").repeated(20'000) + "</a>");
        },
        notXml, refused);
    addRow("in the document", inBody("<!DOCTYPE a>"), notXml,
           parseError(u"A document type declaration is not accepted at line 1, column 72"_qs));
    addRow("in a comment", inBody("<a><b>c</b><!-- <!DOCTYPE a> --></a>"));
    addRow("in character data", inBody("<a><b><![CDATA[<!DOCTYPE a>]]></b></a>"));
    addRow("undeclared entity", body, notXml, u"ParseError: *"_qs);
}

void tst_HostileDocuments::setContent_declaredType_isRefused()
{
    checkDocument();
}

void tst_HostileDocuments::setContent_size_isLimited_data()
{
    addColumns();
    const QString tooDeep = u"ParseError: Elements nested more than 256 deep are not accepted at line 1, column *"_qs;
    const QString tooMany = u"ParseError: More than 256 attributes in scope are not accepted at line 1, column *"_qs;
    const QString tooManyNodes = u"ParseError: More than 1000000 nodes are not accepted at line 1, column *"_qs;
    const QString tooLong = parseError(u"More than 67108864 bytes are not accepted at line 1, column 0"_qs);
    constexpr qsizetype longest = 67'108'864;

    addRow("255 deep", [] { return nested(255); });
    addRow("256 deep", [] { return nested(256); });
    addRow(
        "257 deep", [] { return nested(257); }, notXml, tooDeep);
    addRow(
        "257 deep with an empty element", [] { return nested(256).replace("<a></a>", "<a><b/></a>"); }, notXml,
        tooDeep);
    addRow(
        "100,000 deep", [] { return nested(100'000); }, notXml, tooDeep);
    addRow(
        "100,000 deep and not closed", [] { return QByteArray("<a>").repeated(100'000); }, notXml, tooDeep);

    addRow("as long as accepted", [] {
        const QByteArray document = inBody("<a><b>c</b></a>");
        return QByteArray(document + "<!--" + QByteArray(longest - document.size() - 7, 'a') + "-->");
    });
    addRow(
        "a byte longer",
        [] {
            const QByteArray document = inBody("<a><b>c</b></a>");
            return QByteArray(document + "<!--" + QByteArray(longest - document.size() - 6, 'a') + "-->");
        },
        notXml, tooLong);
    addRow(
        "200 MB of text", [] { return inBody(QByteArray(200'000'000, 'a')); }, notXml, tooLong);
    addRow("a text of 8 MiB", [] { return inBody("<a><b>" + QByteArray(8'388'608, 'a') + "</b></a>"); });

    addRow(
        "a thousand namespaces of one element",
        [] { return inBody("<a" + attributes(1000, "xmlns:n") + "><n999:b>c</n999:b></a>"); }, notXml, tooMany);
    addRow("255 namespaces and the envelope's",
           [] { return inBody("<a" + attributes(255, "xmlns:n") + "><n254:b>c</n254:b></a>"); });
    addRow("255 attributes and the envelope's", [] { return inBody("<a" + attributes(255) + "><b>c</b></a>"); });
    addRow(
        "256 attributes and the envelope's", [] { return inBody("<a" + attributes(256) + "><b>c</b></a>"); }, notXml,
        tooMany);
    addRow(
        "200,000 attributes", [] { return inBody("<a" + attributes(200'000) + "><b>c</b></a>"); }, notXml, tooMany);
    addRow(
        "900,000 equal signs", [] { return inBody("<a " + QByteArray(900'000, '=') + ">"); }, notXml, tooMany);
    addRow(
        "200,000 attributes of an empty element", [] { return inBody("<a" + attributes(200'000) + "/>"); }, notXml,
        tooMany);
    addRow(
        "namespaces over the levels",
        [] {
            const QByteArray open = QByteArray("<a" + attributes(5, "xmlns:n") + '>');
            return inBody(open.repeated(250) + QByteArray("</a>").repeated(250));
        },
        notXml, tooMany);
    addRow("attributes of neighbours", [] { return inBody(QByteArray("<a" + attributes(100) + "/>").repeated(200)); });
    addRow("attributes of closed neighbours",
           [] { return inBody(QByteArray("<a" + attributes(100) + "></a>").repeated(200)); });
    addRow(
        "too many elements", [] { return inBody(QByteArray("<a/>").repeated(1'000'000)); }, notXml, tooManyNodes);
    addRow(
        "too many attributes of neighbours",
        [] { return inBody(QByteArray("<a" + attributes(200) + "/>").repeated(5000)); }, notXml, tooManyNodes);
    addRow(
        "too many comments", [] { return inBody(QByteArray("<!---->").repeated(1'000'000)); }, notXml, tooManyNodes);
    addRow(
        "too many instructions", [] { return inBody(QByteArray("<?a?>").repeated(1'000'000)); }, notXml, tooManyNodes);
    addRow("50,000 elements", [] { return inBody(QByteArray("<a/>").repeated(50'000)); });
}

void tst_HostileDocuments::setContent_size_isLimited()
{
    checkDocument();
}

void tst_HostileDocuments::setContent_namespaceNames_areLimited_data()
{
    QTest::addColumn<DocumentFunction>("make");
    QTest::addColumn<QString>("place"); // empty: it is read; "*": anywhere

    const auto add = [](const char *name, const DocumentFunction &make, const QString &place = {}) {
        QTest::newRow(name) << make << place;
    };
    const auto elements = [](int count) { return QByteArray("<b/>").repeated(count); };
    constexpr qsizetype megabyte = 1'000'000;

    add(
        "100,000 characters for 20,000 elements", [=] { return inNamespace(100'000, elements(20'000)); },
        u"line 1, column 104008"_qs); // behind the 999th
    add(
        "100,000 characters for 20,000 lines",
        [=] { return inNamespace(100'000, QByteArray("\n<b/>").repeated(20'000)); }, u"line 1000, column 4"_qs);
    add(
        "blanks around the equals sign", [=] { return inNamespace(100'000, elements(20'000), "xmlns \t\r\n= \n'"); },
        u"*"_qs);
    add(
        "of a prefix", [=] { return inNamespace(100'000, elements(20'000), "xmlns:q = \"", "\""); }, u"*"_qs);
    add(
        "between attributes",
        [=] { return inNamespace(100'000, elements(20'000), "c='>' xmlns:q\n='", "' d='xmlns='"); }, u"*"_qs);
    add(
        "with a greater-than sign", [=] { return inNamespace(100'000, elements(20'000), "xmlns='>"); }, u"*"_qs);
    add(
        "of an outer element",
        [=] { return inNamespace(100'000, inNamespace(5, elements(10'000)) + elements(10'000)); }, u"*"_qs);
    add(
        "declared in each element",
        [] { return inBody(QByteArray("<a xmlns='" + QByteArray(100'000, 'u') + "'/>").repeated(501)); }, u"*"_qs);
    add("declared in each element, within the limit",
        [] { return inBody(QByteArray("<a xmlns='" + QByteArray(100'000, 'u') + "'/>").repeated(499)); });
    add("600 elements", [=] { return inBody(inNamespace(100'000, elements(600))); });
    add(
        "600 elements with an attribute",
        [] { return inBody(inNamespace(100'000, QByteArray("<b c=''/>").repeated(600))); }, u"*"_qs);
    // The envelope takes 123, the long namespace 999 times 100,000, the next twice 49,918, and the last element 41.
    const auto limit
        = [=]() -> QByteArray { return inNamespace(100'000, elements(997)) + inNamespace(49'918, {}) + "<c/>"; };
    add("100,000,000 characters in all", [=] { return inBody(limit()); });
    add(
        "some more", [=] { return inBody(limit() + "<c/>"); }, u"*"_qs);
    add("ten of one element", [=] {
        const QByteArray nine = attributes(9, "xmlns:n").replace("u", QByteArray(100'000, 'u'));
        return inBody(inNamespace(100'000, elements(200), nine.mid(1) + " xmlns='"));
    });
    add("attribute of a megabyte", [=] { return inBody(inNamespace(megabyte, elements(1000), "c='")); });
    add("attribute of a megabyte with a like name",
        [=] { return inBody(inNamespace(megabyte, elements(1000), "d.xmlns='")); });
    add("attribute of a megabyte behind a namespace",
        [=] { return inBody(inNamespace(megabyte, elements(1000), "xmlns='urn:c' d='")); });
    add("text like a declaration",
        [=] { return inBody("<a><b>xmlns='" + QByteArray(megabyte, 'u') + "'</b>" + elements(1000) + "</a>"); });
    add("a megabyte in a neighbour", [=] { return inBody("<c/>" + inNamespace(megabyte, {}) + elements(1000)); });
    add("a megabyte in an empty neighbour",
        [=] { return inBody(inNamespace(megabyte, {}).replace("></a>", "/>") + elements(1000)); });
    add("900,000 elements", [=] { return inBody(elements(900'000)); });
}

void tst_HostileDocuments::setContent_namespaceNames_areLimited()
{
    QFETCH(const DocumentFunction, make);
    QFETCH(const QString, place);

    const QByteArray document = make();
    QElapsedTimer timer;
    timer.start();
    QtSoapMessage message;
    const bool isRead = message.setContent(document);
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed < longestReadingMs, qPrintable(QString::number(elapsed)));
    QCOMPARE(isRead, place.isEmpty());
    QCOMPARE(message.isFault(), !isRead);
    if (!isRead) { // writing the others takes long
        const QString details = writtenDetails(message).join(u" | ");
        const QString refused
            = parseError(u"Names of namespaces of this length are not accepted in so many places at "_qs);
        QCOMPARE(message.faultString().toString(), notXml);
        QVERIFY2(place == u"*" ? details.startsWith(refused) : details == refused + place, qPrintable(details));
    }
}

void tst_HostileDocuments::setContent_textInsideManyElements_isRead()
{
    const QByteArray text(4'000'000, 't');
    const QByteArray document
        = inBody("<a>x" + QByteArray("<b>y").repeated(250) + text + QByteArray("</b>").repeated(250) + "</a>");
    QElapsedTimer timer;
    timer.start();
    QtSoapMessage message;
    QVERIFY(message.setContent(document));
    const qint64 elapsed = timer.elapsed();
    QVERIFY2(elapsed < longestReadingMs, qPrintable(QString::number(elapsed)));
    QCOMPARE(message.method().type(), QtSoapType::String);
    QCOMPARE(message.method().toString(), u'x' + QString(250, u'y') + QString::fromLatin1(text));
}

void tst_HostileDocuments::textOfElement_isCopiedOnce()
{
    QDomDocument document;
    QVERIFY(document.setContent("<a>x" + QByteArray("<b>y").repeated(250) + QByteArray(4'000'000, 't')
                                + QByteArray("</b>").repeated(250) + "</a>"));
    const QDomElement element = document.documentElement();
    QElapsedTimer timer;
    timer.start();
    const QString expected = element.text(); // copies it for each of the elements
    const qint64 timeOfQt = timer.nsecsElapsed();
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 5; ++i) {
        QtSoapSimpleType value;
        timer.start();
        QVERIFY(value.parse(element));
        shortest = std::min(shortest, timer.nsecsElapsed());
        QVERIFY(value.toString() == expected);
    }
    QVERIFY2(shortest < timeOfQt / 4, qPrintable(u"%1 ns, %2 ns"_qs.arg(shortest).arg(timeOfQt)));
}

void tst_HostileDocuments::textOfElement_isTheTextOfQt_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    const auto add = [](const char *name, const char *content, const QString &text) {
        QTest::newRow(name) << QByteArray(content) << text;
    };
    add("nothing", "", u""_qs);
    add("text", " a ", u" a "_qs);
    add("white space", " \n ", u""_qs);
    add("character data", "<![CDATA[<a>]]>", u"<a>"_qs);
    add("character data of white space", "<![CDATA[ \n]]>", u" \n"_qs);
    add("comment", "<!--a-->", u""_qs);
    add("instruction", "<?a b?>", u""_qs);
    add("text around a comment", "a<!--b-->c", u"ac"_qs);
    add("text around an instruction", "a<?b c?>d", u"ad"_qs);
    add("text around character data", "a<![CDATA[b]]>c<![CDATA[d]]>", u"abcd"_qs);
    add("text around elements", "a<b>c</b>d<b/>e<b><b>f</b>g</b>", u"acdefg"_qs);
    add("elements alone", "<b>a</b><b>c</b>", u"ac"_qs);
    add("nested elements", "<b><b><b>a</b></b></b>", u"a"_qs);
    add("all in an element", "a<b c='d'>e<!--f--><?g h?><![CDATA[<i>]]>&lt;</b>j", u"ae<i><j"_qs);
}

void tst_HostileDocuments::textOfElement_isTheTextOfQt()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, text);

    QDomDocument document; // with neighbours: the walk must not leave its element
    QVERIFY(document.setContent("<r>before<a>" + content + "</a>behind<a>c</a></r>"));
    const QDomElement element = document.documentElement().firstChildElement();
    QtSoapSimpleType value;
    QVERIFY(value.parse(element));
    QCOMPARE(value.value(), QVariant(text));
    QCOMPARE(element.text(), text);
}

void tst_HostileDocuments::textOfElement_randomContent_isTheTextOfQt()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    for (quint32 i = 0; i < 500; ++i) {
        QRandomGenerator random(seed + i);
        const QByteArray content = mixedContent(random, 5);
        QDomDocument document;
        QVERIFY(document.setContent("<r><a>" + content + "</a>behind</r>"));
        const QDomElement element = document.documentElement().firstChildElement();
        QtSoapSimpleType value;
        QVERIFY(value.parse(element));
        QVERIFY2(value.value() == QVariant(element.text()),
                 qPrintable(u"seed %1: "_qs.arg(seed + i) + QString::fromLatin1(content)));
    }
}

void tst_HostileDocuments::setContent_encoding_isKnownOrRefused_data()
{
    addColumns();
    const auto wide = [](const QString &name, QStringConverter::Encoding encoding, bool hasMark) {
        return encoded(declaring(name), encoding, hasMark);
    };
    using Converter = QStringConverter;
    const QByteArray mark = "\xef\xbb\xbf";

    addRow("UTF-8", declaring({}).toUtf8());
    addRow("UTF-8 declared", declaring(u"UTF-8"_qs).toUtf8());
    addRow("UTF-8 in lower case", declaring(u"utf-8"_qs).toUtf8());
    addRow("UTF-8 with mark", mark + declaring({}).toUtf8());
    addRow("UTF-8 with mark and declared", mark + declaring(u"UTF-8"_qs).toUtf8());
    addRow("UTF-16 LE with mark", wide({}, Converter::Utf16LE, true));
    addRow("UTF-16 BE with mark", wide({}, Converter::Utf16BE, true));
    addRow("UTF-16 LE with mark and declared", wide(u"UTF-16"_qs, Converter::Utf16LE, true));
    addRow("UTF-16 BE with mark and declared", wide(u"UTF-16"_qs, Converter::Utf16BE, true));
    addRow("UTF-16 LE declared", wide(u"UTF-16LE"_qs, Converter::Utf16LE, false));
    addRow("UTF-16 BE declared", wide(u"UTF-16BE"_qs, Converter::Utf16BE, false));
    addRow("UTF-16 LE alone", wide({}, Converter::Utf16LE, false));
    addRow("UTF-16 BE alone", wide({}, Converter::Utf16BE, false));
    addRow("UTF-32 LE with mark", wide({}, Converter::Utf32LE, true));
    addRow("UTF-32 BE with mark", wide({}, Converter::Utf32BE, true));
    addRow("ISO-8859-1", declaring(u"ISO-8859-1"_qs).toLatin1());
    const QString unknown = parseError(u"The declared encoding is not known at line 1, column 0"_qs);
    const auto addIfKnown = [&unknown](const char *name, const QString &document) { // not by every build of Qt
        const bool isKnown = QStringDecoder(name).isValid();
        addRow(name, document.toLatin1(), isKnown ? QString() : notXml, isKnown ? QString() : unknown);
    };
    addIfKnown("US-ASCII", declaring(u"US-ASCII"_qs).replace(QChar(0xe4), u'a'));
    addIfKnown("windows-1252", declaring(u"windows-1252"_qs));
    addRow("UTF-7", declaring(u"UTF-7"_qs).toLatin1(), notXml, u"ParseError: *"_qs); // unknown, or no UTF-7
    addRow("EBCDIC", declaring(u"IBM037"_qs).toUtf8(), notXml, u"ParseError: *"_qs);
    addRow("UTF-16 in bytes of ASCII", declaring(u"UTF-16"_qs).toUtf8(), notXml, u"ParseError: *"_qs);
    addRow("UTF-8 in a wide document", wide(u"UTF-8"_qs, Converter::Utf16LE, true)); // the bytes count
    addRow("unknown", declaring(u"made-up"_qs).toUtf8(), notXml, unknown);
    addRow("empty name", declaring(u"x"_qs).replace(u"'x'"_qs, u"''"_qs).toUtf8(), notXml, unknown);
    addRow("declaration of 2000 characters",
           declaring(u"UTF-8"_qs).replace(u" encoding"_qs, QString(2000, u' ') + u"encoding").toUtf8());
    addRow("declaration without an end", "<?xml version='1.0'", notXml, u"ParseError: *"_qs);
    addRow("Latin-1 that is not declared", declaring({}).toLatin1(), notXml, u"ParseError: *"_qs);

    // Markup that a scan of bytes would not see, or not where the parser does.
    const QString type = u"<!DOCTYPE a [<!ENTITY b 'c'>]><a/>"_qs;
    const QString refused = parseError(u"A document type declaration is not accepted at line 1, column 0"_qs);
    addRow("type in UTF-16 LE", encoded(type, Converter::Utf16LE, true), notXml, u"ParseError: A document type*"_qs);
    addRow("type in UTF-16 BE without mark", encoded(type, Converter::Utf16BE, false), notXml, refused);
    addRow("type in UTF-32", encoded(type, Converter::Utf32BE, true), notXml, u"ParseError: A document type*"_qs);
    addRow("type behind a mark", mark + type.toUtf8(), notXml, u"ParseError: A document type*"_qs);
}

void tst_HostileDocuments::setContent_encoding_isKnownOrRefused()
{
    checkDocument();
    if (QTest::currentTestFailed()) {
        return;
    }
    QFETCH(const DocumentFunction, make);
    QtSoapMessage message;
    if (message.setContent(make())) {
        const QString expected = QByteArray(QTest::currentDataTag()) == "US-ASCII" ? u"a"_qs : u"\u00e4"_qs;
        QCOMPARE(message.returnValue().toString(), expected);
    }
}

void tst_HostileDocuments::setContent_damagedDocument_isRefused_data()
{
    addColumns();
    const QString anyError = u"ParseError: *"_qs;

    addRow("nothing", QByteArray(), notXml, anyError);
    addRow("white space", QByteArray(" \r\n\t"), notXml, anyError);
    addRow("NUL bytes", QByteArray(1000, '\0'), notXml, anyError);
    addRow("NUL in a text", inBody(QByteArray("<a>b\0c</a>", 10)), notXml, anyError);
    addRow("NUL in a name", inBody(QByteArray("<a\0b/>", 6)), notXml, anyError);
    addRow("NUL as a reference", inBody("<a>&#0;</a>"), notXml, anyError);
    addRow("control character", inBody("<a>\x01</a>"), notXml, anyError);
    addRow("surrogate as a reference", inBody("<a>&#xD800;</a>"), notXml, anyError);
    addRow("reference beyond Unicode", inBody("<a>&#x110000;</a>"), notXml, anyError);
    addRow("byte that is never UTF-8", inBody("<a>\xff</a>"), notXml, anyError);
    addRow("longer form than needed", inBody("<a>\xc0\xaf</a>"), notXml, anyError);
    addRow("surrogate in UTF-8", inBody("<a>\xed\xa0\x80</a>"), notXml, anyError);
    addRow("half a character", inBody("<a>\xe4\xbd</a>"), notXml, anyError);
    addRow("attribute twice", inBody("<a b='1' b='2'/>"), notXml, anyError);
    addRow("attribute twice by its namespace", inBody("<a xmlns:b='u' xmlns:c='u' b:d='1' c:d='2'/>"), notXml,
           anyError);
    addRow("attribute without quotes", inBody("<a b=1/>"), notXml, anyError);
    addRow("attribute that does not end", inBody("<a b='/>"), notXml, anyError);
    addRow("comment that does not end", inBody("<!-- "), notXml, anyError);
    addRow("character data that does not end", inBody("<![CDATA["), notXml, anyError);
    addRow("a second declaration", inBody("<?xml version='1.0'?>"), notXml, anyError);
    addRow("XML 2.0", "<?xml version='2.0'?>" + inBody({}), notXml, anyError);
    addRow("text behind the end", inBody({}) + 'a', notXml, anyError);
    addRow("noise", QByteArray::fromHex("1f8b0800000000000203abcd"), notXml, anyError);
    addRow("end tags alone", QByteArray("</a>").repeated(1000), notXml, anyError);
    addRow("brackets alone", QByteArray(100'000, '<'), notXml, anyError);
    addRow("greater-than sign in an attribute", inBody("<a b='>>>'><c>d</c></a>"));
}

void tst_HostileDocuments::setContent_damagedDocument_isRefused()
{
    checkDocument();
}

void tst_HostileDocuments::setContent_unusualShape_isReadOrFault_data()
{
    addColumns();
    const QString wrongBody
        = u"extra: In the struct element Envelope, child #0, Body, was not recognized as a SOAP type."_qs;

    addRow("body of text", inBody("a"));
    addRow("body without content", inBody({}));
    addRow("body as an array", envelope("<e:Body type='Array'><a/></e:Body>"));
    addRow("body as a number", envelope("<e:Body type='int'>12</e:Body>"));
    addRow("body as no number", envelope("<e:Body type='int'>a</e:Body>"), invalidStructure, wrongBody);
    addRow("body as a number with members", envelope("<e:Body type='int'><a>1</a><b>2</b></e:Body>"));
    addRow("body of text and elements", inBody("a<b/>"));
    addRow("body of elements and text", inBody("<b/>a"), invalidStructure, wrongBody);
    addRow("body as a struct of text", envelope("<e:Body type='struct'>a</e:Body>"), invalidStructure, wrongBody);
    addRow("body as an array of text", envelope("<e:Body type='array'>a</e:Body>"), invalidStructure, wrongBody);
    addRow("two bodies", inBody("<a/>").replace("</e:Body>", "</e:Body><e:Body>a</e:Body>"));
    addRow("header of text", envelope("<e:Header>a</e:Header><e:Body/>"));
    addRow("header as an array", envelope("<e:Header type='array'><a/></e:Header><e:Body/>"));
    addRow("fault of text", inBody("<e:Fault>SOAP-ENV:Server</e:Fault>"));
    addRow("fault as an array", inBody("<e:Fault type='array'><faultcode>Server</faultcode></e:Fault>"));
    addRow("fault code as an array", inBody("<e:Fault><faultcode type='array'><a/></faultcode></e:Fault>"));
    addRow("members twice", inBody("<a><b>1</b><b>2</b><B>3</B></a>"));
    addRow("item at the largest place", inBody("<array><a position='2147483647'/><a/></array>"));
    addRow("item at the smallest place", inBody("<array><a position='-2147483648'/><a position='x'/></array>"));
    addRow("number beyond the range", inBody("<a><b type='int'>99999999999999999999</b></a>"));
    addRow("unknown type", inBody("<a><b type='a:b:c'>d</b></a>"));
    addRow("empty type", inBody("<a><b type=''>d</b><c type=':'>d</c></a>"));
}

void tst_HostileDocuments::setContent_unusualShape_isReadOrFault()
{
    checkDocument();
    if (QTest::currentTestFailed()) {
        return;
    }
    QFETCH(const DocumentFunction, make);
    const QtMessageHandler before = qInstallMessageHandler(ignoreMessage);
    QtSoapMessage message;
    const bool isRead = message.setContent(make());
    qInstallMessageHandler(before);
    static_cast<void>(message.method().isValid() && message.returnValue().isValid() && message.faultDetail().isValid());
    message.addHeaderItem(new QtSoapSimpleType(QtSoapQName(u"a"_qs), 1)); // what is no struct is passed over
    message.setFaultCode(QtSoapMessage::Client);
    message.setFaultString(u"b"_qs);
    message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(u"c"_qs), 1));
    QCOMPARE(writtenDetails(message).last(), u"c: 1"_qs);
    QCOMPARE(writtenDetails(message).size(), isRead ? 1 : 2);
}

void tst_HostileDocuments::setContent_truncatedAnywhere_isFault()
{
    const QByteArray document = goldenDocument();
    QVERIFY(document.endsWith("</SOAP-ENV:Envelope>"));
    for (qsizetype length = 0; length < document.size(); ++length) {
        QtSoapMessage message;
        QVERIFY2(!message.setContent(document.first(length)), qPrintable(QString::number(length)));
        QVERIFY2(message.isFault(), qPrintable(QString::number(length)));
        QCOMPARE(message.faultString().toString(), notXml);
    }
}

void tst_HostileDocuments::setContent_anyByteChanged_hasAnswer_data()
{
    QTest::addColumn<QByteArray>("replacements");

    QTest::newRow("markup") << QByteArray("<>/&\"=!?:");
    QTest::newRow("letters and spaces") << QByteArray("aZ0 \n-[");
    QTest::newRow("bytes that are no text") << QByteArray("\0\x01\x7f\x80\xc3\xef\xff", 7);
}

void tst_HostileDocuments::setContent_anyByteChanged_hasAnswer()
{
    QFETCH(const QByteArray, replacements);

    const QByteArray document = goldenDocument();
    QVERIFY(hasAnswer(document));
    const QtMessageHandler before = qInstallMessageHandler(ignoreMessage);
    QByteArray withoutAnswer;
    for (qsizetype at = 0; at < document.size() && withoutAnswer.isEmpty(); ++at) {
        for (const char replacement : replacements) {
            QByteArray changed = document;
            changed[at] = replacement;
            if (!hasAnswer(changed)) {
                withoutAnswer = changed;
            }
        }
        QByteArray shorter = document;
        shorter.remove(at, 1);
        if (!hasAnswer(shorter)) {
            withoutAnswer = shorter;
        }
    }
    qInstallMessageHandler(before);
    QCOMPARE(withoutAnswer, QByteArray());
}

void tst_HostileDocuments::writing_randomValues_isStableFromTheSecondOn()
{
    // The first writing names types by "xsi:type", which is read as a plain text.
    const quint32 seed = QRandomGenerator::global()->generate();
    for (quint32 i = 0; i < 200; ++i) {
        RandomValues values(seed + i);
        QtSoapMessage message;
        message.addHeaderItem(values.next(1).release());
        message.addBodyItem(values.members(5).release());
        message.addBodyItem(values.next(2).release());
        const QString second = rewritten(message.toXmlString(-1));
        QVERIFY2(second.startsWith(u"<SOAP-ENV:Envelope "), qPrintable(u"seed %1: "_qs.arg(seed + i) + second));
        const QString third = rewritten(second);
        QVERIFY2(third == second, qPrintable(u"seed %1: "_qs.arg(seed + i) + second + u"\n" + third));
        QVERIFY2(rewritten(message.toXmlString(1)) == second, qPrintable(u"seed %1, indented"_qs.arg(seed + i)));
    }
}

void tst_HostileDocuments::writing_changesOfQt_arePinned_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("readAgain");

    QTest::newRow("usual") << u" a  b "_qs << u" a  b "_qs;
    QTest::newRow("markup") << u"<a>&amp;]]>"_qs << u"<a>&amp;]]>"_qs;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("white space alone is dropped") << u" \n "_qs << QString();
    QTest::newRow("line ends of Windows") << u"a\r\nb"_qs << u"a\r\nb"_qs; // written as references
    QTest::newRow("beyond the first plane") << u"\U0001F600"_qs << u"\U0001F600"_qs;
}

void tst_HostileDocuments::writing_changesOfQt_arePinned()
{
    QFETCH(const QString, text);
    QFETCH(const QString, readAgain);

    QtSoapMessage message;
    message.setMethod(u"a"_qs, QString());
    message.addMethodArgument(u"b"_qs, QString(), text);
    QtSoapMessage reader;
    QVERIFY(reader.setContent(message.toXmlString(-1).toUtf8()));
    QCOMPARE(reader.returnValue().toString(), readAgain);
}

void tst_HostileDocuments::writing_plainChildOfMethod_comesBackInItsNamespace_data()
{
    QTest::addColumn<QByteArray>("document"); // empty: it is composed

    QTest::newRow("composed") << QByteArray();
    QTest::newRow("read") << inBody("<a xmlns='urn:a'><b xmlns=''>c</b></a>");
    QTest::newRow("read with a prefix") << inBody("<d:a xmlns:d='urn:a'><b>c</b></d:a>");
}

void tst_HostileDocuments::writing_plainChildOfMethod_comesBackInItsNamespace()
{
    QFETCH(const QByteArray, document);

    QtSoapMessage message;
    if (document.isEmpty()) {
        message.setMethod(u"a"_qs, u"urn:a"_qs);
        message.addMethodArgument(u"b"_qs, QString(), u"c"_qs);
    } else {
        QVERIFY(message.setContent(document));
    }
    QCOMPARE(message.returnValue().name().uri(), QString());
    QtSoapMessage reader; // Qt writes the method's as the default one, and nothing for the child
    QVERIFY(reader.setContent(message.toXmlString(-1).toUtf8()));
    QCOMPARE(reader.method().name().uri(), u"urn:a"_qs);
    QCOMPARE(reader.returnValue().toString(), u"c"_qs);
    QCOMPARE(reader.returnValue().name().name(), u"b"_qs);
    QCOMPARE(reader.returnValue().name().uri(), u"urn:a"_qs);
}

QTEST_GUILESS_MAIN(tst_HostileDocuments)

#include "tst_HostileDocuments.moc"
