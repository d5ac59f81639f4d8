# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Parts of standard controls, drawn pixel by pixel at the size at which the style sheets show them."""

from drawing import LOOKS, PUSH, Look, icon, stroked
from shared.colours import DARK, GROUND, ICON_ACCENT
from shared.svg import circle, document, group, path, rect, shape

BOX = 15  # side of check boxes and radio buttons
BAR = 12  # breadth of scroll bars
FIELDS = {  # ground and outline of a box
    "default": (DARK, "#6e6e6e"),
    "hover": (DARK, "#b4b4b4"),
    "disabled": (GROUND, "#404040"),
}
TURNS = {"up": 0, "right": 90, "down": 180, "left": 270}


def boxes():
    files = {}
    for state, (ground, outline) in FIELDS.items():
        files[f"icons/checkbox-{state}.svg"] = document(
            rect(0.5, 0.5, BOX - 1, BOX - 1, 2, fill=ground, stroke=outline), BOX)
        files[f"icons/radiobutton-{state}.svg"] = document(
            circle(BOX / 2, BOX / 2, BOX / 2 - 0.5, fill=ground, stroke=outline), BOX)
    files["icons/radiobutton-checked.svg"] = document(
        circle(BOX / 2, BOX / 2, BOX / 2 - 0.5, fill=DARK, stroke="#8c8c8c")
        + circle(BOX / 2, BOX / 2, 3.5, fill=ICON_ACCENT), BOX)
    return files


def check_marks():
    mark = path("M3.5 7.75l3 3l5-6.5")
    return {"icons/checkmark.svg": document(stroked(mark, Look(ICON_ACCENT, 2)), BOX),
            "icons/checkmark-disabled.svg": document(stroked(mark, Look("#606060", 1.75)), BOX)}


def small_arrows():
    """Those of spin boxes, combo boxes and trees."""
    ink = Look("#aaaaaa", 1.5)
    return {
        "icons/spin-up.svg": document(path("M4.5 1L8 5H1z", fill=ink.ink), 9, 6),
        "icons/spin-down.svg": document(path("M4.5 5L1 1h7z", fill=ink.ink), 9, 6),
        "icons/combobox/arrow-combo-single.svg": document(stroked(path("M2.5 4.5l3.5 3.5l3.5-3.5"), ink), 12),
        "icons/combobox/arrows-combo.svg": document(stroked(path("M3 4.5l3-3l3 3M3 7.5l3 3l3-3"), ink), 12),
        "icons/branch-closed.svg": icon(shape("chevron-right"), LOOKS["default"], size=16),
        "icons/branch-open.svg": icon(shape("chevron-down"), LOOKS["default"], size=16),
    }


def scroll_button(direction, state):
    look = Look(LOOKS[state].ink, 1.5)
    ground = {"hover": "#3a3a3a", "onpressed": "#42251a"}.get(state)
    arrow = group(path("M3 7.5l3-3l3 3"), transform=f"rotate({TURNS[direction]} 6 6)")
    return document((rect(0, 0, BAR, BAR, 2, fill=ground) if ground else "") + stroked(arrow, look), BAR)


def grip(orientation, state):
    """Three ridges across the direction of movement."""
    lines = "M3.5 3v6M6.5 3v6M9.5 3v6" if orientation == "horizontal" else "M3 3.5h6M3 6.5h6M3 9.5h6"
    colour = {"default": "#8a8a8a", "hover": "#ececec", "onpressed": LOOKS["onpressed"].ink}[state]
    return document(path(lines, fill="none", stroke=colour), BAR)


def scroll_bars():
    files = {}
    for state in PUSH:
        for direction in TURNS:
            files[f"icons/scroll_bars/button-{direction}-{state}.svg"] = scroll_button(direction, state)
        for orientation in ("horizontal", "vertical"):
            files[f"icons/scroll_bars/grip-{orientation}-{state}.svg"] = grip(orientation, state)
    return files


def slider_buttons():
    triangles = {"up": "M6 2l4 5h-8z", "down": "M6 7l-4-5h8z"}
    return {f"icons/slider/slider-{name}-{state}.svg": document(path(data, fill=LOOKS[state].ink), 12, 9)
            for name, data in triangles.items() for state in PUSH}


def size_grip():
    dots = "".join(rect(x, y, 2, 2) for x, y in ((9, 9), (5, 9), (1, 9), (9, 5), (5, 5), (9, 1)))
    return {"icons/size-grip.svg": document(group(dots, fill="#6e6e6e"), BAR)}


def files():
    return boxes() | check_marks() | small_arrows() | scroll_bars() | slider_buttons() | size_grip()
