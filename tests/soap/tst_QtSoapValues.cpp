// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/SoapElements.h"
#include "support/FreshProcess.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"
#include "utilsDll/soap/QtSoapTypeFactory.h"

#include <QtCore/QTextStream>
#include <QtTest/QTest>

#include <array>
#include <limits>
#include <memory>

using namespace ZYX_zglv6;
using TestSupport::elementFrom;
using TestSupport::newDocument;
using TestSupport::outline;

namespace {

QString instanceUri()
{
    return u"http://www.w3.org/1999/XMLSchema-instance"_qs;
}

/*! Prefixes of the tests' own: what is written follows the table alone. */
void registerPrefixes()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"inst"_qs, instanceUri());
    namespaces.registerNamespace(u"schema"_qs, u"http://www.w3.org/1999/XMLSchema"_qs);
    namespaces.registerNamespace(u"env"_qs, u"http://schemas.xmlsoap.org/soap/envelope/"_qs);
    namespaces.registerNamespace(u"enc"_qs, u"http://schemas.xmlsoap.org/soap/encoding/"_qs);
    namespaces.registerNamespace(u"x"_qs, u"urn:x"_qs);
}

QtSoapSimpleType *newText(const QString &name, const QString &text, const QString &uri = QString())
{
    return new QtSoapSimpleType(QtSoapQName(name, uri), text);
}

/*! The attributes "type" and "xsi:type" in the order and by the way of writing that a row names. */
QDomElement elementWithTwoTypes(QDomDocument &document, bool isPlainFirst, int way)
{
    if (way < 2) {
        const QString attributes = isPlainFirst ? u"type=\"xsd:int\" xsi:type=\"xsd:string\""_qs
                                                : u"xsi:type=\"xsd:string\" type=\"xsd:int\""_qs;
        return elementFrom(document, u"<a xmlns:xsi=\"urn:instance\" "_qs + attributes + u">12</a>", way == 0);
    }
    QDomElement element = document.createElement(u"a"_qs);
    element.appendChild(document.createTextNode(u"12"_qs));
    const auto setPlain = [&element, way] {
        if (way == 2) {
            element.setAttribute(u"type"_qs, u"xsd:int"_qs);
        } else {
            element.setAttributeNS(u""_qs, u"type"_qs, u"xsd:int"_qs); // the other one would overwrite "xsi:type"
        }
    };
    if (isPlainFirst) {
        setPlain();
    }
    if (way == 2) {
        element.setAttribute(u"xsi:type"_qs, u"xsd:string"_qs);
    } else {
        element.setAttributeNS(instanceUri(), u"xsi:type"_qs, u"xsd:string"_qs);
    }
    if (!isPlainFirst) {
        setPlain();
    }
    return element;
}

} // namespace

class tst_QtSoapValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void simple_constructor_setsTypeAndValue_data();
    void simple_constructor_setsTypeAndValue();
    void simple_converts_data();
    void simple_converts();
    void simple_isAValueWithoutMembers();
    void simple_cleared_keepsItsType();
    void simple_copied_hasEverything();
    void simple_parse_readsText_data();
    void simple_parse_readsText();
    void simple_parse_byType_data();
    void simple_parse_byType();
    void simple_parse_ofTwoTypes_takesThePlainOne_data();
    void simple_parse_ofTwoTypes_takesThePlainOne();
    void simple_parse_ofAPrefixedTypeAlone_isAString_data();
    void simple_parse_ofAPrefixedTypeAlone_isAString();
    void simple_parse_takesAllTextInside();
    void simple_parse_withNoElement_isFalse();
    void simple_parse_setsTheName_data();
    void simple_parse_setsTheName();
    void simple_parse_ofNoNumber_keepsNameAndValue();
    void simple_parse_failedWithoutAReason_keepsTheLastOne();
    void simple_parse_ofNoBoolean_keepsTheValue_data();
    void simple_parse_ofNoBoolean_keepsTheValue();
    void simple_written_data();
    void simple_written();
    void simple_written_withoutPrefixes_hasTheNamespaces();

    void struct_constructor_setsTheType();
    void struct_insert_keepsTheOrderAndOwnsTheItems();
    void struct_at_comparesStoredNameWithKey_data();
    void struct_at_comparesStoredNameWithKey();
    void struct_at_ofEqualNames_givesTheFirst();
    void struct_at_whereNothingIs_givesANullValueEach();
    void struct_byIndex_outOfRange_givesTheNullValue_data();
    void struct_byIndex_outOfRange_givesTheNullValue();
    void struct_copied_sharesTheMembers();
    void struct_cleared_keepsNameTypeAndErrorText();
    void struct_parse_mirrorsTheElement();
    void struct_parse_again_dropsTheMembers();
    void struct_parse_ofAnEmptyElement_isEmpty();
    void struct_parse_withNoElement_isFalse();
    void struct_parse_ofAnotherChild_isFalse_data();
    void struct_parse_ofAnotherChild_isFalse();
    void struct_parse_ofAnUnreadableChild_tellsWhich();
    void struct_parse_failedWithoutAReason_keepsTheLastOne();
    void struct_parse_ofChildrenThatDoNotStartWithAnElement_readsTexts_data();
    void struct_parse_ofChildrenThatDoNotStartWithAnElement_readsTexts();
    void struct_assignedFromItsMember_isThat();
    void struct_written_data();
    void struct_written();
    void struct_written_endsAtTheFirstNull();
    void struct_writtenAndParsed_isTheSame();

    void structIterator_goesThroughTheMembers();
    void structIterator_atTheEnd_staysThere();
    void structIterator_ofANullMember_hasNoKey();
    void structIterator_comparesThePosition();
    void structIterator_detachesTheMembers();

    void everyValue_staysValid_data();
    void everyValue_staysValid();
};

void tst_QtSoapValues::simple_constructor_setsTypeAndValue_data()
{
    QTest::addColumn<QtSoapSimpleType>("value");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QtSoapType::Type>("type");
    QTest::addColumn<QVariant>("wanted");

    const QtSoapQName name(u"a"_qs, u"urn:x"_qs);
    QTest::newRow("nothing") << QtSoapSimpleType() << u""_qs << QtSoapType::Other << QVariant();
    QTest::newRow("name") << QtSoapSimpleType(name) << u"a"_qs << QtSoapType::Other << QVariant();
    QTest::newRow("number") << QtSoapSimpleType(name, -7) << u"a"_qs << QtSoapType::Int << QVariant(-7);
    QTest::newRow("true") << QtSoapSimpleType(name, true, 0) << u"a"_qs << QtSoapType::Boolean << QVariant(true);
    QTest::newRow("false, with a number that plays no part")
        << QtSoapSimpleType(name, false, 1) << u"a"_qs << QtSoapType::Boolean << QVariant(false);
    QTest::newRow("text") << QtSoapSimpleType(name, u"b"_qs) << u"a"_qs << QtSoapType::String << QVariant(u"b"_qs);
    QTest::newRow("empty text") << QtSoapSimpleType(name, u""_qs) << u"a"_qs << QtSoapType::String << QVariant(u""_qs);
}

void tst_QtSoapValues::simple_constructor_setsTypeAndValue()
{
    QFETCH(const QtSoapSimpleType, value);
    QFETCH(const QString, name);
    QFETCH(const QVariant, wanted);
    QTEST(value.type(), "type");
    QCOMPARE(value.value().typeId(), wanted.typeId());
    QCOMPARE(value.value(), wanted);
    QCOMPARE(value.name().name(), name);
    QCOMPARE(value.name().uri(), name.isEmpty() ? u""_qs : u"urn:x"_qs);
    QCOMPARE(value.errorString(), u"Unknown error"_qs);
    QVERIFY(value.isValid());
}

void tst_QtSoapValues::simple_converts_data()
{
    QTest::addColumn<QtSoapSimpleType>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("truth");

    const QtSoapQName name(u"a"_qs);
    QTest::newRow("nothing") << QtSoapSimpleType(name) << u""_qs << 0 << false;
    QTest::newRow("number") << QtSoapSimpleType(name, -7) << u"-7"_qs << -7 << true;
    QTest::newRow("zero") << QtSoapSimpleType(name, 0) << u"0"_qs << 0 << false;
    QTest::newRow("true") << QtSoapSimpleType(name, true, 0) << u"true"_qs << 1 << true;
    QTest::newRow("false") << QtSoapSimpleType(name, false, 0) << u"false"_qs << 0 << false;
    QTest::newRow("text of a number") << QtSoapSimpleType(name, u"12"_qs) << u"12"_qs << 12 << true;
    QTest::newRow("text") << QtSoapSimpleType(name, u"b"_qs) << u"b"_qs << 0 << true;
    QTest::newRow("text of a boolean") << QtSoapSimpleType(name, u"FALSE"_qs) << u"FALSE"_qs << 0 << false;
}

void tst_QtSoapValues::simple_converts()
{
    QFETCH(const QtSoapSimpleType, value);
    QTEST(value.toString(), "text");
    QTEST(value.toInt(), "number");
    QTEST(value.toBool(), "truth");
}

void tst_QtSoapValues::simple_isAValueWithoutMembers()
{
    QtSoapSimpleType value(QtSoapQName(u"a"_qs), 5);
    QCOMPARE(value.count(), qint64(0));
    QVERIFY(!value[u"a"_qs].isValid());
    QVERIFY(!value[QtSoapQName(u"a"_qs)].isValid());
    QVERIFY(!value[0].isValid());
}

void tst_QtSoapValues::simple_cleared_keepsItsType()
{
    QtSoapSimpleType value(QtSoapQName(u"a"_qs), 5);
    value.clear();
    QVERIFY(!value.value().isValid());
    QCOMPARE(value.type(), QtSoapType::Int);
    QCOMPARE(value.name().name(), u"a"_qs);

    QDomDocument document;
    QVERIFY(!value.parse(elementFrom(document, u"<x type='int'>abc</x>"_qs)));
    value.clear();
    QCOMPARE(value.errorString(), u"Type error at element \"x\""_qs);
}

void tst_QtSoapValues::simple_copied_hasEverything()
{
    QtSoapSimpleType value(QtSoapQName(u"a"_qs, u"urn:x"_qs), 5);
    value.setId(u"id"_qs);
    QDomDocument document;
    QVERIFY(!value.parse(elementFrom(document, u"<x type='long'>abc</x>"_qs)));
    const QtSoapSimpleType copy(value);
    QtSoapSimpleType assigned;
    assigned = value;
    for (const QtSoapSimpleType *one : {&copy, &std::as_const(assigned)}) {
        QCOMPARE(one->value(), QVariant(5));
        QCOMPARE(one->type(), QtSoapType::Long);
        QCOMPARE(one->name().name(), u"a"_qs);
        QCOMPARE(one->name().uri(), u"urn:x"_qs);
        QCOMPARE(one->id(), u"id"_qs);
        QCOMPARE(one->errorString(), u"Type error at element \"x\""_qs);
    }
}

void tst_QtSoapValues::simple_parse_readsText_data()
{
    QTest::addColumn<QString>("typeText"); // null without the attribute
    QTest::addColumn<QString>("text");
    QTest::addColumn<QtSoapType::Type>("type");
    QTest::addColumn<QVariant>("value"); // an invalid one that stays so, or a failure where the type is a number

    using T = QtSoapType; // NOLINT(readability-identifier-length)
    const auto add = [](const char *row, const QString &typeText, const QString &text, T::Type type,
                        const QVariant &value) { QTest::newRow(row) << typeText << text << type << value; };
    add("no type", QString(), u" a  b\n\tc "_qs, T::String, u" a  b\n\tc "_qs);
    add("no type, a number", QString(), u"12"_qs, T::String, u"12"_qs);
    add("no type, no text", QString(), u""_qs, T::String, u""_qs);
    add("no type, blanks", QString(), u"  "_qs, T::String, u"  "_qs);
    add("empty type", u""_qs, u"a"_qs, T::Other, u"a"_qs);
    add("without prefix", u"int"_qs, u"12"_qs, T::Int, 12);
    add("upper case", u"XSD:INT"_qs, u"12"_qs, T::Int, 12);
    add("any prefix", u"other:int"_qs, u"12"_qs, T::Int, 12);
    add("blanks around the type", u"xsd: int "_qs, u"12"_qs, T::Int, 12);
    add("colon in front", u":int"_qs, u"12"_qs, T::Other, u"12"_qs);
    add("two colons", u"a:b:int"_qs, u"12"_qs, T::Other, u"12"_qs);
    add("unknown type", u"myType"_qs, u" a "_qs, T::Other, u" a "_qs);
    add("array", u"xsd:array"_qs, u"a"_qs, T::Other, u"a"_qs);
    add("struct", u"xsd:struct"_qs, u"a"_qs, T::Other, u"a"_qs);
    add("hexBinary", u"xsd:hexBinary"_qs, u"0f"_qs, T::Other, u"0f"_qs);
    add("nonPositiveInteger", u"xsd:nonPositiveInteger"_qs, u"-1"_qs, T::Other, u"-1"_qs);

    add("number with letters", u"xsd:int"_qs, u"12abc"_qs, T::Int, 0);
    add("letters", u"xsd:int"_qs, u"abc"_qs, T::Int, QVariant());
    add("no text", u"xsd:int"_qs, u""_qs, T::Int, 0);
    add("negative", u"xsd:int"_qs, u"-12"_qs, T::Int, -12);
    add("minus and letters", u"xsd:int"_qs, u"-abc"_qs, T::Int, 0);
    add("plus", u"xsd:int"_qs, u"+12"_qs, T::Int, QVariant());
    add("blank in front", u"xsd:int"_qs, u" 12"_qs, T::Int, QVariant());
    add("fraction sign", u"xsd:int"_qs, u"\u00bd"_qs, T::Int, 0);
    add("hexadecimal", u"xsd:int"_qs, u"0x10"_qs, T::Int, 0);
    add("octal", u"xsd:int"_qs, u"010"_qs, T::Int, 10);
    add("largest", u"xsd:int"_qs, u"2147483647"_qs, T::Int, 2147483647);
    add("one more", u"xsd:int"_qs, u"2147483648"_qs, T::Int, 0);
    add("out of a byte", u"xsd:byte"_qs, u"300"_qs, T::Byte, 300);
    add("unsigned, negative", u"xsd:unsignedByte"_qs, u"-1"_qs, T::UnsignedByte, -1);
    add("unsigned, above int", u"xsd:unsignedInt"_qs, u"4294967295"_qs, T::UnsignedInt, 0);
    add("decimal", u"xsd:decimal"_qs, u"3.7"_qs, T::Decimal, 0);
    add("decimal, letters", u"xsd:decimal"_qs, u"a"_qs, T::Decimal, QVariant());
    add("unsignedByte, letters", u"xsd:unsignedByte"_qs, u"a"_qs, T::UnsignedByte, QVariant());

    add("float", u"xsd:float"_qs, u"1.5"_qs, T::Float, 1.5F);
    add("float of letters", u"xsd:float"_qs, u"abc"_qs, T::Float, 0.0F);
    add("double", u"xsd:double"_qs, u"-1.25e100"_qs, T::Double, -1.25e100);
    add("double of letters", u"xsd:double"_qs, u"abc"_qs, T::Double, 0.0);
    add("true", u"xsd:boolean"_qs, u" TRUE "_qs, T::Boolean, true);
    add("false", u"xsd:boolean"_qs, u"\nFalse\t"_qs, T::Boolean, false);
    add("1", u"xsd:boolean"_qs, u"1"_qs, T::Boolean, QVariant());
    add("0", u"xsd:boolean"_qs, u"0"_qs, T::Boolean, QVariant());
    add("no truth", u"xsd:boolean"_qs, u""_qs, T::Boolean, QVariant());
}

void tst_QtSoapValues::simple_parse_readsText()
{
    QFETCH(const QString, typeText);
    QFETCH(const QString, text);
    QFETCH(const QtSoapType::Type, type);
    QFETCH(const QVariant, value);
    QDomDocument document;
    QDomElement element = document.createElement(u"x"_qs);
    element.appendChild(document.createTextNode(text));
    if (!typeText.isNull()) {
        element.setAttribute(u"type"_qs, typeText);
    }
    const bool isReadable = value.isValid() || type == QtSoapType::Boolean;

    QtSoapSimpleType simple;
    QCOMPARE(simple.parse(element), isReadable);
    QCOMPARE(simple.type(), type);
    QCOMPARE(simple.value().typeId(), value.typeId());
    QCOMPARE(simple.value(), value);
    QCOMPARE(simple.errorString(), isReadable ? u"Unknown error"_qs : u"Type error at element \"x\""_qs);
}

void tst_QtSoapValues::simple_parse_byType_data()
{
    QTest::addColumn<QtSoapType::Type>("type");

    for (int number = QtSoapType::Duration; number < QtSoapType::Array; ++number) {
        const auto type = QtSoapType::Type(number);
        if (type != QtSoapType::HexBinary && type != QtSoapType::NonPositiveInteger) { // no name reads these
            QTest::newRow(qPrintable(QtSoapType::typeToName(type))) << type;
        }
    }
}

void tst_QtSoapValues::simple_parse_byType()
{
    QFETCH(const QtSoapType::Type, type);
    QDomDocument document;
    const QDomElement element = elementFrom(document, u"<x type='xsd:%1'>7</x>"_qs.arg(QtSoapType::typeToName(type)));
    QtSoapSimpleType value;
    QVERIFY(value.parse(element));
    QCOMPARE(value.type(), type);
    if (type == QtSoapType::Boolean) {
        QVERIFY(!value.value().isValid());
        return;
    }
    const int kind = type >= QtSoapType::Decimal ? QMetaType::Int
        : type == QtSoapType::Float              ? QMetaType::Float
        : type == QtSoapType::Double             ? QMetaType::Double
                                                 : QMetaType::QString;
    QCOMPARE(value.value().typeId(), kind);
    QCOMPARE(value.toString(), u"7"_qs);
}

void tst_QtSoapValues::simple_parse_ofTwoTypes_takesThePlainOne_data()
{
    QTest::addColumn<bool>("isPlainFirst");
    QTest::addColumn<int>("way");

    const std::array ways{"read with namespaces", "read without namespaces", "made without namespaces",
                          "made with a namespace"};
    for (int way = 0; way < int(ways.size()); ++way) {
        QTest::addRow("plain one first, %s", ways[std::size_t(way)]) << true << way;
        QTest::addRow("plain one last, %s", ways[std::size_t(way)]) << false << way;
    }
}

void tst_QtSoapValues::simple_parse_ofTwoTypes_takesThePlainOne()
{
    QFETCH(const bool, isPlainFirst);
    QFETCH(const int, way);
    QDomDocument document;
    QtSoapSimpleType value;
    QVERIFY(value.parse(elementWithTwoTypes(document, isPlainFirst, way)));
    QCOMPARE(value.type(), QtSoapType::Int);
    QCOMPARE(value.value(), QVariant(12));
}

void tst_QtSoapValues::simple_parse_ofAPrefixedTypeAlone_isAString_data()
{
    QTest::addColumn<bool>("hasNamespaces");

    QTest::newRow("with namespaces") << true;
    QTest::newRow("without namespaces") << false;
}

void tst_QtSoapValues::simple_parse_ofAPrefixedTypeAlone_isAString()
{
    QFETCH(const bool, hasNamespaces);
    QDomDocument document;
    QtSoapSimpleType value;
    QVERIFY(
        value.parse(elementFrom(document, u"<a xmlns:xsi='urn:instance' xsi:type='xsd:int'>12</a>"_qs, hasNamespaces)));
    QCOMPARE(value.type(), QtSoapType::String);
    QCOMPARE(value.value(), QVariant(u"12"_qs));
}

void tst_QtSoapValues::simple_parse_takesAllTextInside()
{
    QDomDocument document;
    QtSoapSimpleType value;
    QVERIFY(value.parse(elementFrom(document, u"<a>one<!--no--><b> two</b><![CDATA[<3>]]>&amp;</a>"_qs)));
    QCOMPARE(value.toString(), u"one two<3>&"_qs);
    QVERIFY(value.parse(elementFrom(document, u"<a><![CDATA[ <1> ]]></a>"_qs)));
    QCOMPARE(value.toString(), u" <1> "_qs);
}

void tst_QtSoapValues::simple_parse_withNoElement_isFalse()
{
    QDomDocument document;
    QtSoapSimpleType value(QtSoapQName(u"a"_qs), 5);
    QVERIFY(!value.parse(QDomNode()));
    QVERIFY(!value.parse(document.createTextNode(u"12"_qs)));
    QVERIFY(!value.parse(document.createComment(u"12"_qs)));
    QCOMPARE(value.type(), QtSoapType::Int);
    QCOMPARE(value.value(), QVariant(5));
    QCOMPARE(value.errorString(), u"Unknown error"_qs);
}

void tst_QtSoapValues::simple_parse_setsTheName_data()
{
    QTest::addColumn<QDomElement>("element");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("uri");

    QDomDocument document;
    QTest::newRow("plain") << document.createElement(u"a"_qs) << u"a"_qs << u""_qs;
    QTest::newRow("namespace") << document.createElementNS(u"urn:x"_qs, u"a"_qs) << u"a"_qs << u"urn:x"_qs;
    QTest::newRow("prefix of a namespace")
        << document.createElementNS(u"urn:x"_qs, u"p:a"_qs) << u"a"_qs << u"urn:x"_qs;
    QTest::newRow("prefix without a namespace") << document.createElement(u"p:a"_qs) << u"a"_qs << u""_qs;
    QTest::newRow("two colons") << document.createElement(u"p:q:a"_qs) << u"q:a"_qs << u""_qs;
    QTest::newRow("colon in front") << document.createElement(u":a"_qs) << u":a"_qs << u""_qs;
    QTest::newRow("colon at the end") << document.createElement(u"a:"_qs) << u""_qs << u""_qs;
}

void tst_QtSoapValues::simple_parse_setsTheName()
{
    QFETCH(const QDomElement, element);
    QtSoapSimpleType value;
    QVERIFY(value.parse(element));
    QTEST(value.name().name(), "name");
    QTEST(value.name().uri(), "uri");

    QtSoapStruct soapStruct;
    QVERIFY(soapStruct.parse(element));
    QTEST(soapStruct.name().name(), "name");
    QTEST(soapStruct.name().uri(), "uri");

    QtSoapArray array;
    QVERIFY(array.parse(element));
    QTEST(array.name().name(), "name");
    QTEST(array.name().uri(), "uri");
}

void tst_QtSoapValues::simple_parse_ofNoNumber_keepsNameAndValue()
{
    QDomDocument document;
    QtSoapSimpleType value(QtSoapQName(u"a"_qs, u"urn:a"_qs), u"before"_qs);
    const QString text = u"<p:x xmlns:p='urn:x' type='xsd:short'>abc</p:x>"_qs;
    QVERIFY(!value.parse(elementFrom(document, text)));
    QCOMPARE(value.errorString(), u"Type error at element \"x\""_qs);
    QVERIFY(!value.parse(elementFrom(document, text, false)));
    QCOMPARE(value.errorString(), u"Type error at element \"p:x\""_qs); // to Qt the prefix is part of the tag name then
    QCOMPARE(value.type(), QtSoapType::Short);
    QCOMPARE(value.value(), QVariant(u"before"_qs));
    QCOMPARE(value.name().name(), u"a"_qs);
    QCOMPARE(value.name().uri(), u"urn:a"_qs);
}

void tst_QtSoapValues::simple_parse_failedWithoutAReason_keepsTheLastOne()
{
    QDomDocument document;
    QtSoapSimpleType value;
    QVERIFY(!value.parse(elementFrom(document, u"<a type='int'>abc</a>"_qs)));
    QVERIFY(!value.parse(QDomNode()));
    QCOMPARE(value.errorString(), u"Type error at element \"a\""_qs);
    QVERIFY(value.parse(elementFrom(document, u"<b type='int'>5</b>"_qs)));
    QCOMPARE(value.errorString(), u"Type error at element \"a\""_qs); // success keeps it too
}

void tst_QtSoapValues::simple_parse_ofNoBoolean_keepsTheValue_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("0") << u"0"_qs;
    QTest::newRow("other") << u"no"_qs;
    QTest::newRow("nothing") << u""_qs;
}

void tst_QtSoapValues::simple_parse_ofNoBoolean_keepsTheValue()
{
    QFETCH(const QString, text);
    QDomDocument document;
    QtSoapSimpleType value(QtSoapQName(u"a"_qs), true, 0);
    QVERIFY(value.parse(elementFrom(document, u"<b type='boolean'>%1</b>"_qs.arg(text))));
    QCOMPARE(value.value(), QVariant(true));
    QCOMPARE(value.name().name(), u"b"_qs);
}

void tst_QtSoapValues::simple_written_data()
{
    QTest::addColumn<QtSoapSimpleType>("value");
    QTest::addColumn<QString>("wanted");

    const QString form = u"%1[{http://www.w3.org/1999/XMLSchema-instance}inst:type=xsd:%2]('%3')"_qs;
    const QtSoapQName plain(u"a"_qs);
    QTest::newRow("nothing") << QtSoapSimpleType(plain) << form.arg(u"a"_qs, u"other"_qs, u""_qs);
    QTest::newRow("number") << QtSoapSimpleType(plain, -7) << form.arg(u"a"_qs, u"int"_qs, u"-7"_qs);
    QTest::newRow("boolean") << QtSoapSimpleType(plain, true, 0) << form.arg(u"a"_qs, u"boolean"_qs, u"true"_qs);
    QTest::newRow("text") << QtSoapSimpleType(plain, u" <b> & "_qs) << form.arg(u"a"_qs, u"string"_qs, u" <b> & "_qs);
    QTest::newRow("namespace") << QtSoapSimpleType(QtSoapQName(u"a"_qs, u"urn:x"_qs), u"b"_qs)
                               << form.arg(u"{urn:x}x:a"_qs, u"string"_qs, u"b"_qs);
}

void tst_QtSoapValues::simple_written()
{
    QFETCH(const QtSoapSimpleType, value);
    registerPrefixes();
    QTEST(outline(value.toDomElement(newDocument())), "wanted");
}

void tst_QtSoapValues::simple_written_withoutPrefixes_hasTheNamespaces()
{
    RUN_IN_FRESH_PROCESS();
    QDomDocument document = newDocument();
    const QDomElement element
        = QtSoapSimpleType(QtSoapQName(u"a"_qs, u"urn:unregistered"_qs), 5).toDomElement(document);
    QCOMPARE(element.nodeName(), document.createElementNS(u"urn:unregistered"_qs, u":a"_qs).nodeName());
    QCOMPARE(element.localName(), u"a"_qs);
    QCOMPARE(element.namespaceURI(), u"urn:unregistered"_qs);
    QCOMPARE(element.attributes().count(), 1);
    QCOMPARE(element.attributeNS(instanceUri(), u"type"_qs), u"xsd:int"_qs);
    QCOMPARE(element.text(), u"5"_qs);
}

void tst_QtSoapValues::struct_constructor_setsTheType()
{
    const QtSoapStruct plain;
    QCOMPARE(plain.type(), QtSoapType::Struct);
    QCOMPARE(plain.name().name(), u""_qs);
    const QtSoapStruct named(QtSoapQName(u"a"_qs, u"urn:x"_qs));
    QCOMPARE(named.type(), QtSoapType::Struct);
    QCOMPARE(named.name().name(), u"a"_qs);
    QCOMPARE(named.name().uri(), u"urn:x"_qs);
    const QtSoapStruct copy(named);
    QCOMPARE(copy.type(), QtSoapType::Struct);
    QCOMPARE(copy.name().name(), u"a"_qs);
    for (const QtSoapStruct *one : {&plain, &named, &copy}) {
        QVERIFY(one->isValid());
        QCOMPARE(one->count(), qint64(0));
        QVERIFY(!one->value().isValid());
        QCOMPARE(one->toString(), u""_qs);
        QCOMPARE(one->errorString(), u"Unknown error"_qs);
    }
}

void tst_QtSoapValues::struct_insert_keepsTheOrderAndOwnsTheItems()
{
    QtSoapStruct value;
    const QList<QtSoapType *> items{newText(u"b"_qs, u"1"_qs), newText(u"a"_qs, u"2"_qs), newText(u"b"_qs, u"3"_qs)};
    for (QtSoapType *const item : items) {
        value.insert(item); // the check for leaks sees that they are deleted
    }
    const QtSoapStruct &constant = value;
    QCOMPARE(value.count(), qint64(3));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(&value[i], items[i]);
        QCOMPARE(&constant[i], items[i]);
    }
}

void tst_QtSoapValues::struct_at_comparesStoredNameWithKey_data()
{
    QTest::addColumn<QtSoapQName>("stored");
    QTest::addColumn<QtSoapQName>("key");
    QTest::addColumn<bool>("isFound");

    const auto add = [](const char *row, const QtSoapQName &stored, const QtSoapQName &key, bool isFound) {
        QTest::newRow(row) << stored << key << isFound;
    };
    add("equal", {u"a"_qs, u"urn:x"_qs}, {u"a"_qs, u"urn:x"_qs}, true);
    add("another case", {u"Item"_qs, u"urn:X"_qs}, {u"iTEM"_qs, u"URN:x"_qs}, true);
    add("key without a URI", {u"a"_qs, u"urn:x"_qs}, {u"a"_qs}, true);
    add("stored without a URI", {u"a"_qs}, {u"a"_qs, u"urn:x"_qs}, false);
    add("another URI", {u"a"_qs, u"urn:x"_qs}, {u"a"_qs, u"urn:y"_qs}, false);
    add("another name", {u"a"_qs}, {u"b"_qs}, false);
}

void tst_QtSoapValues::struct_at_comparesStoredNameWithKey()
{
    QFETCH(const QtSoapQName, stored);
    QFETCH(const QtSoapQName, key);
    QFETCH(const bool, isFound);
    QtSoapStruct value;
    const QtSoapStruct &constant = value;
    value.insert(newText(u"front"_qs, u"front"_qs));
    auto *const item = new QtSoapSimpleType(stored, u"found"_qs);
    value.insert(item);

    QCOMPARE(&value.at(key) == item, isFound);
    QCOMPARE(&constant.at(key) == item, isFound);
    QCOMPARE(&value[key] == item, isFound);
    QCOMPARE(&constant[key] == item, isFound);
    QCOMPARE(value.at(key).isValid(), isFound);
    QCOMPARE(constant.at(key).isValid(), isFound);
    if (key.uri().isEmpty()) {
        QCOMPARE(&value[key.name()] == item, isFound);
        QCOMPARE(&constant[key.name()] == item, isFound);
    }
}

void tst_QtSoapValues::struct_at_ofEqualNames_givesTheFirst()
{
    QtSoapStruct value;
    value.insert(newText(u"a"_qs, u"first"_qs));
    value.insert(newText(u"A"_qs, u"second"_qs));
    value.insert(newText(u"a"_qs, u"third"_qs));
    QCOMPARE(value.at(QtSoapQName(u"a"_qs)).toString(), u"first"_qs);
    QCOMPARE(value[u"A"_qs].toString(), u"first"_qs);
    QCOMPARE(std::as_const(value)[u"A"_qs].toString(), u"first"_qs);
    QCOMPARE(value.count(), qint64(3));
}

void tst_QtSoapValues::struct_at_whereNothingIs_givesANullValueEach()
{
    QtSoapStruct value;
    QtSoapStruct other;
    const QtSoapStruct &constant = value;
    const QtSoapQName key(u"a"_qs);
    QVERIFY(!value.at(key).isValid());
    QVERIFY(!constant.at(key).isValid());
    QVERIFY(&value.at(key) != &constant.at(key));
    QCOMPARE(&value.at(key), &other.at(QtSoapQName(u"b"_qs)));
    QCOMPARE(&constant.at(key), &std::as_const(other).at(QtSoapQName(u"b"_qs)));
    QVERIFY(!value[u"a"_qs].isValid());
    QVERIFY(!value[key].isValid());
    QVERIFY(!constant[u"a"_qs].isValid());
    QVERIFY(!constant[key].isValid());
}

void tst_QtSoapValues::struct_byIndex_outOfRange_givesTheNullValue_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("below") << -1;
    QTest::newRow("at the count") << 2;
    QTest::newRow("beyond") << 3;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_QtSoapValues::struct_byIndex_outOfRange_givesTheNullValue()
{
    QFETCH(const int, index);
    QtSoapStruct value;
    value.insert(newText(u"a"_qs, u"1"_qs));
    value.insert(newText(u"b"_qs, u"2"_qs));
    QVERIFY(!value[index].isValid());
    QVERIFY(!std::as_const(value)[index].isValid());
}

void tst_QtSoapValues::struct_copied_sharesTheMembers()
{
    QtSoapStruct value(QtSoapQName(u"s"_qs));
    value.insert(newText(u"a"_qs, u"1"_qs));
    QtSoapStruct copy(value);
    QtSoapStruct assigned;
    assigned.insert(newText(u"lost"_qs, u"0"_qs));
    assigned = value;
    QCOMPARE(&copy[0], &value[0]);
    QCOMPARE(&assigned[0], &value[0]);
    QCOMPARE(assigned.count(), qint64(1));

    copy.insert(newText(u"b"_qs, u"2"_qs));
    QCOMPARE(copy.count(), qint64(2));
    QCOMPARE(value.count(), qint64(1)); // the member is shared, the list was
    copy[0].setName(QtSoapQName(u"renamed"_qs));
    QCOMPARE(value[0].name().name(), u"renamed"_qs);
    value.clear();
    QCOMPARE(copy[0].toString(), u"1"_qs);
}

void tst_QtSoapValues::struct_cleared_keepsNameTypeAndErrorText()
{
    QDomDocument document;
    QtSoapStruct value(QtSoapQName(u"s"_qs, u"urn:x"_qs));
    QVERIFY(!value.parse(elementFrom(document, u"<t><a/>text</t>"_qs)));
    const QString errorString = value.errorString();
    QVERIFY(errorString != u"Unknown error");
    value.clear();
    QCOMPARE(value.count(), qint64(0));
    QCOMPARE(value.name().name(), u"s"_qs);
    QCOMPARE(value.name().uri(), u"urn:x"_qs);
    QCOMPARE(value.type(), QtSoapType::Struct);
    QCOMPARE(value.errorString(), errorString);
}

void tst_QtSoapValues::struct_parse_mirrorsTheElement()
{
    QDomDocument document;
    QtSoapStruct value;
    QVERIFY(value.parse(elementFrom(document,
                                    u"<p:s xmlns:p='urn:x'><!--c--><a type='xsd:int'>5</a><p:b><c>6</c></p:b>"
                                    "<array><item>7</item></array><d/></p:s>"_qs)));
    QCOMPARE(value.name().name(), u"s"_qs);
    QCOMPARE(value.name().uri(), u"urn:x"_qs);
    QCOMPARE(value.type(), QtSoapType::Struct);
    QCOMPARE(value.count(), qint64(4));
    QCOMPARE(value[0].type(), QtSoapType::Int);
    QCOMPARE(value[0].toInt(), 5);
    QCOMPARE(value[1].type(), QtSoapType::Struct);
    QCOMPARE(value[1].name().uri(), u"urn:x"_qs);
    QCOMPARE(value[u"b"_qs][u"c"_qs].toString(), u"6"_qs);
    QCOMPARE(value[2].type(), QtSoapType::Array);
    QCOMPARE(value[2][0].toString(), u"7"_qs);
    QCOMPARE(value[3].type(), QtSoapType::String);
    QCOMPARE(value[3].name().name(), u"d"_qs);
    QCOMPARE(value[3].value(), QVariant(u""_qs));
}

void tst_QtSoapValues::struct_parse_again_dropsTheMembers()
{
    QDomDocument document;
    QtSoapStruct value;
    value.insert(newText(u"old"_qs, u"0"_qs));
    QVERIFY(value.parse(elementFrom(document, u"<s><a>1</a></s>"_qs)));
    QCOMPARE(value.count(), qint64(1));
    QCOMPARE(value[0].name().name(), u"a"_qs);
    QVERIFY(!value.parse(elementFrom(document, u"<t>text</t>"_qs)));
    QCOMPARE(value.count(), qint64(0));
    QCOMPARE(value.name().name(), u"s"_qs);
}

void tst_QtSoapValues::struct_parse_ofAnEmptyElement_isEmpty()
{
    QDomDocument document;
    QtSoapStruct value;
    QVERIFY(value.parse(elementFrom(document, u"<s><!--only a comment--></s>"_qs)));
    QCOMPARE(value.count(), qint64(0));
    QCOMPARE(value.name().name(), u"s"_qs);
}

void tst_QtSoapValues::struct_parse_withNoElement_isFalse()
{
    QDomDocument document;
    QtSoapStruct value;
    value.insert(newText(u"a"_qs, u"1"_qs));
    QVERIFY(!value.parse(QDomNode()));
    QVERIFY(!value.parse(document.createTextNode(u"a"_qs)));
    QCOMPARE(value.count(), qint64(1));
    QCOMPARE(value.errorString(), u"Unknown error"_qs);
}

void tst_QtSoapValues::struct_parse_ofAnotherChild_isFalse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("read");
    QTest::addColumn<QString>("errorString");

    QTest::newRow("text alone") << u"<s>text</s>"_qs << 0
                                << u"In the struct element s, the 0th child is not an element."_qs;
    QTest::newRow("text beside elements")
        << u"<s><a>1</a>text<b>2</b></s>"_qs << 1 << u"In the struct element s, the 1th child is not an element."_qs;
    QTest::newRow("text behind comments") << u"<p:s xmlns:p='urn:x'><!--0--><a>1</a><!--2-->text</p:s>"_qs << 1
                                          << u"In the struct element s, the 3th child is not an element."_qs;
    QTest::newRow("character data") << u"<s><a>1</a><b>1</b><![CDATA[text]]></s>"_qs << 2
                                    << u"In the struct element s, the 2th child is not an element."_qs;
    QTest::newRow("instruction") << u"<s><?do it?></s>"_qs << 0
                                 << u"In the struct element s, the 0th child is not an element."_qs;
}

void tst_QtSoapValues::struct_parse_ofAnotherChild_isFalse()
{
    QFETCH(const QString, text);
    QFETCH(const int, read);
    QDomDocument document;
    QtSoapStruct value(QtSoapQName(u"before"_qs));
    QVERIFY(!value.parse(elementFrom(document, text)));
    QTEST(value.errorString(), "errorString");
    QCOMPARE(value.count(), qint64(read)); // what was read so far stays
    QCOMPARE(value.name().name(), u"before"_qs);
}

void tst_QtSoapValues::struct_parse_ofAnUnreadableChild_tellsWhich()
{
    QDomDocument document;
    QtSoapStruct value(QtSoapQName(u"before"_qs));
    const QString text = u"<p:s xmlns:p='urn:x'><a>1</a><!--1--><p:b type='xsd:int'>abc</p:b><c>2</c></p:s>"_qs;
    QVERIFY(!value.parse(elementFrom(document, text)));
    QCOMPARE(value.errorString(), u"In the struct element s, child #2, b, was not recognized as a SOAP type."_qs);
    QCOMPARE(QtSoapTypeFactory::instance().errorString(), u"Type error at element \"b\""_qs);
    QVERIFY(!value.parse(elementFrom(document, text, false)));
    QCOMPARE(value.errorString(), u"In the struct element p:s, child #2, p:b, was not recognized as a SOAP type."_qs);
    QCOMPARE(QtSoapTypeFactory::instance().errorString(), u"Type error at element \"p:b\""_qs);
    QCOMPARE(value.count(), qint64(1));
    QCOMPARE(value.name().name(), u"before"_qs);
}

void tst_QtSoapValues::struct_parse_failedWithoutAReason_keepsTheLastOne()
{
    QDomDocument document;
    QtSoapStruct value;
    QVERIFY(!value.parse(elementFrom(document, u"<s>text</s>"_qs)));
    QVERIFY(!value.parse(QDomNode()));
    QCOMPARE(value.errorString(), u"In the struct element s, the 0th child is not an element."_qs);
    QVERIFY(value.parse(elementFrom(document, u"<s><a/></s>"_qs)));
    QCOMPARE(value.errorString(), u"In the struct element s, the 0th child is not an element."_qs);
}

void tst_QtSoapValues::struct_parse_ofChildrenThatDoNotStartWithAnElement_readsTexts_data()
{
    QTest::addColumn<QString>("child");
    QTest::addColumn<QString>("text");

    QTest::newRow("comment") << u"<a><!--c--><b/></a>"_qs << u""_qs;
    QTest::newRow("comment, then an element with text") << u"<a><!--c--><b>inner</b></a>"_qs << u"inner"_qs;
    QTest::newRow("text") << u"<a>text<b/></a>"_qs << u"text"_qs;
    QTest::newRow("text in what is named array") << u"<array>text<b/></array>"_qs << u"text"_qs;
}

void tst_QtSoapValues::struct_parse_ofChildrenThatDoNotStartWithAnElement_readsTexts()
{
    QFETCH(const QString, child);
    QFETCH(const QString, text);
    QDomDocument document;
    QtSoapStruct soapStruct;
    QtSoapArray array;
    for (QtSoapType *const value : {static_cast<QtSoapType *>(&soapStruct), static_cast<QtSoapType *>(&array)}) {
        QVERIFY(value->parse(elementFrom(document, u"<s>%1<c/></s>"_qs.arg(child))));
        QCOMPARE(value->count(), qint64(2));
        const QtSoapType &member = std::as_const(*value)[0];
        QCOMPARE(member.type(), QtSoapType::String);
        QCOMPARE(member.value(), QVariant(text));
        QCOMPARE(member.count(), qint64(0));
    }
}

void tst_QtSoapValues::struct_assignedFromItsMember_isThat()
{
    QtSoapStruct value(QtSoapQName(u"outer"_qs));
    auto *const inner = new QtSoapStruct(QtSoapQName(u"inner"_qs, u"urn:inner"_qs));
    inner->setId(u"id"_qs);
    inner->setHref(u"href"_qs);
    inner->insert(newText(u"a"_qs, u"1"_qs));
    inner->insert(newText(u"b"_qs, u"2"_qs));
    value.insert(newText(u"front"_qs, u"0"_qs));
    value.insert(inner);

    value = *inner; // which goes with the members that it replaces
    QCOMPARE(value.name().name(), u"inner"_qs);
    QCOMPARE(value.name().uri(), u"urn:inner"_qs);
    QCOMPARE(value.id(), u"id"_qs);
    QCOMPARE(value.href(), u"href"_qs);
    QCOMPARE(value.count(), qint64(2));
    QCOMPARE(value[u"a"_qs].toString(), u"1"_qs);
    QCOMPARE(value[u"b"_qs].toString(), u"2"_qs);
}

void tst_QtSoapValues::struct_written_data()
{
    QTest::addColumn<QtSoapQName>("name");
    QTest::addColumn<QString>("wanted");

    QTest::newRow("plain") << QtSoapQName(u"s"_qs) << u"s"_qs;
    QTest::newRow("namespace") << QtSoapQName(u"s"_qs, u"urn:x"_qs) << u"{urn:x}x:s"_qs;
}

void tst_QtSoapValues::struct_written()
{
    QFETCH(const QtSoapQName, name);
    QFETCH(const QString, wanted);
    registerPrefixes();
    QtSoapStruct value(name);
    QCOMPARE(outline(value.toDomElement(newDocument())), wanted + u"[]()");

    auto *const inner = new QtSoapStruct(QtSoapQName(u"inner"_qs));
    value.insert(newText(u"b"_qs, u"1"_qs, u"urn:x"_qs));
    value.insert(inner);
    value.insert(newText(u"a"_qs, u"3"_qs));
    inner->insert(newText(u"c"_qs, u"2"_qs));
    const QString type = u"[{http://www.w3.org/1999/XMLSchema-instance}inst:type=xsd:string]"_qs;
    QCOMPARE(outline(value.toDomElement(newDocument())),
             wanted + u"[]({urn:x}x:b" + type + u"('1') inner[](c" + type + u"('2')) a" + type + u"('3'))");
}

void tst_QtSoapValues::struct_written_endsAtTheFirstNull()
{
    registerPrefixes();
    QtSoapStruct value(QtSoapQName(u"s"_qs));
    value.insert(newText(u"a"_qs, u"1"_qs));
    value.insert(nullptr);
    value.insert(newText(u"b"_qs, u"2"_qs));
    QCOMPARE(outline(value.toDomElement(newDocument())),
             u"s[](a[{http://www.w3.org/1999/XMLSchema-instance}inst:type=xsd:string]('1'))"_qs);
    QCOMPARE(value.count(), qint64(3));
    QVERIFY(!value[1].isValid());
    QCOMPARE(value[u"b"_qs].toString(), u"2"_qs); // the look-up goes on
}

void tst_QtSoapValues::struct_writtenAndParsed_isTheSame()
{
    registerPrefixes();
    QtSoapStruct value(QtSoapQName(u"s"_qs, u"urn:x"_qs));
    value.insert(newText(u"a"_qs, u" <1> & \u0416 "_qs, u"urn:x"_qs));
    auto *const inner = new QtSoapStruct(QtSoapQName(u"inner"_qs));
    inner->insert(new QtSoapSimpleType(QtSoapQName(u"b"_qs), -2));
    value.insert(inner);
    QString text;
    QTextStream stream(&text);
    value.toDomElement(newDocument()).save(stream, -1);

    QDomDocument document;
    QtSoapStruct again;
    QVERIFY(again.parse(elementFrom(document, text)));
    QCOMPARE(again.count(), qint64(2));
    QCOMPARE(again[QtSoapQName(u"a"_qs, u"urn:x"_qs)].toString(), u" <1> & \u0416 "_qs);
    QCOMPARE(again[u"inner"_qs][u"b"_qs].toString(), u"-2"_qs);
    // The type is written with the prefix of its namespace, and read without one.
    QCOMPARE(again[u"inner"_qs][u"b"_qs].type(), QtSoapType::String);
}

void tst_QtSoapValues::structIterator_goesThroughTheMembers()
{
    QtSoapStruct value;
    value.insert(newText(u"b"_qs, u"1"_qs, u"urn:x"_qs));
    value.insert(newText(u"a"_qs, u"2"_qs));
    QtSoapStructIterator iterator(value);
    QCOMPARE(iterator.key().name(), u"b"_qs);
    QCOMPARE(iterator.key().uri(), u"urn:x"_qs);
    QCOMPARE(iterator.data(), &value[0]);
    QCOMPARE(std::as_const(iterator).current(), &value[0]);
    ++iterator;
    QCOMPARE(iterator.key().name(), u"a"_qs);
    QCOMPARE(iterator.data(), &value[1]);
    QCOMPARE(iterator.current(), &value[1]);
    ++iterator;
    QCOMPARE(iterator.data(), nullptr);
    QCOMPARE(value.count(), qint64(2));
}

void tst_QtSoapValues::structIterator_atTheEnd_staysThere()
{
    QtSoapStruct value;
    QtSoapStructIterator iterator(value);
    const QtSoapStructIterator end(value);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(iterator.data(), nullptr);
        QCOMPARE(iterator.current(), nullptr);
        QCOMPARE(iterator.key().name(), u""_qs);
        QCOMPARE(iterator.key().uri(), u""_qs);
        QVERIFY(iterator == end);
        ++iterator;
    }
}

void tst_QtSoapValues::structIterator_ofANullMember_hasNoKey()
{
    QtSoapStruct value;
    value.insert(nullptr);
    value.insert(newText(u"a"_qs, u"1"_qs));
    QtSoapStructIterator iterator(value);
    QCOMPARE(iterator.key().name(), u""_qs);
    QCOMPARE(iterator.data(), nullptr);
    ++iterator;
    QCOMPARE(iterator.key().name(), u"a"_qs);
}

void tst_QtSoapValues::structIterator_comparesThePosition()
{
    QtSoapStruct value;
    value.insert(newText(u"a"_qs, u"1"_qs));
    value.insert(newText(u"a"_qs, u"1"_qs));
    QtSoapStructIterator first(value);
    QtSoapStructIterator second(value);
    QVERIFY(first == second);
    QVERIFY(!(first != second));
    ++first;
    QVERIFY(first != second); // of equal members
    QVERIFY(!(first == second));
    ++second;
    QVERIFY(first == second);
    QCOMPARE(&++first, &first);
}

void tst_QtSoapValues::structIterator_detachesTheMembers()
{
    QtSoapStruct value;
    value.insert(newText(u"a"_qs, u"1"_qs));
    QtSoapStruct copy(value);
    QtSoapStructIterator first(value);
    QtSoapStructIterator second(copy);
    QVERIFY(first != second); // each has a list of its own by now
    QVERIFY(!(first == second));
    QCOMPARE(first.data(), second.data()); // of the same member
}

void tst_QtSoapValues::everyValue_staysValid_data()
{
    using Value = std::shared_ptr<QtSoapType>;
    QTest::addColumn<Value>("value");
    QTest::addColumn<QString>("unreadable");

    const QtSoapQName name(u"a"_qs);
    QTest::newRow("simple") << Value(std::make_shared<QtSoapSimpleType>(name, 5)) << u"<a type='int'>abc</a>"_qs;
    QTest::newRow("struct") << Value(std::make_shared<QtSoapStruct>(name)) << u"<a>text</a>"_qs;
    QTest::newRow("array") << Value(std::make_shared<QtSoapArray>(name)) << u"<a>text</a>"_qs;
}

void tst_QtSoapValues::everyValue_staysValid()
{
    QFETCH(const std::shared_ptr<QtSoapType>, value);
    QFETCH(const QString, unreadable);
    QVERIFY(value->isValid());
    value->clear();
    QVERIFY(value->isValid());
    QVERIFY(!value->parse(QDomNode()));
    QVERIFY(value->isValid());
    QDomDocument document;
    QVERIFY(!value->parse(elementFrom(document, unreadable)));
    QVERIFY(value->isValid());
}

QTEST_GUILESS_MAIN(tst_QtSoapValues)
#include "tst_QtSoapValues.moc"
