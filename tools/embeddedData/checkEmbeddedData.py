#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the UtilsDllzglv6 authors
"""Checks the embedded data of resources/ and prints a page of figures: presets, notes, film history, catalogue.

    checkEmbeddedData.py [resources]      1 if there is a fault, each on a line of its own
    checkEmbeddedData.py --self-check     the seeded faults, each of which has to be found

Needs xmllint (libxml2-utils), Lua 5.4 and Python 3.11 or newer, of which only the standard library.
"""

import shutil
import sys
from pathlib import Path

import catalogueCheck
import historyCheck
import noteCheck
import presetCheck
from readers import Data

HERE = Path(__file__).resolve().parent
RESOURCES = HERE.parents[1] / "resources"
SKIPPED = 77
CHECKS = [presetCheck, noteCheck, historyCheck, catalogueCheck]


def main() -> int:
    missing = [program for program in ("xmllint", "lua5.4") if shutil.which(program) is None]
    if missing:
        print(f"skipped: {', '.join(missing)} not found")
        return SKIPPED
    if sys.argv[1:] == ["--self-check"]:
        import seededFaults
        return seededFaults.run(RESOURCES)
    data = Data(Path(sys.argv[1]) if len(sys.argv) > 1 else RESOURCES)
    faults = [fault for check in CHECKS for fault in check.faults(data)]
    if not faults:
        print("\n".join(line for check in CHECKS for line in check.figures(data)))
    print("\n".join(faults) or "no faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
