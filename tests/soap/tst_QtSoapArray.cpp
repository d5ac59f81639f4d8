// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "soap/SoapElements.h"

#include "utilsDll/soap/QtSoapArray.h"
#include "utilsDll/soap/QtSoapNamespaces.h"
#include "utilsDll/soap/QtSoapSimpleType.h"
#include "utilsDll/soap/QtSoapStruct.h"
#include "utilsDll/soap/QtSoapTypeFactory.h"

#include <QtCore/QMap>
#include <QtTest/QTest>

#include <array>
#include <memory>

using namespace ZYX_zglv6;
using TestSupport::elementFrom;
using TestSupport::newDocument;
using TestSupport::outline;

namespace {

/*! Shows its texts. */
class OpenArray : public QtSoapArray
{
public:
    using QtSoapArray::arraySizeString;
    using QtSoapArray::arrayTypeString;
    using QtSoapArray::QtSoapArray;
};

using Coordinates = std::array<int, 5>;

QtSoapSimpleType *newInt(int value)
{
    return new QtSoapSimpleType(QtSoapQName(u"a"_qs), value);
}

QtSoapSimpleType *newText(const QString &text)
{
    return new QtSoapSimpleType(QtSoapQName(u"a"_qs), text);
}

/*! An array with as many dimensions as \a sizes has extents. */
OpenArray arrayOf(const QList<int> &sizes, QtSoapType::Type type = QtSoapType::Other)
{
    const auto size = [&sizes](int i) { return i < sizes.size() ? sizes[i] : -1; };
    return OpenArray(QtSoapQName(u"x"_qs), type, size(0), size(1), size(2), size(3), size(4));
}

void insertAt(QtSoapArray &array, const QList<int> &at, QtSoapType *item)
{
    switch (at.size()) {
    case 1:
        return array.insert(at[0], item);
    case 2:
        return array.insert(at[0], at[1], item);
    case 3:
        return array.insert(at[0], at[1], at[2], item);
    case 4:
        return array.insert(at[0], at[1], at[2], at[3], item);
    default:
        return array.insert(at[0], at[1], at[2], at[3], at[4], item);
    }
}

/*! array.at() with these coordinates, by the operation for constants or the other one. */
template <typename ArrayType>
auto &itemAt(ArrayType &array, const QList<int> &at)
{
    switch (at.size()) {
    case 1:
        return array.at(at[0]);
    case 2:
        return array.at(at[0], at[1]);
    case 3:
        return array.at(at[0], at[1], at[2]);
    case 4:
        return array.at(at[0], at[1], at[2], at[3]);
    default:
        return array.at(at[0], at[1], at[2], at[3], at[4]);
    }
}

/*! The values of the items by their flat positions. */
QMap<int, QString> itemsOf(QtSoapArray &array)
{
    QMap<int, QString> items;
    for (QtSoapArrayIterator iterator(array); !iterator.atEnd(); ++iterator) {
        items.insert(iterator.pos(), iterator.data()->toString());
    }
    return items;
}

/*! What an iterator tells of the one item of \a array; -9 where it tells nothing. */
QList<int> coordinatesOf(QtSoapArray &array)
{
    Coordinates told;
    told.fill(-9);
    QtSoapArrayIterator(array).pos(&told[0], &told[1], &told[2], &told[3], &told[4]);
    return {told.begin(), told.end()};
}

void registerPrefixes()
{
    QtSoapNamespaces &namespaces = QtSoapNamespaces::instance();
    namespaces.registerNamespace(u"inst"_qs, u"http://www.w3.org/1999/XMLSchema-instance"_qs);
    namespaces.registerNamespace(u"enc"_qs, u"http://schemas.xmlsoap.org/soap/encoding/"_qs);
    namespaces.registerNamespace(u"env"_qs, u"http://schemas.xmlsoap.org/soap/envelope/"_qs);
    namespaces.registerNamespace(u"x"_qs, u"urn:x"_qs);
}

const QString typeAttribute = QStringLiteral("{http://www.w3.org/1999/XMLSchema-instance}inst:type=xsd:");
const QString arrayTypeAttribute = QStringLiteral("{http://schemas.xmlsoap.org/soap/encoding/}enc:arrayType=xsd:");
const QString positionAttribute = QStringLiteral("{http://schemas.xmlsoap.org/soap/envelope/}env:position=");

/*! The outlines of an array's items, sorted. */
QStringList writtenItems(const QtSoapArray &array)
{
    const QDomDocument document = newDocument();
    const QDomElement element = array.toDomElement(document);
    QStringList items;
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        items.append(outline(child));
    }
    items.sort();
    return items;
}

QString writtenInt(const QString &position, int value)
{
    return u"item["_qs + positionAttribute + position + u' ' + typeAttribute + u"int]('"_qs + QString::number(value)
        + u"')";
}

} // namespace

class tst_QtSoapArray : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_withoutArguments_hasOneDimension();
    void constructor_derivesTheOrder_data();
    void constructor_derivesTheOrder();
    void isAValue();

    void append_goesBehindTheLast();
    void append_toAnEmptyArray_goesToTheStart();
    void append_neitherChecksNorSettlesTheType();
    void append_toSeveralDimensions_warns_data();
    void append_toSeveralDimensions_warns();

    void insert_replacesWhatStoodThere();
    void insert_settlesTheType();
    void insert_ofAnotherType_warns_data();
    void insert_ofAnotherType_warns();
    void insert_movesTheLastIndexOfOneDimensionAlone();
    void insert_withTheWrongDimensions_warns_data();
    void insert_withTheWrongDimensions_warns();
    void insert_outOfRange_warns_data();
    void insert_outOfRange_warns();
    void insert_outOfRangeOfFourAndFive_isStored_data();
    void insert_outOfRangeOfFourAndFive_isStored();
    void insert_ofANull_warns();

    void position_data();
    void position();
    void position_ofEveryItem_isSplitAgain_data();
    void position_ofEveryItem_isSplitAgain();
    void position_inFiveDimensions_isSplitByTheFourthExtent_data();
    void position_inFiveDimensions_isSplitByTheFourthExtent();
    void position_beyondTheRange_isSplitByTruncation_data();
    void position_beyondTheRange_isSplitByTruncation();

    void at_outOfRange_isTheFlatPosition_data();
    void at_outOfRange_isTheFlatPosition();
    void at_withoutExtents_countsTheLastCoordinateAlone_data();
    void at_withoutExtents_countsTheLastCoordinateAlone();
    void at_whereNothingIs_givesANullValueEach();
    void lookUp_byPosition_isAt();
    void lookUp_byName_givesTheNullValue();

    void arraySizeString_data();
    void arraySizeString();
    void arrayTypeString_data();
    void arrayTypeString();
    void arrayTypeString_ofArrays();

    void written_empty();
    void written_hasTheItemsWithTheirPositions();
    void written_hasAsManyCoordinatesAsDimensions_data();
    void written_hasAsManyCoordinatesAsDimensions();
    void written_appended_hasTheTypeOther();
    void written_renamesTheItems();
    void written_renamesAnItemBehindItsPrefix();
    void written_afterClear_hasNoCoordinates();

    void parse_numbersTheItems();
    void parse_takesPositions_data();
    void parse_takesPositions();
    void parse_checksThePlainType_data();
    void parse_checksThePlainType();
    void parse_ofAnotherType_keepsTheItems();
    void parse_again_dropsTheItems();
    void parse_ofWhatIsNoItem_isFalse_data();
    void parse_ofWhatIsNoItem_isFalse();
    void parse_ofAnUnreadableItem_asksTheOneFactory();
    void parse_withNoElement_isFalse();
    void parse_leavesTypeAndDimensions();
    void parse_setsTheName();

    void copied_sharesTheItems();
    void copied_hasNoArrayType_data();
    void copied_hasNoArrayType();
    void assigned_keepsItsOwnArrayType();
    void assigned_takesLastIndexAndDimensions();
    void assigned_fromItsItem_isThat();
    void cleared_hasNothingLeft();
    void cleared_getsOneDimensionFromInsert();
    void cleared_keepsNameAndErrorText();

    void iterator_visitsEveryItemOnce();
    void iterator_ofAnEmptyArray_isAtTheEnd();
    void iterator_tellsOnlyWhatIsAskedFor();
    void iterator_copied_goesOnAlone();
    void iterator_detachesTheItems();
};

void tst_QtSoapArray::constructor_withoutArguments_hasOneDimension()
{
    OpenArray array;
    QCOMPARE(array.type(), QtSoapType::Array);
    QCOMPARE(array.name().name(), u""_qs);
    QCOMPARE(array.errorString(), u"Unknown error"_qs);
    QCOMPARE(array.arraySizeString(), u"[0]"_qs);
    QCOMPARE(array.arrayTypeString(), u"other"_qs);
    QCOMPARE(array.count(), qint64(0));
}

void tst_QtSoapArray::constructor_derivesTheOrder_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<int>("order");

    QTest::newRow("none") << QList<int>{-1, -1, -1, -1, -1} << 1;
    QTest::newRow("1") << QList<int>{9, -1, -1, -1, -1} << 1;
    QTest::newRow("2") << QList<int>{9, 9, -1, -1, -1} << 2;
    QTest::newRow("3") << QList<int>{9, 9, 9, -1, -1} << 3;
    QTest::newRow("4") << QList<int>{9, 9, 9, 9, -1} << 4;
    QTest::newRow("5") << QList<int>{9, 9, 9, 9, 9} << 5;
    QTest::newRow("the last one alone") << QList<int>{-1, -1, -1, -1, 9} << 5;
    QTest::newRow("gap") << QList<int>{9, -1, 9, -1, -1} << 3;
    QTest::newRow("empty extent") << QList<int>{9, 0, -1, -1, -1} << 2;
    QTest::newRow("below -1") << QList<int>{9, 9, 9, -2, -1} << 4;
}

void tst_QtSoapArray::constructor_derivesTheOrder()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const int, order);
    QtSoapArray array(QtSoapQName(u"x"_qs, u"urn:x"_qs), QtSoapType::Int, sizes[0], sizes[1], sizes[2], sizes[3],
                      sizes[4]);
    QCOMPARE(array.name().name(), u"x"_qs);
    QCOMPARE(array.name().uri(), u"urn:x"_qs);
    QCOMPARE(array.type(), QtSoapType::Array);

    const std::unique_ptr<QtSoapType> item(newInt(1));
    if (order == 1) {
        array.append(newInt(1));
        QCOMPARE(array.count(), qint64(1));
        return;
    }
    QTest::ignoreMessage(
        QtWarningMsg,
        qPrintable(u"Attempted to insert item at position (0) in %1-dimensional QtSoapArray."_qs.arg(order)));
    array.append(item.get());
    QCOMPARE(array.count(), qint64(0));
}

void tst_QtSoapArray::isAValue()
{
    const QtSoapArray array;
    QVERIFY(array.isValid());
    QVERIFY(!array.value().isValid());
    QCOMPARE(array.toString(), u""_qs);
    QCOMPARE(array.typeName(), u"array"_qs);
}

void tst_QtSoapArray::append_goesBehindTheLast()
{
    QtSoapArray array;
    array.append(newInt(10));
    array.append(newInt(11));
    array.insert(7, newInt(17));
    array.append(newInt(18));
    array.insert(3, newInt(13));
    array.append(newInt(19));
    QCOMPARE(
        itemsOf(array),
        (QMap<int, QString>{{0, u"10"_qs}, {1, u"11"_qs}, {3, u"13"_qs}, {7, u"17"_qs}, {8, u"18"_qs}, {9, u"19"_qs}}));
    QCOMPARE(array.count(), qint64(6));
}

void tst_QtSoapArray::append_toAnEmptyArray_goesToTheStart()
{
    QtSoapArray array;
    array.insert(4, newInt(4));
    QDomDocument document;
    QVERIFY(array.parse(elementFrom(document, u"<x/>"_qs))); // empties it, and leaves the last index at 4
    array.append(newInt(0));
    array.append(newInt(5));
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{0, u"0"_qs}, {5, u"5"_qs}}));
}

void tst_QtSoapArray::append_neitherChecksNorSettlesTheType()
{
    OpenArray array;
    array.append(newInt(1));
    QCOMPARE(array.arrayTypeString(), u"other"_qs);
    array.append(newText(u"b"_qs));
    QCOMPARE(array.count(), qint64(2));
    OpenArray ofInts = arrayOf({3}, QtSoapType::Int);
    ofInts.append(newText(u"b"_qs));
    QCOMPARE(ofInts.count(), qint64(1));
    QCOMPARE(ofInts.arrayTypeString(), u"int"_qs);
}

void tst_QtSoapArray::append_toSeveralDimensions_warns_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QByteArray>("warning");

    const auto add = [](const char *row, const QList<int> &sizes, const char *warning) {
        QTest::newRow(row) << sizes << QByteArray(warning);
    };
    add("2", {2, 3}, "Attempted to insert item at position (0) in 2-dimensional QtSoapArray.");
    add("3", {2, 3, 4}, "Attempted to insert item at position (0) in 3-dimensional QtSoapArray.");
    add("4", {2, 3, 4, 5}, "Attempted to insert item at position (0) in 4-dimensional QtSoapArray.");
    add("5", {2, 3, 4, 5, 6}, "Attempted to insert item at position (0) in 5-dimensional QtSoapArray.");
    add("cleared", {}, "Attempted to insert item at position (0) in -1-dimensional QtSoapArray.");
}

void tst_QtSoapArray::append_toSeveralDimensions_warns()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QByteArray, warning);
    OpenArray array = arrayOf(sizes);
    if (sizes.isEmpty()) {
        array.clear();
    }
    const std::unique_ptr<QtSoapType> item(newInt(1)); // not taken over
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    array.append(item.get());
    QCOMPARE(array.count(), qint64(0));
}

void tst_QtSoapArray::insert_replacesWhatStoodThere()
{
    QtSoapArray array;
    array.insert(2, newInt(1));
    array.insert(2, newInt(2));
    array.insert(-3, newInt(3));
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{-3, u"3"_qs}, {2, u"2"_qs}}));
}

void tst_QtSoapArray::insert_settlesTheType()
{
    OpenArray array;
    array.insert(0, newInt(1));
    QCOMPARE(array.arrayTypeString(), u"int"_qs);
    OpenArray ofOthers;
    ofOthers.insert(0, new QtSoapSimpleType(QtSoapQName(u"a"_qs))); // of the type that settles nothing
    QCOMPARE(ofOthers.arrayTypeString(), u"other"_qs);
    ofOthers.insert(1, newText(u"b"_qs));
    QCOMPARE(ofOthers.arrayTypeString(), u"string"_qs);
    QCOMPARE(ofOthers.count(), qint64(2));
}

void tst_QtSoapArray::insert_ofAnotherType_warns_data()
{
    QTest::addColumn<QList<int>>("sizes");

    QTest::newRow("1") << QList<int>{2};
    QTest::newRow("2") << QList<int>{2, 2};
    QTest::newRow("3") << QList<int>{2, 2, 2};
    QTest::newRow("4") << QList<int>{2, 2, 2, 2};
    QTest::newRow("5") << QList<int>{2, 2, 2, 2, 2};
}

void tst_QtSoapArray::insert_ofAnotherType_warns()
{
    QFETCH(const QList<int>, sizes);
    OpenArray settled = arrayOf(sizes);
    insertAt(settled, QList<int>(sizes.size(), 0), newInt(5));
    OpenArray given = arrayOf(sizes, QtSoapType::Int);
    const std::unique_ptr<QtSoapType> item(newText(u"b"_qs)); // not taken over
    for (OpenArray *array : {&settled, &given}) {
        const qint64 count = array->count();
        QTest::ignoreMessage(QtWarningMsg,
                             R"(Attempted to insert item of type "string" in QtSoapArray of type "int".)");
        insertAt(*array, QList<int>(sizes.size(), 0), item.get());
        QCOMPARE(array->count(), count);
        QCOMPARE(array->arrayTypeString(), u"int"_qs);
    }
    QCOMPARE(settled.at(0).toInt(), 5);
}

void tst_QtSoapArray::insert_movesTheLastIndexOfOneDimensionAlone()
{
    const std::unique_ptr<QtSoapType> item(newInt(1));
    OpenArray refusing = arrayOf({9}, QtSoapType::String);
    QTest::ignoreMessage(QtWarningMsg, R"(Attempted to insert item of type "int" in QtSoapArray of type "string".)");
    refusing.insert(7, item.get());
    refusing.insert(0, newText(u"a"_qs));
    refusing.append(newText(u"b"_qs));
    QCOMPARE(refusing.at(1).toString(), u"b"_qs);

    OpenArray plane = arrayOf({2, 3});
    plane.insert(1, 2, newInt(5));
    plane.insert(4, newInt(4)); // a flat position is for any number of dimensions
    QCOMPARE(plane.at(1, 1).toInt(), 4);
    QTest::ignoreMessage(QtWarningMsg, "Attempted to insert item at position (0) in 2-dimensional QtSoapArray.");
    plane.append(item.get());
}

void tst_QtSoapArray::insert_withTheWrongDimensions_warns_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<QByteArray>("warning");

    const QList<QList<int>> arrays{{9}, {9, 8}, {9, 8, 7}, {9, 8, 7, 6}, {9, 8, 7, 6, 5}, {}};
    const QList<QList<int>> positions{{1, -2}, {1, -2, 3}, {1, -2, 3, 40}, {1, -2, 3, 40, 5}};
    const QStringList texts{u"(1, -2)"_qs, u"(1, -2, 3)"_qs, u"(1, -2, 3, 40)"_qs, u"(1, -2, 3, 40, 5)"_qs};
    for (const QList<int> &sizes : arrays) {
        const int order = sizes.isEmpty() ? -1 : int(sizes.size());
        for (int i = 0; i < positions.size(); ++i) {
            if (positions[i].size() != order) {
                QTest::addRow("%d in %d", int(positions[i].size()), order)
                    << sizes << positions[i]
                    << u"Attempted to insert item at position %1 in %2-dimensional QtSoapArray."_qs
                           .arg(texts[i], QString::number(order))
                           .toUtf8();
            }
        }
    }
}

void tst_QtSoapArray::insert_withTheWrongDimensions_warns()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const QByteArray, warning);
    OpenArray array = arrayOf(sizes);
    if (sizes.isEmpty()) {
        array.clear();
    }
    const std::unique_ptr<QtSoapType> item(newInt(1)); // not taken over
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    insertAt(array, at, item.get());
    QCOMPARE(array.count(), qint64(0));
    QCOMPARE(array.arrayTypeString(), u"other"_qs); // nor its type
}

void tst_QtSoapArray::insert_outOfRange_warns_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<QByteArray>("warning");

    const auto add2 = [](const char *row, const QList<int> &at, const char *position) {
        QTest::newRow(row) << QList<int>{2, 3} << at
                           << QByteArray("Attempted to insert item at position ") + position
                + " when range of QtSoapArray is (0..1, 0..2)";
    };
    add2("2: first beyond", {2, 0}, "(2, 0)");
    add2("2: second beyond", {1, 3}, "(1, 3)");
    add2("2: first below", {-1, 0}, "(-1, 0)");
    add2("2: second below", {0, -1}, "(0, -1)");
    const auto add3 = [](const char *row, const QList<int> &at, const char *position) {
        QTest::newRow(row) << QList<int>{2, 3, 4} << at
                           << QByteArray("Attempted to insert item at position ") + position
                + " when range of QtSoapArray is (0..1, 0..2, 0..3)";
    };
    add3("3: first beyond", {2, 0, 0}, "(2, 0, 0)");
    add3("3: second beyond", {0, 3, 0}, "(0, 3, 0)");
    add3("3: third beyond", {0, 0, 4}, "(0, 0, 4)");
    add3("3: first below", {-1, 0, 0}, "(-1, 0, 0)");
    add3("3: second below", {0, -1, 0}, "(0, -1, 0)");
    add3("3: third below", {0, 0, -1}, "(0, 0, -1)");
}

void tst_QtSoapArray::insert_outOfRange_warns()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const QByteArray, warning);
    OpenArray array = arrayOf(sizes);
    const std::unique_ptr<QtSoapType> item(newInt(1)); // not taken over
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    insertAt(array, at, item.get());
    QCOMPARE(array.count(), qint64(0));
    QCOMPARE(array.arrayTypeString(), u"other"_qs);
}

void tst_QtSoapArray::insert_outOfRangeOfFourAndFive_isStored_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<int>("flat");

    QTest::newRow("4, beyond") << QList<int>{2, 3, 4, 5} << QList<int>{2, 0, 0, 0} << 120;
    QTest::newRow("4, last beyond") << QList<int>{2, 3, 4, 5} << QList<int>{0, 0, 0, 6} << 6; // where (0, 0, 1, 1) is
    QTest::newRow("4, below") << QList<int>{2, 3, 4, 5} << QList<int>{0, 0, 0, -1} << -1;
    QTest::newRow("5, beyond") << QList<int>{2, 3, 4, 5, 6} << QList<int>{9, 9, 9, 9, 9}
                               << (((3 * 9 + 9) * 4 + 9) * 5 + 9) * 6 + 9;
    QTest::newRow("5, below") << QList<int>{2, 3, 4, 5, 6} << QList<int>{0, -1, 0, 0, 0} << -120;
}

void tst_QtSoapArray::insert_outOfRangeOfFourAndFive_isStored()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const int, flat);
    OpenArray array = arrayOf(sizes);
    insertAt(array, at, newInt(5));
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{flat, u"5"_qs}}));
    QCOMPARE(itemAt(array, at).toInt(), 5);
}

void tst_QtSoapArray::insert_ofANull_warns()
{
    QtSoapArray array;
    QTest::ignoreMessage(QtWarningMsg, "Attempted to insert a null item in QtSoapArray.");
    array.insert(0, nullptr);
    QTest::ignoreMessage(QtWarningMsg, "Attempted to insert a null item in QtSoapArray.");
    array.append(nullptr);
    QCOMPARE(array.count(), qint64(0));
}

void tst_QtSoapArray::position_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<int>("flat");

    QTest::newRow("1") << QList<int>{9} << QList<int>{5} << 5;
    QTest::newRow("1, beyond the extent") << QList<int>{9} << QList<int>{20} << 20;
    QTest::newRow("2, first") << QList<int>{2, 3} << QList<int>{0, 0} << 0;
    QTest::newRow("2") << QList<int>{2, 3} << QList<int>{1, 2} << 5;
    QTest::newRow("2, first extent plays no part") << QList<int>{7, 3} << QList<int>{1, 2} << 5;
    QTest::newRow("3") << QList<int>{2, 3, 5} << QList<int>{1, 2, 4} << (3 * 1 + 2) * 5 + 4;
    QTest::newRow("4") << QList<int>{2, 3, 5, 7} << QList<int>{1, 2, 4, 6} << ((3 * 1 + 2) * 5 + 4) * 7 + 6;
    QTest::newRow("5") << QList<int>{2, 3, 5, 7, 11} << QList<int>{1, 2, 4, 6, 10}
                       << (((3 * 1 + 2) * 5 + 4) * 7 + 6) * 11 + 10;
}

void tst_QtSoapArray::position()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const int, flat);
    OpenArray array = arrayOf(sizes);
    auto *const item = newInt(5);
    insertAt(array, at, item);
    QCOMPARE(itemsOf(array).keys(), QList<int>{flat});
    QCOMPARE(&array.at(flat), item);
    QCOMPARE(&itemAt(array, at), item);
    const OpenArray &constant = array;
    QCOMPARE(&constant.at(flat), item);
    QCOMPARE(&itemAt(constant, at), item);
}

void tst_QtSoapArray::position_ofEveryItem_isSplitAgain_data()
{
    QTest::addColumn<QList<int>>("sizes");

    QTest::newRow("1") << QList<int>{4};
    QTest::newRow("2") << QList<int>{2, 3};
    QTest::newRow("3") << QList<int>{2, 3, 4};
    QTest::newRow("4") << QList<int>{2, 3, 4, 5};
    QTest::newRow("5, last extents equal") << QList<int>{2, 3, 2, 4, 4};
}

void tst_QtSoapArray::position_ofEveryItem_isSplitAgain()
{
    QFETCH(const QList<int>, sizes);
    QList<QList<int>> all{{}};
    for (const int size : sizes) {
        QList<QList<int>> longer;
        for (const QList<int> &start : all) {
            for (int i = 0; i < size; ++i) {
                longer.append(start + QList<int>{i});
            }
        }
        all = longer;
    }
    for (int flat = 0; flat < all.size(); ++flat) {
        OpenArray array = arrayOf(sizes);
        insertAt(array, all[flat], newInt(flat));
        QCOMPARE(QtSoapArrayIterator(array).pos(), flat);
        QCOMPARE(coordinatesOf(array), all[flat] + QList<int>(5 - sizes.size(), -9));
    }
}

void tst_QtSoapArray::position_inFiveDimensions_isSplitByTheFourthExtent_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<QList<int>>("split");

    const QList<int> wide{2, 2, 2, 3, 5};
    QTest::newRow("wide, first") << wide << QList<int>{0, 0, 0, 0, 0} << QList<int>{0, 0, 0, 0, 0};
    QTest::newRow("wide, still equal") << wide << QList<int>{1, 0, 1, 0, 2} << QList<int>{1, 0, 1, 0, 2};
    QTest::newRow("wide, last of the fifth") << wide << QList<int>{1, 1, 0, 0, 4} << QList<int>{1, 1, 0, 1, 1};
    QTest::newRow("wide, last") << wide << QList<int>{1, 1, 1, 2, 4} << QList<int>{1, 1, 1, 4, 2};
    const QList<int> narrow{2, 2, 2, 5, 3};
    QTest::newRow("narrow, second of the fourth") << narrow << QList<int>{0, 1, 0, 1, 0} << QList<int>{0, 1, 0, 0, 3};
    QTest::newRow("narrow, last") << narrow << QList<int>{1, 1, 1, 4, 2} << QList<int>{1, 1, 1, 2, 4};
}

void tst_QtSoapArray::position_inFiveDimensions_isSplitByTheFourthExtent()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const QList<int>, split);
    registerPrefixes();
    OpenArray array = arrayOf(sizes);
    insertAt(array, at, newInt(5));
    QCOMPARE(coordinatesOf(array), split);
    QStringList texts;
    for (const int coordinate : split) {
        texts.append(QString::number(coordinate));
    }
    QCOMPARE(writtenItems(array), QStringList{writtenInt(u'[' + texts.join(u',') + u']', 5)});
    QCOMPARE(itemAt(array, at).toInt(), 5);
}

void tst_QtSoapArray::position_beyondTheRange_isSplitByTruncation_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<int>("flat");
    QTest::addColumn<QList<int>>("split");

    QTest::newRow("2, beyond") << QList<int>{2, 3} << 100 << QList<int>{33, 1};
    QTest::newRow("2, below") << QList<int>{2, 3} << -4 << QList<int>{-1, -1};
    QTest::newRow("3, beyond") << QList<int>{2, 3, 4} << 100 << QList<int>{8, 1, 0};
    QTest::newRow("3, below") << QList<int>{2, 3, 4} << -15 << QList<int>{-1, 0, -3};
    QTest::newRow("4, beyond") << QList<int>{2, 3, 4, 5} << 1000 << QList<int>{16, 2, 0, 0};
    QTest::newRow("4, below") << QList<int>{2, 3, 4, 5} << -61 << QList<int>{-1, 0, 0, -1};
    QTest::newRow("5, below") << QList<int>{2, 2, 2, 3, 5} << -64 << QList<int>{-1, 0, 0, -1, -1};
}

void tst_QtSoapArray::position_beyondTheRange_isSplitByTruncation()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const int, flat);
    QFETCH(const QList<int>, split);
    OpenArray array = arrayOf(sizes);
    array.insert(flat, newInt(5));
    QCOMPARE(coordinatesOf(array), split + QList<int>(5 - split.size(), -9));
}

void tst_QtSoapArray::at_outOfRange_isTheFlatPosition_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<int>("flat");

    const QList<int> plane{2, 3};
    QTest::newRow("2, second beyond") << plane << QList<int>{0, 4} << 4; // where (1, 1) is
    QTest::newRow("2, second at the extent") << plane << QList<int>{0, 3} << 3;
    QTest::newRow("2, first beyond") << plane << QList<int>{2, 0} << 6;
    QTest::newRow("2, first beyond, second below") << plane << QList<int>{2, -1} << 5;
    QTest::newRow("2, first below") << plane << QList<int>{-1, 4} << 1;
    QTest::newRow("2, below") << plane << QList<int>{-1, 2} << -1;
    const QList<int> space{2, 3, 4};
    QTest::newRow("3, third beyond") << space << QList<int>{0, 0, 5} << 5; // where (0, 1, 1) is
    QTest::newRow("3, second beyond") << space << QList<int>{0, 3, 0} << 12;
    QTest::newRow("3, first beyond") << space << QList<int>{2, 0, 0} << 24;
    QTest::newRow("3, third below") << space << QList<int>{1, 0, -1} << 11;
    QTest::newRow("3, second below") << space << QList<int>{1, -1, 0} << 8;
    QTest::newRow("3, first below") << space << QList<int>{-1, 3, 1} << 1;
}

void tst_QtSoapArray::at_outOfRange_isTheFlatPosition()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const int, flat);
    OpenArray array = arrayOf(sizes);
    for (int position = -2; position < 30; ++position) {
        array.insert(position, newInt(position));
    }
    QCOMPARE(&itemAt(array, at), &array.at(flat));
    QCOMPARE(itemAt(array, at).toString(), QString::number(flat));
    QCOMPARE(&itemAt(std::as_const(array), at), &array.at(flat));
}

void tst_QtSoapArray::at_withoutExtents_countsTheLastCoordinateAlone_data()
{
    QTest::addColumn<bool>("isCleared");
    QTest::addColumn<QList<int>>("at");

    for (const bool isCleared : {false, true}) {
        const char *const name = isCleared ? "cleared" : "made without arguments";
        QTest::addRow("%s, 2", name) << isCleared << QList<int>{1, 2};
        QTest::addRow("%s, 3", name) << isCleared << QList<int>{0, 1, 2};
        QTest::addRow("%s, 4", name) << isCleared << QList<int>{0, 0, 1, 2};
        QTest::addRow("%s, 5", name) << isCleared << QList<int>{0, 0, 0, 1, 2};
    }
}

void tst_QtSoapArray::at_withoutExtents_countsTheLastCoordinateAlone()
{
    QFETCH(const bool, isCleared);
    QFETCH(const QList<int>, at);
    QtSoapArray array = isCleared ? QtSoapArray(arrayOf({2, 3, 4, 5, 6})) : QtSoapArray();
    if (isCleared) {
        array.clear();
    }
    for (int position = 0; position < 10; ++position) {
        array.insert(position, newInt(position));
    }
    QCOMPARE(itemAt(array, at).toString(), u"2"_qs); // the others meet extents of 0
    QCOMPARE(itemAt(std::as_const(array), at).toString(), u"2"_qs);
}

void tst_QtSoapArray::at_whereNothingIs_givesANullValueEach()
{
    QtSoapArray array;
    OpenArray plane = arrayOf({2, 3});
    array.insert(1, newInt(5));
    const QtSoapArray &constant = array;
    for (const int position : {-1, 0, 2}) {
        QVERIFY(!array.at(position).isValid());
        QVERIFY(!constant.at(position).isValid());
    }
    QVERIFY(&array.at(0) != &constant.at(0));
    QCOMPARE(&array.at(0), &plane.at(1, 1));
    QCOMPARE(&constant.at(0), &std::as_const(plane).at(1, 1));
    QCOMPARE(array.count(), qint64(1)); // looking does not fill the hash
}

void tst_QtSoapArray::lookUp_byPosition_isAt()
{
    OpenArray array = arrayOf({2, 3});
    auto *const item = newInt(5);
    array.insert(1, 2, item);
    QCOMPARE(&array[5], item);
    QCOMPARE(&std::as_const(array)[5], item);
    QCOMPARE(&array[4], &array.at(4));
    QCOMPARE(&std::as_const(array)[4], &std::as_const(array).at(4));
}

void tst_QtSoapArray::lookUp_byName_givesTheNullValue()
{
    QtSoapType base;
    QtSoapArray array;
    array.append(newInt(5)); // its name is "a"
    const QtSoapArray &constant = array;
    const QtSoapQName name(u"a"_qs);
    QCOMPARE(&array[u"a"_qs], &base[u"a"_qs]);
    QCOMPARE(&array[name], &base[name]);
    QCOMPARE(&constant[u"a"_qs], &std::as_const(base)[u"a"_qs]);
    QCOMPARE(&constant[name], &std::as_const(base)[name]);
    QVERIFY(!array[u"a"_qs].isValid());
}

void tst_QtSoapArray::arraySizeString_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QList<int>{} << u"[]"_qs;
    QTest::newRow("1") << QList<int>{12} << u"[12]"_qs;
    QTest::newRow("2") << QList<int>{12, 3} << u"[12,3]"_qs;
    QTest::newRow("3") << QList<int>{12, 3, 4} << u"[12,3,4]"_qs;
    QTest::newRow("4") << QList<int>{12, 3, 4, 5} << u"[12,3,4,5]"_qs;
    QTest::newRow("5") << QList<int>{12, 3, 4, 5, 6} << u"[12,3,4,5,6]"_qs;
    QTest::newRow("first one missing") << QList<int>{-1, 3} << u"[]"_qs;
    QTest::newRow("gap") << QList<int>{2, -1, 4} << u"[2,-1,4]"_qs;
}

void tst_QtSoapArray::arraySizeString()
{
    QFETCH(const QList<int>, sizes);
    QTEST(arrayOf(sizes).arraySizeString(), "text");
}

void tst_QtSoapArray::arrayTypeString_data()
{
    QTest::addColumn<QtSoapType::Type>("type");
    QTest::addColumn<QString>("text");

    QTest::newRow("int") << QtSoapType::Int << u"int"_qs;
    QTest::newRow("struct") << QtSoapType::Struct << u"struct"_qs;
    QTest::newRow("other") << QtSoapType::Other << u"other"_qs;
    QTest::newRow("array without items") << QtSoapType::Array << u"int"_qs;
}

void tst_QtSoapArray::arrayTypeString()
{
    QFETCH(const QtSoapType::Type, type);
    QTEST(arrayOf({2, 3}, type).arrayTypeString(), "text");
}

void tst_QtSoapArray::arrayTypeString_ofArrays()
{
    OpenArray ofEmptyOnes = arrayOf({2, 3}, QtSoapType::Array);
    ofEmptyOnes.insert(0, 0, new QtSoapArray(QtSoapQName(u"a"_qs), QtSoapType::String, 7));
    QCOMPARE(ofEmptyOnes.arrayTypeString(), u"int[2,3]"_qs);

    OpenArray ofAppended = arrayOf({4}, QtSoapType::Array);
    ofAppended.append(newText(u"b"_qs)); // is not checked for its type
    QCOMPARE(ofAppended.arrayTypeString(), u"string[4]"_qs);

    OpenArray ofFilledOnes = arrayOf({4});
    auto *const inner = new QtSoapArray(QtSoapQName(u"a"_qs), QtSoapType::Int, 7, 8);
    inner->insert(0, 0, newInt(5));
    ofFilledOnes.insert(0, inner);
    QCOMPARE(ofFilledOnes.arrayTypeString(), u"array[4][7,8]"_qs); // comes to an end
}

void tst_QtSoapArray::written_empty()
{
    registerPrefixes();
    QtSoapArray array;
    array.setName(QtSoapQName(u"x"_qs));
    QCOMPARE(outline(array.toDomElement(newDocument())),
             u"x["_qs + arrayTypeAttribute + u"other "_qs + typeAttribute + u"Array]()"_qs);
}

void tst_QtSoapArray::written_hasTheItemsWithTheirPositions()
{
    registerPrefixes();
    QtSoapArray array;
    array.setName(QtSoapQName(u"x"_qs, u"urn:x"_qs));
    array.insert(0, newInt(10));
    array.insert(12, newInt(22));
    array.insert(5, newInt(15));
    const QDomDocument document = newDocument();
    const QDomElement element = array.toDomElement(document);
    QCOMPARE(outline(element.cloneNode(false)),
             u"{urn:x}x:x["_qs + arrayTypeAttribute + u"int "_qs + typeAttribute + u"Array]()"_qs);
    QCOMPARE(writtenItems(array),
             (QStringList{writtenInt(u"[0]"_qs, 10), writtenInt(u"[12]"_qs, 22), writtenInt(u"[5]"_qs, 15)}));
}

void tst_QtSoapArray::written_hasAsManyCoordinatesAsDimensions_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QList<int>>("at");
    QTest::addColumn<QString>("position");

    QTest::newRow("1") << QList<int>{9} << QList<int>{8} << u"[8]"_qs;
    QTest::newRow("2") << QList<int>{2, 3} << QList<int>{1, 2} << u"[1,2]"_qs;
    QTest::newRow("3") << QList<int>{2, 3, 4} << QList<int>{1, 2, 3} << u"[1,2,3]"_qs;
    QTest::newRow("4") << QList<int>{2, 3, 4, 5} << QList<int>{1, 2, 3, 4} << u"[1,2,3,4]"_qs;
    QTest::newRow("5") << QList<int>{2, 3, 4, 5, 5} << QList<int>{1, 2, 3, 4, 0} << u"[1,2,3,4,0]"_qs;
}

void tst_QtSoapArray::written_hasAsManyCoordinatesAsDimensions()
{
    QFETCH(const QList<int>, sizes);
    QFETCH(const QList<int>, at);
    QFETCH(const QString, position);
    registerPrefixes();
    OpenArray array = arrayOf(sizes);
    insertAt(array, at, newInt(5));
    QCOMPARE(writtenItems(array), QStringList{writtenInt(position, 5)});
}

void tst_QtSoapArray::written_appended_hasTheTypeOther()
{
    registerPrefixes();
    QtSoapArray array;
    array.setName(QtSoapQName(u"x"_qs));
    array.append(newInt(5));
    array.append(newInt(6));
    const QDomDocument document = newDocument();
    const QDomElement element = array.toDomElement(document);
    QCOMPARE(element.attributeNS(u"http://schemas.xmlsoap.org/soap/encoding/"_qs, u"arrayType"_qs), u"xsd:other"_qs);
    QCOMPARE(writtenItems(array), (QStringList{writtenInt(u"[0]"_qs, 5), writtenInt(u"[1]"_qs, 6)}));
}

void tst_QtSoapArray::written_renamesTheItems()
{
    registerPrefixes();
    QtSoapArray array;
    array.setName(QtSoapQName(u"x"_qs));
    auto *const item = new QtSoapStruct(QtSoapQName(u"s"_qs));
    item->insert(newText(u"b"_qs));
    array.append(item);
    QCOMPARE(writtenItems(array),
             QStringList{u"item["_qs + positionAttribute + u"[0]](a["_qs + typeAttribute + u"string]('b'))"_qs});
    QCOMPARE(array[0].name().name(), u"s"_qs); // the item keeps its own
}

void tst_QtSoapArray::written_renamesAnItemBehindItsPrefix()
{
    registerPrefixes();
    QtSoapArray array;
    array.setName(QtSoapQName(u"y"_qs));
    array.append(new QtSoapSimpleType(QtSoapQName(u"a"_qs, u"urn:x"_qs), 5));
    QCOMPARE(writtenItems(array), QStringList{u"{urn:x}x:"_qs + writtenInt(u"[0]"_qs, 5)});
}

void tst_QtSoapArray::written_afterClear_hasNoCoordinates()
{
    registerPrefixes();
    QDomDocument document;
    QtSoapArray array;
    array.setName(QtSoapQName(u"x"_qs));
    array.clear();
    QVERIFY(array.parse(elementFrom(document, u"<x><a type='int'>5</a></x>"_qs)));
    QCOMPARE(writtenItems(array), QStringList{writtenInt(u"[]"_qs, 5)});
}

void tst_QtSoapArray::parse_numbersTheItems()
{
    QDomDocument document;
    QtSoapArray array;
    QVERIFY(array.parse(
        elementFrom(document, u"<x><!--c--><a>1</a><b>2</b><!--c--><array><a>3</a></array><s><a>4</a></s></x>"_qs)));
    QCOMPARE(array.count(), qint64(4));
    QCOMPARE(array[0].toString(), u"1"_qs);
    QCOMPARE(array[0].name().name(), u"a"_qs);
    QCOMPARE(array[1].toString(), u"2"_qs);
    QCOMPARE(array[2].type(), QtSoapType::Array);
    QCOMPARE(array[2][0].toString(), u"3"_qs);
    QCOMPARE(array[3][u"a"_qs].toString(), u"4"_qs);
}

void tst_QtSoapArray::parse_takesPositions_data()
{
    using Items = QMap<int, QString>;
    QTest::addColumn<QString>("text");
    QTest::addColumn<Items>("items");

    QTest::newRow("number") << u"<x><a position='3'>1</a></x>"_qs << Items{{3, u"1"_qs}};
    QTest::newRow("goes on from there")
        << u"<x><a>0</a><a position='7'>1</a><a>2</a><a position='2'>3</a><a>4</a></x>"_qs
        << Items{{0, u"0"_qs}, {7, u"1"_qs}, {8, u"2"_qs}, {2, u"3"_qs}, {3, u"4"_qs}};
    QTest::newRow("taken twice") << u"<x><a position='1'>1</a><a position='1'>2</a></x>"_qs << Items{{1, u"2"_qs}};
    QTest::newRow("in brackets") << u"<x><a>1</a><a position='[3]'>2</a><a>3</a></x>"_qs
                                 << Items{{0, u"2"_qs}, {1, u"3"_qs}};
    QTest::newRow("negative") << u"<x><a position='-2'>1</a><a>2</a></x>"_qs << Items{{-2, u"1"_qs}, {-1, u"2"_qs}};
    QTest::newRow("out of range") << u"<x><a>0</a><a position='2147483648'>1</a></x>"_qs << Items{{0, u"1"_qs}};
    QTest::newRow("largest") << u"<x><a position='2147483647'>1</a></x>"_qs << Items{{2147483647, u"1"_qs}};
    QTest::newRow("empty") << u"<x><a>0</a><a position=''>1</a></x>"_qs << Items{{0, u"1"_qs}};
    QTest::newRow("with a prefix") << u"<x xmlns:e='urn:e'><a>0</a><a e:position='5'>1</a></x>"_qs
                                   << Items{{0, u"0"_qs}, {1, u"1"_qs}};
    QTest::newRow("both") << u"<x xmlns:e='urn:e'><a e:position='5' position='6'>0</a>"
                             "<a position='8' e:position='5'>1</a></x>"_qs
                          << Items{{6, u"0"_qs}, {8, u"1"_qs}};
}

void tst_QtSoapArray::parse_takesPositions()
{
    QFETCH(const QString, text);
    for (const bool hasNamespaces : {true, false}) {
        QDomDocument document;
        QtSoapArray array;
        QVERIFY(array.parse(elementFrom(document, text, hasNamespaces)));
        QTEST(itemsOf(array), "items");
    }
}

void tst_QtSoapArray::parse_checksThePlainType_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("isRead");

    QTest::newRow("none") << u""_qs << true;
    QTest::newRow("array") << u"type='array'"_qs << true;
    QTest::newRow("prefix and case") << u"type='SOAP:ArrAY'"_qs << true;
    QTest::newRow("another") << u"type='xsd:struct'"_qs << false;
    QTest::newRow("empty") << u"type=''"_qs << false;
    QTest::newRow("colon in front") << u"type=':array'"_qs << false;
    QTest::newRow("two colons") << u"type='a:b:array'"_qs << false;
    QTest::newRow("blank") << u"type='array '"_qs << false;
    QTest::newRow("another with a prefix") << u"i:type='xsd:int'"_qs << true;
    QTest::newRow("both, plain one first") << u"type='xsd:array' i:type='xsd:int'"_qs << true;
    QTest::newRow("both, plain one last") << u"i:type='xsd:int' type='xsd:array'"_qs << true;
    QTest::newRow("both, plain one differs") << u"i:type='xsd:array' type='xsd:int'"_qs << false;
}

void tst_QtSoapArray::parse_checksThePlainType()
{
    QFETCH(const QString, attributes);
    QFETCH(const bool, isRead);
    for (const bool hasNamespaces : {true, false}) {
        QDomDocument document;
        QtSoapArray array;
        const QString text = u"<x xmlns:i='urn:i' "_qs + attributes + u"><a>1</a></x>"_qs;
        QCOMPARE(array.parse(elementFrom(document, text, hasNamespaces)), isRead);
        QCOMPARE(array.count(), qint64(isRead ? 1 : 0));
        QCOMPARE(array.errorString(), u"Unknown error"_qs);
    }
}

void tst_QtSoapArray::parse_ofAnotherType_keepsTheItems()
{
    QDomDocument document;
    QtSoapArray array;
    array.append(newInt(5));
    QVERIFY(!array.parse(elementFrom(document, u"<x type='int'><a>1</a></x>"_qs)));
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{0, u"5"_qs}}));
}

void tst_QtSoapArray::parse_again_dropsTheItems()
{
    QDomDocument document;
    QtSoapArray array;
    array.insert(9, newInt(5));
    QVERIFY(array.parse(elementFrom(document, u"<x><a>1</a></x>"_qs)));
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{0, u"1"_qs}}));
    QVERIFY(array.parse(elementFrom(document, u"<x/>"_qs)));
    QCOMPARE(array.count(), qint64(0));
}

void tst_QtSoapArray::parse_ofWhatIsNoItem_isFalse_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("text") << u"<x><a>1</a>text<a>2</a></x>"_qs;
    QTest::newRow("character data") << u"<x><a>1</a><![CDATA[text]]></x>"_qs;
    QTest::newRow("instruction") << u"<x><a>1</a><?do it?></x>"_qs;
    QTest::newRow("unreadable number") << u"<x><a>1</a><a type='int'>abc</a></x>"_qs;
    QTest::newRow("unreadable struct") << u"<x><a>1</a><s><a>1</a>text</s></x>"_qs;
}

void tst_QtSoapArray::parse_ofWhatIsNoItem_isFalse()
{
    QFETCH(const QString, text);
    QDomDocument document;
    QtSoapArray array;
    array.setName(QtSoapQName(u"before"_qs));
    QVERIFY(!array.parse(elementFrom(document, text)));
    QCOMPARE(array.errorString(), u"Unknown error"_qs);
    QCOMPARE(array.name().name(), u"before"_qs);
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{0, u"1"_qs}})); // what was read so far stays
}

void tst_QtSoapArray::parse_ofAnUnreadableItem_asksTheOneFactory()
{
    QDomDocument document;
    const QtSoapTypeFactory &factory = QtSoapTypeFactory::instance();
    QVERIFY(!factory.soapType(elementFrom(document, u"<before type='int'>abc</before>"_qs)));
    QCOMPARE(factory.errorString(), u"Type error at element \"before\""_qs);
    QtSoapArray array;
    QVERIFY(!array.parse(elementFrom(document, u"<x><a type='int'>abc</a></x>"_qs)));
    QCOMPARE(factory.errorString(), u"Type error at element \"a\""_qs);
}

void tst_QtSoapArray::parse_withNoElement_isFalse()
{
    QDomDocument document;
    QtSoapArray array;
    array.append(newInt(5));
    QVERIFY(!array.parse(QDomNode()));
    QVERIFY(!array.parse(document.createTextNode(u"a"_qs)));
    QCOMPARE(array.count(), qint64(1));
}

void tst_QtSoapArray::parse_leavesTypeAndDimensions()
{
    QDomDocument document;
    OpenArray array = arrayOf({2, 3}, QtSoapType::Int);
    QVERIFY(array.parse(elementFrom(
        document,
        u"<x xmlns:e='http://schemas.xmlsoap.org/soap/encoding/' e:arrayType='xsd:string[7]'><a>1</a><a>2</a>"
        "<a>3</a><a>4</a></x>"_qs)));
    QCOMPARE(array.arraySizeString(), u"[2,3]"_qs);
    QCOMPARE(array.arrayTypeString(), u"int"_qs); // though texts were read
    QCOMPARE(array.at(1, 0).toString(), u"4"_qs);

    OpenArray fresh;
    QVERIFY(fresh.parse(elementFrom(document, u"<x><a>1</a><a>2</a><a>3</a></x>"_qs)));
    QCOMPARE(fresh.arraySizeString(), u"[0]"_qs);
    QCOMPARE(fresh.arrayTypeString(), u"other"_qs);
    fresh.append(newInt(9)); // the last index is still 0
    QCOMPARE(itemsOf(fresh), (QMap<int, QString>{{0, u"1"_qs}, {1, u"9"_qs}, {2, u"3"_qs}}));
}

void tst_QtSoapArray::parse_setsTheName()
{
    QDomDocument document;
    QtSoapArray array;
    QVERIFY(array.parse(elementFrom(document, u"<p:x xmlns:p='urn:x'/>"_qs)));
    QCOMPARE(array.name().name(), u"x"_qs);
    QCOMPARE(array.name().uri(), u"urn:x"_qs);
}

void tst_QtSoapArray::copied_sharesTheItems()
{
    QtSoapArray array;
    array.insert(4, newInt(5));
    QtSoapArray copy(array);
    QCOMPARE(&copy[4], &array[4]);
    copy.append(newInt(6));
    QCOMPARE(copy.count(), qint64(2));
    QCOMPARE(array.count(), qint64(1)); // the item is shared, the hash was
    array.clear();
    QCOMPARE(copy[4].toInt(), 5);
}

void tst_QtSoapArray::copied_hasNoArrayType_data()
{
    QTest::addColumn<QtSoapType::Type>("type");

    QTest::newRow("int") << QtSoapType::Int;
    QTest::newRow("array") << QtSoapType::Array;
}

void tst_QtSoapArray::copied_hasNoArrayType()
{
    QFETCH(const QtSoapType::Type, type);
    OpenArray array = arrayOf({2, 3}, type);
    array.setId(u"id"_qs);
    OpenArray copy(array);
    QCOMPARE(copy.arrayTypeString(), u"other"_qs);
    QCOMPARE(copy.arraySizeString(), u"[2,3]"_qs);
    QCOMPARE(copy.name().name(), u"x"_qs);
    QCOMPARE(copy.id(), u"id"_qs);
    QCOMPARE(copy.type(), QtSoapType::Array);

    copy.insert(1, 1, newText(u"b"_qs)); // which the array itself would refuse
    QCOMPARE(copy.arrayTypeString(), u"string"_qs);
    QCOMPARE(copy.count(), qint64(1));
}

void tst_QtSoapArray::assigned_keepsItsOwnArrayType()
{
    OpenArray target = arrayOf({9}, QtSoapType::Boolean);
    const OpenArray source = arrayOf({2, 3}, QtSoapType::Int);
    target = source;
    QCOMPARE(target.arrayTypeString(), u"boolean"_qs);
    QCOMPARE(target.arraySizeString(), u"[2,3]"_qs);
}

void tst_QtSoapArray::assigned_takesLastIndexAndDimensions()
{
    QtSoapArray source(QtSoapQName(u"x"_qs, u"urn:x"_qs), QtSoapType::Int);
    source.insert(6, newInt(6));
    source.setId(u"id"_qs);
    source.setHref(u"href"_qs);
    QtSoapArray target(QtSoapQName(u"y"_qs), QtSoapType::Other, 2, 3);
    target.insert(1, 1, newInt(4));
    target = source;
    target.append(newInt(7));
    QCOMPARE(itemsOf(target), (QMap<int, QString>{{6, u"6"_qs}, {7, u"7"_qs}}));
    QCOMPARE(target.name().uri(), u"urn:x"_qs);
    QCOMPARE(target.id(), u"id"_qs);
    QCOMPARE(target.href(), u"href"_qs);
}

void tst_QtSoapArray::assigned_fromItsItem_isThat()
{
    OpenArray array = arrayOf({9}, QtSoapType::Array);
    auto *const inner = new QtSoapArray(QtSoapQName(u"inner"_qs, u"urn:inner"_qs), QtSoapType::Int, 2, 3);
    inner->setId(u"id"_qs);
    inner->setHref(u"href"_qs);
    inner->insert(1, 1, newInt(4));
    inner->insert(1, 2, newInt(5));
    array.insert(7, new QtSoapArray);
    array.insert(0, inner);

    static_cast<QtSoapArray &>(array) = *inner; // which goes with the items that it replaces
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{4, u"4"_qs}, {5, u"5"_qs}}));
    QCOMPARE(array.name().name(), u"inner"_qs);
    QCOMPARE(array.name().uri(), u"urn:inner"_qs);
    QCOMPARE(array.id(), u"id"_qs);
    QCOMPARE(array.href(), u"href"_qs);
    QCOMPARE(array.arraySizeString(), u"[2,3]"_qs);
    QTest::ignoreMessage(QtWarningMsg, "Attempted to insert item at position (0) in 2-dimensional QtSoapArray.");
    const std::unique_ptr<QtSoapType> item(newInt(6));
    array.append(item.get());
}

void tst_QtSoapArray::cleared_hasNothingLeft()
{
    OpenArray array = arrayOf({2, 3}, QtSoapType::Int);
    array.insert(1, 1, newInt(5));
    array.clear();
    QCOMPARE(array.count(), qint64(0));
    QCOMPARE(array.arrayTypeString(), u"other"_qs);
    QCOMPARE(array.arraySizeString(), u"[0]"_qs);
}

void tst_QtSoapArray::cleared_getsOneDimensionFromInsert()
{
    OpenArray array;
    array.insert(8, newInt(8));
    array.clear();
    array.insert(5, newText(u"5"_qs)); // makes the dimension, and does not move the last index
    QCOMPARE(array.arrayTypeString(), u"string"_qs);
    array.append(newText(u"1"_qs));
    QCOMPARE(itemsOf(array), (QMap<int, QString>{{1, u"1"_qs}, {5, u"5"_qs}}));
}

void tst_QtSoapArray::cleared_keepsNameAndErrorText()
{
    class Failed : public QtSoapArray
    {
    public:
        Failed()
        {
            setName(QtSoapQName(u"x"_qs, u"urn:x"_qs));
            m_errorString = u"text"_qs;
        }
    };
    Failed array;
    array.clear();
    QCOMPARE(array.errorString(), u"text"_qs);
    QCOMPARE(array.name().uri(), u"urn:x"_qs);
    QCOMPARE(array.type(), QtSoapType::Array);
}

void tst_QtSoapArray::iterator_visitsEveryItemOnce()
{
    QtSoapArray array;
    QMap<int, const QtSoapType *> wanted;
    for (const int position : {3, 0, 17, -2}) {
        auto *const item = newInt(position);
        array.insert(position, item);
        wanted.insert(position, item);
    }
    QMap<int, const QtSoapType *> visited;
    int steps = 0;
    QtSoapArrayIterator iterator(array);
    for (; !iterator.atEnd(); ++iterator, ++steps) {
        QCOMPARE(iterator.data(), std::as_const(iterator).current());
        visited.insert(iterator.pos(), iterator.data());
    }
    QCOMPARE(visited, wanted);
    QCOMPARE(steps, 4);
    QCOMPARE(iterator.data(), nullptr);
    QCOMPARE(iterator.current(), nullptr);
    ++iterator;
    QVERIFY(iterator.atEnd());
    QVERIFY(iterator != QtSoapArrayIterator(array));
}

void tst_QtSoapArray::iterator_ofAnEmptyArray_isAtTheEnd()
{
    QtSoapArray array;
    QtSoapArrayIterator iterator(array);
    QVERIFY(iterator.atEnd());
    QCOMPARE(iterator.data(), nullptr);
    QCOMPARE(std::as_const(iterator).current(), nullptr);
}

void tst_QtSoapArray::iterator_tellsOnlyWhatIsAskedFor()
{
    OpenArray array = arrayOf({2, 3, 4, 5, 5});
    array.insert(1, 2, 3, 4, 0, newInt(5));
    const QtSoapArrayIterator iterator(array);
    iterator.pos(nullptr, nullptr, nullptr, nullptr, nullptr);
    const QList<int> wanted{1, 2, 3, 4, 0};
    for (int i = 0; i < 5; ++i) {
        int told = -9;
        std::array<int *, 5> targets{};
        targets[std::size_t(i)] = &told;
        iterator.pos(targets[0], targets[1], targets[2], targets[3], targets[4]);
        QCOMPARE(told, wanted[i]);
    }
}

void tst_QtSoapArray::iterator_copied_goesOnAlone()
{
    QtSoapArray array;
    array.append(newInt(1));
    array.append(newInt(2));
    QtSoapArrayIterator first(array);
    QtSoapArrayIterator second(first);
    QVERIFY(first == second);
    QVERIFY(!(first != second));
    QCOMPARE(&++first, &first);
    QVERIFY(first != second);
    QVERIFY(!(first == second));
    QVERIFY(second.data() != first.data());
    second = first;
    QVERIFY(first == second);
    QCOMPARE(second.data(), first.data());
}

void tst_QtSoapArray::iterator_detachesTheItems()
{
    QtSoapArray array;
    array.append(newInt(1));
    QtSoapArray copy(array);
    QtSoapArrayIterator first(array);
    QtSoapArrayIterator second(copy);
    QVERIFY(first != second); // each has a hash of its own by now
    QVERIFY(!(first == second));
    QCOMPARE(first.data(), second.data()); // of the same item
}

QTEST_GUILESS_MAIN(tst_QtSoapArray)
#include "tst_QtSoapArray.moc"
