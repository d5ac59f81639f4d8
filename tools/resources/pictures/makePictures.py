#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Makes the PNG pictures of the look, and the SVG drawings with letters, in the folder of the icons.

Needs rsvg-convert. The same versions of it and of Python's zlib give the same bytes.
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True  # the source tree stays clean
sys.path.insert(1, str(Path(__file__).resolve().parents[1]))  # where "shared" is

import aboutStrip
import cursors
import frames
import panels
import printing
import sliders
import wordmarks

ROOMS = (aboutStrip, cursors, frames, panels, printing, sliders, wordmarks)


def write(path, data):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)


def main(folder):
    for room in ROOMS:
        for name, image in room.pictures():
            write(folder / name, image.png())
    for name, text in wordmarks.drawings():
        write(folder / name, text.encode())


if __name__ == "__main__":
    main(Path(sys.argv[1]))
