# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program says unasked to assistive technology, on a machine of fakes: each change once, no second of a
countdown."""
import os
import subprocess
import unittest

from program import DEADLINE

SCENES = os.path.join(os.environ["QUILLON_BUILD"], "tests", "face", "quillon-face-scenes")
CHANGED = "Changed: this is the address in use now."
# All that is said from the start to the state, in this order.
SAID = {
    "plain": [],
    "main-window": [CHANGED],
    "changing": [],
    "typed": [],
    "refused": ["This is not a MAC address."],
    "group-address": ["Group address: most adapters refuse it."],
    "other-interface": ["Ethernet, enp1s0, Link inactive"],
    "change-refused": ["Not changed: Please make sure you have installed the HelperTool."],
    "helper-lost": ["The helper is not installed"],
    # Ticked several times.
    "countdown": [],
    "countdown-paused": ["Countdown paused"],
    "favorite-removed": ["Favorite removed"],
    "looking-up": [],
    "updates-checking": [],
    "updates-none": ["Quillon 4.0.0 is the newest version."],
    "updates-found": ["Quillon 4.1 is available"],
    "updates-not-trusted": ["What came is not from the authors of Quillon and was not used."],
}


class AnnouncementsTest(unittest.TestCase):
    def said_until(self, state):
        self.program.stdin.write(state + "\n")
        self.program.stdin.flush()
        said = []
        while (line := self.program.stdout.readline().rstrip("\n")) != "shown":
            self.assertTrue(line.startswith("announced "), f"“{line}” in {state}")
            said.append(line.partition(" ")[2])
        return said

    def setUp(self):
        self.program = subprocess.Popen([SCENES, "--announcements"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        text=True)
        self.addCleanup(self.end)

    def end(self):
        self.program.stdin.close()
        self.assertEqual(self.program.wait(DEADLINE), 0, "the program did not end in order")
        self.program.stdout.close()

    def test_each_change_is_said_once_and_nothing_else(self):
        for state, said in SAID.items():
            with self.subTest(state):
                self.assertEqual(self.said_until(state), said)


if __name__ == "__main__":
    unittest.main(verbosity=2)
