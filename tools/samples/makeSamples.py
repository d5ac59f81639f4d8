#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Renders the sample photographs of the lightbox example: a mountain lake at dusk and a lighthouse at night.

Usage: makeSamples.py [folder]

The lighthouse tells a camera and a lens that the catalogue of calibration modules has; the lake tells none.

Needs numpy and Pillow (Debian: python3-numpy, python3-pil). The pictures are computed: nothing is taken from a
photograph. Pixels are linear light in arrays of height x width x 3 until develop() gives them film-like tones, grain
and a vignette.
"""

import sys
from pathlib import Path

import numpy as np
from PIL import Image, ImageFilter
from PIL.TiffImagePlugin import IFDRational

DEFAULT_FOLDER = Path(__file__).resolve().parents[2] / "examples" / "lightbox" / "samples"
QUALITY = 84

# Tags of Exif.
MAKE, MODEL, EXIF_FOLDER, FOCAL_LENGTH, LENS_MODEL = 0x010F, 0x0110, 0x8769, 0x920A, 0xA434


def smooth(edge0, edge1, x):
    t = np.clip((x - edge0) / (edge1 - edge0), 0.0, 1.0)
    return t * t * (3.0 - 2.0 * t)


def mix(a, b, t):
    return a + (b - a) * t


def value_noise(rng, height, width, cells_y, cells_x):
    """Smooth noise from 0 to 1 with the given number of cells."""
    grid = Image.fromarray(rng.random((cells_y + 3, cells_x + 3)).astype(np.float32))
    step_x, step_y = width / cells_x, height / cells_y
    big = grid.resize((int((cells_x + 3) * step_x) + 1, int((cells_y + 3) * step_y) + 1), Image.BICUBIC)
    top, left = int(step_y), int(step_x)
    return np.asarray(big)[top:top + height, left:left + width]


def fractal(rng, height, width, cells_y, cells_x, octaves, gain=0.5):
    total = np.zeros((height, width))
    weight, sum_of_weights = 1.0, 0.0
    for octave in range(octaves):
        total += weight * value_noise(rng, height, width, max(1, cells_y << octave), max(1, cells_x << octave))
        sum_of_weights += weight
        weight *= gain
    return total / sum_of_weights


def fractal_line(rng, width, cells, octaves, gain=0.5):
    return fractal(rng, 4, width, 1, cells, octaves, gain)[1]


def blur(picture, radius):
    channels = [Image.fromarray(picture[..., c].astype(np.float32)) for c in range(3)]
    scale = 4096.0  # the filter works on 8 bits; a coarse glow is enough for what is blurred here
    done = []
    for channel in channels:
        array = np.asarray(channel)
        peak = max(float(array.max()), 1.0 / scale)
        eight = Image.fromarray((array / peak * 255.0).astype(np.uint8)).filter(ImageFilter.GaussianBlur(radius))
        done.append(np.asarray(eight) / 255.0 * peak)
    return np.stack(done, axis=-1)


def gradient(y, stops):
    """Colours along y (any shape); `stops` is a list of (position, (r, g, b))."""
    places = [place for place, _ in stops]
    return np.stack([np.interp(y, places, [colour[c] for _, colour in stops]) for c in range(3)], axis=-1)


def develop(rng, picture, vignette=0.45, grain=0.016, glow=0.16):
    """Linear light to an 8-bit picture: halation, tone curve, vignette, grain."""
    height, width, _ = picture.shape
    bright = np.clip(picture - 0.7, 0.0, 3.0)
    picture = picture + glow * blur(bright, width / 45) * np.array([1.0, 0.55, 0.35])
    y, x = np.mgrid[-1.0:1.0:height * 1j, -1.0:1.0:width * 1j]
    picture = picture * (1.0 - vignette * smooth(0.35, 1.9, x * x + y * y))[..., None]
    picture = 1.0 - np.exp(-1.35 * picture)  # a shoulder for the highlights
    picture = np.clip(picture, 0.0, 1.0) ** (1.0 / 2.2)
    picture = mix(picture, smooth(0.0, 1.0, picture), 0.45)
    noise = rng.normal(0.0, 1.0, (height, width))
    noise = np.asarray(Image.fromarray(noise.astype(np.float32)).resize((width, height)))
    noise = 0.6 * noise + 0.4 * np.roll(noise, 1, axis=1)
    picture = picture + (grain * noise * (1.0 - 0.6 * picture.mean(axis=-1)))[..., None]
    return Image.fromarray((np.clip(picture, 0.0, 1.0) * 255.0 + 0.5).astype(np.uint8))


def ridge(rng, picture, base, height_of, cells, colour, haze, light, roughness=0.55):
    """Paints one mountain range, lit from the left, fading into `haze` towards its foot."""
    height, width, _ = picture.shape
    line = fractal_line(rng, width, cells, 8, roughness)
    line = base - height_of * (0.25 + 1.5 * (line - 0.25))
    y = np.arange(height)[:, None]
    inside = smooth(-0.8, 0.8, y - line[None, :])
    depth = np.clip((y - line[None, :]) / max(height_of, 1.0), 0.0, 1.6)
    rock = fractal(rng, height, width, 14, 20, 6, 0.6)
    slope = np.gradient(rock, axis=1) * width / 40 - np.gradient(line)[None, :] * 0.25
    shade = 1.0 + np.clip(slope, -0.75, 1.2)
    snow = smooth(0.46, 0.60, rock + 0.10 * np.clip(slope, -1, 1) - 0.42 * depth) * light
    face = np.asarray(colour) * shade[..., None]
    face = mix(face, np.array([0.62, 0.50, 0.50]) * (0.55 + 0.45 * shade[..., None]), snow[..., None])
    face = mix(face, np.asarray(haze), smooth(0.15, 1.25, depth)[..., None] * 0.85)
    return mix(picture, face, inside[..., None]), line


def trees(rng, picture, foot, tallest, colour, density):
    """A dark row of firs along `foot`, painted tree by tree."""
    height, width, _ = picture.shape
    x = np.arange(width)
    top = np.array(foot, dtype=float)
    grove = fractal_line(rng, width, 7, 4)
    for _ in range(int(width * density)):
        middle = rng.random() * width
        size = tallest * (0.25 + 0.75 * rng.random()) * (0.25 + 1.3 * grove[min(int(middle), width - 1)])
        half = size * 0.17
        near = np.abs(x - middle) < half
        layered = 1.0 + 0.16 * np.sin((x - middle) / half * 16.0)
        cone = foot - size * (1.0 - np.abs(x - middle) / half * layered)
        top = np.where(near, np.minimum(top, cone), top)
    inside = smooth(-0.7, 0.7, np.arange(height)[:, None] - top[None, :])
    return mix(picture, np.asarray(colour), inside[..., None])


def clouds(rng, height, width, cells_y, cells_x, low, high):
    field = fractal(rng, height, width, cells_y, cells_x, 6, 0.55)
    return smooth(low, high, field)


def mountain_lake():
    width, height = 1600, 1067
    shore = 640
    rng = np.random.default_rng(20260114)
    y = np.linspace(0.0, 1.0, shore)[:, None] * np.ones((1, width))
    x = np.linspace(0.0, 1.0, width)[None, :] * np.ones((shore, 1))
    sky = gradient(y, [(0.0, (0.045, 0.085, 0.20)), (0.35, (0.14, 0.19, 0.36)), (0.58, (0.55, 0.38, 0.40)),
                       (0.78, (1.05, 0.58, 0.30)), (1.0, (1.25, 0.85, 0.48))])
    sun = np.exp(-(((x - 0.36) * 2.6) ** 2 + ((y - 0.80) * 3.2) ** 2))
    sky = sky * (0.72 + 0.75 * sun[..., None])
    streaks = clouds(rng, shore, width, 9, 3, 0.47, 0.72) * smooth(0.98, 0.5, y)
    lit = gradient(y, [(0.0, (0.17, 0.17, 0.28)), (0.45, (0.75, 0.36, 0.30)), (0.8, (1.5, 0.80, 0.40))])
    sky = mix(sky, lit * (0.6 + 0.7 * sun[..., None]), 0.72 * streaks[..., None])
    scene, _ = ridge(rng, sky, 560, 260, 4, (0.20, 0.19, 0.29), (0.66, 0.44, 0.38), 0.9)
    scene, _ = ridge(rng, scene, 600, 170, 5, (0.095, 0.10, 0.17), (0.42, 0.31, 0.32), 0.35)
    scene, _ = ridge(rng, scene, 632, 90, 6, (0.035, 0.045, 0.075), (0.20, 0.17, 0.20), 0.0)
    foot = shore - 6 - 14 * fractal_line(rng, width, 5, 3)
    mist = smooth(0.80, 0.97, y) * (0.25 + 0.6 * fractal(rng, shore, width, 6, 4, 4))
    scene = mix(scene, np.array([0.62, 0.45, 0.42]), 0.55 * mist[..., None])
    scene = trees(rng, scene, foot, 62, (0.010, 0.014, 0.018), 0.30)

    depth = height - shore
    t = np.linspace(0.0, 1.0, depth)[:, None]
    rows = np.arange(depth)[:, None]
    columns = np.arange(width)[None, :]
    stretched = np.clip(shore - 1 - rows * 1.18, 0, shore - 1)
    ripple = fractal(rng, depth, width, 60, 6, 4, 0.6) - 0.5
    broad = fractal(rng, depth, width, 12, 3, 3) - 0.5
    offset = (ripple * 46 + broad * 20) * (0.08 + 1.1 * t)
    from_y = np.clip(stretched + offset, 0, shore - 1).astype(int)
    from_x = np.clip(columns + offset * 0.25, 0, width - 1).astype(int)
    water = scene[from_y, from_x] * mix(0.82, 0.42, t)[..., None]
    water = mix(water, np.array([0.030, 0.055, 0.10]), (0.12 + 0.45 * t ** 1.3)[..., None])
    wind = smooth(0.55, 0.70, fractal(rng, depth, width, 14, 2, 4)) * smooth(0.02, 0.12, t) * smooth(0.9, 0.3, t)
    water = mix(water, np.array([0.42, 0.33, 0.36]), 0.33 * wind[..., None])

    picture = np.concatenate([scene, water])
    full_y = np.arange(height)[:, None]
    bank = height - 46 - 105 * smooth(0.50, 1.05, np.linspace(0, 1, width)) - 46 * fractal_line(rng, width, 9, 6, 0.6)
    inside = smooth(-1.0, 1.0, full_y - bank[None, :])
    stones = smooth(0.30, 0.72, fractal(rng, height, width, 55, 50, 5, 0.75))
    rim = np.exp(-np.clip(full_y - bank[None, :], 0, None) / 9.0)
    ground = np.array([0.011, 0.011, 0.013]) * (0.2 + 1.9 * stones[..., None])
    ground = ground + (rim * stones)[..., None] * np.array([0.16, 0.085, 0.055])
    picture = mix(picture, ground, inside[..., None])
    return develop(rng, picture)


def lighthouse():
    width, height = 1067, 1600
    horizon = 1080
    rng = np.random.default_rng(20260117)
    y = np.linspace(0.0, 1.0, horizon)[:, None] * np.ones((1, width))
    x = np.linspace(0.0, 1.0, width)[None, :] * np.ones((horizon, 1))
    sky = gradient(y, [(0.0, (0.012, 0.022, 0.070)), (0.45, (0.040, 0.075, 0.17)), (0.78, (0.17, 0.19, 0.29)),
                       (0.93, (0.55, 0.33, 0.25)), (1.0, (0.85, 0.46, 0.24))])
    sky = sky * (0.75 + 0.6 * np.exp(-((x - 0.15) * 1.6) ** 2)[..., None] * y[..., None] ** 2)
    starlight = rng.random((horizon, width)) > 0.99955
    stars = blur((starlight * rng.random((horizon, width)) * 3.0)[..., None] * np.array([0.9, 0.95, 1.0]), 0.9)
    sky = sky + 2.2 * stars * smooth(0.72, 0.2, y)[..., None]
    banks = clouds(rng, horizon, width, 11, 2, 0.48, 0.70)
    colour = gradient(y, [(0.0, (0.02, 0.028, 0.065)), (0.6, (0.085, 0.095, 0.16)), (0.85, (0.50, 0.27, 0.22)),
                          (1.0, (0.75, 0.38, 0.20))])
    sky = mix(sky, colour, (0.75 * banks * smooth(0.10, 0.55, y))[..., None])

    depth = height - horizon
    t = np.linspace(0.0, 1.0, depth)[:, None]
    waves = sum(0.5 ** i * (fractal(rng, depth, width, 26 << i, 3 << i, 2) - 0.5) for i in range(4))
    squeeze = (np.linspace(0, 1, depth) ** 0.55 * (depth - 1)).astype(int)  # finer towards the horizon
    waves = waves[squeeze]
    sea = gradient(t * np.ones((1, width)), [(0.0, (0.34, 0.24, 0.22)), (0.12, (0.10, 0.11, 0.15)),
                                             (1.0, (0.012, 0.022, 0.045))])
    sea = sea * (1.0 + 2.6 * np.clip(waves, -0.35, 0.6))[..., None]
    crest = smooth(0.20, 0.34, waves) * smooth(0.0, 0.35, t)
    sea = mix(sea, np.array([0.20, 0.21, 0.25]), 0.6 * crest[..., None])
    picture = np.concatenate([sky, sea])

    full_y, full_x = np.mgrid[0:height, 0:width].astype(float)
    lamp_x, lamp_y = 690.0, 452.0
    angle = np.arctan2(full_y - lamp_y, full_x - lamp_x)
    distance = np.hypot(full_y - lamp_y, full_x - lamp_x)
    dust = 0.55 + 0.9 * fractal(rng, height, width, 10, 6, 5)
    for direction, power in ((np.pi - 0.13, 0.55), (0.10, 0.42)):
        away = np.abs(np.angle(np.exp(1j * (angle - direction))))
        beam = np.exp(-(away / 0.055) ** 2) * np.exp(-distance / 620.0) * smooth(4.0, 60.0, distance)
        picture = picture + power * (beam * dust)[..., None] * np.array([1.0, 0.86, 0.58])

    cliff = 1150 - 130 * smooth(330, 640, full_x[0]) + 420 * smooth(560, 200, full_x[0]) \
        - 60 * fractal_line(rng, width, 7, 7, 0.62) + 24
    inside = smooth(-1.0, 1.0, full_y - cliff[None, :])
    rock = fractal(rng, height, width, 22, 15, 7, 0.62)
    relief = np.clip(1.0 + np.gradient(rock, axis=1) * 26 + np.gradient(rock, axis=0) * -18, 0.15, 2.4)
    below = np.clip(full_y - cliff[None, :], 0, None)
    face = np.array([0.024, 0.023, 0.026]) * (relief * (0.25 + rock) * smooth(1750, 1050, full_y))[..., None]
    face = mix(face, np.array([0.034, 0.042, 0.022]) * (0.5 + rock[..., None]), np.exp(-below / 26.0)[..., None])
    face = face + (np.exp(-below / 5.0) * rock)[..., None] * np.array([0.085, 0.055, 0.040])
    picture = mix(picture, face, inside[..., None])

    def box(left, right, top, bottom, taper=0.0):
        """Coverage of an upright shape that is `taper` pixels narrower on each side at its top."""
        inset = taper * np.clip((bottom - full_y) / (bottom - top), 0.0, 1.0)
        return (smooth(-0.8, 0.8, full_x - left - inset) * smooth(-0.8, 0.8, right - inset - full_x)
                * smooth(-0.8, 0.8, full_y - top) * smooth(-0.8, 0.8, bottom - full_y))

    foot, top = 1075.0, 520.0
    half = 72.0 - 26.0 * np.clip((foot - full_y) / (foot - top), 0, 1)
    round_ = np.clip((full_x - lamp_x) / half, -1, 1)
    lit = 0.30 + 0.75 * np.clip(-0.75 * round_ + 0.62 * np.sqrt(1 - round_ ** 2), 0, None)
    plaster = 0.9 + 0.2 * fractal(rng, height, width, 40, 30, 4)
    band = smooth(-1.2, 1.2, np.sin((full_y - top) / (foot - top) * 4.98 * np.pi) * 40)
    paint = mix(np.array([0.36, 0.35, 0.36]), np.array([0.24, 0.035, 0.022]), band[..., None])
    tower = paint * (lit * plaster)[..., None]
    tower = tower + np.array([0.17, 0.085, 0.035]) * (np.clip(-round_, 0, 1) ** 2)[..., None]
    picture = mix(picture, tower, box(lamp_x - 72, lamp_x + 72, top, foot, 26)[..., None])
    for window_y in (574, 686, 798, 910):
        window = box(lamp_x - 9, lamp_x + 7, window_y, window_y + 30)
        picture = mix(picture, np.array([1.1, 0.62, 0.24]), window[..., None])
    dark = np.array([0.020, 0.021, 0.026])
    picture = mix(picture, dark * 1.6, box(lamp_x - 66, lamp_x + 66, 508, 524)[..., None])
    for post in range(-60, 61, 12):
        picture = mix(picture, dark, box(lamp_x + post - 1.4, lamp_x + post + 1.4, 478, 508)[..., None])
    picture = mix(picture, dark, box(lamp_x - 62, lamp_x + 62, 476, 480)[..., None])
    glass = np.array([1.5, 1.05, 0.52]) * (0.35 + 1.6 * np.exp(-((full_x - lamp_x) / 15) ** 2
                                                               - ((full_y - lamp_y) / 24) ** 2))[..., None]
    picture = mix(picture, glass, box(lamp_x - 34, lamp_x + 34, 410, 508)[..., None])
    for bar in (-34, -12, 12, 34):
        picture = mix(picture, dark, box(lamp_x + bar - 1.6, lamp_x + bar + 1.6, 410, 508)[..., None])
    picture = mix(picture, np.array([0.13, 0.028, 0.020]), box(lamp_x - 44, lamp_x + 44, 362, 412, 34)[..., None])
    picture = mix(picture, dark, box(lamp_x - 2, lamp_x + 2, 326, 364)[..., None])

    wall = np.array([0.23, 0.22, 0.22]) * (0.55 + 0.5 * plaster * smooth(980, 800, full_x))[..., None]
    picture = mix(picture, wall, box(800, 960, 985, 1082)[..., None])
    picture = mix(picture, np.array([0.085, 0.030, 0.024]), box(786, 974, 928, 988, 62)[..., None])
    for window_x in (826, 906):
        picture = mix(picture, np.array([1.25, 0.70, 0.27]), box(window_x, window_x + 26, 1012, 1044)[..., None])
    picture = mix(picture, dark, box(868, 892, 1016, 1082)[..., None])
    turf = 1083 - 22 * fractal_line(rng, width, 34, 5, 0.7)
    grass = smooth(-1.0, 1.0, full_y - turf[None, :]) * smooth(1120, 1085, full_y) * smooth(560, 620, full_x)
    picture = mix(picture, np.array([0.018, 0.022, 0.012]) * (0.6 + rock[..., None]), grass[..., None])
    halo = np.exp(-distance / 42.0) * 0.9 + np.exp(-distance / 190.0) * 0.16
    picture = picture + halo[..., None] * np.array([1.0, 0.72, 0.36])
    return develop(rng, picture, vignette=0.35)


def camera_data():
    data = Image.Exif()
    data[MAKE] = "Canon"
    data[MODEL] = "Canon EOS 5D Mark IV"
    data[EXIF_FOLDER] = {FOCAL_LENGTH: IFDRational(35), LENS_MODEL: "EF24-70mm f/2.8L II USM"}
    return data


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    for name, render, data in (("mountain-lake.jpg", mountain_lake, b""),
                               ("lighthouse.jpg", lighthouse, camera_data())):
        render().save(folder / name, quality=QUALITY, optimize=True, subsampling="4:2:0", exif=data)


if __name__ == "__main__":
    main()
