# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The tables of `tools/lab all`: what lasts of a change, by owner and interface, and what the long suites found."""
import glob
import json
import os
import subprocess
import sys

from common import SOURCE, owners
from namespaces import die_with_parent

CASES = ("change", "told", "network again", "lease for it", "none of before", "IPv6 of before gone",
         "back after a loss", "link lost", "owner restarted", "factory again")
LAB = os.path.join(SOURCE, "tools", "lab")
TESTS = os.path.join(SOURCE, "tests", "lab")
LONG = os.path.join(TESTS, "long")
LASTING, CASE = "lasting ", "case "  # what the lines begin with that are for us
SUITE_OWNER = "networkmanager"
SUITE_LIMIT = "5400"  # seconds for a machine; only a hang reaches them


def lines_of(owner, build, mark, limit, *command):
    """What a command in a machine of that owner says for us, and whether it succeeded. The rest is shown aside."""
    result = subprocess.run([LAB, "--owner", owner, "--build", build, "--limit", limit, "/usr/bin/python3", "-B",
                             *command], stdout=subprocess.PIPE, text=True, preexec_fn=die_with_parent)
    found = [json.loads(line[len(mark):]) for line in result.stdout.splitlines() if line.startswith(mark)]
    return found, result.returncode


def suites():
    return sorted(os.path.basename(path).removesuffix("_test.py") for path in glob.glob(os.path.join(LONG, "*_test.py")))


def print_row(*cells):
    print("| " + " | ".join(str(cell).replace("|", "/") for cell in cells) + " |", flush=True)


def print_head(*cells):
    print_row(*cells)
    print("|" + "---|" * len(cells), flush=True)


def show_lasting(build):
    """Whether every case of every owner could be looked at, whatever it came to."""
    is_whole = True
    print_head("Owner", "Interface", *CASES)
    for owner in owners():
        rows, code = lines_of(owner, build, LASTING, "900", os.path.join(TESTS, "lasting.py"))
        for row in rows:
            print_row(owner, row["device"], *(row["cases"].get(case, "") for case in CASES))
        if code != 0 or len(rows) != 2:
            print(f"lab: not everything could be looked at under {owner}", file=sys.stderr)
            is_whole = False
    return is_whole


def show_suites(names, build):
    """Whether every case held."""
    is_whole = True
    print_head("Owner", "Interface", "Suite", "Case", "Result", "Seconds")
    for name in names:
        cases, code = lines_of(SUITE_OWNER, build, CASE, SUITE_LIMIT, os.path.join(TESTS, "suite.py"), LONG,
                               f"{name}_test.py")
        for case in cases:
            print_row(SUITE_OWNER, case["interface"], name, case["case"], case["result"], case["seconds"])
        if not cases:
            print_row(SUITE_OWNER, "both", name, "all", f"could not be looked at: it ended with {code}", "")
        is_whole = is_whole and code == 0 and bool(cases)
    return is_whole


def show(build, wanted):
    """Everything, or only what is named: "lasting", or one of suites(). Returns the exit code: 0 when all could be
    looked at and every case of the suites held."""
    unknown = set(wanted) - {"lasting", *suites()}
    if unknown:
        print(f"lab: there are lasting, {', '.join(suites())}, but no {', '.join(sorted(unknown))}", file=sys.stderr)
        return 125
    is_whole = show_lasting(build) if not wanted or "lasting" in wanted else True
    names = [name for name in suites() if not wanted or name in wanted]
    if names:
        print(flush=True)
        is_whole = show_suites(names, build) and is_whole
    return 0 if is_whole else 1
