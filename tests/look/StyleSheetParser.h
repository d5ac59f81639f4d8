// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace StyleSheets {

struct Declaration
{
    QString property;
    QString value;

    bool operator==(const Declaration &) const = default;
};

struct Rule
{
    QStringList selectors;
    QList<Declaration> declarations;
};

struct Sheet
{
    QList<Rule> rules;
    QStringList errors;
};

/*! The names of the sheets of the product, without folder and ending. */
QStringList sheetNames();

/*! The text of an embedded sheet. */
QString sheetText(const QString &name);

/*!
    Reads a sheet, and tells what Qt would not take or silently pass over: anything but rules and comments, selectors
    and properties that it does not know, values that end unclosed, colours that are none.
*/
Sheet parse(const QString &text);

/*! The value of a property that holds in the end for exactly \a selector within one sheet; null if it has none. */
QString valueOf(const Sheet &sheet, const QString &selector, const QString &property);

} // namespace StyleSheets
