# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The table of `tools/lab all`: what lasts of a change, by owner and interface."""
import json
import os
import subprocess
import sys

from common import SOURCE, owners

CASES = ("change", "told", "network again", "lease for it", "none of before", "IPv6 of before gone",
         "back after a loss", "link lost", "owner restarted", "factory again")
LOOK = os.path.join(SOURCE, "tests", "lab", "lasting.py")
MARK = "lasting "


def rows_of(owner, build):
    """The device and the cases of each interface, and whether all could be looked at."""
    result = subprocess.run([os.path.join(SOURCE, "tools", "lab"), "--owner", owner, "--build", build,
                             "/usr/bin/python3", "-B", LOOK], stdout=subprocess.PIPE, text=True)
    found = [json.loads(line[len(MARK):]) for line in result.stdout.splitlines() if line.startswith(MARK)]
    return [(row["device"], row["cases"]) for row in found], result.returncode == 0 and len(found) == 2


def show(build):
    """0 when every case of every owner could be looked at, whatever it came to."""
    code = 0
    print("| Owner | Interface | " + " | ".join(CASES) + " |")
    print("|" + "---|" * (len(CASES) + 2), flush=True)
    for owner in owners():
        rows, is_whole = rows_of(owner, build)
        for device, cases in rows:
            print(f"| {owner} | {device} | " + " | ".join(cases.get(case, "") for case in CASES) + " |", flush=True)
        if not is_whole:
            print(f"lab: not everything could be looked at under {owner}", file=sys.stderr)
            code = 1
    return code
