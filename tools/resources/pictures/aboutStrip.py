# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""The decoration at the left of the about box: a piece of film that fades into the black ground."""

from image import from_svg
from shared import svg

WIDTH, HEIGHT = 160, 320
FILM_LEFT, FILM_WIDTH = 16, 120
FRAME_TOP, FRAME_HEIGHT, FRAME_STEP = -34, 96, 106
SKIES = ("#6e2f12", "#8d3a12", "#5f2a14", "#43220f")


def perforation():
    holes = (svg.rect(x, y, 10, 8, 2, fill="#000000") for y in range(-4, HEIGHT, 16)
             for x in (FILM_LEFT + 5, FILM_LEFT + FILM_WIDTH - 15))
    return "".join(holes)


def landscape(x, y, number):
    """A low sun over two rows of hills."""
    width, bottom = FILM_WIDTH - 44, y + FRAME_HEIGHT
    sun = svg.circle(x + 22 + 14 * number % 50, y + 46 - 3 * number, 9, fill="#c9653a", fill_opacity=0.8)
    far = svg.path(f"M{x} {y + 62}c18 -14 30 -12 44 -2c12 8 22 6 {width - 44} -6V{bottom}H{x}z", fill="#2c150b")
    near = svg.path(f"M{x} {y + 74}c14 2 24 10 40 8c14 -2 22 -10 {width - 40} -6V{bottom}H{x}z", fill="#160b06")
    return svg.rect(x, y, width, FRAME_HEIGHT, fill=f"url(#sky{number})") + sun + far + near


def strip():
    frames = "".join(landscape(FILM_LEFT + 22, FRAME_TOP + FRAME_STEP * i, i) for i in range(4))
    skies = "".join(svg.gradient(f"sky{i}", (0, "#1c0d07"), (0.7, colour)) for i, colour in enumerate(SKIES))
    fade = svg.gradient("fade", (0, "#000000", 0), (0.45, "#000000", 0.1), (1, "#000000", 1), across=True)
    ends = svg.gradient("ends", (0, "#000000", 0.85), (0.3, "#000000", 0), (0.7, "#000000", 0), (1, "#000000", 0.85))
    covers = "".join(svg.rect(0, 0, WIDTH, HEIGHT, fill=f"url(#{name})") for name in ("fade", "ends"))
    ground = svg.rect(0, 0, WIDTH, HEIGHT, fill="#000000")
    film = svg.rect(FILM_LEFT, 0, FILM_WIDTH, HEIGHT, fill="#281c16") + perforation()
    return svg.document(skies + fade + ends + ground + film + frames + covers, WIDTH, HEIGHT)


def pictures():
    yield "about/left-copyright.png", from_svg(strip())
