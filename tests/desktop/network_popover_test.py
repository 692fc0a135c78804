# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The popover of the network, which is there only with a radio: the program's windows on a machine of fakes."""
import os
import subprocess
import unittest

from popovers_test import PopoverTest
from program import DEADLINE, wait_until

SCENES = os.path.join(os.environ["QUILLON_BUILD"], "tests", "face", "quillon-face-scenes")
LABEL = "Network"
ADD, REMOVE = "Add Network to Favorites", "Remove Network from Favorites"


class NetworkPopoverTest(PopoverTest):
    def start_program(self):
        program = subprocess.Popen([SCENES], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, text=True)
        program.stdin.write("plain\n")
        program.stdin.flush()
        return program

    def end_program(self):
        self.program.stdin.close()
        self.assertEqual(self.program.wait(DEADLINE), 0, "the program did not end in order")

    def test_it_tells_what_the_radio_knows(self):
        self.assertEqual(self.value_of(LABEL), "Harbor Café")
        for text in ("Harbor Café", "a4:2b:b0:11:22:33", "192.0.2.10", "WPA2 Personal", "-54 dBm", "-92 dBm",
                     "866.7 Mbps", "36 (5 GHz, 80 MHz)", "802.11ac", "9", "DE"):
            self.expect_text(LABEL, text)
        self.close(LABEL)

    def test_it_tells_what_the_network_still_sees(self):
        for text in ("What the network of wlp2s0 still sees", "Name sent with DHCP, harbor-laptop",
                     "DHCP client identifier, 01:00:00:5e:00:53:01", "IPv6 address, fe80::200:5eff:fe00:5301",
                     "Name told by mDNS, harbor-laptop.local", "Login name (802.1X), alice@harbor.example"):
            self.expect_text(LABEL, text)
        self.close(LABEL)

    def test_its_heart_saves_the_network_and_forgets_it(self):
        heart = self.popover(LABEL).find("button", ADD)
        wait_until(lambda: heart.focused, "the heart has not the keyboard")
        heart.press()
        self.popover(LABEL).find("button", REMOVE).press()
        self.popover(LABEL).find("button", ADD)
        self.close(LABEL)

    def test_it_is_closed_by_its_row_and_by_a_press_outside(self):
        shown = self.field.text
        for target in (self.row(LABEL), self.button("Randomize address")):
            self.row(LABEL).click()
            wait_until(lambda: self.has_popover(LABEL), "it did not open")
            target.click()
            self.expect_closed(LABEL)
            wait_until(lambda: self.row(LABEL).focused, "its row has not the keyboard")
        self.assertEqual(self.field.text, shown)


if __name__ == "__main__":
    unittest.main(verbosity=2)
