# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The closing line of ./test tells the truth."""
import os
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
PASSED = '<testcase name="a" status="run"/>'
FAILED = '<testcase name="b" status="fail"><failure message=""/></testcase>'
NOT_RUN = '<testcase name="c" status="notrun"><skipped message=""/></testcase>'
DISABLED = '<testcase name="d" status="disabled"/>'


class CountResultsTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def write(self, name, *cases):
        path = os.path.join(self.folder.name, name)
        with open(path, "w") as file:
            file.write(f"<testsuite>{''.join(cases)}</testsuite>")
        return path

    def count(self, status, *files):
        result = subprocess.run([os.path.join(ROOT, "tools/count-results"), str(status), *files], text=True,
                                capture_output=True, stdin=subprocess.DEVNULL)
        return result.stdout.splitlines()[-1], result.returncode

    def test_adds_up_all_files(self):
        files = [self.write("dev-tests.xml", PASSED, PASSED), self.write("asan-tests.xml", PASSED)]
        self.assertEqual(self.count(0, *files), ("3 passed, 0 failed", 0))

    def test_counts_failures(self):
        self.assertEqual(self.count(8, self.write("dev-tests.xml", PASSED, FAILED)), ("1 passed, 1 failed", 1))

    def test_counts_what_did_not_run_as_failed(self):
        self.assertEqual(self.count(0, self.write("dev-tests.xml", PASSED, NOT_RUN, DISABLED)),
                         ("1 passed, 2 failed", 1))

    def test_counts_a_missing_file_as_failed(self):
        self.assertEqual(self.count(0, self.write("dev-tests.xml", PASSED), "/nonexistent.xml"),
                         ("1 passed, 1 failed", 1))

    def test_is_not_content_with_nothing(self):
        self.assertEqual(self.count(0, self.write("dev-tests.xml")), ("0 passed, 0 failed", 1))

    def test_believes_ctest_when_it_failed_without_a_failed_test(self):
        self.assertEqual(self.count(1, self.write("dev-tests.xml", PASSED)), ("1 passed, 0 failed", 1))


if __name__ == "__main__":
    unittest.main()
