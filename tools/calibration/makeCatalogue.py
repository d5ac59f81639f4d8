#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Makes the calibration catalogue CAFList5.db from the tables beside this script.

Usage: makeCatalogue.py [output]

Standard library only. The same tables give the same bytes: there is no random state and no clock, and the field of the
SQLite header that names the writing library is set to a fixed value.

Taken from the tables: makers, bodies, lenses, ids, focal lengths, widest apertures. Set by rule here: which pairs have a
RAW and an RGB module of their own, the module identifiers, the narrowest aperture of an interchangeable lens.
"""

import hashlib
import sqlite3
import sys
from pathlib import Path
from typing import NamedTuple

HERE = Path(__file__).resolve().parent
DEFAULT_OUTPUT = HERE.parents[1] / "resources" / "calibration" / "db" / "CAFList5.db"

CATALOGUE_VERSION = "500.4.0.3"
OWN_MAKER = "Zyx Labs"
OWN_MODEL = "Grainlab Reference"
OWN_FOCAL_LENGTH = 35.0
OWN_RAW_CID = "C33759b_023"
OWN_RGB_CID = "C34062a_011"

MAKERS = [
    "Apple", "Canon", "DJI", "Fujifilm", "GoPro", "Hasselblad", "Kodak", "Konica", "Leica", "Nikon", "Nokia", "Olympus",
    "OM System", "Panasonic", "Parrot", "Pentax", "Ricoh", "Samsung", "Sigma", "Sony", OWN_MAKER,
]

SCHEMA = [
    "CREATE TABLE Metadata (id INTEGER PRIMARY KEY, key TEXT, value TEXT)",
    "CREATE TABLE Module (id INTEGER PRIMARY KEY, cid TEXT, body INTEGER, name TEXT, fmin FLOAT, fmax FLOAT, "
    "amin FLOAT, amax FLOAT, lens_id TEXT, lens_name TEXT, bridge INTEGER, raw_only INTEGER, rgb_only INTEGER, "
    "lens_id_thumbnail INTEGER)",
    "CREATE INDEX module_body_idx ON Module(body)",
    "CREATE INDEX module_cid_idx ON Module(cid)",
    "CREATE INDEX module_raw_only_idx ON Module(raw_only)",
    "CREATE INDEX module_rgb_only_idx ON Module(rgb_only)",
    "CREATE INDEX module_fmin_idx ON Module(fmin)",
    "CREATE INDEX module_fmax_idx ON Module(fmax)",
    "CREATE INDEX module_lens_id_idx ON Module(lens_id)",
    "CREATE INDEX module_bridge_idx ON Module(bridge)",
    "CREATE TABLE Maker (id INTEGER PRIMARY KEY, name TEXT)",
    "CREATE TABLE Body (id INTEGER, maker INTEGER, model TEXT, identifier TEXT)",
    "CREATE INDEX body_id_idx ON Body(id)",
    "CREATE INDEX body_maker_idx ON Body(maker)",
    "CREATE INDEX body_identifier_idx ON Body(identifier)",
]

NONE = "NULL"  # the word, not a null value: a look-up for "no lens id" compares with it
ANY_FOCAL_LENGTH = (0.0, 2000.0)  # a built-in lens of unknown range: no focal length rules it out
NARROWEST_APERTURE = 22.0
CROP_TOLERANCE = 1.06  # makers round crop factors; a lens for 1.53 serves a body of 1.5
SPLIT_ONE_PAIR_IN = 10
HEADER_VERSION = 3_040_001  # bytes 96 to 99 of the file, otherwise the version of the library that happens to be here


class Body(NamedTuple):
    id: int
    maker: int
    model: str
    identifier: str
    mount: str
    crop: float
    built_in: bool
    raw: bool


class Lens(NamedTuple):
    name: str
    mounts: list
    fmin: float
    fmax: float
    widest: float
    crop: float
    ids: dict  # mount -> ids
    thumbnail: int


def rows(name: str, columns: int) -> list:
    """The rows of a table, filled up to `columns` fields; '#' begins a comment line."""
    lines = (HERE / name).read_text(encoding="utf-8").splitlines()
    cells = [line.split("\t") for line in lines if line and not line.startswith("#")]
    return [row + [""] * (columns - len(row)) for row in cells]


def rank(*parts: str) -> int:
    return int.from_bytes(hashlib.sha256("\x1f".join(parts).encode("utf-8")).digest()[:6], "big")


def identifier(maker: str, model: str) -> str:
    """Maker and model run together, each word begun with a capital: "Apple", "iPhone 5s" -> "AppleIPhone5S"."""
    own = model[len(maker) + 1:] if model.startswith(maker + " ") else model
    words = "".join(c if c.isalnum() else " " for c in f"{maker} {own.replace('+', ' Plus ')}").split()
    capital = []
    for word in words:
        first = next((i for i, c in enumerate(word) if c.isalpha()), 0)
        capital.append(word[:first] + word[first:first + 1].upper() + word[first + 1:])
    return "".join(capital)


def read_bodies() -> list:
    bodies = []
    ids = {}
    table = sorted(rows("bodies.tsv", 8), key=lambda row: (MAKERS.index(row[0]), row[7] != ""))  # aliases come last
    for maker, model, _, mount, crop, built_in, raw, alias in table:
        number = ids[maker, alias] if alias else len(set(ids.values())) + 1
        ids[maker, model] = number
        bodies.append(Body(number, MAKERS.index(maker) + 1, model, identifier(maker, model), mount, float(crop),
                           built_in == "1", raw == "1"))
    bodies.append(Body(len(set(ids.values())) + 1, len(MAKERS), OWN_MODEL, identifier(OWN_MAKER, OWN_MODEL), "", 1.0,
                       True, True))
    return bodies


def read_lenses(first_thumbnail: int) -> list:
    lenses = []
    for name, _, mounts, fmin, fmax, widest, _, crop, ids in rows("lenses.tsv", 9):
        by_mount = {}
        for entry in filter(None, ids.split(";")):
            mount, lens_id = entry.split("=")
            by_mount.setdefault(mount, []).append(lens_id)
        lenses.append(Lens(name, mounts.split(";"), float(fmin), float(fmax), float(widest), float(crop), by_mount,
                           first_thumbnail + len(lenses)))
    return lenses


class Cids:
    """Gives each module an identifier that does not move when other modules are added, barring a collision."""

    def __init__(self):
        self._taken = {OWN_RAW_CID, OWN_RGB_CID}

    def take(self, *module: str) -> str:
        number = rank("cid", *module)
        while True:
            cid = f"C{100 + number % 99_900}{'abcdef'[number // 99_900 % 6]}_001"
            if cid not in self._taken:
                self._taken.add(cid)
                return cid
            number += 1


def kinds(split: bool, raw: bool = True) -> list:
    """(raw_only, rgb_only) of the modules of one pair."""
    if not raw:
        return [(0, 1)]
    return [(1, 0), (0, 1)] if split else [(0, 0)]


def built_in_modules(body: Body, thumbnail: int, ranges: dict, cids: Cids) -> list:
    (fmin, fmax), (amin, amax) = ranges.get(body.mount, (ANY_FOCAL_LENGTH, (0.0, 0.0)))
    name = f"{body.model} Lens"
    return [(cids.take(body.identifier, name, str(kind)), body.id, name, fmin, fmax, amin, amax, NONE, NONE, 1, *kind,
             thumbnail) for kind in kinds(True, body.raw)]


def own_modules(body: Body, thumbnail: int) -> list:
    name = f"{body.model} Lens"
    common = (body.id, name, OWN_FOCAL_LENGTH, OWN_FOCAL_LENGTH, 0.0, 0.0, NONE, NONE, 1)
    return [(OWN_RAW_CID, *common, 1, 0, thumbnail), (OWN_RGB_CID, *common, 0, 1, thumbnail)]


def mount_between(body: Body, lens: Lens, adapters: dict) -> str:
    """The mount by which `lens` goes on `body`, its own first; empty if it does not fit or does not cover the sensor."""
    if lens.crop > body.crop * CROP_TOLERANCE:
        return ""
    fitting = (mount for mount in [body.mount, *adapters.get(body.mount, [])] if mount in lens.mounts)
    return next(fitting, "")


def lens_modules(body: Body, lens: Lens, mount: str, shared_ids: set, cids: Cids) -> list:
    ids = lens.ids.get(body.mount) or lens.ids.get(mount) or [NONE]
    amin, amax = (lens.widest, NARROWEST_APERTURE) if lens.widest > 0 else (0.0, 0.0)
    split = body.raw and rank("split", body.identifier, lens.name) % SPLIT_ONE_PAIR_IN == 0
    result = []
    for kind in kinds(split):
        cid = cids.take(body.identifier, lens.name, str(kind))
        for lens_id in ids:  # a lens that reports several ids has a row for each, with one module
            # the name is needed where the id alone does not tell the lens
            lens_name = lens.name if lens_id == NONE or lens_id in shared_ids else NONE
            result.append((cid, body.id, lens.name, lens.fmin, lens.fmax, amin, amax, lens_id, lens_name, 0, *kind,
                           lens.thumbnail))
    return result


def ids_of_several_lenses(lenses: list) -> set:
    owners = {}
    for lens in lenses:
        for lens_id in {one for ids in lens.ids.values() for one in ids}:
            owners.setdefault(lens_id, set()).add(lens.name)
    return {lens_id for lens_id, names in owners.items() if len(names) > 1}


def read_built_in_ranges() -> dict:
    return {mount: ((float(fmin), float(fmax)), (float(amin or 0), float(amax or 0)))
            for mount, fmin, fmax, amin, amax in rows("builtin-lenses.tsv", 5)}


def modules(bodies: list) -> list:
    adapters = {mount: others.split(";") for mount, others in rows("mounts.tsv", 2)}
    ranges = read_built_in_ranges()
    built_in = [body for body in bodies if body.built_in]
    thumbnails = {body.id: number for number, body in enumerate(built_in, 1)}
    lenses = read_lenses(len(built_in) + 1)
    shared_ids = ids_of_several_lenses(lenses)
    cids = Cids()
    result = []
    for body in {body.id: body for body in reversed(bodies)}.values():  # one of the names that share an id
        if MAKERS[body.maker - 1] == OWN_MAKER:
            result += own_modules(body, thumbnails[body.id])
            continue
        if body.built_in:
            result += built_in_modules(body, thumbnails[body.id], ranges, cids)
            continue
        for lens in lenses:
            mount = mount_between(body, lens, adapters)
            if mount:
                result += lens_modules(body, lens, mount, shared_ids, cids)
    return sorted(result, key=lambda row: row[1])  # stable: a body's rows keep the order of the lenses


def write(path: Path) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    path.unlink(missing_ok=True)
    bodies = read_bodies()
    database = sqlite3.connect(path, isolation_level=None)
    database.execute("PRAGMA page_size = 4096")
    database.execute("PRAGMA journal_mode = MEMORY")
    database.execute("BEGIN")
    for statement in SCHEMA:
        database.execute(statement)
    database.execute("INSERT INTO Metadata (key, value) VALUES ('Version', ?)", (CATALOGUE_VERSION,))
    database.executemany("INSERT INTO Maker (id, name) VALUES (?, ?)", enumerate(MAKERS, 1))
    database.executemany("INSERT INTO Body VALUES (?, ?, ?, ?)", (body[:4] for body in bodies))
    database.executemany(
        "INSERT INTO Module (cid, body, name, fmin, fmax, amin, amax, lens_id, lens_name, bridge, raw_only, rgb_only, "
        "lens_id_thumbnail) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", modules(bodies))
    database.execute("COMMIT")
    database.execute("ANALYZE")
    database.execute("DROP TABLE IF EXISTS sqlite_stat4")  # some builds of the library write it as well
    database.execute("VACUUM")
    database.close()
    with path.open("r+b") as file:
        file.seek(96)
        file.write(HEADER_VERSION.to_bytes(4, "big"))


if __name__ == "__main__":
    write(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_OUTPUT)
