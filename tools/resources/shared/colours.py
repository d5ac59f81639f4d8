# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The colours of the look, and how states change them."""

GROUND = "#232323"
DARK = "#1b1b1b"
DARKEST = "#030303"
BORDER = "#3b3b3b"
ACCENT = "#a33f12"
ACCENT_LIGHT = "#ce7044"
ACCENT_TOP, ACCENT_BOTTOM = "#a34012", "#8d370f"

ICON_ACCENT = "#e06a33"  # lighter than the others: an icon has little area
ICON_STATES = {
    "default": "#aaaaaa", "hover": "#ececec", "selected": ICON_ACCENT, "selected-hover": "#ff9a66",
    "onpressed": "#d0521b", "disabled": "#505050", "active": ICON_ACCENT,
}


def parts(colour):
    """(red, green, blue) of "#rrggbb"."""
    return tuple(int(colour[i:i + 2], 16) for i in (1, 3, 5))


def text(values):
    return "#" + "".join(f"{min(255, max(0, round(value))):02x}" for value in values)


def mix(first, second, share):
    """The first colour with this share of the second in it."""
    return text(a + (b - a) * share for a, b in zip(parts(first), parts(second)))


def pixel(colour, alpha=255):
    return (*parts(colour), alpha)
