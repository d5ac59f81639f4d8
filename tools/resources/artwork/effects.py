# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The panels of effects: frame, light leak and toning."""

from drawing import INK, LOOKS, TOGGLE, families, icon, solid
from shared.svg import group, path, rect, shape

PICTURE = rect(3, 3, 18, 18, 2)


def frame_inside():
    """The band of the frame lies on the picture."""
    band = path("M3 3h18v18h-18zM7.5 7.5v9h9v-9z", fill=INK, fill_opacity=0.65, fill_rule="evenodd", stroke="none")
    return band + PICTURE


def frame_outside():
    """The frame lies around the picture, which keeps its whole area."""
    return PICTURE + rect(7, 7, 10, 10, 0.5, **solid()) + path("M3 3l4 4M21 3l-4 4M3 21l4-4M21 21l-4-4")


def light_from_left():
    light = path("M3 5.5a6.5 6.5 0 0 1 0 13z", **solid())
    return PICTURE + light + path("M12.5 12h4M11.25 7.5l3-2M11.25 16.5l3 2")


def turned(drawing, degrees):
    return group(drawing, transform=f"rotate({degrees} 12 12)")


def light_leaks():
    sides = {"left": 0, "top": 90, "right": 180, "bottom": 270}
    return {side: turned(light_from_left(), degrees) for side, degrees in sides.items()} | {
        "any-size": PICTURE + path("M13 7h4v4M17 7l-4 4M11 17h-4v-4M7 17l4-4")}


def files():
    frames = {"inside-picture": frame_inside(), "outside-picture": frame_outside()}
    toning = {"frame": shape("frame"), "icon_hide": shape("eye-off"), "icon_show": shape("eye"),
              "picker": shape("color-picker")}
    no_frame = PICTURE + path("M6.5 17.5l11-11")
    return (families("icons/frame/?-*.svg", frames, TOGGLE)
            | {"icons/frame/no-frame.svg": icon(no_frame, LOOKS["default"])}
            | families("icons/lightleak/?-*.svg", light_leaks(), TOGGLE)
            | families("icons/toning/?-*.svg", toning, TOGGLE))
