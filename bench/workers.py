# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The measuring programs, asked one request at a time. Times are taken inside them, never here."""
import os
import subprocess

USER = "quillon"
NANOSECONDS_PER_MILLISECOND = 1e6


class Failed(Exception):
    """A measuring program could not do what it was asked; the text says why."""


class Worker:
    def __init__(self, folder, program, *arguments, user=None, log=None):
        switch = {"user": user, "group": user, "extra_groups": []} if user else {}
        self.program = program
        self.environment = dict(os.environ)
        if user:
            self.environment |= {"HOME": f"/home/{user}", "USER": user, "LOGNAME": user}
        # A program that waits for a screen reader shows what most people have.
        self.environment.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
        self.process = subprocess.Popen(
            [os.path.join(folder, program), *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=log, env=self.environment, text=True, bufsize=1, **switch)

    def ask(self, *words):
        """The words of the answer."""
        try:
            self.process.stdin.write("\t".join(words) + "\n")
        except OSError as problem:
            raise Failed(f"{self.program} has ended ({self.process.poll()})") from problem
        answer = self.process.stdout.readline().rstrip("\n").split("\t")
        if answer[0] in ("error", ""):
            raise Failed(f"{self.program} {' '.join(words)}: {' '.join(answer[1:]) or 'no answer'}")
        return answer

    def times(self, *words):
        """The answer's words as milliseconds."""
        return [int(answer) / NANOSECONDS_PER_MILLISECOND for answer in self.ask(*words)]

    def end(self):
        self.process.stdin.close()
        self.process.wait(20)


def in_turns(measurements, rounds, warm_up, before_each=None):
    """Lets the measurements take turns, so that a slow moment of the machine hits all alike.

    `measurements` maps a name to a function that returns milliseconds; so does the result, to lists
    whose items at the same place come from the same round.
    """
    taken = {name: [] for name in measurements}
    for number in range(warm_up + rounds):
        for name, measure in measurements.items():
            if before_each:
                before_each()
            time = measure()
            if number >= warm_up:
                taken[name].append(time)
    return taken


def processes_of(program):
    """The process ids that run the file `program`. The sandbox has a process table of its own."""
    found = []
    for name in os.listdir("/proc"):
        if name.isdigit():
            try:
                path = os.readlink(f"/proc/{name}/exe")
            except OSError:
                continue
            if os.path.basename(path) == program:
                found.append(int(name))
    return found
