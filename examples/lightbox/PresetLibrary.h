// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "LanguageTexts.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QStringList>

struct PresetParam
{
    QString name;
    QString value;
};

struct Preset
{
    /*! Three presets are no looks: the base of all others, and the corrections. They have no type. */
    bool isLook() const;

    QString id;
    QString type;
    QString version;
    LanguageTexts names;
    QStringList tags;
    QList<PresetParam> params;
    bool isExpert = false;
};

struct PresetNote
{
    QString id; // of the preset
    QString name;
    LanguageTexts titles;
    LanguageTexts descriptions; // HTML
};

/*! The presets and the notes on them, as the library carries them; read once. */
class CPresetLibrary final
{
public:
    explicit CPresetLibrary(const QString &presetsPath = QStringLiteral(":/presets/default.xml"),
                            const QString &notesPath = QStringLiteral(":/presets/presetInfo.xml"));

    /*! What is wrong with a file, in which line; then there is nothing of that file. Empty if all is well. */
    const QString &error() const;

    const QList<Preset> &presets() const;
    const QList<PresetNote> &notes() const;

    // Null if there is none.
    const Preset *preset(const QString &id) const;
    const PresetNote *note(const QString &id) const;

    /*! In \a language, or in English, or at last the id. */
    QString displayName(const QString &id, const QString &language) const;

    /*! Each tag with the number of presets that have it; the most used first. */
    QList<QPair<QString, int>> tagCounts() const;

private:
    void readPresets(const QString &path);
    void readNotes(const QString &path);

    QString m_error;
    QList<Preset> m_presets;
    QList<PresetNote> m_notes;
    QHash<QString, qsizetype> m_presetRows;
    QHash<QString, qsizetype> m_noteRows;
};
