# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The drawings with letters, all as outlines: logo, product name and slogans; and the pictures made of them."""

import json
import re
from pathlib import Path

from image import from_svg
from shared import colours, svg

OUTLINES = json.loads(Path(__file__).with_name("outlines.json").read_text(encoding="utf-8"))
APP_ICON = Path(__file__).parents[3] / "resources" / "artwork" / "app_icon_small.svg"
SLOGANS = ("slogan_en", "slogan_de", "slogan_fr", "slogan_jp", "slogan_zh_CN")
LETTERS, SOFT_LETTERS, BRIGHT_ACCENT = "#e5e5e5", "#999999", "#d0521b"
NOTE = "<!-- SPDX-License-Identifier: {} -->\n<!-- Copyright (c) 2026 the UtilsDllzglv6 authors{} -->\n"
NOTO = ("slogan_jp", "slogan_zh_CN")  # the others have letters of Roboto


def letters(key, x, baseline, size, colour):
    place = f"translate({svg.number(round(x, 2))} {svg.number(baseline)}) scale({svg.number(size / 100)})"
    return svg.path(OUTLINES[key]["path"], fill=colour, transform=place)


def width_of(key, size):
    return OUTLINES[key]["width"] * size / 100


def lines(*parts, gradients=""):
    """The content of a file that people read, too: each part on a line."""
    return "\n" + (svg.element("defs", gradients) if gradients else "") + "".join(f"  {part}\n" for part in parts)


def product_name(x, baseline, size):
    middle = x + width_of("Grain", size)
    return letters("Grain", x, baseline, size, LETTERS) + letters("lab", middle, baseline, size, SOFT_LETTERS)


def aperture(x, y, radius):
    """(gradients, drawing) of the product's mark without its ground, taken from the icon of the application."""
    text = APP_ICON.read_text(encoding="utf-8")
    light = re.search(r"<radialGradient.*?</radialGradient>", text, re.DOTALL)[0]
    drawing = re.search(r'<g transform="[^"]*">(.*)</g>\s*</svg>', text, re.DOTALL)[1]
    drawing = re.sub(r">\s+<", "><", drawing.strip())
    scale = radius / 372
    place = f"translate({svg.number(x)} {svg.number(y)}) scale({scale:.5f}) translate(-512 -512)"
    return light, svg.group(drawing, transform=place)


def logo(scale=1.0):
    """The mark, the maker's name and, larger, the product's name.

    In the about box the major number follows, as a label of 45 pixels: the height is what is free beside it, and the
    baseline is the same.
    """
    light, mark = aperture(30, 31.5, 29.5)
    content = lines(mark, letters("Zyx Labs", 67.5, 37, 15, SOFT_LETTERS), product_name(66.5, 61, 25), gradients=light)
    return svg.document(content, 160 * scale, 63 * scale, area=(160, 63))


def small_product_logo():
    size, baseline = 46, 41
    end = 1 + width_of("Grain", size) + width_of("lab", size)
    major = letters("6", end + 12, baseline, size, BRIGHT_ACCENT)
    return svg.document(lines(product_name(1, baseline, size), major), 220, 48)


def orange_bar():
    run = svg.gradient("run", (0, colours.ACCENT_TOP), (1, colours.ACCENT_BOTTOM))
    return svg.document(lines(svg.rect(0, 0, 6, 220, fill="url(#run)"), gradients=run), 6, 220)


def slogan(key):
    size = 23
    width = round(OUTLINES[key]["ink"] * size / 100) + 2
    return svg.document(lines(letters(key, 0, 23, size, LETTERS)), width, 32)


def note(name):
    if name == "orange-bar":
        return NOTE.format("MIT", "")
    licence = "OFL-1.1" if name in NOTO else "Apache-2.0"
    return NOTE.format(f"MIT AND {licence}", "; letters: see LICENSES/fonts-NOTICE.txt")


def drawings():
    """The files that are SVG themselves."""
    named = {"logo": logo(), "gl-s": small_product_logo(), "orange-bar": orange_bar()}
    named.update((key, slogan(key)) for key in SLOGANS)
    for name, text in named.items():
        yield f"{name}.svg", '<?xml version="1.0" encoding="UTF-8"?>\n' + note(name) + text


def pictures():
    yield "logo/logo.png", from_svg(logo(256 / 160))
