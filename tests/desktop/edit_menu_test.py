# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Undo, redo and saving with the usual keys: in the address field first, then of records."""
import os
import sqlite3
import subprocess
import unittest

from program import ProgramTest, wait_until, xdotool

RECORDS = os.path.expanduser("~/.local/share/Quillon/Quillon.sqlite")
WRITE_RULE = os.path.join(os.environ["QUILLON_BUILD"], "tests", "integration", "app", "write-rule")


def enabled_in_file():
    """Whether the one rule of the file is switched on."""
    connection = sqlite3.connect(f"file:{RECORDS}?mode=ro", uri=True)
    try:
        return bool(connection.execute('SELECT enabled FROM "Rule"').fetchone()[0])
    finally:
        connection.close()


class EditMenuTest(ProgramTest):
    def setUp(self):
        os.makedirs(os.path.dirname(RECORDS), exist_ok=True)
        if os.path.exists(RECORDS):
            os.remove(RECORDS)
        subprocess.run([WRITE_RULE, RECORDS, "once", "enp1s0"], check=True, stdin=subprocess.DEVNULL)
        super().setUp()
        if self.selector.name != "enp1s0":
            self.selector.choose("enp1s0")
        # The rule gives its address before anything else is done.
        self.address = self.expect_only_changed("enp1s0")
        self.expect_shown(self.address)

    def is_on(self):
        """What the popover says of the rule; it is closed again and the field has the keyboard."""
        is_on = self.popover("Rules").find("check box").checked
        self.leave_popover()
        return is_on

    def leave_popover(self):
        xdotool("key", "Escape")
        wait_until(lambda: not self.has_popover("Rules"), "the popover stays open")
        self.field.click()
        wait_until(lambda: self.field.focused, "the field did not get the keyboard")

    def test_a_switched_rule_is_undone_redone_and_saved(self):
        switch = self.popover("Rules").find("check box")
        self.assertTrue(switch.checked)
        switch.press()
        wait_until(lambda: not enabled_in_file(), "the switch was not saved")
        self.leave_popover()
        xdotool("key", "ctrl+z")
        wait_until(lambda: self.value_of("Rules") == "Active rule", "it was not undone")
        self.assertTrue(self.is_on())
        xdotool("key", "ctrl+shift+z")
        wait_until(lambda: self.value_of("Rules") == "No active rules", "it was not redone")
        self.assertFalse(self.is_on())
        xdotool("key", "ctrl+z")
        wait_until(lambda: self.value_of("Rules") == "Active rule", "it was not undone again")
        self.assertFalse(enabled_in_file())
        xdotool("key", "ctrl+s")
        wait_until(enabled_in_file, "it was not saved")
        self.assertEqual(self.field.text, self.address, "the field was left alone")

    def test_the_field_has_the_keys_first(self):
        self.popover("Rules").find("check box").press()
        wait_until(lambda: not enabled_in_file(), "the switch was not saved")
        self.leave_popover()
        self.field.type("02005e10abcd")
        self.expect_shown("02005E10ABCD")
        xdotool("key", "ctrl+z")
        self.expect_shown(self.address)
        xdotool("key", "ctrl+shift+z")
        self.expect_shown("02005E10ABCD")
        xdotool("key", "ctrl+z")
        self.expect_shown(self.address)
        self.assertFalse(self.is_on())
        xdotool("key", "ctrl+z")
        wait_until(lambda: self.value_of("Rules") == "Active rule", "then the records were to be undone")


if __name__ == "__main__":
    unittest.main(verbosity=2)
