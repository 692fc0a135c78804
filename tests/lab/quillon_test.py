# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Quillon is installed, and its parts start as on a user's machine: by buses, under systemd, with their rights."""
import unittest

from guest import HELPER, NOBODY, SERVICE, WIRED, bus, call, run

UNIT = "quillon4-helper.service"
CAP_NET_ADMIN = 1 << 12


def unit(name):
    return run("systemctl", "show", "--property", name, "--value", UNIT)


class HelperTest(unittest.TestCase):
    def setUp(self):
        run("systemctl", "stop", UNIT)

    def test_the_bus_has_systemd_start_it(self):
        self.assertEqual(unit("ActiveState"), "inactive")
        self.assertEqual(bus("system", HELPER, "GetVersion"), 's "2.0"')
        self.assertEqual(unit("ActiveState"), "active")
        answer = run("busctl", "call", "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                     "GetConnectionUnixProcessID", "s", HELPER)
        self.assertEqual(answer, f"u {unit('MainPID')}")

    def test_it_has_one_right_and_a_user_of_its_own(self):
        bus("system", HELPER, "GetVersion")
        with open(f"/proc/{unit('MainPID')}/status") as file:
            status = dict(line.split(":", 1) for line in file)
        self.assertEqual(int(status["CapEff"], 16), CAP_NET_ADMIN)
        self.assertEqual(int(status["CapBnd"], 16), CAP_NET_ADMIN)
        user = run("id", "-u", "quillon4-helper")
        self.assertEqual(status["Uid"].split(), [user] * 4)

    def test_without_a_session_nobody_changes_an_address(self):
        code, text = call(*NOBODY, "busctl", "call", HELPER, "/" + HELPER.replace(".", "/"), HELPER,
                          "ChangeAddressOfDevice", "ssbay", WIRED, "02:00:00:00:53:77", "false", "32", *["0"] * 32)
        self.assertNotEqual(code, 0)
        self.assertIn("not authorized", text.lower())


class ServiceTest(unittest.TestCase):
    def test_the_session_bus_starts_it_and_it_finds_the_helper(self):
        kind, endpoint, size, *authorization = bus("user", SERVICE, "ConnectWithEndpointAndAuthorization").split()
        self.assertEqual((kind, size, len(authorization)), ("say", "32", 32))
        owner = run("busctl", "call", "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                    "GetNameOwner", "s", HELPER)
        self.assertEqual(owner, f"s {endpoint}")


if __name__ == "__main__":
    unittest.main(verbosity=2)
