#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
# SPDX-License-Identifier: MIT
"""checkSnippets.py on small trees: one where all is well, and one for each fault that it has to find."""

import tempfile
import unittest
from pathlib import Path

from checkSnippets import check

SNIPPET = "int before;\n//! [one]\nint f()\n{\n    return 1;\n}\n//! [one]\nint behind;\n"
BLOCK = "```cpp\nint f()\n{\n    return 1;\n}\n```\n"
PAGE = "# Room\n\n<!-- snippet: room.cpp one -->\n" + BLOCK + "\n[the README](../README.md#top), [away](https://a.example/b)\n"


class CheckSnippets(unittest.TestCase):
    def faults(self, page=PAGE, snippet=SNIPPET, readme="# Tree\n", other=""):
        with tempfile.TemporaryDirectory() as folder:
            tree = Path(folder)
            (tree / "docs" / "snippets").mkdir(parents=True)
            (tree / "README.md").write_text(readme, encoding="utf-8")
            (tree / "docs" / "room.md").write_text(page, encoding="utf-8")
            (tree / "docs" / "snippets" / "room.cpp").write_text(snippet, encoding="utf-8")
            (tree / "OTHER.md").write_text(other, encoding="utf-8")
            (tree / "build").mkdir()
            (tree / "build" / "made.md").write_text("[gone](gone.md)\n", encoding="utf-8")
            return check(tree)

    def test_a_tree_where_all_is_well(self):
        self.assertEqual(self.faults(), [])

    def test_a_changed_word(self):
        self.assertEqual(self.faults(page=PAGE.replace("return 1", "return 2")),
                         ["room.md:4: not what stands in room.cpp [one]"])

    def test_a_changed_indentation(self):
        self.assertEqual(self.faults(page=PAGE.replace("    return", "  return")),
                         ["room.md:4: not what stands in room.cpp [one]"])

    def test_a_missing_last_line(self):
        self.assertEqual(self.faults(page=PAGE.replace("}\n```", "```")),
                         ["room.md:4: not what stands in room.cpp [one]"])

    def test_a_block_without_a_snippet(self):
        self.assertEqual(self.faults(page=PAGE + "\n```cpp\nint g();\n```\n"),
                         ["room.md:13: a C++ block without a snippet"])

    def test_a_block_in_the_readme_without_a_snippet(self):
        self.assertEqual(self.faults(readme="```cpp\nint g();\n```\n"), ["README.md:1: a C++ block without a snippet"])

    def test_a_comment_that_is_not_right_above(self):
        self.assertIn("room.md:5: a C++ block without a snippet", self.faults(page=PAGE.replace("-->\n", "-->\n\n")))

    def test_blocks_in_other_languages_are_free(self):
        self.assertEqual(self.faults(page=PAGE + "\n```sh\n./run\n```\n"), [])

    def test_an_unknown_region(self):
        self.assertEqual(self.faults(page=PAGE.replace("room.cpp one", "room.cpp two")),
                         ["room.md:4: there is no [two] in room.cpp", "room.cpp: [one] is shown nowhere"])

    def test_an_unknown_file(self):
        self.assertIn("room.md:4: there is no [one] in hall.cpp", self.faults(page=PAGE.replace("room.cpp", "hall.cpp")))

    def test_a_region_that_no_page_shows(self):
        self.assertEqual(self.faults(snippet=SNIPPET + "//! [two]\nint g();\n//! [two]\n"),
                         ["room.cpp: [two] is shown nowhere"])

    def test_a_region_that_is_not_closed(self):
        self.assertIn("room.cpp: [two] is not closed", self.faults(snippet=SNIPPET + "//! [two]\nint g();\n"))

    def test_a_region_inside_another(self):
        self.assertIn("room.cpp:3: [two] inside [one]", self.faults(snippet=SNIPPET.replace("int f()", "//! [two]\nint f()")))

    def test_a_name_used_twice(self):
        self.assertIn("room.cpp:9: a second region [one]", self.faults(snippet=SNIPPET + "//! [one]\nint g();\n"))

    def test_a_link_that_leads_nowhere(self):
        self.assertEqual(self.faults(other="See\n[this](docs/gone.md#part).\n"),
                         ["OTHER.md:2: docs/gone.md#part leads nowhere"])

    def test_links_to_folders_and_within_the_page(self):
        self.assertEqual(self.faults(other="[pages](docs/), [here](#below), `[not a link](gone)`\n"), [])


if __name__ == "__main__":
    unittest.main()
