# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""presetInfo.xml: which presets have a note, and the HTML of the notes."""

import html
import re
from collections import Counter
from html.parser import HTMLParser

import presetCheck
import readers

NOTES = 139
WITHOUT_NOTE_BESIDE_HISTORY = 12
LANGUAGES = ["en", "fr", "ja", "de", "zh_CN"]
SHARED_NAME = "Pastel"
LEFTOVERS = {"default": ("11", "not bold <b> bold <\\b>"), "autoCorrection": ("22", "222"), "noCorrection": ("", "")}
HEADS = [
    ["Creator", "Type", "First produced", "End of production"],
    ["Creator", "Type", "Creation year", "Year discontinued"],
    ["Creator", "Type", "Creation date", "Date discontinued"],  # of one note
]
NOTES_WITH_DATES = 1
SHORTEST_PARAGRAPH = 30


class Fragment(HTMLParser):
    """An HTML fragment: bold labels and line breaks, then paragraphs; `faults` says what else was met."""

    def __init__(self, text: str):
        super().__init__(convert_charrefs=True)
        self.paragraphs, self.faults = [], []
        self._open = []
        if re.search(r"&(?!(amp|lt|gt|quot|#\d+);)", text):
            self.faults.append("an ampersand that is no reference")
        self.feed(text)
        self.close()
        self.faults += [f"<{tag}> is not closed" for tag in self._open]

    def handle_starttag(self, tag, attrs):
        if tag not in ("b", "p") or attrs or self._open:
            self.faults.append(f"<{tag}> is not expected here")
            return
        if tag == "b" and self.paragraphs:
            self.faults.append("a label after the text")
        self._open.append(tag)
        if tag == "p":
            self.paragraphs.append("")

    def handle_startendtag(self, tag, attrs):
        if tag != "br" or attrs or self._open or self.paragraphs:
            self.faults.append(f"<{tag}/> is not expected here")

    def handle_endtag(self, tag):
        if self._open != [tag]:
            self.faults.append(f"</{tag}> is not expected here")
        self._open = self._open[:-1]

    def handle_data(self, data):
        if self._open == ["p"]:
            self.paragraphs[-1] += data
        elif self.paragraphs and not self._open:
            self.faults.append("text between the paragraphs")


def faults(data) -> list:
    found = readers.schema_faults("presetInfo.rng", data.notes_file)
    if found:
        return found
    if data.notes_file.read_bytes().startswith(b"<?xml"):
        found.append("presetInfo.xml: begins with a declaration")
    found += link_faults(data) + name_faults(data)
    for note in data.notes:
        check = leftover_faults if note.get("id") in LEFTOVERS else note_faults
        found += [f"note of {note.get('id')}: {fault}" for fault in check(note)]
    dates = sum("<b>Creation date:</b>" in (description(note, "en") or "") for note in data.notes)
    return found + ([f"presetInfo.xml: {dates} notes with dates"] if dates != NOTES_WITH_DATES else [])


def description(note, language: str):
    return readers.decoded(note.findtext(f"description_{language}") or "")


def type_of(note) -> str:
    """What the English head tells as its type, in small letters."""
    found = re.search("<b>Type:</b> ([^<]*)", description(note, "en") or "")
    return found[1].lower() if found else ""


def link_faults(data) -> list:
    ids = [note.get("id") for note in data.notes]
    found = [f"presetInfo.xml: a note of {note}, which is no preset" for note in ids if note not in data.preset_ids]
    found += [f"presetInfo.xml: {count} notes of {note}" for note, count in Counter(ids).items() if count > 1]
    if len(ids) != NOTES:
        found.append(f"presetInfo.xml: {len(ids)} notes, not {NOTES}")
    history = {preset for preset in data.preset_ids if presetCheck.HISTORY_ID.fullmatch(preset)}
    found += [f"presetInfo.xml: a note of {note}, a history preset" for note in ids if note in history]
    without = set(data.preset_ids) - set(ids) - history
    if len(without) != WITHOUT_NOTE_BESIDE_HISTORY:
        found.append(f"presetInfo.xml: {len(without)} presets without a note beside the history presets")
    return found


def name_faults(data) -> list:
    names = {preset.get("id"): preset for preset in data.presets}
    found = []
    for note in data.notes:
        preset = names.get(note.get("id"))
        if preset is None or note.get("id") in LEFTOVERS:
            continue
        if note.get("name") != preset.get("name_en"):
            found.append(f"note of {note.get('id')}: its name is not that of the preset")
        found += [f"note of {note.get('id')}: its title is not the name in {language}" for language in LANGUAGES
                  if note.findtext(f"title_{language}") != preset.get(f"name_{language}")]
        kind, tags = type_of(note), presetCheck.tags_of(preset)
        if ("black and white" in kind.replace("-", " ")) != ("B&W" in tags):
            found.append(f"note of {note.get('id')}: black and white by its type or by its tag alone")
        found += [f"note of {note.get('id')}: a {word} by its type alone" for word in ("slide", "negative")
                  if word in kind and word.capitalize() not in tags]
    counts = Counter(note.get("name") for note in data.notes)
    shared = {name: count for name, count in counts.items() if count > 1}
    return found + ([f"presetInfo.xml: names of several notes: {shared}"] if shared != {SHARED_NAME: 2} else [])


def leftover_faults(note) -> list:
    title, text = LEFTOVERS[note.get("id")]
    return [f"{language} is not as it was left" for language in LANGUAGES
            if (note.findtext(f"title_{language}"), description(note, language)) != (title, text)]


def note_faults(note) -> list:
    found, lengths, heads = [], [], []
    for language in LANGUAGES:
        text = description(note, language)
        if text is None:
            found.append(f"{language}: not UTF-8 in Base64")
            continue
        fragment = Fragment(text)
        values = head_values(text, language)
        texts = {f"{language}, line {number} of the head": value for number, value in enumerate(values, 1)}
        texts |= {f"{language}, paragraph {number}": value for number, value in enumerate(fragment.paragraphs, 1)}
        found += [f"{language}: {fault}" for fault in fragment.faults]
        found += readers.text_faults(texts) + (readers.french_faults(texts) if language == "fr" else [])
        if not fragment.paragraphs or min(map(len, fragment.paragraphs)) < SHORTEST_PARAGRAPH:
            found.append(f"{language}: a paragraph is missing or short")
        if not values:
            found.append(f"{language}: the head is not four labelled lines: {text[:text.find('<p>')]}")
        lengths.append(len(fragment.paragraphs))
        heads.append(head_of(text, language))
    if len(set(lengths)) > 1:
        found.append(f"the languages differ in paragraphs: {lengths}")
    if len(set(heads)) > 1:
        found.append("the languages differ in their heads")
    return found


def head_values(text: str, language: str) -> list:
    """What stands behind the labels of a head; none if it is another."""
    head = text[:max(text.find("<p>"), 0)]
    for keys in HEADS:
        lines = "<br/>".join(re.escape(readers.labels()[key][language]) + "([^<>]+)" for key in keys)
        if found := re.fullmatch(lines, head):
            return [html.unescape(value) for value in found.groups()]
    return []


def head_of(text: str, language: str) -> int:
    """Which of the heads it is; -1 if none."""
    labels = [readers.labels()[keys[2]][language] for keys in HEADS]
    return next((number for number, label in enumerate(labels) if "<br/>" + label in text), -1)


def figures(data) -> list:
    texts = {language: "".join("".join(Fragment(description(note, language) or "").paragraphs) for note in data.notes
                               if note.get("id") not in LEFTOVERS) for language in LANGUAGES}
    return [f"notes       {len(data.notes)}; characters of text: "
            + ", ".join(f"{language} {len(text)}" for language, text in texts.items())]
