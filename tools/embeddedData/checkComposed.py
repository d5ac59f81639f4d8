#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Checks that the embedded data of resources/ is what its sources make, byte for byte, and twice the same.

Another version of SQLite may order the pages of the catalogue differently: then what it holds is compared.
"""

import sqlite3
import subprocess
import sys
import tempfile
from contextlib import closing
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
RESOURCES = ROOT / "resources"
GENERATORS = {  # with what they make, below the folder of resources
    "tools/presets/makePresets.py": ("presets", ["presets/default.xml", "presets/presetInfo.xml",
                                                 "presets/agfaZPreset.preset"]),
    "tools/timeMachine/makeDecades.py": ("timeMachine/decadesInfo.xml", ["timeMachine/decadesInfo.xml"]),
    "tools/calibration/makeModules.py": ("calibration/caf", ["calibration/caf/C33759b_023.caf",
                                                             "calibration/caf/C34062a_011.caf"]),
    "tools/calibration/makeCatalogue.py": ("calibration/db/CAFList5.db", ["calibration/db/CAFList5.db"]),
}


def make(folder: Path) -> list:
    made = []
    for generator, (output, files) in GENERATORS.items():
        subprocess.run([sys.executable, ROOT / generator, folder / output], check=True)
        made += files
    return made


def statements(path: Path) -> list:
    with closing(sqlite3.connect(f"file:{path}?mode=ro", uri=True)) as database:
        return list(database.iterdump())


def is_same(one: Path, other: Path) -> bool:
    if one.read_bytes() == other.read_bytes():
        return True
    return one.suffix == ".db" and sqlite3.sqlite_version != "3.40.1" and statements(one) == statements(other)


def main() -> int:
    with tempfile.TemporaryDirectory() as first, tempfile.TemporaryDirectory() as second:
        files = make(Path(first))
        make(Path(second))
        faults = [f"{file}: made twice, it differs" for file in files
                  if (Path(first) / file).read_bytes() != (Path(second) / file).read_bytes()]
        faults += [f"{file}: not what its sources make; run tools/resources/regenerate.sh --data" for file in files
                   if not is_same(RESOURCES / file, Path(first) / file)]
    print("\n".join(faults) or f"{len(files)} files are what their sources make")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
