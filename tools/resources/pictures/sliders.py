# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Grooves, knobs and marks of the sliders, switches and progress bars."""

from image import from_svg
from shared import colours, svg

KNOB, GROOVE = 14, (120, 6)
OWN_COLOURS = {  # each with the colour at the other end of its groove
    "red": ("#d23c34", "#2f9fae"), "green": ("#45a04c", "#b5419a"), "blue": ("#4a6fd6", "#b59a35"),
    "cyan": ("#2f9fae", "#d23c34"), "magenta": ("#b5419a", "#45a04c"),
}
KNOB_STATES = {  # lightening of the body, then the colours of rim and middle
    "default": (0.0, "#0c0c0c", None), "hover": (0.5, "#0c0c0c", None),
    "onpressed": (-0.25, "#f2f2f2", "#f2f2f2"), "disabled": (None, "#1b1b1b", None),
}


def shade(colour, change):
    return colours.mix(colour, "#ffffff" if change > 0 else "#000000", abs(change))


def knob(colour, state):
    change, rim, middle = KNOB_STATES[state]
    body = colours.mix("#454545", colour, 0.14) if change is None else shade(colour, change)
    is_flat = state in ("disabled", "onpressed")
    top, bottom = (body, body) if is_flat else (shade(body, 0.3), shade(body, -0.18))
    content = (svg.gradient("body", (0, top), (1, bottom)) + svg.circle(7, 7, 7, fill="#000000", fill_opacity=0.35)
               + svg.circle(7, 7, 6, fill=rim) + svg.circle(7, 7, 5, fill="url(#body)"))
    if middle:
        content += svg.circle(7, 7, 2, fill=middle)
    return from_svg(svg.document(content, KNOB))


def groove(*stops):
    """A bar with round ends: a dark line around it, and inside a run of colours from left to right."""
    width, height = GROOVE
    border = svg.rect(0, 0, width, height, 3, fill="#0c0c0c")
    inside = svg.rect(1, 1, width - 2, height - 2, 2, fill="url(#run)")
    return from_svg(svg.document(svg.gradient("run", *stops, across=True) + border + inside, width, height))


def bar(height, border, top, bottom, light=None):
    """A bar with a border, darker or lighter downwards; light is a line under its upper border."""
    content = (svg.gradient("run", (0, top), (1, bottom)) + svg.rect(0, 0, 120, height, 3, fill=border)
               + svg.rect(1, 1, 118, height - 2, 2, fill="url(#run)"))
    if light:
        content += svg.rect(2, 1, 116, 1, fill=light)
    return from_svg(svg.document(content, 120, height))


def bubble():
    """The speech bubble of a value, with its point at the middle of the lower edge."""
    outline = ("M5 0.5h34a4.5 4.5 0 0 1 4.5 4.5v13a4.5 4.5 0 0 1 -4.5 4.5h-12l-5 5l-5 -5h-12"
               "a4.5 4.5 0 0 1 -4.5 -4.5v-13a4.5 4.5 0 0 1 4.5 -4.5z")
    body = svg.gradient("body", (0, "#4e4e4e"), (1, "#363636"))
    return from_svg(svg.document(body + svg.path(outline, fill="url(#body)", stroke="#7c7c7c"), 44, 28))


def switch(is_on, state):
    grounds = {"default": colours.ACCENT, "hover": "#cf5a25", "disabled": "#41271b"} if is_on else {
        "default": "#3a3a3a", "hover": "#4c4c4c", "disabled": "#2a2a2a"}
    knobs = {"default": "#ececec" if is_on else "#999999", "hover": "#ffffff" if is_on else "#dddddd",
             "disabled": "#6b5a52" if is_on else "#4a4a4a"}
    border = {"default": "#0f0f0f", "hover": "#0f0f0f", "disabled": "#343434"}[state]
    ground = svg.rect(0, 0, 28, 16, 8, fill=border) + svg.rect(1, 1, 26, 14, 7, fill=grounds[state])
    return from_svg(svg.document(ground + svg.circle(20 if is_on else 8, 8, 5, fill=knobs[state]), 28, 16))


def colour_sliders():
    for name, (own, other) in OWN_COLOURS.items():
        folder = f"side_bars/{name}Slider"
        yield f"{folder}/groove.png", groove((0, other), (0.5, "#6a6a6a"), (1, own))
        for state in KNOB_STATES:
            yield f"{folder}/slider-{state}.png", knob(own, state)


def plain_slider():
    for state in KNOB_STATES:
        yield f"slider/handle-{state}.png", knob(colours.ACCENT_LIGHT if state == "onpressed" else "#868686", state)
    yield "slider/slidebar-default.png", bar(6, "#0c0c0c", "#161616", "#303030")
    yield "slider/slidebar-active.png", bar(6, "#0c0c0c", "#d0521b", colours.ACCENT_BOTTOM)
    yield "slider/slidebar-disabled.png", bar(6, "#2f2f2f", "#262626", "#262626")
    yield "slider/bubble.png", bubble()
    yield "slider/center-mark.png", from_svg(svg.document(
        svg.rect(0, 0, 3, 8, fill="#0c0c0c") + svg.rect(1, 1, 1, 6, fill="#b0b0b0"), 3, 8))


def pictures():
    yield from colour_sliders()
    yield from plain_slider()
    for is_on, word in ((True, "on"), (False, "off")):
        for state in ("default", "hover", "disabled"):
            yield f"settingsPanel/correction-switch-{word}-{state}.png", switch(is_on, state)
    yield "secondary_windows/progressbar-ground.png", bar(10, "#0f0f0f", "#2a2a2a", "#3d3d3d")
    chunk = bar(8, colours.ACCENT_BOTTOM, "#b9562a", colours.ACCENT_BOTTOM, colours.ACCENT_LIGHT)
    yield "secondary_windows/progressbar.png", chunk
