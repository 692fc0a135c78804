# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A history of a million records: opening, searching and saving, beside SQLite on the same file."""
import os
import shutil
import sqlite3
import time

from workers import in_turns

COUNT = 1_000_000
PAGE = 50
WARM_UP = 2
FIELDS = ("device", "interface", "address", "ssid", "bssid", "notes")
# What is searched for, and where.
SEARCHES = {
    "all fields, a text found nowhere": ("all", "nothing holds this"),
    "all fields, a text in 1 of 1,000": ("all", "reception"),
    "ssid alone, a text in 1 of 1,500": ("ssid", "Network 996"),
    "all fields, a text in every record": ("all", ":"),
}


def condition(field, parameter):
    """The search as a person would write it for SQLite."""
    names = FIELDS if field == "all" else (field,)
    return " OR ".join(f"instr({name}, {parameter}) > 0" for name in names)


class Sqlite:
    """The same questions to SQLite, in this process."""

    def __init__(self, path):
        self.connection = sqlite3.connect(path)
        self.counts = {}

    def search(self, field, text):
        begin = time.perf_counter_ns()
        keys = self.connection.execute(
            f'SELECT pk FROM "Connection" WHERE {condition(field, "?1")} ORDER BY pk', (text,)).fetchall()
        for key in keys[:PAGE]:
            self.connection.execute('SELECT * FROM "Connection" WHERE pk = ?', key).fetchone()
        taken = (time.perf_counter_ns() - begin) / 1e6
        self.counts[field, text] = len(keys)
        return taken


def measure(report, make_worker, command, folder, rounds):
    """`command` is a worker that times commands; `folder` is on the disk to be measured."""
    path = os.path.join(folder, "Quillon.sqlite")
    maker = make_worker(path)
    filled = maker.times("fill", str(COUNT))[0]
    maker.end()

    opener = make_worker(path)
    opened = [opener.times("open")[0] for _ in range(WARM_UP + rounds)][WARM_UP:]
    ours = make_worker(path)
    ours.ask("keep")
    memory = {"open, with the first page": ours.ask("memory")}
    newest = [int(ours.ask("newest")[0]) / 1e6 for _ in range(WARM_UP + rounds)][WARM_UP:]
    theirs = Sqlite(path)
    found, taken = {}, {}
    program = shutil.which("sqlite3")
    for name, (field, text) in SEARCHES.items():
        def search(field=field, text=text, name=name):
            nanoseconds, found[name] = ours.ask("search", field, text)
            return int(nanoseconds) / 1e6

        query = f'SELECT pk FROM "Connection" WHERE {condition(field, repr(text))} ORDER BY pk'
        taken[name] = in_turns({
            "ours": search,
            "module": lambda field=field, text=text: theirs.search(field, text),
            "program": lambda query=query: command.times(program, "-readonly", path, query)[0],
        }, rounds, WARM_UP)
        if int(found[name]) != theirs.counts[field, text]:
            report.line(f"DIFFERENT ANSWERS: {found[name]} and {theirs.counts[field, text]}")
        memory[f"  then {name}"] = ours.ask("memory")
    ours.end()
    saver = make_worker(path)
    saver.ask("keep")
    saves = [saver.times("save")[0] for _ in range(10 * rounds)]
    memory["open, and saving"] = saver.ask("memory")
    saver.end()
    opener.end()

    report.section(f"A history of {COUNT:,} records ({os.path.getsize(path) / 1e6:.0f} MB)",
                   f"{rounds} rounds in turns; a search gives the number of records and the first {PAGE} of them")
    report.row("made and saved", f"{filled / 1000:.1f} s")
    report.times("opened, first page read", opened)
    report.times("first page by date, newest first", newest)
    report.times("one record made and saved", saves)
    for name, times in taken.items():
        field, text = SEARCHES[name]
        report.line(f"{name}: {int(found[name]):,}")
        median = report.times("  our search", times["ours"])
        reference = report.times("  the same in SQLite, a call", times["module"])
        report.times("  the same in sqlite3, a process", times["program"])
        report.goal("our search / SQLite", median / reference, 1.5)
    report.section("Memory with that history", columns=("resident", "peak"))
    for name, (now, peak) in memory.items():
        report.row(name, *(f"{int(value) / 1024:.1f} MB" for value in (now, peak)))
