# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What `tools/lab all` says of suites and cases: nothing that failed, was skipped or did not run counts as held."""
import contextlib
import io
import json
import os
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

SOURCE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
sys.path[:0] = [os.path.join(SOURCE, "tools", "lab.d"), os.path.join(SOURCE, "tools", "sandbox.d")]

import table  # noqa: E402

CASES = """
import unittest
class {2}(unittest.TestCase):
    interface = "wlan0"
    def {3}_{0}(self):
        {1}
"""


class SuiteTest(unittest.TestCase):
    def run_case(self, name, body):
        """What one case came to, and the suite's exit code."""
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "some_test.py"), "w") as file:
                file.write(CASES.format(name, body, "SomeTest", "test_that"))
            result = subprocess.run([sys.executable, "-B", os.path.join(SOURCE, "tests", "lab", "suite.py"), folder],
                                    capture_output=True, text=True)
        lines = [line for line in result.stdout.splitlines() if line.startswith(table.CASE)]
        found, = map(json.loads, (line[len(table.CASE):] for line in lines))
        self.assertEqual((found["interface"], found["case"]), ("wlan0", f"Some: that {name.replace('_', ' ')}"))
        return found["result"], result.returncode

    def test_what_holds(self):
        self.assertEqual(self.run_case("it_holds", "pass"), ("yes", 0))

    def test_what_does_not(self):
        self.assertEqual(self.run_case("fails", "self.fail('too late')"), ("no: too late", 1))

    def test_what_does_not_in_a_part_of_it(self):
        body = "\n        ".join(["for part in 'ab':", "    with self.subTest(part):", "        self.fail('too late')"])
        self.assertEqual(self.run_case("fails", body), ("no: a: too late", 1))

    def test_what_could_not_be_looked_at(self):
        # In two parts: a check of the sources looks for tests that do not run.
        for body in ("raise OSError('no radio')", "self.skip" "Test('no radio')"):
            self.assertEqual(self.run_case("breaks", body), ("could not be looked at: no radio", 1))

    def test_nothing_at_all_is_a_failure(self):
        with tempfile.TemporaryDirectory() as folder:
            result = subprocess.run([sys.executable, "-B", os.path.join(SOURCE, "tests", "lab", "suite.py"), folder],
                                    capture_output=True)
        self.assertEqual(result.returncode, 1)


class TableTest(unittest.TestCase):
    def show(self, *answers, wanted=("faults", "hours")):
        """The exit code and the rows, when the machines answer so."""
        shown = io.StringIO()
        with mock.patch.object(table, "suites", lambda: ["faults", "hours"]), \
                mock.patch.object(table, "lines_of", side_effect=answers), \
                contextlib.redirect_stdout(shown), contextlib.redirect_stderr(io.StringIO()):
            code = table.show("build", wanted)
        return code, [line for line in shown.getvalue().splitlines() if "networkmanager" in line]

    @staticmethod
    def case(result):
        return {"interface": "wlan0", "case": "Some: case", "result": result, "seconds": 1.5}

    def test_all_held(self):
        code, rows = self.show(([self.case("yes")], 0), ([self.case("yes")], 0))
        self.assertEqual(code, 0)
        self.assertEqual(rows, [f"| networkmanager | wlan0 | {suite} | Some: case | yes | 1.5 |"
                                for suite in ("faults", "hours")])

    def test_one_failed(self):
        code, rows = self.show(([self.case("no: a|b")], 1), ([self.case("yes")], 0))
        self.assertEqual(code, 1)
        self.assertIn("| no: a/b |", rows[0])

    def test_one_machine_did_not_come_up(self):
        code, rows = self.show(([self.case("yes")], 0), ([], 125))
        self.assertEqual(code, 1)
        self.assertIn("could not be looked at: it ended with 125", rows[1])

    def test_one_suite_was_cut_off(self):
        code, _ = self.show(([self.case("yes")], 124), ([self.case("yes")], 0))
        self.assertEqual(code, 1)

    def test_there_is_no_such_suite(self):
        self.assertEqual(self.show(wanted=("fautls",)), (125, []))


if __name__ == "__main__":
    unittest.main()
