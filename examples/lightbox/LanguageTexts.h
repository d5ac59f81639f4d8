// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

/*! One text in several languages, by the abbreviation of each ("zh_CN"). */
using LanguageTexts = QMap<QString, QString>;

/*! The one in \a language; in English if that is missing or empty. */
QString textIn(const LanguageTexts &texts, const QString &language);

/*! Adds \a text if \a name is \a field, "_" and a language, such as "title_en". */
void addText(LanguageTexts &texts, QStringView name, QLatin1StringView field, const QString &text);

/*! The language that the program's texts are in; "en" if none could be loaded. */
QString spokenLanguage();
