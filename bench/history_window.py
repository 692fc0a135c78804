# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The history's window over a million records, beside SQLite on the same file."""
import os
import statistics

from records import COUNT
from workers import in_turns

WARM_UP = 2
NANOSECONDS_PER_MILLISECOND = 1e6
# What is typed, over all fields; of the last there is nothing to be found.
SEARCHES = {
    "a text in every record": ":",
    "a text in 1 of 1,000": "reception",
    "a text in one record": "02:1a:00:00:10:01",
    "a text found nowhere": "nothing holds this",
}
COLUMNS = {"network": 4, "address": 3, "notes": 6}
DELETED = 10_000


def milliseconds(words):
    return [int(word) / NANOSECONDS_PER_MILLISECOND for word in words]


def opened(worker, rounds):
    """Of the first opening, and of each later one: to the first page, to the whole list, the longest turn."""
    first = worker.times("open")
    later = []
    for _ in range(rounds):
        worker.ask("close")
        later.append(worker.times("open"))
    return first, later


def memory_of(make_worker, path, then=()):
    worker = make_worker(path)
    worker.ask("open")
    for request in then:
        worker.ask(*request)
    resident = int(worker.ask("memory")[0]) / 1024
    worker.end()
    return resident


def measure(report, make_worker, make_filler, folder, rounds):
    path = os.path.join(folder, "Quillon.sqlite")
    filler = make_filler(path)
    filler.ask("fill", str(COUNT))
    filler.end()
    empty_folder = os.path.join(folder, "empty")
    os.mkdir(empty_folder)
    empty = os.path.join(empty_folder, "Quillon.sqlite")
    filler = make_filler(empty)
    filler.ask("fill", "0")
    filler.end()

    report.section(f"The history's window over {COUNT:,} records",
                   f"{rounds} rounds in turns; without a display server; the records are open already")
    window = make_worker(path)
    first, later = opened(window, rounds)
    report.row("first opening: first page painted", f"{first[0]:.2f} ms")
    page = report.times("opened again: first page painted", [times[0] for times in later])
    report.times("  the whole list is known", [times[1] for times in later])
    report.times("  longest turn of the main loop", [times[2] for times in later])
    report.goal("first opening / 150 ms", first[0] / 150, 1)
    report.goal("opened again / 150 ms", page / 150, 1)

    for name, text in SEARCHES.items():
        found, turns = [], []

        def search(text=text, found=found, turns=turns):
            answer = window.ask("find", text)
            first_rows, _, turn = milliseconds(answer[:3])
            turns.append(turn)
            found.append(answer[3])
            return first_rows

        taken = in_turns({"ours": search,
                          "SQLite": lambda text=text: milliseconds(window.ask("sqlite", text)[:1])[0]},
                         rounds, WARM_UP)
        report.line(f"{name}: {int(found[-1]):,}")
        ours = report.times("  our first 50 rows", taken["ours"])
        theirs = report.times("  the same query in SQLite, its first 50", taken["SQLite"])
        report.row("  longest turn of the main loop", f"{statistics.median(turns):.2f} ms")
        report.goal("our first rows / SQLite", ours / theirs, 1.2)
    newest = [milliseconds(window.ask("find", "")[:1])[0] for _ in range(WARM_UP + rounds)][WARM_UP:]
    page = report.times("nothing typed: the first 50 by date", newest)
    report.goal("the first 50 by date / 20 ms", page / 20, 1)
    for name, column in COLUMNS.items():
        sorts = [milliseconds(window.ask("sort", str(column))[:3]) for _ in range(max(3, rounds // 3))]
        report.times(f"sorted by {name}: first rows", [times[0] for times in sorts])
        report.row("  longest turn of the main loop", f"{max(times[2] for times in sorts):.2f} ms")
    window.ask("sort", "0")
    scrolls = [window.times("scroll")[0] for _ in range(rounds)]
    report.times("slowest of twenty jumps, painted", scrolls)
    deletions = [window.times("delete", str(DELETED)) for _ in range(3)]
    report.times(f"{DELETED:,} records deleted, a turn", [times[0] for times in deletions])
    report.times("  and brought back", [times[1] for times in deletions])
    window.end()

    least = memory_of(make_worker, empty)
    report.section("Memory of that window", columns=("resident", "above empty"))
    report.row("an empty history", f"{least:.1f} MB", "")
    cases = {f"{COUNT:,} records": (),
             "  then searched and sorted": (("find", ":"), ("find", "reception"), ("find", ""), ("sort", "3"),
                                            ("sort", "0"), ("scroll",))}
    for name, then in cases.items():
        resident = memory_of(make_worker, path, then)
        report.row(name, f"{resident:.1f} MB", f"{resident - least:.1f} MB")
        report.goal("above an empty history / 40 MB", (resident - least) / 40, 1)

    purger = make_worker(path)
    purger.ask("open")
    whole, turn = purger.times("purge")
    purger.end()
    report.section("Everything selected and deleted for good", columns=("time",))
    report.row(f"{COUNT:,} records", f"{whole / 1000:.1f} s")
    report.row("longest turn of the main loop", f"{turn:.1f} ms")
