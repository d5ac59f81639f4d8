#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""Compares the pages with the compiled examples, and looks where their links lead.

Usage: checkSnippets.py TREE

A C++ block in README.md or docs/*.md follows a line "<!-- snippet: file.cpp name -->" and is, word for word, what stands
between the two lines "//! [name]" of docs/snippets/file.cpp. Each such region is shown somewhere. A relative link in any
.md file of the tree leads to a file or folder that exists.
"""

import re
import sys
from pathlib import Path

MARK = re.compile(r"\s*//! \[(.+)\]\s*$")
SOURCE = re.compile(r"<!-- snippet: (\S+) (.+) -->$")
LINK = re.compile(r"\[[^\]\[]*\]\(([^)\s]+)\)")
OUTSIDE = re.compile(r"[a-z][a-z0-9+.-]*:", re.IGNORECASE)
NOT_OURS = {"build", ".git", ".cache"}


def read_regions(source):
    """Marked regions of one file, and what is wrong with its marks."""
    regions, faults, name, lines = {}, [], None, []
    for number, line in enumerate(source.read_text(encoding="utf-8").splitlines(), 1):
        mark = MARK.match(line)
        if not mark:
            lines.append(line)
        elif name is None and mark[1] in regions:
            faults.append(f"{source.name}:{number}: a second region [{mark[1]}]")
        elif name is None:
            name, lines = mark[1], []
        elif mark[1] == name:
            regions[name] = lines
            name, lines = None, []
        else:
            faults.append(f"{source.name}:{number}: [{mark[1]}] inside [{name}]")
    if name is not None:
        faults.append(f"{source.name}: [{name}] is not closed")
    return regions, faults


def read_blocks(page):
    """Fenced blocks of one page: language, number of the first line, the line above, the lines."""
    above, block, blocks = "", None, []
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        if block is None and line.lstrip().startswith("```"):
            block = (line.strip()[3:], number, above, [])
        elif block is not None and line.strip() == "```":
            blocks.append(block)
            block = None
        elif block is not None:
            block[3].append(line)
        above = line
    return blocks


def check_page(page, regions, shown):
    faults = []
    for language, number, above, lines in read_blocks(page):
        if language != "cpp":
            continue
        source = SOURCE.match(above)
        if not source:
            faults.append(f"{page.name}:{number}: a C++ block without a snippet")
            continue
        key = (source[1], source[2])
        if key not in regions:
            faults.append(f"{page.name}:{number}: there is no [{key[1]}] in {key[0]}")
            continue
        shown.add(key)
        if regions[key] != lines:
            faults.append(f"{page.name}:{number}: not what stands in {key[0]} [{key[1]}]")
    return faults


def check_snippets(tree):
    regions, faults, shown = {}, [], set()
    for source in sorted((tree / "docs" / "snippets").glob("*.cpp")):
        found, wrong = read_regions(source)
        regions.update({(source.name, name): lines for name, lines in found.items()})
        faults += wrong
    for page in [tree / "README.md", *sorted((tree / "docs").glob("*.md"))]:
        faults += check_page(page, regions, shown)
    faults += [f"{source}: [{name}] is shown nowhere" for source, name in sorted(set(regions) - shown)]
    return faults


def prose_of(page):
    """The lines of a page with blocks and inline code blanked."""
    is_code = False
    for number, line in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        if line.lstrip().startswith("```"):
            is_code = not is_code
        elif not is_code:
            yield number, re.sub(r"`[^`]*`", "", line)


def check_links(tree):
    faults = []
    for page in sorted(tree.rglob("*.md")):
        if NOT_OURS & set(page.relative_to(tree).parts):
            continue
        for number, line in prose_of(page):
            for target in LINK.findall(line):
                path = target.split("#")[0]
                if path and not OUTSIDE.match(target) and not (page.parent / path).exists():
                    faults.append(f"{page.relative_to(tree).as_posix()}:{number}: {target} leads nowhere")
    return faults


def check(tree):
    return check_snippets(tree) + check_links(tree)


def main():
    faults = check(Path(sys.argv[1]))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
