# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Hot keys: combinations that are pressed while another program has the keyboard, on an X server."""
import os
import plistlib
import time
import unittest

from program import (NAME, TITLE, ProgramTest, accessibility, kernel_addresses, messages, wait_until, xdotool)

SETTINGS = os.path.expanduser("~/.config/Quillon/com.orvandel.Quillon4.plist")


def write_settings(**values):
    """As another program writes them: the file is replaced whole."""
    settings = {}
    if os.path.exists(SETTINGS):
        with open(SETTINGS, "rb") as file:
            settings = plistlib.load(file)
    os.makedirs(os.path.dirname(SETTINGS), exist_ok=True)
    with open(SETTINGS + ".new", "wb") as file:
        plistlib.dump({**settings, **values}, file)
    os.replace(SETTINGS + ".new", SETTINGS)


class HotKeyTest(ProgramTest):
    def setUp(self):
        write_settings(showKeyEnabled=True, showKeyCombo="Ctrl+Alt+Q", randomKeyEnabled=True, randomKeyCombo="Meta+F7")
        super().setUp()

    def hide(self):
        self.field.click()
        wait_until(lambda: self.field.focused, "the window did not get the keyboard")
        xdotool("key", "ctrl+w")
        wait_until(lambda: not self.is_open(), "the window stayed")

    @staticmethod
    def is_open():
        return accessibility.has_window(NAME, TITLE)

    def press_until(self, keys, condition, what):
        """The program binds its keys some time after a change: they are pressed again until they work."""
        def pressed():
            xdotool("key", keys)
            return condition()
        wait_until(pressed, what)

    def test_the_show_key_brings_the_window(self):
        self.hide()
        self.press_until("ctrl+alt+q", self.is_open, "the window did not come")

    def test_locks_of_the_keyboard_do_not_matter(self):
        for lock in ("Num_Lock", "Caps_Lock"):
            xdotool("key", lock)
            self.addCleanup(xdotool, "key", lock)
        self.hide()
        self.press_until("ctrl+alt+q", self.is_open, "the window did not come")

    def test_the_random_key_held_down_changes_the_address_once(self):
        selected = self.selector.name
        self.hide()
        xdotool("keydown", "super", "keydown", "F7")
        try:
            new = self.expect_only_changed(selected)
            # Long enough for a key that is held to repeat.
            end = time.monotonic() + 2
            while time.monotonic() < end:
                self.assertEqual(kernel_addresses()[selected], new)
        finally:
            xdotool("keyup", "F7", "keyup", "super")
        xdotool("key", "super+F7")
        wait_until(lambda: kernel_addresses()[selected] != new, "the second press did nothing")

    def test_another_combination_takes_its_place(self):
        selected = self.selector.name
        self.hide()
        write_settings(showKeyCombo="Ctrl+Shift+F8")
        self.press_until("ctrl+shift+F8", self.is_open, "the new combination does nothing")
        self.hide()
        xdotool("key", "ctrl+alt+q")
        # What comes later has come: the keys before it did nothing.
        xdotool("key", "super+F7")
        self.expect_only_changed(selected)
        self.assertFalse(self.is_open())

    def test_switched_off_the_keys_belong_to_others_again(self):
        selected = self.selector.name
        self.hide()
        write_settings(showKeyEnabled=False, randomKeyCombo="Ctrl+Alt+Q")
        self.press_until("ctrl+alt+q", lambda: kernel_addresses() != self.addresses, "the key is not free")
        self.expect_only_changed(selected)

    def test_a_combination_that_another_program_has_is_told(self):
        # The window manager closes windows with it.
        write_settings(showKeyCombo="Alt+F4")
        wait_until(lambda: ("Shortcut for “Show window” not set",
                            "Alt+F4: Another program uses this shortcut.") in messages(), "nobody was told")


if __name__ == "__main__":
    unittest.main(verbosity=2)
