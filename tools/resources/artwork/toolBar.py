# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The main tool bar, the bottom bar and the buttons below the preview."""

from drawing import INK, PUSH, PUSH_OR_NOT, TOGGLE_OR_NOT, families, family, solid
from shared.svg import circle, path, rect, shape

PICTURE = rect(3, 4, 18, 16, 2)


def split_picture():
    """Before and after in one picture: its right half is the changed one."""
    right_half = path("M12 4h7a2 2 0 0 1 2 2v12a2 2 0 0 1-2 2h-7z", fill=INK, fill_opacity=0.45)
    return PICTURE + path("M12 2v20") + right_half


def two_pictures():
    return rect(2, 5, 8, 14, 1.5) + rect(14, 5, 8, 14, 1.5, fill=INK, fill_opacity=0.45)


def preview_split():
    """The picture with its divider, which has a handle to be moved by."""
    return PICTURE + path("M12 4v4M12 16v4") + path("M12 9l3.5 3l-3.5 3l-3.5-3z", fill=INK)


def horizon():
    """A picture whose horizon is not level."""
    ground = path("M3 16.5L21 10v8a2 2 0 0 1-2 2h-14a2 2 0 0 1-2-2z", fill=INK, fill_opacity=0.45)
    return PICTURE + ground + circle(8.5, 9, 1.25, fill=INK)


def vignetting():
    corners = path("M5 3h14a2 2 0 0 1 2 2v14a2 2 0 0 1-2 2h-14a2 2 0 0 1-2-2v-14a2 2 0 0 1 2-2z"
                   "M12 5.5a6.5 6.5 0 1 0 0 13a6.5 6.5 0 1 0 0-13z",
                   fill=INK, fill_opacity=0.65, fill_rule="evenodd", stroke="none")
    return corners + rect(3, 3, 18, 18, 2)


def sliders_and_arrow():
    """The settings that go into the file."""
    return (circle(5, 9, 2) + path("M5 4v3M5 11v9") + circle(12, 15, 2) + path("M12 4v9M12 17v3")
            + path("M19 4v16M22 17l-3 3l-3-3"))


def rotated(arrow):
    return shape(arrow) + rect(9, 10, 6, 5, 1, **solid())


def files():
    toggles = {
        "compare-1": split_picture(), "compare-2": two_pictures(), "crop": shape("crop"),
        "histo": shape("chart-histogram"), "horizon": horizon(), "vignetting": vignetting(),
    }
    buttons = {
        "preview-split": preview_split(), "undo": shape("arrow-back-up"), "redo": shape("arrow-forward-up"),
        "rotate-left": rotated("rotate"), "rotate-right": rotated("rotate-clockwise"),
        "settings": shape("settings"), "zoom": shape("zoom-in"),
    }
    below_preview = {
        "save-aspreset": sliders_and_arrow(), "save-image": shape("photo-down"),
        "send-to-host": shape("package-export"),
    }
    return (families("icons/toolBar/?-*.svg", toggles, TOGGLE_OR_NOT)
            | families("icons/toolBar/?-*.svg", buttons, PUSH_OR_NOT)
            | families("icons/buttons/?-*.svg", below_preview, PUSH_OR_NOT)
            | family("icons/ToolBarBottom/folder-*-fixed.svg", shape("folder"), PUSH))
