#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Every source file says in its first lines which of the licences in LICENSES/ it stands under."""

import re
import sys
from pathlib import Path

SUFFIXES = {".cpp", ".h", ".cmake", ".py", ".pl", ".php", ".sh", ".qrc", ".wsdl"}
NAMES = {"CMakeLists.txt", "run", "test"}
OTHER_FOLDERS = {".git", ".cache", "build", "__pycache__"}
LINES_TO_READ = 8


def is_source(path, root):
    if not path.is_file() or OTHER_FOLDERS & set(path.relative_to(root).parts):
        return False
    name = path.name.removesuffix(".in")  # templates of sources are sources
    return path.name in NAMES or Path(name).suffix in SUFFIXES


def fault_of(text, licences):
    """What is wrong with the first lines of a file; empty if nothing is."""
    head = "\n".join(text.splitlines()[:LINES_TO_READ])
    licence = re.search(r"SPDX-License-Identifier: ([\w.+-]+)", head)
    if licence is None:
        return "no SPDX-License-Identifier"
    return "" if licence[1] in licences else f"{licence[1]} is not in LICENSES/"


def check_itself():
    good = "// SPDX-FileCopyrightText: 2026 Somebody\n// SPDX-License-Identifier: MIT\n"
    bad = ["", good.splitlines()[0], good.replace("MIT", "Beer"), "\n" * LINES_TO_READ + good]
    assert fault_of(good, {"MIT"}) == ""
    assert all(fault_of(text, {"MIT"}) for text in bad)


def main():
    check_itself()
    root = Path(sys.argv[1])
    licences = {path.stem for path in (root / "LICENSES").iterdir()}
    sources = [path for path in sorted(root.rglob("*")) if is_source(path, root)]
    faults = [f"{path.relative_to(root)}: {fault}" for path in sources
              if (fault := fault_of(path.read_text(encoding="utf-8"), licences))]
    print("\n".join(faults) or f"{len(sources)} source files")
    return 1 if faults or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
