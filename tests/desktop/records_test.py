# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the built program remembers and does by itself: its history after a violent end, and its rules."""
import os
import re
import signal
import sqlite3
import subprocess
import sys
import time
import unittest

from gi.repository import Gio, GLib
from program import DEADLINE, NAME, TITLE, accessibility, kernel_addresses, start, trayclient, wait_until

BUILD = os.environ["QUILLON_BUILD"]
FOLDER = os.path.expanduser("~/.local/share/Quillon")
RECORDS = os.path.join(FOLDER, "Quillon.sqlite")
WRITE_RULE = os.path.join(BUILD, "tests", "integration", "app", "write-rule")
LOGIN_ITEM = os.path.join(BUILD, "login", "QuillonHelper")
PROGRAM_NAME = "com.orvandel.Quillon4"


def history():
    """The history records in the file, as dictionaries, whoever has it open."""
    if not os.path.exists(RECORDS):
        return []
    connection = sqlite3.connect(f"file:{RECORDS}?mode=ro", uri=True)
    try:
        connection.row_factory = sqlite3.Row
        return [dict(row) for row in connection.execute('SELECT * FROM "Connection" ORDER BY pk')]
    finally:
        connection.close()


def write_rule(kind, device):
    os.makedirs(FOLDER, exist_ok=True)
    subprocess.run([WRITE_RULE, RECORDS, kind, device], check=True, stdin=subprocess.DEVNULL)


def ask_bus(method, name):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                         GLib.Variant("(s)", (name,)), None, Gio.DBusCallFlags.NONE, -1, None).unpack()[0]


def forget_everything():
    for name in os.listdir(FOLDER) if os.path.isdir(FOLDER) else []:
        os.remove(os.path.join(FOLDER, name))


class LinkMonitor:
    """When the kernel told of which address of an interface, in seconds of the wall clock."""

    def __init__(self):
        self.process = subprocess.Popen(["ip", "-o", "-ts", "monitor", "link"], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.PIPE, text=True)
        self.text = None
        wait_until(self.listens, "ip does not listen to the kernel")

    def listens(self):
        with open("/proc/net/netlink") as file:
            sockets = [line.split() for line in file]
        return any(process == str(self.process.pid) and int(groups, 16) != 0
                   for _, _, process, groups, *_ in sockets[1:])

    def end(self):
        """Moment, interface and address of every message."""
        if self.text is None:
            self.process.terminate()
            self.text = self.process.communicate()[0]
        return [(self.seconds(match[1]), match[2], match[3].upper()) for match in re.finditer(
            r"^\[([^\]]+)\]\s*\d+: ([^@:]+)\S*:.*link/ether (\S+)", self.text, re.MULTILINE)]

    @staticmethod
    def seconds(stamp):
        moment, fraction = stamp.split(".")
        return time.mktime(time.strptime(moment, "%Y-%m-%dT%H:%M:%S")) + float("0." + fraction)


class RecordsTest(unittest.TestCase):
    """Starts the program when a test says so, with the records that the test has put there."""

    device = "enp2s0"

    def setUp(self):
        forget_everything()
        self.addresses = kernel_addresses()

    def start_program(self):
        program = start()
        self.addCleanup(program.wait, DEADLINE)
        self.addCleanup(program.terminate)
        return program

    def expect_only_changed(self):
        new = kernel_addresses()
        self.assertNotEqual(new[self.device], self.addresses[self.device])
        self.assertEqual({**new, self.device: self.addresses[self.device]}, self.addresses)
        return new[self.device]


def asked_as_kept(record):
    """The address of a record, which is as it was asked for: a first octet below 16 has one digit."""
    return record["address"].upper().rjust(17, "0")


class HistoryTest(RecordsTest):
    def change_and_kill(self):
        """Changes the address and ends the program violently as soon as that is recorded and shown."""
        program = self.start_program()
        before = len(history())
        shown = "    Current Address · " + self.addresses[self.device]
        item = trayclient.only_item()
        wait_until(lambda: shown in item.menu_text(), "the status item does not show the address")
        item.click(shown, "Randomize")
        wait_until(lambda: shown not in item.menu_text(), "the status item kept the old address")
        # The kernel's own word may be shown before the helper has answered.
        wait_until(lambda: len(history()) > before, "the change was not recorded")
        program.kill()
        program.wait(DEADLINE)
        wait_until(lambda: not trayclient.items(), "the status item stayed")
        return self.expect_only_changed()

    def test_a_change_is_in_the_file_after_a_violent_end(self):
        begin = time.time()
        new = self.change_and_kill()
        records = history()
        self.assertEqual(len(records), 1, records)
        record = records[0]
        self.assertEqual((record["device"], record["interface"], asked_as_kept(record)),
                         (self.device, "Ethernet", new))
        self.assertEqual((record["ssid"], record["bssid"], record["notes"]), ("", "", None))
        self.assertTrue(begin - 1 <= record["date"] / 1000 <= time.time() + 1, record["date"])

    def test_the_next_start_takes_the_history_on(self):
        self.change_and_kill()
        first = history()
        self.addresses = kernel_addresses()
        self.change_and_kill()
        self.assertEqual(len(history()), 2)
        self.assertEqual(history()[:-1], first)


class RuleTest(RecordsTest):
    """Rules that are in the file before the program is started."""

    def setUp(self):
        super().setUp()
        self.assertEqual(subprocess.run(["ip", "-br", "link", "show", self.device], capture_output=True,
                                        text=True, check=True).stdout.split()[1], "UP")
        self.monitor = LinkMonitor()
        self.addCleanup(self.monitor.end)

    def start_at_login(self):
        begin = time.time()
        item = subprocess.Popen([LOGIN_ITEM], stdin=subprocess.DEVNULL)
        self.addCleanup(item.wait, DEADLINE)
        self.addCleanup(item.terminate)
        wait_until(lambda: ask_bus("NameHasOwner", PROGRAM_NAME), "the program did not come")
        program = ask_bus("GetConnectionUnixProcessID", PROGRAM_NAME)
        self.addCleanup(wait_until, lambda: not os.path.exists(f"/proc/{program}"), "the program stayed")
        self.addCleanup(os.kill, program, signal.SIGTERM)
        return begin

    def expect_nothing_more(self, expected):
        time.sleep(2.5)
        self.assertEqual(len(history()), expected)

    def moment_of_change(self):
        """Waits for the one change, and tells when the kernel told of it."""
        wait_until(lambda: len(history()) == 1, "the history has no change")
        new = self.expect_only_changed()
        self.assertEqual((history()[0]["device"], asked_as_kept(history()[0])), (self.device, new))
        self.expect_nothing_more(1)
        changes = [moment for moment, device, address in self.monitor.end()
                   if device == self.device and address != self.addresses[device]]
        return changes[0]

    def expect_one_second_at_least(self, seconds):
        # How long the start itself takes is the machine's business; the unit tests turn the clock by hand.
        self.assertGreaterEqual(seconds, 1.0)
        print(f"the address changed {seconds:.2f} s after the start", file=sys.stderr)

    def test_a_rule_acts_one_second_after_the_start(self):
        write_rule("once", self.device)
        begin = time.time()
        self.start_program()
        self.expect_one_second_at_least(self.moment_of_change() - begin)

    def test_a_login_rule_acts_one_second_after_a_start_at_login(self):
        write_rule("login", self.device)
        begin = self.start_at_login()
        self.expect_one_second_at_least(self.moment_of_change() - begin)

    def test_a_login_rule_does_not_act_at_any_other_start(self):
        write_rule("login", self.device)
        self.start_program()
        accessibility.window(NAME, TITLE)
        self.expect_nothing_more(0)
        self.assertEqual(kernel_addresses(), self.addresses)


if __name__ == "__main__":
    unittest.main(verbosity=2)
