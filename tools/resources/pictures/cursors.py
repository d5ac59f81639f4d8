# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Pointers of 32 by 32 pixels: white with a black line around, which reads on any picture.

Their hot spot is the middle (16, 16); that of the lenses is (14, 14), that of the pointing hand its finger tip (12, 4).
"""

from image import from_svg
from shared import svg

# Arrows around the middle at (16, 16).
ARROW_TO_RIGHT = "M19 15h5v-4l6 5l-6 5v-4h-5z"
ARROW_BOTH_WAYS = "M10 15h12v-4l6 5l-6 5v-4h-12v4l-6 -5l6 -5z"
FOUR_ARROWS = "M15 15v-6h-4l5 -6l5 6h-4v6h6v-4l6 5l-6 5v-4h-6v6h4l-5 6l-5 -6h4v-6h-6v4l-6 -5l6 -5v4z"
DIAGONAL_ARROW = "M6 6h9l-3 3l11 11l3 -3v9h-9l3 -3l-11 -11l-3 3z"
SMALL_DIAGONAL_ARROW = "M23 9v6l-2 -2l-8 8l2 2h-6v-6l2 2l8 -8l-2 -2z"
BENT_ARROW = "M9 24.5h-4l5.5 6l5.5 -6h-4a10 10 0 0 1 10.5 -10.5v4l6 -5.5l-6 -5.5v4a13 13 0 0 0 -13.5 13.5z"
HANDLE = "M19.5 21.5l7 7l2.5 -2.5l-7 -7z"


def turned(angle):
    return f"rotate({angle} 16 16)"


def outlined(drawing, **place):
    """A black line of one pixel around the drawing, then the drawing in white."""
    return (svg.group(drawing, fill="#000000", stroke="#000000", stroke_width=2, stroke_linejoin="miter", **place)
            + svg.group(drawing, fill="#ffffff", **place))


def hand(name, down, knuckles):
    """A hand of which every finger is a stroke that is open below.

    All are filled first, so that no fill hides a line, and then what is open between them below the knuckles. The lines
    between fingers, 4 pixels apart, lie on whole pixels.
    """
    place = f"translate(-0.17 {down}) scale(1.3333)"
    lines = {"stroke_width": 0.85, "stroke_linecap": "round", "stroke_linejoin": "round"}
    inside = svg.shape(name) + svg.rect(8, knuckles, 9, 14 - knuckles)
    return (svg.group(inside, fill="#ffffff", stroke="none", transform=place)
            + svg.group(svg.shape(name), fill="none", stroke="#000000", transform=place, **lines))


def lens(*signs):
    glass = (svg.path(HANDLE, fill="#ffffff", stroke="#000000", stroke_width=1)
             + svg.circle(14, 14, 9, fill="#000000") + svg.circle(14, 14, 8, fill="#ffffff"))
    return glass + "".join(svg.rect(*sign, fill="#000000") for sign in signs)


def transform_size():
    """An arrow between two corners of a frame."""
    corners = "M21 3h8v8h-2v-6h-6zM11 29h-8v-8h2v6h6z"
    return outlined(svg.path(SMALL_DIAGONAL_ARROW) + svg.path(corners))


def drawings():
    across = (9, 13, 10, 2)
    return {
        "cursors/hand": hand("hand-stop", 0, 5.5),
        "cursors/draging": hand("hand-grab", -1, 7.5),
        "cursors/moveAll": outlined(svg.path(FOUR_ARROWS)),
        "cursors/zoom-in": lens(across, (13, 9, 2, 10)),
        "cursors/zoom-out": lens(across),
        "crop/cursor-crop-horizontal": outlined(svg.path(ARROW_BOTH_WAYS)),
        "crop/cursor-crop-vertical": outlined(svg.path(ARROW_BOTH_WAYS), transform=turned(90)),
        "crop/cursor-crop-diagonal": outlined(svg.path(DIAGONAL_ARROW)),
        "crop/cursor-crop-move": outlined("".join(svg.path(ARROW_TO_RIGHT, transform=turned(angle))
                                                  for angle in (0, 90, 180, 270)) + svg.rect(14, 14, 4, 4)),
        "crop/cursor-crop-rotate": outlined(svg.path(BENT_ARROW), transform="translate(-1.5 -2.5)"),
        "backgroungs/cursor-pointer": hand("hand-finger", 0, 10.5),
        "backgroungs/cursor-transform-size": transform_size(),
    }


def pictures():
    for name, drawing in drawings().items():
        yield f"{name}.png", from_svg(svg.document(drawing, 32))
