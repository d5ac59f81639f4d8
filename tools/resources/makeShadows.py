#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Makes the eight images of the shadow around a preview: black, with a transparency that grows outwards."""

import sys
from pathlib import Path

sys.dont_write_bytecode = True  # the source tree stays clean

from shared import png

SIDE = [96, 52, 18]  # opacity from the edge outwards, 3 pixels at either side
BELOW = [112, 84, 56, 32, 12]  # 5 pixels below
ABOVE = [40]  # 1 above


def corner(column, row):
    """Opacity of corner pixels, as many as the two edges have."""
    return [[round(x * y / 128) for x in column] for y in row]


def black(rows):
    """The bytes of an image of black pixels with these opacities."""
    lines = b"".join(b"\0" + b"".join(bytes((0, opacity)) for opacity in row) for row in rows)
    return png.encoded(len(rows[0]), len(rows), png.GRAY_ALPHA, lines)


def main(folder):
    left, right = SIDE[::-1], SIDE
    images = {
        "left": [left], "right": [right],
        "top": [[opacity] for opacity in ABOVE], "bottom": [[opacity] for opacity in BELOW],
        # the left edge is drawn over it, from the same row on
        "left-top": [[round(opacity / 8) for opacity in left]],
        "right-top": corner(right, ABOVE),
        "left-bottom": corner(left, BELOW), "right-bottom": corner(right, BELOW),
    }
    for name, rows in images.items():
        (folder / f"preview-shadow-{name}.png").write_bytes(black(rows))


if __name__ == "__main__":
    target = Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    main(target)
