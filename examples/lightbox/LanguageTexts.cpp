// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "LanguageTexts.h"

#include "common/Look.h"

namespace {

constexpr QLatin1StringView english("en");

} // namespace

QString textIn(const LanguageTexts &texts, const QString &language)
{
    const QString text = texts.value(language);
    return text.isEmpty() ? texts.value(english) : text;
}

void addText(LanguageTexts &texts, QStringView name, QLatin1StringView field, const QString &text)
{
    if (name.startsWith(field) && name.size() > field.size() + 1 && name[field.size()] == u'_') {
        texts.insert(name.sliced(field.size() + 1).toString(), text);
    }
}

QString spokenLanguage()
{
    const QString language = loadedLanguageAbbreviation();
    return language.isEmpty() ? QString(english) : language;
}
