# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-licenses finds files without license, and nothing else."""
import unittest

from SourceCheck import SourceCheckTest

# In two pieces, or this file would have one license too many.
OWNER = "SPDX-FileCopyright" "Text: 2026 Somebody"
LICENSE = "SPDX-License-" "Identifier: "
OURS = LICENSE + "GPL-3.0-or-later"
BY_LIST = ('version = 1', '[[annotations]]', 'path = ["docs/**", "one.json"]',
           'SPDX-FileCopyrightText = "2026 Somebody"', 'SPDX-License-Identifier = "GPL-3.0-or-later"')


class CheckLicensesTest(SourceCheckTest):
    check = "check-licenses"

    def setUp(self):
        super().setUp()
        self.write("REUSE.toml", f"# {OWNER}", f"# {OURS}", *BY_LIST)
        self.write("one.json", "{}")
        self.write("docs/deep/picture.png", "")

    def test_what_says_it_is_fine_in_every_kind_of_comment(self):
        self.write("a.cpp", f"// {OWNER}", f"// {OURS}")
        self.write("b.xml", f"<!-- {OWNER} -->", f"<!-- {LICENSE}CC0-1.0 -->")
        self.write("LICENSE", "the text of it")
        self.assertEqual(self.problems(), [])

    def test_what_does_not_say_it_is_found(self):
        self.write("a.cpp", f"// {OWNER}")
        self.write("b.cpp", f"// {OURS}")
        self.write("c.cpp", "", *["// far below"] * 400, f"// {OWNER}", f"// {OURS}")
        self.assertEqual(self.problems(), ["a.cpp: under which license?", "b.cpp: whose?",
                                           "c.cpp: under which license?"])

    def test_a_license_that_is_not_ours_is_found_where_it_is_listed_too(self):
        self.write("a.cpp", f"// {OWNER}", f"// {LICENSE}MIT")
        self.write("docs/b.md", f"<!-- {LICENSE}MIT -->")
        self.assertEqual(self.problems(), ["a.cpp: MIT is not a license of ours",
                                           "docs/b.md: MIT is not a license of ours"])

    def test_a_list_of_what_is_not_there_is_found(self):
        self.write("REUSE.toml", f"# {OWNER}", f"# {OURS}", *BY_LIST[:2], 'path = ["docs/**", "*.json", "two.json"]',
                   BY_LIST[3], 'SPDX-License-Identifier = "MIT"')
        self.assertEqual(self.problems(), [f"REUSE.toml: {path}: not a license of ours"
                                           for path in ("docs/**", "*.json", "two.json")] +
                         ["REUSE.toml: two.json: there is no such file"])


if __name__ == "__main__":
    unittest.main()
