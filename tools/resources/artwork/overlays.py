# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Handles that lie on a photo. A dark rim under each stroke keeps them visible on light places too."""

from drawing import GRID, INK, Look, solid, stroked
from shared.colours import DARK, ICON_ACCENT, ICON_STATES
from shared.svg import circle, document, group, path, rect

COLOURS = {"": "#f2f2f2", "-hover": ICON_STATES["selected-hover"], "-active": ICON_ACCENT, "-disabled": "#8c8c8c"}


def rimmed(drawing, colour, size):
    rim = group(stroked(drawing, Look(DARK, 3.5)), opacity=0.7)
    return document(rim + stroked(drawing, Look(colour, 1.5)), size)


def dot(x, y, radius):
    return circle(x, y, radius - 0.75, fill=INK)  # its stroke adds the rest, and gets a rim


def horizon_point(suffix):
    """An end of the horizon line; the dot grows as the point comes into use."""
    radius = {"": 1, "-hover": 1.75, "-active": 2.75}.get(suffix)
    return rimmed(circle(8, 8, 5.5) + (dot(8, 8, radius) if radius else ""), COLOURS[suffix], 16)


def vignetting_pin(suffix):
    radius = {"": 1.25, "-hover": 2, "-active": 3.5}[suffix]
    return rimmed(circle(12, 12, 6.5) + dot(12, 12, radius) + path("M12 2v3.5M12 18.5v3.5M2 12h3.5M18.5 12h3.5"),
                  COLOURS[suffix], GRID)


def radius_handle(suffix):
    return document(rect(1.5, 1.5, 11, 11, 2.5, fill=DARK, fill_opacity=0.6)
                    + rect(3, 3, 8, 8, 1.5, fill=COLOURS[suffix]), 14)


def crop_on_transparent():
    """The crop mark on the chequered ground that stands for transparent areas."""
    squares = path("M8 8h4v4h-4zM12 12h4v4h-4z", **solid("#9a9a9a"))
    mark = path("M8 3v12a1 1 0 0 0 1 1h12M3 8h12a1 1 0 0 1 1 1v12")
    return rimmed(squares + mark, COLOURS[""], GRID)


def files():
    result = {"icons/crop/icons-crop-transparent.svg": crop_on_transparent()}
    for suffix in COLOURS:
        result[f"icons/horizon/line-point{suffix}.svg"] = horizon_point(suffix)
    for suffix in ("", "-hover", "-active"):
        result[f"icons/vignetting/center-vigneting-pin{suffix}.svg"] = vignetting_pin(suffix)
    for suffix in ("", "-hover"):
        result[f"icons/vignetting/radius-handle{suffix}.svg"] = radius_handle(suffix)
    return result
