# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the user is told, as the notification service of the desktop has it."""
import glob
import os
import unittest

from program import ProgramTest, messages, wait_until

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")


class MessageTest(ProgramTest):
    def expect_message(self, title):
        found = wait_until(lambda: [text for name, text in messages() if name == title],
                           lambda: f"no message {title!r} among {messages()}")
        self.assertEqual(len(found), 1, "one message per title")
        return found[0]


class ChangeTest(MessageTest):
    def test_a_change_is_told_with_the_address_that_was_read_back(self):
        device = self.selector.name
        self.button("Randomize address").press()
        new = self.expect_only_changed(device)
        self.assertEqual(self.expect_message("Ethernet Address Changed"),
                         f"Your new MAC Address is: {new.lower()}")


class DamagedSettingsTest(MessageTest):
    def setUp(self):
        os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
        with open(SETTINGS, "w") as file:
            file.write("<plist><dict><key>lowerCaseHEX</key></dict>")
        super().setUp()

    def test_a_damaged_settings_file_is_told_and_kept(self):
        text = self.expect_message("Settings were damaged")
        kept = glob.glob(SETTINGS + ".damaged-*")
        self.assertEqual(len(kept), 1)
        self.assertIn(kept[0], text)
        with open(kept[0]) as file:
            self.assertIn("lowerCaseHEX", file.read())


if __name__ == "__main__":
    unittest.main(verbosity=2)
