# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program in the user's session, asked to do what a person does in its window."""
import os
import shutil
import subprocess
from collections import namedtuple

Changed = namedtuple("Changed", "in_place address seconds")
Trace = namedtuple("Trace", "label value hint")
ANY_NETWORK, UNKNOWN_NETWORK = "Any Network", "An Unknown Network"
FOLDER = "/home/quillon/lab-program"


class Program:
    """With nothing remembered, unless it is `again`; its clock runs `speed` times as fast. In the user's session at the
    terminal, or in the one with that number."""

    def __init__(self, again=False, speed=1, at_login=False, session=None):
        if not again:
            shutil.rmtree(FOLDER, ignore_errors=True)
            os.mkdir(FOLDER)
            shutil.chown(FOLDER, "quillon", "quillon")
        path = os.path.join(os.environ["QUILLON_BUILD"], "tests", "lab", "lab-program")
        where = ("--session", session) if session else ()
        self.process = subprocess.Popen(("as-user", *where, path, FOLDER, str(speed), *["login"] * at_login),
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)

    def ask(self, *words):
        self.process.stdin.write("\t".join(words) + "\n")
        answer = self.process.stdout.readline().rstrip("\n").split("\t")
        if answer[0] in ("error", ""):
            raise AssertionError(f"{' '.join(words)}: {' '.join(answer[1:]) or 'the program is gone'}")
        return answer

    def change(self, device, address):
        in_place, now, nanoseconds = self.ask("change", device, address)
        return Changed(in_place == "in place", now, int(nanoseconds) / 1e9)

    def begin_change(self, device, address):
        self.ask("begin", device, address)

    def make_rule(self, device, network=ANY_NETWORK, address="random", minutes=0):
        """Which acts once, or every so many minutes; it is switched off. `network` may be a BSSID, "" is that of
        login rules."""
        return self.ask("rule", device, network, address, str(minutes))[0]

    def switch(self, rule, is_on):
        self.ask("switch", rule, "on" if is_on else "off")

    def pause(self, device):
        self.ask("pause", device)

    def resume(self, device):
        self.ask("resume", device)

    def countdowns(self):
        """The interfaces that have one."""
        return self.ask("countdowns")[1:]

    def history(self, device):
        """The addresses that were set, the first one first."""
        changes = [change.split() for change in self.ask("history")[1:]]
        return [changed_to.lower() for changed, changed_to in changes if changed == device]

    def messages(self):
        """The titles that the user was told since the last time; not that this desktop has no status bar."""
        return [title for title in self.ask("messages")[1:] if title != "Quillon is not in the status bar"]

    def wifi(self):
        """What the window shows of the network that the radio is on."""
        return dict(word.split("=", 1) for word in self.ask("wifi")[1:])

    def traces(self, device):
        """What the window says that the network of the interface still sees."""
        return [Trace(*word.split("|", 2)) for word in self.ask("traces", device)[1:]]

    def network(self):
        """What the window says in place of the network's name, or that."""
        return self.ask("network")[1]

    def press(self, button):
        """The window's "install" or "uninstall": whether that was done."""
        return self.ask(button)[0] == "done"

    def kill(self):
        self.process.kill()
        self.close()

    def end(self):
        self.process.stdin.close()
        self.close()

    def close(self):
        self.process.wait()
        self.process.stdout.close()
        if not self.process.stdin.closed:
            try:
                self.process.stdin.close()
            except BrokenPipeError:
                pass
