#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Makes the film history decadesInfo.xml from the sources beside this script.

Usage: makeDecades.py [output]

    decades.toml      the decades with their films, and the events with picture credits and presets
    events/NN/*.txt   title and story of an event, a file for each language

Standard library only. Unchanged sources give unchanged bytes.
"""

import html
import sys
import tomllib
from pathlib import Path

HERE = Path(__file__).resolve().parent
DEFAULT_OUTPUT = HERE.parents[1] / "resources" / "timeMachine" / "decadesInfo.xml"

LANGUAGES = ["fr", "en", "de", "ja", "zh_CN"]
FIRST_EVENT_AFTER_THE_GAP = 62  # there is no picture 123


def quoted(text: str) -> str:
    return '"' + html.escape(text, quote=False).replace('"', "&quot;") + '"'


def element(name: str, text: str, indent: int) -> str:
    return f"{' ' * indent}<{name}>{html.escape(text, quote=False)}</{name}>"


def picture_number(event: int) -> int:
    return 2 * event + (1 if event >= FIRST_EVENT_AFTER_THE_GAP else -1)


def title_and_story(event: int, language: str) -> tuple:
    path = HERE / "events" / f"{event:02}" / f"{language}.txt"
    title, *rest = path.read_text(encoding="utf-8").rstrip("\n").split("\n")
    if not title or len(rest) != 2 or rest[0] or not rest[1]:
        raise SystemExit(f"{path}: a title, an empty line and a story of one paragraph are expected")
    return title, rest[1]


def film_list(name: str, films: list, indent: int) -> list:
    blanks = " " * indent
    return [f"{blanks}<{name}>", *(f"{blanks}  <film name={quoted(film)} />" for film in films), f"{blanks}</{name}>"]


def event_element(event: dict) -> list:
    number = picture_number(event["id"])
    texts = {language: title_and_story(event["id"], language) for language in LANGUAGES}
    lines = [f'      <event id="{event["id"]}">', element("image", f"{number}.jpg", 8),
             element("thumbnail", f"{number}-thumb.jpg", 8)]
    if "films" in event:
        lines += film_list("event_films", event["films"], 8)
    lines.append(element("copyright", event["credit"], 8))
    lines += [element(f"title_{language}", title, 8) for language, (title, _) in texts.items()]
    lines += [element(f"description_{language}", story, 8) for language, (_, story) in texts.items()]
    return [*lines, "      </event>"]


def decade_element(number: int, decade: dict) -> list:
    names = "".join(f" {name}={quoted(value)}" for name, value in decade.items() if name.startswith("name"))
    lines = [f'  <decade id="{number}"{names}>', *film_list("decade_films", decade["films"], 4), "    <events>"]
    for event in decade["event"]:
        lines += event_element(event)
    return [*lines, "    </events>", "  </decade>"]


def write(path: Path) -> None:
    decades = tomllib.loads((HERE / "decades.toml").read_text(encoding="utf-8"))["decade"]
    lines = ["<?xml version='1.0' encoding='utf-8'?>", "<decades>"]
    for number, decade in enumerate(decades, 1):
        lines += decade_element(number, decade)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes("".join(line + "\n" for line in [*lines, "</decades>"]).encode("utf-8"))


if __name__ == "__main__":
    write(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_OUTPUT)
