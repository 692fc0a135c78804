# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The vendor registry: import beside SQLite's own, lookup, list, and the filter letter by letter."""
import os
import shutil

from workers import in_turns

WARM_UP = 3
REGISTRY = "/usr/share/ieee-data/oui.csv"
IMPORTED_BY_SQLITE = """drop table if exists vendor;
create table vendor (Registry text, Assignment text, Organization_Name text, Organization_Address text);
begin;
.import --csv --skip 1 "{registry}" vendor
commit;
"""
# What somebody types; the first letter leaves the most.
KEYSTROKES = ("s", "sa", "sam", "random a", "\u00e9", "no such vendor")
SIZES = {40_000: 4, 400_000: 16}  # entries: the goal in milliseconds, a display's frame for the second


def measure(report, make_worker, command, folder, rounds):
    """`command` is a worker that times commands; `folder` is on the disk to be measured."""
    worker = make_worker(folder)
    script = os.path.join(folder, "import.sql")
    with open(script, "w", encoding="utf-8") as file:
        file.write(IMPORTED_BY_SQLITE.format(registry=REGISTRY))
    sqlite3 = shutil.which("sqlite3")
    theirs = os.path.join(folder, "theirs.db")
    before = int(worker.ask("memory")[0])
    rows = int(worker.ask("import", REGISTRY)[1])
    memory = int(worker.ask("memory")[0]) - before
    worker.ask("rewrite")
    taken = in_turns({
        "ours": lambda: int(worker.ask("import", REGISTRY)[0]) / 1e6,
        "theirs": lambda: command.times(sqlite3, theirs, f".read {script}")[0],
        "rewrite": lambda: worker.times("rewrite")[0],
    }, rounds, WARM_UP)

    report.section(f"The vendor registry, {rows} records", f"{rounds} rounds in turns, after {WARM_UP} to warm up")
    ours = report.times("import, one commit per insert", taken["ours"])
    other = report.times("sqlite3 .import, one transaction, a process", taken["theirs"])
    report.goal("our import / sqlite3 .import", ours / other, 3)
    report.times("writing it over the live file, on disk", taken["rewrite"])
    report.row("memory that an import takes at most", f"{memory / 1024:.1f} MB")

    questions = in_turns({
        "lookup": lambda: int(worker.ask("lookup", "080030")[0]) / 1e6,
        "count": lambda: int(worker.ask("count")[0]) / 1e6,
        "list": lambda: int(worker.ask("list")[0]) / 1e6,
    }, rounds, WARM_UP)
    report.times("one lookup, opening the file included", questions["lookup"])
    report.times("counting", questions["count"])
    report.times("the list: reading, sorting, folding", questions["list"])

    for size, goal in SIZES.items():
        worker.ask("grow", str(size))
        keys = in_turns({text: lambda text=text: keystroke(worker, text) for text in KEYSTROKES},
                        rounds, WARM_UP)
        worst = max(report.times(f'"{text}" among {size:,}', times) for text, times in keys.items())
        report.count_goal(f"the slowest keystroke among {size:,}, in ms", round(worst, 2), goal)
    worker.end()


def keystroke(worker, text):
    return int(worker.ask("keystroke", text)[0]) / 1e6
