# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a rule changes holds, under NetworkManager, and it acts as often as it should."""
import unittest

from case import ProgramCase, connect_radio, join
from guest import ACCESS_POINTS, WIRED, WIRELESS, address, ipv4, leases, network, run, wait_until


class RadioRuleTest(ProgramCase):
    def test_acts_once_per_visit_to_its_network(self):
        self.addCleanup(connect_radio)
        rule = self.program.make_rule(WIRELESS, ACCESS_POINTS["lab-open"].bssid)
        self.program.switch(rule, True)
        self.assertEqual(self.program.history(WIRELESS), [], "it is for another network")
        join("lab-open")
        # From here on the reconnects are those of the change itself.
        new = self.wait_for_change(WIRELESS, 1)
        self.expect_in_use(WIRELESS, new)
        self.assertEqual(network(), "lab-open")
        self.expect_told("Wi-Fi Address Changed")
        with self.subTest("NetworkManager restarted"):
            run("systemctl", "restart", "NetworkManager.service")
            # On the network that connects by itself: that is where NetworkManager goes then.
            self.expect_in_use(WIRELESS, new)
        self.expect_nothing_told(WIRELESS)
        self.assertEqual(self.program.history(WIRELESS), [new])


class WireRuleTest(ProgramCase):
    speed = 20

    def test_every_minute_acts_again(self):
        self.program.switch(self.program.make_rule(WIRED, minutes=1), True)
        self.assertEqual(self.program.countdowns(), [WIRED])
        self.wait_for_change(WIRED, 2)
        self.program.pause(WIRED)
        # One that was under way ends.
        wait_until(lambda: address(WIRED) == self.program.history(WIRED)[-1] == leases().get(ipv4(WIRED)),
                   "the last change is not in use")
        self.assertEqual(len(set(self.program.history(WIRED))), len(self.program.history(WIRED)))


if __name__ == "__main__":
    unittest.main(verbosity=2)
