// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "hostExchange/PhotoshopDataStructure.h"

#include <QtCore/QStringList>

/*! A line for each entry, sorted by key: key, tag and its name, value. All of it can be shown on a terminal. */
QStringList linesOf(const ZYX_zglv6::PhotoshopDataStructure &record);

/*!
    Bytes of the data file that belong to none of the record's entries. There are some where damage made the reader give
    up, or where a key stood twice; load() does not tell.
*/
qint64 surplusBytes(const ZYX_zglv6::PhotoshopDataStructure &record, const QString &path);
