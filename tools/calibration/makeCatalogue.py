#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Makes the calibration catalogue CAFList5.db from the tables beside this script.

Usage: makeCatalogue.py [output]

Standard library only. The same tables give the same bytes: there is no random state and no clock, and the field of the
SQLite header that names the writing library is set to a fixed value.

Taken from the tables: makers, bodies, lenses, ids, focal lengths, widest apertures. Set by rule here: which pairs are
served, which of them have a RAW and an RGB module of their own or the modules of another body, which rows drop the lens
name, the module identifiers, the narrowest aperture of an interchangeable lens.
"""

import hashlib
import sqlite3
import sys
from collections import Counter
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
KNOWN_CIDS = {  # those that documentation gives as examples: body, lens and kind of their modules
    ("CanonEOS5DMarkIV", "Canon EF8-15mm f/4L Fisheye USM", "(1, 0)"): "C24560b_001",
    ("AppleIPhone5S", "iPhone 5s Lens", "(0, 1)"): "C1000a_001",
}

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
IDS_OF_ONE_LENS = 3  # a lens's later versions report ids of their own; behind an adapter it has one
PENTAX_K = ("Pentax K", "Pentax KA", "Pentax KAF", "Pentax KAF2", "Pentax KAF3")
WITHOUT_ADAPTER = {  # the other mounts whose lenses go straight on a body
    "Canon EF-S": ("Canon EF",), "Minolta AF": ("Sony Alpha",), "Sony Alpha": ("Minolta AF",),
    "Nikon F AF": ("Nikon F", "Nikon F AI", "Nikon F AI-S"), "Pentax KAF2": PENTAX_K, "Pentax KAF4": PENTAX_K,
}
CROP_TOLERANCE = 1.06  # makers round crop factors; a lens for 1.53 serves a body of 1.5
HEADER_VERSION = 3_040_001  # bytes 96 to 99 of the file, otherwise the version of the library that happens to be here

# The size of this version. The rules below rank what the tables allow and take the best until it is reached.
ROWS = 85_940
MODULES = 73_882
RAW_ROWS = 8_891
RGB_ROWS = 9_249
ROWS_WITHOUT_LENS_ID = 10_671
ROWS_WITHOUT_LENS_NAME = 39_150
SPLIT_PAIRS_WITHOUT_ID = 821


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
    own = model[len(maker) + 1:] if model.lower().startswith(maker.lower() + " ") else model
    own = own.replace("µ", "u").replace("+", " Plus ")  # as cameras write it
    words = "".join(c if c.isalnum() else " " for c in f"{maker} {own}").split()
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
    thumbnails = {}
    for name, _, mounts, fmin, fmax, widest, _, crop, ids in rows("lenses.tsv", 9):
        by_mount = {}
        for entry in filter(None, ids.split(";")):
            mount, lens_id = entry.split("=")
            by_mount.setdefault(mount, []).append(lens_id)
        thumbnail = thumbnails.setdefault(name, first_thumbnail + len(thumbnails))
        lenses.append(Lens(name, mounts.split(";"), float(fmin), float(fmax), float(widest), float(crop), by_mount,
                           thumbnail))
    return lenses


class Pair:
    """A body with a lens that fits it: a module for each id, or if it is `split` one for RAW and one for RGB images."""

    def __init__(self, body: Body, lens: Lens, mounts: list):
        """The `mounts` are those by which the lens goes on the body, the body's own first."""
        self.body = body
        self.lens = lens
        self.native = mounts[0] == body.mount
        ids = next((lens.ids[mount] for mount in [body.mount, *mounts] if mount in lens.ids), [NONE])
        is_direct = self.native or mounts[0] in WITHOUT_ADAPTER.get(body.mount, ())
        self.ids = ids[:IDS_OF_ONE_LENS] if is_direct else ids[:1]
        self.rank = rank(body.identifier, lens.name)
        self.split = False
        self.owner = self  # of the modules: another body's pair with the lens may lend them

    @property
    def has_id(self) -> bool:
        return self.ids != [NONE]

    @property
    def kinds(self) -> list:
        return kinds(self.split, self.body.raw)

    def cid(self, kind: tuple, lens_id: str, cids) -> str:
        further = [] if lens_id == self.ids[0] else [lens_id]
        return cids.of(self.owner.body.identifier, self.lens.name, str(kind), *further)


class Cids:
    """Gives each module an identifier that does not move when other modules are added, barring a collision."""

    def __init__(self):
        self._given = dict(KNOWN_CIDS)
        self._taken = {OWN_RAW_CID, OWN_RGB_CID, *KNOWN_CIDS.values()}

    def of(self, *module: str) -> str:
        if module not in self._given:
            self._given[module] = self._free(rank("cid", *module))
        return self._given[module]

    def _free(self, number: int) -> str:
        while True:
            cid = f"C{100 + number % 99_900}{'abcdef'[number // 99_900 % 6]}_001"
            if cid not in self._taken:
                self._taken.add(cid)
                return cid
            number += 1


def kinds(split: bool, raw: bool) -> list:
    """(raw_only, rgb_only) of the modules of one pair."""
    if not raw:
        return [(0, 1)]
    return [(1, 0), (0, 1)] if split else [(0, 0)]


def built_in_rows(body: Body, thumbnail: int, ranges: dict, cids: Cids) -> list:
    (fmin, fmax), (amin, amax) = ranges.get(body.mount, (ANY_FOCAL_LENGTH, (0.0, 0.0)))
    name = f"{body.model} Lens"
    return [(cids.of(body.identifier, name, str(kind)), body.id, name, fmin, fmax, amin, amax, NONE, NONE, 1, *kind,
             thumbnail) for kind in kinds(True, body.raw)]


def own_rows(body: Body, thumbnail: int) -> list:
    name = f"{body.model} Lens"
    common = (body.id, name, OWN_FOCAL_LENGTH, OWN_FOCAL_LENGTH, 0.0, 0.0, NONE, NONE, 1)
    return [(OWN_RAW_CID, *common, 1, 0, thumbnail), (OWN_RGB_CID, *common, 0, 1, thumbnail)]


def rows_of_built_in_lenses(bodies: list, cids: Cids) -> list:
    ranges = read_built_in_ranges()
    result = []
    for thumbnail, body in enumerate((body for body in bodies if body.built_in), 1):
        own = MAKERS[body.maker - 1] == OWN_MAKER
        result += own_rows(body, thumbnail) if own else built_in_rows(body, thumbnail, ranges, cids)
    return result


def mounts_between(body: Body, lens: Lens, adapters: dict) -> list:
    """The mounts by which `lens` goes on `body`, its own first; none if it does not fit or cover the sensor."""
    if lens.crop > body.crop * CROP_TOLERANCE:
        return []
    return [mount for mount in [body.mount, *adapters.get(body.mount, [])] if mount in lens.mounts]


def fitting_pairs(bodies: list, lenses: list) -> list:
    """Each body with each lens that fits it, in the order of both; a lens by its first entry that does."""
    adapters = {mount: others.split(";") for mount, others in rows("mounts.tsv", 2)}
    result = []
    for body in bodies:
        seen = set()
        for lens in lenses:
            mounts = mounts_between(body, lens, adapters)
            if mounts and lens.name not in seen:
                seen.add(lens.name)
                result.append(Pair(body, lens, mounts))
    return result


def best_first(pairs: list) -> list:
    """A lens's own mount before others, then by rank; each lens's first pair leads, so that no lens is left out."""
    order = sorted(pairs, key=lambda pair: (not pair.native, pair.rank))
    seen = set()
    leading = []
    for pair in order:
        if pair.lens.name not in seen:
            seen.add(pair.lens.name)
            leading.append(pair)
    first = set(map(id, leading))
    return leading + [pair for pair in order if id(pair) not in first]


def take_rows(pairs: list, count: int) -> list:
    """The best pairs whose ids make `count` rows; a pair that is too large for the rest is passed over."""
    result = []
    for pair in pairs:
        if len(pair.ids) <= count:
            result.append(pair)
            count -= len(pair.ids)
    require(count == 0, "the tables do not have enough pairs of a body and a lens")
    return result


def split(pairs: list, count: int) -> None:
    """Gives the `count` first by rank of `pairs` a RAW and an RGB module; a lens of several ids has them by its ids."""
    able = sorted((pair for pair in pairs if len(pair.ids) == 1), key=lambda pair: pair.rank)
    require(len(able) >= count, "too few pairs can be split")
    for pair in able[:count]:
        pair.split = True


def share_modules(pairs: list, count: int) -> None:
    """Lets `count` rows use the modules that another body of the same maker, mount and crop factor has for the lens."""
    groups = {}
    for pair in pairs:
        if not pair.split and pair.body.raw:
            body = pair.body
            groups.setdefault((body.maker, body.mount, body.crop, pair.lens.name, *pair.ids), []).append(pair)
    able = sorted(((pair, group[0]) for group in groups.values() for pair in group[1:]),
                  key=lambda entry: entry[0].rank)
    for pair, owner in able:
        if len(pair.ids) <= count:
            pair.owner = owner
            count -= len(pair.ids)
    require(count == 0, "too few pairs can share modules")


def choose_pairs(bodies: list, lenses: list, built_in: list) -> list:
    """The pairs of interchangeable lenses that this version serves, split and shared so that its size is met."""
    built_in_kinds = Counter(row[10:12] for row in built_in)
    splits = RAW_ROWS - built_in_kinds[1, 0]
    rgb_pairs = RGB_ROWS - built_in_kinds[0, 1] - splits
    fitting = fitting_pairs([body for body in bodies if not body.built_in], lenses)
    rgb_only = best_first([pair for pair in fitting if not pair.body.raw and len(pair.ids) == 1 and pair.has_id])
    require(len(rgb_only) >= rgb_pairs, "too few pairs of bodies that write no RAW")
    chosen = rgb_only[:rgb_pairs]
    fitting = [pair for pair in fitting if pair.body.raw]
    without_id = ROWS_WITHOUT_LENS_ID - len(built_in)
    with_id = ROWS - ROWS_WITHOUT_LENS_ID - rgb_pairs - (splits - SPLIT_PAIRS_WITHOUT_ID)
    without = best_first([pair for pair in fitting if not pair.has_id])
    unnumbered = take_rows(without, without_id - SPLIT_PAIRS_WITHOUT_ID)
    numbered = take_rows(best_first([pair for pair in fitting if pair.has_id]), with_id)
    split(unnumbered, SPLIT_PAIRS_WITHOUT_ID)
    split(numbered, splits - SPLIT_PAIRS_WITHOUT_ID)
    chosen += unnumbered + numbered
    share_modules(chosen, ROWS - MODULES)
    return sorted(chosen, key=lambda pair: (pair.body.id, pair.lens.thumbnail))


def ids_of_several_lenses(pairs: list) -> set:
    """(body, id) that do not tell the lens by themselves."""
    owners = {}
    for pair in pairs:
        for lens_id in pair.ids:
            owners.setdefault((pair.body.id, lens_id), set()).add(pair.lens.name)
    return {key for key, names in owners.items() if len(names) > 1}


def name_in_metadata(lens: Lens) -> str:
    """Canon's and Sony's cameras leave out the maker; the others write the name as it is shown."""
    return lens.name.removeprefix("Canon ").removeprefix("Sony ")


def rows_of_pairs(pairs: list, cids: Cids) -> list:
    """Rows with the lens name in the metadata."""
    result = []
    for pair in pairs:
        lens = pair.lens
        amin, amax = (lens.widest, NARROWEST_APERTURE) if lens.widest > 0 else (0.0, 0.0)
        for kind in pair.kinds:
            result += [(pair.cid(kind, lens_id, cids), pair.body.id, lens.name, lens.fmin, lens.fmax, amin, amax,
                        lens_id, name_in_metadata(lens), 0, *kind, lens.thumbnail) for lens_id in pair.ids]
    return result


def drop_names(table: list, ambiguous: set, count: int) -> list:
    """Replaces `count` lens names by the word for none, where the id alone tells the lens."""
    able = [number for number, row in enumerate(table) if row[7] != NONE and (row[1], row[7]) not in ambiguous]
    require(len(able) >= count, "too few rows can do without the lens name")
    dropped = set(sorted(able, key=lambda number: rank("name", *map(str, table[number])))[:count])
    return [row[:8] + (NONE,) + row[9:] if number in dropped else row for number, row in enumerate(table)]


def require(held: bool, otherwise: str) -> None:
    if not held:
        raise SystemExit(f"makeCatalogue.py: {otherwise}")


def read_built_in_ranges() -> dict:
    return {mount: ((float(fmin), float(fmax)), (float(amin or 0), float(amax or 0)))
            for mount, fmin, fmax, amin, amax in rows("builtin-lenses.tsv", 5)}


def modules(bodies: list) -> list:
    bodies = list({body.id: body for body in reversed(bodies)}.values())[::-1]  # one of the names that share an id
    cids = Cids()
    built_in = rows_of_built_in_lenses(bodies, cids)
    lenses = read_lenses(sum(body.built_in for body in bodies) + 1)
    pairs = choose_pairs(bodies, lenses, built_in)
    table = rows_of_pairs(pairs, cids)
    table = drop_names(table, ids_of_several_lenses(pairs), ROWS_WITHOUT_LENS_NAME - len(built_in))
    return sorted(built_in + table, key=lambda row: row[1])  # stable: a body's rows keep the order of the lenses


def tables() -> dict:
    """The rows of each table."""
    bodies = read_bodies()
    return {
        "Metadata": [(None, "Version", CATALOGUE_VERSION)],
        "Module": [(None, *row) for row in modules(bodies)],
        "Maker": list(enumerate(MAKERS, 1)),
        "Body": [body[:4] for body in bodies],
    }


def write(path: Path) -> None:
    content = tables()
    path.parent.mkdir(parents=True, exist_ok=True)
    path.unlink(missing_ok=True)
    database = sqlite3.connect(path, isolation_level=None)
    database.execute("PRAGMA page_size = 4096")
    database.execute("PRAGMA journal_mode = MEMORY")
    database.execute("BEGIN")
    for statement in SCHEMA:
        database.execute(statement)
        table = statement.split()[2]
        if table in content:  # filled before its indexes are made, whose pages then are full
            places = ", ".join("?" * len(content[table][0]))
            database.executemany(f"INSERT INTO {table} VALUES ({places})", content[table])
    database.execute("COMMIT")
    database.execute("ANALYZE")
    database.execute("DROP TABLE IF EXISTS sqlite_stat4")  # some builds of the library write it as well
    database.close()
    with path.open("r+b") as file:
        file.seek(96)
        file.write(HEADER_VERSION.to_bytes(4, "big"))


if __name__ == "__main__":
    write(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_OUTPUT)
