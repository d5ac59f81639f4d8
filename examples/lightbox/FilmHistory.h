// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "LanguageTexts.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

struct HistoryEvent
{
    int id = 0;
    QString image; // the name of a file that is not with the program
    QString thumbnail;
    QString copyright;
    QStringList films; // ids of presets to try; there may be none
    LanguageTexts titles;
    LanguageTexts descriptions;
};

struct Decade
{
    /*! The translated one if there is one, else the name. */
    QString label(const QString &language) const;

    int id = 0;
    QString name;
    LanguageTexts names;
    QStringList films; // ids of presets, in the order in which they are shown
    QList<HistoryEvent> events;
};

/*! The history of photography by decades, as the library carries it; read once. */
class CFilmHistory final
{
public:
    explicit CFilmHistory(const QString &path = QStringLiteral(":/timeMachine/decadesInfo.xml"));

    /*! What is wrong with the file, in which line; then there are no decades. Empty if all is well. */
    const QString &error() const;

    const QList<Decade> &decades() const;

private:
    QString m_error;
    QList<Decade> m_decades;
};
