// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "interfaces/StateMap_p.h"

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtGui/QColor>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using ZYX_zglv6::readStateMap;
using ZYX_zglv6::stateStreamVersion;

namespace {

using StateMap = QMap<QString, QVariant>;

void ignoreMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
    // Qt tells of each type that it does not know.
}

bool isByteArray(const QVariant &value)
{
    return value.typeId() == QMetaType::QByteArray;
}

/*! Whether no value in front of the first damage is of another type: then Qt's own operator is safe. */
bool holdsOnlyByteArrays(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(stateStreamVersion);
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString key;
        quint32 typeId = QMetaType::UnknownType;
        qint8 isNull = 0;
        QByteArray value;
        stream >> key >> typeId; // Qt goes on to the type behind a damaged key
        if (typeId != QMetaType::QByteArray && stream.status() != QDataStream::ReadPastEnd) {
            return false;
        }
        stream >> isNull >> value;
    }
    return true;
}

struct Reading
{
    StateMap map;
    QDataStream::Status status;
    qint64 end;
};

Reading readByQt(const QByteArray &bytes)
{
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

void check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argumentCount*/, char *** /*arguments*/)
{
    qInstallMessageHandler(ignoreMessage);
    check(QVariant(QColor()).metaType().hasRegisteredDataStreamOperators()); // Gui is loaded
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QDataStream stream(bytes);
    stream.setVersion(stateStreamVersion);
    const StateMap map = readStateMap(stream);
    if (stream.status() != QDataStream::Ok) {
        check(map.isEmpty());
    } else { // all counts are true, so Qt may read it; values are not compared, as some numbers do not equal themselves
        const Reading byQt = readByQt(bytes);
        check(byQt.status == QDataStream::Ok && byQt.end == stream.device()->pos() && byQt.map.keys() == map.keys());
    }
    if (holdsOnlyByteArrays(bytes)) {
        const Reading byQt = readByQt(bytes);
        check(byQt.map == map && byQt.status == stream.status());
    }
    if (std::all_of(map.begin(), map.end(), isByteArray)) {
        const Reading again = readByQt(written(map));
        check(again.map == map && again.status == QDataStream::Ok);
    }
    return 0;
}
