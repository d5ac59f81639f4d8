// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/soap/QtSoapType.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

/*! The answer of a photo service to a request; for the four operations that the clients call. */
QByteArray photoAnswer(const QByteArray &body);

// What came back, to compare.

QList<int> numbersIn(const ZYX_zglv6::QtSoapType &list);

/*! "name, width x height, isColour". */
QString described(const ZYX_zglv6::QtSoapType &photo);

/*! Names and values, such as "add(first=1 second=2)". */
QString outline(const ZYX_zglv6::QtSoapType &item);
