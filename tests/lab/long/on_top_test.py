# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A VLAN and a bridge on an interface that nobody manages, on a kernel that has them: when its address changes, no
IPv6 address of before is left on any of them, and what a person gave them is back."""
import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

from guest import HELPER, address, as_user, run, wait_until  # noqa: E402

BELOW, BEYOND = "below0", "beyond0"
BEFORE, AFTER = "02:00:00:00:77:01", "02:00:00:00:77:02"
FORMED_BEFORE, FORMED_AFTER = "fe80::ff:fe00:7701/64", "fe80::ff:fe00:7702/64"


def ipv6(device):
    return run("ip", "-6", "-oneline", "address", "show", "dev", device)


def change():
    as_user("busctl", "call", HELPER, "/" + HELPER.replace(".", "/"), HELPER, "ChangeAddressOfDevice", "ssbay",
            BELOW, AFTER, "false", "32", *["0"] * 32)


class OnTopTest(unittest.TestCase):
    def setUp(self):
        run("ip", "link", "add", BELOW, "address", BEFORE, "type", "veth", "peer", "name", BEYOND)
        self.addCleanup(run, "ip", "link", "delete", BELOW)
        run("ip", "link", "set", BEYOND, "up")
        run("ip", "link", "set", BELOW, "up")

    def put_on_top(self, device, *arguments):
        run("ip", "link", "add", *arguments)
        run("ip", "link", "set", device, "up")
        run("ip", "address", "add", "192.0.2.201/30", "dev", device)
        run("ip", "address", "add", "fd00:db8:7::1/64", "dev", device, "nodad")
        run("ip", "route", "add", "198.18.7.0/24", "via", "192.0.2.202", "dev", device)

    def look_at_a_change(self, on_top):
        for device in (BELOW, on_top):
            wait_until(lambda: FORMED_BEFORE in ipv6(device), f"no {FORMED_BEFORE} on {device}")
        self.assertEqual(address(on_top), BEFORE)
        change()
        for device in (BELOW, on_top):
            self.assertEqual(address(device), AFTER, device)
            self.assertNotIn(FORMED_BEFORE, ipv6(device), device)
            wait_until(lambda: FORMED_AFTER in ipv6(device), f"no {FORMED_AFTER} on {device}")
        self.assertIn("fd00:db8:7::1/64", ipv6(on_top))
        self.assertIn("198.18.7.0/24 via 192.0.2.202", run("ip", "route", "show", "dev", on_top))

    def test_a_vlan(self):
        self.put_on_top("v7", "link", BELOW, "name", "v7", "type", "vlan", "id", "7")
        self.look_at_a_change("v7")

    def test_a_vlan_that_stays_up_without_its_interface(self):
        self.put_on_top("v8", "link", BELOW, "name", "v8", "type", "vlan", "id", "8", "loose_binding", "on")
        self.look_at_a_change("v8")

    def test_a_bridge(self):
        # systemd gives bridges addresses of their own, which they then keep.
        os.makedirs("/run/systemd/network", exist_ok=True)
        with open("/run/systemd/network/10-br7.link", "w") as file:
            file.write("[Match]\nOriginalName=br7\n[Link]\nMACAddressPolicy=none\n")
        run("udevadm", "control", "--reload")
        self.put_on_top("br7", "br7", "type", "bridge")
        self.addCleanup(run, "ip", "link", "delete", "br7")
        run("udevadm", "settle")
        run("ip", "link", "set", BELOW, "master", "br7")
        wait_until(lambda: address("br7") == BEFORE, "the bridge does not take its port's address")
        # What it formed from its first address goes.
        run("ip", "link", "set", "br7", "down")
        run("ip", "link", "set", "br7", "up")
        run("ip", "address", "add", "fd00:db8:7::1/64", "dev", "br7", "nodad")
        run("ip", "route", "replace", "198.18.7.0/24", "via", "192.0.2.202", "dev", "br7")
        self.look_at_a_change("br7")


if __name__ == "__main__":
    unittest.main(verbosity=2)
