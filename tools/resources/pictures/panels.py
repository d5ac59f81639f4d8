# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Pictures in panels: histograms, film strip, separators, the processing animation and the start page."""

import math

from image import Image, from_svg
from shared import colours, svg

HISTOGRAM = (230, 90)
CHANNELS = {  # colour, and hills as (middle, width, height) in shares of the panel
    "r": ("#d8453c", ((0.24, 0.10, 0.50), (0.52, 0.15, 0.62), (0.80, 0.07, 0.34))),
    "g": ("#55b45a", ((0.20, 0.08, 0.44), (0.44, 0.13, 0.84), (0.70, 0.09, 0.30))),
    "b": ("#4f79e0", ((0.15, 0.07, 0.72), (0.36, 0.11, 0.50), (0.62, 0.12, 0.36))),
}
AREA_ALPHA, LINE_ALPHA = 150, 235


def height_of(hills, place):
    """The curve at a place from 0 to 1; it ends at zero on both sides."""
    curve = sum(top * math.exp(-((place - middle) / width) ** 2 / 2) for middle, width, top in hills)
    return curve * min(1.0, place / 0.06, (1 - place) / 0.06)


def coverage(hills, x, y):
    """(area, line): how much of the pixel lies below the curve, and how near it is to it."""
    width, height = HISTOGRAM
    top = height - height_of(hills, (x + 0.5) / width) * (height - 4)
    area = min(1.0, max(0.0, y + 1 - top))
    line = max(0.0, 1 - abs(y + 0.5 - top) / 1.2) if top < height - 0.5 else 0.0
    return area, line


def histogram(names):
    """The channels as light that adds up where they overlap."""
    image = Image(*HISTOGRAM)
    for y in range(image.height):
        for x in range(image.width):
            image[x, y] = light([(CHANNELS[name][0], *coverage(CHANNELS[name][1], x, y)) for name in names])
    return image


def light(layers):
    strengths = [max(AREA_ALPHA * area, LINE_ALPHA * line) for _, area, line in layers]
    alpha = round(max(strengths))
    if alpha == 0:
        return (0, 0, 0, 0)
    lamps = [(colours.parts(layer[0]), strength / alpha) for layer, strength in zip(layers, strengths)]
    sums = [sum(colour[i] * share for colour, share in lamps) for i in range(3)]
    return (*(min(255, round(value)) for value in sums), alpha)


def film_frame(sign):
    """A picture of 96 by 64 pixels on a piece of film, with a sign instead of an image."""
    holes = "".join(svg.rect(x, y, 5, 4, 1, fill=colours.GROUND) for y in (3, 57) for x in range(4, 96, 12))
    film, picture = svg.rect(0, 0, 96, 64, 3, fill="#121212"), svg.rect(4, 10, 88, 44, 2, fill="#2e2e2e")
    return from_svg(svg.document(film + holes + picture + sign, 96, 64))


def no_image():
    return svg.group(svg.shape("photo-off"), fill="none", stroke="#6c6c6c", stroke_width=1.5, stroke_linecap="round",
                     stroke_linejoin="round", transform="translate(32 16) scale(1.3333)")


def loading():
    """Three dots, the last still faint."""
    dots = ((34, colours.ICON_ACCENT), (48, colours.ACCENT), (62, "#5c3120"))
    return "".join(svg.circle(x, 32, 4, fill=colour) for x, colour in dots)


def two_lines(upper, lower):
    image = Image(8, 2)
    image.rows = [[colours.pixel(upper)] * 8, [colours.pixel(lower)] * 8]
    return image


def processing(step):
    """A strip of three pictures, of which the next is lit in each step."""
    lit = colours.ICON_STATES["selected-hover"]
    fills = [lit if i == step else "#8a3c17" if i == (step - 1) % 3 else "#2b2b2b" for i in range(3)]
    frames = "".join(svg.rect(2 + 10 * i, 10, 8, 12, fill=fill) for i, fill in enumerate(fills))
    holes = "".join(svg.rect(x, y, 3, 2, fill="#1a1a1a") for y in (6, 24) for x in range(2, 32, 5))
    return from_svg(svg.document(svg.rect(0, 4, 32, 24, 2, fill="#767676") + holes + frames, 32))


def no_recent_file():
    lines = {"fill": "none", "stroke": "#6c6c6c", "stroke_linecap": "round", "stroke_linejoin": "round"}
    picture = svg.group(svg.shape("photo"), transform="translate(1 2) scale(2.3333)", stroke_width=1.3, **lines)
    clock = (svg.circle(47, 46, 15, fill=colours.GROUND) + svg.circle(47, 46, 11, stroke_width=3, **lines)
             + svg.path("M47 40v6l4 3", stroke_width=3, **lines))
    return from_svg(svg.document(picture + clock, 64))


def pictures():
    for names in ("r", "g", "b", "rgb"):
        yield f"side_bars/histogram-graph-{names}.png", histogram(names)
    yield "side_bars/ic-filmstrip-no-image.png", film_frame(no_image())
    yield "side_bars/ic-filmstrip-loading.png", film_frame(loading())
    yield "side_bars/panel-separator.png", two_lines(colours.DARKEST, colours.BORDER)
    yield "menuBar/menu-separator.png", two_lines("#868686", "#c6c6c6")
    for step in range(3):
        yield f"processing/processing{step + 1}.png", processing(step)
    yield "recentFiles/no-recent-file-icon.png", no_recent_file()
