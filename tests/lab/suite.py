# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs suites of cases in the lab's machine, says how long each case took, and writes a line of JSON for each when it
has ended, of which `tools/lab all` makes its table.
usage: suite.py FOLDER [PATTERN [NAME]...]      PATTERN of the files' names; only cases with one of NAME in theirs
"""
import json
import os
import sys
import time
import unittest

MARK = "case "


class Result(unittest.TextTestResult):
    """Also keeps what each case came to: "yes", "no: why", or "could not be looked at: why"."""

    def __init__(self, *arguments):
        super().__init__(*arguments)
        self.found = {}  # by case: interface, what it came to, seconds
        self.begin = 0.0

    def startTest(self, test):
        super().startTest(test)
        self.begin = time.monotonic()
        self.found[test.id()] = [getattr(test, "interface", "both"), "yes", 0.0]

    def stopTest(self, test):
        super().stopTest(test)
        self.found[test.id()][2] = time.monotonic() - self.begin
        self.write(test.id())

    def write(self, identity):
        interface, came_to, seconds = self.found[identity]
        print(MARK + json.dumps({"interface": interface, "case": case_name(identity), "result": came_to,
                                 "seconds": round(seconds, 1)}), flush=True)

    def note(self, test, came_to):
        if test.id() not in self.found:
            # No case: what comes before or after those of a class.
            self.found[test.id()] = ["both", came_to, 0.0]
            self.write(test.id())
        elif self.found[test.id()][1] == "yes":
            # What failed first, in the case or in a part of it, is what counts.
            self.found[test.id()][1] = came_to

    def addFailure(self, test, problem):
        super().addFailure(test, problem)
        self.note(test, f"no: {last_line(problem)}")

    def addError(self, test, problem):
        super().addError(test, problem)
        self.note(test, f"could not be looked at: {last_line(problem)}")

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self.note(test, f"could not be looked at: {reason}")

    def addSubTest(self, test, part, problem):
        super().addSubTest(test, part, problem)
        if problem is not None:
            kind = "no" if issubclass(problem[0], AssertionError) else "could not be looked at"
            self.note(test, f"{kind}: {part.params.get('msg') or part._message}: {last_line(problem)}")


def last_line(problem):
    return " ".join(str(problem[1]).split())[:200] or problem[0].__name__


def case_name(identity):
    """Without the file: "ChangeTest test_of_a_radio" reads "change of a radio"."""
    *_, suite, case = ("", *identity.split("."))
    return f"{suite.removesuffix('Test')}: {case.removeprefix('test_').replace('_', ' ')}"


def main(folder, pattern="*_test.py", *names):
    sys.path.insert(0, os.path.dirname(os.path.realpath(__file__)))
    loader = unittest.TestLoader()
    loader.testNamePatterns = [f"*{name}*" for name in names] or None
    runner = unittest.TextTestRunner(verbosity=2, resultclass=Result)
    result = runner.run(loader.discover(folder, pattern))
    for identity, (_, _, seconds) in sorted(result.found.items(), key=lambda entry: -entry[1][2]):
        print(f"{seconds:7.1f} s  {case_name(identity)}", file=sys.stderr)
    # A case that was not looked at has not passed.
    return 0 if result.wasSuccessful() and not result.skipped and result.testsRun > 0 else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
