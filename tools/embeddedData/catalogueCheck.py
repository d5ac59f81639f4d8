# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""CAFList5.db: schema, figures, links that no clause of the schema keeps, and look-ups that an index has to answer."""

import re
import sqlite3
from contextlib import closing

SCHEMA = [
    "CREATE TABLE Metadata (id INTEGER PRIMARY KEY, key TEXT, value TEXT)",
    "CREATE TABLE Module (id INTEGER PRIMARY KEY, cid TEXT, body INTEGER, name TEXT, fmin FLOAT, fmax FLOAT, "
    "amin FLOAT, amax FLOAT, lens_id TEXT, lens_name TEXT, bridge INTEGER, raw_only INTEGER, rgb_only INTEGER, "
    "lens_id_thumbnail INTEGER)",
    *(f"CREATE INDEX module_{column}_idx ON Module({column})"
      for column in ("body", "cid", "raw_only", "rgb_only", "fmin", "fmax", "lens_id", "bridge")),
    "CREATE TABLE Maker (id INTEGER PRIMARY KEY, name TEXT)",
    "CREATE TABLE Body (id INTEGER, maker INTEGER, model TEXT, identifier TEXT)",
    *(f"CREATE INDEX body_{column}_idx ON Body({column})" for column in ("id", "maker", "identifier")),
]
MAKERS = ["Apple", "Canon", "DJI", "Fujifilm", "GoPro", "Hasselblad", "Kodak", "Konica", "Leica", "Nikon", "Nokia",
          "Olympus", "OM System", "Panasonic", "Parrot", "Pentax", "Ricoh", "Samsung", "Sigma", "Sony"]  # and our own
FIGURES = {
    "makers": ("SELECT count(*) FROM Maker", 21),
    "bodies": ("SELECT count(*) FROM Body", 518),
    "ids of bodies": ("SELECT count(DISTINCT id) FROM Body", 517),
    "identifiers": ("SELECT count(DISTINCT identifier) FROM Body", 518),
    "bodies of our own": ("SELECT count(*) FROM Body WHERE maker = (SELECT max(id) FROM Maker)", 1),
    "makers with a body": ("SELECT count(DISTINCT maker) FROM Body", 21),
    "modules": ("SELECT count(*) FROM Module", 85_940),
    "module files": ("SELECT count(DISTINCT cid) FROM Module", 73_882),
    "bodies with a module": ("SELECT count(DISTINCT body) FROM Module", 517),
    "rows without lens id": ("SELECT count(*) FROM Module WHERE lens_id = 'NULL'", 10_671),
    "rows without lens name": ("SELECT count(*) FROM Module WHERE lens_name = 'NULL'", 39_150),
    "rows of built-in lenses": ("SELECT count(*) FROM Module WHERE bridge = 1", 350),
    "rows for RAW only": ("SELECT count(*) FROM Module WHERE raw_only = 1", 8_891),
    "rows for RGB only": ("SELECT count(*) FROM Module WHERE rgb_only = 1", 9_249),
    "rows with both marks": ("SELECT count(*) FROM Module WHERE raw_only = 1 AND rgb_only = 1", 0),
    "thumbnails": ("SELECT count(DISTINCT lens_id_thumbnail) FROM Module", 1_864),
    "shortest focal length": ("SELECT min(fmin) FROM Module", 0),
    "longest focal length": ("SELECT max(fmax) FROM Module", 2_000),
    "widest aperture": ("SELECT min(amin) FROM Module", 0),
    "narrowest aperture": ("SELECT max(amax) FROM Module", 22),
    "rows of statistics": ("SELECT count(*) FROM sqlite_stat1", 13),
}
COLUMNS = ["cid", "body", "name", "fmin", "fmax", "amin", "amax", "lens_id", "lens_name", "bridge", "raw_only",
           "rgb_only", "lens_id_thumbnail"]
NONE_OF = {
    "a module of no body": "SELECT cid FROM Module WHERE body NOT IN (SELECT id FROM Body)",
    "a body of no maker": "SELECT identifier FROM Body WHERE maker NOT IN (SELECT id FROM Maker)",
    "a range of focal lengths or apertures that runs backwards":
        "SELECT cid FROM Module WHERE fmin > fmax OR (amax > 0 AND amin > amax)",
    "a flag that is neither 0 nor 1":
        "SELECT cid FROM Module WHERE NOT (bridge IN (0, 1) AND raw_only IN (0, 1) AND rgb_only IN (0, 1))",
    "a null value": "SELECT cid FROM Module WHERE " + " OR ".join(f"{column} IS NULL" for column in COLUMNS),
    "a lens that nothing in the metadata tells":
        "SELECT cid FROM Module WHERE bridge = 0 AND lens_id = 'NULL' AND lens_name = 'NULL'",
    "a module twice on one body": "SELECT cid FROM Module GROUP BY body, cid HAVING count(*) > 1",
    "a number of another kind":
        "SELECT cid FROM Module WHERE " + " OR ".join(
            [f"typeof({column}) <> 'real'" for column in ("fmin", "fmax", "amin", "amax")]
            + [f"typeof({column}) <> 'integer'" for column in ("body", "bridge", "raw_only", "rgb_only",
                                                              "lens_id_thumbnail")]),
    "a broken name": "SELECT name FROM Module WHERE name LIKE '%\\_%' ESCAPE '\\' "
                     "OR length(replace(name, '(', '')) <> length(replace(name, ')', ''))",
    "a module file for two lenses": "SELECT cid FROM Module GROUP BY cid HAVING count(DISTINCT name) > 1",
    "the same row twice":
        "SELECT cid FROM Module GROUP BY cid, body, lens_id, lens_name, raw_only, rgb_only HAVING count(*) > 1",
    "a body with a built-in lens and others": "SELECT body FROM Module GROUP BY body HAVING count(DISTINCT bridge) > 1",
    "a lens with two thumbnails": "SELECT name FROM Module GROUP BY name HAVING count(DISTINCT lens_id_thumbnail) > 1",
    "a widest aperture alone": "SELECT cid FROM Module WHERE (amin > 0) <> (amax > 0)",
    "a name that is missing": "SELECT cid FROM Module WHERE trim(name) = '' UNION ALL "
                              "SELECT identifier FROM Body WHERE trim(model) = ''",
    "an identifier of other signs than letters and digits":
        "SELECT identifier FROM Body WHERE identifier GLOB '*[^A-Za-z0-9]*'",
}
LOOK_UPS = {  # by the index that answers
    "body_identifier_idx": "SELECT id FROM Body WHERE identifier = 'AppleIPhone5S'",
    "body_id_idx": "SELECT model FROM Body WHERE id = 1",
    "body_maker_idx": "SELECT model FROM Body WHERE maker = 1",
    "module_body_idx": "SELECT cid FROM Module WHERE body = 100",
    "module_cid_idx": "SELECT name FROM Module WHERE cid = 'C33759b_023'",
    "module_lens_id_idx": "SELECT cid FROM Module WHERE lens_id = '490'",
    "module_fmin_idx": "SELECT cid FROM Module WHERE fmin > 1000",
    "module_fmax_idx": "SELECT cid FROM Module WHERE fmax < 5",
    "module_raw_only_idx": "SELECT cid FROM Module WHERE raw_only = 1",
    "module_rgb_only_idx": "SELECT cid FROM Module WHERE rgb_only = 1",
    "module_bridge_idx": "SELECT cid FROM Module WHERE bridge = 1",
}
FULL_LOOK_UP = (  # from a camera's identifier and lens to the module
    "SELECT cid FROM Body JOIN Module ON Module.body = Body.id WHERE identifier = 'CanonEOS5DMarkIV' "
    "AND lens_id = '490' AND 12 BETWEEN fmin AND fmax AND bridge = 0 AND rgb_only = 0")
FOCAL_LENGTHS = re.compile(r"(?<![\d.-])(\d+(?:\.\d+)?)(?:-\d+)??(?:-(\d+(?:\.\d+)?))? ?mm")  # in a lens's name
CID = re.compile(r"C\d{3,5}[a-z]_\d{3}")
# The word for none, a number, Pentax's pair, Olympus's triple, Nikon's eight bytes.
LENS_ID = re.compile(r"NULL|\d+|\d+ \d+|\d+(?: [0-9a-f]{2}){2}|[0-9A-F]{2}(?: [0-9A-F]{2}){7}")
VERSION = [("Version", "500.4.0.3")]
OWN_ROWS = [(1, 0), (0, 1)]  # raw_only, rgb_only


def faults(data) -> list:
    try:
        with closing(sqlite3.connect(f"file:{data.catalogue_file}?mode=ro", uri=True)) as catalogue:
            return [f"CAFList5.db: {fault}" for fault in catalogue_faults(catalogue, data.modules_folder)]
    except sqlite3.DatabaseError as error:
        return [f"CAFList5.db: {error}"]


def catalogue_faults(catalogue, modules_folder) -> list:
    check = column(catalogue, "PRAGMA integrity_check")
    if check != ["ok"]:
        return check[:3]
    found = schema_faults(catalogue)
    if found:
        return found
    for name, (query, told) in FIGURES.items():
        value = column(catalogue, query)[0]
        found += [f"{name}: {value}, not {told}"] if value != told else []
    for name, query in NONE_OF.items():
        rows = column(catalogue, query)
        found += [f"{name}: {rows[0]} and {len(rows) - 1} more"] if rows else []
    cids = column(catalogue, "SELECT DISTINCT cid FROM Module")
    found += [f"the cid {cid}" for cid in cids if not CID.fullmatch(cid)]
    lens_ids = column(catalogue, "SELECT DISTINCT lens_id FROM Module")
    found += [f"the lens id {lens_id}" for lens_id in lens_ids if not LENS_ID.fullmatch(lens_id)]
    found += [f"the maker {name}" for name in MAKERS if name not in column(catalogue, "SELECT name FROM Maker")]
    if catalogue.execute("SELECT key, value FROM Metadata").fetchall() != VERSION:
        found.append("its version")
    found += range_faults(catalogue) + identifier_faults(catalogue)
    return found + own_faults(catalogue, modules_folder) + plan_faults(catalogue)


def range_faults(catalogue) -> list:
    """The focal lengths of a lens are those that its name tells."""
    found = []
    for name, fmin, fmax in catalogue.execute("SELECT DISTINCT name, fmin, fmax FROM Module WHERE bridge = 0"):
        told = FOCAL_LENGTHS.search(name)
        if told and (float(told[1]), float(told[2] or told[1])) != (fmin, fmax):
            found.append(f"{name}: {fmin} to {fmax} mm")
    return found


def identifier_faults(catalogue) -> list:
    """An identifier is maker and model run together."""
    found = []
    bodies = catalogue.execute("SELECT name, model, identifier FROM Body JOIN Maker ON Maker.id = maker")
    for maker, model, identifier in bodies:
        own = re.sub(f"^{re.escape(maker)} ", "", model, flags=re.IGNORECASE)
        told = re.sub("[^0-9a-z]", "", (maker + own).lower().replace("+", "plus").replace("µ", "u"))
        found += [f"{identifier} of {maker} {model}"] if identifier.lower() != told else []
    return found


def column(catalogue, query: str) -> list:
    return [row[0] for row in catalogue.execute(query)]


def schema_faults(catalogue) -> list:
    found = column(catalogue, "SELECT sql FROM sqlite_schema WHERE name NOT LIKE 'sqlite_%' ORDER BY rowid")
    if sorted(found) == sorted(SCHEMA) and found != SCHEMA:
        return ["schema: in another order"]
    return [f"schema: {statement}" for statement in sorted(set(SCHEMA) ^ set(found))]


def own_faults(catalogue, modules_folder) -> list:
    """The embedded module files are the two of our own body, one for RAW and one for RGB."""
    rows = catalogue.execute("SELECT cid, bridge, raw_only, rgb_only FROM Module JOIN Body ON Body.id = body "
                             "WHERE maker = (SELECT max(id) FROM Maker) ORDER BY raw_only DESC").fetchall()
    files = sorted(path.stem for path in modules_folder.glob("*.caf"))
    found = [] if sorted(row[0] for row in rows) == files else [f"the embedded modules are {files}"]
    if [row[2:] for row in rows] != OWN_ROWS or not all(row[1] for row in rows):
        found.append(f"own rows: {rows}")
    return found


def plan_of(catalogue, query: str) -> str:
    return "; ".join(row[3] for row in catalogue.execute("EXPLAIN QUERY PLAN " + query))


def plan_faults(catalogue) -> list:
    plans = {index: plan_of(catalogue, query) for index, query in LOOK_UPS.items()}
    found = [f"answered without {index}: {plan}" for index, plan in plans.items() if index not in plan]
    plan = plan_of(catalogue, FULL_LOOK_UP)
    if "body_identifier_idx" not in plan or not re.search(r"SEARCH Module USING INDEX module_(body|lens_id)_idx", plan):
        found.append(f"answered without an index: {plan}")
    return found


def figures(data) -> list:
    with closing(sqlite3.connect(f"file:{data.catalogue_file}?mode=ro", uri=True)) as catalogue:
        values = {name: column(catalogue, query)[0] for name, (query, _) in FIGURES.items()}
    size = data.catalogue_file.stat().st_size
    return [f"catalogue   {size} bytes", *(f"            {name}: {value}" for name, value in values.items())]
