// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/SoapElements.h"
#include "support/FreshProcess.h"
#include "support/VirtualSlot.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"
#include "utilsDll/soap/QtSoapTypeFactory.h"

#include <QtCore/QStringList>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

using namespace ZYX_zglv6;
using TestSupport::elementFrom;
using TestSupport::virtualSlot;

namespace {

constexpr const char *simpleNames[] = {"string",
                                       "normalizedstring",
                                       "token",
                                       "language",
                                       "name",
                                       "ncname",
                                       "id",
                                       "idref",
                                       "entity",
                                       "nmtoken",
                                       "nmtokens",
                                       "boolean",
                                       "decimal",
                                       "integer",
                                       "nonpositiveinteger",
                                       "negativeinteger",
                                       "int",
                                       "long",
                                       "short",
                                       "byte",
                                       "nonnegativeinteger",
                                       "unsignedlong",
                                       "unsignedint",
                                       "unsignedshort",
                                       "unsignedbyte",
                                       "positiveinteger",
                                       "float",
                                       "double"};
static_assert(std::size(simpleNames) == 28);

enum class Class { Null, Simple, Struct, Array };

Class classOf(const QtSoapType *value)
{
    if (value == nullptr) {
        return Class::Null;
    }
    if (dynamic_cast<const QtSoapSimpleType *>(value) != nullptr) {
        return Class::Simple;
    }
    return dynamic_cast<const QtSoapArray *>(value) != nullptr ? Class::Array : Class::Struct;
}

/*! Makes simple values with a name of its own, or fails with a text. Counts its destructions. */
class Handler : public QtSoapTypeConstructorBase
{
public:
    explicit Handler(bool works, int *destructions = nullptr)
        : m_works(works)
        , m_destructions(destructions)
    {
    }

    ~Handler() override
    {
        if (m_destructions != nullptr) {
            ++*m_destructions;
        }
    }

    QtSoapType *createObject(QDomNode node) override
    {
        return m_works ? new QtSoapSimpleType(QtSoapQName(u"made of "_qs + node.nodeName())) : nullptr;
    }

    QString errorString() const override
    {
        return u"the handler's text"_qs;
    }

private:
    bool m_works;
    int *m_destructions;
};

/*! Reads the first child in place of an element, and keeps what the factory said when there was no value. */
class FirstChildHandler : public QtSoapTypeConstructorBase
{
public:
    QtSoapType *createObject(QDomNode node) override
    {
        ++m_calls;
        const QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
        if (!factory.soapType(node.firstChild())) {
            m_errorStrings.append(factory.errorString());
        }
        return nullptr;
    }

    QString errorString() const override
    {
        return u"the handler's text"_qs;
    }

    int calls() const
    {
        return m_calls;
    }

    /*! The innermost first. */
    QStringList errorStrings() const
    {
        return m_errorStrings;
    }

private:
    int m_calls = 0;
    QStringList m_errorStrings;
};

/*! An element in itself, \a depth times. */
QDomElement nested(QDomDocument &document, const QString &name, int depth)
{
    QDomElement outermost = document.createElement(name);
    QDomElement innermost = outermost;
    for (int i = 1; i < depth; ++i) {
        const QDomElement child = document.createElement(name);
        innermost.appendChild(child);
        innermost = child;
    }
    return outermost;
}

} // namespace

Q_DECLARE_METATYPE(Class)

class tst_QtSoapTypeFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructorBase_slots_areDestructorCreateObjectErrorString();
    void constructor_makesItsClass();
    void constructor_keepsTheErrorOfTheLastFailure();
    void constructor_copied_hasTheErrorText();

    void instance_isOne();
    void errorString_atStart_isEmpty();
    void registered_byName_isHandled_data();
    void registered_byName_isHandled();
    void unregistered_byName_isDecidedByShape_data();
    void unregistered_byName_isDecidedByShape();
    void registerHandler_again_isRefused();
    void registerHandler_withCapitals_isNeverFound();
    void registerHandler_givesTheHandlerTheNode();
    void registerHandler_succeeded_leavesTheLastError();

    void soapType_decides_data();
    void soapType_decides();
    void soapType_withNoElement_isNull();
    void soapType_ofTwoTypes_takesThePlainOne_data();
    void soapType_ofTwoTypes_takesThePlainOne();
    void soapType_failed_hasTheHandlersError();
    void soapType_failedDeepInside_tellsOfTheOutermost();
    void soapType_succeeded_leavesTheLastError();
    void soapType_ofAnEmptyElement_hasEmptyText();
    void soapType_ofADateWithText_isADate();
    void soapType_ofAHandledNameThatIsNoType_isOther_data();
    void soapType_ofAHandledNameThatIsNoType_isOther();
    void soapType_nestedTooDeep_isNull_data();
    void soapType_nestedTooDeep_isNull();
    void soapType_nestedTooDeep_tellsAHandler();

    void factory_copied_sharesTheConstructors();
    void factory_assigned_takesHandlersAndErrorText();
};

void tst_QtSoapTypeFactory::constructorBase_slots_areDestructorCreateObjectErrorString()
{
    using Base = QtSoapTypeConstructorBase;
    static_assert(std::has_virtual_destructor_v<Base> && std::is_abstract_v<Base>);
    static_assert(std::is_copy_assignable_v<Base>);
    const auto slot = virtualSlot(&Base::createObject);
    if (!slot) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(*slot, 2);
    QCOMPARE(virtualSlot(&Base::errorString).value_or(0), 3);
}

void tst_QtSoapTypeFactory::constructor_makesItsClass()
{
    QDomDocument document;
    const QDomElement element = document.createElement(u"a"_qs);
    const std::unique_ptr<QtSoapType> simple(QtSoapTypeConstructor<QtSoapSimpleType>().createObject(element));
    const std::unique_ptr<QtSoapType> soapStruct(QtSoapTypeConstructor<QtSoapStruct>().createObject(element));
    const std::unique_ptr<QtSoapType> array(QtSoapTypeConstructor<QtSoapArray>().createObject(element));
    QCOMPARE(classOf(simple.get()), Class::Simple);
    QCOMPARE(classOf(soapStruct.get()), Class::Struct);
    QCOMPARE(classOf(array.get()), Class::Array);
    for (const QtSoapType *value : {simple.get(), soapStruct.get(), array.get()}) {
        QCOMPARE(value->name().name(), u"a"_qs);
    }
}

void tst_QtSoapTypeFactory::constructor_keepsTheErrorOfTheLastFailure()
{
    QDomDocument document;
    QtSoapTypeConstructor<QtSoapSimpleType> constructor;
    QCOMPARE(constructor.errorString(), u""_qs);
    QCOMPARE(constructor.createObject(elementFrom(document, u"<a type='int'>x</a>"_qs)), nullptr);
    QCOMPARE(constructor.errorString(), u"Type error at element \"a\""_qs);
    const std::unique_ptr<QtSoapType> made(constructor.createObject(elementFrom(document, u"<a type='int'>1</a>"_qs)));
    QVERIFY(made);
    QCOMPARE(constructor.errorString(), u"Type error at element \"a\""_qs);
    QCOMPARE(constructor.createObject(QDomNode()), nullptr);
    QCOMPARE(constructor.errorString(), u"Unknown error"_qs);
}

void tst_QtSoapTypeFactory::constructor_copied_hasTheErrorText()
{
    QDomDocument document;
    QtSoapTypeConstructor<QtSoapSimpleType> constructor;
    QCOMPARE(constructor.createObject(elementFrom(document, u"<a type='int'>x</a>"_qs)), nullptr);
    const QtSoapTypeConstructor<QtSoapSimpleType> copy(constructor);
    QtSoapTypeConstructor<QtSoapSimpleType> assigned;
    assigned = constructor;
    QCOMPARE(constructor.createObject(QDomNode()), nullptr); // each has a text of its own
    QCOMPARE(copy.errorString(), u"Type error at element \"a\""_qs);
    QCOMPARE(assigned.errorString(), u"Type error at element \"a\""_qs);
}

void tst_QtSoapTypeFactory::instance_isOne()
{
    static_assert(!std::is_default_constructible_v<QtSoapTypeFactory>);
    QCOMPARE(&QtSoapTypeFactory::instance(), &QtSoapTypeFactory::instance());
}

void tst_QtSoapTypeFactory::errorString_atStart_isEmpty()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(QtSoapTypeFactory::instance().errorString(), u""_qs);
}

void tst_QtSoapTypeFactory::registered_byName_isHandled_data()
{
    QTest::addColumn<Class>("wanted");

    QTest::newRow("struct") << Class::Struct;
    QTest::newRow("array") << Class::Array;
    QTest::newRow("other") << Class::Struct;
    for (const char *name : simpleNames) {
        QTest::newRow(name) << Class::Simple;
    }
}

void tst_QtSoapTypeFactory::registered_byName_isHandled()
{
    QFETCH(const Class, wanted);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    // Of a shape that would give another class.
    const QString shape = wanted == Class::Simple ? u"<a type='xsd:%1'><b>1</b></a>"_qs : u"<a type='xsd:%1'/>"_qs;
    for (const QString &spelling : {name, name.toUpper()}) {
        QDomDocument document;
        const QDomElement element = elementFrom(document, shape.arg(spelling));
        QCOMPARE(classOf(QtSoapTypeFactory::instance().soapType(element).get()), wanted);
    }
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    Handler handler(true);
    QVERIFY(!factory.registerHandler(name, &handler));
    QCOMPARE(factory.errorString(), u"A handler for %1 is already registered."_qs.arg(name));
}

void tst_QtSoapTypeFactory::unregistered_byName_isDecidedByShape_data()
{
    QTest::addColumn<int>("unused");

    for (const char *name : {"duration", "datetime", "time", "date", "gyearmonth", "gyear", "gmonthday", "gday",
                             "gmonth", "base64binary", "hexbinary", "anyuri", "qname", "notation", "mytype", ""}) {
        QTest::newRow(*name == '\0' ? "no name" : name) << 0;
    }
}

void tst_QtSoapTypeFactory::unregistered_byName_isDecidedByShape()
{
    QString name = QString::fromLatin1(QTest::currentDataTag());
    if (name == u"no name") {
        name.clear();
    }
    const auto classFrom = [&name](const QString &text) {
        QDomDocument document;
        return classOf(QtSoapTypeFactory::instance().soapType(elementFrom(document, text.arg(name))).get());
    };
    QCOMPARE(classFrom(u"<a type='xsd:%1'>text</a>"_qs), Class::Simple);
    QCOMPARE(classFrom(u"<a type='xsd:%1'><b/></a>"_qs), Class::Struct);
    // As an array it is read by shape, and then refused by the array, to which the type is another one.
    QCOMPARE(classFrom(u"<array type='xsd:%1'><b/></array>"_qs), Class::Null);
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    Handler handler(true);
    QVERIFY(factory.registerHandler(name, &handler));
    QVERIFY(!factory.registerHandler(name, &handler));
}

void tst_QtSoapTypeFactory::registerHandler_again_isRefused()
{
    QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    int destructions = 0;
    const auto handler = std::make_unique<Handler>(true, &destructions);
    QVERIFY(!factory.registerHandler(u"int"_qs, handler.get()));
    QCOMPARE(factory.errorString(), u"A handler for int is already registered."_qs);
    QCOMPARE(destructions, 0); // it stays the caller's
    QDomDocument document;
    const auto value = factory.soapType(elementFrom(document, u"<a type='int'>5</a>"_qs)); // by the first handler
    QCOMPARE(value->toInt(), 5);
    QCOMPARE(value->name().name(), u"a"_qs);
}

void tst_QtSoapTypeFactory::registerHandler_withCapitals_isNeverFound()
{
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    Handler handler(true);
    QVERIFY(factory.registerHandler(u"Int"_qs, &handler)); // not the name "int"
    QVERIFY(factory.registerHandler(u"myType"_qs, &handler));
    QDomDocument document;
    QCOMPARE(factory.soapType(elementFrom(document, u"<a type='Int'>5</a>"_qs))->toInt(), 5);
    QCOMPARE(factory.soapType(elementFrom(document, u"<a type='myType'>5</a>"_qs))->name().name(), u"a"_qs);
}

void tst_QtSoapTypeFactory::registerHandler_givesTheHandlerTheNode()
{
    int destructions = 0;
    const auto handler = std::make_unique<Handler>(true, &destructions);
    {
        QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
        QVERIFY(factory.registerHandler(u"mytype"_qs, handler.get()));
        QDomDocument document;
        const auto value = factory.soapType(elementFrom(document, u"<a type='x:myType'><b/></a>"_qs));
        QCOMPARE(value->name().name(), u"made of a"_qs);
    }
    QCOMPARE(destructions, 0); // it does not go with the factory
}

void tst_QtSoapTypeFactory::registerHandler_succeeded_leavesTheLastError()
{
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    Handler handler(true);
    QVERIFY(!factory.registerHandler(u"long"_qs, &handler));
    QVERIFY(factory.registerHandler(u"mytype"_qs, &handler));
    QCOMPARE(factory.errorString(), u"A handler for long is already registered."_qs); // success keeps it
}

void tst_QtSoapTypeFactory::soapType_decides_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Class>("wanted");

    const auto add = [](const QString &text, Class wanted) { QTest::newRow(qPrintable(text)) << text << wanted; };
    add(u"<a/>"_qs, Class::Simple);
    add(u"<a></a>"_qs, Class::Simple);
    add(u"<a>text</a>"_qs, Class::Simple);
    add(u"<a>text<b/></a>"_qs, Class::Simple);
    add(u"<a><!--c--><b/><b/></a>"_qs, Class::Simple);
    add(u"<a><![CDATA[c]]><b/></a>"_qs, Class::Simple);
    add(u"<a><?do it?><b/></a>"_qs, Class::Simple);
    add(u"<a><b/></a>"_qs, Class::Struct);
    add(u"<a><b/><!--c--></a>"_qs, Class::Struct);
    add(u"<a><b/>text</a>"_qs, Class::Null); // what a struct can't hold
    add(u"<array/>"_qs, Class::Simple);
    add(u"<array>text</array>"_qs, Class::Simple);
    add(u"<array><b/></array>"_qs, Class::Array);
    add(u"<ArrAY><b/></ArrAY>"_qs, Class::Array);
    add(u"<p:Array xmlns:p='urn:p'><b/></p:Array>"_qs, Class::Array);
    add(u"<array1><b/></array1>"_qs, Class::Struct);
    add(u"<array type='xsd:struct'><b/></array>"_qs, Class::Struct);
    add(u"<array type='xsd:string'><b/></array>"_qs, Class::Simple);
    add(u"<a type='XSD:INT'>5</a>"_qs, Class::Simple);
    add(u"<a type='XSD:INT'><b>5</b></a>"_qs, Class::Simple);
    add(u"<a type='int'><b>5</b></a>"_qs, Class::Simple);
    add(u"<a type=':int'><b>5</b></a>"_qs, Class::Struct);
    add(u"<a type='x:y:int'><b>5</b></a>"_qs, Class::Struct);
    add(u"<a type=' int'><b>5</b></a>"_qs, Class::Struct);
    add(u"<a type='xsd:dateTime'>2026-01-01T00:00:00</a>"_qs, Class::Simple);
    add(u"<a type='xsd:dateTime'><b/></a>"_qs, Class::Struct);
    add(u"<a type='xsd:other'/>"_qs, Class::Struct);
    add(u"<a type='xsd:other'><b/></a>"_qs, Class::Struct);
    add(u"<a type='xsd:other'>text</a>"_qs, Class::Null);
    add(u"<a type='xsd:struct'>text</a>"_qs, Class::Null);
    add(u"<a type='xsd:array'>text</a>"_qs, Class::Null);
    add(u"<a type='xsd:Array'><b/></a>"_qs, Class::Array);
    add(u"<a xmlns:i='urn:i' i:type='xsd:int'><b>5</b></a>"_qs, Class::Struct);
}

void tst_QtSoapTypeFactory::soapType_decides()
{
    QFETCH(const QString, text);
    for (const bool hasNamespaces : {true, false}) {
        QDomDocument document;
        const QDomElement element = elementFrom(document, text, hasNamespaces);
        QVERIFY(!element.isNull());
        QTEST(classOf(QtSoapTypeFactory::instance().soapType(element).get()), "wanted");
    }
}

void tst_QtSoapTypeFactory::soapType_withNoElement_isNull()
{
    QDomDocument document;
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    Handler handler(true);
    QVERIFY(!factory.registerHandler(u"int"_qs, &handler));
    QVERIFY(!factory.soapType(QDomNode()));
    QVERIFY(!factory.soapType(document.createTextNode(u"a"_qs)));
    QVERIFY(!factory.soapType(document.createComment(u"a"_qs)));
    QCOMPARE(factory.errorString(), u"A handler for int is already registered."_qs); // no handler was asked
}

void tst_QtSoapTypeFactory::soapType_ofTwoTypes_takesThePlainOne_data()
{
    QTest::addColumn<QString>("attributes");

    QTest::newRow("plain one first") << u"type='xsd:int' i:type='xsd:struct'"_qs;
    QTest::newRow("plain one last") << u"i:type='xsd:struct' type='xsd:int'"_qs;
}

void tst_QtSoapTypeFactory::soapType_ofTwoTypes_takesThePlainOne()
{
    QFETCH(const QString, attributes);
    for (const bool hasNamespaces : {true, false}) {
        QDomDocument document;
        const QString text = u"<a xmlns:i='urn:i' "_qs + attributes + u"><b>5</b></a>"_qs;
        const auto value = QtSoapTypeFactory::instance().soapType(elementFrom(document, text, hasNamespaces));
        QCOMPARE(classOf(value.get()), Class::Simple);
        QCOMPARE(value->toInt(), 5);
    }
}

void tst_QtSoapTypeFactory::soapType_failed_hasTheHandlersError()
{
    QtSoapTypeFactory factory(QtSoapTypeFactory::instance());
    Handler handler(false);
    QVERIFY(factory.registerHandler(u"mytype"_qs, &handler));
    QDomDocument document;
    QVERIFY(!factory.soapType(elementFrom(document, u"<a type='mytype'>5</a>"_qs)));
    QCOMPARE(factory.errorString(), u"the handler's text"_qs);
    QVERIFY(!factory.soapType(elementFrom(document, u"<a type='int'>b</a>"_qs)));
    QCOMPARE(factory.errorString(), u"Type error at element \"a\""_qs);
    QVERIFY(!factory.soapType(elementFrom(document, u"<a><b/>text</a>"_qs)));
    QCOMPARE(factory.errorString(), u"In the struct element a, the 1th child is not an element."_qs);
    QVERIFY(!factory.soapType(elementFrom(document, u"<array><b/>text</array>"_qs)));
    QCOMPARE(factory.errorString(), u"Unknown error"_qs);
}

void tst_QtSoapTypeFactory::soapType_failedDeepInside_tellsOfTheOutermost()
{
    QDomDocument document;
    const QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    QVERIFY(!factory.soapType(elementFrom(document, u"<s><t><a>1</a><b type='int'>b</b></t></s>"_qs)));
    QCOMPARE(factory.errorString(), u"In the struct element s, child #0, t, was not recognized as a SOAP type."_qs);
}

void tst_QtSoapTypeFactory::soapType_succeeded_leavesTheLastError()
{
    QDomDocument document;
    const QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    QVERIFY(!factory.soapType(elementFrom(document, u"<a type='int'>b</a>"_qs)));
    QVERIFY(factory.soapType(elementFrom(document, u"<a type='int'>5</a>"_qs)));
    QCOMPARE(factory.errorString(), u"Type error at element \"a\""_qs);
}

void tst_QtSoapTypeFactory::soapType_ofAnEmptyElement_hasEmptyText()
{
    QDomDocument document;
    const auto value = QtSoapTypeFactory::instance().soapType(elementFrom(document, u"<a/>"_qs));
    QCOMPARE(classOf(value.get()), Class::Simple);
    QCOMPARE(value->type(), QtSoapType::String);
    QCOMPARE(value->value().typeId(), int(QMetaType::QString));
    QCOMPARE(value->toString(), u""_qs);
}

void tst_QtSoapTypeFactory::soapType_ofADateWithText_isADate()
{
    QDomDocument document;
    const QString text = u"<a type='xsd:dateTime'>2026-01-02T03:04:05</a>"_qs;
    const auto value = QtSoapTypeFactory::instance().soapType(elementFrom(document, text));
    QCOMPARE(value->type(), QtSoapType::DateTime);
    QCOMPARE(value->value(), QVariant(u"2026-01-02T03:04:05"_qs));
}

void tst_QtSoapTypeFactory::soapType_ofAHandledNameThatIsNoType_isOther_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("nmtokens") << u"nmtokens"_qs;
    QTest::newRow("nonpositiveinteger") << u"nonpositiveinteger"_qs;
    QTest::newRow("nonPositiveInteger") << u"nonPositiveInteger"_qs;
}

void tst_QtSoapTypeFactory::soapType_ofAHandledNameThatIsNoType_isOther()
{
    QFETCH(const QString, name);
    QDomDocument document;
    const auto value
        = QtSoapTypeFactory::instance().soapType(elementFrom(document, u"<a type='%1'>x</a>"_qs.arg(name)));
    QCOMPARE(classOf(value.get()), Class::Simple);
    QCOMPARE(value->type(), QtSoapType::Other);
    QCOMPARE(value->value(), QVariant(u"x"_qs));
}

void tst_QtSoapTypeFactory::soapType_nestedTooDeep_isNull_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("structs") << u"a"_qs;
    QTest::newRow("arrays") << u"array"_qs;
}

void tst_QtSoapTypeFactory::soapType_nestedTooDeep_isNull()
{
    QFETCH(const QString, name);
    QDomDocument document;
    const QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    QVERIFY(!factory.soapType(nested(document, name, 257)));
    QVERIFY(!factory.soapType(nested(document, name, 257))); // the first one left nothing behind

    const auto outermost = factory.soapType(nested(document, name, 256));
    QVERIFY(outermost);
    const QtSoapType *value = outermost.get();
    int depth = 1;
    for (; value->count() == 1; ++depth) {
        value = &(*value)[0];
    }
    QCOMPARE(depth, 256);
    QCOMPARE(value->type(), QtSoapType::String); // the innermost has no child
}

void tst_QtSoapTypeFactory::soapType_nestedTooDeep_tellsAHandler()
{
    RUN_IN_FRESH_PROCESS();
    FirstChildHandler handler;
    QVERIFY(QtSoapTypeFactory::instance().registerHandler(u"firstchild"_qs, &handler));
    QDomDocument document;
    const QDomElement outermost = nested(document, u"a"_qs, 300);
    for (QDomElement element = outermost; !element.isNull(); element = element.firstChildElement()) {
        element.setAttribute(u"type"_qs, u"firstchild"_qs);
    }
    QVERIFY(!QtSoapTypeFactory::instance().soapType(outermost));
    QCOMPARE(handler.calls(), 256);
    QCOMPARE(handler.errorStrings().size(), 256);
    QCOMPARE(handler.errorStrings().first(), u"Elements are nested more than 256 deep."_qs);
    // Further out it is the reason of the handler itself that counts.
    QCOMPARE(handler.errorStrings().at(1), u"the handler's text"_qs);
    QCOMPARE(QtSoapTypeFactory::instance().errorString(), u"the handler's text"_qs);
}

void tst_QtSoapTypeFactory::factory_copied_sharesTheConstructors()
{
    QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    Handler handler(true);
    QVERIFY(!factory.registerHandler(u"int"_qs, &handler));
    QDomDocument document;
    const QDomElement element = elementFrom(document, u"<a type='int'>5</a>"_qs);
    {
        QtSoapTypeFactory copy(factory);
        QCOMPARE(copy.errorString(), u"A handler for int is already registered."_qs);
        QCOMPARE(copy.soapType(element)->toInt(), 5);
        QVERIFY(!copy.soapType(elementFrom(document, u"<b type='int'>x</b>"_qs)));
        QCOMPARE(copy.errorString(), u"Type error at element \"b\""_qs);
        QCOMPARE(factory.errorString(), u"A handler for int is already registered."_qs); // each has its own text
        QVERIFY(copy.registerHandler(u"mytype"_qs, &handler));
    }
    QCOMPARE(factory.soapType(element)->toInt(), 5); // no constructor went with the copy
    // What was registered in the copy is not known here: text makes a simple value of the element's name.
    QCOMPARE(factory.soapType(elementFrom(document, u"<c type='mytype'>x</c>"_qs))->name().name(), u"c"_qs);
}

void tst_QtSoapTypeFactory::factory_assigned_takesHandlersAndErrorText()
{
    QtSoapTypeFactory source(QtSoapTypeFactory::instance());
    Handler handler(true);
    QVERIFY(source.registerHandler(u"mytype"_qs, &handler));
    QVERIFY(!source.registerHandler(u"short"_qs, &handler));
    QtSoapTypeFactory target(QtSoapTypeFactory::instance());
    target = source;
    QCOMPARE(target.errorString(), u"A handler for short is already registered."_qs);
    QDomDocument document;
    const QDomElement element = elementFrom(document, u"<a type='mytype'>x</a>"_qs);
    QCOMPARE(target.soapType(element)->name().name(), u"made of a"_qs);
    const QtSoapTypeFactory &same = target;
    target = same;
    QCOMPARE(target.soapType(element)->name().name(), u"made of a"_qs);
}

QTEST_GUILESS_MAIN(tst_QtSoapTypeFactory)
#include "tst_QtSoapTypeFactory.moc"
