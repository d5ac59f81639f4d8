#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Makes the seven fonts from four packages' files, under the family names that the style sheets ask for.

A style sheet's family must match exactly, so no font may also belong to a family of a typographic name. Needs fontTools
and brotli. Unchanged files give unchanged bytes with the same version of fontTools.
"""

import argparse
import shutil
from pathlib import Path

from fontTools.fontBuilder import FontBuilder
from fontTools.misc.roundTools import otRound
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.recordingPen import DecomposingRecordingPen, RecordingPen
from fontTools.pens.reverseContourPen import ReverseContourPen
from fontTools.pens.t2CharStringPen import T2CharStringPen
from fontTools.ttLib import TTFont
from fontTools.varLib import instancer

OTHER_FAMILY_NAMES = (16, 17, 18, 21, 22, 25)  # a reader takes the font into these families, too
VERSION = 5
CHANGED = "changed by the UtilsDllzglv6 authors, see LICENSES/fonts-NOTICE.txt"
LIGHTER = 0.8  # so many steps from weight 400 away from 500; more, and thin strokes vanish


def opened(path):
    font = TTFont(path, recalcTimestamp=False, recalcBBoxes=False)
    font.flavor = None  # never packed when saved: not every system reads WOFF2
    return font


def rename(font, family, post_script_name):
    """Gives the font one family, keeps its copyright and licence records, and says that it was changed."""
    names = font["name"]
    names.names = [name for name in names.names if name.nameID not in OTHER_FAMILY_NAMES]
    texts = {1: family, 3: post_script_name, 4: family, 6: post_script_name}
    for name in names.names:
        if name.nameID == VERSION:
            name.string = name.toUnicode() + "; " + CHANGED
        else:
            name.string = texts.get(name.nameID, name.string)


def make_renamed(source, target, family, post_script_name):
    font = opened(source)
    rename(font, family, post_script_name)
    if "DSIG" in font:
        del font["DSIG"]  # signs the names, too
    font.save(target)


def make_unpacked(source, target):
    """The font itself stays as it is: its name is reserved for the original."""
    opened(source).save(target)


def instance(path, weight):
    return instancer.instantiateVariableFont(opened(path), {"wght": weight})


def recorded(glyphs, name):
    pen = DecomposingRecordingPen(glyphs)
    glyphs[name].draw(pen)
    return pen.value


def lighter(regular, bolder):
    return regular - LIGHTER * (bolder - regular)


def lighter_outline(regular, bolder):
    """Both outlines have the same points, and so has the result."""
    outline = RecordingPen()
    for (operation, points), (other, other_points) in zip(regular, bolder, strict=True):
        assert operation == other
        outline.value.append((operation, tuple(
            tuple(lighter(a, b) for a, b in zip(point, other_point))
            for point, other_point in zip(points, other_points, strict=True))))
    return outline


def lighter_glyphs(regular, bolder):
    """For each glyph its outline in PostScript form, advance width and left side bearing."""
    glyphs, bolder_glyphs = regular.getGlyphSet(), bolder.getGlyphSet()
    for name in regular.getGlyphOrder():
        outline = lighter_outline(recorded(glyphs, name), recorded(bolder_glyphs, name))
        width = otRound(lighter(glyphs[name].width, bolder_glyphs[name].width))
        pen, bounds = T2CharStringPen(width, glyphs), BoundsPen(glyphs)
        outline.replay(ReverseContourPen(pen))  # PostScript outlines run the other way round
        outline.replay(bounds)
        yield name, pen.getCharString(), width, otRound(bounds.bounds[0]) if bounds.bounds else 0


def make_lighter(source, target, family, post_script_name):
    """Continues the change between two weights of a variable font beyond its lightest one."""
    font = instance(source, 400)
    glyphs = list(lighter_glyphs(font, instance(source, 500)))
    for table in ("glyf", "loca", "prep", "gasp", "STAT"):
        del font[table]
    font["name"].names = [name for name in font["name"].names if name.nameID < 256]  # names of weights
    rename(font, family, post_script_name)
    font.recalcBBoxes = True
    builder = FontBuilder(font=font)
    builder.isTTF = False
    font.sfntVersion = "OTTO"
    builder.setupCFF(post_script_name, {"FullName": family, "FamilyName": family, "Weight": "Extralight"},
                     {name: outline for name, outline, _, _ in glyphs}, {})
    builder.setupHorizontalMetrics({name: (width, bearing) for name, _, width, bearing in glyphs})
    builder.setupMaxp()
    font["post"].formatType = 3.0  # the outlines have the names
    font["OS/2"].usWeightClass = 200
    font.save(target)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for option, what in (("--roboto", "the folder of Roboto-*.ttf (Debian's fonts-roboto-fontface)"),
                         ("--open-sans", "the folder of OpenSans-Light.ttf (Debian's fonts-open-sans)"),
                         ("--maven-pro", "the unpacked npm package @fontsource/maven-pro"),
                         ("--maven-pro-variable", "the unpacked npm package @fontsource-variable/maven-pro")):
        parser.add_argument(option, type=Path, required=True, help=what)
    parser.add_argument("target", type=Path)
    given = parser.parse_args()

    given.target.mkdir(parents=True, exist_ok=True)
    for name in ("Roboto-Regular.ttf", "Roboto-Bold.ttf"):  # families RobotoRegular and RobotoBold already
        shutil.copyfile(given.roboto / name, given.target / name)
    make_renamed(given.roboto / "Roboto-Medium.ttf", given.target / "Roboto-Medium.ttf", "RobotoMedium", "RobotoMedium")
    make_renamed(given.roboto / "Roboto-Light.ttf", given.target / "Roboto-Light.ttf", "Roboto Light", "RobotoLight")
    make_renamed(given.open_sans / "OpenSans-Light.ttf", given.target / "OpenSans-Light.ttf",
                 "OpenSansLight", "OpenSansLight")
    make_unpacked(given.maven_pro / "files/maven-pro-latin-400-normal.woff2", given.target / "MavenPro-Regular.ttf")
    make_lighter(given.maven_pro_variable / "files/maven-pro-latin-wght-normal.woff2",
                 given.target / "MavenProLight-200.otf", "ZL Mvn Light", "ZLMvn-Light")


if __name__ == "__main__":
    main()
