# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""How the selected interface stands: the address that the internet sees, and the countdown of a rule."""
import os
import shutil
import subprocess
import unittest

from program import DEADLINE, ProgramTest, wait_until
from webserver import EXTERNAL_ADDRESS, Web

FOLDER = os.path.expanduser("~/.local/share/Quillon")
RECORDS = os.path.join(FOLDER, "Quillon.sqlite")
WRITE_RULE = os.path.join(os.environ["QUILLON_BUILD"], "tests", "integration", "app", "write-rule")
COUNTDOWN = "...changing MAC Address in "


class ExternalAddressTest(ProgramTest):
    def setUp(self):
        self.web = Web()
        self.addCleanup(self.web.end)
        super().setUp()

    @property
    def shown(self):
        return self.value_of("External address")

    def refresh_to(self, address):
        self.web.serve({EXTERNAL_ADDRESS: {"body": '{"ip": "%s"}' % address}})
        self.button("Refresh external address").press()
        wait_until(lambda: self.shown == address, lambda: f"the window shows {self.shown}")

    def test_the_button_shows_what_the_service_sees(self):
        self.assertEqual(self.shown, "Unknown...")
        self.refresh_to("198.51.100.77")
        self.refresh_to("2001:db8::77")
        request = self.web.requests(EXTERNAL_ADDRESS)[0]
        self.assertEqual((request["secure"], request["query"]), (True, "format=json"))

    def test_an_answer_without_an_address_is_unknown(self):
        self.refresh_to("198.51.100.77")
        self.web.serve({EXTERNAL_ADDRESS: {"body": "<html>Please log in</html>"}})
        self.button("Refresh external address").press()
        wait_until(lambda: self.shown == "Unknown...", lambda: f"the window shows {self.shown}")

    def test_a_refused_connection_leaves_it(self):
        self.refresh_to("198.51.100.77")
        self.web.end()
        self.button("Refresh external address").press()
        # The next answer is that of a later question: the refused one has long been over.
        again = Web()
        self.addCleanup(again.end)
        self.assertEqual(self.shown, "198.51.100.77")
        self.web = again
        self.refresh_to("198.51.100.78")


class CountdownTest(ProgramTest):
    def setUp(self):
        shutil.rmtree(FOLDER, ignore_errors=True)
        os.makedirs(FOLDER)
        self.addCleanup(shutil.rmtree, FOLDER)
        for device in ("enp1s0", "enp2s0"):
            subprocess.run([WRITE_RULE, RECORDS, "every-minute", device], check=True,
                           stdin=subprocess.DEVNULL, timeout=DEADLINE)
        super().setUp()

    @property
    def countdown(self):
        return next((label.name for label in self.window.all("label") if label.name.startswith(COUNTDOWN)), "")

    def wait_for_another(self, text):
        return wait_until(lambda: self.countdown != text and self.countdown, f"the countdown stands at “{text}”")

    def test_a_countdown_is_shown_paused_and_resumed(self):
        wait_until(lambda: self.countdown, "no countdown came")
        self.assertRegex(self.countdown, r"in 00:0[01]:\d\d$")
        self.assertEqual(self.value_of("Rules"), "Active rule")
        self.wait_for_another(self.countdown)
        self.assertFalse(self.button("Resume").enabled)

        self.button("Pause").press()
        paused = wait_until(lambda: self.countdown.endswith("(paused)") and self.countdown, "it was not paused")
        wait_until(lambda: self.button("Resume").enabled and not self.button("Pause").enabled,
                   "it cannot be resumed")
        self.assertEqual(self.countdown, paused)

        self.button("Resume").press()
        wait_until(lambda: not self.countdown.endswith("(paused)"), "it was not resumed")
        self.wait_for_another(self.countdown)
        wait_until(lambda: self.button("Pause").enabled, "it cannot be paused again")


if __name__ == "__main__":
    unittest.main(verbosity=2)
