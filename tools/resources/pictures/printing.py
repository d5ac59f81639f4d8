# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The tool bar of the print preview: icons of 24 by 24 pixels in states, and the shadow of a page."""

import frames
from image import from_svg
from shared import colours, svg

MIRRORED = "matrix(-1 0 0 1 24 0)"
LANDSCAPE_PAGE = ("M14 5v5a1 1 0 0 0 1 1h6", "M19 20h-14a2 2 0 0 1 -2 -2v-11a2 2 0 0 1 2 -2h9l7 6v7a2 2 0 0 1 -2 2")
SINGLE_PAGE = ("M7 3h10a1 1 0 0 1 1 1v16a1 1 0 0 1 -1 1h-10a1 1 0 0 1 -1 -1v-16a1 1 0 0 1 1 -1", "M10 8h4", "M10 12h4",
               "M10 16h4")
FACING_PAGES = tuple(f"M{x} 5h5a1 1 0 0 1 1 1v12a1 1 0 0 1 -1 1h-5a1 1 0 0 1 -1 -1v-12a1 1 0 0 1 1 -1" for x in (4, 15))
FITTED_PAGE = ("M10 7h4a1 1 0 0 1 1 1v8a1 1 0 0 1 -1 1h-4a1 1 0 0 1 -1 -1v-8a1 1 0 0 1 1 -1",)


def strokes(*paths):
    return "".join(svg.path(data) for data in paths)


def overview():
    """Six small pages, solid: outlines of this size run together."""
    return "".join(svg.rect(x, y, 6, 8, 1, fill="currentColor", stroke="none") for y in (3, 13) for x in (1, 9, 17))


def drawings():
    """For each icon: its drawing, and its third state beside default, hover and disabled."""
    previous, first = svg.shape("chevron-left"), svg.shape("chevron-left-pipe")
    return {
        "first-page": (first, "onpressed"),
        "previous-page": (previous, "onpressed"),
        "next-page": (svg.group(previous, transform=MIRRORED), "onpressed"),
        "last-page": (svg.group(first, transform=MIRRORED), "onpressed"),
        "zoom-in": (svg.shape("zoom-in"), "onpressed"),
        "zoom-out": (svg.shape("zoom-out"), "onpressed"),
        "page-setup": (svg.group(svg.shape("file-settings"), stroke_width=1.5), "onpressed"),
        "fit-page": (svg.shape("maximize") + strokes(*FITTED_PAGE), "selected"),
        "fit-width": (svg.shape("arrow-autofit-width"), "selected"),
        "portrait": (svg.shape("file"), "selected"),
        "landscape": (strokes(*LANDSCAPE_PAGE), "selected"),
        "view-single": (strokes(*SINGLE_PAGE), "selected"),
        "view-facing": (strokes(*FACING_PAGES), "selected"),
        "view-overview": (overview(), "selected"),
    }


def icon(drawing, state):
    moved = "translate(0 1)" if state == "onpressed" else None  # a whole pixel, so that edges stay sharp
    content = svg.group(drawing.replace("currentColor", colours.ICON_STATES[state]), fill="none",
                        stroke=colours.ICON_STATES[state], stroke_width=2, stroke_linecap="round",
                        stroke_linejoin="round", transform=moved)
    return from_svg(svg.document(content, 24))


def pictures():
    for name, (drawing, third) in drawings().items():
        for state in ("default", "disabled", "hover", third):
            yield f"printing/ic-{name}-{state}.png", icon(drawing, state)
    yield "printing/page-shadow-(corner-4px).png", frames.shadow(4, 110)
