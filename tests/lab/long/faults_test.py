# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What goes wrong around a change, under NetworkManager: its owner is killed, nobody answers, the radio is taken away."""
import os
import signal
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.realpath(__file__)), ".."))

import air  # noqa: E402
import simulated  # noqa: E402
from case import ACTIVATED, NEW, ProgramCase, connect_radio, is_managed, state  # noqa: E402
from guest import (HELPER, WIRED, WIRELESS, address, bus, call, ipv4, ipv4_addresses, leases, links, run,  # noqa: E402
                   wait_until)

NOT_BACK_LIMIT = 100  # seconds; the program waits for 60 at most, and an emulated machine is slow


class HeldChangeCase(ProgramCase):
    """A change that waits in its middle, as the helper thinks."""

    def hold_change(self, device):
        bus("system", HELPER, "GetVersion")
        helper = int(run("systemctl", "show", "--property", "MainPID", "--value", "quillon4-helper.service"))
        os.kill(helper, signal.SIGSTOP)
        self.go_on = lambda: os.kill(helper, signal.SIGCONT)
        self.addCleanup(self.go_on)
        self.program.begin_change(device, NEW[device])
        if device == WIRELESS:
            wait_until(lambda: not is_managed(WIRELESS), "the radio is not let go")
        else:
            time.sleep(2)  # nobody tells that the helper was asked


class OwnerKilledTest(HeldChangeCase):
    def expect_change_in_spite_of_it(self, device):
        self.hold_change(device)
        run("systemctl", "kill", "--signal=KILL", "NetworkManager.service")
        self.go_on()
        wait_until(lambda: address(device) == NEW[device], lambda: f"{device} has {address(device)}")
        wait_until(lambda: [leases().get(one) for one in ipv4_addresses(device)] == [NEW[device]],
                   lambda: f"{ipv4_addresses(device)} of {device} are not of the new address alone")
        self.expect_in_use(device, NEW[device])
        self.assertTrue(is_managed(device))

    def test_in_the_middle_of_a_wired_change(self):
        self.expect_change_in_spite_of_it(WIRED)

    def test_in_the_middle_of_a_radios_change(self):
        self.expect_change_in_spite_of_it(WIRELESS)

    test_in_the_middle_of_a_wired_change.interface = WIRED
    test_in_the_middle_of_a_radios_change.interface = WIRELESS


class OnlyLookedAtTest(ProgramCase):
    """A wire that NetworkManager did not connect, or does not know of any more that it did."""
    interface = WIRED

    def test_it_is_changed_and_left_to_whoever_connected_it(self):
        profile = run("nmcli", "--get-values", "GENERAL.CONNECTION", "device", "show", WIRED)
        run("systemctl", "stop", "NetworkManager.service")
        os.remove(f"/run/NetworkManager/devices/{links()[WIRED]['ifindex']}")
        run("systemctl", "start", "NetworkManager.service")
        self.addCleanup(run, "nmcli", "--wait", "90", "connection", "up", profile)
        wait_until(lambda: "externally" in run("nmcli", "--get-values", "GENERAL.STATE", "device", "show", WIRED),
                   "NetworkManager has connected it itself")
        self.change(WIRED, NEW[WIRED])
        self.expect_among_told("Ethernet keeps the IP Address of before")
        self.assertEqual(address(WIRED), NEW[WIRED])


class AirFaultTest(ProgramCase):
    interface = WIRELESS

    def setUp(self):
        super().setUp()
        self.addCleanup(connect_radio)

    def expect_still_in_use(self):
        wait_until(lambda: air.access_point() and state(WIRELESS) == ACTIVATED, "the radio does not come back")
        self.expect_in_use(WIRELESS, NEW[WIRELESS])

    def test_access_points_gone_and_back(self):
        self.change(WIRELESS, NEW[WIRELESS])
        run("systemctl", "stop", air.ONE)
        self.addCleanup(run, "systemctl", "start", air.ONE)
        wait_until(lambda: state(WIRELESS) != ACTIVATED, "NetworkManager does not see it")
        run("systemctl", "start", air.ONE)
        self.expect_still_in_use()

    def test_access_points_gone_during_the_change(self):
        run("systemctl", "stop", air.ONE)
        self.addCleanup(run, "systemctl", "start", air.ONE)
        begin = time.monotonic()
        self.program.change(WIRELESS, NEW[WIRELESS])
        self.assertLess(time.monotonic() - begin, NOT_BACK_LIMIT)
        self.expect_told("Wi-Fi is not connected again")
        run("systemctl", "start", air.ONE)
        self.expect_still_in_use()

    def test_roam_between_two_access_points(self):
        air.use(air.TWO)
        self.addCleanup(air.use, air.ONE)
        # It acts once: what a roam looks like to the program is no other visit.
        self.program.switch(self.program.make_rule(WIRELESS), True)
        new = self.wait_for_change(WIRELESS, 1)
        for _ in range(3):
            air.roam()
            self.expect_in_use(WIRELESS, new)
        self.assertEqual(self.program.history(WIRELESS), [new])

    def test_blocked_and_not(self):
        self.change(WIRELESS, NEW[WIRELESS])
        air.block(True)
        self.addCleanup(air.block, False)
        wait_until(lambda: state(WIRELESS) == "20", "NetworkManager does not see it")
        blocked = self.program.change(WIRELESS, "02:00:00:00:54:23")
        print(f"    while blocked: {blocked}", file=sys.stderr)
        self.program.change(WIRELESS, NEW[WIRELESS])
        air.block(False)
        self.expect_still_in_use()


class SilentServerTest(ProgramCase):
    def expect_word_and_healing(self, device, title):
        run("systemctl", "stop", "lab-dhcp.service")
        self.addCleanup(run, "systemctl", "start", "lab-dhcp.service")
        begin = time.monotonic()
        changed = self.program.change(device, NEW[device])
        self.assertLess(time.monotonic() - begin, NOT_BACK_LIMIT)
        self.assertEqual((changed.in_place, changed.address), (True, NEW[device]))
        self.expect_among_told(f"{title} is not connected again")
        run("systemctl", "start", "lab-dhcp.service")
        with self.subTest("heals"):
            self.expect_in_use(device, NEW[device])
        with self.subTest("usable"):
            self.change(device, self.factory[device])
            self.expect_in_use(device, self.factory[device])

    def test_of_a_wired_interface(self):
        self.expect_word_and_healing(WIRED, "Ethernet")

    def test_of_a_radio(self):
        self.expect_word_and_healing(WIRELESS, "Wi-Fi")

    test_of_a_wired_interface.interface = WIRED
    test_of_a_radio.interface = WIRELESS


class RadioRemovedTest(HeldChangeCase):
    interface = WIRELESS
    speed = 20

    def put_in_again(self):
        if WIRELESS not in links():
            simulated.plug_in(self.factory[WIRELESS])
        wait_until(lambda: call("has-lease", WIRELESS)[0] == 0, "the radio does not come back")

    def setUp(self):
        super().setUp()
        self.addCleanup(self.put_in_again)

    def expect_that_it_works_again(self):
        self.put_in_again()
        self.assertEqual(address(WIRELESS), self.factory[WIRELESS])
        self.change(WIRELESS, NEW[WIRELESS])
        self.expect_in_use(WIRELESS, NEW[WIRELESS])

    def test_while_a_change_runs(self):
        self.hold_change(WIRELESS)
        simulated.unplug()
        self.go_on()
        # It answers while it waits, and ends the change by itself.
        self.change(WIRED, NEW[WIRED])
        self.assertEqual(self.program.history(WIRELESS), [])
        self.expect_that_it_works_again()

    def test_while_a_rule_waits(self):
        self.program.switch(self.program.make_rule(WIRELESS, minutes=1), True)
        self.assertEqual(self.program.countdowns(), [WIRELESS])
        simulated.unplug()
        time.sleep(5)  # more than the minute, by the program's clock
        self.change(WIRED, NEW[WIRED])
        self.put_in_again()
        self.wait_for_change(WIRELESS, 1)
        self.program.pause(WIRELESS)
        wait_until(lambda: address(WIRELESS) == self.program.history(WIRELESS)[-1] == leases().get(ipv4(WIRELESS)),
                   "the rule's change is not in use")


if __name__ == "__main__":
    from suite import main
    sys.exit(main(os.path.dirname(os.path.realpath(__file__)), os.path.basename(__file__)))
