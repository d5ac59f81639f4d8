# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""What all icons share: the grid, the looks of the states, and how a drawing becomes the text of an SVG file.

A drawing is a text of SVG elements on a grid of 24 by 24 that are stroked, not filled. INK in it stands for the colour
of the state. Only what SVG Tiny knows is used: no classes, filters, masks or text.
"""

import json
from dataclasses import dataclass
from pathlib import Path

GRID = 24
INK = "INK"
ACCENT = "#e06a33"
DARK = "#1b1b1b"


@dataclass(frozen=True)
class Look:
    """How a state is drawn: its colour, stroke width, ground and shift downwards."""
    ink: str
    width: float = 1.75
    ground: str = ""
    shift: float = 0


LOOKS = {
    "default": Look("#aaaaaa"),
    "hover": Look("#ececec"),
    "selected": Look(ACCENT, 2, ground="#42251a"),
    "selected-hover": Look("#ff9a66", 2, ground="#5c301d"),
    "onpressed": Look("#d0521b", 2, shift=0.5),
    "disabled": Look("#505050", 1.5),
    "active": Look(ACCENT),
}

PUSH = ("default", "hover", "onpressed")
PUSH_OR_NOT = PUSH + ("disabled",)
TOGGLE = ("default", "hover", "selected", "selected-hover")
TOGGLE_OR_NOT = TOGGLE + ("disabled",)

_SHAPES = json.loads(Path(__file__).with_name("shapes.json").read_text(encoding="utf-8"))


def number(value):
    return f"{round(value, 3):g}"


def element(tag, **attributes):
    """An SVG element; '_' in the name of an attribute stands for '-'."""
    text = "".join(f' {name.replace("_", "-")}="{number(value) if isinstance(value, (int, float)) else value}"'
                   for name, value in attributes.items())
    return f"<{tag}{text}/>"


def path(data, **attributes):
    return element("path", d=data, **attributes)


def circle(x, y, radius, **attributes):
    return element("circle", cx=x, cy=y, r=radius, **attributes)


def rect(x, y, width, height, radius=0, **attributes):
    rounding = {"rx": radius} if radius else {}
    return element("rect", x=x, y=y, width=width, height=height, **rounding, **attributes)


def solid(colour=INK):
    """The attributes of an element that is filled and has no stroke."""
    return {"fill": colour, "stroke": "none"}


def shape(name, **attributes):
    """A base shape of shapes.json."""
    return "".join(path(data, **attributes) for data in _SHAPES[name])


def group(drawing, **attributes):
    opening = element("g", **attributes)[:-2]
    return f"{opening}>{drawing}</g>"


def scaled(drawing, factor, x=0, y=0):
    return group(drawing, transform=f"translate({number(x)} {number(y)}) scale({number(factor)})")


def document(content, width=GRID, height=None, grid=None):
    """The text of a file, width by height pixels large, that shows the area "grid"."""
    height = width if height is None else height
    area = grid or (width, height)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(width)}" height="{number(height)}"'
            f' viewBox="0 0 {number(area[0])} {number(area[1])}">{content}</svg>\n')


def stroked(drawing, look):
    """A drawing as it looks in a state, without its ground."""
    shift = {"transform": f"translate(0 {number(look.shift)})"} if look.shift else {}
    return group(drawing, fill="none", stroke=look.ink, stroke_width=look.width, stroke_linecap="round",
                 stroke_linejoin="round", **shift).replace(INK, look.ink)


def icon(drawing, look, size=GRID):
    """The text of a file with a drawing of the common grid, size pixels large."""
    ground = rect(0, 0, GRID, GRID, 4, fill=look.ground) if look.ground else ""
    return document(ground + stroked(drawing, look), size, grid=(GRID, GRID))


def family(pattern, drawing, states, size=GRID):
    """Files of one drawing in several states; '*' in the pattern stands for the state."""
    return {pattern.replace("*", state): icon(drawing, LOOKS[state], size) for state in states}


def families(pattern, drawings, states):
    """Files of several drawings; '?' in the pattern stands for the name of the drawing."""
    files = {}
    for name, drawing in drawings.items():
        files |= family(pattern.replace("?", name), drawing, states)
    return files
