// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

// Columns of the model of languages.
inline constexpr int languageNameColumn = 0;
inline constexpr int languageAbbreviationColumn = 3;

/*!
    What an application object needs for the product's look, in the order that binds: fonts, texts, icon, style. After
    it exists, and before any window does; a window still gets its style sheet by itself. \a language becomes the chosen
    one if it is not empty; one that is not there is told and changes nothing.
*/
void putOnLook(const QString &language);

/*! The language that the texts are in, as its speakers call it; "the source's language" if none could be loaded. */
QString loadedLanguageName();

/*! Its abbreviation, not that of the language chosen for the next start; empty if none could be loaded. */
QString loadedLanguageAbbreviation();
