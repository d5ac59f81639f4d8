# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Pieces of SVG text, of the plain kind that a renderer of SVG Tiny understands."""

import json
from pathlib import Path

SHAPES = json.loads(Path(__file__).with_name("baseShapes.json").read_text(encoding="utf-8"))


def number(value):
    return f"{value:.2f}".rstrip("0").rstrip(".")


def attributes(values):
    """fill_opacity=0.5 becomes fill-opacity="0.5"; None leaves an attribute out."""
    texts = {name: number(value) if isinstance(value, float) else value for name, value in values.items()}
    return "".join(f' {name.replace("_", "-")}="{value}"' for name, value in texts.items() if value is not None)


def element(name, content="", **values):
    start = f"<{name}{attributes(values)}"
    return f"{start}>{content}</{name}>" if content else f"{start}/>"


def group(content, **values):
    return element("g", content, **values)


def path(data, **values):
    return element("path", d=data, **values)


def rect(x, y, width, height, radius=None, **values):
    return element("rect", x=x, y=y, width=width, height=height, rx=radius, **values)


def circle(x, y, radius, **values):
    return element("circle", cx=x, cy=y, r=radius, **values)


def gradient(name, *stops, across=False):
    """A linear gradient, downwards or across, of (offset, colour) or (offset, colour, opacity)."""
    content = "".join(element("stop", offset=offset, stop_color=colour, stop_opacity=opacity[0] if opacity else None)
                      for offset, colour, *opacity in stops)
    return element("linearGradient", content, id=name, x1=0, y1=0, x2=int(across), y2=int(not across))


def shape(name, **values):
    """The strokes of one of the base shapes on the grid of 24 units."""
    return "".join(path(data, **values) for data in SHAPES[name])


def document(width, height, *content, head="", box=None):
    body = "\n".join(f"  {part}" for part in content)
    box = box or f"0 0 {width} {height}"
    start = element("svg", "\n", xmlns="http://www.w3.org/2000/svg", width=width, height=height, viewBox=box)
    return start.replace("</svg>", f"{head}{body}\n</svg>\n")
