# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Our windows beside the network desktop programs that most people have: start, memory, wake-ups."""
import os
import shutil
import signal
import subprocess
import tempfile
import time

import idle
from workers import USER, Failed, in_turns, processes_of

APPLET, EDITOR = "nm-applet", "nm-connection-editor"
REFERENCE = "the smallest Qt window"
OURS = "Quillon"
START_GOAL, MEMORY_GOAL = 0.8, 1
LIMIT = 100  # seconds; the service ends 60 s after the last request
MINUTE = 60  # from one change of the rule to its next
# Nothing of the sandbox is theirs to change.
CONFIGURATION = """[main]
plugins=keyfile
dns=none
[keyfile]
unmanaged-devices=*
"""
WINDOW_OPEN, WINDOW_HIDDEN = "window open", "window hidden"


def missing():
    """Programs to compare with that are not there."""
    return [name for name in ("NetworkManager", APPLET, EDITOR) if not shutil.which(name)]


def wait_until(condition, what):
    deadline = time.monotonic() + LIMIT
    while not condition():
        if time.monotonic() > deadline:
            raise Failed(what)
        time.sleep(0.02)


def press(keys):
    subprocess.run(["xdotool", "key", keys], check=True)


def is_on_display(title):
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"],
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


class Peers:
    """The daemon that the others speak with, and what they are started by."""

    def __init__(self, make_worker, programs, write_rule):
        self.make_worker, self.programs, self.write_rule = make_worker, programs, write_rule
        self.folder = tempfile.mkdtemp(prefix="bench-", dir="/run")
        self.started = []

    def __enter__(self):
        configuration = os.path.join(self.folder, "NetworkManager.conf")
        with open(configuration, "w") as file:
            file.write(CONFIGURATION)
        self.spawn(["NetworkManager", "--no-daemon", "--config", configuration, "--config-dir", self.folder,
                    "--state-file", os.path.join(self.folder, "state")])
        wait_until(lambda: subprocess.run(["nmcli", "general"], stdout=subprocess.DEVNULL,
                                          stderr=subprocess.DEVNULL).returncode == 0, "NetworkManager does not answer")
        return self

    def __exit__(self, *_):
        for process in reversed(self.started):
            process.send_signal(signal.SIGTERM)
            process.wait(LIMIT)
        shutil.rmtree(self.folder)

    def spawn(self, command, **options):
        self.started.append(subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options))
        return self.started[-1].pid

    def start_applet(self):
        environment = {**os.environ, "HOME": f"/home/{USER}", "USER": USER, "LOGNAME": USER}
        return self.spawn([APPLET, "--indicator"], user=USER, group=USER, extra_groups=[], env=environment)

    def start(self, names):
        """What starts each of `names`, and its process."""
        starters = {name: self.make_worker("measure-start") for name in names}
        return starters, {name: int(starter.ask("start", self.programs[name])[1])
                          for name, starter in starters.items()}

    def write_minute_rule(self, device):
        records = f"/home/{USER}/.local/share/Quillon"
        subprocess.run(["runuser", "-u", USER, "--", "mkdir", "-p", records], check=True)
        subprocess.run(["runuser", "-u", USER, "--", self.write_rule, os.path.join(records, "Quillon.sqlite"),
                        "every-minute", device], check=True)
        return records


def end(starters):
    for starter in starters.values():
        starter.ask("end")
        starter.end()


def starts(report, peers, rounds):
    starter = peers.make_worker("measure-start")

    def start(path):
        nanoseconds, _ = starter.ask("start", path)
        time.sleep(0.5)  # what else it does at its start ends before the next one's begins
        starter.ask("end")
        time.sleep(0.2)
        return int(nanoseconds) / 1e6

    taken = in_turns({name: lambda path=path: start(path) for name, path in peers.programs.items()}, rounds, 3)
    starter.end()
    report.section("Start to the first window, beside others", f"{rounds} starts in turns; NetworkManager is running")
    medians = {name: report.times(name, times) for name, times in taken.items()}
    report.goal(f"{OURS} / {EDITOR}", medians[OURS] / medians[EDITOR], START_GOAL)


def memory_and_wake_ups(report, peers, seconds):
    applet = peers.start_applet()
    # Each has another program with the same libraries beside it.
    starters, processes = peers.start((EDITOR, REFERENCE, OURS))
    processes[APPLET] = applet
    time.sleep(idle.SETTLING_SECONDS)
    report.section("Memory, idle, beside others (RSS, PSS, USS)", columns=("resident", "shared out", "private", "written"))
    figures = {name: idle.memory(processes[name]) for name in (OURS, APPLET, EDITOR, REFERENCE)}
    for name, row in figures.items():
        report.row(name, *(f"{kilobytes / 1024:.1f} MB" for kilobytes in row))
    report.goal(f"private: {OURS} / {APPLET}", figures[OURS][2] / figures[APPLET][2], MEMORY_GOAL)

    # Until helper and service have ended by themselves, they are still news.
    wait_until(lambda: not any(processes_of(name) for name in idle.SERVERS), "helper or service do not end")
    rows = {name: (seconds, threads) for name, threads in idle.watch(processes, seconds).items()}
    shown = rows.pop(OURS)
    press("ctrl+w")
    wait_until(lambda: not is_on_display(OURS), "the window is not hidden")
    time.sleep(idle.SETTLING_SECONDS)
    hidden = seconds, idle.watch({OURS: processes[OURS]}, seconds)[OURS]
    end(starters)
    return {f"{OURS}, {WINDOW_OPEN}": shown, f"{OURS}, {WINDOW_HIDDEN}": hidden, **rows}


def countdown_wake_ups(peers, device):
    """Open and hidden while a countdown runs, each well within one minute of it."""
    records = peers.write_minute_rule(device)
    seconds = MINUTE // 3
    starters, processes = peers.start((OURS,))
    time.sleep(2 * idle.SETTLING_SECONDS)
    shown = idle.watch(processes, seconds)[OURS]
    press("ctrl+w")
    wait_until(lambda: not is_on_display(OURS), "the window is not hidden")
    time.sleep(1)
    hidden = idle.watch(processes, seconds // 2)[OURS]
    end(starters)
    shutil.rmtree(records)
    return {f"{OURS}, countdown, {WINDOW_OPEN}": (seconds, shown),
            f"{OURS}, countdown, {WINDOW_HIDDEN}": (seconds // 2, hidden)}


def report_wake_ups(report, rows):
    report.section("Wake-ups, beside others", columns=("in", "wake-ups", "waits"))
    for name, (seconds, threads) in rows.items():
        report.row(name, f"{seconds} s", str(sum(thread[1] for thread in threads)),
                   str(sum(thread[2] for thread in threads)))
        for thread, voluntary, forced in threads:
            report.row(f"  thread {thread}", "", str(voluntary), str(forced))
    for name, (seconds, threads) in rows.items():
        if name.startswith(OURS):
            counts = "countdown" in name and WINDOW_OPEN in name
            report.count_goal(f"wake-ups of {name}", max((thread[1] for thread in threads), default=0),
                              seconds if counts else 0)


def measure(report, make_worker, programs, write_rule, device, rounds, seconds):
    absent = missing()
    if absent:
        report.section("Beside other network programs", f"not measured: {', '.join(absent)} not installed; "
                                                        "tools/setup peers installs them")
        return
    programs = {**programs, EDITOR: shutil.which(EDITOR)}
    with Peers(make_worker, programs, write_rule) as peers:
        starts(report, peers, rounds)
        rows = memory_and_wake_ups(report, peers, seconds)
        rows |= countdown_wake_ups(peers, device)
    report_wake_ups(report, rows)
