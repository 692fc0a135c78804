# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person changes in the program holds, under NetworkManager, whatever happens meanwhile and afterwards."""
import os
import signal
import sys
import unittest

from guest import (HELPER, WIRED, WIRELESS, address, as_user, bus, call, ipv4, ipv4_addresses, leases, links,
                   network, run, wait_until)
from program import Program

NEW = {WIRED: "02:00:00:00:54:11", WIRELESS: "02:00:00:00:54:22"}


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


def connect_radio():
    # It must have seen the access point first.
    wait_until(lambda: call("as-user", "nmcli", "--wait", "60", "connection", "up", "lab-wpa2")[0] == 0,
               "the radio does not connect")


class ProgramCase(unittest.TestCase):
    def setUp(self):
        self.factory = {device: factory_address(device) for device in NEW}
        self.program = Program()
        self.addCleanup(self.restore)

    def restore(self):
        for device, factory in self.factory.items():
            if address(device) != factory:
                self.program.change(device, factory)
        self.program.end()
        for device in NEW:
            wait_until(lambda device=device: state(device) == "100", f"{device} does not come back")

    def expect_in_use(self, device, new):
        wait_until(lambda: state(device) == "100" and ipv4(device), lambda: f"{device} stays in state {state(device)}")
        self.assertEqual(address(device), new)
        self.assertEqual(leases()[ipv4(device)], new)

    def expect_told(self, title):
        """That alone of this interface."""
        told = []
        wait_until(lambda: told.extend(self.program.messages()) or title in told, lambda: f"only told {told}")
        kind = title.split()[0]
        self.assertEqual([one for one in told if one.startswith(kind)], [title])

    def change(self, device, new):
        changed = self.program.change(device, new)
        print(f"    {device}: {changed.seconds:.2f} s", file=sys.stderr)
        self.assertEqual((changed.in_place, changed.address), (True, new))
        return changed


class ChangeTest(ProgramCase):
    def expect_that_it_lasts(self, device):
        before = ipv4(device)
        self.change(device, NEW[device])
        # As soon as the program says so, not some time later.
        self.assertEqual(state(device), "100")
        self.expect_in_use(device, NEW[device])
        self.expect_told(self.title(device))
        self.assertNotEqual(ipv4(device), before)
        self.assertNotIn(eui64(self.factory[device]), ipv6_of(device))
        with self.subTest("reconnected"):
            as_user("nmcli", "device", "disconnect", device)
            as_user("nmcli", "device", "connect", device)
            self.expect_in_use(device, NEW[device])
        with self.subTest("NetworkManager restarted"):
            run("systemctl", "restart", "NetworkManager.service")
            self.expect_in_use(device, NEW[device])

    @staticmethod
    def title(device):
        return f"{'Wi-Fi' if device == WIRELESS else 'Ethernet'} Address Changed"

    def test_of_a_wired_interface(self):
        self.expect_that_it_lasts(WIRED)

    def test_of_a_radio(self):
        self.expect_that_it_lasts(WIRELESS)
        for name in ("lab-open", "lab-wpa3", "lab-wpa2"):
            with self.subTest(name):
                as_user("nmcli", "--wait", "60", "connection", "up", name)
                self.assertEqual(network(), name)
                self.expect_in_use(WIRELESS, NEW[WIRELESS])

    def test_back_to_the_factory_address(self):
        for device, factory in self.factory.items():
            with self.subTest(device):
                self.change(device, NEW[device])
                self.change(device, factory)
                self.expect_in_use(device, factory)
                self.assertTrue(is_managed(device))

    def test_of_a_radio_on_no_network(self):
        as_user("nmcli", "device", "disconnect", WIRELESS)
        self.addCleanup(connect_radio)
        self.program.change(WIRELESS, NEW[WIRELESS])
        self.assertTrue(is_managed(WIRELESS))
        self.assertNotEqual(state(WIRELESS), "100")
        connect_radio()
        self.expect_in_use(WIRELESS, NEW[WIRELESS])


class InterruptedChangeTest(ProgramCase):
    def setUp(self):
        super().setUp()
        # A helper that thinks holds the change in its middle.
        bus("system", HELPER, "GetVersion")
        self.helper = int(run("systemctl", "show", "--property", "MainPID", "--value", "quillon4-helper.service"))
        os.kill(self.helper, signal.SIGSTOP)
        self.program.begin_change(WIRELESS, NEW[WIRELESS])
        wait_until(lambda: not is_managed(WIRELESS), "the radio is not let go")

    def tearDown(self):
        self.let_helper_go_on()

    def let_helper_go_on(self):
        os.kill(self.helper, signal.SIGCONT)

    def expect_back(self):
        wait_until(lambda: is_managed(WIRELESS) and state(WIRELESS) == "100", "the radio stays without an owner")

    def test_the_program_is_killed(self):
        self.program.kill()
        self.expect_back()
        self.let_helper_go_on()
        self.program = Program(again=True)

    def test_the_program_and_its_guard_are_killed(self):
        guard, = run("pgrep", "--full", "--", "--take-back").split()
        os.kill(int(guard), signal.SIGKILL)
        self.program.kill()
        self.let_helper_go_on()
        self.assertFalse(is_managed(WIRELESS))
        self.program = Program(again=True)
        self.expect_back()

    def test_networkmanager_is_restarted(self):
        run("systemctl", "restart", "NetworkManager.service")
        self.let_helper_go_on()
        self.expect_back()
        wait_until(lambda: [leases().get(one) for one in ipv4_addresses(WIRELESS)] == [NEW[WIRELESS]],
                   lambda: f"{ipv4_addresses(WIRELESS)} are not of the new address alone")
        self.expect_in_use(WIRELESS, NEW[WIRELESS])


class ProfileTest(ProgramCase):
    def test_an_address_of_the_profile_wins_and_is_told(self):
        profile_address = "02:00:00:00:54:99"
        run("nmcli", "connection", "modify", "lab-wpa2", "802-11-wireless.cloned-mac-address", profile_address)
        self.addCleanup(run, "nmcli", "connection", "modify", "lab-wpa2", "802-11-wireless.cloned-mac-address", "")
        as_user("nmcli", "--wait", "60", "connection", "up", "lab-wpa2")
        changed = self.program.change(WIRELESS, NEW[WIRELESS])
        self.assertEqual((changed.in_place, changed.address), (False, profile_address))
        self.expect_told("Wi-Fi Address was not Changed")
        self.assertEqual(state(WIRELESS), "100")


if __name__ == "__main__":
    unittest.main(verbosity=2)
