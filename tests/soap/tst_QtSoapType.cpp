// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/VirtualSlot.h"

#include "utilsDll/soap/QtSmartPtr.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapQName.h"
#include "utilsDll/soap/QtSoapType.h"

#include <QtCore/QSet>
#include <QtTest/QTest>

#include <array>
#include <cstring>
#include <limits>
#include <type_traits>

using namespace ZYX_zglv6;
using TestSupport::virtualSlot;

namespace {

/*! Counts its objects. */
class Counted
{
public:
    Counted()
    {
        ++s_alive;
    }

    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;

    virtual ~Counted()
    {
        --s_alive;
    }

    static int alive()
    {
        return s_alive;
    }

private:
    static inline int s_alive = 0;
};

class DerivedCounted : public Counted
{
public:
    explicit DerivedCounted(bool &isDestroyed)
        : m_isDestroyed(isDestroyed)
    {
    }

    ~DerivedCounted() override
    {
        m_isDestroyed = true;
    }

private:
    bool &m_isDestroyed;
};

/*! Shows the count, and can set it. */
class OpenPtr : public QtSmartPtr<Counted>
{
public:
    using QtSmartPtr::count;
    using QtSmartPtr::QtSmartPtr;

    int owners()
    {
        return count();
    }
};

/*! Owns the next one of a chain. */
struct Link
{
    QtSmartPtr<Link> next;
    Counted counted;
};

class OpenType : public QtSoapType
{
public:
    using QtSoapType::QtSoapType;

    void setErrorString(const QString &text)
    {
        m_errorString = text;
    }
};

/*! Tells another type than its tag. */
class TokenType : public QtSoapType
{
public:
    Type type() const override
    {
        return Token;
    }
};

/*! Its operation takes the first slot that QtSoapType leaves. */
class TypeWithAnOperation : public QtSoapType
{
public:
    virtual void added()
    {
    }
};

struct TypeRow
{
    QtSoapType::Type type;
    int number;
    const char *name;
    const char *key; // null if the type is not found by any name
};

constexpr TypeRow typeRows[] = {
    {QtSoapType::Duration, 0, "duration", "duration"},
    {QtSoapType::DateTime, 1, "dateTime", "datetime"},
    {QtSoapType::Time, 2, "time", "time"},
    {QtSoapType::Date, 3, "date", "date"},
    {QtSoapType::GYearMonth, 4, "gYearMonth", "gyearmonth"},
    {QtSoapType::GYear, 5, "gYear", "gyear"},
    {QtSoapType::GMonthDay, 6, "gMonthDay", "gmonthday"},
    {QtSoapType::GDay, 7, "gDay", "gday"},
    {QtSoapType::GMonth, 8, "gMonth", "gmonth"},
    {QtSoapType::Boolean, 9, "boolean", "boolean"},
    {QtSoapType::Base64Binary, 10, "base64Binary", "base64binary"},
    {QtSoapType::HexBinary, 11, "hexBinary", nullptr},
    {QtSoapType::Float, 12, "float", "float"},
    {QtSoapType::Double, 13, "double", "double"},
    {QtSoapType::AnyURI, 14, "anyURI", "anyuri"},
    {QtSoapType::QName, 15, "QName", "qname"},
    {QtSoapType::NOTATION, 16, "NOTATION", "notation"},
    {QtSoapType::String, 17, "string", "string"},
    {QtSoapType::NormalizedString, 18, "normalizedString", "normalizedstring"},
    {QtSoapType::Token, 19, "token", "token"},
    {QtSoapType::Language, 20, "language", "language"},
    {QtSoapType::Name, 21, "name", "name"},
    {QtSoapType::NMToken, 22, "NMToken", "nmtoken"},
    {QtSoapType::NCName, 23, "NCName", "ncname"},
    {QtSoapType::ID, 24, "ID", "id"},
    {QtSoapType::IDREF, 25, "IDREF", "idref"},
    {QtSoapType::ENTITY, 26, "ENTITY", "entity"},
    {QtSoapType::Decimal, 27, "decimal", "decimal"},
    {QtSoapType::Integer, 28, "integer", "integer"},
    {QtSoapType::NonPositiveInteger, 29, "nonPositiveInteger", nullptr},
    {QtSoapType::NegativeInteger, 30, "negativeInteger", "negativeinteger"},
    {QtSoapType::Long, 31, "long", "long"},
    {QtSoapType::Int, 32, "int", "int"},
    {QtSoapType::Short, 33, "short", "short"},
    {QtSoapType::Byte, 34, "byte", "byte"},
    {QtSoapType::NonNegativeInteger, 35, "nonNegativeInteger", "nonnegativeinteger"},
    {QtSoapType::UnsignedLong, 36, "unsignedLong", "unsignedlong"},
    {QtSoapType::PositiveInteger, 37, "positiveInteger", "positiveinteger"},
    {QtSoapType::UnsignedInt, 38, "unsignedInt", "unsignedint"},
    {QtSoapType::UnsignedShort, 39, "unsignedShort", "unsignedshort"},
    {QtSoapType::UnsignedByte, 40, "unsignedByte", "unsignedbyte"},
    {QtSoapType::Array, 41, "array", nullptr},
    {QtSoapType::Struct, 42, "struct", nullptr},
    {QtSoapType::Other, 43, "other", nullptr},
};
static_assert(std::size(typeRows) == 44);

template <typename Operation>
void addSlotRow(const char *name, Operation operation, int slot)
{
    QTest::newRow(name) << virtualSlot(operation).value_or(0) << slot;
}

} // namespace

class tst_QtSoapType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void qName_withoutArguments_isEmpty();
    void qName_keepsItsParts();
    void qName_fromText_hasNoUri();
    void qName_assignedFromText_losesItsUri();
    void qName_copied_hasBothParts();
    void qName_compared_data();
    void qName_compared();

    void namespaces_atStart_areEmpty();
    void namespaces_areOneTable();
    void registerNamespace_again_replacesThePrefix();
    void registerNamespace_withOnePrefixForTwoUris_keepsBoth();
    void registerNamespace_tellsUrisApartByCase();
    void namespaces_copied_areATableOfTheirOwn();

    void smartPtr_isTwoWords();
    void smartPtr_words_areCountAndObject();
    void smartPtr_startsWithACountOfOne();
    void smartPtr_withNull_isFalse();
    void smartPtr_deletesTheObjectThroughItsVirtualDestructor();
    void smartPtr_copied_sharesObjectAndCount();
    void smartPtr_copiedWithNull_countsToo();
    void smartPtr_assigned_releasesWhatItHeld();
    void smartPtr_assignedToItself_keepsItsObject();
    void smartPtr_assignedFromWhatItsObjectOwns_keepsThat();
    void smartPtr_withACountOfZero_leavesTheObjectAlone();
    void smartPtr_copiedWithACountOfZero_doesNotCount();

    void type_withoutArguments_isOther();
    void type_withNameAndType_hasThose();
    void type_operations_areThoseOfNoValue();
    void type_clear_doesNothing();
    void type_parse_isFalseAndLeavesTheName();
    void type_setters_areReadBack();
    void type_copied_hasEveryMember_data();
    void type_copied_hasEveryMember();
    void type_typeName_isOfTheVirtualType();
    void type_lookUps_giveTheNullValue();
    void type_lookUps_haveANullValueEach();
    void type_lookUps_keepWhatIsSetOnTheNullValue();
    void type_slot_data();
    void type_slot();

    void typeTable_data();
    void typeTable();
    void typeToName_outsideTheTable_isOther_data();
    void typeToName_outsideTheTable_isOther();
    void nameToType_data();
    void nameToType();
    void names_thereAndBack_data();
    void names_thereAndBack();
};

void tst_QtSoapType::qName_withoutArguments_isEmpty()
{
    const QtSoapQName name;
    QCOMPARE(name.name(), u""_qs);
    QCOMPARE(name.uri(), u""_qs);
}

void tst_QtSoapType::qName_keepsItsParts()
{
    const QtSoapQName name(u"Body"_qs, u"urn:X"_qs);
    QCOMPARE(name.name(), u"Body"_qs);
    QCOMPARE(name.uri(), u"urn:X"_qs);
}

void tst_QtSoapType::qName_fromText_hasNoUri()
{
    const QtSoapQName name(u"a:Body"_qs);
    QCOMPARE(name.name(), u"a:Body"_qs); // a prefix is part of it
    QCOMPARE(name.uri(), u""_qs);
}

void tst_QtSoapType::qName_assignedFromText_losesItsUri()
{
    QtSoapQName name(u"Body"_qs, u"urn:x"_qs);
    name = u"Header"_qs;
    QCOMPARE(name.name(), u"Header"_qs);
    QCOMPARE(name.uri(), u""_qs);
}

void tst_QtSoapType::qName_copied_hasBothParts()
{
    const QtSoapQName name(u"Body"_qs, u"urn:x"_qs);
    const QtSoapQName copy(name); // NOLINT(performance-unnecessary-copy-initialization): the copy is what is tested
    QCOMPARE(copy.name(), u"Body"_qs);
    QCOMPARE(copy.uri(), u"urn:x"_qs);

    QtSoapQName assigned(u"other"_qs, u"urn:other"_qs);
    assigned = name;
    QCOMPARE(assigned.name(), u"Body"_qs);
    QCOMPARE(assigned.uri(), u"urn:x"_qs);
}

void tst_QtSoapType::qName_compared_data()
{
    QTest::addColumn<QtSoapQName>("left");
    QTest::addColumn<QtSoapQName>("right");
    QTest::addColumn<bool>("areEqual");

    const auto add = [](const char *name, const QtSoapQName &left, const QtSoapQName &right, bool areEqual) {
        QTest::newRow(name) << left << right << areEqual;
    };
    add("empty", {}, {}, true);
    add("same", {u"a"_qs, u"urn:x"_qs}, {u"a"_qs, u"urn:x"_qs}, true);
    add("no URI on the left", {u"Body"_qs}, {u"BODY"_qs, u"urn:x"_qs}, false);
    add("no URI on the right", {u"BODY"_qs, u"urn:x"_qs}, {u"Body"_qs}, true);
    add("no URI at all", {u"Body"_qs}, {u"bODY"_qs}, true);
    add("URI in another case", {u"a"_qs, u"URN:X"_qs}, {u"A"_qs, u"urn:x"_qs}, true);
    add("another URI", {u"a"_qs, u"urn:x"_qs}, {u"a"_qs, u"urn:y"_qs}, false);
    add("another name", {u"a"_qs, u"urn:x"_qs}, {u"b"_qs, u"urn:x"_qs}, false);
    add("another name, no URI", {u"a"_qs}, {u"b"_qs}, false);
    add("another name, no URI on the right", {u"a"_qs, u"urn:x"_qs}, {u"b"_qs}, false);
    add("beginning of the name", {u"Body"_qs}, {u"Bod"_qs}, false);
    add("beginning of the URI", {u"a"_qs, u"urn:x"_qs}, {u"a"_qs, u"urn:xy"_qs}, false);
    add("empty name on the right", {u"a"_qs}, {}, false);
    add("empty name on the left", {}, {u"a"_qs}, false);
    add("neighbours of the letters", {u"@["_qs}, {u"`{"_qs}, false);
    add("Cyrillic", {u"\u0418\u043c\u044f"_qs}, {u"\u0438\u041c\u042f"_qs}, true);
    add("Latin, then Cyrillic", {u"ab\u0418"_qs}, {u"AB\u0438"_qs}, true);
    add("letter of two in lower case", {u"a\u0130"_qs}, {u"ai\u0307"_qs}, true);
    add("sign that is a letter in lower case", {u"a\u212a"_qs}, {u"aK"_qs}, true);
    add("letter of two in upper case", {u"\u00df"_qs}, {u"SS"_qs}, false);
    add("first and last letter", {u"AZ"_qs, u"urn:AZ"_qs}, {u"az"_qs, u"urn:az"_qs}, true);
    add("Latin-1", {u"\u00c9"_qs}, {u"\u00e9"_qs}, true);
    add("Latin-1 in the URI", {u"a"_qs, u"urn:\u00c9"_qs}, {u"a"_qs, u"urn:\u00e9"_qs}, true);
    // Lower case is no case folding: these would be equal when folded.
    add("two small sigmas", {u"\u03c2"_qs}, {u"\u03c3"_qs}, false);
    add("two small sigmas in the URI", {u"a"_qs, u"urn:\u03c2"_qs}, {u"a"_qs, u"urn:\u03c3"_qs}, false);
    add("capital and final sigma", {u"\u03a3"_qs}, {u"\u03c2"_qs}, false);
    add("capital and small sigma", {u"\u03a3"_qs}, {u"\u03c3"_qs}, true);
    add("micro sign and mu", {u"\u00b5"_qs}, {u"\u03bc"_qs}, false);
    add("empty URI on the right that is not null", {u"a"_qs, u"urn:x"_qs}, {u"A"_qs, u""_qs}, true);
    add("empty URI on the left that is not null", {u"a"_qs, u""_qs}, {u"A"_qs, u"urn:x"_qs}, false);
    QtSoapQName assigned(u"b"_qs, u"urn:y"_qs);
    assigned = u"A"_qs;
    add("right one assigned from a text", {u"a"_qs, u"urn:x"_qs}, assigned, true);
    add("left one assigned from a text", assigned, {u"a"_qs, u"urn:y"_qs}, false);
}

void tst_QtSoapType::qName_compared()
{
    QFETCH(const QtSoapQName, left);
    QFETCH(const QtSoapQName, right);
    QFETCH(const bool, areEqual);
    QCOMPARE(left == right, areEqual);
    QCOMPARE(left != right, !areEqual);
}

void tst_QtSoapType::namespaces_atStart_areEmpty()
{
    RUN_IN_FRESH_PROCESS();
    const QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    for (const QString &uri :
         {u""_qs, u"urn:x"_qs, u"http://schemas.xmlsoap.org/soap/envelope/"_qs,
          u"http://schemas.xmlsoap.org/soap/encoding/"_qs, u"http://www.w3.org/1999/XMLSchema-instance"_qs,
          u"http://www.w3.org/1999/XMLSchema"_qs}) {
        QCOMPARE(namespaces.prefixFor(uri), u""_qs);
    }
}

void tst_QtSoapType::namespaces_areOneTable()
{
    static_assert(!std::is_default_constructible_v<QtSoapNamespaces>);
    QCOMPARE(&QtSoapNamespaces::instance(), &QtSoapNamespaces::instance());

    QtSoapNamespaces::instance().registerNamespace(u"one"_qs, u"urn:one-table"_qs);
    QCOMPARE(QtSoapNamespaces::instance().prefixFor(u"urn:one-table"_qs), u"one"_qs);
}

void tst_QtSoapType::registerNamespace_again_replacesThePrefix()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"first"_qs, u"urn:replaced"_qs);
    namespaces.registerNamespace(u"second"_qs, u"urn:replaced"_qs);
    QCOMPARE(namespaces.prefixFor(u"urn:replaced"_qs), u"second"_qs);
    QCOMPARE(namespaces.prefixFor(u"second"_qs), u""_qs); // prefixes are no keys
}

void tst_QtSoapType::registerNamespace_withOnePrefixForTwoUris_keepsBoth()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"shared"_qs, u"urn:shared-1"_qs);
    namespaces.registerNamespace(u"shared"_qs, u"urn:shared-2"_qs);
    QCOMPARE(namespaces.prefixFor(u"urn:shared-1"_qs), u"shared"_qs);
    QCOMPARE(namespaces.prefixFor(u"urn:shared-2"_qs), u"shared"_qs);
}

void tst_QtSoapType::registerNamespace_tellsUrisApartByCase()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"lower"_qs, u"urn:case"_qs);
    QCOMPARE(namespaces.prefixFor(u"URN:CASE"_qs), u""_qs);
    namespaces.registerNamespace(u"upper"_qs, u"URN:CASE"_qs);
    QCOMPARE(namespaces.prefixFor(u"urn:case"_qs), u"lower"_qs);
    QCOMPARE(namespaces.prefixFor(u"URN:CASE"_qs), u"upper"_qs);
}

void tst_QtSoapType::namespaces_copied_areATableOfTheirOwn()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"before"_qs, u"urn:copied"_qs);
    QtSoapNamespaces copy(namespaces);
    copy.registerNamespace(u"after"_qs, u"urn:copied"_qs);
    QCOMPARE(copy.prefixFor(u"urn:copied"_qs), u"after"_qs);
    QCOMPARE(namespaces.prefixFor(u"urn:copied"_qs), u"before"_qs);

    copy = namespaces;
    QCOMPARE(copy.prefixFor(u"urn:copied"_qs), u"before"_qs);
    const QtSoapNamespaces moved(std::move(copy));
    QCOMPARE(moved.prefixFor(u"urn:copied"_qs), u"before"_qs);
    QtSoapNamespaces target(namespaces);
    target.registerNamespace(u"lost"_qs, u"urn:lost-when-assigned"_qs);
    QtSoapNamespaces source(namespaces);
    target = std::move(source);
    QCOMPARE(target.prefixFor(u"urn:copied"_qs), u"before"_qs);
    QCOMPARE(target.prefixFor(u"urn:lost-when-assigned"_qs), u""_qs);
}

void tst_QtSoapType::smartPtr_isTwoWords()
{
    static_assert(sizeof(QtSmartPtr<Counted>) == 2 * sizeof(void *));
    static_assert(std::is_constructible_v<QtSmartPtr<Counted>, Counted *>);
    static_assert(std::is_copy_constructible_v<QtSmartPtr<Counted>> && std::is_copy_assignable_v<QtSmartPtr<Counted>>);
}

void tst_QtSoapType::smartPtr_words_areCountAndObject()
{
    OpenPtr pointer(new Counted);
    std::array<const void *, 2> words{};
    static_assert(sizeof(words) == sizeof(pointer));
    std::memcpy(words.data(), static_cast<const void *>(&pointer), sizeof(words));
    QCOMPARE(words[0], static_cast<const void *>(&pointer.count()));
    QCOMPARE(words[1], static_cast<const void *>(pointer.get()));
}

void tst_QtSoapType::smartPtr_startsWithACountOfOne()
{
    OpenPtr pointer(new Counted);
    QCOMPARE(pointer.owners(), 1);
    OpenPtr null;
    QCOMPARE(null.owners(), 1); // it has a count without an object as well
}

void tst_QtSoapType::smartPtr_withNull_isFalse()
{
    const QtSmartPtr<Counted> null;
    QVERIFY(!null);
    QCOMPARE(null.get(), nullptr);

    const QtSmartPtr<Counted> pointer(new Counted);
    QVERIFY(pointer);
}

void tst_QtSoapType::smartPtr_deletesTheObjectThroughItsVirtualDestructor()
{
    bool isDestroyed = false;
    {
        auto *const object = new DerivedCounted(isDestroyed);
        const QtSmartPtr<Counted> pointer(object);
        QCOMPARE(pointer.get(), object);
        QCOMPARE(&*pointer, object);
        QCOMPARE(pointer->alive(), 1);
        QVERIFY(!isDestroyed);
    } // that the count goes too is seen by the check for leaks alone
    QVERIFY(isDestroyed);
    QCOMPARE(Counted::alive(), 0);
}

void tst_QtSoapType::smartPtr_copied_sharesObjectAndCount()
{
    OpenPtr first(new Counted);
    {
        OpenPtr second(first);
        QCOMPARE(second.get(), first.get());
        QVERIFY(&second.count() == &first.count());
        QCOMPARE(first.owners(), 2);
        {
            const OpenPtr third(second); // NOLINT(performance-unnecessary-copy-initialization)
            QCOMPARE(first.owners(), 3);
        }
        QCOMPARE(first.owners(), 2);
    }
    QCOMPARE(first.owners(), 1);
    QCOMPARE(Counted::alive(), 1);
    first = OpenPtr();
    QCOMPARE(Counted::alive(), 0);
}

void tst_QtSoapType::smartPtr_copiedWithNull_countsToo()
{
    OpenPtr null;
    {
        OpenPtr copy(null);
        QVERIFY(!copy);
        QCOMPARE(copy.get(), nullptr);
        QVERIFY(&copy.count() == &null.count());
        QCOMPARE(null.owners(), 2);
    }
    QCOMPARE(null.owners(), 1);
}

void tst_QtSoapType::smartPtr_assigned_releasesWhatItHeld()
{
    OpenPtr first(new Counted);
    OpenPtr second(new Counted);
    const Counted *const kept = second.get();
    QCOMPARE(Counted::alive(), 2);
    first = second;
    QCOMPARE(Counted::alive(), 1);
    QCOMPARE(first.get(), kept);
    QCOMPARE(first.owners(), 2);
}

void tst_QtSoapType::smartPtr_assignedToItself_keepsItsObject()
{
    OpenPtr pointer(new Counted);
    const OpenPtr &same = pointer;
    pointer = same;
    QCOMPARE(Counted::alive(), 1);
    QCOMPARE(pointer.owners(), 1);
}

void tst_QtSoapType::smartPtr_assignedFromWhatItsObjectOwns_keepsThat()
{
    QtSmartPtr<Link> chain(new Link);
    chain->next = QtSmartPtr<Link>(new Link);
    const Link *const second = chain->next.get();
    chain = chain->next;
    QCOMPARE(chain.get(), second);
    QCOMPARE(Counted::alive(), 1);
}

void tst_QtSoapType::smartPtr_withACountOfZero_leavesTheObjectAlone()
{
    Counted object; // freeing the count is seen by the check for leaks
    {
        OpenPtr pointer(&object);
        pointer.count() = 0;
    }
    QCOMPARE(Counted::alive(), 1);
    {
        OpenPtr pointer(&object);
        pointer.count() = 0;
        pointer = OpenPtr(new Counted);
        QCOMPARE(Counted::alive(), 2);
    }
    QCOMPARE(Counted::alive(), 1);
}

void tst_QtSoapType::smartPtr_copiedWithACountOfZero_doesNotCount()
{
    {
        OpenPtr first(new Counted);
        first.count() = 0;
        OpenPtr second(first);
        const int owners = second.owners();
        second.count() = 2; // or each of them frees the count; first, as a comparison may return
        QCOMPARE(owners, 0);
        QCOMPARE(second.get(), first.get());
        QVERIFY(&second.count() == &first.count());
    }
    QCOMPARE(Counted::alive(), 0);
}

void tst_QtSoapType::type_withoutArguments_isOther()
{
    const QtSoapType value;
    QCOMPARE(value.type(), QtSoapType::Other);
    QCOMPARE(value.typeName(), u"other"_qs);
    QCOMPARE(value.errorString(), u"Unknown error"_qs);
    QCOMPARE(value.id(), u""_qs);
    QCOMPARE(value.href(), u""_qs);
    QCOMPARE(value.name().name(), u""_qs);
    QCOMPARE(value.name().uri(), u""_qs);
}

void tst_QtSoapType::type_withNameAndType_hasThose()
{
    const QtSoapType value(QtSoapQName(u"a"_qs, u"urn:x"_qs), QtSoapType::Date);
    QCOMPARE(value.type(), QtSoapType::Date);
    QCOMPARE(value.typeName(), u"date"_qs);
    QCOMPARE(value.errorString(), u"Unknown error"_qs);
    QCOMPARE(value.id(), u""_qs);
    QCOMPARE(value.href(), u""_qs);
    QCOMPARE(value.name().name(), u"a"_qs);
    QCOMPARE(value.name().uri(), u"urn:x"_qs);
    QVERIFY(!value.isValid());
}

void tst_QtSoapType::type_operations_areThoseOfNoValue()
{
    static_assert(std::is_same_v<decltype(std::declval<const QtSoapType &>().count()), qint64>);
    const QtSoapType value;
    QVERIFY(!value.isValid());
    QCOMPARE(value.count(), qint64(0));
    QVERIFY(!value.value().isValid());
    QVERIFY(value.toDomElement(QDomDocument()).isNull());
    QCOMPARE(value.toString(), u""_qs);
    QCOMPARE(value.toInt(), 0);
    QVERIFY(!value.toBool());
}

void tst_QtSoapType::type_clear_doesNothing()
{
    OpenType value(QtSoapQName(u"a"_qs, u"urn:x"_qs), QtSoapType::Date);
    value.setId(u"id"_qs);
    value.setHref(u"href"_qs);
    value.setErrorString(u"text"_qs);
    value.clear();
    QCOMPARE(value.type(), QtSoapType::Date);
    QCOMPARE(value.errorString(), u"text"_qs);
    QCOMPARE(value.id(), u"id"_qs);
    QCOMPARE(value.name().name(), u"a"_qs);
    QCOMPARE(value.name().uri(), u"urn:x"_qs);
    QCOMPARE(value.href(), u"href"_qs);
}

void tst_QtSoapType::type_parse_isFalseAndLeavesTheName()
{
    QDomDocument document;
    QtSoapType value(QtSoapQName(u"a"_qs), QtSoapType::Date);
    QVERIFY(!value.parse(document.createElement(u"b"_qs)));
    QVERIFY(!value.parse(QDomNode()));
    QCOMPARE(value.name().name(), u"a"_qs);
    QCOMPARE(value.errorString(), u"Unknown error"_qs);
}

void tst_QtSoapType::type_setters_areReadBack()
{
    QtSoapType value;
    value.setName(QtSoapQName(u"a"_qs, u"urn:x"_qs));
    value.setId(u"the id"_qs);
    value.setHref(u"#the href"_qs);
    QCOMPARE(value.name().name(), u"a"_qs);
    QCOMPARE(value.name().uri(), u"urn:x"_qs);
    QCOMPARE(value.id(), u"the id"_qs);
    QCOMPARE(value.href(), u"#the href"_qs);
}

void tst_QtSoapType::type_copied_hasEveryMember_data()
{
    QTest::addColumn<bool>("isAssigned");

    QTest::newRow("constructed") << false;
    QTest::newRow("assigned") << true;
}

void tst_QtSoapType::type_copied_hasEveryMember()
{
    QFETCH(const bool, isAssigned);
    OpenType value(QtSoapQName(u"a"_qs, u"urn:x"_qs), QtSoapType::Date);
    value.setErrorString(u"text"_qs);
    value.setId(u"id"_qs);
    value.setHref(u"href"_qs);

    const QtSoapType constructed(value);
    QtSoapType assigned;
    assigned = value;
    const QtSoapType &copy = isAssigned ? assigned : constructed;
    QCOMPARE(copy.type(), QtSoapType::Date);
    QCOMPARE(copy.errorString(), u"text"_qs);
    QCOMPARE(copy.id(), u"id"_qs);
    QCOMPARE(copy.name().name(), u"a"_qs);
    QCOMPARE(copy.name().uri(), u"urn:x"_qs);
    QCOMPARE(copy.href(), u"href"_qs);
}

void tst_QtSoapType::type_typeName_isOfTheVirtualType()
{
    const TokenType value;
    QCOMPARE(value.typeName(), u"token"_qs);
}

void tst_QtSoapType::type_lookUps_giveTheNullValue()
{
    QtSoapType value(QtSoapQName(u"a"_qs), QtSoapType::Struct);
    const QtSoapType &constant = value;
    const QtSoapQName name(u"a"_qs);
    for (const QtSoapType *found : QList<const QtSoapType *>{&value[u"a"_qs], &value[name], &value[0],
                                                             &constant[u"a"_qs], &constant[name], &constant[0]}) {
        QVERIFY(found != &value);
        QVERIFY(!found->isValid());
        QCOMPARE(found->toString(), u""_qs);
        QCOMPARE(found->type(), QtSoapType::Other);
        QCOMPARE(found->name().name(), u""_qs); // nothing of the key
        QCOMPARE(found->name().uri(), u""_qs);
        QCOMPARE(found->id(), u""_qs);
        QCOMPARE(found->href(), u""_qs);
        QCOMPARE(found->errorString(), u"Unknown error"_qs);
    }
}

void tst_QtSoapType::type_lookUps_haveANullValueEach()
{
    const auto lookUps = [](QtSoapType &value, const QString &name, int index) {
        const QtSoapType &constant = value;
        return QList<const QtSoapType *>{&value[name],    &value[QtSoapQName(name)],    &value[index],
                                         &constant[name], &constant[QtSoapQName(name)], &constant[index]};
    };
    QtSoapType first;
    QtSoapType second;
    const QList<const QtSoapType *> nulls = lookUps(first, u"a"_qs, 0);
    QCOMPARE(QSet<const QtSoapType *>(nulls.begin(), nulls.end()).size(), 6);
    QCOMPARE(lookUps(second, u"b"_qs, -1), nulls);
}

void tst_QtSoapType::type_lookUps_keepWhatIsSetOnTheNullValue()
{
    RUN_IN_FRESH_PROCESS();
    QtSoapType value;
    value[u"a"_qs].setName(QtSoapQName(u"by text"_qs));
    value[QtSoapQName(u"a"_qs)].setName(QtSoapQName(u"by name"_qs));
    value[0].setName(QtSoapQName(u"by place"_qs));
    QtSoapType other;
    QCOMPARE(other[u"b"_qs].name().name(), u"by text"_qs);
    QCOMPARE(other[QtSoapQName(u"b"_qs)].name().name(), u"by name"_qs);
    QCOMPARE(other[1].name().name(), u"by place"_qs);
    const QtSoapType &constant = other;
    QCOMPARE(constant[u"a"_qs].name().name(), u""_qs);
    QCOMPARE(constant[QtSoapQName(u"a"_qs)].name().name(), u""_qs);
    QCOMPARE(constant[0].name().name(), u""_qs);
}

void tst_QtSoapType::type_slot_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("wanted");

    using T = QtSoapType; // NOLINT(readability-identifier-length)
    addSlotRow("clear", &T::clear, 2); // behind the destructor
    addSlotRow("parse", &T::parse, 3);
    addSlotRow("isValid", &T::isValid, 4);
    addSlotRow("count", &T::count, 5);
    addSlotRow("value", &T::value, 6);
    addSlotRow("const [QString]", static_cast<const T &(T::*)(const QString &) const>(&T::operator[]), 7);
    addSlotRow("const [QtSoapQName]", static_cast<const T &(T::*)(const QtSoapQName &) const>(&T::operator[]), 8);
    addSlotRow("const [int]", static_cast<const T &(T::*)(int) const>(&T::operator[]), 9);
    addSlotRow("[QString]", static_cast<T &(T::*)(const QString &)>(&T::operator[]), 10);
    addSlotRow("[QtSoapQName]", static_cast<T &(T::*)(const QtSoapQName &)>(&T::operator[]), 11);
    addSlotRow("[int]", static_cast<T &(T::*)(int)>(&T::operator[]), 12);
    addSlotRow("toDomElement", &T::toDomElement, 13);
    addSlotRow("type", &T::type, 14);
    addSlotRow("id", &T::id, 15);
    addSlotRow("href", &T::href, 16);
    addSlotRow("typeName", &T::typeName, 17);
    addSlotRow("name", &T::name, 18);
    addSlotRow("toString", &T::toString, 19);
    addSlotRow("toInt", &T::toInt, 20);
    addSlotRow("toBool", &T::toBool, 21);
    addSlotRow("first of a derived class", &TypeWithAnOperation::added, 22); // nothing else is virtual
}

void tst_QtSoapType::type_slot()
{
    QFETCH(const int, slot);
    QFETCH(const int, wanted);
    if (!virtualSlot(&QtSoapType::clear)) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(slot, wanted);
}

void tst_QtSoapType::typeTable_data()
{
    QTest::addColumn<int>("row");

    for (int row = 0; row < int(std::size(typeRows)); ++row) {
        QTest::newRow(typeRows[row].name) << row;
    }
}

void tst_QtSoapType::typeTable()
{
    QFETCH(const int, row);
    const TypeRow &wanted = typeRows[row];
    QCOMPARE(int(wanted.type), wanted.number);
    QCOMPARE(wanted.number, row);
    const QString name = QString::fromLatin1(wanted.name);
    QCOMPARE(QtSoapType::typeToName(wanted.type), name);
    QCOMPARE(QtSoapType(QtSoapQName(), wanted.type).typeName(), name);
    if (wanted.key != nullptr) {
        QCOMPARE(QtSoapType::nameToType(QString::fromLatin1(wanted.key)), wanted.type);
        QCOMPARE(QtSoapType::nameToType(name), wanted.type);
        QCOMPARE(QtSoapType::nameToType(name.toUpper()), wanted.type);
    } else {
        QCOMPARE(QtSoapType::nameToType(name), QtSoapType::Other);
        QCOMPARE(QtSoapType::nameToType(name.toLower()), QtSoapType::Other);
        QCOMPARE(QtSoapType::nameToType(name.toUpper()), QtSoapType::Other);
    }
}

void tst_QtSoapType::typeToName_outsideTheTable_isOther_data()
{
    QTest::addColumn<int>("number");

    using Limits = std::numeric_limits<int>;
    for (const int number : {-1, 43, 44, 45, 63, 64, 1000, Limits::min(), Limits::max()}) {
        QTest::addRow("%d", number) << number;
    }
}

void tst_QtSoapType::typeToName_outsideTheTable_isOther()
{
    QFETCH(const int, number);
    QCOMPARE(QtSoapType::typeToName(QtSoapType::Type(number)), u"other"_qs);
    QCOMPARE(QtSoapType(QtSoapQName(), QtSoapType::Type(number)).typeName(), u"other"_qs);
}

void tst_QtSoapType::nameToType_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QtSoapType::Type>("type");

    QTest::newRow("blanks around upper case") << u"  INT "_qs << QtSoapType::Int;
    QTest::newRow("tab and line ends") << u"\t\r\nint\n"_qs << QtSoapType::Int;
    QTest::newRow("blank inside") << u"i nt"_qs << QtSoapType::Other;
    QTest::newRow("prefix") << u"xsd:int"_qs << QtSoapType::Other;
    QTest::newRow("mixed case") << u"nonNegativeInteger"_qs << QtSoapType::NonNegativeInteger;
    QTest::newRow("hexBinary") << u"hexBinary"_qs << QtSoapType::Other;
    QTest::newRow("hexbinary") << u"hexbinary"_qs << QtSoapType::Other;
    QTest::newRow("nonPositiveInteger") << u"nonPositiveInteger"_qs << QtSoapType::Other;
    QTest::newRow("nonPositiveinteger, as compared") << u"nonPositiveinteger"_qs << QtSoapType::Other;
    QTest::newRow("nonpositiveinteger") << u"nonpositiveinteger"_qs << QtSoapType::Other;
    QTest::newRow("array") << u"array"_qs << QtSoapType::Other;
    QTest::newRow("struct") << u"struct"_qs << QtSoapType::Other;
    QTest::newRow("other") << u"other"_qs << QtSoapType::Other;
    QTest::newRow("nmtokens") << u"nmtokens"_qs << QtSoapType::Other;
    QTest::newRow("unknown") << u"myType"_qs << QtSoapType::Other;
    QTest::newRow("empty") << u""_qs << QtSoapType::Other;
}

void tst_QtSoapType::nameToType()
{
    QFETCH(const QString, name);
    QFETCH(const QtSoapType::Type, type);
    QCOMPARE(QtSoapType::nameToType(name), type);
}

void tst_QtSoapType::names_thereAndBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("back");

    QTest::newRow("NMToken") << u"NMToken"_qs << u"NMToken"_qs;
    QTest::newRow("int") << u"int"_qs << u"int"_qs;
    QTest::newRow("DATETIME") << u"DATETIME"_qs << u"dateTime"_qs;
    QTest::newRow("array") << u"array"_qs << u"other"_qs;
    QTest::newRow("hexBinary") << u"hexBinary"_qs << u"other"_qs;
}

void tst_QtSoapType::names_thereAndBack()
{
    QFETCH(const QString, name);
    QFETCH(const QString, back);
    QCOMPARE(QtSoapType::typeToName(QtSoapType::nameToType(name)), back);
}

QTEST_GUILESS_MAIN(tst_QtSoapType)
#include "tst_QtSoapType.moc"
