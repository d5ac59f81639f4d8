# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Frames of nine parts: a square image of twice the corner and one pixel more, and the eight pieces of such a frame."""

from image import CLEAR, Image
from shared import colours

PIECES = {"left-top": (0, 0), "top": (1, 0), "right-top": (2, 0), "left": (0, 1), "right": (2, 1),
          "left-bottom": (0, 2), "bottom": (1, 2), "right-bottom": (2, 2)}


def framed(corner, pixel_at, middle=CLEAR):
    """The image of pixel_at(x, y), which counts from the nearest outer edges, so that all corners are alike."""
    side = 2 * corner + 1
    image = Image(side, side)
    for y in range(side):
        for x in range(side):
            image[x, y] = pixel_at(min(x, side - 1 - x), min(y, side - 1 - y))
    image[corner, corner] = middle
    return image


def shadow(corner, darkest):
    """Black that fades outwards over the whole corner."""
    def opacity(x, y):
        distance = ((corner - x) ** 2 + (corner - y) ** 2) ** 0.5
        return round(darkest * max(0.0, 1 - (distance - 0.5) / corner) ** 1.5)

    return framed(corner, lambda x, y: (0, 0, 0, opacity(x, y)))


def snapshot_frame():
    """A light line between two dark ones, which shows on any picture."""
    lines = [colours.pixel(colours.DARKEST), colours.pixel("#999999"), colours.pixel(colours.DARKEST, 150), CLEAR]
    return framed(3, lambda x, y: lines[min(x, y)] if x + y else CLEAR)


def rounded(corner, line, fill=CLEAR):
    """A line of one pixel with round corners; a corner pixel is drawn by how much of it lies inside both circles."""
    def share(x, y, radius):
        steps = [(i + 0.5) / 8 for i in range(8)]
        inside = sum((corner - x - dx) ** 2 + (corner - y - dy) ** 2 <= radius ** 2 for dx in steps for dy in steps)
        return inside / 64

    def pixel_at(x, y):
        if x == corner or y == corner:
            return line if 0 in (x, y) else fill
        outer, inner = share(x, y, corner), share(x, y, corner - 1)
        return over(line, outer - inner, fill, inner)

    return framed(corner, pixel_at, fill)


def over(line, line_share, fill, fill_share):
    """A pixel that two colours share; what neither covers stays clear."""
    weights = (line[3] * line_share, fill[3] * fill_share)
    alpha = sum(weights)
    if alpha < 0.5:
        return CLEAR
    return (*(round((a * weights[0] + b * weights[1]) / alpha) for a, b in zip(line[:3], fill[:3])), round(alpha))


def piece_of(frame, corner, column, row):
    """One of the eight pieces: a corner, or the line of pixels that is stretched between two corners."""
    starts, lengths = (0, corner, corner + 1), (corner, 1, corner)
    piece = Image(lengths[column], lengths[row])
    for y in range(piece.height):
        for x in range(piece.width):
            piece[x, y] = frame[starts[column] + x, starts[row] + y]
    return piece


def recent_files():
    frame = shadow(4, 150)
    for name, (column, row) in PIECES.items():
        yield f"recentFiles/border-{name}.png", piece_of(frame, 4, column, row)
    yield "recentFiles/border-default-(corner-4px).png", rounded(4, colours.pixel("#565656"))
    yield "recentFiles/border-hover-(corner-4px).png", rounded(4, colours.pixel(colours.ICON_ACCENT))


def fields():
    yield "backgroungs/size-field-(corner-2px).png", rounded(2, colours.pixel(colours.BORDER), colours.pixel("#292929"))
    yield ("backgroungs/size-field-active-(corner-2px).png",
           rounded(2, colours.pixel(colours.ACCENT), colours.pixel(colours.DARK)))
    yield "backgroungs/snapshot-frame-(corner-3px).png", snapshot_frame()


def pictures():
    yield from recent_files()
    yield from fields()
