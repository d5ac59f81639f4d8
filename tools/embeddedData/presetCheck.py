# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""default.xml and the user's preset: form, ids, tags, and each parameter with its value."""

import re
from collections import Counter

import readers

PRESETS = 229
NO_LOOKS = {"default": 93, "autoCorrection": 3, "noCorrection": 3}  # with their numbers of parameters
PARAMS_OF_A_LOOK = (6, 83)
PARAMS_OF_THE_USER = 34
EXPERT = 150
VERSION_2 = {"Arkadia", "Delta", "Glamour", "NewSelenium", "Photo70s", "PureGold"}
TAGS = {"Film": 84, "Color": 84, "TimeMachine": 78, "B&W": 64, "Negative": 53, "Designer": 39, "Slide": 31,
        "Digital": 19, "Toned": 17, "Vignette": 13, "Grain": 12, "Cinematic": 6, "Frame": 6}
KINDS = {"TimeMachine", "Film", "Digital", "Designer", "Cinematic"}  # a look is of one of these
NOT_CE_CONTROL = {"CoolTV", "Cyanotype", "Dreamy", "SoftFocus", "FoundInAttic", "Pola"}
NEUTRAL = {  # where it is not 0, false or nothing
    "ColorIntentAutoActive": "true", "CropAuto": "true", "ColorRenderingIntensity": "100", "GrainIntensity": "100",
    "GrainFilmFormat": "24x36", "GrainSize": "1.0", "ColorModeFilterIntensity": "100", "LowlightToningCustomHue": "180",
    "HighlightToningCustomHue": "180", "LowlightToningCustomSaturation": "50", "HighlightToningCustomSaturation": "50",
    "HighlighsLowlightsSeparation": "0.5", "ArtisticVignettingRoundness": "50", "VignettedBlurMode": "Vignette",
    "VignettedBlurVignetteSize": "100", "EdgeTexturingPosition": "Random", "FramingScaleFactor": "0.25",
}
NO_LOOK_SETS = {"CropAuto", "KeystoningKeepOriginalSize"}
OTHER_RENDERING = "CurrentColorRendering"
HISTORY_ID = re.compile(r"\d{4} - \S.*")
LONGEST_CURVE = 5
FINE_GRAIN = 100  # an intensity that no tag tells
FEWEST_TABLES_OVER_LINES = 10
NUMBER = re.compile(r"-?\d+(\.\d+)?")


def params_of(preset) -> dict:
    return {param.get("name"): param.get("value") for param in preset.iter("Param")}


def tags_of(preset) -> list:
    return [tag.get("name") for tag in preset.iter("Tag")]


def faults(data) -> list:
    found = form_faults(data.presets_file.read_bytes())
    found += readers.schema_faults("presets.rng", data.presets_file)
    found += readers.schema_faults("presets.rng", data.user_file)
    if found:
        return found
    found += count_faults(data.presets)
    for preset in data.presets:
        found += [f"{preset.get('id')}: {fault}" for fault in preset_faults(preset)]
    return found + value_faults(data) + extent_faults(data) + user_faults(data.user_preset) + twin_faults(data.presets)


def form_faults(content: bytes) -> list:
    found = []
    if not content.startswith(b'\xef\xbb\xbf<?xml version="1.0" encoding="UTF-8" ?>\r\n'):
        found.append("default.xml: begins without byte-order mark and declaration")
    if content.count(b"\n") != content.count(b"\r\n"):
        found.append("default.xml: a line end that is not CRLF")
    return found


def count_faults(presets) -> list:
    ids = [preset.get("id") for preset in presets]
    found = [f"{preset}: {count} presets have this id" for preset, count in Counter(ids).items() if count > 1]
    if len(ids) != PRESETS:
        found.append(f"default.xml: {len(ids)} presets, not {PRESETS}")
    if ids[:len(NO_LOOKS)] != list(NO_LOOKS):
        found.append("default.xml: the first three presets are others")
    history = [bool(HISTORY_ID.fullmatch(preset)) for preset in ids]
    if history != sorted(history):
        found.append("default.xml: a history preset stands before another one")
    tags = Counter(tag for preset in presets for tag in tags_of(preset))
    found += [f"tag {tag}: {tags[tag]} uses, not {TAGS.get(tag, 0)}"
              for tag in sorted(TAGS.keys() | tags.keys()) if tags[tag] != TAGS.get(tag, 0)]
    expert = sum(preset.get("expert") == "true" for preset in presets)
    found += [f"default.xml: {expert} for experts, not {EXPERT}"] if expert != EXPERT else []
    if {preset.get("id") for preset in presets if preset.get("version")} != VERSION_2:
        found.append("default.xml: version 2 is on other presets")
    return found


def preset_faults(preset) -> list:
    name, params, tags = preset.get("id"), params_of(preset), tags_of(preset)
    found = [f"{param} twice" for param, count in Counter(param.get("name") for param in preset.iter("Param")).items()
             if count > 1]
    if name == "default":
        found += neutral_faults(params)
    if name in NO_LOOKS:
        found += [f"{len(params)} parameters"] if len(params) != NO_LOOKS[name] else []
        return found + (["has attributes beside its id"] if set(preset.keys()) != {"id"} else [])
    if not PARAMS_OF_A_LOOK[0] <= len(params) <= PARAMS_OF_A_LOOK[1]:
        found.append(f"{len(params)} parameters")
    if preset.get("name") != name or not preset.get("name_zh_CN"):
        found.append("its names are not all there")
    found += readers.text_faults({language: preset.get(language) for language in sorted(preset.keys())
                                  if language.startswith("name_")})
    if len(KINDS.intersection(tags)) != 1:
        found.append("is not of one kind by its tags")
    if ("TimeMachine" in tags) != bool(HISTORY_ID.fullmatch(name)):
        found.append("is a history preset by its id or by its tag alone")
    return found + agreement_faults(name, params, tags)


def neutral_faults(params: dict) -> list:
    known = readers.vocabulary()
    neutral = dict.fromkeys(known["signed"] + known["seeds"] + ["ExposureBias"], "0")
    neutral |= dict.fromkeys(known["flags"], "false") | dict.fromkeys(known["presets"] + [*known["words"]], "")
    neutral |= dict.fromkeys(known["curves"], "value = { 0, 0, 1, 1, }")
    neutral |= dict.fromkeys(known["points"], "value={0.5,0.5,}") | NEUTRAL
    return [f"{name}: {value!r} is not neutral" for name, value in params.items() if value != neutral.get(name)]


def agreement_faults(name: str, params: dict, tags: list) -> list:
    """Parameters that say something else than id and tags do."""
    expected = {"BWPreset"} if "B&W" in tags else {"ColorPreset"} if "Color" in tags else {"BWPreset", "ColorPreset"}
    toned = {params.get("HighlightToningStyle", ""), params.get("LowlightToningStyle", "")} != {""}
    vignette = (params.get("VignettedBlurMode") == "Vignette"
                or params.get("ArtisticVignettingCornerAttenuation", "0") != "0")
    intensity = params.get("GrainIntensity", "0")
    grain = bool(params.get("GrainType")) and bool(NUMBER.fullmatch(intensity)) and float(intensity) > FINE_GRAIN
    shows = {"Toned": toned, "Frame": bool(params.get("FrameID")), "Vignette": vignette, "Grain": grain}
    rules = {
        "its type is not that of its tags": params.get("PresetType") in expected,
        "ColorIntentAutoActive is not true": params.get("ColorIntentAutoActive") == "true",
        "both black-and-white and color": not {"B&W", "Color"} <= set(tags),
        "neither color nor black-and-white": "TimeMachine" in tags or bool({"B&W", "Color"} & set(tags)),
        "a film is a slide or a negative": ("Film" in tags) == (len({"Slide", "Negative"} & set(tags)) == 1),
        "a film or camera setting is rendered as another": not {"Film", "Digital"} & set(tags)
            or params.get("ColorRenderingType") == name,
        "toned without a toning": "Toned" not in tags or toned,
        "a frame is missing": "Frame" not in tags or bool(params.get("FrameID")),
        "a vignette is missing": "Vignette" not in tags or vignette,
        "the grain is missing": "Grain" not in tags or bool(params.get("GrainType")),
        # A film's own border and grain need no tag.
        "shows what no tag tells": not {"Designer", "Cinematic", "Digital"} & set(tags)
            or all(tag in tags for tag, shown in shows.items() if shown),
        "a black-and-white film without its response to colors or its grain": not {"Film", "B&W"} <= set(tags)
            or bool(params.get("GrainType")) and any(param.startswith("ChannelMixer") for param in params),
        "NotCEControl": ("NotCEControl" in params) == (name in NOT_CE_CONTROL),
        "ColorRenderingActive": ("ColorRenderingActive" in params) == (name == "FujiInstax210"),
        "sets what no look sets": not NO_LOOK_SETS & params.keys(),
    }
    return [fault for fault, held in rules.items() if not held]


def value_faults(data) -> list:
    """Each value against the vocabulary. Tables are read by Lua, all at once."""
    known = readers.vocabulary()
    films = {preset.get("id") for preset in data.presets if {"Film", "Digital"} & set(tags_of(preset))}
    found, tables = [], []
    for preset in [*data.presets, *data.user_preset]:
        for name, value in params_of(preset).items():
            where = f"{preset.get('id')}: {name}"
            if name in known["curves"] + known["points"]:
                tables.append((where, name in known["curves"], value))
            elif not is_valid(name, value, known, films):
                found.append(f"{where}: {value!r}")
    numbers = readers.lua_tables([value for _, _, value in tables])
    return found + [f"{where}: {fault}" for (where, curve, value), table in zip(tables, numbers, strict=True)
                    if (fault := table_fault(value, table, curve))]


def is_valid(name: str, value: str, known: dict, films: set) -> bool:
    if name in known["flags"]:
        return value in ("true", "false")
    if name in known["presets"]:
        return value == "" or value in films or (name == "GrainType" and value == OTHER_RENDERING)
    if name in known["words"]:
        return value in known["words"][name]
    if name == "GrainSize" and value == "":
        return True
    if name in known["seeds"]:
        return re.fullmatch(r"\d{1,5}", value) is not None
    first, last = known["ranges"].get(name, (-100, 100) if name in known["signed"] else (1, 0))
    return NUMBER.fullmatch(value) is not None and first <= float(value) <= last


def table_fault(text: str, table, curve: bool) -> str:
    if table is None or not re.sub(r"\s", "", text).endswith(",}"):
        return f"no table of numbers, each followed by a comma: {text!r}"
    if not all(0 <= number <= 1 for number in table):
        return "a number outside 0 to 1"
    if not curve:
        return "" if len(table) == 2 else "not one point"
    if len(table) % 2 or not 4 <= len(table) <= 2 * LONGEST_CURVE:
        return f"not 2 to {LONGEST_CURVE} pairs"
    return "" if all(a < b for a, b in zip(table[::2], table[2::2])) else "x does not ascend"


def extent_faults(data) -> list:
    """All names are in use, and all words and both ends of the ranges."""
    known = readers.vocabulary()
    values = {}
    for preset in data.presets:
        for name, value in params_of(preset).items():
            values.setdefault(name, set()).add(value)
    names = set(known["flags"] + known["curves"] + known["points"] + known["presets"] + known["seeds"] + known["signed"]
                + [*known["ranges"], *known["words"]])
    if names - values.keys():
        return [f"{name}: a parameter that no preset has" for name in sorted(names - values.keys())]
    found = []
    for name, words in known["words"].items():
        found += [f"{name}: no preset has {word!r}" for word in words if word not in values[name]]
    for name, ends in known["ranges"].items():
        numbers = {float(value) for value in values[name] if NUMBER.fullmatch(value)}
        if [min(numbers), max(numbers)] != ends:
            found.append(f"{name}: {min(numbers)} to {max(numbers)}, not {ends}")
    counts = [len(params_of(preset)) for preset in data.presets if preset.get("id") not in NO_LOOKS]
    if (min(counts), max(counts)) != PARAMS_OF_A_LOOK:
        found.append(f"default.xml: looks of {min(counts)} to {max(counts)} parameters")
    if sum("\n" in value for name in known["curves"] for value in values[name]) < FEWEST_TABLES_OVER_LINES:
        found.append("default.xml: hardly a table over several lines")
    return found


def user_faults(root) -> list:
    preset = root[0]
    params = [param.get("name") for param in preset.iter("Param")]
    rules = {
        "more than one preset": len(root) == 1,
        "its id is no GUID in braces": re.fullmatch(r"\{[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\}", preset.get("id")),
        "it has tags or attributes of a built-in preset": set(preset.keys()) == {"id", "name"} and not tags_of(preset),
        "its first parameter is another": params[0] == "PresetType",
        f"{len(params)} parameters": len(params) == PARAMS_OF_THE_USER,
        "a parameter twice": len(set(params)) == len(params),
    }
    return [f"agfaZPreset.preset: {fault}" for fault, held in rules.items() if not held]


def twin_faults(presets) -> list:
    """Two looks with the same parameters; references to itself apart."""
    seen, found = {}, []
    for preset in presets:
        name = preset.get("id")
        key = tuple(sorted((key, "" if value == name else value) for key, value in params_of(preset).items()))
        if key in seen:
            found.append(f"{name}: has the parameters of {seen[key]}")
        seen[key] = name
    return found


def figures(data) -> list:
    params = [params_of(preset) for preset in data.presets]
    values = [value for values in params for value in values.values()]
    names = {name for values in params for name in values}
    tables = [value for value in values if value.lstrip().startswith("value")]
    tags = Counter(tag for preset in data.presets for tag in tags_of(preset))
    return [
        f"presets     {len(params)}, with {len(values)} parameters of {len(names)} names",
        f"            {len(tables)} tables, {sum(chr(10) in table for table in tables)} of them over several lines",
        "tags        " + ", ".join(f"{tag} {count}" for tag, count in tags.most_common()),
    ]
