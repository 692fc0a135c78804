# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program under test, started as a person starts it, and the kernel to compare with."""
import json
import os
import shutil
import subprocess
import sys
import unittest

SANDBOX_TOOLS = os.path.realpath(os.path.join(os.path.dirname(os.path.realpath(__file__)),
                                              "..", "..", "tools", "sandbox.d"))
sys.path.insert(0, SANDBOX_TOOLS)

import accessibility  # noqa: E402
import trayclient  # noqa: E402,F401
from accessibility import wait_until, xdotool  # noqa: E402,F401

NAME = TITLE = "Quillon"
PROGRAM = os.path.join(os.environ["QUILLON_BUILD"], "src", "quillon")
DEADLINE = 120  # seconds; only a hang takes that long, however busy the machine is


FOLDER = os.path.expanduser("~/.local/share/Quillon")
RECORDS = os.path.join(FOLDER, "Quillon.sqlite")
SETTINGS = os.path.expanduser("~/.config/Quillon")
WRITE_RULE = os.path.join(os.environ["QUILLON_BUILD"], "tests", "integration", "app", "write-rule")


def forget_everything():
    """As if the program had never run: no settings, no records."""
    for folder in (FOLDER, SETTINGS):
        shutil.rmtree(folder, ignore_errors=True)


def write_rule(kind, device):
    """A rule in the records of the program, which must not run: "once", "every-minute" or "login"."""
    os.makedirs(FOLDER, exist_ok=True)
    subprocess.run([WRITE_RULE, RECORDS, kind, device], check=True, stdin=subprocess.DEVNULL, timeout=DEADLINE)


def kernel_addresses():
    """What the kernel says: the address of each interface, in capitals."""
    answer = subprocess.run(["ip", "-j", "link"], check=True, capture_output=True, stdin=subprocess.DEVNULL)
    return {link["ifname"]: link["address"].upper() for link in json.loads(answer.stdout)
            if link["ifname"] != "lo"}


def start(**environment):
    return subprocess.Popen([PROGRAM], stdin=subprocess.DEVNULL, env={**os.environ, **environment})


def dunst(*words):
    return subprocess.run(["dunstctl", *words], check=True, capture_output=True, text=True,
                          stdin=subprocess.DEVNULL).stdout


def messages():
    """Title and text of every message to the user so far; takes those on the screen away."""
    dunst("close-all")
    history = json.loads(dunst("history"))["data"][0]
    return [(message["summary"]["data"], message["body"]["data"]) for message in history]


class ProgramTest(unittest.TestCase):
    """Starts the program anew for each test, and expects it to end in order when asked to."""

    def setUp(self):
        self.addresses = kernel_addresses()
        self.program = self.start_program()
        self.addCleanup(self.end_program)
        self.window = accessibility.window(NAME, TITLE)
        self.field = self.window.find("entry", "Address")
        wait_until(lambda: self.field.text, "the window showed no address")
        # Only now has the window manager put the window where it stays.
        wait_until(self.focused, "the window did not get the keyboard")

    def start_program(self):
        return start()

    def end_program(self):
        if self.program.poll() is None:
            self.program.terminate()
        self.assertEqual(self.program.wait(DEADLINE), 0, "the program did not end in order")

    def button(self, name):
        return self.window.find("button", name)

    def row(self, label):
        """What says its label and its value in one, "Rules, No rules"."""
        return wait_until(lambda: next((control for control in self.window.everything_below()
                                        if control.showing and control.name.startswith(label + ", ")), None),
                          lambda: f"no row “{label}”; there is {self.window.overview()}")

    def value_of(self, label):
        return self.row(label).name.partition(", ")[2]

    def popover(self, label):
        """That of a row, which has it opened if it is not."""
        row = self.row(label)
        if not row.children:
            row.press()
        return wait_until(lambda: next(iter(row.children), None), f"“{label}” opened nothing")

    def has_popover(self, label):
        return bool(self.row(label).children)

    def focused(self):
        """What has the keyboard, of the window and what is open of it."""
        return next((control for control in self.window.everything_below() if control.focused), None)

    @property
    def selector(self):
        return self.window.labelled("Interface", "combo box")

    def expect_only_changed(self, device):
        """Waits until the kernel has a new address for `device`; returns it. No other may have changed."""
        # One look at all of them: a key that was pressed twice changes the address once more.
        now = wait_until(lambda: (now := kernel_addresses())[device] != self.addresses[device] and now,
                         f"the kernel kept the address of {device}")
        self.assertEqual(now, {**self.addresses, device: now[device]})
        return now[device]

    def expect_shown(self, address):
        wait_until(lambda: self.field.text == address,
                   lambda: f"the window shows {self.field.text} instead of {address}")
