# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Pieces of SVG text, of the plain kind that a renderer of SVG Tiny understands."""

import json
from pathlib import Path

_SHAPES = json.loads(Path(__file__).with_name("baseShapes.json").read_text(encoding="utf-8"))


def number(value):
    return f"{round(value, 3):g}"


def element(name, content="", **attributes):
    """fill_opacity=0.5 becomes fill-opacity="0.5"; None leaves an attribute out."""
    texts = {key: number(value) if isinstance(value, (int, float)) else value for key, value in attributes.items()}
    pairs = "".join(f' {key.replace("_", "-")}="{text}"' for key, text in texts.items() if text is not None)
    start = f"<{name}{pairs}"
    return f"{start}>{content}</{name}>" if content else f"{start}/>"


def group(content, **attributes):
    return element("g", content, **attributes)


def path(data, **attributes):
    return element("path", d=data, **attributes)


def rect(x, y, width, height, radius=None, **attributes):
    return element("rect", x=x, y=y, width=width, height=height, rx=radius, **attributes)


def circle(x, y, radius, **attributes):
    return element("circle", cx=x, cy=y, r=radius, **attributes)


def gradient(name, *stops, across=False):
    """A linear gradient, downwards or across, of (offset, colour) or (offset, colour, opacity)."""
    content = "".join(element("stop", offset=offset, stop_color=colour, stop_opacity=opacity[0] if opacity else None)
                      for offset, colour, *opacity in stops)
    return element("linearGradient", content, id=name, x1=0, y1=0, x2=int(across), y2=int(not across))


def shape(name, **attributes):
    """The strokes of one of the base shapes on the grid of 24 by 24 units."""
    return "".join(path(data, **attributes) for data in _SHAPES[name])


def document(content, width, height=None, area=None):
    """The text of a file, width by height pixels large, that shows the area (width, height).

    It is square without a height, and shows as many units as pixels without an area.
    """
    height = width if height is None else height
    box = " ".join(number(side) for side in (0, 0, *(area or (width, height))))
    return element("svg", content, xmlns="http://www.w3.org/2000/svg", width=width, height=height, viewBox=box) + "\n"
