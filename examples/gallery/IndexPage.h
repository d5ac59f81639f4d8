// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

/*! An exhibit as the page names it. */
struct IndexEntry
{
    QString name; // as in the pictures' names
    QString title;
};

/*!
    Writes "index.html" into \a folder, a page that shows all pictures that lie there, of every run: the languages
    beside each other, by kind, exhibit, ratio and direction; in the order of \a entries, and then those that they
    do not name. It needs no script. False if it can't be written.
*/
bool writeIndexPage(const QString &folder, const QList<IndexEntry> &entries);
