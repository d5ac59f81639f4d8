# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""The embedded data as the checks see it."""

import base64
import re
import subprocess
import tomllib
import xml.etree.ElementTree as ElementTree
from functools import cache, cached_property
from pathlib import Path

HERE = Path(__file__).resolve().parent

# Reads one chunk after another, each ended by a zero byte, and prints for each the numbers of its table "value".
LUA_READER = r"""
for chunk in io.read("a"):gmatch("([^\0]*)\0") do
    local env = {}
    local run = load(chunk, "table", "t", env)
    local ok = run and pcall(run) and type(env.value) == "table"
    local numbers = {}
    for _, number in ipairs(ok and env.value or {}) do
        numbers[#numbers + 1] = math.type(number) and string.format("%.17g", number) or "?"
    end
    print(ok and table.concat(numbers, " ") or "?")
end
"""


class Data:
    """The files below a folder of resources, each read when it is first asked for."""

    def __init__(self, resources: Path):
        self.presets_file = resources / "presets" / "default.xml"
        self.user_file = resources / "presets" / "agfaZPreset.preset"
        self.notes_file = resources / "presets" / "presetInfo.xml"
        self.history_file = resources / "timeMachine" / "decadesInfo.xml"
        self.catalogue_file = resources / "calibration" / "db" / "CAFList5.db"
        self.modules_folder = resources / "calibration" / "caf"

    @cached_property
    def presets(self):
        return ElementTree.parse(self.presets_file).getroot()

    @cached_property
    def user_preset(self):
        return ElementTree.parse(self.user_file).getroot()

    @cached_property
    def notes(self):
        return ElementTree.parse(self.notes_file).getroot()

    @cached_property
    def history(self):
        return ElementTree.parse(self.history_file).getroot()

    @cached_property
    def preset_ids(self) -> list:
        return [preset.get("id") for preset in self.presets]


def schema_faults(schema: str, file: Path) -> list:
    """What xmllint finds; a file that is not well-formed must not be read further."""
    run = subprocess.run(["xmllint", "--noout", "--nonet", "--relaxng", HERE / schema, file], capture_output=True,
                         text=True, encoding="utf-8", errors="replace")
    lines = run.stderr.strip().splitlines()
    return [f"{file.name}: {line}" for line in lines[:3]] if run.returncode else []


def text_faults(texts: dict) -> list:
    """For texts that are shown: {where: text}."""
    wrongs = {"'": "a straight apostrophe", '"': "a straight quotation mark", "  ": "two blanks", "<": "markup",
              "\ufffd": "a lost character"}
    found = []
    for where, text in texts.items():
        found += [f"{where}: {what}" for wrong, what in wrongs.items() if wrong in text]
        found += [f"{where}: a blank at an end"] if text != text.strip() else []
    return found


def french_faults(texts: dict) -> list:
    """Blanks before and within punctuation that would let a line break there: {where: text}."""
    wrong = re.compile("(?<!\u202f)[;!?]|(?<!\u00a0)[:»]|«(?!\u00a0)")
    return [f"{where}: the blank at {text[max(0, found.start() - 10):found.end() + 5]!r}"
            for where, text in texts.items() if (found := wrong.search(text))]


def decoded(text: str):
    """The text behind Base64; None if it is none."""
    try:
        return base64.b64decode(text, validate=True).decode("utf-8")
    except ValueError:
        return None


@cache
def labels() -> dict:
    """The labels of notes by key and language."""
    return tomllib.loads((HERE.parent / "presets" / "labels.toml").read_text(encoding="utf-8"))


@cache
def vocabulary() -> dict:
    return tomllib.loads((HERE / "parameters.toml").read_text(encoding="utf-8"))


def lua_tables(texts: list) -> list:
    """The numbers of each text as Lua reads them; None for one that is no table of numbers."""
    run = subprocess.run(["lua5.4", "-e", LUA_READER], input="".join(text + "\0" for text in texts).encode("utf-8"),
                         capture_output=True, check=True)
    lines = run.stdout.decode("ascii").split("\n")[:-1]
    return [None if "?" in line else [float(number) for number in line.split()] for line in lines]
