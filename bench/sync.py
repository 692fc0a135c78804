# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What several computers share: bytes and requests of an account, and the time of a first synchronization."""

COUNT = 100_000
RATE = 5_000  # records per second, at least
NANOSECONDS = 1e9


def measure(report, make_worker):
    worker = make_worker()
    taken, files, size, json = (int(word) for word in worker.ask("fill", str(COUNT)))
    report.section(f"An account with {COUNT:,} history records", "in memory, both computers in one process",
                   columns=("",))
    report.row("bytes per record in change files", f"{size / COUNT:.1f}")
    report.row("bytes per record as JSON", f"{json / COUNT:.1f}")
    report.goal("bytes / JSON", size / json, 0.25)
    report.row("change files", f"{files}")
    rate(report, "sealed and sent", taken)
    first(report, worker, "read by a new computer, from change files")
    taken, parts, size, turn = (int(word) for word in worker.ask("compact"))
    report.row("bytes per record in a snapshot", f"{size / COUNT:.1f}")
    report.row("parts of the snapshot", f"{parts}")
    rate(report, "snapshot written, read back, files removed", taken)
    report.row("  longest turn of the main loop", f"{turn / 1e6:.0f} ms")
    first(report, worker, "read by a new computer, from the snapshot")
    idle, change = (int(word) for word in worker.ask("requests"))
    report.count_goal("requests of a poll without news", idle, 1)
    report.count_goal("requests of a change", change, 2)
    asked, mean, longest = (int(word) for word in worker.ask("day"))
    report.row("requests of a day without news, by the schedule", f"{asked}")
    report.row("from an edit until the other computer has it, by the schedule: mean", f"{mean / 1000:.0f} s")
    report.row("  longest of 100", f"{longest / 1000:.0f} s")
    worker.end()


def rate(report, name, nanoseconds):
    """One row; returns the records per second."""
    speed = COUNT * NANOSECONDS / nanoseconds
    report.row(name, f"{speed:,.0f}/s")
    return speed


def first(report, worker, name):
    taken, records, requests, turn = (int(word) for word in worker.ask("first"))
    if records != COUNT:
        report.line(f"NOT EVERYTHING CAME: {records:,}")
    speed = rate(report, name, taken)
    report.row("  requests", f"{requests}")
    report.row("  longest turn of the main loop", f"{turn / 1e6:.0f} ms")
    report.goal(f"{RATE:,} records/s / ours", RATE / speed, 1)
