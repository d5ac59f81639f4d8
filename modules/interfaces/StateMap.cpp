// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "interfaces/StateMap_p.h"

#include <QtCore/QHash>
#include <QtCore/QIODevice>
#include <QtCore/QList>
#include <QtCore/QMetaType>

#include <new>

namespace ZYX_zglv6 {

namespace {

constexpr int deepestNesting = 64; // far more than a state has, far less than a stack bears

QVariant readValue(QDataStream &stream, int depth);

/*! What a QVariant has in front of its value. Numbers of types that a program registers count in that program alone. */
int readTypeId(QDataStream &stream)
{
    quint32 typeId = QMetaType::UnknownType;
    qint8 isNull = 0;
    stream >> typeId >> isNull;
    if (typeId != QMetaType::User) {
        return typeId < QMetaType::User ? int(typeId) : -1;
    }
    QByteArray name;
    stream >> name;
    return QMetaType::fromName(name).id();
}

/*! Grows with what is there: the count may lie. */
template <typename Element, typename Read>
QVariant readList(QDataStream &stream, const Read &readElement)
{
    quint32 count = 0;
    stream >> count;
    QList<Element> list;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        list.append(readElement());
    }
    return QVariant::fromValue(list);
}

/*! A QStringList or QByteArrayList. */
template <typename Text>
QVariant readTexts(QDataStream &stream)
{
    return readList<Text>(stream, [&stream] {
        Text text;
        stream >> text;
        return text;
    });
}

template <typename Map>
Map readMap(QDataStream &stream, int depth)
{
    quint32 count = 0;
    stream >> count;
    Map map;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString key;
        stream >> key;
        if (stream.status() == QDataStream::Ok) {
            map.insert(key, readValue(stream, depth));
        }
    }
    return map;
}

/*! Types whose readers do with any bytes; some of Qt's own trust what they read, or go as deep as it leads them. */
bool isPlain(int typeId)
{
    switch (typeId) {
    case QMetaType::UnknownType: // an invalid value
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
    case QMetaType::QChar:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
    case QMetaType::QUrl:
    case QMetaType::QUuid:
    case QMetaType::QPoint:
    case QMetaType::QPointF:
    case QMetaType::QSize:
    case QMetaType::QSizeF:
    case QMetaType::QRect:
    case QMetaType::QRectF:
    case QMetaType::QLine:
    case QMetaType::QLineF:
    case QMetaType::QColor:
        return true;
    default:
        return typeId > QMetaType::User; // registered, with a reader of its own
    }
}

QVariant readPlainValue(QDataStream &stream)
{
    QVariant value;
    try {
        stream >> value;
    } catch (const std::bad_alloc &) { // a registered type that believes a count
        stream.setStatus(QDataStream::ReadCorruptData);
    }
    return value;
}

QVariant readPair(QDataStream &stream, int depth)
{
    const QVariant first = readValue(stream, depth);
    const QVariant second = readValue(stream, depth);
    return QVariant::fromValue(QVariantPair(first, second));
}

QVariant readValue(QDataStream &stream, int depth)
{
    const qint64 start = stream.device()->pos();
    const int typeId = readTypeId(stream);
    if (isPlain(typeId)) {
        stream.device()->seek(start);
        return readPlainValue(stream);
    }
    if (typeId == QMetaType::QStringList) {
        return readTexts<QString>(stream);
    }
    if (typeId == QMetaType::QByteArrayList) {
        return readTexts<QByteArray>(stream);
    }
    if (depth < deepestNesting && typeId == QMetaType::QVariantList) {
        return readList<QVariant>(stream, [&] { return readValue(stream, depth + 1); });
    }
    if (depth < deepestNesting && typeId == QMetaType::QVariantMap) {
        return readMap<QVariantMap>(stream, depth + 1);
    }
    if (depth < deepestNesting && typeId == QMetaType::QVariantHash) {
        return readMap<QVariantHash>(stream, depth + 1);
    }
    if (depth < deepestNesting && typeId == QMetaType::QVariantPair) {
        return readPair(stream, depth + 1);
    }
    stream.setStatus(QDataStream::ReadCorruptData);
    return {};
}

} // namespace

QMap<QString, QVariant> readStateMap(QDataStream &stream)
{
    const auto map = readMap<QMap<QString, QVariant>>(stream, 0);
    return stream.status() == QDataStream::Ok ? map : QMap<QString, QVariant>();
}

} // namespace ZYX_zglv6
