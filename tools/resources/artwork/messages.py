# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Coloured pictures of messages, calibration modules, and the parts of the black-and-white/colour switch."""

from math import cos, pi, sin

from drawing import LOOKS, PUSH, Look, family, icon, stroked
from shared.colours import ICON_ACCENT
from shared.svg import circle, document, group, number, path, rect, shape

RED, BLUE, AMBER, WHITE = "#c8402f", "#3f7fc0", "#e5a332", "#ffffff"
HUES = ("#e0524a", "#e39a3b", "#d8cf4a", "#58b45c", "#4a86d8", "#9a5ccf")
GRAYS = ("#f2f2f2", "#cfcfcf", "#a6a6a6", "#7d7d7d", "#585858", "#383838")


def error():
    return document(circle(24, 24, 20, fill=RED) + stroked(path("M17 17l14 14M31 17l-14 14"), Look(WHITE, 4)), 48)


def information():
    return document(circle(24, 24, 20, fill=BLUE) + stroked(path("M24 23v10"), Look(WHITE, 4))
                    + circle(24, 15.5, 2.5, fill=WHITE), 48)


def warning(size):
    triangle = path("M24 8L42 39H6z", fill=AMBER, stroke=AMBER, stroke_width=6, stroke_linejoin="round")
    mark = stroked(path("M24 17v11"), Look("#2a1d05", 4)) + circle(24, 35, 2.5, fill="#2a1d05")
    return document(triangle + mark, size, area=(48, 48))


def calibration_modules():
    """Camera and lens."""
    lens = shape("aperture").replace('d="M3 12', f'stroke="{ICON_ACCENT}" d="M3 12')
    camera = shape("camera") + circle(12, 13, 3, fill=ICON_ACCENT, stroke=ICON_ACCENT)
    return {"icons/caf/icon-CAF-1.svg": icon(camera, LOOKS["default"]),
            "icons/caf/icon-CAF-2.svg": icon(lens, LOOKS["default"])}


def wheel(colours):
    """Six sectors around the middle, the first at the top."""
    radius, sectors = 9, []
    for index, colour in enumerate(colours):
        start, end = (pi / 3 * (index + step) - pi / 2 for step in (0, 1))
        corners = [number(12 + radius * turn(angle)) for angle in (start, end) for turn in (cos, sin)]
        sectors.append(path("M12 12L{} {}A9 9 0 0 1 {} {}z".format(*corners), fill=colour))
    return "".join(sectors)


def switch():
    files = {}
    for name, colours in {"bw": GRAYS, "col": HUES}.items():
        ring = circle(12, 12, 9.5, fill="none", stroke="#e8e8e8", stroke_width=1.5)
        files[f"qml/SwitchButton/spect-{name}.svg"] = document(wheel(colours) + ring, 24)
        files[f"qml/SwitchButton/spect-{name}-not-selected.svg"] = document(
            group(wheel(colours), opacity=0.4), 24)
    files["qml/SwitchButton/switch-bg.svg"] = document(
        rect(0.5, 0.5, 47, 23, 11.5, fill="#161616", stroke="#4a4a4a"), 48, 24)
    files["qml/SwitchButton/toogle.svg"] = document(
        circle(10, 10, 9.5, fill="#c4c4c4", stroke="#e4e4e4") + circle(10, 10, 3, fill="#8c8c8c"), 20)
    return files


def files():
    return calibration_modules() | switch() | {
        "icons/alert.svg": warning(24),
        "icons/secondary_windows/error.svg": error(),
        "icons/secondary_windows/information.svg": information(),
        "icons/secondary_windows/warning.svg": warning(48),
    } | family("icons/secondary_windows/close-*.svg", shape("x"), PUSH)
