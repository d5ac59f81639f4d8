# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Images of 8-bit red, green, blue and alpha, set pixel by pixel or drawn from SVG, and written as small PNG files."""

import struct
import subprocess
import zlib

from shared import png

CLEAR = (0, 0, 0, 0)


class Image:
    def __init__(self, width, height, fill=CLEAR):
        self.width, self.height = width, height
        self.rows = [[fill] * width for _ in range(height)]

    def __getitem__(self, place):
        x, y = place
        return self.rows[y][x]

    def __setitem__(self, place, colour):
        x, y = place
        self.rows[y][x] = colour

    def png(self):
        """The bytes of the file: without alpha if all is opaque, each row filtered by whichever way looks smallest."""
        is_opaque = all(pixel[3] == 255 for row in self.rows for pixel in row)
        size = 3 if is_opaque else 4
        lines = [bytes(value for pixel in row for value in (pixel if pixel[3] else CLEAR)[:size]) for row in self.rows]
        channels = png.RGB if is_opaque else png.RGBA
        return min((png.encoded(self.width, self.height, channels, filtered(lines, size, kinds))
                    for kinds in ((0,), (1,), (2,), range(5))), key=len)


def from_svg(text):
    """What rsvg-convert draws of an SVG text at its own size."""
    data = subprocess.run(["rsvg-convert", "--format", "png"], input=text.encode(), stdout=subprocess.PIPE, check=True)
    return from_png(data.stdout)


def from_png(data):
    """The image in a file of the two forms that rsvg-convert writes: 8 bits a channel, with or without alpha."""
    head, packed, place = b"", b"", len(png.SIGNATURE)
    while place < len(data):
        length, kind = struct.unpack_from(">I4s", data, place)
        body = data[place + 8:place + 8 + length]
        head = body if kind == b"IHDR" else head
        packed += body if kind == b"IDAT" else b""
        place += length + 12
    width, height, *form = struct.unpack(">IIBBBBB", head)
    size = {(8, png.RGB, 0, 0, 0): 3, (8, png.RGBA, 0, 0, 0): 4}[tuple(form)]

    image, raw, length = Image(width, height), zlib.decompress(packed), width * size
    above = bytes(length)
    for y in range(height):
        kind, *line = raw[y * (length + 1):(y + 1) * (length + 1)]
        above = unfiltered(line, above, size, kind)
        image.rows[y] = [(*above[x:x + size], 255)[:4] for x in range(0, length, size)]
    return image


def paeth(left, up, corner):
    guess = left + up - corner
    return min((left, up, corner), key=lambda value: abs(guess - value))


def predicted(kind, left, up, corner):
    return (0, left, up, (left + up) // 2, paeth(left, up, corner))[kind]


def unfiltered(line, above, size, kind):
    result = bytearray(line)
    for i, value in enumerate(line):
        left, corner = (result[i - size], above[i - size]) if i >= size else (0, 0)
        result[i] = (value + predicted(kind, left, above[i], corner)) & 255
    return bytes(result)


def filtered(lines, size, kinds):
    """The lines, each with the one of these filter kinds that leaves the smallest differences."""
    result, above = b"", bytes(len(lines[0]))
    for line in lines:
        choices = [bytes([kind]) + filtered_line(line, above, size, kind) for kind in kinds]
        result += min(choices, key=lambda data: sum(min(value, 256 - value) for value in data[1:]))
        above = line
    return result


def filtered_line(line, above, size, kind):
    if kind == 0:
        return line
    left = bytes(size) + line[:-size]
    corner = bytes(size) + above[:-size]
    return bytes((line[i] - predicted(kind, left[i], above[i], corner[i])) & 255 for i in range(len(line)))
