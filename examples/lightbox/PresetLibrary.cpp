// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PresetLibrary.h"

#include "XmlFile.h"

#include <QtCore/QXmlStreamReader>

#include <algorithm>

namespace {

constexpr QLatin1StringView idName("id");
constexpr QLatin1StringView nameName("name");

QStringList readTags(QXmlStreamReader &xml)
{
    QStringList tags;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"Tag") {
            tags.append(requiredAttribute(xml, nameName));
        }
        xml.skipCurrentElement();
    }
    return tags;
}

/*! An empty value is one: nothing chosen. */
PresetParam readParam(QXmlStreamReader &xml)
{
    PresetParam param{requiredAttribute(xml, nameName), xml.attributes().value(u"value"_qs).toString()};
    xml.skipCurrentElement();
    return param;
}

Preset readPreset(QXmlStreamReader &xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    Preset preset;
    preset.id = requiredAttribute(xml, idName);
    preset.type = attributes.value(u"type"_qs).toString();
    preset.version = attributes.value(u"version"_qs).toString();
    preset.names = namesOf(xml);
    preset.isExpert = attributes.value(u"expert"_qs) == u"true";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"Param") {
            preset.params.append(readParam(xml));
        } else if (xml.name() == u"Tags") {
            preset.tags += readTags(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    return preset;
}

void readField(QXmlStreamReader &xml, PresetNote &note)
{
    const QString field = xml.name().toString();
    if (field.startsWith(u"description_")) {
        addText(note.descriptions, field, QLatin1StringView("description"), readBase64Text(xml));
    } else {
        addText(note.titles, field, QLatin1StringView("title"),
                xml.readElementText(QXmlStreamReader::SkipChildElements));
    }
}

PresetNote readNote(QXmlStreamReader &xml)
{
    PresetNote note;
    note.id = requiredAttribute(xml, idName);
    note.name = xml.attributes().value(nameName).toString();
    while (xml.readNextStartElement()) {
        readField(xml, note);
    }
    return note;
}

} // namespace

bool Preset::isLook() const
{
    return !type.isEmpty();
}

CPresetLibrary::CPresetLibrary(const QString &presetsPath, const QString &notesPath)
{
    readPresets(presetsPath);
    readNotes(notesPath);
}

void CPresetLibrary::readPresets(const QString &path)
{
    const QString error = readXmlFile(path, QLatin1StringView("Presets"), [this](QXmlStreamReader &xml) {
        if (xml.name() == u"Preset") {
            m_presets.append(readPreset(xml));
            m_presetRows.insert(m_presets.constLast().id, m_presets.size() - 1);
        } else {
            xml.skipCurrentElement();
        }
    });
    if (!error.isEmpty()) {
        m_presets.clear();
        m_presetRows.clear();
        m_error = error;
    }
}

void CPresetLibrary::readNotes(const QString &path)
{
    const QString error = readXmlFile(path, QLatin1StringView("presets"), [this](QXmlStreamReader &xml) {
        if (xml.name() == u"preset") {
            m_notes.append(readNote(xml));
            m_noteRows.insert(m_notes.constLast().id, m_notes.size() - 1);
        } else {
            xml.skipCurrentElement();
        }
    });
    if (!error.isEmpty()) {
        m_notes.clear();
        m_noteRows.clear();
        m_error += m_error.isEmpty() ? error : QString(u'\n' + error);
    }
}

const QString &CPresetLibrary::error() const
{
    return m_error;
}

const QList<Preset> &CPresetLibrary::presets() const
{
    return m_presets;
}

const QList<PresetNote> &CPresetLibrary::notes() const
{
    return m_notes;
}

const Preset *CPresetLibrary::preset(const QString &id) const
{
    const auto row = m_presetRows.constFind(id);
    return row == m_presetRows.cend() ? nullptr : &m_presets.at(*row);
}

const PresetNote *CPresetLibrary::note(const QString &id) const
{
    const auto row = m_noteRows.constFind(id);
    return row == m_noteRows.cend() ? nullptr : &m_notes.at(*row);
}

QString CPresetLibrary::displayName(const QString &id, const QString &language) const
{
    const Preset *found = preset(id);
    const QString name = found == nullptr ? QString() : textIn(found->names, language);
    return name.isEmpty() ? id : name;
}

QList<QPair<QString, int>> CPresetLibrary::tagCounts() const
{
    QMap<QString, int> counts;
    for (const Preset &preset : m_presets) {
        for (const QString &tag : preset.tags) {
            ++counts[tag];
        }
    }
    QList<QPair<QString, int>> sorted;
    for (auto tag = counts.cbegin(); tag != counts.cend(); ++tag) {
        sorted.append({tag.key(), tag.value()});
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto &left, const auto &right) { return left.second > right.second; });
    return sorted;
}
