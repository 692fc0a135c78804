# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-docs finds what documents name and is not there, and nothing else."""
import os
import unittest

from SourceCheck import SourceCheckTest


class CheckDocsTest(SourceCheckTest):
    check = "check-docs"

    def setUp(self):
        super().setUp()
        self.write("src/rules/RuleList.h", "class RuleList", "{", "    void reloadAll();", "};")
        self.write("src/rules/RuleTimer.h", "class RuleTimer", "{", "    void tickOnce();", "};")
        self.write("tests/lab/roam_test.py", "import unittest")
        self.write("docs/rules.md", "# Rules", "", "## Visits, and what ends them")

    def missing(self, *lines):
        """What is said of a document with these lines."""
        self.write("README.md", *lines)
        return self.problems()

    def test_allows_what_is_there(self):
        self.assertEqual(self.missing(
            "`RuleList` and `RuleTimer::tickOnce()`, in `src/rules`; `rules/RuleList`, `rules/RuleList.h`",
            "`rules/RuleList::reloadAll`, `rules::tickOnce`, `rules/{RuleList,RuleTimer}`, `lab/roam_test.py`",
            "[rules](docs/rules.md), [visits](docs/rules.md#visits-and-what-ends-them), [here](#rules)",
            "# Rules"), [])

    def test_tells_of_classes_and_members(self):
        self.assertEqual(self.missing("A `RuleBook` and", "`RuleList::tickOnce`, `RuleTimer::stop`"),
                         ["README.md:1: RuleBook is not there", "README.md:2: RuleList::tickOnce is not there",
                          "README.md:2: RuleTimer::stop is not there"])

    def test_tells_of_paths(self):
        self.assertEqual(self.missing("`src/rules/RuleBook`", "`rules/RuleList::tickOnce`", "`rules/{RuleList,Book}`"),
                         ["README.md:1: src/rules/RuleBook is not there",
                          "README.md:2: rules/RuleList::tickOnce is not there", "README.md:3: rules/Book is not there"])

    def test_tells_of_files_and_sections_that_links_lead_to(self):
        self.assertEqual(self.missing("[a](docs/visits.md)", "[b](docs/rules.md#visits)", "![c](docs/c.png) [d](#d)"),
                         ["README.md:1: docs/visits.md is not there", "README.md:2: docs/rules.md#visits is not there",
                          "README.md:3: docs/c.png is not there", "README.md:3: #d is not there"])

    def test_a_document_goes_by_its_own_folder(self):
        self.write("docs/visits.md", "[there](rules.md), [not there](docs/rules.md)")
        self.assertEqual(self.problems(), ["docs/visits.md:1: docs/rules.md is not there"])

    def test_leaves_alone_what_is_not_ours(self):
        self.assertEqual(self.missing("`./test -R X`, `~/.local/share/Quillon`, `/dev/rfkill`, `share/quillon4/oui.db`",
                                      "`rules/<feature>`, `docs/quillon_XX.md`, `savedNetworks`, `Reapply`",
                                      "[a page](https://example.org/rules.md#visits)"), [])

    def test_a_document_is_no_source(self):
        self.write("docs/other.md", "RuleBook")
        self.assertEqual(self.missing("`RuleBook`"), ["README.md:1: RuleBook is not there"])

    def test_refuses_a_folder_without_documents(self):
        os.remove(os.path.join(self.folder.name, "docs/rules.md"))
        self.assertEqual(len(self.problems()), 1)


if __name__ == "__main__":
    unittest.main()
