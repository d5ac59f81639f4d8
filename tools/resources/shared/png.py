# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The frame of a PNG file around lines of pixels that are filtered already."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
RGB, GRAY_ALPHA, RGBA = 2, 4, 6


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def encoded(width, height, channels, lines):
    """The bytes of a file with 8 bits a channel; each of its lines begins with the kind of its filter."""
    head = struct.pack(">IIBBBBB", width, height, 8, channels, 0, 0, 0)
    return SIGNATURE + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(lines, 9)) + chunk(b"IEND", b"")
