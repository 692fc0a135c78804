# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program as it is installed, without a display, in the user's session: what it does by itself, and what it asks."""
import os
import shutil
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from guest import WIRED, WIRELESS, address, ipv4, leases, links, run, wait_until  # noqa: E402
from notifications import Notifications  # noqa: E402
from program import Program  # noqa: E402

HOME = "/home/quillon"
FOLDERS = [os.path.join(HOME, *path) for path in ((".local", "share", "Quillon"), (".config", "Quillon"))]
SETTINGS = os.path.join(HOME, ".config", "com.orvandel.Quillon4.plist")
RECORDS = os.path.join(FOLDERS[0], "Quillon.sqlite")
WRITE_RULE = os.path.join(os.environ["QUILLON_BUILD"], "tests", "integration", "app", "write-rule")
DRIFT = "Wi-Fi shows another Address"


class InstalledTest(unittest.TestCase):
    def setUp(self):
        self.forget()
        self.factory = {device: links()[device].get("permaddr", address(device)) for device in (WIRED, WIRELESS)}
        self.notifications = Notifications()
        self.addCleanup(self.restore)
        self.quillon = None

    def forget(self):
        for folder in FOLDERS:
            shutil.rmtree(folder, ignore_errors=True)
        if os.path.exists(SETTINGS):
            os.remove(SETTINGS)

    def start(self):
        self.quillon = subprocess.Popen(("as-user", "env", "QT_QPA_PLATFORM=offscreen", "quillon"),
                                        stdin=subprocess.DEVNULL)

    def waits_for_events(self):
        """It has used no processor for two seconds."""
        before = self.processor_time()
        time.sleep(2)
        return self.processor_time() == before

    def processor_time(self):
        with open(f"/proc/{self.quillon.pid}/stat") as file:
            return file.read().rpartition(")")[2].split()[11:13]

    def stop(self):
        self.quillon.terminate()
        self.assertEqual(self.quillon.wait(), 0)
        self.quillon = None

    def restore(self):
        if self.quillon:
            self.quillon.terminate()
            self.quillon.wait()
        self.notifications.end()
        program = Program()
        for device, factory in self.factory.items():
            if address(device) != factory:
                program.change(device, factory)
        program.end()
        self.forget()

    def change_by_rule(self):
        """The rule's new address of the radio, once it is in use."""
        run("as-user", "mkdir", "-p", FOLDERS[0])
        run("as-user", WRITE_RULE, RECORDS, "once", WIRELESS)
        self.start()
        wait_until(lambda: address(WIRELESS) != self.factory[WIRELESS] and
                   self.notifications.find("Wi-Fi Address Changed"), "the rule does not act")
        self.expect_in_use(address(WIRELESS))
        return address(WIRELESS)

    def expect_in_use(self, new):
        wait_until(lambda: ipv4(WIRELESS) and leases().get(ipv4(WIRELESS)) == new,
                   lambda: f"{WIRELESS} has {address(WIRELESS)} and {ipv4(WIRELESS)}, and no lease for {new}")

    def test_a_rule_acts_once(self):
        new = self.change_by_rule()
        run("as-user", "nmcli", "device", "disconnect", WIRELESS)
        wait_until(lambda: subprocess.run(("as-user", "nmcli", "--wait", "60", "connection", "up", "lab-wpa2"),
                                          stdout=subprocess.DEVNULL).returncode == 0, "the radio does not connect")
        self.expect_in_use(address(WIRELESS))
        titles = [shown.title for shown in self.notifications.shown]
        self.assertIn("Wi-Fi Address Changed", titles)
        # NetworkManager has scanned with an address of its own meanwhile.
        self.assertNotIn(DRIFT, titles)
        print(f"    {new}, then {address(WIRELESS)}", file=sys.stderr)
        self.assertEqual(address(WIRED), self.factory[WIRED])

    def test_an_address_that_somebody_else_replaced_is_applied_again(self):
        new = self.change_by_rule()
        self.stop()
        # The program remembers what it gave; no rule puts it back.
        shutil.rmtree(FOLDERS[0])
        self.start()
        wait_until(lambda: os.path.exists(RECORDS), "the program does not start")
        wait_until(self.waits_for_events, "the program does not end its start")
        theirs = "02:00:00:00:54:77"
        run("ip", "link", "set", WIRELESS, "down")
        run("ip", "link", "set", WIRELESS, "address", theirs)
        run("ip", "link", "set", WIRELESS, "up")
        shown = wait_until(lambda: self.notifications.find(DRIFT), "nobody is told")
        self.assertIn("NetworkManager owns this interface.", shown.body)
        self.assertIn(theirs, shown.body.lower())
        self.assertEqual(shown.actions[1::2], ["Apply again", "Accept"])
        self.notifications.choose(shown, "Apply again")
        wait_until(lambda: address(WIRELESS) == new, lambda: f"{address(WIRELESS)} instead of {new}")
        self.expect_in_use(new)
        self.assertEqual([one.title for one in self.notifications.shown].count(DRIFT), 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
