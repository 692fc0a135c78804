# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-suites finds suites that are named unlike their file, and nothing else."""
import os
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))


class CheckSuitesTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def write(self, path, *lines):
        path = os.path.join(self.folder.name, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w") as file:
            file.write("\n".join(lines) + "\n")

    def problems(self):
        result = subprocess.run([os.path.join(ROOT, "tools/check-suites"), self.folder.name],
                                text=True, capture_output=True, stdin=subprocess.DEVNULL)
        self.assertEqual(result.stderr, "")
        lines = result.stdout.splitlines()
        self.assertEqual(result.returncode, 1 if lines else 0)
        return lines

    def test_allows_suites_that_begin_with_their_files_name(self):
        self.write("tests/unit/TableTest.cpp", "TEST(Table, Reads)", "TEST_F(TableTest, Writes)",
                   "TEST_P(TableOfMany, Sorts)", "TYPED_TEST(TableConformance, Agrees)")
        self.assertEqual(self.problems(), [])

    def test_tells_of_each_other_suite_once(self):
        self.write("tests/unit/TableTest.cpp", "TEST(Table, Reads)", "TEST_F(Records, Read)", "TEST_F(Records, Write)")
        self.assertEqual(self.problems(),
                         ["tests/unit/TableTest.cpp:2: the suite Records does not begin with Table"])

    def test_refuses_a_folder_without_tests(self):
        self.write("tests/unit/Table.h", "// TEST(Nothing, IsTested)")
        self.assertEqual(len(self.problems()), 1)


if __name__ == "__main__":
    unittest.main()
