// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "interfaces/StateBytes.h"
#include "support/AssertionReports.h"

#include "interfaces/StateMap_p.h"

#include <QtCore/QBitArray>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QImage>
#include <QtGui/QKeySequence>
#include <QtGui/QPolygon>
#include <QtGui/QTextFormat>
#include <QtTest/QTest>

#include <new>

using namespace ZYX_zglv6;
using namespace TestSupport;

/*! A type of a host, whose reader finds that there is not enough memory. */
struct Greedy
{
};

QDataStream &operator<<(QDataStream &stream, const Greedy & /*value*/)
{
    return stream;
}

QDataStream &operator>>(QDataStream & /*stream*/, Greedy & /*value*/)
{
    throw std::bad_alloc();
}

/*! A type of a host, with a reader of its own. */
struct Tint
{
    QString name;
    quint8 strength = 0;

    bool operator==(const Tint &) const = default;
};

QDataStream &operator<<(QDataStream &stream, const Tint &tint)
{
    return stream << tint.name << tint.strength;
}

QDataStream &operator>>(QDataStream &stream, Tint &tint)
{
    return stream >> tint.name >> tint.strength;
}

namespace {

using StateMap = QMap<QString, QVariant>;

constexpr quint32 hugeCount = 0xffffffff;
constexpr int flipSeed = 6042;

struct Reading
{
    StateMap map;
    QDataStream::Status status;
    qint64 end;
};

Reading read(const QByteArray &bytes)
{
    const AssertionReports quiet; // Qt warns of each type that it does not know
    QDataStream stream(bytes);
    stream.setVersion(stateStreamVersion);
    const StateMap map = readStateMap(stream);
    return {map, stream.status(), stream.device()->pos()};
}

Reading readByQt(const QByteArray &bytes)
{
    const AssertionReports quiet;
    QDataStream stream(bytes);
    stream.setVersion(stateStreamVersion);
    StateMap map;
    stream >> map;
    return {map, stream.status(), stream.device()->pos()};
}

QByteArray written(const StateMap &map)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(stateStreamVersion);
    stream << map;
    return bytes;
}

/*! A map of one entry, whose value is \a valueBytes. */
QByteArray mapOf(const QByteArray &valueBytes)
{
    return mapBytes({{u"key"_qs, valueBytes}});
}

QByteArray repeated(const QByteArray &front, int count, const QByteArray &end)
{
    return front.repeated(count) + end;
}

using Kinds = QList<QMetaType::Type>;

constexpr QMetaType::Type listKind = QMetaType::QVariantList;
constexpr QMetaType::Type mapKind = QMetaType::QVariantMap;
constexpr QMetaType::Type hashKind = QMetaType::QVariantHash;
constexpr QMetaType::Type pairKind = QMetaType::QVariantPair;

/*! A value inside \a levels containers, of \a kinds in turn, each the only value of the one around it. */
QByteArray nest(const Kinds &kinds, int levels)
{
    QByteArray bytes = boolValueBytes(true);
    for (int level = 0; level < levels; ++level) {
        const QMetaType::Type kind = kinds[level % kinds.size()];
        const QByteArray type = typeBytes(quint32(kind));
        if (kind == pairKind) {
            bytes = type + bytes + typeBytes(QMetaType::UnknownType);
        } else {
            bytes = type + numberBytes(1) + (kind == listKind ? QByteArray() : textBytes(u"k"_qs)) + bytes;
        }
    }
    return bytes;
}

QVariant insideOf(const QVariant &container)
{
    switch (container.typeId()) {
    case QMetaType::QVariantList:
        return container.toList().value(0);
    case QMetaType::QVariantMap:
        return container.toMap().value(u"k"_qs);
    case QMetaType::QVariantHash:
        return container.toHash().value(u"k"_qs);
    case QMetaType::QVariantPair:
        return container.value<QVariantPair>().first;
    default:
        return {};
    }
}

/*! How many containers are around the value of nest(). */
int depthOf(QVariant value)
{
    int depth = 0;
    while (value.isValid() && value != QVariant(true)) {
        ++depth;
        value = insideOf(value);
    }
    return value.isValid() ? depth : -1;
}

/*! Qt may read what was read here: all counts in it are true. Empty if it reads the same. */
QString differenceFromQt(const QByteArray &bytes, const Reading &reading)
{
    const Reading byQt = readByQt(bytes);
    const bool isSame = byQt.status == reading.status && byQt.map == reading.map && byQt.end == reading.end;
    return isSame ? QString() : QString::fromLatin1(bytes.toHex());
}

StateMap mixedStates()
{
    return {
        {u"bytes"_qs, QByteArray("\0\1\xff", 3)},
        {u"hash"_qs, QVariantHash{{u"key"_qs, 1}, {u"other"_qs, QVariantHash()}}},
        {u"list"_qs, QVariantList{1, u"two"_qs, QVariantList{3.5}, QVariantMap{{u"four"_qs, false}}}},
        {u"map"_qs, QVariantMap{{u"key"_qs, QByteArray("value")}, {QString(), QVariantList()}}},
        {u"pair"_qs, QVariant::fromValue(QVariantPair(u"first"_qs, QVariantList{2}))},
    };
}

} // namespace

class tst_StateMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stateStreamVersion_isTheOneOfQt64();
    void readStateMap_readsToldBytes();
    void readStateMap_ofTwoEqualKeys_keepsTheLaterOne();
    void readStateMap_givesBackPlainValues_data();
    void readStateMap_givesBackPlainValues();
    void readStateMap_givesBackWhatQtWrote_data();
    void readStateMap_givesBackWhatQtWrote();
    void readStateMap_readsTypesByName_data();
    void readStateMap_readsTypesByName();
    void readStateMap_stopsBehindTheMap();
    void readStateMap_ofEveryPrefix_isEmptyAndTellsSo_data();
    void readStateMap_ofEveryPrefix_isEmptyAndTellsSo();
    void readStateMap_ofOneChangedByte_givesWhatQtReadsOrNothing();
    void readStateMap_ofRandomFlips_givesWhatQtReadsOrNothing();
    void readStateMap_ofByteArrays_isWhatQtReads();
    void readStateMap_withBadStream_isEmpty();
    void readStateMap_ofNestsUpToTheLimit_readsThem_data();
    void readStateMap_ofNestsUpToTheLimit_readsThem();
    void readStateMap_ofNestsBeyondTheLimit_isEmptyAndTellsSo_data();
    void readStateMap_ofNestsBeyondTheLimit_isEmptyAndTellsSo();
    void readStateMap_ofAHostsType_givesItBack();
    void readStateMap_ofAHostsTypeByNumber_isEmptyAndTellsSo();
    void readStateMap_ofTypesThatAreNotPlain_isEmptyAndTellsSo_data();
    void readStateMap_ofTypesThatAreNotPlain_isEmptyAndTellsSo();
    void readStateMap_ofAHostsTypeThatWantsTooMuch_isEmptyAndTellsSo();
    void readStateMap_ofDamage_isEmptyAndTellsSo_data();
    void readStateMap_ofDamage_isEmptyAndTellsSo();
};

void tst_StateMap::stateStreamVersion_isTheOneOfQt64()
{
    QCOMPARE(int(stateStreamVersion), int(QDataStream::Qt_6_4));
}

void tst_StateMap::readStateMap_readsToldBytes()
{
    const QString key = u"\u043a\u043b\u044e\u0447"_qs;
    const Reading reading = read(mapBytes({{QString(), arrayValueBytes(QByteArray())},
                                           {u"a"_qs, arrayValueBytes("bytes")},
                                           {u"b"_qs, boolValueBytes(true)},
                                           {key, arrayValueBytes("")}}));
    const StateMap expected{
        {QString(), QByteArray()}, {u"a"_qs, QByteArray("bytes")}, {u"b"_qs, true}, {key, QByteArray("")}};
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, expected);
    QVERIFY(reading.map[QString()].toByteArray().isNull());
    QVERIFY(!reading.map[key].toByteArray().isNull());
}

void tst_StateMap::readStateMap_ofTwoEqualKeys_keepsTheLaterOne()
{
    const Reading reading = read(mapBytes({{u"a"_qs, arrayValueBytes("1")}, {u"a"_qs, arrayValueBytes("2")}}));
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, (StateMap{{u"a"_qs, QByteArray("2")}}));
}

void tst_StateMap::readStateMap_givesBackPlainValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("typeId");

    QTest::newRow("nothing") << QVariant() << int(QMetaType::UnknownType);
    QTest::newRow("bool") << QVariant(true) << int(QMetaType::Bool);
    QTest::newRow("char") << QVariant::fromValue('x') << int(QMetaType::Char);
    QTest::newRow("signed char") << QVariant::fromValue<signed char>(-128) << int(QMetaType::SChar);
    QTest::newRow("unsigned char") << QVariant::fromValue<uchar>(0xff) << int(QMetaType::UChar);
    QTest::newRow("short") << QVariant::fromValue<short>(-0x8000) << int(QMetaType::Short);
    QTest::newRow("unsigned short") << QVariant::fromValue<ushort>(0xffff) << int(QMetaType::UShort);
    QTest::newRow("int") << QVariant(-7) << int(QMetaType::Int);
    QTest::newRow("unsigned int") << QVariant(0xffffffffU) << int(QMetaType::UInt);
    QTest::newRow("long") << QVariant::fromValue(-7L) << int(QMetaType::Long);
    QTest::newRow("unsigned long") << QVariant::fromValue(0xffffffffUL) << int(QMetaType::ULong);
    QTest::newRow("long long") << QVariant(-0x123456789abcdefLL) << int(QMetaType::LongLong);
    QTest::newRow("unsigned long long") << QVariant(0xfedcba9876543210ULL) << int(QMetaType::ULongLong);
    QTest::newRow("float") << QVariant(0.1F) << int(QMetaType::Float);
    QTest::newRow("double") << QVariant(0.1) << int(QMetaType::Double);
    QTest::newRow("character") << QVariant(QChar(u'\u4e2d')) << int(QMetaType::QChar);
    QTest::newRow("text") << QVariant(u"\u00e9\u4e2d"_qs) << int(QMetaType::QString);
    QTest::newRow("bytes") << QVariant(QByteArray("\0\1\xff", 3)) << int(QMetaType::QByteArray);
    QTest::newRow("date") << QVariant(QDate(2026, 2, 3)) << int(QMetaType::QDate);
    QTest::newRow("time") << QVariant(QTime(4, 5, 6, 7)) << int(QMetaType::QTime);
    QTest::newRow("date and time") << QVariant(QDateTime(QDate(2026, 2, 3), QTime(4, 5), Qt::UTC))
                                   << int(QMetaType::QDateTime);
    QTest::newRow("address") << QVariant(QUrl(u"file:///a%20b"_qs)) << int(QMetaType::QUrl);
    QTest::newRow("identifier") << QVariant(QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)) << int(QMetaType::QUuid);
    QTest::newRow("point") << QVariant(QPoint(-1, 2)) << int(QMetaType::QPoint);
    QTest::newRow("exact point") << QVariant(QPointF(-0.5, 2.25)) << int(QMetaType::QPointF);
    QTest::newRow("size") << QVariant(QSize(3, 4)) << int(QMetaType::QSize);
    QTest::newRow("exact size") << QVariant(QSizeF(3.5, 4.25)) << int(QMetaType::QSizeF);
    QTest::newRow("rectangle") << QVariant(QRect(1, 2, 3, 4)) << int(QMetaType::QRect);
    QTest::newRow("exact rectangle") << QVariant(QRectF(0.5, 1.5, 2.5, 3.5)) << int(QMetaType::QRectF);
    QTest::newRow("line") << QVariant(QLine(1, 2, 3, 4)) << int(QMetaType::QLine);
    QTest::newRow("exact line") << QVariant(QLineF(0.5, 1.5, 2.5, 3.5)) << int(QMetaType::QLineF);
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3, 4)) << int(QMetaType::QColor);
}

void tst_StateMap::readStateMap_givesBackPlainValues()
{
    QFETCH(const QVariant, value);
    const StateMap map{{u"a"_qs, 1}, {u"m"_qs, value}, {u"z"_qs, QByteArray("end")}};
    const QByteArray bytes = written(map);
    const Reading reading = read(bytes);
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, map);
    QTEST(reading.map[u"m"_qs].typeId(), "typeId");
    QCOMPARE(written(reading.map), bytes);
}

void tst_StateMap::readStateMap_givesBackWhatQtWrote_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("texts") << QVariant(QStringList{u"a"_qs, QString()});
    QTest::newRow("byte arrays") << QVariant::fromValue(QByteArrayList{"a", QByteArray()});
    for (const auto &[key, value] : mixedStates().toStdMap()) {
        QTest::newRow(qPrintable(key)) << value;
    }
}

void tst_StateMap::readStateMap_givesBackWhatQtWrote()
{
    QFETCH(const QVariant, value);
    const StateMap map{{u"a"_qs, 1}, {u"m"_qs, value}, {u"z"_qs, QByteArray("end")}};
    const QByteArray bytes = written(map);
    const Reading reading = read(bytes);
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, map);
    QCOMPARE(reading.map[u"m"_qs].typeId(), value.typeId());
    QCOMPARE(written(reading.map), bytes);
}

void tst_StateMap::readStateMap_readsTypesByName_data()
{
    QTest::addColumn<QByteArray>("valueBytes");
    QTest::addColumn<QVariant>("value");

    const QByteArray oneBool = numberBytes(1) + boolValueBytes(true);
    QTest::newRow("list") << namedTypeBytes("QVariantList") + oneBool << QVariant(QVariantList{true});
    QTest::newRow("list by its template")
        << namedTypeBytes("QList<QVariant>") + oneBool << QVariant(QVariantList{true});
    const QByteArray oneEntry = numberBytes(1) + textBytes(u"k"_qs) + boolValueBytes(true);
    QTest::newRow("map") << namedTypeBytes("QVariantMap") + oneEntry << QVariant(QVariantMap{{u"k"_qs, true}});
    QTest::newRow("hash") << namedTypeBytes("QVariantHash") + oneEntry << QVariant(QVariantHash{{u"k"_qs, true}});
    QTest::newRow("bytes") << namedTypeBytes("QByteArray") + numberBytes(1) + "x" << QVariant(QByteArray("x"));
}

void tst_StateMap::readStateMap_readsTypesByName()
{
    QFETCH(const QByteArray, valueBytes);
    QFETCH(const QVariant, value);
    const Reading reading = read(mapOf(valueBytes));
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, (StateMap{{u"key"_qs, value}}));
}

void tst_StateMap::readStateMap_stopsBehindTheMap()
{
    const QByteArray bytes = mapOf(arrayValueBytes("x"));
    const Reading reading = read(bytes + "more");
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, (StateMap{{u"key"_qs, QByteArray("x")}}));
    QCOMPARE(reading.end, bytes.size());
}

void tst_StateMap::readStateMap_ofEveryPrefix_isEmptyAndTellsSo_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("byte arrays") << mapBytes({{u"a"_qs, arrayValueBytes("1")}, {u"b"_qs, arrayValueBytes("2345")}});
    QTest::newRow("values of many types") << written(mixedStates());
    QTest::newRow("type by name") << mapOf(namedTypeBytes("QVariantList") + numberBytes(1) + boolValueBytes(true));
}

void tst_StateMap::readStateMap_ofEveryPrefix_isEmptyAndTellsSo()
{
    QFETCH(const QByteArray, bytes);
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        const Reading reading = read(bytes.first(size));
        QVERIFY2(reading.status != QDataStream::Ok, qPrintable(QString::number(size)));
        QVERIFY2(reading.map.isEmpty(), qPrintable(QString::number(size)));
    }
    QCOMPARE(read(bytes).status, QDataStream::Ok);
}

void tst_StateMap::readStateMap_ofOneChangedByte_givesWhatQtReadsOrNothing()
{
    const QByteArray bytes = written(mixedStates());
    int countOfRead = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        for (const int mask : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xff}) {
            QByteArray changed = bytes;
            changed[i] = char(uchar(changed[i]) ^ mask);
            const Reading reading = read(changed);
            if (reading.status != QDataStream::Ok) {
                QVERIFY2(reading.map.isEmpty(), changed.toHex().constData());
                continue;
            }
            QCOMPARE(differenceFromQt(changed, reading), QString());
            ++countOfRead;
        }
    }
    QVERIFY(countOfRead > 0);
    QVERIFY(countOfRead < bytes.size() * 9);
}

void tst_StateMap::readStateMap_ofRandomFlips_givesWhatQtReadsOrNothing()
{
    const QByteArray bytes = written(mixedStates());
    QRandomGenerator random(flipSeed);
    constexpr int rounds = 20'000;
    int countOfRead = 0;
    for (int round = 0; round < rounds; ++round) {
        QByteArray changed = bytes;
        for (int flips = random.bounded(1, 6); flips > 0; --flips) {
            changed[random.bounded(int(changed.size()))] = char(random.bounded(256));
        }
        const Reading reading = read(changed);
        if (reading.status != QDataStream::Ok) {
            QVERIFY2(reading.map.isEmpty(), changed.toHex().constData());
            continue;
        }
        QCOMPARE(differenceFromQt(changed, reading), QString());
        ++countOfRead;
    }
    QVERIFY(countOfRead > 0);
    QVERIFY(countOfRead < rounds);
}

void tst_StateMap::readStateMap_ofByteArrays_isWhatQtReads()
{
    const QByteArray bytes = mapBytes({{u"a"_qs, arrayValueBytes("1")},
                                       {u"b"_qs, arrayValueBytes(QByteArray())},
                                       {u"c"_qs, arrayValueBytes(QByteArray(40, '\xc8'))}});
    QRandomGenerator random(flipSeed);
    for (int round = 0; round < 5000; ++round) {
        QByteArray changed = bytes;
        const int place = random.bounded(4, 10); // in the first key: the types stay as they are
        changed[place] = char(random.bounded(256));
        const Reading byQt = readByQt(changed);
        const Reading reading = read(changed);
        QCOMPARE(reading.map, byQt.map);
        QCOMPARE(reading.status == QDataStream::Ok, byQt.status == QDataStream::Ok);
    }
}

void tst_StateMap::readStateMap_withBadStream_isEmpty()
{
    const QByteArray bytes = mapOf(arrayValueBytes("x"));
    QDataStream stream(bytes);
    stream.setVersion(stateStreamVersion);
    stream.setStatus(QDataStream::ReadCorruptData);
    QVERIFY(readStateMap(stream).isEmpty());
    QCOMPARE(stream.status(), QDataStream::ReadCorruptData);
}

void tst_StateMap::readStateMap_ofNestsUpToTheLimit_readsThem_data()
{
    QTest::addColumn<Kinds>("kinds");
    QTest::addColumn<int>("levels");

    QTest::newRow("one list") << Kinds{listKind} << 1;
    QTest::newRow("twenty lists") << Kinds{listKind} << 20;
    QTest::newRow("as many lists as may be") << Kinds{listKind} << 64;
    QTest::newRow("as many maps as may be") << Kinds{mapKind} << 64;
    QTest::newRow("as many hashes as may be") << Kinds{hashKind} << 64;
    QTest::newRow("as many pairs as may be") << Kinds{pairKind} << 64;
    QTest::newRow("as many of all kinds as may be") << Kinds{listKind, mapKind, hashKind, pairKind} << 64;
}

void tst_StateMap::readStateMap_ofNestsUpToTheLimit_readsThem()
{
    QFETCH(const Kinds, kinds);
    QFETCH(const int, levels);
    const Reading reading = read(mapOf(nest(kinds, levels)));
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(depthOf(reading.map[u"key"_qs]), levels);
}

void tst_StateMap::readStateMap_ofNestsBeyondTheLimit_isEmptyAndTellsSo_data()
{
    QTest::addColumn<Kinds>("kinds");

    QTest::newRow("lists") << Kinds{listKind};
    QTest::newRow("maps") << Kinds{mapKind};
    QTest::newRow("hashes") << Kinds{hashKind};
    QTest::newRow("pairs") << Kinds{pairKind};
    QTest::newRow("list around maps") << Kinds{mapKind, listKind};
    QTest::newRow("all kinds") << Kinds{listKind, mapKind, hashKind, pairKind};
}

void tst_StateMap::readStateMap_ofNestsBeyondTheLimit_isEmptyAndTellsSo()
{
    QFETCH(const Kinds, kinds);
    const Reading reading = read(mapOf(nest(kinds, 65)));
    QCOMPARE(reading.status, QDataStream::ReadCorruptData);
    QVERIFY(reading.map.isEmpty());
}

void tst_StateMap::readStateMap_ofAHostsType_givesItBack()
{
    qRegisterMetaType<Tint>();
    const QVariant tint = QVariant::fromValue(Tint{u"red"_qs, 7});
    const StateMap map{{u"a"_qs, tint}, {u"b"_qs, QVariantList{tint, true}}, {u"c"_qs, 1}};
    const QByteArray tintBytes = namedTypeBytes("Tint") + textBytes(u"red"_qs) + "\7";
    const QByteArray listBytes = typeBytes(QMetaType::QVariantList) + numberBytes(2) + tintBytes + boolValueBytes(true);
    const QByteArray bytes
        = mapBytes({{u"a"_qs, tintBytes}, {u"b"_qs, listBytes}, {u"c"_qs, typeBytes(QMetaType::Int) + numberBytes(1)}});
    QCOMPARE(written(map), bytes);

    const Reading reading = read(bytes);
    QCOMPARE(reading.status, QDataStream::Ok);
    QCOMPARE(reading.map, map);
    QCOMPARE(reading.map[u"a"_qs].value<Tint>().name, u"red"_qs);
    QCOMPARE(int(reading.map[u"a"_qs].value<Tint>().strength), 7);
}

void tst_StateMap::readStateMap_ofAHostsTypeByNumber_isEmptyAndTellsSo()
{
    const int number = qRegisterMetaType<Tint>(); // in this process; another one has something else there
    QVERIFY(number > QMetaType::User);
    const Reading reading = read(mapOf(typeBytes(quint32(number)) + textBytes(u"red"_qs) + "\7"));
    QCOMPARE(reading.status, QDataStream::ReadCorruptData);
    QVERIFY(reading.map.isEmpty());
}

void tst_StateMap::readStateMap_ofTypesThatAreNotPlain_isEmptyAndTellsSo_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("keys") << QVariant(QKeySequence(Qt::CTRL | Qt::Key_A, Qt::Key_B));
    QTest::newRow("font") << QVariant(QFont(u"Sans"_qs, 12));
    QTest::newRow("bits") << QVariant(QBitArray(11, true));
    QTest::newRow("polygon") << QVariant(QPolygon({QPoint(1, 2), QPoint(3, 4)}));
    QTest::newRow("brush") << QVariant(QBrush(Qt::red));
    QTest::newRow("picture") << QVariant(QImage(2, 2, QImage::Format_RGB32));
    QTest::newRow("text format") << QVariant(QTextFormat());
    QTest::newRow("expression") << QVariant(QRegularExpression(u"a*"_qs));
}

void tst_StateMap::readStateMap_ofTypesThatAreNotPlain_isEmptyAndTellsSo()
{
    QFETCH(const QVariant, value);
    for (const QVariant &stored : {value, QVariant(QVariantList{value}), QVariant(QVariantMap{{u"k"_qs, value}})}) {
        const Reading reading = read(written({{u"a"_qs, 1}, {u"b"_qs, stored}}));
        QCOMPARE(reading.status, QDataStream::ReadCorruptData);
        QVERIFY(reading.map.isEmpty());
    }
}

void tst_StateMap::readStateMap_ofAHostsTypeThatWantsTooMuch_isEmptyAndTellsSo()
{
    qRegisterMetaType<Greedy>();
    const Reading reading = read(mapOf(namedTypeBytes("Greedy")));
    QCOMPARE(reading.status, QDataStream::ReadCorruptData);
    QVERIFY(reading.map.isEmpty());
}

void tst_StateMap::readStateMap_ofDamage_isEmptyAndTellsSo_data()
{
    QTest::addColumn<QByteArray>("bytes");

    constexpr int deep = 100'000;
    const QByteArray oneKey = numberBytes(1) + textBytes(u"k"_qs);
    const QByteArray nothing = typeBytes(QMetaType::UnknownType);
    const QByteArray list = typeBytes(QMetaType::QVariantList);
    const QByteArray map = typeBytes(QMetaType::QVariantMap);
    const QByteArray hash = typeBytes(QMetaType::QVariantHash);
    const QByteArray pair = typeBytes(QMetaType::QVariantPair);
    QTest::newRow("deep lists") << mapOf(repeated(list + numberBytes(1), deep, nothing));
    QTest::newRow("deep maps") << mapOf(repeated(map + oneKey, deep, nothing));
    QTest::newRow("deep hashes") << mapOf(repeated(hash + oneKey, deep, nothing));
    QTest::newRow("deep pairs") << mapOf(repeated(pair, deep, nothing + nothing.repeated(deep)));
    QTest::newRow("deep lists by name") << mapOf(
        repeated(namedTypeBytes("QVariantList") + numberBytes(1), deep, nothing));
    QTest::newRow("deep lists by template")
        << mapOf(repeated(namedTypeBytes("QList<QVariant>") + numberBytes(1), deep, nothing));
    QTest::newRow("deep maps by name") << mapOf(repeated(namedTypeBytes("QVariantMap") + oneKey, deep, nothing));
    QTest::newRow("deep maps by template")
        << mapOf(repeated(namedTypeBytes("QMap<QString,QVariant>") + oneKey, deep, nothing));
    QTest::newRow("deep hashes by template")
        << mapOf(repeated(namedTypeBytes("QHash<QString,QVariant>") + oneKey, deep, nothing));
    QTest::newRow("deep pairs by template")
        << mapOf(repeated(namedTypeBytes("std::pair<QVariant,QVariant>"), deep, nothing + nothing.repeated(deep)));
    QTest::newRow("text format") << mapOf(typeBytes(QMetaType::QTextFormat) + numberBytes(1) + numberBytes(1)
                                          + numberBytes(7) + nothing);
    QTest::newRow("deep text formats") << mapOf(
        repeated(typeBytes(QMetaType::QTextFormat) + numberBytes(1) + numberBytes(1) + numberBytes(7), deep, nothing));
    QTest::newRow("text format by name") << mapOf(namedTypeBytes("QTextFormat") + numberBytes(1) + numberBytes(0));

    QTest::newRow("huge map") << numberBytes(hugeCount);
    QTest::newRow("huge list") << mapOf(list + numberBytes(hugeCount));
    QTest::newRow("huge list with a value") << mapOf(list + numberBytes(hugeCount) + boolValueBytes(true));
    QTest::newRow("huge inner map") << mapOf(map + numberBytes(hugeCount));
    QTest::newRow("huge hash") << mapOf(hash + numberBytes(hugeCount));
    QTest::newRow("huge key") << numberBytes(1) + numberBytes(0xfffffffe);
    QTest::newRow("key of half a character") << numberBytes(1) + numberBytes(3) + "abc" + boolValueBytes(true);
    QTest::newRow("huge byte array") << mapOf(typeBytes(QMetaType::QByteArray) + numberBytes(0xfffffffe));
    QTest::newRow("huge text") << mapOf(typeBytes(QMetaType::QString) + numberBytes(0xfffffffe));
    for (const QMetaType::Type type :
         {QMetaType::QStringList, QMetaType::QByteArrayList, QMetaType::QPolygon, QMetaType::QPolygonF,
          QMetaType::QBitArray, QMetaType::QFont, QMetaType::QImage, QMetaType::QRegion}) {
        for (const quint32 count : {0x7fffffffU, 0xfffffffeU, hugeCount}) {
            QTest::addRow("huge %s of %x", QMetaType(type).name(), count)
                << mapOf(typeBytes(quint32(type)) + numberBytes(count));
        }
    }
    for (const quint32 number : {255U, 5000U, 65535U, 65537U, 0x7fffffffU, 0x80000000U}) {
        QTest::addRow("type with the number %u", number)
            << mapBytes({{u"a"_qs, typeBytes(number)}, {u"b"_qs, boolValueBytes(true)}});
    }
    QTest::newRow("type with a negative number") << mapOf(typeBytes(0xffffffff) + QByteArray(16, '\1'));
    QTest::newRow("type that has no name") << mapOf(namedTypeBytes(""));
    QTest::newRow("type that nobody knows") << mapOf(namedTypeBytes("CNobodyKnowsThis") + QByteArray(16, '\1'));
    QTest::newRow("type that can't be stored") << mapOf(typeBytes(QMetaType::QObjectStar) + QByteArray(16, '\1'));
    QTest::newRow("huge name of a type") << mapOf(typeBytes(65536) + numberBytes(0xfffffffe));
}

void tst_StateMap::readStateMap_ofDamage_isEmptyAndTellsSo()
{
    QFETCH(const QByteArray, bytes);
    const Reading reading = read(bytes);
    QVERIFY(reading.map.isEmpty());
    QVERIFY(reading.status != QDataStream::Ok);
}

QTEST_MAIN(tst_StateMap)
#include "tst_StateMap.moc"
