// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "look/StyleSheetParser.h"

#include <QtTest/QTest>

// Data rows of values in the sheets, for the tests of all of them.
namespace StyleSheets {

inline void addValueColumns()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");
}

/*! One row: the sheet in which a rule of exactly this selector has this value. */
inline void must(const char *sheet, const QString &selector, const char *property, const QString &value)
{
    QTest::addRow("%s, %s, %s", sheet, qPrintable(selector), property)
        << QString::fromLatin1(sheet) << selector << QString::fromLatin1(property) << value;
}

/*! Holds the current row against its sheet. */
inline void verifyValue()
{
    QFETCH(const QString, sheet);
    QFETCH(const QString, selector);
    QFETCH(const QString, property);
    QFETCH(const QString, value);
    QCOMPARE(valueOf(parse(sheetText(sheet)), selector, property), value);
}

} // namespace StyleSheets
