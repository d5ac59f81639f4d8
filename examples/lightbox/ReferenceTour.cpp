// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceTour.h"

#include "FilmHistory.h"
#include "PresetLibrary.h"

#include <QtGui/QTextDocumentFragment>

#include <algorithm>

namespace {

constexpr QLatin1StringView language("en"); // in which the tour is told

} // namespace

QString tourPresets(const CPresetLibrary &library)
{
    if (!library.error().isEmpty()) {
        return library.error();
    }
    const QList<Preset> &presets = library.presets();
    const auto looks = std::count_if(presets.cbegin(), presets.cend(), [](const Preset &p) { return p.isLook(); });
    const auto experts = std::count_if(presets.cbegin(), presets.cend(), [](const Preset &p) { return p.isExpert; });
    return u"%1, of which %2 are looks and %3 are for experts; %4 notes"_qs.arg(
        QString::number(presets.size()), QString::number(looks), QString::number(experts),
        QString::number(library.notes().size()));
}

QString tourTags(const CPresetLibrary &library)
{
    QStringList tags;
    for (const auto &[tag, count] : library.tagCounts()) {
        tags.append(u"%1 %2"_qs.arg(tag, QString::number(count)));
    }
    return tags.join(u", "_qs);
}

QString tourNote(const CPresetLibrary &library)
{
    for (const Preset &preset : library.presets()) {
        const PresetNote *note = preset.isLook() ? library.note(preset.id) : nullptr;
        if (note != nullptr) {
            const QString text = QTextDocumentFragment::fromHtml(textIn(note->descriptions, language)).toPlainText();
            return u"%1: %2"_qs.arg(note->name, text.section(u'\n', 0, 0));
        }
    }
    return u"there is none"_qs;
}

QString tourHistory(const CFilmHistory &history)
{
    if (!history.error().isEmpty()) {
        return history.error();
    }
    const QList<Decade> &decades = history.decades();
    qsizetype films = 0;
    qsizetype events = 0;
    for (const Decade &decade : decades) {
        films += decade.films.size();
        events += decade.events.size();
    }
    return u"%1 decades from \"%2\" to \"%3\" with %4 films and %5 events"_qs.arg(
        QString::number(decades.size()), decades.value(0).label(language),
        decades.value(decades.size() - 1).label(language), QString::number(films), QString::number(events));
}
