// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDataStream>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ZYX_zglv6 {

/*! Of all stored states, so that a later Qt reads what an earlier one wrote. It is Qt 6.4's own by default. */
constexpr QDataStream::Version stateStreamVersion = QDataStream::Qt_6_0;

/*!
    Reads what "stream << map" wrote, from a stream over bytes in memory. Of a damaged map the result is empty and the
    stream's status tells; Qt's own operator trusts the counts in it and follows nested values as deep as they go. For
    the same reason only plain values, values of types that are registered under a name, and lists and maps of such, 64
    deep at most, are read; any other type counts as damage. A registered type has a reader of its own, which must bear
    damaged bytes.
*/
QMap<QString, QVariant> readStateMap(QDataStream &stream);

} // namespace ZYX_zglv6
