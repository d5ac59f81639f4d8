# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""What all icons share: the grid, the looks of the states, and how a drawing becomes the text of an SVG file.

A drawing is a text of SVG elements on a grid of 24 by 24 that are stroked, not filled. INK in it stands for the colour
of the state. Only what SVG Tiny knows is used: no classes, filters, masks or text.
"""

from dataclasses import dataclass

from shared.colours import ICON_STATES
from shared.svg import document, group, number, rect

GRID = 24
INK = "INK"


@dataclass(frozen=True)
class Look:
    """How a state is drawn: its colour, stroke width, ground and shift downwards."""
    ink: str
    width: float = 1.75
    ground: str = ""
    shift: float = 0


LOOKS = {
    "default": Look(ICON_STATES["default"]),
    "hover": Look(ICON_STATES["hover"]),
    "selected": Look(ICON_STATES["selected"], 2, ground="#42251a"),
    "selected-hover": Look(ICON_STATES["selected-hover"], 2, ground="#5c301d"),
    "onpressed": Look(ICON_STATES["onpressed"], 2, shift=0.5),
    "disabled": Look(ICON_STATES["disabled"], 1.5),
    "active": Look(ICON_STATES["active"]),
}

PUSH = ("default", "hover", "onpressed")
PUSH_OR_NOT = PUSH + ("disabled",)
TOGGLE = ("default", "hover", "selected", "selected-hover")
TOGGLE_OR_NOT = TOGGLE + ("disabled",)


def solid(colour=INK):
    """The attributes of an element that is filled and has no stroke."""
    return {"fill": colour, "stroke": "none"}


def scaled(drawing, factor, x=0, y=0):
    return group(drawing, transform=f"translate({number(x)} {number(y)}) scale({number(factor)})")


def stroked(drawing, look):
    """A drawing as it looks in a state, without its ground."""
    shift = {"transform": f"translate(0 {number(look.shift)})"} if look.shift else {}
    return group(drawing, fill="none", stroke=look.ink, stroke_width=look.width, stroke_linecap="round",
                 stroke_linejoin="round", **shift).replace(INK, look.ink)


def icon(drawing, look, size=GRID):
    """The text of a file with a drawing of the common grid, size pixels large."""
    ground = rect(0, 0, GRID, GRID, 4, fill=look.ground) if look.ground else ""
    return document(ground + stroked(drawing, look), size, area=(GRID, GRID))


def family(pattern, drawing, states, size=GRID):
    """Files of one drawing in several states; '*' in the pattern stands for the state."""
    return {pattern.replace("*", state): icon(drawing, LOOKS[state], size) for state in states}


def families(pattern, drawings, states):
    """Files of several drawings; '?' in the pattern stands for the name of the drawing."""
    files = {}
    for name, drawing in drawings.items():
        files |= family(pattern.replace("?", name), drawing, states)
    return files
