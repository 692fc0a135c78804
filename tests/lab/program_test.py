# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person changes in the program holds, under NetworkManager, whatever happens meanwhile and afterwards."""
import os
import signal
import unittest

from case import NEW, ProgramCase, connect_radio, eui64, ipv6_of, is_managed, state
from guest import (HELPER, WIRED, WIRELESS, as_user, bus, ipv4, ipv4_addresses, leases, network, run, wait_until)
from program import Program


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

    @staticmethod
    def title(device):
        return f"{'Wi-Fi' if device == WIRELESS else 'Ethernet'} Address Changed"

    def expect_back_to_the_factory_address(self, device):
        self.change(device, self.factory[device])
        self.expect_in_use(device, self.factory[device])
        self.assertTrue(is_managed(device))

    def test_of_a_wired_interface(self):
        self.expect_that_it_lasts(WIRED)
        with self.subTest("NetworkManager restarted"):
            run("systemctl", "restart", "NetworkManager.service")
            self.expect_in_use(WIRED, NEW[WIRED])
        self.expect_back_to_the_factory_address(WIRED)

    def test_of_a_radio(self):
        # rule_test.py restarts NetworkManager.
        self.expect_that_it_lasts(WIRELESS)
        for name in ("lab-wpa3", "lab-wpa2"):
            with self.subTest(name):
                as_user("nmcli", "--wait", "60", "connection", "up", name)
                self.assertEqual(network(), name)
                self.expect_in_use(WIRELESS, NEW[WIRELESS])
        self.expect_back_to_the_factory_address(WIRELESS)

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
