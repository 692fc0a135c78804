# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""tools/check-suites finds suites that are named unlike their file, and nothing else."""
import unittest

from SourceCheck import SourceCheckTest


class CheckSuitesTest(SourceCheckTest):
    check = "check-suites"

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
