# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What cases have in common that run the program under NetworkManager."""
import sys
import unittest

from guest import WIRED, WIRELESS, address, call, ipv4, leases, links, run, wait_until
from program import Program

NEW = {WIRED: "02:00:00:00:54:11", WIRELESS: "02:00:00:00:54:22"}
ACTIVATED = "100"  # of NetworkManager's device states


def factory_address(device):
    """The kernel tells it only where it is another than the one in use."""
    link = links()[device]
    return link.get("permaddr", link["address"])


def state(device):
    return run("nmcli", "--get-values", "GENERAL.STATE", "device", "show", device).split()[0]


def is_managed(device):
    return run("nmcli", "--get-values", "GENERAL.NM-MANAGED", "device", "show", device) == "yes"


def ipv6_of(device):
    """The link-local address that the kernel makes of a link-layer address."""
    return run("ip", "-6", "-oneline", "address", "show", "dev", device, "scope", "link")


def eui64(link_address):
    first, *rest = (int(octet, 16) for octet in link_address.split(":"))
    octets = [first ^ 2, *rest[:2], 0xFF, 0xFE, *rest[2:]]
    return ":".join(f"{octets[i] << 8 | octets[i + 1]:x}" for i in range(0, 8, 2))


def join(name):
    # It must have seen the access point first.
    wait_until(lambda: call("as-user", "nmcli", "--wait", "60", "connection", "up", name)[0] == 0,
               f"the radio does not join {name}")


def connect_radio():
    join("lab-wpa2")


class ProgramCase(unittest.TestCase):
    """The program on a machine whose interfaces have their factory addresses, and have them again afterwards."""

    speed = 1  # of the program's clock

    def setUp(self):
        self.factory = {device: factory_address(device) for device in NEW}
        self.program = Program(speed=self.speed)
        self.addCleanup(self.restore)

    def restart_program(self, **how):
        self.program.end()
        self.program = Program(again=True, **how)

    def restore(self):
        for device, factory in self.factory.items():
            if address(device) != factory:
                self.program.change(device, factory)
        self.program.end()
        for device in NEW:
            wait_until(lambda device=device: state(device) == ACTIVATED, f"{device} does not come back")

    def expect_in_use(self, device, new):
        wait_until(lambda: state(device) == ACTIVATED and ipv4(device),
                   lambda: f"{device} stays in state {state(device)}")
        self.assertEqual(address(device), new)
        self.assertEqual(leases()[ipv4(device)], new)

    def expect_among_told(self, title):
        told = []
        wait_until(lambda: told.extend(self.program.messages()) or title in told, lambda: f"only told {told}", 20)

    def expect_told(self, title):
        """That alone of this interface."""
        told = []
        wait_until(lambda: told.extend(self.program.messages()) or title in told, lambda: f"only told {told}")
        kind = title.split()[0]
        self.assertEqual([one for one in told if one.startswith(kind)], [title])

    def expect_nothing_told(self, device):
        kind = "Wi-Fi" if device == WIRELESS else "Ethernet"
        self.assertEqual([one for one in self.program.messages() if one.startswith(kind)], [])

    def wait_for_change(self, device, count):
        """Until the history has so many of the device; the address of the last."""
        wait_until(lambda: len(self.program.history(device)) >= count,
                   lambda: f"only changed {self.program.history(device)}, {count} expected")
        return self.program.history(device)[count - 1]

    def change(self, device, new):
        changed = self.program.change(device, new)
        print(f"    {device}: {changed.seconds:.2f} s", file=sys.stderr)
        self.assertEqual((changed.in_place, changed.address), (True, new))
        return changed
