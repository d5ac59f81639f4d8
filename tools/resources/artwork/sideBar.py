# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The side bars with their filters, snapshots, favorites and panels, and the arrows of dialogs."""

from drawing import INK, LOOKS, PUSH, PUSH_OR_NOT, TOGGLE, Look, families, family, icon, scaled, solid, stroked
from shared.colours import ICON_ACCENT
from shared.svg import circle, document, path, rect, shape

STAR = {  # file name: drawing and colour
    "favorite": (shape("star-filled", **solid()), "#d0d0d0"),
    "favorite-orange": (shape("star-filled", **solid()), ICON_ACCENT),
    "favorite-notselected": (shape("star"), "#6e6e6e"),
    "favorite-filter": (scaled(shape("star-filled", **solid()), 0.75) + path("M14 17h8M16 22h4"), "#d0d0d0"),
}


def black_white():
    return circle(12, 12, 9) + path("M12 3a9 9 0 0 1 0 18z", fill=INK)


def slide():
    """A mounted slide: the small window in its square frame."""
    return rect(3, 3, 18, 18, 2.5) + rect(7, 8.5, 10, 7, 0.5, fill=INK, fill_opacity=0.5)


def eye(state):
    pupil = circle(12, 12, 2, fill=INK) if state.startswith("selected") else ""
    return icon(shape("eye") + pupil, LOOKS[state])


def randomize():
    files = family("icons/side_bars/randomize-*.svg", shape("dice-5"), TOGGLE)
    files["icons/side_bars/randomize-sekected-hover.svg"] = files.pop("icons/side_bars/randomize-selected-hover.svg")
    return files  # its users know it by this spelling


def presets_filters():
    filters = {
        "all": shape("layout-grid"), "black-white": black_white(), "color": shape("color-filter"),
        "favorites": shape("star"), "instant": shape("polaroid"), "slide": slide(),
    }
    return families("icons/side_bars/presetsFilter/?-*.svg", filters, TOGGLE)


def side_bars():
    files = {f"icons/side_bars/eye-{state}.svg": eye(state) for state in TOGGLE}
    for name, arrow in {"closed": "M5 3l3.5 3.5l-3.5 3.5", "open": "M3 5l3.5 3.5l3.5-3.5"}.items():
        for state in ("default", "hover"):
            look = Look(LOOKS[state].ink, 1.5)
            files[f"icons/side_bars/group-{name}-{state}.svg"] = document(stroked(path(arrow), look), 13)
    return (files | randomize() | presets_filters()
            | family("icons/side_bars/reset-*.svg", shape("restore"), PUSH_OR_NOT)
            | family("icons/side_bars/search-clear-*.svg", shape("circle-x"), PUSH, size=16)
            | {"icons/side_bars/search.svg": icon(shape("zoom"), LOOKS["default"], size=16)})


def dialog_arrows():
    """A ring with an arrow; the size of the button that carries it."""
    files = {}
    arrows = {"left": "M18.5 13.5h-10M12.5 9.5l-4 4l4 4", "right": "M8.5 13.5h10M14.5 9.5l4 4l-4 4"}
    for name, arrow in arrows.items():
        for state in PUSH:
            drawing = circle(13.5, 13.5, 11.5) + path(arrow)
            files[f"icons/arrows/{name}-icon-{state}.svg"] = document(stroked(drawing, LOOKS[state]), 27)
    return files


def time_machine():
    files = {}
    for name in ("up", "down"):
        arrow = shape(f"chevron-{name}")
        files[f"icons/timeMachine/arrow-{name}.svg"] = icon(arrow, LOOKS["default"])
        files[f"icons/timeMachine/arrow-{name}-disabled.svg"] = icon(arrow, LOOKS["disabled"])
    return files


def files():
    stars = {f"icons/stars/{name}.svg": icon(drawing, Look(colour), size=16)
             for name, (drawing, colour) in STAR.items()}
    add_color = {"icons/settingsPanel/add-color.svg": icon(shape("droplet-plus"), LOOKS["default"]),
                 "icons/settingsPanel/add-color-hover.svg": icon(shape("droplet-plus"), LOOKS["hover"])}
    return (side_bars() | dialog_arrows() | time_machine() | stars | add_color
            | family("icons/snapshot/add-*.svg", shape("camera-plus"), PUSH)
            | family("icons/PresetInfo/close-*.svg", shape("x"), PUSH_OR_NOT)
            | family("icons/PresetInfo/information-*.svg", shape("info-circle"), TOGGLE))
