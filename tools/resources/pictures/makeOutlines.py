#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Writes outlines.json: the word marks and slogans as outlines of letters, 100 units to the em, baseline at 0.

Needs, by the names of Debian 12: python3-fonttools, fonts-roboto-fontface (Apache-2.0), fonts-noto-cjk (OFL-1.1).
"""

import json
from pathlib import Path

from fontTools.misc.transform import Scale
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

FONTS = Path("/usr/share/fonts")
ROBOTO = FONTS / "truetype" / "roboto-fontface" / "roboto"
NOTO = FONTS / "opentype" / "noto" / "NotoSansCJK-Regular.ttc"
LIGHT, REGULAR, MEDIUM = ((ROBOTO / f"Roboto-{weight}.ttf", -1) for weight in ("Light", "Regular", "Medium"))
JAPANESE, CHINESE = (NOTO, 0), (NOTO, 2)  # places in the collection

TEXTS = {
    "Zyx Labs": (REGULAR, "Zyx Labs"),
    "Grain": (MEDIUM, "Grain"),
    "lab": (LIGHT, "lab"),
    "6": (MEDIUM, "6"),
    "slogan_en": (LIGHT, "The look of real film."),
    "slogan_de": (LIGHT, "So sieht echter Film aus."),
    "slogan_fr": (LIGHT, "Le vrai rendu de la pellicule."),
    "slogan_jp": (JAPANESE, "本物のフィルムの風合いを。"),
    "slogan_zh_CN": (CHINESE, "重现真实胶片的质感。"),
}


def pair_adjustments(font):
    """The function (left, right) -> kerning of two glyphs, by the font's pair lookups of the feature kern."""
    table = font["GPOS"].table if "GPOS" in font else None
    records = table.FeatureList.FeatureRecord if table else []
    indices = {index for record in records if record.FeatureTag == "kern" for index in record.Feature.LookupListIndex}
    lookups = [table.LookupList.Lookup[index] for index in sorted(indices)]
    subtables = [getattr(part, "ExtSubTable", part) for lookup in lookups for part in lookup.SubTable]

    def adjustment(left, right):
        values = (pair_value(part, left, right) for part in subtables if left in part.Coverage.glyphs)
        return next((value for value in values if value is not None), 0)

    return adjustment


def pair_value(part, left, right):
    if part.Format == 2:
        first, second = part.ClassDef1.classDefs.get(left, 0), part.ClassDef2.classDefs.get(right, 0)
        value = part.Class1Record[first].Class2Record[second].Value1
        return getattr(value, "XAdvance", 0) if value else 0
    records = part.PairSet[part.Coverage.glyphs.index(left)].PairValueRecord
    return next((getattr(record.Value1, "XAdvance", 0) for record in records if record.SecondGlyph == right), None)


def outline(font, text):
    """A line of text: its width, how far its ink reaches (a full stop may have room behind it), and its path data."""
    glyphs, names, kerning = font.getGlyphSet(), font.getBestCmap(), pair_adjustments(font)
    scale = 100 / font["head"].unitsPerEm
    pen, bounds = SVGPathPen(glyphs, ntos=lambda value: f"{round(value, 2):g}"), BoundsPen(glyphs)
    x, former = 0, None
    for character in text:
        name = names[ord(character)]
        x += kerning(former, name) if former else 0
        for target in (pen, bounds):
            glyphs[name].draw(TransformPen(target, Scale(scale, -scale).translate(x, 0)))
        x, former = x + glyphs[name].width, name
    return {"text": text, "width": round(x * scale, 2), "ink": round(bounds.bounds[2], 2), "path": pen.getCommands()}


if __name__ == "__main__":
    outlines = {key: outline(TTFont(file, fontNumber=place), text) for key, ((file, place), text) in TEXTS.items()}
    target = Path(__file__).with_name("outlines.json")
    target.write_text(json.dumps(outlines, indent=1, ensure_ascii=False) + "\n", encoding="utf-8")
