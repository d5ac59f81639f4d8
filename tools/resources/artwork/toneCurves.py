# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The tone curves: channel buttons with letters, pipettes for three tones, and the grid behind the curve."""

from dataclasses import replace

from drawing import LOOKS, TOGGLE, icon
from shared.svg import circle, document, group, number, path, rect, shape

CHANNELS = {name: dict(zip(TOGGLE, colours)) for name, colours in {
    "R": ("#b25a55", "#e38780", "#ff6258", "#ff988f"),
    "G": ("#559a5c", "#86cb8c", "#52d364", "#92ee9c"),
    "B": ("#5c7cba", "#8aa9e8", "#5f98ff", "#9cc0ff"),
    "L": ("#8c8c8c", "#c8c8c8", "#f0f0f0", "#ffffff"),
}.items()}
GROUNDS = {name: dict(zip(TOGGLE[2:], colours)) for name, colours in {
    "R": ("#451f1d", "#592a27"),
    "G": ("#1c3a21", "#274b2d"),
    "B": ("#1d2c4d", "#283a62"),
    "L": ("#3d3d3d", "#4b4b4b"),
}.items()}
CHANNELS["V"], GROUNDS["V"] = CHANNELS["G"], GROUNDS["G"]  # green is "vert" in French

PIPETTES = {"black": "#000000", "gray": "#808080", "white": "#ffffff"}


def strokes(*parts):
    return path(" ".join(part if isinstance(part, str) else number(part) for part in parts))


def letter_r(x, y, width, height):
    bowl, middle = height / 4, y + height / 2
    return strokes("M", x, y + height, "V", y, "H", x + width - bowl, "a", bowl, bowl, "0 0 1 0", 2 * bowl, "H", x,
                   "M", x + width * 0.6, middle, "L", x + width, y + height)


def letter_g(x, y, width, height):
    half = width / 2
    high, low = y + half, y + height - half
    return strokes("M", x + half * 1.85, high - half * 0.53, "A", half, half, "0 0 0", x, high, "V", low,
                   "a", half, half, "0 0 0", width, 0, "V", y + height * 0.54, "h", -half * 0.9)


def letter_b(x, y, width, height):
    bowl, middle = height / 4, y + height / 2
    return strokes("M", x + width - bowl - 0.5, middle, "a", bowl, bowl, "0 0 0 0", -2 * bowl, "H", x, "v", height,
                   "H", x + width - bowl, "a", bowl, bowl, "0 0 0 0", -2 * bowl, "H", x)


def letter_l(x, y, width, height):
    return strokes("M", x + 1, y, "v", height, "h", width - 2)


def letter_v(x, y, width, height):
    return strokes("M", x, y, "l", width / 2, height, "l", width / 2, -height)


LETTERS = {"R": letter_r, "G": letter_g, "B": letter_b, "L": letter_l, "V": letter_v}


def one_channel(name, state):
    look = replace(LOOKS[state], ink=CHANNELS[name][state], width=2, ground=GROUNDS[name].get(state, ""))
    return icon(LETTERS[name](7.5, 5, 9, 14), look)


def all_channels(names, state):
    letters = [group(LETTERS[name](2 + 7.75 * column, 7, 4.5, 10), stroke=CHANNELS[name][state])
               for column, name in enumerate(names)]
    return icon("".join(letters), replace(LOOKS[state], width=1.6, ground=GROUNDS["L"].get(state, "")))


def pipette(tone, state):
    swatch = circle(18, 18, 3.5, fill=tone, stroke_width=1.5)
    return icon(shape("color-picker") + swatch, LOOKS[state])


def grid():
    side, cells = 256, 4
    lines = "".join(f"M{step}.5 0V{side}M0 {step}.5H{side}" for step in range(side // cells, side, side // cells))
    return document(path(lines, stroke="#3c3c3c") + path(f"M0 {side}L{side} 0", stroke="#343434")
                    + rect(0.5, 0.5, side - 1, side - 1, fill="none", stroke="#3c3c3c"), side)


def files():
    result = {"icons/toneCurves/grid.svg": grid()}
    for state in TOGGLE:
        for name in CHANNELS:
            result[f"icons/toneCurves/{name}-{state}.svg"] = one_channel(name, state)
        for names in ("RGB", "RVB"):
            result[f"icons/toneCurves/{names}-{state}.svg"] = all_channels(names, state)
        for name, tone in PIPETTES.items():
            result[f"icons/toneCurves/pipette-{name}-{state}.svg"] = pipette(tone, state)
    return result
