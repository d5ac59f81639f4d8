#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Makes the eight images of the shadow around a preview: black, with a transparency that grows outwards."""

import struct
import sys
import zlib
from pathlib import Path

SIDE = [96, 52, 18]  # opacity from the edge outwards, 3 pixels at either side
BELOW = [112, 84, 56, 32, 12]  # 5 pixels below
ABOVE = [40]  # 1 above


def corner(column, row):
    """Opacity of corner pixels, as many as the two edges have."""
    return [[round(x * y / 128) for x in column] for y in row]


def png(rows):
    """The bytes of an image of black pixels with these opacities."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", len(rows[0]), len(rows), 8, 4, 0, 0, 0)  # gray and alpha, 8 bits each
    pixels = b"".join(b"\0" + b"".join(bytes((0, opacity)) for opacity in row) for row in rows)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(pixels, 9)) + chunk(b"IEND", b"")


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
        (folder / f"preview-shadow-{name}.png").write_bytes(png(rows))


if __name__ == "__main__":
    target = Path(sys.argv[1])
    target.mkdir(parents=True, exist_ok=True)
    main(target)
