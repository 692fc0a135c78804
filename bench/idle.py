# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What our programs cost while nobody does anything: memory and wake-ups."""
import os
import time

from workers import processes_of

SETTLING_SECONDS = 5
HELPER_SECONDS = 20  # it ends by itself 30 s after the last request, the service after 60 s
SERVICE_END_SECONDS = 70
SWITCHES = ("voluntary_ctxt_switches", "nonvoluntary_ctxt_switches")
SERVERS = ("Quillon4HelperTool", "quillon-xpc-service")


def memory(process):
    """Kilobytes: resident; with what is shared divided among those who share it; nobody else's; and
    of that what was written, which does not depend on who else runs."""
    sums = {}
    with open(f"/proc/{process}/smaps_rollup") as file:
        for line in file:
            words = line.split()
            if words[0].endswith(":"):
                sums[words[0][:-1]] = int(words[1])
    written = sums["Private_Dirty"]
    return sums["Rss"], sums["Pss"], sums["Private_Clean"] + written, written


def switches(process):
    """For each thread, how often it went to sleep by itself and how often it was made to wait.

    A thread that was woken goes to sleep once more: its wake-ups are its voluntary switches.
    """
    threads = {}
    for thread in os.listdir(f"/proc/{process}/task"):
        folder = f"/proc/{process}/task/{thread}"
        with open(f"{folder}/status") as file:
            values = dict(line.split(":", 1) for line in file)
        threads[thread] = (values["Name"].strip(), *(int(values[key]) for key in SWITCHES))
    return threads


def moved(before, after):
    """Name, wake-ups and waits of each thread that did anything."""
    rows = []
    for thread, (name, voluntary, forced) in after.items():
        _, voluntary_before, forced_before = before.get(thread, (name, 0, 0))
        if voluntary != voluntary_before or forced != forced_before:
            rows.append((name, voluntary - voluntary_before, forced - forced_before))
    return rows


def watch(processes, seconds):
    """For each name of `processes`, what its threads did in that time."""
    before = {name: switches(process) for name, process in processes.items()}
    time.sleep(seconds)
    return {name: moved(before[name], switches(process)) for name, process in processes.items()}


def measure(report, programs, make_worker, seconds):
    starters = {name: make_worker("measure-start") for name in programs}
    processes = {}
    for name, path in programs.items():
        processes[name] = int(starters[name].ask("start", path)[1])
    begin = time.monotonic()
    time.sleep(SETTLING_SECONDS)
    servers = {name: processes_of(name)[0] for name in SERVERS}

    report.section(f"Memory, idle for {SETTLING_SECONDS} s (RSS, PSS, USS)", columns=("resident", "shared out", "private", "written"))
    for name, process in {**processes, **servers}.items():
        figures = memory(process)
        report.row(name, *(f"{kilobytes / 1024:.1f} MB" for kilobytes in figures))
        if name == "Quillon":
            written = round(figures[-1] / 1024, 1)
    report.count_goal("written by Quillon, in MB", written, 8)

    with_servers = watch(servers, HELPER_SECONDS)
    time.sleep(max(0.0, begin + SERVICE_END_SECONDS - time.monotonic()))
    gone = [name for name in SERVERS if not processes_of(name)]
    alone = watch(processes, seconds)
    for starter in starters.values():
        starter.ask("end")
        starter.end()
    report_wake_ups(report, with_servers, alone, seconds, gone)


def report_wake_ups(report, with_servers, alone, seconds, gone):
    report.section("Wake-ups while idle", columns=("in", "wake-ups", "waits"))
    for period, watched in ((HELPER_SECONDS, with_servers), (seconds, alone)):
        for name, rows in watched.items():
            report.row(name, f"{period} s", str(sum(row[1] for row in rows)),
                       str(sum(row[2] for row in rows)))
            for thread, voluntary, forced in rows:
                report.row(f"  thread {thread}", "", str(voluntary), str(forced))
    report.line(f"ended by themselves when nobody asked any more: {', '.join(gone) or 'none'}")
    for name in with_servers:
        report.count_goal(f"wake-ups of {name}", sum(row[1] for row in with_servers[name]), 0)
    report.count_goal("wake-ups of Quillon", sum(row[1] for row in alone["Quillon"]), 0)
