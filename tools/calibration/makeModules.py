#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Makes the two embedded calibration modules: placeholders of the size of real ones, with bytes that mean nothing."""

import hashlib
import sys
from pathlib import Path

SIZES = {"C33759b_023.caf": 303 * 1024, "C34062a_011.caf": 394 * 1024}


def scrambled(name, size):
    return hashlib.shake_256(name.encode()).digest(size)


def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name, size in SIZES.items():
        (folder / name).write_bytes(scrambled(name, size))


if __name__ == "__main__":
    main(Path(sys.argv[1]))
