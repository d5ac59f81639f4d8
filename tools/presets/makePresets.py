#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Makes the preset files from the sources beside this script.

Usage: makePresets.py [folder]

    order.txt       the ids in the order of the file
    looks/*.toml    names, tags and parameters
    notes/ID/*.txt  what is told about a film or look, a file for each language
    labels.toml     the labels in the head of a note
    user.toml       the preset in the form that a user's own has

Standard library only. Unchanged sources give unchanged bytes.
"""

import base64
import html
import sys
import tomllib
from functools import cache
from pathlib import Path

HERE = Path(__file__).resolve().parent
DEFAULT_OUTPUT = HERE.parents[1] / "resources" / "presets"

NAME_LANGUAGES = ["en", "fr", "de", "ja", "zh_CN"]
NOTE_LANGUAGES = ["en", "fr", "ja", "de", "zh_CN"]
NO_LOOKS = ["default", "autoCorrection", "noCorrection"]

# Left from tests of the note panel, as (title, description) in every language; they stay.
LEFTOVER_NOTES = {"default": ("11", "not bold <b> bold <\\b>"), "autoCorrection": ("22", "222"),
                  "noCorrection": ("", "")}


@cache
def read_labels() -> dict:
    return tomllib.loads((HERE / "labels.toml").read_text(encoding="utf-8"))


def read_looks() -> dict:
    looks = {}
    for path in sorted((HERE / "looks").glob("*.toml")):
        for preset, look in tomllib.loads(path.read_text(encoding="utf-8")).items():
            if preset in looks:
                raise SystemExit(f"{path.name}: {preset} stands in another file, too")
            looks[preset] = look
    return looks


def display_name(look: dict, language: str) -> str:
    return look["name"].get(language, look["name"]["en"])


def number_list(values: list) -> str:
    """A table of the parameter grammar: on one line, or with a line for each pair of a curve of three and more."""
    if not isinstance(values[0], list):
        return "value={" + ",".join(map(str, values)) + ",}"
    lines = [", ".join(map(str, pair)) + "," for pair in values]
    if len(lines) == 2:
        return "value = { " + " ".join(lines) + " }"
    return "value = {\n" + "".join(f"\t{line}\n" for line in lines) + "}\n"


def text_of(value) -> str:
    if isinstance(value, bool):
        return "true" if value else "false"
    return number_list(value) if isinstance(value, list) else str(value)


def quoted(text: str) -> str:
    """An attribute value; line ends and tabs as references, or a reader would take them for blanks."""
    escaped = html.escape(text, quote=False).replace('"', "&quot;")
    return '"' + escaped.replace("\n", "&#10;").replace("\t", "&#9;") + '"'


def attributes(values: dict) -> str:
    return "".join(f" {name}={quoted(value)}" for name, value in values.items())


def preset_attributes(preset: str, look: dict) -> dict:
    values = {"id": preset}
    if preset in NO_LOOKS:
        return values
    values["name"] = preset
    values |= {f"name_{language}": display_name(look, language) for language in NAME_LANGUAGES}
    values["type"] = "Buildin"
    if look.get("expert"):
        values["expert"] = "true"
    if "version" in look:
        values["version"] = str(look["version"])
    return values


def preset_element(preset: str, look: dict) -> list:
    lines = [f"  <Preset{attributes(preset_attributes(preset, look))}>"]
    if "tags" in look:
        lines += ["    <Tags>", *(f"      <Tag name={quoted(tag)} />" for tag in look["tags"]), "    </Tags>"]
    lines += [f"    <Param{attributes({'name': name, 'value': text_of(value)})} />"
              for name, value in look["params"].items()]
    return [*lines, "  </Preset>"]


def default_xml(order: list, looks: dict) -> str:
    lines = ['<?xml version="1.0" encoding="UTF-8" ?>', "<Presets>"]
    for preset in order:
        lines += preset_element(preset, looks[preset])
    return "\ufeff" + "".join(line + "\r\n" for line in [*lines, "</Presets>"])


def user_preset(source: dict) -> str:
    head = '<?xml version="1.0" encoding="UTF-8"?><!DOCTYPE Zyx_Preset>'
    preset = attributes({"id": source["id"], "name": source["name"]})
    params = [f"  <Param{attributes({'value': text_of(value), 'name': name})}/>"
              for name, value in source["params"].items()]
    return "\n".join([head, "<Presets>", f" <Preset{preset}>", *params, " </Preset>", "</Presets>"]) + "\n"


def description(path: Path, language: str) -> str:
    """The HTML of a note: the head's labelled lines, then a paragraph for each of the text's."""
    labels = read_labels()
    head, *paragraphs = path.read_text(encoding="utf-8").strip().split("\n\n")
    lines = []
    for line in head.split("\n"):
        key, _, value = line.partition(": ")
        if key not in labels or not value:
            raise SystemExit(f"{path}: this line of the head is none: {line}")
        lines.append(labels[key][language] + html.escape(value, quote=False))
    return "<br/>".join(lines) + "".join(f"<p>{html.escape(text, quote=False)}</p>" for text in paragraphs)


def element(name: str, text: str) -> str:
    return f"    <{name}>{html.escape(text, quote=False)}</{name}>" if text else f"    <{name}/>"


def encoded(text: str) -> str:
    return base64.b64encode(text.encode("utf-8")).decode("ascii")


def note_texts(preset: str, looks: dict) -> tuple:
    """(name, titles, descriptions) of a note."""
    if preset in LEFTOVER_NOTES:
        title, text = LEFTOVER_NOTES[preset]
        return preset, dict.fromkeys(NOTE_LANGUAGES, title), dict.fromkeys(NOTE_LANGUAGES, text)
    look = looks[preset]
    titles = {language: display_name(look, language) for language in NOTE_LANGUAGES}
    folder = HERE / "notes" / preset
    texts = {language: description(folder / f"{language}.txt", language) for language in NOTE_LANGUAGES}
    return look["name"]["en"], titles, texts


def preset_info_xml(order: list, looks: dict) -> str:
    lines = ["<presets>"]
    for preset in order:
        if preset not in LEFTOVER_NOTES and not (HERE / "notes" / preset).is_dir():
            continue
        name, titles, texts = note_texts(preset, looks)
        lines.append(f"  <preset{attributes({'id': preset, 'name': name})}>")
        lines += [element(f"title_{language}", title) for language, title in titles.items()]
        lines += [element(f"description_{language}", encoded(text)) for language, text in texts.items()]
        lines.append("  </preset>")
    return "\n".join([*lines, "</presets>"]) + "\n"


def write(folder: Path) -> None:
    folder.mkdir(parents=True, exist_ok=True)
    order = (HERE / "order.txt").read_text(encoding="utf-8").split("\n")[:-1]
    looks = read_looks()
    if set(order) != set(looks):
        raise SystemExit(f"in order.txt or in looks/ alone: {sorted(set(order) ^ set(looks))}")
    strays = {path.name for path in (HERE / "notes").iterdir()} - set(order)
    if strays:
        raise SystemExit(f"notes of no preset: {sorted(strays)}")
    user = tomllib.loads((HERE / "user.toml").read_text(encoding="utf-8"))
    for name, text in {"default.xml": default_xml(order, looks), "presetInfo.xml": preset_info_xml(order, looks),
                       "agfaZPreset.preset": user_preset(user)}.items():
        (folder / name).write_bytes(text.encode("utf-8"))


if __name__ == "__main__":
    write(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_OUTPUT)
