// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

struct CatalogueEntry
{
    QString context;
    QString source;
    QString comment;
    QString type; // empty if it is finished and in use
    bool isPlural = false;
    QStringList translations; // more than one in a plural
};

/*! What is in \a path, the source of a catalogue; none if it can't be read. */
QList<CatalogueEntry> catalogueEntriesOf(const QString &path);
