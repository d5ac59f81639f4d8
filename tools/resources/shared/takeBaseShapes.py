#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Takes the strokes of some icons into baseShapes.json: takeBaseShapes.py PACKAGE.

PACKAGE is the folder into which the npm package @tabler/icons 3.51.0 (MIT) was unpacked:
npm pack @tabler/icons@3.51.0 && tar -xzf tabler-icons-3.51.0.tgz
"""

import json
import re
import sys
from pathlib import Path

NAMES = (
    "aperture", "arrow-autofit-width", "arrow-back-up", "arrow-forward-up", "camera", "camera-plus", "chart-histogram",
    "chevron-down", "chevron-left", "chevron-left-pipe", "chevron-right", "chevron-up", "circle-x", "color-filter",
    "color-picker", "crop", "dice-5", "droplet-plus", "eye", "eye-off", "file", "file-settings", "folder", "frame",
    "hand-finger", "hand-grab", "hand-stop", "info-circle", "layout-grid", "maximize", "package-export", "photo",
    "photo-down", "photo-off", "polaroid", "restore", "rotate", "rotate-clockwise", "settings", "star", "star-filled",
    "x", "zoom", "zoom-in", "zoom-out",
)
FILLED = "-filled"  # such a shape comes from the package's other folder
GROUND = "M0 0h24v24H0z"  # an unseen square in every icon


def source_of(icons, name):
    if name.endswith(FILLED):
        return icons / "filled" / f"{name.removesuffix(FILLED)}.svg"
    return icons / "outline" / f"{name}.svg"


def strokes(text):
    return [data for data in re.findall(r'<path [^>]*?\bd="([^"]+)"', text) if data != GROUND]


def main(package):
    shapes = {name: strokes(source_of(package / "icons", name).read_text(encoding="utf-8")) for name in NAMES}
    target = Path(__file__).with_name("baseShapes.json")
    target.write_text(json.dumps(shapes, indent=1) + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main(Path(sys.argv[1]))
