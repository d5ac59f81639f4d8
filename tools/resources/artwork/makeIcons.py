#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Writes the icons of the user interface, as SVG files, into the folder given: makeIcons.py RESOURCES."""

import sys
from pathlib import Path

sys.dont_write_bytecode = True  # the source tree stays clean
sys.path.insert(1, str(Path(__file__).resolve().parents[1]))  # where "shared" is

import controls
import effects
import messages
import overlays
import sideBar
import toneCurves
import toolBar

GROUPS = (controls, effects, messages, overlays, sideBar, toneCurves, toolBar)


def all_files():
    """The text of each file by its path."""
    result = {}
    for group in GROUPS:
        files = group.files()
        assert not result.keys() & files.keys(), f"{group.__name__} draws what another group draws too"
        result |= files
    return result


def main(folder):
    for name, text in all_files().items():
        target = folder / name
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main(Path(sys.argv[1]))
