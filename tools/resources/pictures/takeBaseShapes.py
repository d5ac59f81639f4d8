#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Takes the strokes of some icons out of an unpacked package @tabler/icons (MIT) into baseShapes.json."""

import json
import re
import sys
from pathlib import Path

NAMES = ["arrow-autofit-width", "chevron-left", "chevron-left-pipe", "file", "file-settings", "hand-finger",
         "hand-grab", "hand-stop", "maximize", "photo", "photo-off", "zoom-in", "zoom-out"]
GROUND = "M0 0h24v24H0z"  # an unseen square in every icon


def strokes(text):
    return [data for data in re.findall(r'<path [^>]*?\bd="([^"]+)"', text) if data != GROUND]


if __name__ == "__main__":
    icons = Path(sys.argv[1]) / "icons" / "outline"
    shapes = {name: strokes((icons / f"{name}.svg").read_text(encoding="utf-8")) for name in NAMES}
    target = Path(__file__).with_name("baseShapes.json")
    target.write_text(json.dumps(shapes, indent=1) + "\n", encoding="utf-8")
