#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Renders PNG sheets of all icons for a look at them: contactSheet.py RESOURCES OUTPUT.

One sheet for each folder, one row for each family; every icon at 16, 24 and 32 pixels and at its own size, which its
label tells.
Needs rsvg-convert (Debian: librsvg2-bin).
"""

import re
import subprocess
import sys
from collections import defaultdict
from pathlib import Path
from xml.etree import ElementTree

GROUND, TEXT = "#232323", "#7a7a7a"
SIZES = (16, 24, 32)
CELL_WIDTH, CELL_HEIGHT, LABEL_WIDTH, LARGEST = 168, 60, 130, 48
STATE = re.compile(r"-?(default|hover|selected|sekected|onpressed|disabled|active|checked|not)")


def family_of(path):
    return STATE.split(path.stem)[0]


class Drawing:
    """A file that can be placed, at any size, in a larger drawing."""

    def __init__(self, path):
        root = ElementTree.parse(path).getroot()
        self.width, self.height = (float(root.get(side).removesuffix("px")) for side in ("width", "height"))
        self.area = root.get("viewBox", f"0 0 {self.width:g} {self.height:g}")
        self.content = "".join(ElementTree.tostring(child, encoding="unicode") for child in root)

    def longer_side(self):
        return max(self.width, self.height)

    def placed(self, size, x, y):
        """Its longer side becomes as long as size."""
        factor = size / self.longer_side()
        return (f'<svg x="{x}" y="{y}" width="{self.width * factor:g}" height="{self.height * factor:g}"'
                f' viewBox="{self.area}">{self.content}</svg>')


def label(text, x, y):
    return f'<text x="{x}" y="{y}" font-family="sans-serif" font-size="9" fill="{TEXT}">{text}</text>'


def cell(path, x, y):
    drawing = Drawing(path)
    parts, left = [], x
    for size in (*SIZES, min(drawing.longer_side(), LARGEST)):
        parts.append(drawing.placed(size, left, y))
        left += size + 6
    state = path.stem[len(family_of(path)):] or path.stem
    return "".join(parts) + label(f"{state} ({drawing.width:g}x{drawing.height:g})", x, y + 46)


def sheet(title, paths):
    rows = defaultdict(list)
    for path in paths:
        rows[family_of(path)].append(path)
    width = LABEL_WIDTH + CELL_WIDTH * max(map(len, rows.values()))
    height = CELL_HEIGHT * len(rows) + 24
    parts = [f'<rect width="{width}" height="{height}" fill="{GROUND}"/>', label(title, 8, 14)]
    for row, (family, members) in enumerate(sorted(rows.items())):
        top = 24 + row * CELL_HEIGHT
        parts.append(label(family, 8, top + 14))
        parts += [cell(path, LABEL_WIDTH + column * CELL_WIDTH, top) for column, path in enumerate(members)]
    return f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">{"".join(parts)}</svg>'


def main(resources, output):
    folders = defaultdict(list)
    for part in ("icons", "qml"):
        for path in sorted((resources / part).rglob("*.svg")):
            folders[path.parent.relative_to(resources)].append(path)
    output.mkdir(parents=True, exist_ok=True)
    for folder, paths in folders.items():
        target = output / f"{'-'.join(folder.parts)}.png"
        subprocess.run(["rsvg-convert", "--output", str(target)], input=sheet(folder, paths).encode(), check=True)


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
